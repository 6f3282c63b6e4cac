#include "NumberFormatter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QStringBuilder>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>

#include "FatalError.h"
#include "UserLocale.h"

namespace zephyrix {

/// The locale's number format, made at the first text; until then its settings only.
class NumberFormatter::Decimal {
  public:
    void setMinimumFractionDigits(int digits) {
        if (digits == minimumFraction_)
            return;
        minimumFraction_ = digits;
        maximumFraction_ = std::max(maximumFraction_, digits);
        apply();
    }

    void setMaximumFractionDigits(int digits) {
        if (digits == maximumFraction_)
            return;
        maximumFraction_ = digits;
        minimumFraction_ = std::min(minimumFraction_, digits);
        apply();
    }

    void setMinimumIntegerDigits(int digits) {
        minimumInteger_ = digits;
        apply();
    }

    /// Valid until the next text.
    QStringView text(double number) {
        if (format_ == nullptr)
            make();
        text_.remove();
        format_->format(number, text_);
        return {text_.getBuffer(), text_.length()};
    }

  private:
    void make() {
        UErrorCode status = U_ZERO_ERROR;
        const icu::DecimalFormatSymbols symbols(icu::Locale(UserLocale::forNumbers().constData()),
                                                status);
        format_ = std::make_unique<icu::DecimalFormat>(u"0", symbols, status);
        if (U_FAILURE(status) != 0)
            fatalError(QStringLiteral("no number format: ") + QLatin1String(u_errorName(status)));
        format_->setGroupingUsed(0);
        format_->setRoundingMode(icu::DecimalFormat::kRoundHalfEven);
        apply();
    }

    void apply() {
        if (format_ == nullptr)
            return;
        format_->setMinimumIntegerDigits(minimumInteger_);
        format_->setMinimumFractionDigits(minimumFraction_);
        format_->setMaximumFractionDigits(maximumFraction_);
    }

    int minimumInteger_ = 1;
    int minimumFraction_ = 0;
    int maximumFraction_ = 0;
    std::unique_ptr<icu::DecimalFormat> format_;
    icu::UnicodeString text_;  // kept for its memory
};

NumberFormatter::NumberFormatter() : decimal_(std::make_unique<Decimal>()) {}
NumberFormatter::~NumberFormatter() = default;
NumberFormatter::NumberFormatter(NumberFormatter&& other) noexcept = default;
NumberFormatter& NumberFormatter::operator=(NumberFormatter&& other) noexcept = default;

void NumberFormatter::setMinimumFractionDigits(int digits) {
    decimal_->setMinimumFractionDigits(digits);
}

void NumberFormatter::setMaximumFractionDigits(int digits) {
    decimal_->setMaximumFractionDigits(digits);
}

void NumberFormatter::setMinimumIntegerDigits(int digits) {
    decimal_->setMinimumIntegerDigits(digits);
}

void NumberFormatter::setPositivePrefix(QString prefix) {
    positivePrefix_ = std::move(prefix);
}

void NumberFormatter::setPositiveSuffix(QString suffix) {
    positiveSuffix_ = std::move(suffix);
}

void NumberFormatter::setPaddingCharacter(QChar character) {
    paddingCharacter_ = character;
}

void NumberFormatter::setFormatWidth(int characters) {
    formatWidth_ = characters;
}

// Prefix and suffix stay outside of the format: changing them inside costs fifty times a number.
QString NumberFormatter::stringFromNumber(double number) const {
    const QStringView digits = decimal_->text(number);
    const QString text =
        std::signbit(number) ? digits.toString() : positivePrefix_ % digits % positiveSuffix_;
    return text.size() < formatWidth_ ? text.rightJustified(formatWidth_, paddingCharacter_) : text;
}

}  // namespace zephyrix
