#include "SymbolCommand.h"

#include <cstdio>
#include <optional>

#include <QCommandLineParser>
#include <QDateTime>
#include <QElapsedTimer>
#include <QImage>
#include <QSaveFile>

#include "SymbolSheet.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix {

namespace {

constexpr double largestSize = 1024.0;        // points
constexpr double largestScale = 4.0;          // pixels a point
constexpr double largestSheetSymbol = 256.0;  // pixels: a sheet of these is some 100 MB
constexpr qint64 progressEvery = 1000;        // milliseconds

/// The arguments of the command, each checked as it is asked for.
class SymbolArguments {
  public:
    explicit SymbolArguments(const QStringList& arguments) {
        const QString value = QStringLiteral("value");
        for (const auto* name : {"size", "scale", "set", "date", "sheet"})
            parser_.addOption({QString::fromLatin1(name), {}, value});
        parser_.addOption({{QStringLiteral("o"), QStringLiteral("output")}, {}, value});
        if (!parser_.parse(QStringList(QString()) + arguments))
            throw CommandError::usage(parser_.errorText());
        const bool isSheet = parser_.isSet(QStringLiteral("sheet"));
        if (parser_.positionalArguments().size() != (isSheet ? 0 : 1))
            throw CommandError::usage(isSheet ? QStringLiteral("--sheet shows all codes")
                                              : QStringLiteral("which code, and only one?"));
        if (isSheet == parser_.isSet(QStringLiteral("o")))
            throw CommandError::usage(QStringLiteral("name one file, after -o or --sheet"));
    }

    [[nodiscard]] QString sheetFile() const { return parser_.value(QStringLiteral("sheet")); }
    [[nodiscard]] QString symbolFile() const { return parser_.value(QStringLiteral("o")); }

    [[nodiscard]] qlonglong code() const {
        return wholeNumber(parser_.positionalArguments().constFirst(), QStringLiteral("code"));
    }

    [[nodiscard]] qlonglong set() const {
        return parser_.isSet(QStringLiteral("set"))
                   ? wholeNumber(parser_.value(QStringLiteral("set")), QStringLiteral("set"))
                   : 0;
    }

    [[nodiscard]] SymbolSheetOptions look() const {
        return {number("size", 40.0, largestSize), number("scale", 1.0, largestScale), date()};
    }

  private:
    static qlonglong wholeNumber(const QString& text, const QString& what) {
        bool isNumber = false;
        const qlonglong value = text.toLongLong(&isNumber);
        if (!isNumber || value < 0)
            throw CommandError::usage(QStringLiteral("\"%1\" is no %2").arg(text, what));
        return value;
    }

    [[nodiscard]] double number(const char* option, double otherwise, double most) const {
        const QString name = QString::fromLatin1(option);
        if (!parser_.isSet(name))
            return otherwise;
        bool isNumber = false;
        const double value = parser_.value(name).toDouble(&isNumber);
        if (!isNumber || !(value > 0 && value <= most))
            throw CommandError::usage(
                QStringLiteral("--%1: \"%2\" is no number above 0 and up to %3")
                    .arg(name, parser_.value(name))
                    .arg(most));
        return value;
    }

    [[nodiscard]] std::optional<Instant> date() const {
        const QString text = parser_.value(QStringLiteral("date"));
        if (!parser_.isSet(QStringLiteral("date")))
            return std::nullopt;
        const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
        if (!date.isValid())
            throw CommandError::usage(
                QStringLiteral("--date: \"%1\" is no date such as 2015-06-16 or "
                               "2015-06-16T22:00:00Z")
                    .arg(text));
        return Instant::fromDateTime(date);
    }

    QCommandLineParser parser_;
};

void write(const QImage& image, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "png") || !file.commit())
        throw CommandError::failure(
            QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString()));
}

QImage sheet(const SymbolSheetOptions& look) {
    if (look.size * look.scale > largestSheetSymbol)
        throw CommandError::usage(
            QStringLiteral("on a sheet, symbols have up to %1 pixels").arg(largestSheetSymbol));
    QElapsedTimer sinceLastLine;
    sinceLastLine.start();
    return symbolSheet(look, [&](int done, int all) {
        if (sinceLastLine.elapsed() < progressEvery)
            return;
        std::fprintf(stderr, "%d of %d symbols\n", done, all);
        sinceLastLine.restart();
    });
}

QImage symbol(qlonglong code, const SymbolSheetOptions& look) {
    QKCompoundSymbol symbols;
    symbols.setWinscale(look.scale);
    QImage image = symbols.symbolForCode(Number(code), QSizeF(look.size, look.size), look.date);
    if (image.isNull())
        throw CommandError::usage(QStringLiteral("that is less than a pixel"));
    return image;
}

void run(const QStringList& arguments, QTextStream& /*out*/) {
    const SymbolArguments asked(arguments);
    const SymbolSheetOptions look = asked.look();
    if (!QKWeatherSymbols::chooseSet(asked.set()))
        throw CommandError::failure(QStringLiteral("there is no symbol set %1").arg(asked.set()));
    if (asked.sheetFile().isEmpty())
        write(symbol(asked.code(), look), asked.symbolFile());
    else
        write(sheet(look), asked.sheetFile());
}

}  // namespace

const Command symbolCommand = {
    "symbol",
    "  symbol CODE -o FILE.png [--size POINTS] [--scale PIXELS] [--set K] [--date DATE]\n"
    "                                draws the weather symbol of a code; the date chooses the\n"
    "                                moon's phase, in your zone unless it names another\n"
    "  symbol --sheet FILE.png [the same options]\n"
    "                                draws all symbols, on light and on dark ground\n",
    run};

}  // namespace zephyrix
