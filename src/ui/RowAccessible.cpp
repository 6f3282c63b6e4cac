#include "RowAccessible.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>

#include "TableCell.h"
#include "TableView.h"

namespace zephyrix {

namespace {

class CellAccessible : public QAccessibleWidget {
  public:
    explicit CellAccessible(QWidget* cell) : QAccessibleWidget(cell, QAccessible::ListItem) {}

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != pressAction())
            return QAccessibleWidget::doAction(name);
        widget()->setFocus(Qt::OtherFocusReason);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &press);
    }
};

QAccessibleInterface* rowInterface(const QString& /*className*/, QObject* object) {
    if (auto* cell = qobject_cast<TableCell*>(object))
        return new CellAccessible(cell);
    if (auto* table = qobject_cast<TableView*>(object))
        return new QAccessibleWidget(table, QAccessible::List);
    return nullptr;
}

}  // namespace

void installRowAccessibility() {
    static const bool installed = (QAccessible::installFactory(rowInterface), true);
    Q_UNUSED(installed);
}

}  // namespace zephyrix
