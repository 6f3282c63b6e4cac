#include "Number.h"

#include <array>
#include <atomic>
#include <charconv>
#include <cmath>
#include <limits>

#include <QLocale>
#include <QMetaType>
#include <QRegularExpression>

namespace zephyrix {

namespace {

std::uint64_t nextIdentity() noexcept {
    static std::atomic<std::uint64_t> last{0};
    return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

std::int64_t saturatedInteger(double value) noexcept {
    constexpr double limit = 9223372036854775808.0;  // 2^63, exact as a double
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

/// The shortest text that reads back as the same value; plain digits for all magnitudes that people
/// write out, an exponent beyond them.
template <typename Real>
QString shortestText(Real value) {
    const double magnitude = std::abs(static_cast<double>(value));
    const bool plain = magnitude == 0.0 || (magnitude >= 1e-4 && magnitude < 1e17);
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   plain ? std::chars_format::fixed : std::chars_format::general)
                         .ptr;
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

/// The longest leading part of a text that the pattern matches, after blanks; empty when there is
/// none.
QString leadingPart(const QString& text, const QRegularExpression& pattern) {
    return pattern.match(text).captured(1);
}

double leadingDouble(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*([-+]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?)"));
    return QLocale::c().toDouble(leadingPart(text, pattern));
}

std::int64_t leadingInteger(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^\\s*([-+]?[0-9]+)"));
    const QString digits = leadingPart(text, pattern);
    bool fits = false;
    const qlonglong value = digits.toLongLong(&fits);
    return fits ? value : saturatedInteger(QLocale::c().toDouble(digits));
}

}  // namespace

Number::Number(Kind kind, std::int64_t integer, double real)
    : integer_(integer), real_(real), identity_(nextIdentity()), kind_(kind) {}

Number::Number(int value) : Number(Kind::Integer, value, 0.0) {}
Number::Number(long value) : Number(Kind::Integer, value, 0.0) {}
Number::Number(long long value) : Number(Kind::Integer, value, 0.0) {}
Number::Number(float value) : Number(Kind::Float, 0, static_cast<double>(value)) {}
Number::Number(double value) : Number(Kind::Double, 0, value) {}

std::optional<Number> Number::fromVariant(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::Long:
        case QMetaType::Short:
        case QMetaType::UShort:
            return Number(value.toLongLong());
        case QMetaType::ULong:
        case QMetaType::ULongLong: {
            const qulonglong wide = value.toULongLong();
            constexpr auto most = std::numeric_limits<std::int64_t>::max();
            return Number(wide > static_cast<qulonglong>(most) ? most
                                                               : static_cast<std::int64_t>(wide));
        }
        case QMetaType::Float:
            return Number(value.toFloat());
        case QMetaType::Double:
            return Number(value.toDouble());
        default:
            return std::nullopt;
    }
}

QVariant Number::toVariant() const {
    switch (kind_) {
        case Kind::Integer:
            return QVariant::fromValue(static_cast<qlonglong>(integer_));
        case Kind::Float:
            return floatValue();
        case Kind::Double:
            break;
    }
    return real_;
}

std::int64_t Number::integerValue() const noexcept {
    return kind_ == Kind::Integer ? integer_ : saturatedInteger(real_);
}

double Number::doubleValue() const noexcept {
    return kind_ == Kind::Integer ? static_cast<double>(integer_) : real_;
}

float Number::floatValue() const noexcept {
    return static_cast<float>(doubleValue());
}

bool Number::boolValue() const noexcept {
    return kind_ == Kind::Integer ? integer_ != 0 : real_ != 0.0;
}

QString Number::text() const {
    switch (kind_) {
        case Kind::Integer:
            return QString::number(integer_);
        case Kind::Float:
            return shortestText(floatValue());
        case Kind::Double:
            break;
    }
    return shortestText(real_);
}

bool operator==(const Number& a, const Number& b) noexcept {
    if (a.kind_ == Number::Kind::Integer && b.kind_ == Number::Kind::Integer)
        return a.integer_ == b.integer_;
    return a.doubleValue() == b.doubleValue();
}

std::int64_t integerValueOf(const QVariant& value) {
    if (const auto number = Number::fromVariant(value))
        return number->integerValue();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? 1 : 0;
    if (value.typeId() == QMetaType::QString)
        return leadingInteger(value.toString());
    return 0;
}

double doubleValueOf(const QVariant& value) {
    if (const auto number = Number::fromVariant(value))
        return number->doubleValue();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? 1.0 : 0.0;
    if (value.typeId() == QMetaType::QString)
        return leadingDouble(value.toString());
    return 0.0;
}

}  // namespace zephyrix
