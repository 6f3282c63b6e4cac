#include "PanelScroll.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>
#include <QScrollArea>
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

int PanelScroll::leastWidth() {
    return Theme::scaled(leastPanelWidth);
}

void PanelScroll::hold(PanelView& view) {
    view_ = &view;
    view.setParent(this);
    follow();
}

void PanelScroll::letGo() {
    view_->setParent(nullptr);
    view_.clear();
}

void PanelScroll::follow() {
    if (!view_)
        return;
    const int height = view_->panelHeight();
    if (area_ == nullptr && width() >= leastWidth() && this->height() >= height)
        return view_->setGeometry(rect());
    if (area_ == nullptr)
        makeArea();
    view_->resize(std::max(area_->viewport()->width(), leastWidth()), height);
}

void PanelScroll::makeArea() {
    QPointer<QWidget> focused =
        view_->isAncestorOf(QApplication::focusWidget()) ? QApplication::focusWidget() : nullptr;
    area_ = new QScrollArea(this);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);  // it follows the focus of the rows
    area_->setVerticalScrollBar(new Handle(Qt::Vertical, area_));
    area_->setHorizontalScrollBar(new Handle(Qt::Horizontal, area_));
    constexpr auto corner = static_cast<int>(Theme::surfaceRadius);
    for (const auto side : {Qt::AlignTop, Qt::AlignBottom, Qt::AlignLeft, Qt::AlignRight}) {
        auto* const kept = new QWidget(area_);
        kept->setFixedSize(corner, corner);
        area_->addScrollBarWidget(kept, side);
    }
    area_->viewport()->installEventFilter(this);
    area_->setGeometry(rect());
    const bool wasHidden = view_->isHidden();
    area_->setWidget(view_);
    area_->viewport()->setAutoFillBackground(false);  // the surface shows through
    view_->setAutoFillBackground(false);
    view_->setHidden(wasHidden);
    area_->show();
    if (focused)
        focused->setFocus(Qt::OtherFocusReason);
}

bool PanelScroll::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        follow();
    return QWidget::eventFilter(watched, event);
}

void PanelScroll::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (area_ != nullptr)
        area_->setGeometry(rect());
    follow();
}

}  // namespace zephyrix
