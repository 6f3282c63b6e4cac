#include "ArrowSwing.h"

#include <array>
#include <cmath>
#include <utility>

#include <QEasingCurve>

namespace zephyrix {

namespace {

struct StageRow {
    ArrowSwing::Stage stage;
    int legDuration;   // milliseconds
    int legs;          // odd: it ends where it was heading
    double overshoot;  // degrees beyond the target
    ArrowSwing::Stage next;
};

// Five and a half repetitions of "there and back" are eleven legs.
constexpr std::array stageTable = {
    StageRow{ArrowSwing::Stage::Overshoot, 250, 1, 5.0, ArrowSwing::Stage::Swing},
    StageRow{ArrowSwing::Stage::Swing, 2000, 11, -5.0, ArrowSwing::Stage::Settle},
    StageRow{ArrowSwing::Stage::Settle, 1000, 1, 0.0, ArrowSwing::Stage::Rest},
};

const StageRow& rowOf(ArrowSwing::Stage stage) {
    return stageTable.at(static_cast<std::size_t>(stage) - 1);
}

}  // namespace

ArrowSwing::ArrowSwing(Turn turn, QObject* parent) : QObject(parent), turn_(std::move(turn)) {
    connect(&clock_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& legs) { turn_(angleAt(legs.toDouble())); });
    connect(&clock_, &QVariantAnimation::finished, this, &ArrowSwing::startNextStage);
}

void ArrowSwing::start(double from, double target) {
    interrupt();
    target_ = target;
    startStage(Stage::Overshoot, from);
}

void ArrowSwing::interrupt() {
    const Stage interrupted = std::exchange(stage_, Stage::Rest);
    clock_.stop();
    if (interrupted == Stage::Overshoot)
        turn_(target_);
}

void ArrowSwing::startStage(Stage stage, double from) {
    const StageRow& row = rowOf(stage);
    stage_ = stage;
    from_ = from;
    to_ = target_ + row.overshoot;
    clock_.setStartValue(0.0);
    clock_.setEndValue(static_cast<double>(row.legs));
    clock_.setDuration(row.legs * row.legDuration);
    clock_.start();
}

void ArrowSwing::startNextStage() {
    if (stage_ == Stage::Rest)
        return;
    const Stage next = rowOf(stage_).next;
    if (next == Stage::Rest)
        stage_ = Stage::Rest;
    else
        startStage(next, to_);
}

double ArrowSwing::angleAt(double legs) const {
    static const QEasingCurve ease(QEasingCurve::InOutQuad);
    const double done = std::floor(legs);
    const double share = ease.valueForProgress(legs - done);
    const bool outward = std::fmod(done, 2.0) == 0.0;
    return from_ + (to_ - from_) * (outward ? share : 1.0 - share);
}

}  // namespace zephyrix
