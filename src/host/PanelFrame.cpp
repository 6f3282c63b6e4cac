#include "PanelFrame.h"

#include <utility>

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QWindow>

#include "foundation/Screen.h"

namespace zephyrix {

namespace {

// A plain widget has the role of a mere area, also where it is a window.
QAccessibleInterface* windowInterface(const QString& /*className*/, QObject* object) {
    auto* const frame = qobject_cast<PanelFrame*>(object);
    return frame == nullptr ? nullptr : new QAccessibleWidget(frame, QAccessible::Window);
}

void installWindowAccessibility() {
    static const bool installed = (QAccessible::installFactory(windowInterface), true);
    Q_UNUSED(installed);
}

}  // namespace

PanelFrame::PanelFrame(Qt::WindowFlags flags) : QWidget(nullptr, flags) {
    installWindowAccessibility();
}

void PanelFrame::hold(PanelView& view) {
    view_ = &view;
    scroll_ = new PanelScroll(this);
    embed(view, *scroll_);
    followPanel();  // so that there is room when it comes
    scroll_->hold(view);
    scroll_->follow();
    connect(&view, &PanelView::panelHeightChanged, this, &PanelFrame::followHeight);
    view.show();
    scroll_->show();
    view.focusFirstRow();
}

void PanelFrame::letGo() {
    if (!view_)
        return;
    view_->disconnect(this);
    scroll_->letGo();
    delete std::exchange(scroll_, nullptr);
    view_.clear();
}

// A lower panel gives its room back before it is taken away, so that no bar comes up between.
void PanelFrame::followHeight() {
    if (view_->panelHeight() < view_->height())
        scroll_->follow();
    followPanel();
    scroll_->follow();
}

bool PanelFrame::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Paint)
        Q_EMIT painted();
    return done;
}

void PanelFrame::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &PanelFrame::followScreen,
            Qt::UniqueConnection);
}

void PanelFrame::followScreen() {
    if (view_ && Screen::main().scale() != devicePixelRatioF()) {
        view_->layOut(view_->width(), devicePixelRatioF());
        followHeight();
    }
}

void PanelFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void PanelFrame::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Q_EMIT minimized(isMinimized());
}

void PanelFrame::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

}  // namespace zephyrix
