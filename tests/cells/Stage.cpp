#include "Stage.h"

#include <utility>

#include <QApplication>

#include "cells/Registration.h"
#include "foundation/Bundle.h"
#include "foundation/Screen.h"
#include "meteo/MeteoMapping.h"
#include "ui/TextButton.h"
#include "ui/VisualEffectView.h"

namespace zephyrix::testing {

namespace {

constexpr double obsRowHeight = 110.0;
constexpr double overviewRowHeight = 104.0;

QVariantMap day(const char* date, int symbol, double tx, double tn) {
    return {{QStringLiteral("date"), QString::fromLatin1(date)},
            {QStringLiteral("symbol"), symbol},
            {QStringLiteral("tx"), tx},
            {QStringLiteral("tn"), tn}};
}

double prepareScreen(int width, double scale) {
    Screen::setMain(QRectF(0, 0, width, 400), scale);
    registerCells();
    return scale;
}

}  // namespace

Weather showerInBerlin() {
    Weather weather;
    weather.place = {{QStringLiteral("uid"), 12345},
                     {QStringLiteral("name"), QStringLiteral("Berlin")},
                     {QStringLiteral("timezone"), QStringLiteral("Europe/Berlin")},
                     {QStringLiteral("longitude"), 13.38},
                     {QStringLiteral("latitude"), 52.53}};
    weather.observation = {
        {QStringLiteral("date"), 1433152800}, {QStringLiteral("symbol"), 1421100},
        {QStringLiteral("tt"), 14.2},         {QStringLiteral("td"), 9.1},
        {QStringLiteral("dd"), 225},          {QStringLiteral("ff"), 10},
        {QStringLiteral("ffg"), -9999},       {QStringLiteral("rrr"), 0.4},
        {QStringLiteral("rrrh"), 1},          {QStringLiteral("n"), 5},
        {QStringLiteral("ww"), 80},           {QStringLiteral("ppp"), 1013.2}};
    weather.days = {day("2015-06-01", 1421100, 14.2, 8.4), day("2015-06-02", 520200, 11.0, 7.0),
                    day("2015-06-03", 300000, 12.4, 5.0),  day("2015-06-04", 1200000, 15.0, 6.0),
                    day("2015-06-05", 1000000, 18.0, 7.0), day("2015-06-06", 1100000, 21.0, 11.0)};
    return weather;
}

void useLanguage(const char* locale) {
    qputenv("LANG", locale);
    Bundle::main().forgetStringTable();
    MeteoMapping::finalizeStatements();
}

TextSize::TextSize(double scale) : before_(QApplication::font()) {
    constexpr double leastUsual = 9.0;  // point
    constexpr double mostUsual = 11.0;
    QFont font = before_;
    font.setPointSizeF(scale < 1.0 ? leastUsual * scale : mostUsual * scale);
    QApplication::setFont(font);
}

TextSize::~TextSize() {
    QApplication::setFont(before_);
}

Stage::Stage(Weather weather, int width, double scale)
    : TableViewController(QStringLiteral("TodayViewController")),
      weather_(std::move(weather)),
      width_(Theme::scaled(width)),
      scale_(prepareScreen(width, scale)),
      defaults_(UserDefaults::suite(QStringLiteral("stage"))) {
    for (const char* unit : {"temperature", "wind", "precipitation", "pressure"})
        defaults_->remove(QString::fromLatin1(unit));
    defaults_->set(QStringLiteral("wind"), 2);
    symbols_.setUseCache(true);
    surface_.setAttribute(Qt::WA_TranslucentBackground);
    surface_.setContent(tableView());
    connect(tableView(), &TableView::contentHeightChanged, &surface_,
            &PanelSurface::setSurfaceHeight);
}

Stage::~Stage() = default;

void Stage::connectOutlets() {
    auto* button = outlet<TextButton>(tableView(), QStringLiteral("moreButton"));
    connect(button, &TextButton::clicked, this, &Stage::toggle);
    button->setText(Bundle::main().localizedString(QStringLiteral("Show more...")));
    connect(tableView(), &TableView::toggleRequested, this, &Stage::toggle);
}

ObsCell* Stage::obsCell() {
    return qobject_cast<ObsCell*>(tableView()->cellForRow({0, 0}));
}

ForecastCell* Stage::forecastCell() {
    return qobject_cast<ForecastCell*>(tableView()->cellForRow({1, 0}));
}

void Stage::toggle() {
    expanded_ = !expanded_;
    outlet<TextButton>(tableView(), QStringLiteral("moreButton"))
        ->setText(Bundle::main().localizedString(expanded_ ? QStringLiteral("Show less...")
                                                           : QStringLiteral("Show more...")));
    if (expanded_)
        tableView()->insertRow({1, 0}, TableView::RowAnimation::Fade);
    else
        tableView()->deleteRow({1, 0}, TableView::RowAnimation::Fade);
}

int Stage::numberOfRowsInSection(int /*section*/) {
    return expanded_ ? 2 : 1;
}

TableCell* Stage::cellForRowAtIndexPath(const IndexPath& path) {
    const LocationResult place(weather_.place);
    if (path.row == 0) {
        auto* cell = qobject_cast<ObsCell*>(
            tableView()->dequeueReusableCell(QStringLiteral("obsCell"), path));
        cell->setLocation(place);
        cell->setData(Obs(weather_.observation));
        cell->setDefaults(defaults_.get());
        cell->setCs(&symbols_);
        return cell;
    }
    auto* cell = qobject_cast<ForecastCell*>(
        tableView()->dequeueReusableCell(QStringLiteral("forecastCell"), path));
    cell->setLocation(place);
    cell->setData(weather_.days);
    cell->setDefaults(defaults_.get());
    cell->setCs(&symbols_);
    return cell;
}

double Stage::heightForRowAtIndexPath(const IndexPath& path) {
    return path.row == 0 ? obsRowHeight : overviewRowHeight;
}

void Stage::willDisplayCell(TableCell* cell, const IndexPath& /*path*/) {
    auto* effect = new VisualEffectView;
    effect->setGeometry(cell->rect());
    auto* white = new View(effect);
    white->setGeometry(effect->rect());
    white->setBackgroundColor(QColor(255, 255, 255, 128));
    cell->setSelectedBackgroundView(effect);
}

void Stage::didSelectRowAtIndexPath(const IndexPath& path) {
    tableView()->deselectRow(path, true);
}

void Stage::layOut() {
    tableView()->layoutIfNeeded();
    const QMargins margins = surface_.shadowMargins();
    const int height = qRound(tableView()->contentHeight());
    surface_.setSurfaceHeight(height);
    surface_.resize(width_ + margins.left() + margins.right(),
                    height + margins.top() + margins.bottom());
    tableView()->layoutIfNeeded();
}

}  // namespace zephyrix::testing
