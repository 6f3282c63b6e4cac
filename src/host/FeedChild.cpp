#include "FeedChild.h"

#include <array>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <utility>

#include <QCoreApplication>
#include <QProcessEnvironment>

#include "foundation/Log.h"

namespace zephyrix {

namespace {

constexpr int endingTime = 1000;  // milliseconds that the server has to end in

// PATH is not among them: the server starts no program. It may ask a weather service, for which it
// keeps answers and may need a proxy or other certificates. The last ones tell a program of a build
// tree with libraries of its own, or with sanitizers, how to run.
constexpr std::array passedOn{
    "HOME",         "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "LANG",
    "LANGUAGE",     "LC_ALL",          "LC_MESSAGES",    "TZ",
    "TZDIR",        "http_proxy",      "https_proxy",    "no_proxy",
    "HTTPS_PROXY",  "NO_PROXY",        "SSL_CERT_FILE",  "SSL_CERT_DIR",
    "ASAN_OPTIONS", "UBSAN_OPTIONS",   "TSAN_OPTIONS",   "LD_LIBRARY_PATH",
};

QProcessEnvironment smallEnvironment() {
    QProcessEnvironment small;
    for (const char* name : passedOn)
        if (qEnvironmentVariableIsSet(name))
            small.insert(QLatin1String(name), qEnvironmentVariable(name));
    return small;
}

/// In the child, between fork and exec.
void keepStandardFilesOnly() {
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

}  // namespace

FeedChild::FeedChild(QString program)
    : program_(program.isEmpty()
                   ? QCoreApplication::applicationDirPath() + QStringLiteral("/zephyrix-feedd")
                   : std::move(program)) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this,
            [this] { ended(QStringLiteral("it does not say its port")); });
}

FeedChild::~FeedChild() {
    if (process_)
        stop();
}

void FeedChild::address(Then then) {
    if (!base_.isEmpty()) {
        then(base_);
        return;
    }
    waiting_.push_back(std::move(then));
    if (!process_)
        start();
}

void FeedChild::start() {
    process_ = std::make_unique<QProcess>();
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->setProcessEnvironment(smallEnvironment());
    process_->setChildProcessModifier(keepStandardFilesOnly);
    process_->setWorkingDirectory(QStringLiteral("/"));
    connect(process_.get(), &QProcess::readyReadStandardOutput, this, &FeedChild::readPort);
    connect(process_.get(), &QProcess::finished, this,
            [this] { ended(QStringLiteral("it has ended")); });
    connect(process_.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(process_->errorString());
    });
    deadline_.start(patience);
    process_->start(program_, {QStringLiteral("--port"), QStringLiteral("0"),
                               QStringLiteral("--end-with-input")});
}

void FeedChild::readPort() {
    heard_ += process_->readAllStandardOutput();
    if (!base_.isEmpty() || !heard_.contains('\n'))
        return;
    const QByteArray line = heard_.left(heard_.indexOf('\n')).trimmed();
    const QByteArray digits = line.mid(line.lastIndexOf(':') + 1).replace('/', "");
    bool isPort = false;
    const ushort port = digits.toUShort(&isPort);
    if (!isPort || port == 0) {
        ended(QStringLiteral("it says no port"));
        return;
    }
    deadline_.stop();
    base_ = QStringLiteral("http://127.0.0.1:%1/").arg(port);
    logLine(QStringLiteral("the feed comes from %1 (%2)").arg(program_, base_));
    answer();
}

void FeedChild::ended(const QString& why) {
    if (!process_)
        return;
    deadline_.stop();
    logLine(QStringLiteral("no feed from %1: %2").arg(program_, why));
    stop();
    process_.release()->deleteLater();  // this may be a call from it
    base_.clear();
    heard_.clear();
    answer();
}

void FeedChild::stop() {
    process_->disconnect(this);
    process_->terminate();
    if (process_->state() != QProcess::NotRunning && !process_->waitForFinished(endingTime))
        process_->kill();
}

void FeedChild::answer() {
    for (const Then& then : std::exchange(waiting_, {}))
        then(base_);
}

}  // namespace zephyrix
