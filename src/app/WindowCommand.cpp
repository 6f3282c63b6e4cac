#include "WindowCommand.h"

#include <unistd.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QPalette>

#include "ControlStyle.h"
#include "OpenAddress.h"
#include "SettingsWindow.h"

namespace zephyrix {

namespace {

constexpr double largestScale = 8.0;
const QColor darkButton(44, 51, 66);
const QColor darkWindow(30, 36, 48);
const QColor darkBase(40, 47, 61);
const QColor lightButton(232, 235, 240);
const QColor lightWindow(244, 246, 250);

struct WindowOptions {
    QString snapshot;  // the picture file to write; empty for a window
    QString scale;     // pixels a point, a number; empty for the screen's
    QString scheme;    // "light", "dark", or empty for the desktop's
};

WindowOptions optionsFrom(const QStringList& arguments) {
    if (const QString first = arguments.value(0); isAddress(first)) {
        checkAddress(first);
        return {};
    }
    QCommandLineParser parser;
    for (const char* option : {"snapshot", "scale", "scheme"})
        parser.addOption({QString::fromLatin1(option), {}, QStringLiteral("value")});
    if (!parser.parse(arguments))  // whose first is the command, where a program's name would be
        throw CommandError::usage(parser.errorText());
    for (const QString& argument : parser.positionalArguments())
        checkAddress(argument);
    WindowOptions options{.snapshot = parser.value(QStringLiteral("snapshot")),
                          .scale = parser.value(QStringLiteral("scale")),
                          .scheme = parser.value(QStringLiteral("scheme"))};
    const double scale = options.scale.toDouble();
    if (!options.scale.isEmpty() && !(scale > 0.0 && scale <= largestScale))
        throw CommandError::usage(
            QStringLiteral("--scale: \"%1\" is no number above 0 and up to 8").arg(options.scale));
    if (!options.scheme.isEmpty() && options.scheme != QLatin1String("light") &&
        options.scheme != QLatin1String("dark"))
        throw CommandError::usage(QStringLiteral("--scheme is light or dark"));
    return options;
}

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// Whether Qt was told where to draw.
bool hasPlatform() {
    return hasDisplay() || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void choosePalette(const QString& scheme) {
    if (scheme == QLatin1String("dark")) {
        QPalette dark(darkButton, darkWindow);
        dark.setColor(QPalette::Base, darkBase);  // which would be black
        QApplication::setPalette(dark);
    } else if (scheme == QLatin1String("light")) {
        QApplication::setPalette(QPalette(lightButton, lightWindow));
    }
}

int showUntilClosed() {
    SettingsWindow window;
    window.setWindowIcon(QIcon::fromTheme(QStringLiteral("zephyrix")));
    window.show();
    return QApplication::exec();
}

int writePicture(const QString& file) {
    SettingsWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(window.wholeSize());
    window.show();
    QApplication::sendPostedEvents();  // with the last of which everything has its place
    if (!window.grab().save(file, "png"))
        throw CommandError::failure(QStringLiteral("%1 cannot be written").arg(file));
    return 0;
}

}  // namespace

bool wantsWindow(const QStringList& arguments) {
    if (arguments.contains(QLatin1String("--help")))
        return false;
    if (arguments.value(0) == QLatin1String("window"))
        return hasPlatform() || arguments.contains(QLatin1String("--snapshot"));
    return arguments.size() == 1 && isAddress(arguments.first()) && hasDisplay() &&
           ::isatty(STDIN_FILENO) == 0 && ::isatty(STDOUT_FILENO) == 0;
}

int runWindow(int argc, char** argv, QTextStream& err) {
    try {
        QStringList arguments;
        for (int i = 1; i < argc; ++i)
            arguments << QString::fromLocal8Bit(argv[i]);
        const WindowOptions options = optionsFrom(arguments);
        if (!options.scale.isEmpty())
            qputenv("QT_SCALE_FACTOR", options.scale.toLatin1());
        if (!hasPlatform())
            qputenv("QT_QPA_PLATFORM", "offscreen");
        const QApplication application(argc, argv);
        QApplication::setDesktopFileName(QStringLiteral("zephyrix"));
        ControlStyle::useWhereNoneIsChosen();
        choosePalette(options.scheme);
        return options.snapshot.isEmpty() ? showUntilClosed() : writePicture(options.snapshot);
    } catch (const CommandError& error) {
        err << "zephyrix: " << error.text() << '\n';
        return static_cast<int>(error.exitCode());
    }
}

const Command windowCommand = {
    "window",
    "  window [--snapshot FILE.png] [--scale PIXELS] [--scheme light|dark]\n"
    "                                all of this in a window, or a picture of it\n",
    [](const QStringList& /*arguments*/, QTextStream& /*out*/) {
        throw CommandError::failure(QStringLiteral("there is no display for a window"));
    }};

}  // namespace zephyrix
