// An answer where one of Open-Meteo is expected.
#include "weather/OpenMeteo.h"

#include "Surroundings.h"
#include "WeatherAnswer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zephyrix::fuzz::checkAnswer(zephyrix::OpenMeteo(), zephyrix::fuzz::bytesOf(data, size));
    return 0;
}
