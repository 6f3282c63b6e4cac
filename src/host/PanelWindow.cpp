#include "PanelWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include "RowReport.h"
#include "foundation/Screen.h"
#include "ui/PanelSurface.h"
#include "ui/Theme.h"

namespace zephyrix {

namespace {

constexpr int leastWidth = 320;  // points

}  // namespace

PanelWindow::PanelWindow(TodayViewController& controller, PanelView& view, int width)
    : controller_(controller), view_(view) {
    view_.setParent(this);
    setMinimumWidth(leastWidth);
    connect(&view_, &PanelView::panelHeightChanged, this, &PanelWindow::followPanel);
    view_.layOut(width, devicePixelRatioF());
    resize(width, view_.panelHeight());
    followPanel();
}

void PanelWindow::appear() {
    controller_.viewWillAppear(false);
    show();
    connect(windowHandle(), &QWindow::screenChanged, this,
            [this] { view_.layOut(width(), devicePixelRatioF()); });
}

void PanelWindow::followPanel() {
    setFixedHeight(view_.panelHeight());
    const QString source = RowReport::source(controller_);
    const QString title = QStringLiteral("Zephyrix");
    setWindowTitle(source.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, source));
}

void PanelWindow::paintEvent(QPaintEvent* /*event*/) {
    // The desktop draws the frame, so the surface's own rounded edge stays outside.
    constexpr double radius = Theme::surfaceRadius;
    QPainter painter(this);
    PanelSurface::paintSurface(painter, QRectF(rect()).adjusted(-radius, -radius, radius, radius),
                               false);
}

void PanelWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Screen::setMain(QRectF(rect()), devicePixelRatioF());
    view_.setGeometry(rect());
}

void PanelWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void PanelWindow::closeEvent(QCloseEvent* event) {
    controller_.viewWillDisappear(false);
    QWidget::closeEvent(event);
}

}  // namespace zephyrix
