#include "OnlyInstance.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <QFile>
#include <QStandardPaths>

#include "DescriptorWatch.h"
#include "StartSocket.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

/// Of two starts at the same moment, one waits here until the other listens.
class StartTurn {
  public:
    explicit StartTurn(const QString& file)
        : file_(::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                       S_IRUSR | S_IWUSR)) {
        if (file_ >= 0)
            ::flock(file_, LOCK_EX);
    }
    ~StartTurn() {
        if (file_ >= 0)
            ::close(file_);
    }
    StartTurn(const StartTurn&) = delete;
    StartTurn& operator=(const StartTurn&) = delete;

  private:
    int file_;
};

/// A user who is at two displays at once has a panel on each.
QString displayName() {
    QString name = qEnvironmentVariable("WAYLAND_DISPLAY", qEnvironmentVariable("DISPLAY"));
    return name.replace(QLatin1Char('/'), QLatin1Char('_'));
}

bool showOther(const QString& path) {
    const StartSocket::Reply reply = StartSocket::ask(path);
    if (reply == StartSocket::Reply::Silence)
        logLine(QStringLiteral("the panel that runs already does not answer"));
    return reply != StartSocket::Reply::Nobody;
}

}  // namespace

/// Hears the starts to come. Its socket's file goes with it.
class OnlyInstance::Listener : public DescriptorWatch {
  public:
    Listener(int descriptor, QString path, OnlyInstance& instance)
        : DescriptorWatch(descriptor, QStringLiteral("other starts")),
          path_(std::move(path)),
          instance_(instance) {}
    ~Listener() override { QFile::remove(path_); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

  protected:
    void ready() override {
        if (StartSocket::answer(descriptor()))
            Q_EMIT instance_.shownAgain();
    }

  private:
    QString path_;
    OnlyInstance& instance_;
};

OnlyInstance::OnlyInstance(const QString& folder) {
    const QString path =
        QStringLiteral("%1/zephyrix-panel%2")
            .arg(folder.isEmpty()
                     ? QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
                     : folder,
                 displayName());
    const StartTurn turn(path + QStringLiteral(".lock"));
    taken_ = showOther(path);
    if (!taken_)
        listen(path);
}

OnlyInstance::~OnlyInstance() = default;

void OnlyInstance::listen(const QString& path) {
    const int descriptor = StartSocket::listen(path);
    if (descriptor >= 0)
        listener_ = std::make_unique<Listener>(descriptor, path, *this);
    else
        logLine(QStringLiteral("a second start will not find this panel: %1: %2")
                    .arg(path, qt_error_string()));
}

}  // namespace zephyrix
