#pragma once

#include <cstdint>
#include <optional>

#include <QString>
#include <QVariant>

namespace zephyrix {

/// A boxed number that remembers whether it was made from an integer, a float or a double.
///
/// Like any box it has an identity: copies are the same object, two boxes made separately are not,
/// even when their values are equal (see isSameObject()).
///
///     Number(3).integerValue()        // 3
///     Number(-2.7).integerValue()     // -2: truncated toward zero
///     Number(1e300).integerValue()    // the largest integer: saturated
class Number {
  public:
    enum class Kind : std::uint8_t { Integer, Float, Double };

    explicit Number(int value);
    explicit Number(long value);
    explicit Number(long long value);
    explicit Number(float value);
    explicit Number(double value);

    /// The number in a variant; nothing for any other type. A boolean is no number.
    [[nodiscard]] static std::optional<Number> fromVariant(const QVariant& value);
    [[nodiscard]] QVariant toVariant() const;

    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    /// Truncated toward zero, saturated at the limits; 0 for not-a-number.
    [[nodiscard]] std::int64_t integerValue() const noexcept;
    [[nodiscard]] double doubleValue() const noexcept;
    [[nodiscard]] float floatValue() const noexcept;
    /// False only for zero.
    [[nodiscard]] bool boolValue() const noexcept;
    /// Plain decimal text: "12345", "52.53"; the shortest that reads back as the same value. With
    /// an exponent only below 0.0001 and from 10^17 on.
    [[nodiscard]] QString text() const;

    [[nodiscard]] bool isSameObject(const Number& other) const noexcept {
        return identity_ == other.identity_;
    }
    /// Equal by value, whatever the kinds: Number(1) == Number(1.0).
    friend bool operator==(const Number& a, const Number& b) noexcept;

  private:
    Number(Kind kind, std::int64_t integer, double real);

    std::int64_t integer_;  // the value of the kind Integer
    double real_;           // the value of the kinds Float and Double
    std::uint64_t identity_;
    Kind kind_;
};

/// The integer value of anything a dictionary may hold: a number's, 0 or 1 for a boolean, the
/// leading integer of a text, and 0 for everything else, also for nothing.
[[nodiscard]] std::int64_t integerValueOf(const QVariant& value);

/// The same for the double value: the leading decimal number of a text, 0.0 for everything else.
[[nodiscard]] double doubleValueOf(const QVariant& value);

}  // namespace zephyrix
