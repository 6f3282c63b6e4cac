#include "PanelView.h"

#include <QResizeEvent>

#include "RowReport.h"
#include "foundation/Screen.h"

namespace zephyrix {

namespace {

// What the desktop would like to keep free, in points of the panel; it answers what it takes of it.
constexpr QMarginsF proposedMargins(16.0, 0.0, 0.0, 16.0);
constexpr int sourceHeight = 20;  // points of the panel
constexpr int sourceInset = 16;   // on each side, as the rows above have it

/// The panel is the screen of its rows: they choose by its width in points of the panel.
void tellScreen(const QSizeF& size, double scale) {
    Screen::setMain(QRectF({}, size / Theme::textScale()), scale);
}

}  // namespace

PanelView::PanelView(TodayViewController& controller)
    : controller_(controller), source_(new Label(this)) {
    controller_.tableView()->setParent(this);
    source_->raise();  // assistive programs read it after the table
    source_->setTextStyle(Theme::TextStyle::Unit);
    source_->setAlignment(Qt::AlignRight | Qt::AlignTop);
    connect(controller_.tableView(), &TableView::contentHeightChanged, this, [this] {
        place();
        Q_EMIT panelHeightChanged();
    });
    connect(&controller_, &TodayViewController::refreshed, this, &PanelView::showSource);
    showSource();
}

QMarginsF PanelView::marginsNow() const {
    return controller_.widgetMarginInsetsForProposedMarginInsets(proposedMargins) *
           Theme::textScale();
}

int PanelView::panelHeight() const {
    const QMarginsF margins = marginsNow();
    return qRound(margins.top() + controller_.tableView()->contentHeight() + margins.bottom()) +
           (source_->isVisibleTo(this) ? Theme::scaled(sourceHeight) : 0);
}

void PanelView::layOut(int width, double scale) {
    tellScreen(QSizeF(width, panelHeight()), scale);
    if (controller_.cs().winscale() != scale) {
        controller_.cs().setWinscale(scale);
        controller_.tableView()->reloadData();
    }
    controller_.tableView()->resize(width, controller_.tableView()->height());
    controller_.tableView()->layoutIfNeeded();
    resize(width, panelHeight());
    place();
    controller_.tableView()->layoutIfNeeded();
}

void PanelView::focusFirstRow() {
    controller_.tableView()->layoutIfNeeded();
    if (TableCell* row = controller_.tableView()->cellForRow({0, 0}))
        row->setFocus(Qt::NoFocusReason);  // without the ring, until the keyboard is used
}

bool PanelView::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange && textScale_ != Theme::textScale())
        Q_EMIT textScaleChanged();
    return QWidget::event(event);
}

void PanelView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    tellScreen(QSizeF(size()), Screen::main().scale());
    place();
}

void PanelView::place() {
    const QRect inside = rect().marginsRemoved(marginsNow().toMargins());
    const int tableHeight = qRound(controller_.tableView()->contentHeight());
    controller_.tableView()->setGeometry(inside.x(), inside.y(), inside.width(), tableHeight);
    const int inset = Theme::scaled(sourceInset);
    source_->setGeometry(inside.x() + inset, inside.y() + tableHeight, inside.width() - 2 * inset,
                         Theme::scaled(sourceHeight));
}

void PanelView::showSource() {
    const QString source = RowReport::source(controller_);
    source_->setText(source);
    source_->setToolTip(RowReport::licence(controller_));
    source_->setVisible(!source.isEmpty());
    place();
    Q_EMIT panelHeightChanged();
}

}  // namespace zephyrix
