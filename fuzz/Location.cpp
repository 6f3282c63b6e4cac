// A location dictionary, written as JSON: the place, its zone, and day or night there.
#include <QJsonDocument>
#include <QVariantMap>

#include "Surroundings.h"
#include "foundation/Clock.h"
#include "foundation/NamedException.h"
#include "meteo/MeteoMapping.h"
#include "model/LocationResult.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

void checkDictionary(const LocationResult& place) {
    try {
        const LocationResult again(place.asDict());
        expect(again.asDict() == place.asDict(), "the dictionary form is stable");
        expect(again.isEqual(&place) && place.isEqual(&again), "a place equals its copy");
        expect(again.checkValidity() == place.checkValidity(), "a valid place stays valid");
    } catch (const NamedException& exception) {
        // By rule: coordinates are always there, so only the name can be missing.
        expect(exception.name() == QLatin1String("QKInvalidLocationException") && !place.name(),
               "only a place without name has no dictionary");
    }
}

void checkWeatherText(const LocationResult& place) {
    try {
        static_cast<void>(MeteoMapping::stringForN(Number(4), Number(61), QStringLiteral("en"),
                                                   Clock::now(), place));
    } catch (const NamedException& exception) {
        expect(exception.name() == QLatin1String("NullPhenomenon"),
               "only polar day and night have no text");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QVariant top = QJsonDocument::fromJson(bytesOf(data, size)).toVariant();
    const LocationResult place(top.toMap());
    expect(place.latitude() && place.longitude(), "coordinates are always there");
    checkDictionary(place);
    checkWeatherText(place);
    static_cast<void>(place.description());
    static_cast<void>(place.objTimeZone());
    static_cast<void>(place.distance({.latitude = 52.5, .longitude = 13.4}));
    return 0;
}
