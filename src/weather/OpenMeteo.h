#pragma once

#include "WeatherService.h"

namespace zephyrix {

/// Open-Meteo: computed weather for any place on earth, without a key, for non-commercial use.
class OpenMeteo : public WeatherService {
  public:
    [[nodiscard]] const ServiceTerms& terms() const override;
    [[nodiscard]] QString requestFor(const Place& place) const override;
    [[nodiscard]] Weather read(const QByteArray& answer, const Place& place,
                               Instant now) const override;
    [[nodiscard]] QString reasonIn(const QByteArray& answer) const override;
};

}  // namespace zephyrix
