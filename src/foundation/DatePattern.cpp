#include "DatePattern.h"

#include <array>

#include <QDate>

#include "FatalError.h"

namespace zephyrix {

namespace {

struct NumericField {
    QStringView letters;
    int least;
    int most;
    std::int64_t CalendarFields::*value;
};

constexpr std::array numericFields{
    NumericField{u"yyyy", 1, 9999, &CalendarFields::year},
    NumericField{u"MM", 1, 12, &CalendarFields::month},
    NumericField{u"dd", 1, 31, &CalendarFields::day},
    NumericField{u"HH", 0, 23, &CalendarFields::hour},
    NumericField{u"mm", 0, 59, &CalendarFields::minute},
    NumericField{u"ss", 0, 59, &CalendarFields::second},
};

constexpr QStringView offsetField = u"ZZZZZ";

bool isAsciiLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// Walks along a text; what was read lies behind it.
class TextReader {
  public:
    explicit TextReader(QStringView text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.isEmpty(); }

    bool skip(QChar expected) {
        if (rest_.isEmpty() || rest_.front() != expected)
            return false;
        rest_ = rest_.mid(1);
        return true;
    }

    /// A number of exactly this many digits 0 to 9, from least to most.
    std::optional<int> number(qsizetype digits, int least, int most) {
        if (rest_.size() < digits)
            return std::nullopt;
        int value = 0;
        for (const QChar c : rest_.left(digits)) {
            if (c < u'0' || c > u'9')
                return std::nullopt;
            value = value * 10 + (c.unicode() - u'0');
        }
        rest_ = rest_.mid(digits);
        return value < least || value > most ? std::nullopt : std::optional(value);
    }

    /// "Z", or an offset such as "+02:00", as seconds east of Greenwich.
    std::optional<int> offset() {
        if (skip(u'Z'))
            return 0;
        const int sign = skip(u'+') ? 1 : skip(u'-') ? -1 : 0;
        if (sign == 0)
            return std::nullopt;
        const auto hours = number(2, 0, 23);
        if (!hours || !skip(u':'))
            return std::nullopt;
        const auto minutes = number(2, 0, 59);
        if (!minutes)
            return std::nullopt;
        return sign * (*hours * 3600 + *minutes * 60);
    }

  private:
    QStringView rest_;
};

/// The run of equal letters at the front of a pattern.
QStringView leadingField(QStringView pattern) {
    qsizetype length = 1;
    while (length < pattern.size() && pattern[length] == pattern.front())
        ++length;
    return pattern.left(length);
}

bool readField(QStringView letters, TextReader& reader, DateFields& fields) {
    if (letters == offsetField) {
        fields.offset = reader.offset();
        return fields.offset.has_value();
    }
    for (const NumericField& field : numericFields) {
        if (letters != field.letters)
            continue;
        const auto value = reader.number(letters.size(), field.least, field.most);
        fields.wall.*field.value = value.value_or(0);
        return value.has_value();
    }
    fatalError(QStringLiteral("a date pattern to be read has the field \"%1\"").arg(letters));
}

}  // namespace

std::optional<DateFields> parseDateFields(QStringView pattern, QStringView text) {
    DateFields fields;
    TextReader reader(text);
    bool quoted = false;
    while (!pattern.isEmpty()) {
        const QChar c = pattern.front();
        const bool isField = !quoted && isAsciiLetter(c);
        const QStringView piece = isField ? leadingField(pattern) : pattern.left(1);
        pattern = pattern.mid(piece.size());
        if (c == u'\'')
            quoted = !quoted;
        else if (!(isField ? readField(piece, reader, fields) : reader.skip(c)))
            return std::nullopt;
    }
    const CalendarFields& wall = fields.wall;
    const bool dayExists = QDate::isValid(static_cast<int>(wall.year), static_cast<int>(wall.month),
                                          static_cast<int>(wall.day));
    if (!reader.atEnd() || !dayExists)
        return std::nullopt;
    return fields;
}

}  // namespace zephyrix
