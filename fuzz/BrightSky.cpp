// An answer where one of Bright Sky is expected.
#include "weather/BrightSky.h"

#include "Surroundings.h"
#include "WeatherAnswer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zephyrix::fuzz::checkAnswer(zephyrix::BrightSky(), zephyrix::fuzz::bytesOf(data, size));
    return 0;
}
