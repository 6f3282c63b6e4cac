// The table of TodayViewController: its rows, their heights, expanding and collapsing.
#include <QUrl>
#include <QVBoxLayout>

#include "TodayViewController.h"
#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "foundation/FatalError.h"
#include "foundation/Localized.h"
#include "ui/Theme.h"
#include "ui/VisualEffectView.h"

namespace zephyrix {

namespace {

using Rows = TodayViewController::TableViewConstants;

const QColor halfWhite(255, 255, 255, 128);

}  // namespace

int TodayViewController::numberOfRowsInSection(int /*section*/) {
    return showingAll_ ? 2 : 1;
}

TableCell* TodayViewController::cellForRowAtIndexPath(const IndexPath& path) {
    switch (path.row) {
        case 0:
            return firstRow(path);
        case 1:
            return weatherRow<ForecastCell>(
                Rows::CellIdentifiers::forecastCell, path,
                lastWeatherData_ ? lastWeatherData_->forecast : std::nullopt);
        default:
            return messageRow(path, QStringLiteral("this is a message"));
    }
}

TableCell* TodayViewController::firstRow(const IndexPath& path) {
    if (!location_)
        return messageRow(path, localized(u"Please open Zephyrix to activate the widget."));
    if (!lastWeatherData_)
        return waitingRow(path);
    return weatherRow<ObsCell>(Rows::CellIdentifiers::obsCell, path, lastWeatherData_->obs);
}

template <class Cell, class Data>
TableCell* TodayViewController::weatherRow(QLatin1String identifier, const IndexPath& path,
                                           const Data& data) {
    auto* const cell = qobject_cast<Cell*>(tableView()->dequeueReusableCell(identifier, path));
    if (cell == nullptr)
        fatalError(QStringLiteral("the row \"%1\" is no %2")
                       .arg(identifier, QLatin1String(Cell::staticMetaObject.className())));
    cell->setLocation(location_);
    cell->setData(data);
    cell->setDefaults(sharedDefaults_);
    cell->setCs(&cs_);
    return cell;
}

// It shows nothing until there is something to show; who cannot see that is told.
TableCell* TodayViewController::waitingRow(const IndexPath& path) {
    TableCell* const cell = messageRow(path, QString());
    QStringList words{location_->name().value_or(QString()), localized(u"no weather yet")};
    words.removeAll(QString());
    cell->setSpokenText(words.join(QStringLiteral(", ")));
    return cell;
}

TableCell* TodayViewController::messageRow(const IndexPath& path, const QString& message) {
    TableCell* const cell = tableView()->dequeueReusableCell(Rows::CellIdentifiers::message, path);
    if (cell->textLabel() == nullptr)
        fatalError(
            QStringLiteral("the row \"%1\" has no text label").arg(Rows::CellIdentifiers::message));
    cell->textLabel()->setText(message);
    cell->setSpokenText({});
    return cell;
}

double TodayViewController::heightForRowAtIndexPath(const IndexPath& path) {
    switch (path.row) {
        case 0:
            return Rows::obsRowHeight;  // a message in it, too
        case 1:
            return Rows::overviewRowHeight;
        default:
            return Rows::messageRowHeight;
    }
}

void TodayViewController::willDisplayCell(TableCell* cell, const IndexPath& /*path*/) {
    auto* const effect = new VisualEffectView(cell);
    effect->setGeometry(cell->rect());
    auto* const shade = new View(effect);
    shade->setBackgroundColor(halfWhite);
    auto* const fill = new QVBoxLayout(effect);
    fill->setContentsMargins({});
    fill->addWidget(shade);
    cell->setSelectedBackgroundView(effect);
}

void TodayViewController::didSelectRowAtIndexPath(const IndexPath& path) {
    tableView()->deselectRow(path, true);
    const QUrl application(QStringLiteral("zephyrix://widget"));
    if (extensionContext_ != nullptr && application.isValid())
        extensionContext_->openURL(application, {});
}

QMarginsF TodayViewController::widgetMarginInsetsForProposedMarginInsets(
    const QMarginsF& proposed) {
    return {0.0, proposed.top(), proposed.right(), 0.0};
}

void TodayViewController::didPressButton(QAbstractButton* /*button*/) {
    setShowingAll(!showingAll_);
    const IndexPath forecastRow{1, 0};
    if (showingAll_)
        tableView()->insertRow(forecastRow, TableView::RowAnimation::Fade);
    else
        tableView()->deleteRow(forecastRow, TableView::RowAnimation::Fade);
}

void TodayViewController::setShowingAll(bool showingAll) {
    showingAll_ = showingAll;
    if (moreButton_)
        moreButton_->setText(localized(showingAll ? u"Show less..." : u"Show more..."));
    resetContentSize();
}

double TodayViewController::preferredViewHeight() const {
    double height = Rows::obsRowHeight;
    if (moreButton_)
        height += moreButton_->height() / Theme::textScale();
    if (showingAll_)
        height += Rows::overviewRowHeight;
    return height;
}

void TodayViewController::resetContentSize() {
    setPreferredContentSize({preferredContentSize().width(), preferredViewHeight()});
}

}  // namespace zephyrix
