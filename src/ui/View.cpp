#include "View.h"

#include <QLayout>
#include <QPainter>

#include "PanelSurface.h"

namespace zephyrix {

View::View(QWidget* parent) : QWidget(parent) {}

void View::setBackgroundColor(const QColor& color) {
    backgroundColor_ = color;
    update();
}

void View::paintEvent(QPaintEvent* /*event*/) {
    if (!backgroundColor_.isValid() || backgroundColor_.alpha() == 0)
        return;
    const auto* around = qobject_cast<View*>(parentWidget());
    QPainter painter(this);
    PanelSurface::fill(painter, *this,
                       around == nullptr ? backgroundColor_ : around->blended(backgroundColor_));
}

void activateLayouts(QWidget* view) {
    if (QLayout* layout = view->layout(); layout != nullptr) {
        layout->activate();
        layout->setGeometry(view->contentsRect());
    }
    const auto children = view->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        activateLayouts(child);
}

}  // namespace zephyrix
