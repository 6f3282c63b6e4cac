#include "PluralForm.h"

#include <algorithm>
#include <array>

namespace zephyrix {

namespace {

/// What the rules look at, in the letters of Unicode's locale data.
struct Operands {
    std::int64_t i = 0;  // the digits before the separator
    std::int64_t f = 0;  // the digits behind it, as a number
    int v = 0;           // how many they are
};

Operands operandsOf(QStringView shown) {
    constexpr int enough = 9;  // digits; more are no number of the panel
    Operands operands;
    int digits = 0;
    bool behindSeparator = false;
    for (const QChar character : shown) {
        const int digit = character.digitValue();
        if (digit < 0) {
            behindSeparator = digits > 0;
            continue;
        }
        if (++digits > enough)
            break;
        std::int64_t& part = behindSeparator ? operands.f : operands.i;
        part = part * 10 + digit;
        operands.v += behindSeparator ? 1 : 0;
    }
    return operands;
}

PluralForm oneIfExactly(const Operands& number) {
    return number.i == 1 && number.v == 0 ? PluralForm::One : PluralForm::Other;
}

PluralForm oneIfEqual(const Operands& number) {
    return number.i == 1 && number.f == 0 ? PluralForm::One : PluralForm::Other;
}

PluralForm oneBelowTwo(const Operands& number) {
    return number.i < 2 ? PluralForm::One : PluralForm::Other;
}

bool isFew(const Operands& number) {
    const std::int64_t units = number.i % 10;
    const std::int64_t tens = number.i / 10 % 10;
    return units >= 2 && units <= 4 && tens != 1;
}

PluralForm polish(const Operands& number) {
    if (number.v != 0)
        return PluralForm::Other;
    if (number.i == 1)
        return PluralForm::One;
    return isFew(number) ? PluralForm::Few : PluralForm::Many;
}

PluralForm russian(const Operands& number) {
    if (number.v != 0)
        return PluralForm::Other;
    if (number.i % 10 == 1 && number.i % 100 != 11)
        return PluralForm::One;
    return isFew(number) ? PluralForm::Few : PluralForm::Many;
}

struct Rule {
    QLatin1String language;
    PluralForm (*form)(const Operands& number);
};

constexpr std::array rules{
    Rule{QLatin1String("en"), oneIfExactly}, Rule{QLatin1String("de"), oneIfExactly},
    Rule{QLatin1String("nl"), oneIfExactly}, Rule{QLatin1String("sv"), oneIfExactly},
    Rule{QLatin1String("it"), oneIfExactly}, Rule{QLatin1String("es"), oneIfEqual},
    Rule{QLatin1String("fr"), oneBelowTwo},  Rule{QLatin1String("pl"), polish},
    Rule{QLatin1String("ru"), russian},
};

}  // namespace

PluralForm pluralForm(QStringView shown, const QString& language) {
    const auto* const rule =
        std::ranges::find_if(rules, [&](const Rule& row) { return row.language == language; });
    return rule == rules.end() ? PluralForm::Other : rule->form(operandsOf(shown));
}

}  // namespace zephyrix
