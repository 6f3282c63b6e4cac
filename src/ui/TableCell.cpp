#include "TableCell.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>

#include "Fade.h"
#include "FocusRing.h"

namespace zephyrix {

namespace {

QEvent::Type layoutPassEvent() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

}  // namespace

TableCell::TableCell(QWidget* parent) : View(parent) {
    setFocusPolicy(Qt::TabFocus);
    setNeedsLayout();
}

void TableCell::connectOutlets() {
    textLabel_ = findChild<Label*>(QStringLiteral("textLabel"));
}

void TableCell::setNeedsLayout() {
    if (needsLayout_)
        return;
    needsLayout_ = true;
    QCoreApplication::postEvent(this, new QEvent(layoutPassEvent()));
}

void TableCell::layoutIfNeeded() {
    if (!needsLayout_)
        return;
    needsLayout_ = false;
    layoutSubviews();
    // Each setting is told to assistive programs, also where the name stays.
    if (const QString spoken = spokenText(); spoken != accessibleName())
        setAccessibleName(spoken);
}

void TableCell::layoutSubviews() {
    activateLayouts(this);
    if (selectedBackground_)
        selectedBackground_->setGeometry(rect());
}

void TableCell::setHighlighted(bool highlighted, bool animated) {
    highlighted_ = highlighted;
    showSelectedBackground(animated);
}

void TableCell::setSelected(bool selected, bool animated) {
    selected_ = selected;
    showSelectedBackground(animated);
}

void TableCell::showSelectedBackground(bool animated) {
    if (!selectedBackground_)
        return;
    const bool shown = highlighted_ || selected_;
    if (shown || !animated) {
        stopFade(selectedBackground_);
        selectedBackground_->setVisible(shown);
    } else if (!selectedBackground_->isHidden()) {
        fadeOut(selectedBackground_, [view = selectedBackground_] { view->hide(); });
    }
}

void TableCell::setSelectedBackgroundView(QWidget* view) {
    if (selectedBackground_ == view)
        return;
    delete selectedBackground_;
    selectedBackground_ = view;
    if (view == nullptr)
        return;
    view->setParent(this);
    view->setAttribute(Qt::WA_TransparentForMouseEvents);
    view->setGeometry(rect());
    view->lower();
    view->setVisible(highlighted_ || selected_);
}

QString TableCell::spokenText() const {
    if (!givenSpokenText_.isEmpty() || !textLabel_)
        return givenSpokenText_;
    return textLabel_->text();
}

bool TableCell::event(QEvent* event) {
    if (event->type() == layoutPassEvent()) {
        layoutIfNeeded();
        return true;
    }
    if (event->type() == QEvent::Show)
        layoutIfNeeded();
    return View::event(event);
}

void TableCell::resizeEvent(QResizeEvent* event) {
    View::resizeEvent(event);
    setNeedsLayout();
}

void TableCell::focusInEvent(QFocusEvent* event) {
    showsFocus_ = isKeyboardFocus(event->reason());
    View::focusInEvent(event);
    update();
}

void TableCell::paintEvent(QPaintEvent* event) {
    View::paintEvent(event);
    if (!showsFocus())
        return;
    QPainter painter(this);
    paintFocusRing(painter, QRectF(rect()));
}

}  // namespace zephyrix
