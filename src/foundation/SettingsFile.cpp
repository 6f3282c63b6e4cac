#include "SettingsFile.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

#include <QFile>
#include <QFileInfo>

#include "Log.h"
#include "PropertyList.h"

namespace zephyrix {

namespace {

constexpr mode_t ownerOnly = 0600;
constexpr mode_t others = 0077;

QString reason(int error) {
    return QString::fromStdString(std::generic_category().message(error));
}

class Descriptor {
  public:
    Descriptor(const QString& path, int flags)
        : fd_(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, ownerOnly)) {}
    ~Descriptor() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int get() const { return fd_; }
    [[nodiscard]] bool isOpen() const { return fd_ >= 0; }

  private:
    int fd_;
};

/// A lock that the kernel drops when its holder ends, however it ends.
class Lock {
  public:
    // A pipe in place of the file does not hold the program.
    explicit Lock(const QString& path) : file_(path, O_RDONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK) {
        error_ = file_.isOpen() ? wait() : errno;
    }
    /// 0 when the lock is held.
    [[nodiscard]] int error() const { return error_; }

  private:
    [[nodiscard]] int wait() const {
        using namespace std::chrono;
        const auto deadline = steady_clock::now() + milliseconds(SettingsFile::mostWaiting);
        while (::flock(file_.get(), LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR)
                return errno;
            if (steady_clock::now() >= deadline)
                return EWOULDBLOCK;
            // Short, because a busy writer leaves only short gaps.
            std::this_thread::sleep_for(microseconds(100));
        }
        return 0;
    }

    Descriptor file_;
    int error_;
};

struct RawFile {
    QByteArray bytes;  // null when there is no file, at most one more than may be
    int error = 0;
};

RawFile readRaw(const QString& path) {
    // Without O_NONBLOCK a pipe in place of the file would hold the program.
    const Descriptor file(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file.isOpen())
        return {QByteArray(), errno == ENOENT ? 0 : errno};
    struct stat status {};
    if (::fstat(file.get(), &status) != 0)
        return {QByteArray(), errno};
    if (!S_ISREG(status.st_mode))
        return {QByteArray(), S_ISDIR(status.st_mode) ? EISDIR : EINVAL};
    if (status.st_uid == ::geteuid() && (status.st_mode & others) != 0)
        static_cast<void>(::fchmod(file.get(), ownerOnly));  // as another program wrote it

    RawFile result{QByteArray(""), 0};
    while (result.bytes.size() <= PropertyList::mostBytes) {
        constexpr qsizetype piece = 65536;
        const qsizetype size = result.bytes.size();
        result.bytes.resize(size + piece);
        const ssize_t count = ::read(file.get(), result.bytes.data() + size, piece);
        result.bytes.resize(size + (count > 0 ? count : 0));
        if (count < 0 && errno != EINTR)
            return {QByteArray(), errno};
        if (count == 0)
            break;
    }
    return result;
}

/// 0, or the error of the first call that failed.
int writeRaw(const QString& path, const QByteArray& bytes) {
    const Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK);
    if (!file.isOpen() || ::fchmod(file.get(), ownerOnly) != 0)
        return errno;
    for (qsizetype done = 0; done < bytes.size();) {
        const auto rest = static_cast<std::size_t>(bytes.size() - done);
        const ssize_t count = ::write(file.get(), bytes.constData() + done, rest);
        if (count < 0 && errno != EINTR)
            return errno;
        done += count > 0 ? count : 0;
    }
    return ::fdatasync(file.get()) == 0 ? 0 : errno;
}

/// The file itself where the path is a symbolic link to it, so that the link stays.
QString withoutLinks(const QString& path) {
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

}  // namespace

SettingsFile::SettingsFile(QString path) : path_(std::move(path)) {}

std::optional<SettingsFile::Content> SettingsFile::load() {
    const RawFile raw = readRaw(path_);
    if (raw.error == 0 && raw.bytes.isNull())
        return Content{};
    if (raw.error == 0)
        if (const auto values = PropertyList::read(raw.bytes))
            return Content{*values, raw.bytes, raw.bytes};
    const Lock lock(path_ + QStringLiteral(".lock"));
    return read(lock.error() == 0);
}

std::optional<SettingsFile::Content> SettingsFile::newsSince(const QByteArray& bytes) const {
    const RawFile raw = readRaw(path_);
    if (raw.error != 0 || (raw.bytes == bytes && raw.bytes.isNull() == bytes.isNull()))
        return std::nullopt;
    if (raw.bytes.isNull())
        return Content{};
    const auto values = PropertyList::read(raw.bytes);
    return values ? std::optional(Content{*values, raw.bytes, raw.bytes}) : std::nullopt;
}

std::optional<SettingsFile::Content> SettingsFile::merge(const QVariantMap& changes) {
    const Lock lock(path_ + QStringLiteral(".lock"));
    if (lock.error() != 0) {
        tell(lock.error() == EWOULDBLOCK
                 ? QStringLiteral("is locked by another program: changes are not saved yet")
                 : QStringLiteral("cannot be written (%1): changes are not saved yet")
                       .arg(reason(lock.error())));
        return std::nullopt;
    }
    auto content = read(true);
    if (!content)
        return std::nullopt;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isValid())
            content->values.insert(change.key(), change.value());
        else
            content->values.remove(change.key());
    }
    if (content->values.isEmpty() && content->bytes.isNull())
        return content;
    QString problem;
    const auto bytes = PropertyList::write(content->values, &problem);
    if (!bytes) {
        tell(QStringLiteral("cannot be written (%1): changes are not saved").arg(problem));
        return std::nullopt;
    }
    if (*bytes != content->bytes && !replace(*bytes))
        return std::nullopt;
    content->bytes = *bytes;
    trouble_.clear();
    return content;
}

std::optional<SettingsFile::Content> SettingsFile::read(bool locked) {
    const RawFile raw = readRaw(path_);
    if (raw.error != 0) {
        tell(QStringLiteral("cannot be read (%1): it is kept as it is, changes are not saved")
                 .arg(reason(raw.error)));
        return std::nullopt;
    }
    if (raw.bytes.isNull())
        return Content{};
    QString problem = QStringLiteral("it is empty");
    if (!raw.bytes.isEmpty())
        if (const auto values = PropertyList::read(raw.bytes, &problem))
            return Content{*values, raw.bytes, raw.bytes};
    if (locked && setAside(problem))
        return Content{};
    tell(QStringLiteral("is damaged (%1) and cannot be renamed: it is kept as it is, changes are "
                        "not saved")
             .arg(problem));
    return std::nullopt;
}

bool SettingsFile::setAside(const QString& problem) {
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = path_ + QStringLiteral(".corrupt-%1").arg(number);
    if (!QFile::rename(withoutLinks(path_), aside))
        return false;
    tell(QStringLiteral("is damaged (%1): kept as %2, starting empty").arg(problem, aside));
    return true;
}

bool SettingsFile::replace(const QByteArray& bytes) {
    const QString target = withoutLinks(path_);
    const QString fresh = target + QStringLiteral(".new");
    int error = writeRaw(fresh, bytes);
    const QByteArray from = QFile::encodeName(fresh);
    if (error == 0 && ::rename(from.constData(), QFile::encodeName(target).constData()) != 0)
        error = errno;
    if (error == 0)
        return true;
    ::unlink(from.constData());
    tell(QStringLiteral("cannot be written (%1): changes are not saved yet").arg(reason(error)));
    return false;
}

void SettingsFile::tell(const QString& trouble) {
    if (trouble != trouble_)
        logLine(QStringLiteral("settings file %1 %2").arg(path_, trouble));
    trouble_ = trouble;
}

}  // namespace zephyrix
