#pragma once

#include <span>

#include <QString>
#include <QStringList>

#include "WeatherService.h"

namespace zephyrix {

/// Every public service there is, in the order in which they are preferred.
[[nodiscard]] std::span<const WeatherService* const> weatherServices();

/// The service of that id; null when there is none.
[[nodiscard]] const WeatherService* weatherServiceNamed(const QString& id);

/// What can be chosen as the source of the weather: "auto", the best of the services for a place;
/// the services by their ids; "demo", demonstration weather.
[[nodiscard]] QStringList weatherSourceNames();

/// Whether a service could reach the user there: an e-mail or web address in plain letters.
[[nodiscard]] bool isContact(const QString& text);

}  // namespace zephyrix
