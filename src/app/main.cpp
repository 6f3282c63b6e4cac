#include <cstdio>

#include <QCoreApplication>
#include <QTextStream>

#include "CommandLine.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zephyrix"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHYRIX_VERSION));
    QTextStream out(stdout);
    QTextStream err(stderr);
    return static_cast<int>(
        zephyrix::runCommandLine(QCoreApplication::arguments().mid(1), out, err));
}
