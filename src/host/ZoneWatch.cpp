#include "ZoneWatch.h"

#include <array>
#include <cstdint>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace zephyrix {

ZoneWatch::ZoneWatch(QByteArray file)
    : DescriptorWatch(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK), QStringLiteral("the time zone")),
      file_(std::move(file)) {
    watch();
}

// The link itself, not where it leads. A link that is renamed over it takes its last name away,
// which is a change of its attributes. While there is none its folder is watched, for one change.
void ZoneWatch::watch() {
    constexpr std::uint32_t change =
        IN_ATTRIB | IN_CLOSE_WRITE | IN_MOVE_SELF | IN_DELETE_SELF | IN_DONT_FOLLOW;
    constexpr std::uint32_t arrival = IN_CREATE | IN_MOVED_TO | IN_ONESHOT;
    if (::inotify_add_watch(descriptor(), file_.constData(), change) < 0)
        ::inotify_add_watch(descriptor(), file_.left(file_.lastIndexOf('/')).constData(), arrival);
}

void ZoneWatch::ready() {
    alignas(inotify_event) std::array<char, 4096> news{};
    while (::read(descriptor(), news.data(), news.size()) > 0) {
    }
    watch();
    Q_EMIT changed();
}

}  // namespace zephyrix
