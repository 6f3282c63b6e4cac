#include "TableView.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "Fade.h"
#include "Hairline.h"
#include "Motion.h"
#include "RowAccessible.h"
#include "TableViewController.h"
#include "Theme.h"

namespace zephyrix {

namespace {

QEvent::Type layoutPassEvent() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

}  // namespace

TableView::TableView(QWidget* parent) : View(parent), rowArea_(new QWidget(this)) {
    installRowAccessibility();
    rowArea_->installEventFilter(this);
    heightAnimation_.setDuration(Theme::fadeDuration);
    heightAnimation_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&heightAnimation_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setContentHeight(value.toDouble()); });
}

void TableView::setController(TableViewController* controller) {
    controller_ = controller;
    reloadData();
}

void TableView::setPrototypes(const QStringList& prototypes) {
    prototypes_ = prototypes;
    for (const QString& prototype : prototypes) {
        const QString identifier = prototype.section(QLatin1Char(':'), 0, 0).trimmed();
        registerNib(identifier, Nib(prototype.section(QLatin1Char(':'), 1).trimmed()));
    }
}

void TableView::registerNib(const QString& identifier, const Nib& nib) {
    nibs_.insert(identifier, nib);
}

bool TableView::isRegistered(const QString& identifier) const {
    return nibs_.contains(identifier);
}

void TableView::connectOutlets() {
    setFooterView(findChild<QWidget*>(QStringLiteral("footerView")));
}

TableCell* TableView::dequeueReusableCell(const QString& identifier, const IndexPath& /*path*/) {
    const auto spare = std::ranges::find(spare_, identifier, &TableCell::reuseIdentifier);
    if (spare != spare_.end()) {
        TableCell* cell = *spare;
        spare_.erase(spare);
        return cell;
    }
    const auto nib = nibs_.constFind(identifier);
    if (nib == nibs_.constEnd())
        fatalError(QStringLiteral("no row layout is registered as \"%1\"").arg(identifier));
    auto* cell = nib->instantiate<TableCell>(rowArea_);
    cell->setReuseIdentifier(identifier);
    return cell;
}

void TableView::reloadData() {
    needsReload_ = true;
    scheduleLayout();
}

void TableView::scheduleLayout() {
    if (std::exchange(layoutPosted_, true))
        return;
    QCoreApplication::postEvent(this, new QEvent(layoutPassEvent()));
}

void TableView::layoutIfNeeded() {
    if (std::exchange(needsReload_, false))
        reloadRows();
    if (placedWidth_ != width()) {
        placeRows();
        setContentHeight(contentHeight_);
    }
    for (TableCell* cell : rows_)
        cell->layoutIfNeeded();
}

void TableView::reloadRows() {
    const int focused = rowWithFocus();
    const bool ring = focused >= 0 && rows_[static_cast<std::size_t>(focused)]->showsFocus();
    pressedRow_ = -1;
    for (TableCell* cell : std::exchange(rows_, {}))
        recycle(cell);
    const int count = controller_ == nullptr ? 0 : controller_->numberOfRowsInSection(0);
    for (int row = 0; row < count; ++row)
        rows_.push_back(displayedCell(row));
    placeRows();
    moveToContentHeight(false);
    updateTabOrder();
    if (focused >= 0 && focused < count)
        rows_[static_cast<std::size_t>(focused)]->setFocus(ring ? Qt::OtherFocusReason
                                                                : Qt::NoFocusReason);
}

TableCell* TableView::displayedCell(int row) {
    const IndexPath path{row, 0};
    TableCell* cell = controller_->cellForRowAtIndexPath(path);
    controller_->willDisplayCell(cell, path);
    cell->setParent(rowArea_);
    cell->setNeedsLayout();
    cell->show();
    return cell;
}

void TableView::recycle(TableCell* cell) {
    stopFade(cell);
    cell->setHighlighted(false, false);
    cell->setSelected(false, false);
    cell->hide();
    spare_.push_back(cell);
}

void TableView::requireRowCount() const {
    const int expected = controller_->numberOfRowsInSection(0);
    if (expected != static_cast<int>(rows_.size()))
        fatalError(QStringLiteral("the table has %1 rows after the change, but its data has %2")
                       .arg(rows_.size())
                       .arg(expected));
}

void TableView::insertRow(const IndexPath& path, RowAnimation animation) {
    if (needsReload_)
        return;
    TableCell* cell = displayedCell(path.row);
    rows_.insert(rows_.begin() + path.row, cell);
    requireRowCount();
    placeRows();
    cell->layoutIfNeeded();
    moveToContentHeight(animation == RowAnimation::Fade);
    updateTabOrder();
    if (animation == RowAnimation::Fade)
        fadeIn(cell);
}

void TableView::deleteRow(const IndexPath& path, RowAnimation animation) {
    if (needsReload_)
        return;
    TableCell* cell = cellForRow(path);
    if (cell == nullptr)
        fatalError(QStringLiteral("the table has no row %1 to delete").arg(path.row));
    if (cell->hasFocus() && footer_)
        focusNextPrevChild(true);
    rows_.erase(rows_.begin() + path.row);
    requireRowCount();
    placeRows();
    moveToContentHeight(animation == RowAnimation::Fade);
    updateTabOrder();
    if (animation == RowAnimation::Fade)
        fadeOut(cell, [this, cell] { recycle(cell); });
    else
        recycle(cell);
}

void TableView::chooseCell(TableCell* cell) {
    const auto row = std::ranges::find(rows_, cell);
    if (row != rows_.end())
        chooseRow(static_cast<int>(row - rows_.begin()));
}

void TableView::deselectRow(const IndexPath& path, bool animated) {
    if (TableCell* cell = cellForRow(path))
        cell->setSelected(false, animated);
}

TableCell* TableView::cellForRow(const IndexPath& path) const {
    const bool known =
        path.section == 0 && path.row >= 0 && path.row < static_cast<int>(rows_.size());
    return known ? rows_[static_cast<std::size_t>(path.row)] : nullptr;
}

void TableView::setFooterView(QWidget* footer) {
    if (footer_ == footer)
        return;
    delete footer_;
    footer_ = footer;
    if (footer != nullptr) {
        footer->setParent(this);
        footer->show();
    }
    moveToContentHeight(false);
}

double TableView::rowHeight(int row) const {
    Q_ASSERT(controller_ != nullptr);  // without one there are no rows
    return controller_->heightForRowAtIndexPath({row, 0}) * Theme::textScale();
}

double TableView::rowsHeight() const {
    double height = 0.0;
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
        height += rowHeight(row);
    return height;
}

double TableView::footerHeight() const {
    return footer_ ? footer_->sizeHint().height() : 0.0;
}

void TableView::placeRows() {
    double top = 0.0;
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row) {
        const double height = rowHeight(row);
        TableCell* cell = cellForRow({row, 0});
        cell->setGeometry(0, qRound(top), width(), qRound(height));
        cell->setNeedsLayout();
        top += height;
    }
    placedWidth_ = width();
    rowArea_->update();
}

void TableView::setContentHeight(double height) {
    contentHeight_ = height;
    const int footerTop = qRound(height - footerHeight());
    rowArea_->setGeometry(0, 0, width(), footerTop);
    if (footer_)
        footer_->setGeometry(0, footerTop, width(), qRound(footerHeight()));
    updateGeometry();
    Q_EMIT contentHeightChanged(height);
}

void TableView::moveToContentHeight(bool animated) {
    const double height = rowsHeight() + footerHeight();
    heightAnimation_.stop();
    if (!animated || Motion::isReduced() || !isVisible()) {
        setContentHeight(height);
        return;
    }
    heightAnimation_.setStartValue(contentHeight_);
    heightAnimation_.setEndValue(height);
    heightAnimation_.start();
}

QSize TableView::sizeHint() const {
    constexpr int usualWidth = 375;  // points
    return {Theme::scaled(usualWidth), qRound(contentHeight_)};
}

int TableView::rowAt(const QPointF& position) const {
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
        if (QRectF(cellForRow({row, 0})->geometry()).contains(position))
            return row;
    return -1;
}

int TableView::rowWithFocus() const {
    const auto focused =
        std::ranges::find_if(rows_, [](const TableCell* cell) { return cell->hasFocus(); });
    return focused == rows_.end() ? -1 : static_cast<int>(focused - rows_.begin());
}

void TableView::chooseRow(int row) {
    TableCell* cell = cellForRow({row, 0});
    if (cell == nullptr)
        return;
    cell->setSelected(true, false);
    controller_->didSelectRowAtIndexPath({row, 0});
}

void TableView::updateTabOrder() {
    QWidget* before = nullptr;
    for (TableCell* cell : rows_) {
        if (before != nullptr)
            setTabOrder(before, cell);
        before = cell;
    }
    if (footer_ && before != nullptr)
        for (QWidget* view : footer_->findChildren<QWidget*>())
            if (view->focusPolicy() & Qt::TabFocus)
                setTabOrder(std::exchange(before, view), view);
}

bool TableView::event(QEvent* event) {
    if (event->type() == layoutPassEvent()) {
        layoutPosted_ = false;
        layoutIfNeeded();
        return true;
    }
    if (event->type() == QEvent::Show)
        layoutIfNeeded();
    return View::event(event);
}

bool TableView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == rowArea_ && event->type() == QEvent::Paint)
        paintSeparators();
    return View::eventFilter(watched, event);
}

// The line below the last row divides it from the footer and runs from edge to edge.
void TableView::paintSeparators() {
    QPainter painter(rowArea_);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const bool last = row + 1 == rows_.size();
        if (last && !footer_)
            return;
        const QMarginsF inset =
            last ? QMarginsF() : rows_[row]->separatorInset() * Theme::textScale();
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        const double left = mirrored ? inset.right() : inset.left();
        const double bottom = last ? rowArea_->height() : rows_[row]->geometry().bottom() + 1;
        Hairline::paintHorizontal(painter, left, bottom - 1,
                                  width() - inset.left() - inset.right());
    }
}

void TableView::resizeEvent(QResizeEvent* event) {
    View::resizeEvent(event);
    if (placedWidth_ != width())
        scheduleLayout();
}

void TableView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            chooseRow(rowWithFocus());
            break;
        case Qt::Key_Space:
            Q_EMIT toggleRequested();
            break;
        case Qt::Key_Down:
            focusNextPrevChild(true);
            break;
        case Qt::Key_Up:
            focusNextPrevChild(false);
            break;
        default:
            View::keyPressEvent(event);
    }
}

void TableView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return View::mousePressEvent(event);
    pressedRow_ = rowAt(event->position());
    if (TableCell* cell = cellForRow({pressedRow_, 0}))
        cell->setHighlighted(true, false);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    TableCell* cell = cellForRow({pressedRow_, 0});
    if (cell != nullptr)
        cell->setHighlighted(rowAt(event->position()) == pressedRow_, true);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    const int row = std::exchange(pressedRow_, -1);
    TableCell* cell = cellForRow({row, 0});
    if (cell == nullptr)
        return;
    const bool inside = rowAt(event->position()) == row;
    if (inside)
        chooseRow(row);
    cell->setHighlighted(false, true);
}

}  // namespace zephyrix
