#include <array>

#include <gtest/gtest.h>

#include "host/PanelPopup.h"

namespace zephyrix {
namespace {

struct Placing {
    QPoint anchor;
    QSize size;
    QPoint expected;
    const char* why;
};

TEST(PanelPopup, LiesAtItsAnchorAndOnTheScreen) {
    // A second monitor on the left, with a bar of 40 points on top.
    const QRect available(-1000, 40, 1000, 760);
    const std::array cases{
        Placing{{-500, 50}, {300, 200}, {-650, 50}, "below a tray at the top"},
        Placing{{-500, 799}, {300, 200}, {-650, 600}, "above a tray at the bottom"},
        Placing{{-1, 40}, {300, 200}, {-300, 40}, "not over the right edge"},
        Placing{{-1000, 40}, {300, 200}, {-1000, 40}, "not over the left edge"},
        Placing{{-500, 10}, {300, 200}, {-650, 40}, "not over the bar"},
        Placing{{-500, 450}, {300, 700}, {-650, 40}, "grown, it does not leave at the top"},
        Placing{{-500, 400}, {1200, 900}, {-1000, 40}, "too big: its beginning is seen"},
    };
    for (const Placing& placing : cases)
        EXPECT_EQ(PanelPopup::placeAt(placing.anchor, placing.size, available),
                  QRect(placing.expected, placing.size))
            << placing.why;
}

}  // namespace
}  // namespace zephyrix
