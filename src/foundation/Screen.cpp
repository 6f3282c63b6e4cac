#include "Screen.h"

namespace zephyrix {

namespace {

Screen& mainScreen() noexcept {
    static Screen screen;
    return screen;
}

}  // namespace

const Screen& Screen::main() noexcept {
    return mainScreen();
}

void Screen::setMain(const QRectF& bounds, double scale) noexcept {
    mainScreen().bounds_ = bounds;
    mainScreen().scale_ = scale;
}

}  // namespace zephyrix
