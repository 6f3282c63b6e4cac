#include <cstdio>

#include <QCoreApplication>
#include <QTextStream>

#include "CommandLine.h"
#include "WindowCommand.h"

int main(int argc, char** argv) {
    using namespace zephyrix;
    QTextStream out(stdout);
    QTextStream err(stderr);
    QCoreApplication::setApplicationName(QStringLiteral("zephyrix"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHYRIX_VERSION));
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (wantsWindow(arguments))
        return runWindow(argc, argv, err);
    const QCoreApplication application(argc, argv);
    return static_cast<int>(runCommandLine(arguments, out, err));
}
