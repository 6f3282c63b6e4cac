#include <gtest/gtest.h>

#include "host/PanelPopup.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

TEST(PanelPopup, LiesAtItsAnchorAndOnTheScreen) {
    const QRect available(-1000, 40, 1000, 760);
    testing::forEachLine("host/popups.tsv", [&](const testing::DataLine& line) {
        const auto pair = [&](int column) {
            const QStringList words = line[column].split(QLatin1Char(' '));
            return QPoint(words.value(0).toInt(), words.value(1).toInt());
        };
        const QSize size(pair(1).x(), pair(1).y());
        EXPECT_EQ(PanelPopup::placeAt(pair(0), size, available), QRect(pair(2), size));
    });
}

}  // namespace
}  // namespace zephyrix
