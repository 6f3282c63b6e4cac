#include "TodayViewController.h"

#include <utility>

#include "foundation/Clock.h"
#include "foundation/Description.h"
#include "foundation/FatalError.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

const QString sharedSuite = QStringLiteral("group.Zephyrix");
const QString locationKey = QStringLiteral("location");
const QString installedKey = QStringLiteral("widgetInstalled");
const QString showingAllKey = QStringLiteral("showingAll");
const QString documentKey = QStringLiteral("lastWeatherData");

QKCompoundSymbol cachingSymbols() {
    QKCompoundSymbol symbols;
    symbols.setUseCache(true);
    return symbols;
}

}  // namespace

TodayViewController::TodayViewController(WeatherFeed::BaseAddress feed, const FeedLimits& limits)
    : TableViewController(QStringLiteral("TodayViewController")),
      cs_(cachingSymbols()),
      localDefaults_(UserDefaults::standard()),
      suite_(UserDefaults::suite(sharedSuite)),
      sharedDefaults_(suite_ ? suite_.get() : &UserDefaults::standard()),
      feed_(std::move(feed), queue_, limits) {}

TodayViewController::~TodayViewController() = default;

void TodayViewController::connectOutlets() {
    TableViewController::connectOutlets();
    moreButton_ = tableView()->findChild<TextButton*>(QStringLiteral("moreButton"));
    if (!moreButton_)
        return;
    connect(moreButton_, &TextButton::clicked, this, [this] { didPressButton(moreButton_); });
    connect(tableView(), &TableView::toggleRequested, this, [this] {
        if (moreButton_)
            didPressButton(moreButton_);
    });
}

void TodayViewController::viewDidLoad() {
    TableViewController::viewDidLoad();
    // Clear, so that the panel's surface shows; the lines between the rows take its theme.
    tableView()->setBackgroundColor(Qt::transparent);
    tableView()->setAccessibleName(QStringLiteral("Zephyrix"));
    if (moreButton_)
        moreButton_->setText(QString());
    if (const auto dictionary = sharedDefaults_->dictionary(locationKey)) {
        location_.emplace(*dictionary);
        restoreCachedDocument();
    } else {
        tableView()->setFooterView(nullptr);
        moreButton_.clear();
    }
    setShowingAll(localDefaults_.boolean(showingAllKey));
    if (!sharedDefaults_->boolean(installedKey)) {
        sharedDefaults_->set(installedKey, true);
        sharedDefaults_->synchronize();
    }
}

void TodayViewController::restoreCachedDocument() {
    const auto cached = localDefaults_.dictionary(documentKey);
    if (!cached)
        return;
    const WeatherData document(*cached);
    if (!document.isValid())
        return;
    if (!document.uid || !location_->uid())
        fatalError(
            QStringLiteral("the cached weather document or the stored place has no \"uid\""));
    if (*document.uid != *location_->uid())
        return;
    logLine(QStringLiteral("loaded cached weather data : ") + description(*cached));
    setLastWeatherData(document);
}

void TodayViewController::viewWillAppear(bool animated) {
    TableViewController::viewWillAppear(animated);
    std::optional<double> age;  // seconds, negative for a document of the past
    if (lastWeatherData_ && lastWeatherData_->insertDtg)
        age = lastWeatherData_->insertDtg->secondsSince(Clock::now());
    logLine(QStringLiteral("age of the weather data : ") +
            (age ? QString::number(*age, 'f', 3) : QStringLiteral("nil")));
    if (age && *age > -Constants::maxUpdateInterval)
        return;
    if (!location_ || !location_->uid())
        return;
    ++refreshes_;
    fetchWeatherDataForLocationID(
        *location_->uid(),
        [this](const std::optional<WeatherData>& document, const std::optional<FeedError>& error) {
            completeRefresh(document, error);
        });
}

void TodayViewController::completeRefresh(const std::optional<WeatherData>& document,
                                          const std::optional<FeedError>& error) {
    if (error) {
        logLine(error->description());
    } else if (document) {
        const QVariantMap dictionary = document->asDict();
        logLine(description(dictionary));
        setLastWeatherData(document);
        localDefaults_.set(documentKey, dictionary);
        localDefaults_.synchronize();
    }
    --refreshes_;
    Q_EMIT refreshed(!error);
}

void TodayViewController::viewWillDisappear(bool animated) {
    TableViewController::viewWillDisappear(animated);
    localDefaults_.set(showingAllKey, showingAll_);
}

void TodayViewController::didReceiveMemoryWarning() {
    TableViewController::didReceiveMemoryWarning();
}

void TodayViewController::fetchWeatherDataForLocationID(const Number& locationID,
                                                        WeatherFeed::Completion completion) {
    feed_.fetch(locationID, std::move(completion));
}

void TodayViewController::setLastWeatherData(std::optional<WeatherData> document) {
    lastWeatherData_ = std::move(document);
    tableView()->reloadData();
}

}  // namespace zephyrix
