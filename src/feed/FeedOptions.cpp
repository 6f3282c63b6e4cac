#include "FeedOptions.h"

#include <cmath>

#include <QCommandLineParser>
#include <QHostAddress>

#include "PlaceDirectory.h"
#include "foundation/TimeZone.h"
#include "foundation/UserDefaults.h"
#include "weather/WeatherServices.h"

namespace zephyrix {

namespace {

void describe(QCommandLineParser& parser) {
    parser.addOption({QStringLiteral("port"), {}, QStringLiteral("N")});
    parser.addOption({QStringLiteral("scenario"), {}, QStringLiteral("NAME")});
    parser.addOption({QStringLiteral("source"), {}, QStringLiteral("NAME")});
    parser.addOption({QStringLiteral("contact"), {}, QStringLiteral("ADDRESS")});
    parser.addOption({QStringLiteral("source-address"), {}, QStringLiteral("NAME=URL")});
    parser.addOption({QStringLiteral("latitude"), {}, QStringLiteral("DEGREES")});
    parser.addOption({QStringLiteral("longitude"), {}, QStringLiteral("DEGREES")});
    parser.addOption({QStringLiteral("zone"), {}, QStringLiteral("NAME")});
    parser.addOption(QCommandLineOption(QStringLiteral("end-with-input")));
    parser.addOption(QCommandLineOption(QStringLiteral("help")));
    parser.addOption(QCommandLineOption(QStringLiteral("version")));
}

QString latin1(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

int portFrom(const QString& text) {
    bool isNumber = false;
    const int port = text.toInt(&isNumber);
    if (!isNumber || port < 0 || port > 65535)
        throw BadOption(QStringLiteral("--port: \"%1\" is no number from 0 to 65535").arg(text));
    return port;
}

const Scenario* scenarioFrom(const QString& name) {
    if (const Scenario* const scenario = scenarioNamed(name.toStdString()))
        return scenario;
    QStringList names;
    for (const Scenario& scenario : scenarios())
        names << latin1(scenario.name);
    throw BadOption(QStringLiteral("--scenario: there is no \"%1\"; there are: %2")
                        .arg(name, names.join(QLatin1String(", "))));
}

double degreesFrom(const QCommandLineParser& parser, const QString& option, double most) {
    bool isNumber = false;
    const double degrees = parser.value(option).toDouble(&isNumber);
    if (!isNumber || !(std::fabs(degrees) <= most))
        throw BadOption(QStringLiteral("--%1: \"%2\" is no number of degrees from -%3 to %3")
                            .arg(option, parser.value(option))
                            .arg(most));
    return degrees;
}

std::optional<Place> placeFrom(const QCommandLineParser& parser) {
    const QString latitude = QStringLiteral("latitude");
    const QString longitude = QStringLiteral("longitude");
    const QString zone = QStringLiteral("zone");
    if (!parser.isSet(latitude) && !parser.isSet(longitude) && !parser.isSet(zone))
        return std::nullopt;
    if (!parser.isSet(latitude) || !parser.isSet(longitude))
        throw BadOption(QStringLiteral("a place needs both --latitude and --longitude"));
    const double north = degreesFrom(parser, latitude, 90.0);
    const double east = degreesFrom(parser, longitude, 180.0);
    if (!parser.isSet(zone))
        return Place{1, north, east, zoneOfLongitude(east)};
    const QTimeZone named = timeZoneWithName(parser.value(zone));
    if (!named.isValid())
        throw BadOption(
            QStringLiteral("--zone: \"%1\" is no zone of the system").arg(parser.value(zone)));
    return Place{1, north, east, named};
}

/// "open-meteo=http://127.0.0.1:8080/". What is asked says where the user lives, so it goes in the
/// clear only within this machine.
std::pair<QString, QUrl> sourceAddressFrom(const QString& text) {
    const QString name = text.section(QLatin1Char('='), 0, 0);
    const QUrl address(text.section(QLatin1Char('='), 1), QUrl::StrictMode);
    const bool isSafe = address.scheme() == QLatin1String("https") ||
                        (address.scheme() == QLatin1String("http") &&
                         (QHostAddress(address.host()).isLoopback() ||
                          address.host() == QLatin1String("localhost")));
    if (weatherServiceNamed(name) == nullptr)
        throw BadOption(QStringLiteral("--source-address: there is no service \"%1\"").arg(name));
    if (!address.isValid() || address.host().isEmpty() || !isSafe ||
        !address.path().endsWith(QLatin1Char('/')))
        throw BadOption(QStringLiteral("--source-address: \"%1\" is no https address (or http of "
                                       "this machine) that ends with \"/\"")
                            .arg(text));
    return {name, address};
}

/// What the command line says, else what the settings say, else nothing.
QString chosen(const QCommandLineParser& parser, const QString& option, const QString& setting) {
    if (parser.isSet(option))
        return parser.value(option);
    const auto shared = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    return shared ? shared->object(setting).toString() : QString();
}

std::optional<BridgeSettings> bridgeFrom(const QCommandLineParser& parser) {
    const QString demonstration = QStringLiteral("demo");
    const bool hasScenario = parser.isSet(QStringLiteral("scenario"));
    const bool hasSource = parser.isSet(QStringLiteral("source"));
    if (hasScenario && !hasSource)
        return std::nullopt;
    const QString source =
        chosen(parser, QStringLiteral("source"), QStringLiteral("weatherSource"));
    if (source == demonstration || (source.isEmpty() && !hasSource))
        return std::nullopt;
    if (hasScenario)
        throw BadOption(QStringLiteral("--scenario is for demonstration weather only"));
    BridgeSettings settings{
        .source = source,
        .contact = chosen(parser, QStringLiteral("contact"), QStringLiteral("weatherContact"))};
    for (const QString& text : parser.values(QStringLiteral("source-address")))
        settings.addresses.insert(sourceAddressFrom(text));
    return settings;
}

}  // namespace

FeedOptions FeedOptions::from(const QStringList& arguments) {
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QStringList(QString()) + arguments))
        throw BadOption(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        throw BadOption(QStringLiteral("what does \"%1\" mean?")
                            .arg(parser.positionalArguments().constFirst()));
    FeedOptions options;
    options.help = parser.isSet(QStringLiteral("help"));
    options.version = parser.isSet(QStringLiteral("version"));
    options.endWithInput = parser.isSet(QStringLiteral("end-with-input"));
    if (parser.isSet(QStringLiteral("port")))
        options.port = portFrom(parser.value(QStringLiteral("port")));
    options.scenario = parser.isSet(QStringLiteral("scenario"))
                           ? scenarioFrom(parser.value(QStringLiteral("scenario")))
                           : &scenarios().front();
    options.everyPlace = placeFrom(parser);
    if (!options.help && !options.version)
        options.bridge = bridgeFrom(parser);
    return options;
}

QString FeedOptions::helpText() {
    QString text = QStringLiteral(
        "Usage: zephyrix-feedd [OPTIONS]\n\n"
        "A feed server for the weather panel, on this machine only, with the weather of a public\n"
        "service or demonstration weather.\n\n"
        "Options:\n"
        "  --port N             the port, 0 (any free one) unless given\n"
        "  --source NAME        who is asked for the weather: auto, open-meteo, met-norway,\n"
        "                       bright-sky; or demo, invented weather. Unless given, what the\n"
        "                       setting \"weatherSource\" says, else demo\n"
        "  --contact ADDRESS    e-mail or web address of who runs this, told to the services;\n"
        "                       met-norway answers nobody without one\n"
        "  --source-address NAME=URL\n"
        "                       another address of a service, for trying out\n"
        "  --scenario NAME      the kind of demonstration weather, see below\n"
        "  --latitude DEGREES   with --longitude: one place, north and east positive, for every "
        "id\n"
        "  --longitude DEGREES\n"
        "  --zone NAME          its time zone, such as Asia/Tokyo\n"
        "  --end-with-input     end when standard input ends, as it does with the starting "
        "program\n"
        "  --help, --version\n\n"
        "The first line of standard output tells the address:\n"
        "  listening on http://127.0.0.1:PORT/\n\n"
        "Scenarios:\n");
    for (const Scenario& scenario : scenarios())
        text += QStringLiteral("  %1 %2\n")
                    .arg(latin1(scenario.name), -20)
                    .arg(latin1(scenario.summary));
    return text;
}

}  // namespace zephyrix
