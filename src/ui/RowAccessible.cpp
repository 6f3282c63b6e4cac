#include "RowAccessible.h"

#include <QAccessibleWidget>

#include "TableCell.h"
#include "TableView.h"

namespace zephyrix {

namespace {

TableView* tableAround(const QWidget* cell) {
    QWidget* view = cell->parentWidget();
    while (view != nullptr && qobject_cast<TableView*>(view) == nullptr)
        view = view->parentWidget();
    return qobject_cast<TableView*>(view);
}

/// Without the area between table and rows, and without the cells that wait to be used again.
class TableAccessible : public QAccessibleWidget {
  public:
    explicit TableAccessible(TableView* table)
        : QAccessibleWidget(table, QAccessible::List), table_(table) {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(children().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child == nullptr
                   ? -1
                   : static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object())));
    }

  private:
    [[nodiscard]] QWidgetList children() const {
        QWidgetList shown;
        while (TableCell* cell = table_->cellForRow({static_cast<int>(shown.size()), 0}))
            shown << cell;
        if (table_->footerView() != nullptr)
            shown << table_->footerView();
        return shown;
    }

    TableView* table_;  // outlives its interface
};

class CellAccessible : public QAccessibleWidget {
  public:
    explicit CellAccessible(TableCell* cell)
        : QAccessibleWidget(cell, QAccessible::ListItem), cell_(cell) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        TableView* const table = tableAround(cell_);
        return table == nullptr ? QAccessibleWidget::parent()
                                : QAccessible::queryAccessibleInterface(table);
    }

    // A cell that waits to be used again offers nothing.
    [[nodiscard]] QStringList actionNames() const override {
        if (cell_->isHidden())
            return {};
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != pressAction())
            return QAccessibleWidget::doAction(name);
        TableView* const table = tableAround(cell_);
        if (table == nullptr || cell_->isHidden())
            return;
        cell_->setFocus(Qt::OtherFocusReason);
        // Not by a key: in a window that is not active no row has the focus that would take it.
        table->chooseCell(cell_);
    }

  private:
    TableCell* cell_;  // outlives its interface
};

QAccessibleInterface* rowInterface(const QString& /*className*/, QObject* object) {
    if (auto* cell = qobject_cast<TableCell*>(object))
        return new CellAccessible(cell);
    if (auto* table = qobject_cast<TableView*>(object))
        return new TableAccessible(table);
    return nullptr;
}

}  // namespace

void installRowAccessibility() {
    static const bool installed = (QAccessible::installFactory(rowInterface), true);
    Q_UNUSED(installed);
}

}  // namespace zephyrix
