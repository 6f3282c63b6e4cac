#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include "widget/TodayViewController.h"

namespace zephyrix {

/// The panel's item in the tray: the weather's symbol, the observation row's spoken text, and a
/// menu. Made only when there is a tray: a query that comes before is remembered by the toolkit.
class TrayIcon : public QObject {
    Q_OBJECT

  public:
    TrayIcon();

    /// What the controller shows now.
    void showWeather(TodayViewController& controller);

  Q_SIGNALS:
    void clicked();
    void showWanted();

  private:
    QMenu menu_;
    QSystemTrayIcon icon_;
};

}  // namespace zephyrix
