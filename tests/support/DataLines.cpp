#include "DataLines.h"

#include <QFile>

namespace zephyrix::testing {

QVector<QStringList> dataLines(const QString& path) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no reference data in %s", qPrintable(file.fileName()));
    QVector<QStringList> lines;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            lines.append(line.split(QLatin1Char('\t')));
    }
    if (lines.isEmpty())
        qFatal("no reference data in %s", qPrintable(file.fileName()));
    return lines;
}

}  // namespace zephyrix::testing
