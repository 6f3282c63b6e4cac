#include "AgedPanel.h"

#include <algorithm>
#include <array>

#include "widget/FeedAnswer.h"

namespace zephyrix::testing {

namespace {

const QString documentKey = QStringLiteral("lastWeatherData");

/// Begins with the document itself, as it is logged, or with what each start says.
bool isOrdinary(const QByteArray& line) {
    constexpr std::array beginnings{"{", "loaded cached weather data", "age of the weather data",
                                    "demonstration weather comes from",
                                    "This plugin does not support"};
    return line.isEmpty() ||
           std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const char* beginning) { return line.startsWith(beginning); });
}

}  // namespace

AgedPanel::AgedPanel() {
    panel_.choosePlace();
    age();
}

QVariant AgedPanel::age(double seconds) const {
    const Instant fetched = Clock::now().addingSeconds(-seconds);
    auto old = FeedAnswer::fromBody(feedDocument(7.0, fetched), Number(18228265)).document;
    old.insertDtg = fetched;
    panel_.setSetting(documentKey, old.asDict());
    return document();
}

QVariant AgedPanel::document() const {
    return panel_.setting(documentKey);
}

Outcome AgedPanel::report() {
    return reportFrom(server_.baseAddress());
}

Outcome AgedPanel::reportFrom(const QString& feed) {
    return panel_.run(QStringLiteral("--text --feed ") + feed);
}

QList<QByteArray> AgedPanel::troubles(const QByteArray& log) {
    QList<QByteArray> lines = log.split('\n');
    lines.removeIf(isOrdinary);
    return lines;
}

}  // namespace zephyrix::testing
