#pragma once

#include <QWidget>

#include "ui/Label.h"
#include "widget/TodayViewController.h"

namespace zephyrix {

/// The panel as it is put into a window or a picture: the controller's table and, below it, who the
/// weather comes from. It tells the Screen its own size before it lays out.
class PanelView : public QWidget {
    Q_OBJECT

  public:
    /// Loads the controller's view. The controller must outlive it.
    explicit PanelView(TodayViewController& controller);

    /// Points of the screen, for the panel's present state; while a row fades it moves to its new
    /// value.
    [[nodiscard]] int panelHeight() const;
    /// Takes this width (points of the screen) and the panel's own height, and lays everything out,
    /// now. At another scale (pixels a point) the symbols are composed anew.
    void layOut(int width, double scale);
    /// By keyboard and by screen reader, the panel begins there.
    void focusFirstRow();
    /// Who the weather comes from, as the panel says it; may be empty.
    [[nodiscard]] QString source() const { return source_->text(); }

  Q_SIGNALS:
    void panelHeightChanged();
    /// The desktop has texts of another size now, for which this panel is not laid out.
    void textScaleChanged();

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QMarginsF marginsNow() const;
    void showSource();
    void place();

    TodayViewController& controller_;
    Label* source_;
    double textScale_ = Theme::textScale();
};

}  // namespace zephyrix
