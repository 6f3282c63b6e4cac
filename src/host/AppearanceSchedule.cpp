#include "AppearanceSchedule.h"

#include <algorithm>
#include <array>
#include <utility>

#include "SystemWakeSource.h"
#include "cells/ObsCell.h"
#include "foundation/Clock.h"
#include "foundation/GregorianCalendar.h"

namespace zephyrix {

namespace {

constexpr std::array retryDelays{60.0, 120.0, 300.0, 600.0};  // seconds; the last one repeats
// A route is there before names can be looked up.
constexpr double networkSettles = 3.0;  // seconds
// Past the moment itself, where rounding could still find the document too young.
constexpr double surely = 0.001;  // seconds

}  // namespace

AppearanceSchedule::AppearanceSchedule(TodayViewController& controller,
                                       std::unique_ptr<WakeSource> wakes)
    : controller_(controller),
      wakes_(wakes ? std::move(wakes) : std::make_unique<SystemWakeSource>()),
      shown_(timeToShow()) {
    connect(wakes_.get(), &WakeSource::due, this, &AppearanceSchedule::wakeUp);
    connect(wakes_.get(), &WakeSource::clockChanged, this, &AppearanceSchedule::takeClock);
    connect(wakes_.get(), &WakeSource::networkReturned, this, &AppearanceSchedule::takeNetwork);
    connect(wakes_.get(), &WakeSource::zoneChanged, this, [this] {
        reload();
        plan();
    });
    connect(&controller_, &TodayViewController::refreshed, this, &AppearanceSchedule::takeRefresh);
}

AppearanceSchedule::~AppearanceSchedule() = default;

void AppearanceSchedule::panelAppeared() {
    visible_ = true;
    failing_ = false;
    retries_ = 0;
    retryAt_.reset();
    if (shown_ != timeToShow())
        reload();
    plan();
}

void AppearanceSchedule::panelDisappeared() {
    visible_ = false;
    wakes_->stop();
}

bool AppearanceSchedule::hasPlace() const {
    return controller_.location() && controller_.location()->uid();
}

const Obs* AppearanceSchedule::observation() const {
    const auto& document = controller_.lastWeatherData();
    return document && document->obs ? &*document->obs : nullptr;
}

AppearanceSchedule::TimeShown AppearanceSchedule::timeToShow() const {
    const GregorianCalendar calendar(defaultTimeZone());
    const CalendarFields today = calendar.fields(Clock::now());
    const Obs* record = observation();
    return {calendar.timeZone().id(),
            QDate(static_cast<int>(today.year), static_cast<int>(today.month),
                  static_cast<int>(today.day)),
            record != nullptr ? ObsCell::shownAge(*record) : std::nullopt};
}

Instant AppearanceSchedule::nextReload() const {
    const GregorianCalendar calendar(defaultTimeZone());
    CalendarFields midnight = calendar.fields(Clock::now());
    ++midnight.day;
    midnight.hour = midnight.minute = midnight.second = 0;
    const Obs* record = observation();
    const auto older = record != nullptr ? ObsCell::nextAge(*record) : std::nullopt;
    const Instant nextDay = calendar.instant(midnight);
    return (older ? std::min(*older, nextDay) : nextDay).addingSeconds(surely);
}

std::optional<Instant> AppearanceSchedule::nextAppearance() const {
    if (controller_.isRefreshing())
        return std::nullopt;
    if (retryAt_)
        return retryAt_;
    const auto& document = controller_.lastWeatherData();
    if (!document || !document->insertDtg)
        return std::nullopt;
    return document->insertDtg->addingSeconds(TodayViewController::Constants::maxUpdateInterval +
                                              surely);
}

void AppearanceSchedule::wakeUp() {
    if (shown_ != timeToShow())
        reload();
    const auto appearance = nextAppearance();
    if (appearance && *appearance <= Clock::now())
        appearAgain();
    plan();
}

void AppearanceSchedule::takeClock() {
    retries_ = 0;
    reload();
    appearAgain();
    plan();
}

void AppearanceSchedule::takeNetwork() {
    retries_ = 0;
    if (retryAt_)
        retryAt_ = std::min(*retryAt_, Clock::now().addingSeconds(networkSettles));
    plan();
}

void AppearanceSchedule::takeRefresh(bool succeeded) {
    // A document without an observation has no age, so the controller would fetch at once again.
    const auto& document = controller_.lastWeatherData();
    failing_ = !succeeded || !document || !document->insertDtg;
    if (failing_) {
        retryAt_ = Clock::now().addingSeconds(retryDelays.at(retries_));
        retries_ = std::min(retries_ + 1, retryDelays.size() - 1);
    } else {
        retries_ = 0;
        retryAt_.reset();
    }
    if (succeeded)
        shown_ = timeToShow();  // the controller reloads the table for the new document
    plan();
}

void AppearanceSchedule::reload() {
    controller_.tableView()->reloadData();
    shown_ = timeToShow();
}

void AppearanceSchedule::appearAgain() {
    if (controller_.isRefreshing())
        return;
    retryAt_.reset();
    controller_.viewWillAppear(false);
}

void AppearanceSchedule::plan() {
    if (!visible_ || !hasPlace())
        return;
    const Instant reload = nextReload();
    wakes_->watchNetwork(failing_);
    wakes_->wakeAt(std::min(reload, nextAppearance().value_or(reload)));
}

}  // namespace zephyrix
