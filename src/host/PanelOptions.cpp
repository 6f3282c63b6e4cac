#include "PanelOptions.h"

#include <array>
#include <cmath>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QTextStream>
#include <QUrl>

#include "BarFormat.h"
#include "transport/AddressRules.h"

namespace zephyrix {

namespace {

struct OptionRow {
    const char* name;
    const char* value;  // what it is called in the help; none for a switch
    const char* help;
};

constexpr std::array options{
    OptionRow{"window", nullptr, "a window, also where a tray could show the panel"},
    OptionRow{"text", nullptr, "print what the panel shows, and end"},
    OptionRow{"json", nullptr, "print what the panel shows as one JSON object, and end"},
    OptionRow{"format", "FORMAT", "print one line for a bar: waybar, polybar, or '{symbol} ...'"},
    OptionRow{"follow", nullptr, "with --format, print anew when something has changed"},
    OptionRow{"snapshot", "FILE.png", "write a picture of the panel, and end"},
    OptionRow{"expanded", nullptr, "begin with the forecast"},
    OptionRow{"width", "W", "the panel's width in points, 320 to 2000 (440)"},
    OptionRow{"scale", "S", "the picture's pixels a point, 0.5 to 8 (the screen's)"},
    OptionRow{"scheme", "NAME", "light or dark (the desktop's)"},
    OptionRow{"feed", "URL", "the feed server's address, https unless it says http"},
    OptionRow{"allow-plain-http", nullptr, "also a feed on another machine without encryption"},
    OptionRow{"paint-time", nullptr, "print how long the first paint on the screen took"},
    OptionRow{"help", nullptr, "this text"},
    OptionRow{"version", nullptr, "the version"},
};

void declare(QCommandLineParser& parser) {
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const OptionRow& row : options)
        parser.addOption(QCommandLineOption(QLatin1String(row.name), QLatin1String(row.help),
                                            QLatin1String(row.value ? row.value : "")));
}

double numberIn(const QCommandLineParser& parser, const QString& name, double least, double most) {
    bool isNumber = false;
    const double value = parser.value(name).toDouble(&isNumber);
    if (!isNumber || !(value >= least && value <= most))
        throw PanelOptions::Error(QStringLiteral("--%1 takes a number from %2 to %3, not \"%4\"")
                                      .arg(name)
                                      .arg(least)
                                      .arg(most)
                                      .arg(parser.value(name)));
    return value;
}

PanelOptions::Scheme schemeNamed(const QString& name) {
    if (name == QLatin1String("light"))
        return PanelOptions::Scheme::Light;
    if (name == QLatin1String("dark"))
        return PanelOptions::Scheme::Dark;
    throw PanelOptions::Error(QStringLiteral("--scheme is light or dark, not \"%1\"").arg(name));
}

QString barFormat(const QString& given) {
    try {
        const BarFormat understood(given);
    } catch (const BarFormat::Error& error) {
        throw PanelOptions::Error(error.text());
    }
    return given;
}

QString feedAddressFrom(const QString& given) {
    QString address = completeFeedAddress(given);
    if (!isFeedAddress(QUrl(address, QUrl::StrictMode)))
        throw PanelOptions::Error(
            QStringLiteral("--feed takes an http or https address, not \"%1\"").arg(given));
    return address;
}

}  // namespace

PanelOptions PanelOptions::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(arguments))
        throw Error(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        throw Error(
            QStringLiteral("what is \"%1\"?").arg(parser.positionalArguments().constFirst()));
    const auto isSet = [&](const char* name) { return parser.isSet(QLatin1String(name)); };
    PanelOptions asked;
    asked.help = isSet("help");
    asked.version = isSet("version");
    asked.window = isSet("window");
    asked.text = isSet("text");
    asked.json = isSet("json");
    asked.expanded = isSet("expanded");
    asked.feed.allowPlainHttp = isSet("allow-plain-http");
    asked.paintTime = isSet("paint-time");
    if (asked.text && asked.json)
        throw Error(QStringLiteral("--text and --json cannot be printed together"));
    if (isSet("format"))
        asked.format = barFormat(parser.value(QStringLiteral("format")));
    asked.follow = isSet("follow");
    if (asked.format && (asked.text || asked.json || isSet("snapshot")))
        throw Error(QStringLiteral("--format prints alone, without --text, --json and --snapshot"));
    if (asked.follow && !asked.format)
        throw Error(QStringLiteral("--follow goes with --format"));
    if (isSet("snapshot"))
        asked.snapshot = parser.value(QStringLiteral("snapshot"));
    if (isSet("width"))
        asked.width = std::round(numberIn(parser, QStringLiteral("width"), 320, 2000));
    if (isSet("scale"))
        asked.scale = numberIn(parser, QStringLiteral("scale"), 0.5, 8);
    if (isSet("scheme"))
        asked.scheme = schemeNamed(parser.value(QStringLiteral("scheme")));
    if (isSet("feed"))
        asked.feed.address = feedAddressFrom(parser.value(QStringLiteral("feed")));
    return asked;
}

QString PanelOptions::helpText() {
    QString text;
    QTextStream out(&text);
    out << "Usage: zephyrix-panel [OPTIONS]\n\n"
           "Shows the weather of the place that was chosen with \"zephyrix place\".\n\nOptions:\n";
    for (const OptionRow& row : options) {
        const QString name = QStringLiteral("--%1 %2").arg(
            QLatin1String(row.name), QLatin1String(row.value ? row.value : ""));
        out << "  " << name.leftJustified(22) << row.help << '\n';
    }
    out << "\nWithout --feed, and without \"feedServer\" in its settings, the panel starts a feed "
           "of its\n"
           "own with demonstration weather when it needs one.\n\n"
           "Exit status: 0 done, 1 could not be done, 2 wrong options.\n";
    return text;
}

}  // namespace zephyrix
