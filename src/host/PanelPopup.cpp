#include "PanelPopup.h"

#include <algorithm>
#include <utility>

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>

#include "Compositor.h"
#include "ui/PanelSurface.h"

namespace zephyrix {

namespace {

bool isWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// On Wayland only a window that belongs to another may be a popup; there it is a window that
/// closes when another becomes active.
Qt::WindowFlags popupFlags() {
    return Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
           (isWayland() ? Qt::Window : Qt::Popup);
}

/// Trays are on the right; what the desktop keeps for itself says whether above or below.
QPoint trayCorner() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    const bool below = screen->geometry().bottom() > available.bottom();
    return below ? available.bottomRight() : available.topRight();
}

QScreen* screenAt(const QPoint& point) {
    QScreen* const screen = QGuiApplication::screenAt(point);
    return screen == nullptr ? QGuiApplication::primaryScreen() : screen;
}

}  // namespace

PanelPopup::PanelPopup(int width) : PanelFrame(popupFlags()), width_(width) {
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(QStringLiteral("Zephyrix"));
    anchor_ = trayCorner();
}

void PanelPopup::anchorAtCursor() {
    anchor_ = QCursor::pos();
    if (view() != nullptr)
        followPanel();
}

void PanelPopup::anchorAtCorner() {
    anchor_ = trayCorner();
    if (view() != nullptr)
        followPanel();
}

QRect PanelPopup::placeAt(const QPoint& anchor, const QSize& size, const QRect& available) {
    const bool above = anchor.y() > available.center().y();
    const QPoint wish(anchor.x() - size.width() / 2,
                      above ? anchor.y() - size.height() + 1 : anchor.y());
    const QPoint most(available.right() + 1 - size.width(), available.bottom() + 1 - size.height());
    return {QPoint(std::max(available.left(), std::min(wish.x(), most.x())),
                   std::max(available.top(), std::min(wish.y(), most.y()))),
            size};
}

void PanelPopup::embed(PanelView& view, PanelScroll& scroll) {
    surface_ = new PanelSurface(this);
    surface_->setComposited(isComposited());
    view.layOut(width_, devicePixelRatioF());
    surface_->setContent(&scroll);
    surface_->show();
}

void PanelPopup::letGo() {
    PanelFrame::letGo();
    delete std::exchange(surface_, nullptr);
}

void PanelPopup::followPanel() {
    const QMargins shadow = surface_->shadowMargins();
    const QRect available = screenAt(anchor_)->availableGeometry();
    const QSize size =
        QSize(width_, view()->panelHeight()).boundedTo(available.size().shrunkBy(shadow));
    surface_->setSurfaceHeight(size.height());
    setGeometry(placeAt(anchor_, size.grownBy(shadow), available));
    surface_->setGeometry(rect());
    if (shadow.isNull())
        setMask(surface_->maskRegion());
    else
        clearMask();
}

void PanelPopup::changeEvent(QEvent* event) {
    PanelFrame::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isVisible() && !isActiveWindow())
        close();
}

void PanelPopup::mousePressEvent(QMouseEvent* event) {
    const bool onShadow =
        surface_ != nullptr &&
        !rect().marginsRemoved(surface_->shadowMargins()).contains(event->position().toPoint());
    if (onShadow)
        close();
    else
        PanelFrame::mousePressEvent(event);
}

}  // namespace zephyrix
