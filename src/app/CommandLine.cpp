#include "CommandLine.h"

#include <algorithm>

#include <QCoreApplication>

#include "CommandTable.h"
#include "OpenAddress.h"

namespace zephyrix {

namespace {

constexpr QLatin1String program("zephyrix");

void printHelp(QTextStream& out) {
    out << "Usage: zephyrix COMMAND [ARGUMENTS]\n\n"
           "Sets what the weather panel shows: its place and its units.\n\n"
           "Commands:\n";
    for (const Command& command : commands())
        out << command.usage;
    out << "\nOptions:\n"
           "  --help       this text; after a command, that command's lines\n"
           "  --version    the version\n";
}

const Command& commandNamed(const QString& name) {
    const auto all = commands();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Command& command) {
        return name == QLatin1String(command.name);
    });
    if (found == all.end())
        throw CommandError::usage(QStringLiteral("there is no command \"%1\"").arg(name));
    return *found;
}

void run(const QStringList& arguments, QTextStream& out) {
    if (arguments.isEmpty())
        throw CommandError::usage(QStringLiteral("which command?"));
    const QString& first = arguments.first();
    if (first == QLatin1String("--help"))
        return printHelp(out);
    if (first == QLatin1String("--version")) {
        out << program << ' ' << QCoreApplication::applicationVersion() << '\n';
        return;
    }
    if (isAddress(first) && arguments.size() == 1)
        return openAddress(first, out);
    const Command& command = commandNamed(first);
    if (arguments.contains(QLatin1String("--help")))
        out << command.usage;
    else
        command.run(arguments.mid(1), out);
}

}  // namespace

ExitCode runCommandLine(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    try {
        run(arguments, out);
        return ExitCode::Success;
    } catch (const CommandError& error) {
        err << program << ": " << error.text() << '\n';
        if (error.exitCode() == ExitCode::Usage)
            err << "Try \"zephyrix --help\".\n";
        return error.exitCode();
    }
}

}  // namespace zephyrix
