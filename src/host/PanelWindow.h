#pragma once

#include <QWidget>

#include "PanelView.h"

namespace zephyrix {

/// A window around the panel, as high as the panel is. Closing it, also by Escape, makes the panel
/// disappear.
class PanelWindow : public QWidget {
    Q_OBJECT

  public:
    PanelWindow(TodayViewController& controller, PanelView& view, int width);

    /// The controller appears, then the window.
    void appear();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void followPanel();

    TodayViewController& controller_;
    PanelView& view_;
};

}  // namespace zephyrix
