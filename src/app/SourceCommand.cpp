#include "SourceCommand.h"

#include "SharedSettings.h"
#include "weather/WeatherServices.h"

namespace zephyrix {

namespace {

const QString sourceKey = QStringLiteral("weatherSource");
const QString contactKey = QStringLiteral("weatherContact");

QString chosenSource(const UserDefaults& settings) {
    const QString name = settings.object(sourceKey).toString();
    return name.isEmpty() ? QStringLiteral("demo") : name;
}

void print(const UserDefaults& settings, QTextStream& out) {
    const QString name = chosenSource(settings);
    const QString contact = settings.object(contactKey).toString();
    out << QStringLiteral("source").leftJustified(15) << name << '\n';
    if (const WeatherService* const service = weatherServiceNamed(name))
        out << QStringLiteral("licence").leftJustified(15) << service->terms().licence << '\n';
    if (!contact.isEmpty())
        out << QStringLiteral("contact").leftJustified(15) << contact << '\n';
}

void refuse(const QString& name, const QString& contact) {
    const QStringList names = weatherSourceNames();
    if (!names.contains(name))
        throw CommandError::usage(QStringLiteral("there is no source \"%1\"; there are: %2")
                                      .arg(name, names.join(QLatin1String(", "))));
    if (!contact.isEmpty() && !isContact(contact))
        throw CommandError::usage(
            QStringLiteral("--contact: \"%1\" is no e-mail or web address").arg(contact));
    const WeatherService* const service = weatherServiceNamed(name);
    if (service != nullptr && service->terms().wantsContact && contact.isEmpty())
        throw CommandError::usage(
            QStringLiteral("%1 wants to know who asks: add --contact ADDRESS (e-mail or web)")
                .arg(name));
}

void run(const QStringList& arguments, QTextStream& out) {
    const auto settings = openSharedSettings();
    const bool hasContact = arguments.size() == 3 && arguments[1] == QLatin1String("--contact");
    if (arguments.size() > 1 && !hasContact)
        throw CommandError::usage(QStringLiteral("it takes one source and --contact ADDRESS"));
    if (!arguments.isEmpty()) {
        const QString contact = hasContact ? arguments[2] : settings->object(contactKey).toString();
        refuse(arguments.first(), contact);
        settings->set(sourceKey, arguments.first());
        settings->set(contactKey, contact.isEmpty() ? QVariant() : QVariant(contact));
        save(*settings);
    }
    print(*settings, out);
}

}  // namespace

const Command sourceCommand = {
    "source",
    "  source                        whom the panel asks for the weather\n"
    "  source NAME [--contact ADDRESS]\n"
    "                                chooses: auto, open-meteo, met-norway, bright-sky; demo\n",
    run};

}  // namespace zephyrix
