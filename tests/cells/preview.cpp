// Paints the two rows with made-up weather into a folder of pictures, for those who work on
// layouts, theme or artwork: cells_preview FOLDER
#include <array>
#include <cstdint>

#include <QApplication>
#include <QDir>

#include "Stage.h"
#include "foundation/Bundle.h"
#include "foundation/Clock.h"
#include "ui/Motion.h"
#include "ui/Theme.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::testing;

enum class State : std::uint8_t { Plain, Missing, Pressed, Focused };

struct Case {
    const char* name;
    const char* locale;
    const char* place;
    int width;
    double scale;
    Theme::Scheme scheme;
    bool expanded;
    State state;
    double textScale = 1.0;
};

constexpr auto light = Theme::Scheme::Light;
constexpr auto dark = Theme::Scheme::Dark;

constexpr std::array cases = {
    Case{"de-440-dark", "de_DE.UTF-8", "Berlin", 440, 2.0, dark, true, State::Plain},
    Case{"de-440-light", "de_DE.UTF-8", "Berlin", 440, 2.0, light, true, State::Plain},
    Case{"ru-440-dark", "ru_RU.UTF-8", "Санкт-Петербург", 440, 2.0, dark, true, State::Plain},
    Case{"ru-320-light", "ru_RU.UTF-8", "Санкт-Петербург", 320, 2.0, light, true, State::Plain},
    Case{"de-320-dark", "de_DE.UTF-8", "Frankfurt am Main", 320, 2.0, dark, true, State::Plain},
    Case{"en-375-light", "en_GB.UTF-8", "Berlin", 375, 2.0, light, true, State::Plain},
    Case{"fr-414-dark", "fr_FR.UTF-8", "Saint-Étienne", 414, 2.0, dark, true, State::Plain},
    Case{"en-600-dark", "en_GB.UTF-8", "Berlin", 600, 2.0, dark, true, State::Plain},
    Case{"en-375-light-1x", "en_GB.UTF-8", "Berlin", 375, 1.0, light, true, State::Plain},
    Case{"en-375-dark-125", "en_GB.UTF-8", "Berlin", 375, 1.25, dark, true, State::Plain},
    Case{"en-440-dark-3x", "en_GB.UTF-8", "Berlin", 440, 3.0, dark, false, State::Plain},
    Case{"en-375-missing", "en_GB.UTF-8", "Berlin", 375, 2.0, light, true, State::Missing},
    Case{"en-375-dark-pressed", "en_GB.UTF-8", "Berlin", 375, 2.0, dark, true, State::Pressed},
    Case{"en-375-light-pressed", "en_GB.UTF-8", "Berlin", 375, 2.0, light, true, State::Pressed},
    Case{"en-375-dark-focused", "en_GB.UTF-8", "Berlin", 375, 2.0, dark, true, State::Focused},
    Case{"en-375-light-focused", "en_GB.UTF-8", "Berlin", 375, 2.0, light, true, State::Focused},
    Case{"de-320-text-2.0", "de_DE.UTF-8", "Frankfurt am Main", 320, 1.0, dark, true, State::Plain,
         2.0},
    Case{"ru-320-text-1.5", "ru_RU.UTF-8", "Санкт-Петербург", 320, 1.0, light, true, State::Plain,
         1.5},
    Case{"fr-414-text-1.33", "fr_FR.UTF-8", "Saint-Étienne", 414, 2.0, dark, true, State::Plain,
         1.33},
    Case{"ru-600-text-2.0", "ru_RU.UTF-8", "Санкт-Петербург", 600, 1.0, dark, true, State::Plain,
         2.0},
};

Weather weatherOf(const Case& shown) {
    Weather weather = showerInBerlin();
    weather.place[QStringLiteral("name")] = QString::fromUtf8(shown.place);
    if (shown.state != State::Missing)
        return weather;
    for (const char* key : {"tt", "td", "dd", "ff", "rrr", "rrrh", "n", "ww", "ppp"})
        weather.observation[QString::fromLatin1(key)] = -9999;
    QVariantMap first = weather.days.first().toMap();
    first.remove(QStringLiteral("tx"));
    first.remove(QStringLiteral("symbol"));
    weather.days.first() = first;
    return weather;
}

void paint(const Case& shown, const QDir& folder) {
    useLanguage(shown.locale);
    Theme::setScheme(shown.scheme);
    const TextSize texts(shown.textScale);
    Stage stage(weatherOf(shown), shown.width, shown.scale);
    stage.layOut();
    if (shown.expanded)
        stage.toggle();
    if (shown.state == State::Pressed)
        stage.obsCell()->setHighlighted(true, false);
    if (shown.state == State::Focused)
        stage.focusFirstRow();
    stage.picture().save(folder.filePath(QString::fromLatin1(shown.name) + QStringLiteral(".png")));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Berlin");
    qputenv("LANGUAGE", "");
    qunsetenv("LC_ALL");
    const QApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: cells_preview FOLDER");
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(QStringLiteral("."));
    Motion::setReduced(true);
    const ReplacedClock clock([] { return Instant::fromSecondsSince1970(1433154000); });
    for (const Case& shown : cases)
        paint(shown, folder);
    return 0;
}
