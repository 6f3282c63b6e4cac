#pragma once

#include <cstdint>
#include <functional>

#include <QObject>
#include <QVariantAnimation>

namespace zephyrix {

/// The motion of an arrow that turns to a new direction: past it, then to and fro about it until it
/// rests.
///
///     stage        from        to           time
///     Overshoot    where it is target + 5   0.25 s
///     Swing        target + 5  target - 5   2 s a leg: there and back five times, and there once
///     more Settle       target - 5  target       1 s
///
/// Each leg eases in and out. An interruption during the overshoot puts the arrow on its target at
/// once; during the other stages it leaves it where it is.
class ArrowSwing : public QObject {
    Q_OBJECT

  public:
    enum class Stage : std::uint8_t { Rest, Overshoot, Swing, Settle };
    using Turn = std::function<void(double degrees)>;

    /// `turn` is called with each new angle.
    explicit ArrowSwing(Turn turn, QObject* parent = nullptr);

    /// Interrupts a swing that is under way. Angles in degrees.
    void start(double from, double target);
    void interrupt();

    [[nodiscard]] Stage stage() const noexcept { return stage_; }
    /// The clock of the present stage, in milliseconds; a test may pause it and set its time.
    [[nodiscard]] QVariantAnimation& clock() noexcept { return clock_; }

  private:
    void startStage(Stage stage, double from);
    void startNextStage();
    [[nodiscard]] double angleAt(double legs) const;

    Turn turn_;
    QVariantAnimation clock_;  // its value counts legs
    Stage stage_ = Stage::Rest;
    double from_ = 0.0;
    double to_ = 0.0;
    double target_ = 0.0;
};

}  // namespace zephyrix
