#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <gtest/gtest.h>

namespace zephyrix::testing {

/// How a program ended and what it said.
struct Outcome {
    int exitCode = 0;  // -1 when it was stopped by a signal
    QByteArray out;
    QByteArray err;

    /// What it printed, as JSON.
    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

/// Of a process that has ended.
[[nodiscard]] inline Outcome outcomeOf(QProcess& process) {
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Runs a command line, as a person types it, to its end and without an event loop.
inline Outcome runCommand(const QString& line) {
    QProcess process;
    process.startCommand(line);
    EXPECT_TRUE(process.waitForFinished(120'000)) << line.toStdString();
    return outcomeOf(process);
}

/// The same for a program of this build: "zephyrix place default".
inline Outcome runOurs(const QString& line) {
    return runCommand(QStringLiteral(PROGRAM_DIR "/") + line);
}

}  // namespace zephyrix::testing
