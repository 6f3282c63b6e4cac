#include "Alarm.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <sys/timerfd.h>
#include <unistd.h>

namespace zephyrix {

Alarm::Alarm()
    : DescriptorWatch(::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK),
                      QStringLiteral("the clock")) {}

void Alarm::setFor(Instant moment) {
    constexpr double least = 1.0;     // 0 would mean no moment
    constexpr double most = 253.0e9;  // seconds since 1970: the year 9987
    constexpr double nanoseconds = 1e9;
    const double seconds = std::clamp(moment.secondsSince1970(), least, most);
    itimerspec setting{};
    setting.it_value.tv_sec = static_cast<time_t>(std::floor(seconds));
    setting.it_value.tv_nsec = static_cast<long>((seconds - std::floor(seconds)) * nanoseconds);
    // A jump that nobody has heard of yet is told here; the moment is set all the same.
    if (::timerfd_settime(descriptor(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &setting,
                          nullptr) != 0 &&
        errno == ECANCELED)
        QMetaObject::invokeMethod(this, &Alarm::clockChanged, Qt::QueuedConnection);
}

void Alarm::ready() {
    quint64 expirations = 0;
    if (::read(descriptor(), &expirations, sizeof expirations) == sizeof expirations)
        Q_EMIT due();
    else if (errno == ECANCELED)
        Q_EMIT clockChanged();
}

}  // namespace zephyrix
