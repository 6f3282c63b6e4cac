#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "astro/MoonCalculations.h"
#include "astro/SunCalculations.h"
#include "foundation/NamedException.h"
#include "foundation/TimeZone.h"

namespace zephyrix {
namespace {

using Answers = std::vector<double>;

/// A sun time, or -1 and -2 for the two reasons why there is none.
double sunTime(SunCalculations& sun, Instant date, double latitude, const QTimeZone& zone) {
    try {
        return sun.sunTimesforDate(date, 15.0, latitude, SunCalculations::rise, zone)
            .secondsSince1970();
    } catch (const NamedException& exception) {
        return exception.reason() == QLatin1String("sun") ? -1.0 : -2.0;
    }
}

Answers ask(SunCalculations& sun) {
    const QTimeZone berlin = timeZoneWithName(QStringLiteral("Europe/Berlin"));
    const QTimeZone kathmandu = timeZoneWithName(QStringLiteral("Asia/Kathmandu"));
    Answers answers;
    for (int step = 0; step < 400; ++step) {
        const auto date = Instant::fromSecondsSince1970(1.7e9 + step * 100'003.0);
        answers.push_back(sunTime(sun, date, 50.0, berlin));
        answers.push_back(sunTime(sun, date, 75.0, kathmandu));
        answers.push_back(MoonCalculations::currentMoonForDate(date));
    }
    return answers;
}

TEST(Threads, EightGetTheAnswersOfOne) {
    SunCalculations shared;
    const Answers expected = ask(shared);
    std::vector<Answers> found(8);
    {
        std::vector<std::jthread> threads;
        for (Answers& answers : found)
            threads.emplace_back([&answers, &shared] { answers = ask(shared); });
    }
    for (const Answers& answers : found)
        EXPECT_EQ(answers, expected);
}

}  // namespace
}  // namespace zephyrix
