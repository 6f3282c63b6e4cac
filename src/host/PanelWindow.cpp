#include "PanelWindow.h"

#include <QPainter>
#include <QResizeEvent>

#include "ui/PanelSurface.h"
#include "ui/Theme.h"

namespace zephyrix {

namespace {

constexpr int leastWidth = 320;  // points of the panel

}  // namespace

PanelWindow::PanelWindow(int width) : PanelFrame(Qt::Window) {
    setPanelWidth(width);
}

void PanelWindow::setPanelWidth(int width) {
    setMinimumWidth(Theme::scaled(leastWidth));
    resize(width, height());
}

void PanelWindow::embed(PanelView& view) {
    view.setParent(this);
    view.layOut(width(), devicePixelRatioF());
}

void PanelWindow::followPanel() {
    setFixedHeight(view()->panelHeight());
    view()->setGeometry(rect());
    const QString source = view()->source();
    const QString title = QStringLiteral("Zephyrix");
    setWindowTitle(source.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, source));
}

void PanelWindow::paintEvent(QPaintEvent* /*event*/) {
    // The desktop draws the frame, so the surface's own rounded edge stays outside.
    constexpr double radius = Theme::surfaceRadius;
    QPainter painter(this);
    PanelSurface::paintSurface(painter, QRectF(rect()).adjusted(-radius, -radius, radius, radius),
                               false);
}

void PanelWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (view() != nullptr)
        view()->setGeometry(rect());
}

}  // namespace zephyrix
