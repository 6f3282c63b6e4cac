#pragma once

#include <QByteArray>
#include <QString>

#include "foundation/Instant.h"

namespace zephyrix::testing {

/// A feed's answer with a complete observation of this temperature (degrees Celsius) and time, and
/// a forecast of six days from that day on.
[[nodiscard]] inline QByteArray feedDocument(double temperature, Instant time) {
    QByteArray days;
    for (int day = 0; day < 6; ++day) {
        const QString date = time.addingSeconds(day * 86400.0)
                                 .toDateTime()
                                 .toLocalTime()
                                 .toString(QStringLiteral("yyyy-MM-dd"));
        days += QStringLiteral(R"(%1{"date": "%2", "symbol": 1300000, "tx": %3, "tn": 4})")
                    .arg(day == 0 ? QString() : QStringLiteral(","), date)
                    .arg(10 + day)
                    .toUtf8();
    }
    return QStringLiteral(R"({"obs": {"lastObs": {"date": %1, "symbol": 1300000, "tt": %2,
        "td": 8.5, "dd": 240, "ff": 10, "ffg": 18, "rrr": 0.2, "rrrh": 1, "n": 6, "ww": 61,
        "ppp": 1013.2, "source": "a test"}}, "forecast": {"days": {"day": [%3]}}})")
        .arg(time.secondsSince1970(), 0, 'f', 0)
        .arg(temperature)
        .arg(QString::fromUtf8(days))
        .toUtf8();
}

}  // namespace zephyrix::testing
