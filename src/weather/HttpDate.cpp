#include "HttpDate.h"

#include <QDateTime>
#include <QLocale>

namespace zephyrix {

namespace {

const QString pattern = QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'");

}  // namespace

QByteArray httpDate(Instant time) {
    return QLocale::c().toString(time.toDateTime(), pattern).toLatin1();
}

std::optional<Instant> instantFromHttpDate(const QByteArray& text) {
    constexpr qsizetype length = 29;
    if (text.size() != length)
        return std::nullopt;
    QDateTime time = QLocale::c().toDateTime(QString::fromLatin1(text), pattern);
    if (!time.isValid())
        return std::nullopt;
    time.setTimeSpec(Qt::UTC);
    return Instant::fromDateTime(time);
}

}  // namespace zephyrix
