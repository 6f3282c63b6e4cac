#include "Log.h"

#include <cstdio>

#include <QByteArray>

namespace zephyrix {

namespace {

QString withoutControlCharacters(const QString& message) {
    QString line;
    line.reserve(message.size() + 1);
    for (const QChar c : message) {
        if (c == QLatin1Char('\n'))
            line += QLatin1String("\\n");
        else if (c.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += c;
    }
    return line;
}

}  // namespace

void logLine(const QString& message) {
    const QByteArray line = withoutControlCharacters(message).toUtf8() + '\n';
    // One call, so that lines of several threads do not mix.
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

}  // namespace zephyrix
