#pragma once

#include <QPointer>

#include "PanelView.h"

class QScrollArea;

namespace zephyrix {

/// The panel in the room that there is for it: whole where it fits, else scrolled by wheel, by bars
/// and with the focus. Its bars keep out of the surface's rounded corners. They and all that goes
/// with them are made when they are needed first: the first paint does not pay for them.
class PanelScroll : public QWidget {
    Q_OBJECT

  public:
    explicit PanelScroll(QWidget* parent) : QWidget(parent) {}

    /// Takes the panel in. It must leave by letGo() before either of them ends.
    void hold(PanelView& view);
    void letGo();

    /// The panel's height has changed.
    void follow();

    /// The least width for which the panel is laid out, in points of the screen.
    [[nodiscard]] static int leastWidth();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeArea();

    QPointer<PanelView> view_;
    QScrollArea* area_ = nullptr;  // none while the panel has always fitted
};

}  // namespace zephyrix
