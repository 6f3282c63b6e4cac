#pragma once

#include <QByteArray>

#include "weather/WeatherService.h"

namespace zephyrix::fuzz {

/// Reads an answer of a weather service for a place in Berlin at 2026-06-01 12:05 UTC, and checks
/// what is promised of what it tells.
void checkAnswer(const WeatherService& service, const QByteArray& answer);

}  // namespace zephyrix::fuzz
