#include "PrivateFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zephyrix {

namespace {

constexpr mode_t ownerOnly = 0700;
constexpr mode_t others = 0077;

}  // namespace

bool makePrivateFolder(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    QDir().mkpath(QFileInfo(path).path());
    ::mkdir(name.constData(), ownerOnly);
    const int folder = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    struct stat state {};
    // Where it cannot be closed (a file system without modes), it is used as it is.
    if (::fstat(folder, &state) == 0 && state.st_uid == ::geteuid() &&
        (state.st_mode & others) != 0)
        static_cast<void>(::fchmod(folder, state.st_mode & ownerOnly));
    ::close(folder);
    return ::access(name.constData(), R_OK | X_OK) == 0;
}

}  // namespace zephyrix
