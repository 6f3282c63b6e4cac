#include "Motion.h"

#include <QApplication>
#include <QStyle>

namespace zephyrix {

namespace {

std::optional<bool>& givenReduced() {
    static std::optional<bool> reduced;
    return reduced;
}

}  // namespace

bool Motion::isReduced() {
    if (givenReduced())
        return *givenReduced();
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

void Motion::setReduced(std::optional<bool> reduced) {
    givenReduced() = reduced;
}

}  // namespace zephyrix
