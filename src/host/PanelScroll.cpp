#include "PanelScroll.h"

#include <algorithm>

#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionSlider>

#include "ui/Theme.h"

namespace zephyrix {

namespace {

constexpr int leastPanelWidth = 320;  // points of the panel

/// A handle on the surface and nothing around it, in the panel's own colours.
class Handle : public QScrollBar {
  public:
    using QScrollBar::QScrollBar;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr double inset = 4.0;  // points on each side
        constexpr int alpha = 160;     // of 255
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRectF handle = QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                             QStyle::SC_ScrollBarSlider, this))
                                  .adjusted(inset, inset, -inset, -inset);
        const double radius = std::min(handle.width(), handle.height()) / 2.0;
        QColor color = Theme::color(Theme::Color::SecondaryText);
        color.setAlpha(alpha);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(handle, radius, radius);
    }
};

}  // namespace

PanelScroll::PanelScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);  // it follows the focus of the rows
    viewport()->setAutoFillBackground(false);
    setVerticalScrollBar(new Handle(Qt::Vertical, this));
    setHorizontalScrollBar(new Handle(Qt::Horizontal, this));
    constexpr auto corner = static_cast<int>(Theme::surfaceRadius);
    for (const auto side : {Qt::AlignTop, Qt::AlignBottom, Qt::AlignLeft, Qt::AlignRight}) {
        auto* const kept = new QWidget(this);
        kept->setFixedSize(corner, corner);
        addScrollBarWidget(kept, side);
    }
}

int PanelScroll::leastWidth() {
    return Theme::scaled(leastPanelWidth);
}

void PanelScroll::hold(PanelView& view) {
    view_ = &view;
    setWidget(&view);
    view.setAutoFillBackground(false);  // the surface shows through
}

void PanelScroll::letGo() {
    takeWidget();
    view_.clear();
}

void PanelScroll::follow() {
    if (view_)
        view_->resize(std::max(viewport()->width(), leastWidth()), view_->panelHeight());
}

void PanelScroll::resizeEvent(QResizeEvent* event) {
    follow();
    QScrollArea::resizeEvent(event);
}

}  // namespace zephyrix
