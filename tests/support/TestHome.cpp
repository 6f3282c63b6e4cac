#include "TestHome.h"

#include <QDir>
#include <QTemporaryDir>

namespace zephyrix::testing {

namespace {

const QTemporaryDir& homeDirectory() {
    static const QTemporaryDir directory;
    return directory;
}

}  // namespace

QString testHome() {
    return homeDirectory().path();
}

QString freshFolder() {
    static int count = 0;
    const QString path = testHome() + QStringLiteral("/folder-%1").arg(++count);
    QDir().mkpath(path);
    return path;
}

}  // namespace zephyrix::testing
