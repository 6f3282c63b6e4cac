// What the build says to a slip in the tables, and that the same tables give the same file.
#include <gtest/gtest.h>

#include "support/CopiedTables.h"

namespace zephyrix {
namespace {

using testing::CopiedTables;

TEST(PlaceCompiler, TheSameTablesGiveTheSameBytesWhichAreThoseOfTheBuild) {
    const CopiedTables tables(QStringLiteral("places"));
    const testing::Outcome outcome = tables.compile();
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    const QByteArray built =
        testing::contentOf(QStringLiteral(PROGRAM_DIR "/../share/zephyrix/places.sqlite"));
    EXPECT_FALSE(built.isEmpty());
    EXPECT_TRUE(tables.database() == built);  // eight megabytes are not to be printed
}

TEST(PlaceCompiler, EverySlipIsToldWithItsFileAllAtOnce) {
    CopiedTables(QStringLiteral("places")).expectAllTold("places/slips.tsv");
}

TEST(PlaceCompiler, AListThatLostMostOfItsPlacesIsRefused) {
    const CopiedTables tables(QStringLiteral("places"));
    QFile table(tables.path(QStringLiteral("places.tsv")));
    ASSERT_TRUE(table.resize(table.size() / 2));
    EXPECT_TRUE(tables.compile().err.contains("fewer than 25000"));
}

}  // namespace
}  // namespace zephyrix
