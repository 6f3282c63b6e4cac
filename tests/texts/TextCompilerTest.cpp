// What the build says to a translator's slip: file, line and what is wrong, and no database.
#include <gtest/gtest.h>

#include "support/CopiedTables.h"

namespace zephyrix {
namespace {

using testing::CopiedTables;

TEST(TextCompiler, EverySlipIsToldWithFileAndLineAllAtOnce) {
    CopiedTables(QStringLiteral("texts")).expectAllTold("texts/slips.tsv");
}

TEST(TextCompiler, ALostTableIsTold) {
    const CopiedTables tables(QStringLiteral("texts"));
    QFile::remove(tables.path(QStringLiteral("sv.tsv")));
    const testing::Outcome outcome = tables.compile();
    EXPECT_NE(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.err.contains("sv.tsv:1: cannot be read"));
}

}  // namespace
}  // namespace zephyrix
