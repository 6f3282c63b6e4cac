#include "PanelWindow.h"

#include <algorithm>

#include <QPainter>
#include <QResizeEvent>
#include <QScreen>

#include "ui/PanelSurface.h"
#include "ui/Theme.h"

namespace zephyrix {

namespace {

constexpr QSize desktopsFrame(16, 40);  // about what a desktop puts around a window

}  // namespace

PanelWindow::PanelWindow(int width) : PanelFrame(Qt::Window) {
    setPanelWidth(width);
}

void PanelWindow::setPanelWidth(int width) {
    setMinimumWidth(std::min(PanelScroll::leastWidth(), room().width()));
    resize(std::min(width, room().width()), height());
}

QSize PanelWindow::room() const {
    return screen()->availableSize() - desktopsFrame;
}

void PanelWindow::embed(PanelView& view, PanelScroll& scroll) {
    view.layOut(width(), devicePixelRatioF());
    scroll.setGeometry(rect());
}

void PanelWindow::followPanel() {
    setFixedHeight(std::min(view()->panelHeight(), room().height()));
    scroll()->setGeometry(rect());
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
    if (scroll() != nullptr)
        scroll()->setGeometry(rect());
}

}  // namespace zephyrix
