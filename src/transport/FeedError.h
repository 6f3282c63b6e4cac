#pragma once

#include <QLatin1String>
#include <QString>

namespace zephyrix {

/// Why a fetch gave no document.
struct FeedError {
    /// The panel's own errors; the only one is invalidAddress.
    static constexpr QLatin1String ownDomain{"QK"};
    static constexpr int invalidAddress = -1;
    /// The connection's errors; the code is a QNetworkReply::NetworkError.
    static constexpr QLatin1String transportDomain{"Transport"};
    /// The JSON parser's errors; the code is a QJsonParseError::ParseError.
    static constexpr QLatin1String parserDomain{"JSON"};

    QString domain;
    int code = 0;
    QString reason;  // in words, may be empty

    /// "Transport error 1: Connection refused"
    [[nodiscard]] QString description() const {
        const QString head = QStringLiteral("%1 error %2").arg(domain).arg(code);
        return reason.isEmpty() ? head : head + QLatin1String(": ") + reason;
    }
};

}  // namespace zephyrix
