#pragma once

#include <QPoint>
#include <QRect>

#include "PanelFrame.h"

namespace zephyrix {

class PanelSurface;

/// The panel on its own rounded surface, above everything else, until Escape is pressed or
/// something else is clicked. Where the desktop lets programs say where they are (X11) it lies at
/// an anchor and stays there while it grows; elsewhere the desktop places it.
class PanelPopup : public PanelFrame {
    Q_OBJECT

  public:
    /// The panel's width, in points.
    explicit PanelPopup(int width);
    void setPanelWidth(int width) { width_ = width; }

    void letGo() override;

    /// Lies there the next time, and now if it is on the screen.
    void anchorAtCursor();
    void anchorAtCorner();

    /// Where a popup of a size lies: centred at the anchor, below it in the upper half of the
    /// available area and above it in the lower half, never outside. Points.
    [[nodiscard]] static QRect placeAt(const QPoint& anchor, const QSize& size,
                                       const QRect& available);

  protected:
    void embed(PanelView& view, PanelScroll& scroll) override;
    void followPanel() override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    int width_;
    PanelSurface* surface_ = nullptr;
    QPoint anchor_;
};

}  // namespace zephyrix
