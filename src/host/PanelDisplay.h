#pragma once

#include <chrono>
#include <memory>

#include <QObject>

#include "LivePanel.h"
#include "PanelPopup.h"
#include "PanelWindow.h"
#include "TrayHost.h"
#include "TrayIcon.h"

namespace zephyrix {

/// Where the panel is on the screen: in a popup while there is a tray, else in a window; and when
/// it is there: nobody else makes it appear and disappear. Main thread.
///
/// Without a tray the program ends when the window closes. With one it goes on, hidden, until it is
/// told to end. When the tray goes, the panel comes back in a window.
class PanelDisplay : public QObject {
    Q_OBJECT

  public:
    /// The panel's width in points of the screen, and whether a tray is to be used where there is
    /// one.
    PanelDisplay(int width, bool useTray);
    ~PanelDisplay() override;

    /// Takes the panel, which appears now if the one before it was let go while it was shown.
    void hold(LivePanel& panel);
    /// For the next panel. A window that its user has resized keeps its size unless this is another
    /// width.
    void setWidth(int width);
    /// The panel disappears; what surrounds it stays on the screen for the next.
    void letGo();

    /// The panel comes into sight, or to the front.
    void show();
    void hide();

  Q_SIGNALS:
    /// After the first paint of the popup, and of the window.
    void painted();

  private:
    void showAtCursor();
    void showIn(PanelFrame& frame);
    void followWindow(bool minimized);
    void frameClosed();
    void followTray();
    void addIcon();
    void updateIcon();
    [[nodiscard]] PanelWindow& window();
    [[nodiscard]] PanelPopup& popup();

    int width_;
    LivePanel* panel_ = nullptr;
    std::unique_ptr<TrayHost> tray_;  // null where a tray is not to be used
    std::unique_ptr<TrayIcon> icon_;  // null while there is no tray
    std::unique_ptr<PanelWindow> window_;
    std::unique_ptr<PanelPopup> popup_;
    PanelFrame* frame_ = nullptr;  // that is on the screen
    bool insteadOfTray_ = false;   // the window came up by itself
    std::chrono::steady_clock::time_point popupClosed_;
};

}  // namespace zephyrix
