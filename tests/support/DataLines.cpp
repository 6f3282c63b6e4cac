#include "DataLines.h"

#include <QFile>

namespace zephyrix::testing {

namespace {

QString unescaped(QString field) {
    for (qsizetype at = 0; (at = field.indexOf(QLatin1Char('\\'), at)) >= 0; ++at) {
        const QChar letter = at + 1 < field.size() ? field[at + 1] : QChar();
        field.replace(at, 2,
                      letter == u'n'   ? QChar(u'\n')
                      : letter == u't' ? QChar(u'\t')
                                       : letter);
    }
    return field;
}

}  // namespace

QByteArray dataFile(const QString& path) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no reference data in %s", qPrintable(file.fileName()));
    return file.readAll();
}

QVector<QStringList> dataLines(const QString& path) {
    QVector<QStringList> lines;
    for (const QString& line : QString::fromUtf8(dataFile(path)).split(QLatin1Char('\n'))) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        lines.append(line.split(QLatin1Char('\t')));
        for (QString& field : lines.last())
            field = unescaped(field);
    }
    if (lines.isEmpty())
        qFatal("no reference data in %s", qPrintable(path));
    return lines;
}

double DataLine::number(qsizetype column) const {
    bool isNumber = false;
    const double number = fields_.value(column).toDouble(&isNumber);
    EXPECT_TRUE(isNumber) << "column " << column << " is no number";
    return number;
}

qint64 DataLine::integer(qsizetype column) const {
    bool isInteger = false;
    const qint64 integer = fields_.value(column).toLongLong(&isInteger);
    EXPECT_TRUE(isInteger) << "column " << column << " is no integer";
    return integer;
}

bool DataLine::isYes(qsizetype column) const {
    const QString field = fields_.value(column);
    EXPECT_TRUE(field == u"yes" || field == u"no") << "column " << column << " is neither";
    return field == u"yes";
}

std::string DataLine::text() const {
    return fields_.join(QLatin1Char('\t')).toStdString();
}

}  // namespace zephyrix::testing
