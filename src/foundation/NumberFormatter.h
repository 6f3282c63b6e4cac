#pragma once

#include <memory>

#include <QChar>
#include <QString>

namespace zephyrix {

/// Writes numbers as decimal text in the user's locale: its decimal separator, signs and digits, no
/// grouping separators. Rounds half to even, and it is the shortest decimal text of the number that
/// is rounded: 0.15 with one fraction digit is 0.2, although the stored value lies below.
///
/// Prefix and suffix are written as they are, beside numbers that are not negative; a negative
/// number has the locale's minus sign and neither of them, also when it is rounded to zero
/// ("-0.0").
///
/// The locale is read at the first text. One thread at a time.
class NumberFormatter {
  public:
    /// Whole numbers with at least one integer digit, until told otherwise.
    NumberFormatter();
    ~NumberFormatter();
    NumberFormatter(NumberFormatter&& other) noexcept;
    NumberFormatter& operator=(NumberFormatter&& other) noexcept;

    /// A minimum above the maximum raises the maximum, a maximum below the minimum lowers the
    /// minimum.
    void setMinimumFractionDigits(int digits);
    void setMaximumFractionDigits(int digits);
    void setMinimumIntegerDigits(int digits);

    void setPositivePrefix(QString prefix);
    void setPositiveSuffix(QString suffix);

    /// What fills a text up on the left to the format width; a blank until told otherwise.
    void setPaddingCharacter(QChar character);
    /// The fewest characters of a text; 0, so that nothing is filled up, until told otherwise.
    void setFormatWidth(int characters);

    [[nodiscard]] QString stringFromNumber(double number) const;

  private:
    class Decimal;
    std::unique_ptr<Decimal> decimal_;
    QString positivePrefix_;
    QString positiveSuffix_;
    QChar paddingCharacter_ = u' ';
    int formatWidth_ = 0;
};

}  // namespace zephyrix
