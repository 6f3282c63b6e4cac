// Symbol codes one after the other, as the rows of a panel ask for them: each line a code and,
// where one follows, a date in seconds since 1970. The same renderer serves all lines.
#include <algorithm>

#include <QStringList>

#include "Surroundings.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

constexpr qsizetype mostLines = 16;
constexpr QSizeF size{24.0, 24.0};  // points
constexpr double scale = 1.5;

Number numberFrom(const QString& text) {
    bool isInteger = false;
    const qlonglong integer = text.toLongLong(&isInteger);
    return isInteger ? Number(integer) : Number(text.toDouble());
}

std::optional<Instant> dateFrom(const QStringList& words) {
    if (words.size() < 2)
        return std::nullopt;
    return Instant::fromSecondsSince1970(words.at(1).toDouble());
}

void drawLine(QKCompoundSymbol& symbols, const QString& line) {
    const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return;
    const QImage symbol = symbols.symbolForCode(numberFrom(words.first()), size, dateFrom(words));
    expect(symbol.size() == (size * scale).toSize(), "a picture has the size that was asked for");
    // Names of single images come the same way as codes.
    static_cast<void>(QKWeatherSymbols::imageForSymbolName(line, size));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t count) {
    static unsigned inputs = 0;
    if (++inputs % 64 == 0)
        QKWeatherSymbols::clearCache();
    QKCompoundSymbol symbols;
    symbols.setUseCache(true);
    symbols.setWinscale(scale);
    const QStringList lines = QString::fromUtf8(bytesOf(data, count)).split(QLatin1Char('\n'));
    for (const QString& line : lines.first(std::min(lines.size(), mostLines)))
        drawLine(symbols, line);
    QKWeatherSymbols::waitForFiles();  // no application ends here that would do so
    return 0;
}
