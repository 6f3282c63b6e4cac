// An answer where one of MET Norway is expected.
#include "weather/MetNorway.h"

#include "Surroundings.h"
#include "WeatherAnswer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zephyrix::fuzz::checkAnswer(zephyrix::MetNorway(), zephyrix::fuzz::bytesOf(data, size));
    return 0;
}
