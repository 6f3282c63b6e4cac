#include <memory>

#include <gtest/gtest.h>
#include <unicode/numberformatter.h>
#include <unicode/plurrule.h>

#include "foundation/PluralForm.h"

namespace zephyrix {
namespace {

QString nameOf(PluralForm form) {
    constexpr std::array names{"one", "few", "many", "other"};
    return QLatin1String(names.at(static_cast<std::size_t>(form)));
}

/// ICU's rules for a number that is written with so many decimals.
class IcuRules {
  public:
    explicit IcuRules(const char* language)
        : rules_(icu::PluralRules::forLocale(icu::Locale(language), error_)) {}

    [[nodiscard]] QString formOf(double number, int decimals) {
        const auto formatted = icu::number::NumberFormatter::withLocale(icu::Locale::getRoot())
                                   .precision(icu::number::Precision::fixedFraction(decimals))
                                   .formatDouble(number, error_);
        std::string form;
        rules_->select(formatted, error_).toUTF8String(form);
        return U_SUCCESS(error_) ? QString::fromStdString(form) : QStringLiteral("an error");
    }

  private:
    UErrorCode error_ = U_ZERO_ERROR;
    std::unique_ptr<icu::PluralRules> rules_;
};

TEST(PluralForm, IsThatOfIcuForAllThatThePanelShows) {
    int compared = 0;
    for (const char* language : {"en", "de", "pl", "nl", "fr", "es", "sv", "it", "ru"}) {
        IcuRules icu(language);
        const auto compare = [&](double number, int decimals) {
            const QString shown = QString::number(number, 'f', decimals);
            EXPECT_EQ(nameOf(pluralForm(shown, QLatin1String(language))),
                      icu.formOf(number, decimals))
                << language << ' ' << qPrintable(shown);
            ++compared;
        };
        for (int number = -30; number <= 130; ++number)
            compare(number, 0);
        for (const int number : {200, 201, 211, 1000, 1011, 1013, 1021, 999999})
            compare(number, 0);
        for (int tenths = -25; tenths <= 125; ++tenths)
            compare(tenths / 10.0, 1);
        for (const double inches : {0.00, 0.01, 1.00, 1.01, 2.00, 29.92, 30.21})
            compare(inches, 2);
    }
    EXPECT_EQ(compared, 9 * (161 + 8 + 151 + 7));
}

TEST(PluralForm, LooksAtTheDigitsOnly) {
    const QString russian = QStringLiteral("ru");
    EXPECT_EQ(pluralForm(u"\u221221", russian), PluralForm::One);
    EXPECT_EQ(pluralForm(u"<0,1", russian), PluralForm::Other);
    EXPECT_EQ(pluralForm(u"1,", russian), PluralForm::One) << "nothing behind the separator";
    EXPECT_EQ(pluralForm(u"\u0662\u0661", russian), PluralForm::One) << "other digits";
    EXPECT_EQ(pluralForm(u"-", russian), PluralForm::Many);
    EXPECT_EQ(pluralForm(u"99999999999999999999991", russian), PluralForm::Many) << "no overflow";
    EXPECT_EQ(pluralForm(u"1", QStringLiteral("ja")), PluralForm::Other);
}

}  // namespace
}  // namespace zephyrix
