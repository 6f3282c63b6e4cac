#pragma once

#include <QPointer>
#include <QWidget>

#include "PanelScroll.h"

namespace zephyrix {

/// What surrounds the panel on the screen: a window or a popup. It is as high as the panel, but
/// never larger than the screen has room for, and closes by Escape.
class PanelFrame : public QWidget {
    Q_OBJECT

  public:
    explicit PanelFrame(Qt::WindowFlags flags);

    /// Takes the panel in. It must leave by letGo() before either of them ends.
    void hold(PanelView& view);
    virtual void letGo();

  Q_SIGNALS:
    void painted();
    void closed();
    void minimized(bool isMinimized);

  protected:
    [[nodiscard]] PanelView* view() const { return view_; }
    /// Holds the panel, while there is one.
    [[nodiscard]] PanelScroll* scroll() const { return scroll_; }
    /// Lays the panel out and makes what holds it a child, shown in its place.
    virtual void embed(PanelView& view, PanelScroll& scroll) = 0;
    /// The panel's height or its source has changed.
    virtual void followPanel() = 0;

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    /// Another screen may have another scale: the panel is laid out anew for it.
    void followScreen();
    void followHeight();

    QPointer<PanelView> view_;
    PanelScroll* scroll_ = nullptr;
};

}  // namespace zephyrix
