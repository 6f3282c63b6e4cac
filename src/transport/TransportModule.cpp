#include "TransportModule.h"

#include <dlfcn.h>
#include <utility>

#include <QCoreApplication>
#include <QFile>

namespace zephyrix {

namespace {

constexpr int unknownNetworkError = 99;  // QNetworkReply::UnknownNetworkError

QString installedFile() {
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/" ZEPHYRIX_MODULES "/zephyrix-network.so");
}

}  // namespace

TransportModule::TransportModule(QString file) : file_(std::move(file)) {}

void TransportModule::get(const QUrl& address, const FeedLimits& limits, Handler handler) {
    const QString fault = transport_ ? QString() : load();
    if (fault.isEmpty())
        return transport_->get(address, limits, std::move(handler));
    QMetaObject::invokeMethod(
        &failures_,
        [fault, handler = std::move(handler)] {
            handler({}, FeedError{FeedError::transportDomain, unknownNetworkError,
                                  QStringLiteral("The network cannot be used: ") + fault});
        },
        Qt::QueuedConnection);
}

QString TransportModule::load() {
    const QString file = file_.isEmpty() ? installedFile() : file_;
    // Never unloaded: objects of its Qt may outlive the last request.
    void* const module =
        ::dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    void* const make = module == nullptr ? nullptr : ::dlsym(module, makeFunction);
    if (make == nullptr)
        return QFile::decodeName(::dlerror());
    transport_.reset(reinterpret_cast<Make>(make)(ZEPHYRIX_VERSION));
    return transport_ ? QString() : file + QStringLiteral(" is of another version");
}

}  // namespace zephyrix
