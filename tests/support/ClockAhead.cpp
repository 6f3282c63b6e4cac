// Linked with a program's own main(): the program as it is, but for its clock, which is as many
// seconds ahead of the system's as TEST_CLOCK_AHEAD says. So whole programs can be tested in any
// season.
#include <chrono>

#include <QByteArray>

#include "foundation/Clock.h"

namespace {

using namespace zephyrix;

const std::chrono::duration<double> ahead(qgetenv("TEST_CLOCK_AHEAD").toDouble());

const ReplacedClock clockAhead([] {
    const std::chrono::duration<double> now =
        std::chrono::system_clock::now().time_since_epoch() + ahead;
    return Instant::fromSecondsSince1970(now.count());
});

}  // namespace
