#pragma once

#include <QPointer>
#include <QScrollArea>

#include "PanelView.h"

namespace zephyrix {

/// The panel in the room that there is for it: whole where it fits, else scrolled by wheel, by bars
/// and with the focus. Its bars keep out of the surface's rounded corners.
class PanelScroll : public QScrollArea {
    Q_OBJECT

  public:
    explicit PanelScroll(QWidget* parent);

    /// Takes the panel in. It must leave by letGo() before either of them ends.
    void hold(PanelView& view);
    void letGo();

    /// The panel's height has changed.
    void follow();

    /// The least width for which the panel is laid out, in points of the screen.
    [[nodiscard]] static int leastWidth();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QPointer<PanelView> view_;
};

}  // namespace zephyrix
