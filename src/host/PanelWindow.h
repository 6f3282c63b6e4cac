#pragma once

#include "PanelFrame.h"

namespace zephyrix {

/// A window around the panel, with the desktop's frame.
class PanelWindow : public PanelFrame {
    Q_OBJECT

  public:
    /// Its first width, in points; the user may change it.
    explicit PanelWindow(int width);
    void setPanelWidth(int width);

  protected:
    void embed(PanelView& view, PanelScroll& scroll) override;
    void followPanel() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QSize room() const;
};

}  // namespace zephyrix
