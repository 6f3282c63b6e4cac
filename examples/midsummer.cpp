// Prints when the sun sets in Berlin at midsummer, a temperature and the weather in words, and
// draws the weather's symbol to the file that is named.
#include <QTextStream>

#include "astro/SunCalculations.h"
#include "foundation/Bundle.h"
#include "meteo/MeteoMapping.h"
#include "model/LocationResult.h"
#include "symbols/QKCompoundSymbol.h"

int main(int argc, char** argv) {
    using namespace zephyrix;
    if (argc != 2)
        return 2;
    // The weather texts and further symbol sets lie in a folder, which programs of one's own must
    // name.
    Bundle::main().setDataDirectory(QStringLiteral(ZEPHYRIX_DATA_DIR));

    const LocationResult berlin = LocationResult::defaultSearchResult();
    const Instant noon = Instant::fromSecondsSince1970(1718964000);  // 2024-06-21 10:00 UTC
    SunCalculations sun;
    const Instant sunset = sun.sunTimesforDate(noon, berlin, SunCalculations::set);
    const auto words = MeteoMapping::stringForN(Number(8), Number(63), QStringLiteral("en"), true);

    QTextStream out(stdout);
    out << *berlin.name() << '\n'
        << sunset.toDateTime().toTimeZone(berlin.objTimeZone()).toString(QStringLiteral("HH:mm"))
        << '\n'
        << MeteoMapping::formattedTempString(Number(21), unitcode::fahrenheit) << '\n'
        << words.value_or(QStringLiteral("no text")) << '\n';

    QKCompoundSymbol symbols;
    const QImage symbol = symbols.symbolForCode(Number(1300000), QSizeF(80, 80), noon);
    return symbol.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
