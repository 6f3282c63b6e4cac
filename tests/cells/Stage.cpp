#include "Stage.h"

#include <utility>

#include <QApplication>
#include <QJsonDocument>

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

constexpr char showerJson[] = R"({
    "place": {"uid": 12345, "name": "Berlin", "timezone": "Europe/Berlin",
              "longitude": 13.38, "latitude": 52.53},
    "observation": {"date": 1433152800, "symbol": 1421100, "tt": 14.2, "td": 9.1, "dd": 225,
                    "ff": 10, "ffg": -9999, "rrr": 0.4, "rrrh": 1, "n": 5, "ww": 80, "ppp": 1013.2},
    "days": [{"date": "2015-06-01", "symbol": 1421100, "tx": 14.2, "tn": 8.4},
             {"date": "2015-06-02", "symbol": 520200, "tx": 11.0, "tn": 7.0},
             {"date": "2015-06-03", "symbol": 300000, "tx": 12.4, "tn": 5.0},
             {"date": "2015-06-04", "symbol": 1200000, "tx": 15.0, "tn": 6.0},
             {"date": "2015-06-05", "symbol": 1000000, "tx": 18.0, "tn": 7.0},
             {"date": "2015-06-06", "symbol": 1100000, "tx": 21.0, "tn": 11.0}]})";

double prepareScreen(int width, double scale) {
    Screen::setMain(QRectF(0, 0, width, 400), scale);
    registerCells();
    return scale;
}

}  // namespace

Weather showerInBerlin() {
    const QVariantMap shower = QJsonDocument::fromJson(showerJson).toVariant().toMap();
    return {shower[QStringLiteral("place")].toMap(), shower[QStringLiteral("observation")].toMap(),
            shower[QStringLiteral("days")].toList()};
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
