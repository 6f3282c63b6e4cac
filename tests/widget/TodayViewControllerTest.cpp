#include <array>
#include <memory>
#include <type_traits>

#include <QCoreApplication>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "cells/Registration.h"
#include "foundation/Clock.h"
#include "support/ChosenPlace.h"
#include "support/Documents.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"
#include "widget/TodayViewController.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;
using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

const Instant noon = Instant::fromSecondsSince1970(1433152800);  // 2015-06-01 12:00 in Berlin
const QString locationKey = QStringLiteral("location");
const QString documentKey = QStringLiteral("lastWeatherData");

static_assert(!std::is_default_constructible_v<TodayViewController>);

class RecordingContext : public ExtensionContext {
  public:
    void openURL(const QUrl& address, std::function<void(bool)> handler) override {
        opened << address;
        EXPECT_FALSE(handler);
    }
    QList<QUrl> opened;
};

class TodayViewControllerTest : public ::testing::Test {
  protected:
    TodayViewControllerTest() {
        qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
        registerCells();
    }

    static UserDefaults& local() { return UserDefaults::standard(); }
    static QVariantMap observation() {
        const auto document = FeedAnswer::fromBody(feedDocument(14.0, noon), Number(1)).document;
        return document.obs->asDict();
    }
    /// A document of the default place as the panel caches it, fetched at this time.
    static QVariantMap cached(Instant fetched = noon) {
        return {{QStringLiteral("insertDtg"), fetched.toDateTime()},
                {QStringLiteral("uid"), 18228265},
                {QStringLiteral("obs"), observation()}};
    }

    /// The start of a panel: made and loaded.
    TodayViewController& start() {
        controller_ = std::make_unique<TodayViewController>(
            [this](const auto& then) { then(server_.baseAddress()); });
        controller_->setExtensionContext(&context_);
        controller_->tableView()->resize(375, 250);
        layOut();
        return *controller_;
    }
    void layOut() { controller_->tableView()->layoutIfNeeded(); }
    /// Lets the panel appear and waits for the fetch, if there is one.
    void appear() {
        controller_->viewWillAppear(false);
        EXPECT_TRUE(waitUntil([this] { return !controller_->isRefreshing(); }));
        layOut();
    }
    template <class Cell>
    [[nodiscard]] Cell* row(int row) const {
        return qobject_cast<Cell*>(controller_->tableView()->cellForRow({row, 0}));
    }
    [[nodiscard]] QString message() const { return row<TableCell>(0)->textLabel()->text(); }

    Instant now_ = noon;
    ReplacedClock clock_{[this] { return now_; }};
    LoopbackServer server_{answerBody(feedDocument(21.0, noon))};
    RecordingContext context_;
    std::unique_ptr<TodayViewController> controller_;
};

TEST_F(TodayViewControllerTest, WithoutAPlaceItAsksForOneAndNeverFetches) {
    local().set(QStringLiteral("showingAll"), true);
    local().set(documentKey, cached());
    TodayViewController& controller = start();
    appear();
    EXPECT_EQ(message(), QStringLiteral("Please open Zephyrix to activate the widget."));
    ASSERT_NE(row<ForecastCell>(1), nullptr);
    EXPECT_FALSE(row<ForecastCell>(1)->data());
    EXPECT_EQ(controller.moreButton(), nullptr);
    EXPECT_EQ(controller.tableView()->footerView(), nullptr);
    EXPECT_EQ(controller.preferredContentSize().height(), 214.0);
    EXPECT_FALSE(controller.lastWeatherData());
    EXPECT_TRUE(server_.requestLines().isEmpty());

    Q_EMIT controller.tableView()->toggleRequested();
    EXPECT_TRUE(controller.showingAll()) << "there is no button that could have been pressed";
}

TEST_F(TodayViewControllerTest, FirstDocumentFillsTheEmptyRowAndTheStore) {
    choosePlace();
    TodayViewController& controller = start();
    EXPECT_EQ(message(), QString());
    appear();
    ASSERT_NE(row<ObsCell>(0), nullptr);
    EXPECT_EQ(row<ObsCell>(0)->titleLabel()->text(), QStringLiteral("Berlin"));
    EXPECT_THAT(row<ObsCell>(0)->detailLabel1()->text().toStdString(), HasSubstr("21"));
    EXPECT_EQ(row<ObsCell>(0)->cs(), &controller.cs());
    EXPECT_EQ(row<ObsCell>(0)->defaults(), &controller.sharedDefaults());
    ASSERT_EQ(server_.requestLines().size(), 1);
    EXPECT_EQ(server_.requestLines().first(),
              "GET /zephyrix/WeatherFeed.php?lid=18228265&json=1&widget=1 HTTP/1.1");

    start();  // the next start shows it at once, and asks for nothing
    EXPECT_NE(row<ObsCell>(0), nullptr);
    appear();
    EXPECT_EQ(server_.requestLines().size(), 1);
}

struct Age {
    double seconds;
    int requests;
};

TEST_F(TodayViewControllerTest, EveryRowHasAnAccessibleNameFromTheStart) {
    local().set(QStringLiteral("showingAll"), true);
    const auto names = [this] {
        return QStringList{row<TableCell>(0)->accessibleName(),
                           row<TableCell>(1)->accessibleName()};
    };
    start();
    EXPECT_EQ(names(), QStringList({QStringLiteral("Please open Zephyrix to activate the widget."),
                                    QStringLiteral("no weather yet")}));
    choosePlace();
    start();
    EXPECT_EQ(names(), QStringList({QStringLiteral("Berlin, no weather yet"),
                                    QStringLiteral("forecast for Berlin: no weather yet")}));
    appear();
    EXPECT_TRUE(names().first().startsWith(QLatin1String("Berlin, 21 degrees Celsius, ")))
        << qPrintable(names().first());
}

TEST_F(TodayViewControllerTest, FetchesFromSixHundredSecondsOn) {
    choosePlace();
    for (const Age age :
         {Age{0.0, 0}, Age{-5000.0, 0}, Age{599.9, 0}, Age{600.0, 1}, Age{86400.0, 1}}) {
        local().set(documentKey, cached());
        now_ = noon;
        const auto before = server_.requestLines().size();
        start();
        now_ = noon.addingSeconds(age.seconds);
        appear();
        EXPECT_EQ(server_.requestLines().size() - before, age.requests) << age.seconds << " s old";
    }
}

TEST_F(TodayViewControllerTest, DocumentWithoutTimeIsFetchedAtEachAppearance) {
    choosePlace();
    QVariantMap undated = cached();
    undated.remove(QStringLiteral("insertDtg"));
    local().set(documentKey, undated);
    server_.answerWith(answerBody("<html>", 500));
    start();
    appear();
    appear();
    EXPECT_EQ(server_.requestLines().size(), 2);
}

TEST_F(TodayViewControllerTest, AdoptsOnlyAValidDocumentOfItsPlace) {
    choosePlace();
    QVariantMap otherPlace = cached();
    otherPlace.insert(QStringLiteral("uid"), 1);
    QVariantMap invalid = cached();
    invalid.insert(QStringLiteral("obs"), QVariantMap{{QStringLiteral("symbol"), 5}});
    invalid.remove(QStringLiteral("uid"));  // is not asked for once the observation is invalid
    QVariantMap uidAsDouble = cached();
    uidAsDouble.insert(QStringLiteral("uid"), 18228265.0);
    const std::array<std::pair<QVariant, bool>, 5> documents{{{cached(), true},
                                                              {uidAsDouble, true},
                                                              {otherPlace, false},
                                                              {invalid, false},
                                                              {QStringLiteral("text"), false}}};
    for (const auto& [document, adopted] : documents) {
        local().set(documentKey, document);
        const QVariant before = local().object(documentKey);
        CaptureStderr();
        EXPECT_EQ(start().lastWeatherData().has_value(), adopted);
        const std::string log = GetCapturedStderr();
        EXPECT_EQ(log.find("loaded cached weather data : {") != std::string::npos, adopted) << log;
        EXPECT_EQ(local().object(documentKey), before);
    }
}

TEST_F(TodayViewControllerTest, DocumentWithoutObservationIsShownAndStopsTheNextStart) {
    choosePlace();
    server_.answerWith(answerBody(R"({"forecast": {"days": {"day": []}}})"));
    TodayViewController& controller = start();
    appear();
    appear();
    EXPECT_EQ(server_.requestLines().size(), 2) << "without time it is never fresh";
    ASSERT_NE(row<ObsCell>(0), nullptr);
    EXPECT_FALSE(row<ObsCell>(0)->data());
    EXPECT_TRUE(controller.lastWeatherData()->forecast);
    EXPECT_EQ(local().dictionary(documentKey)->keys(), QStringList{QStringLiteral("forecast")});
    EXPECT_DEATH(start(), "fatal error: .*\"obs\"");
}

TEST_F(TodayViewControllerTest, ValidDocumentAndPlaceMustHaveAUid) {
    QVariantMap document = cached();
    document.remove(QStringLiteral("uid"));
    local().set(documentKey, document);
    choosePlace();
    EXPECT_DEATH(start(), "fatal error: .*\"uid\"");

    local().set(documentKey, cached());
    QVariantMap place = LocationResult::defaultSearchResult().asDict();
    place.remove(QStringLiteral("uid"));
    sharedSettings()->set(locationKey, place);
    EXPECT_DEATH(start(), "fatal error: .*\"uid\"");

    local().remove(documentKey);
    start();
    appear();
    EXPECT_TRUE(server_.requestLines().isEmpty()) << "a place without uid has no feed";
    EXPECT_EQ(message(), QString());
}

TEST_F(TodayViewControllerTest, PlaceWithWrongTypesIsUsedAsFarAsItGoes) {
    sharedSettings()->set(
        locationKey, QVariantMap{{QStringLiteral("uid"), QStringLiteral("77 or so")},
                                 {QStringLiteral("name"), 5},
                                 {QStringLiteral("latitude"), QVariantList{1}},
                                 {QStringLiteral("timezone"), QStringLiteral("Mars/Olympus")}});
    start();
    appear();
    EXPECT_THAT(server_.requestLines().value(0).toStdString(), HasSubstr("lid=77&"));
    EXPECT_NE(row<ObsCell>(0), nullptr);
}

TEST_F(TodayViewControllerTest, ButtonExpandsAndCollapses) {
    choosePlace();
    TodayViewController& controller = start();
    const auto& size = [&] { return controller.preferredContentSize(); };
    const double button = controller.moreButton()->height();
    EXPECT_GT(button, 0.0);
    controller.setPreferredContentSize({333.0, 0.0});
    for (const bool expanded : {true, false, true}) {
        controller.moreButton()->click();
        layOut();
        EXPECT_EQ(controller.showingAll(), expanded);
        EXPECT_EQ(controller.moreButton()->text(),
                  expanded ? QStringLiteral("Show less...") : QStringLiteral("Show more..."));
        EXPECT_EQ(row<ForecastCell>(1) != nullptr, expanded);
        EXPECT_EQ(size(), QSizeF(333.0, 110.0 + button + (expanded ? 104.0 : 0.0)));
    }
    EXPECT_FALSE(local().boolean(QStringLiteral("showingAll"))) << "stored when it disappears";
    controller.viewWillDisappear(false);
    EXPECT_TRUE(local().boolean(QStringLiteral("showingAll")));

    start();
    EXPECT_TRUE(controller_->showingAll());
    EXPECT_EQ(controller_->moreButton()->text(), QStringLiteral("Show less..."));
    EXPECT_NE(row<ForecastCell>(1), nullptr);
}

TEST_F(TodayViewControllerTest, MarksTheWidgetAsInstalledOnce) {
    start();
    auto shared = sharedSettings();
    EXPECT_TRUE(shared->boolean(QStringLiteral("widgetInstalled")));
    const QString file = shared->fileName();
    shared.reset();
    const auto written = QFileInfo(file).lastModified();
    start();
    controller_.reset();
    EXPECT_EQ(QFileInfo(file).lastModified(), written);
}

TEST_F(TodayViewControllerTest, ChosenRowOpensTheApplication) {
    choosePlace();
    local().set(documentKey, cached());
    local().set(QStringLiteral("showingAll"), true);
    TodayViewController& controller = start();
    for (const int index : {0, 1}) {
        row<TableCell>(index)->setSelected(true, false);
        controller.didSelectRowAtIndexPath({index, 0});
        EXPECT_FALSE(row<TableCell>(index)->isSelected());
    }
    const QUrl application(QStringLiteral("zephyrix://widget"));
    EXPECT_EQ(context_.opened, (QList<QUrl>{application, application}));
    controller.setExtensionContext(nullptr);
    controller.didSelectRowAtIndexPath({0, 0});
    EXPECT_EQ(context_.opened.size(), 2);
}

TEST_F(TodayViewControllerTest, LayoutWithAnotherRowStopsTheProcess) {
    choosePlace();
    local().set(documentKey, cached());
    const auto startWithRow = [this](const char* identifier) {
        controller_ = std::make_unique<TodayViewController>([](const auto&) {});
        controller_->tableView()->registerNib(QLatin1String(identifier),
                                              Nib(QStringLiteral("OverviewCell")));
        controller_->tableView()->layoutIfNeeded();
    };
    EXPECT_DEATH(startWithRow("obsCell"), "fatal error: the row \"obsCell\" is no .*ObsCell");
    local().set(QStringLiteral("showingAll"), true);
    EXPECT_DEATH(startWithRow("forecastCell"), "fatal error: .*\"forecastCell\"");
}

TEST_F(TodayViewControllerTest, EndedWhileARequestRunsItWritesNothing) {
    choosePlace();
    server_.answerWith(answerNothing());
    start().viewWillAppear(false);
    ASSERT_TRUE(waitUntil([this] { return !server_.requestLines().isEmpty(); }));
    controller_.reset();
    EXPECT_TRUE(waitUntil([this] { return server_.connections() == 0; }));
    EXPECT_FALSE(local().dictionary(documentKey));
}

TEST_F(TodayViewControllerTest, KeepsOnlyTheTopAndRightMargin) {
    EXPECT_EQ(start().widgetMarginInsetsForProposedMarginInsets({1.0, 2.0, 3.0, 4.0}),
              QMarginsF(0.0, 2.0, 3.0, 0.0));
}

}  // namespace
}  // namespace zephyrix
