#include "ChosenPlace.h"

#include <sys/stat.h>

#include <QFile>

#include "PlaceDirectory.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"

namespace zephyrix {

std::optional<ChosenPlace::Stamp> ChosenPlace::Stamp::of(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return Stamp{status.st_dev, status.st_ino, status.st_size,
                 status.st_ctim.tv_sec * std::int64_t{1'000'000'000} + status.st_ctim.tv_nsec};
}

std::optional<Place> ChosenPlace::place() const {
    const std::lock_guard lock(mutex_);
    const auto stamp = Stamp::of(path_);
    if (path_.isEmpty() || stamp != stamp_) {
        stamp_ = stamp;  // of before: what is written meanwhile is read once more
        read();
    }
    return place_;
}

void ChosenPlace::read() const {
    // Opened for the moment: it is of the thread that opens it.
    const auto shared = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    const auto dictionary = shared ? shared->dictionary(QStringLiteral("location")) : std::nullopt;
    place_ = dictionary ? placeOfRecord(LocationResult(*dictionary)) : std::nullopt;
    if (shared)
        path_ = shared->fileName();
}

}  // namespace zephyrix
