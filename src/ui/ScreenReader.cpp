#include "ScreenReader.h"

#include <QAccessible>

namespace zephyrix {

namespace {

std::optional<bool>& givenRunning() {
    static std::optional<bool> running;
    return running;
}

}  // namespace

bool ScreenReader::isRunning() {
    return givenRunning() ? *givenRunning() : QAccessible::isActive();
}

void ScreenReader::setRunning(std::optional<bool> running) {
    givenRunning() = running;
}

}  // namespace zephyrix
