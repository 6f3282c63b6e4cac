#include "TableViewController.h"

#include <utility>

#include "Nib.h"

namespace zephyrix {

TableViewController::TableViewController(QString layoutName) : layoutName_(std::move(layoutName)) {}

TableViewController::~TableViewController() {
    delete tableView_;
}

TableView* TableViewController::tableView() {
    if (!tableView_) {
        tableView_ = Nib(layoutName_).instantiate<TableView>(nullptr);
        connectOutlets();
        tableView_->setController(this);
        viewDidLoad();
    }
    return tableView_;
}

void TableViewController::viewWillAppear(bool /*animated*/) {}

void TableViewController::viewWillDisappear(bool /*animated*/) {}

void TableViewController::willDisplayCell(TableCell* /*cell*/, const IndexPath& /*path*/) {}

void TableViewController::didSelectRowAtIndexPath(const IndexPath& /*path*/) {}

void TableViewController::setPreferredContentSize(const QSizeF& size) {
    if (size == preferredSize_)
        return;
    preferredSize_ = size;
    Q_EMIT preferredContentSizeChanged(size);
}

QMarginsF TableViewController::widgetMarginInsetsForProposedMarginInsets(
    const QMarginsF& proposed) {
    return proposed;
}

}  // namespace zephyrix
