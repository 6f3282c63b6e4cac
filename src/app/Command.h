#pragma once

#include <stdexcept>

#include <QString>
#include <QStringList>
#include <QTextStream>

namespace zephyrix {

/// How the program `zephyrix` ends.
enum class ExitCode { Success = 0, Failure = 1, Usage = 2 };

/// Raised by a command that does not do what was asked; the text is one line for the person who
/// typed it. A command raises it before it has changed anything.
class CommandError : public std::runtime_error {
  public:
    /// The command line itself is wrong.
    [[nodiscard]] static CommandError usage(const QString& text) { return {ExitCode::Usage, text}; }
    /// The command line is right, but it could not be done.
    [[nodiscard]] static CommandError failure(const QString& text) {
        return {ExitCode::Failure, text};
    }

    [[nodiscard]] ExitCode exitCode() const noexcept { return exitCode_; }
    [[nodiscard]] QString text() const { return QString::fromUtf8(what()); }

  private:
    CommandError(ExitCode exitCode, const QString& text)
        : std::runtime_error(text.toStdString()), exitCode_(exitCode) {}

    ExitCode exitCode_;
};

/// One command of `zephyrix`, called as "zephyrix NAME ARGUMENTS...". To add one, write its run
/// function in a source pair of its own and add a row to the table in CommandTable.cpp.
struct Command {
    const char* name;
    const char* usage;  // its lines in --help, each "  NAME ARGUMENTS    what it does\n"
    /// Writes its answer to `out`; raises CommandError.
    void (*run)(const QStringList& arguments, QTextStream& out);
};

}  // namespace zephyrix
