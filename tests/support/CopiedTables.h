#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

#include "support/DataLines.h"
#include "support/Files.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix::testing {

/// The tables below resources/NAME in a copy that a test may spoil, for tools/compile_NAME.py.
class CopiedTables {
  public:
    explicit CopiedTables(const QString& name) : name_(name) {
        const QDir tables(QStringLiteral(SOURCE_DIR "/resources/") + name);
        for (const QString& file : tables.entryList({QStringLiteral("*.tsv")}, QDir::Files))
            QFile::copy(tables.filePath(file), path(file));
    }

    [[nodiscard]] QString path(const QString& file) const {
        return folder_ + QLatin1Char('/') + file;
    }
    /// Replaces the first occurrence of a text.
    void replace(const QString& file, const QByteArray& text, const QByteArray& other) const {
        QByteArray all = contentOf(path(file));
        const qsizetype at = all.indexOf(text);
        ASSERT_GE(at, 0) << text.toStdString();
        overwrite(path(file), all.replace(at, text.size(), other));
    }
    /// What the compiler says; the database is empty when it writes none.
    [[nodiscard]] Outcome compile() const {
        return runCommand(QStringLiteral("python3 " SOURCE_DIR "/tools/compile_%1.py %2 %3")
                              .arg(name_, folder_, path(QStringLiteral("out.sqlite"))));
    }
    [[nodiscard]] QByteArray database() const {
        return contentOf(path(QStringLiteral("out.sqlite")));
    }
    /// Each slip of a table (file, text, its replacement, part of the complaint) is told, all at
    /// once, and no database is made.
    void expectAllTold(const char* slips) const {
        forEachLine(slips, [this](const DataLine& slip) {
            replace(slip[0] + QStringLiteral(".tsv"), slip.utf8(1), slip.utf8(2));
        });
        const Outcome outcome = compile();
        EXPECT_NE(outcome.exitCode, 0);
        EXPECT_TRUE(database().isEmpty());
        forEachLine(slips, [&](const DataLine& slip) {
            EXPECT_TRUE(outcome.err.contains(slip.utf8(3))) << outcome.err.left(3000).toStdString();
        });
    }

  private:
    QString name_;
    QString folder_ = freshFolder();
};

}  // namespace zephyrix::testing
