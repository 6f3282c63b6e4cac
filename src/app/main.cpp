#include <cstdio>
#include <unistd.h>

#include <QApplication>
#include <QTextStream>

#include "CommandLine.h"
#include "OpenAddress.h"
#include "SettingsWindow.h"

namespace {

using namespace zephyrix;

void nameProgram() {
    QCoreApplication::setApplicationName(QStringLiteral("zephyrix"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHYRIX_VERSION));
}

/// A desktop that hands an address over has nobody who would read an answer.
bool isOpenedByDesktop(int argc, char** argv) {
    const bool hasDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return argc == 2 && isAddress(QString::fromLocal8Bit(argv[1])) && hasDisplay &&
           ::isatty(STDIN_FILENO) == 0 && ::isatty(STDOUT_FILENO) == 0;
}

int showWindow(int argc, char** argv, QTextStream& err) {
    try {
        checkAddress(QString::fromLocal8Bit(argv[1]));
        const QApplication application(argc, argv);
        nameProgram();
        QApplication::setDesktopFileName(QStringLiteral("zephyrix"));
        SettingsWindow window;
        window.setWindowIcon(QIcon::fromTheme(QStringLiteral("zephyrix")));
        window.show();
        return QApplication::exec();
    } catch (const CommandError& error) {
        err << "zephyrix: " << error.text() << '\n';
        return static_cast<int>(error.exitCode());
    }
}

}  // namespace

int main(int argc, char** argv) {
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (isOpenedByDesktop(argc, argv))
        return showWindow(argc, argv, err);
    const QCoreApplication application(argc, argv);
    nameProgram();
    return static_cast<int>(runCommandLine(QCoreApplication::arguments().mid(1), out, err));
}
