#include "Daylight.h"

#include "astro/SunCalculations.h"
#include "foundation/NamedException.h"

namespace zephyrix {

bool isDaylight(const Place& place, Instant time) {
    try {
        return SunCalculations().isDayLightAtDate(time, place.longitude, place.latitude,
                                                  place.zone);
    } catch (const NamedException& exception) {
        if (exception.name() != QLatin1String("NullPhenomenon"))
            throw;
        return exception.reason() == QLatin1String("sun");
    }
}

}  // namespace zephyrix
