#include "SymbolKey.h"

#include <array>
#include <charconv>

#include <QLatin1String>

namespace zephyrix {

namespace {

void appendFixed(QString& text, double number) {
    std::array<char, 320> digits{};  // the largest double has 309 before the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::fixed, 2)
                         .ptr;
    text += QLatin1String(digits.data(), end - digits.data());
}

}  // namespace

QString symbolKey(const QString& name, const QSizeF& size, double scale) {
    QString key;
    key.reserve(name.size() + 28);
    key += name;
    for (const double number : {size.width(), size.height(), scale}) {
        key += QLatin1Char('+');
        appendFixed(key, number);
    }
    return key += QLatin1String(".png");
}

}  // namespace zephyrix
