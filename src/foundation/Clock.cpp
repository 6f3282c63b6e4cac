#include "Clock.h"

#include <chrono>
#include <utility>

namespace zephyrix {

namespace {

std::function<Instant()>& replacement() {
    static std::function<Instant()> source;
    return source;
}

Instant systemNow() {
    const std::chrono::duration<double> sinceEpoch =
        std::chrono::system_clock::now().time_since_epoch();
    return Instant::fromSecondsSince1970(sinceEpoch.count());
}

}  // namespace

Instant Clock::now() {
    return replacement() ? replacement()() : systemNow();
}

void Clock::replaceSource(std::function<Instant()> source) {
    replacement() = std::move(source);
}

ReplacedClock::ReplacedClock(std::function<Instant()> source) {
    Clock::replaceSource(std::move(source));
}

ReplacedClock::~ReplacedClock() {
    Clock::replaceSource({});
}

}  // namespace zephyrix
