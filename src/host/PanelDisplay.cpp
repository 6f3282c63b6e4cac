#include "PanelDisplay.h"

#include <utility>

#include <QApplication>

namespace zephyrix {

namespace {

// A click on the tray's icon may first take the popup its focus, which closes it, and then ask for
// it. So soon after, closing was what the click was for.
constexpr std::chrono::milliseconds oneClick{300};

constexpr auto afterFirstPaint =
    static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);

}  // namespace

PanelDisplay::PanelDisplay(int width, bool useTray) : width_(width) {
    QApplication::setQuitOnLastWindowClosed(false);
    if (!useTray)
        return;
    tray_ = std::make_unique<TrayHost>();
    connect(tray_.get(), &TrayHost::changed, this, &PanelDisplay::followTray);
}

PanelDisplay::~PanelDisplay() {
    letGo();
}

void PanelDisplay::hold(LivePanel& panel) {
    panel_ = &panel;
    connect(&panel.controller(), &TodayViewController::refreshed, this, &PanelDisplay::updateIcon);
    connect(&panel, &LivePanel::unitsChanged, this, &PanelDisplay::updateIcon);
    if (frame_ != nullptr) {
        frame_->hold(panel.view());
        followWindow(frame_->isMinimized());
    }
    updateIcon();
}

void PanelDisplay::letGo() {
    if (panel_ == nullptr)
        return;
    LivePanel& panel = *std::exchange(panel_, nullptr);
    panel.controller().disconnect(this);
    panel.disconnect(this);
    if (frame_ == nullptr)
        return;
    frame_->letGo();
    panel.disappear();
}

void PanelDisplay::setWidth(int width) {
    if (std::exchange(width_, width) == width)
        return;
    if (window_)
        window_->setPanelWidth(width);
    if (popup_)
        popup_->setPanelWidth(width);
}

void PanelDisplay::show() {
    if (frame_ != nullptr) {
        frame_->setWindowState(frame_->windowState() & ~Qt::WindowMinimized);
        frame_->raise();
        frame_->activateWindow();
    } else if (tray_ && tray_->isPresent()) {
        popup().anchorAtCorner();
        showIn(popup());
    } else {
        showIn(window());
    }
}

void PanelDisplay::showAtCursor() {
    if (frame_ != nullptr)
        return hide();
    if (std::chrono::steady_clock::now() - popupClosed_ < oneClick)
        return;
    popup().anchorAtCursor();
    showIn(popup());
}

void PanelDisplay::hide() {
    if (frame_ != nullptr)
        frame_->close();
}

void PanelDisplay::showIn(PanelFrame& frame) {
    frame_ = &frame;
    frame.hold(panel_->view());
    panel_->appear();
    frame.show();
    if (!frame.testAttribute(Qt::WA_ShowWithoutActivating))
        frame.activateWindow();
}

void PanelDisplay::followWindow(bool minimized) {
    if (panel_ == nullptr || frame_ == nullptr)
        return;
    if (minimized)
        panel_->disappear();
    else
        panel_->appear();
}

void PanelDisplay::frameClosed() {
    if (frame_ == nullptr)
        return;
    PanelFrame* const frame = std::exchange(frame_, nullptr);
    frame->letGo();
    if (frame == popup_.get())
        popupClosed_ = std::chrono::steady_clock::now();
    insteadOfTray_ = false;
    if (panel_ != nullptr)
        panel_->disappear();
    if (frame == window_.get() && !icon_)
        QApplication::quit();
}

void PanelDisplay::followTray() {
    if (tray_->isPresent()) {
        addIcon();
        if (insteadOfTray_)
            hide();
        return;
    }
    if (frame_ == popup_.get())
        hide();
    icon_.reset();
    if (frame_ != nullptr)
        return;
    insteadOfTray_ = true;
    window().setAttribute(Qt::WA_ShowWithoutActivating, true);
    showIn(window());
    window().setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void PanelDisplay::addIcon() {
    if (icon_ || !tray_->isPresent())
        return;
    icon_ = std::make_unique<TrayIcon>();
    connect(icon_.get(), &TrayIcon::clicked, this, &PanelDisplay::showAtCursor);
    connect(icon_.get(), &TrayIcon::showWanted, this, &PanelDisplay::show);
    updateIcon();
}

void PanelDisplay::updateIcon() {
    if (icon_ && panel_ != nullptr)
        icon_->showWeather(panel_->controller());
}

PanelWindow& PanelDisplay::window() {
    if (!window_) {
        window_ = std::make_unique<PanelWindow>(width_);
        connect(window_.get(), &PanelFrame::closed, this, &PanelDisplay::frameClosed);
        connect(window_.get(), &PanelFrame::minimized, this, &PanelDisplay::followWindow);
        connect(window_.get(), &PanelFrame::painted, this, &PanelDisplay::painted, afterFirstPaint);
        connect(
            window_.get(), &PanelFrame::painted, qApp,
            [] { QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zephyrix"))); },
            afterFirstPaint);
    }
    return *window_;
}

PanelPopup& PanelDisplay::popup() {
    if (!popup_) {
        popup_ = std::make_unique<PanelPopup>(width_);
        connect(popup_.get(), &PanelFrame::closed, this, &PanelDisplay::frameClosed);
        connect(popup_.get(), &PanelFrame::painted, this, &PanelDisplay::painted, afterFirstPaint);
        connect(popup_.get(), &PanelFrame::painted, this, &PanelDisplay::addIcon, afterFirstPaint);
    }
    return *popup_;
}

}  // namespace zephyrix
