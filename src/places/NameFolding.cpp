#include "NameFolding.h"

#include <algorithm>

namespace zephyrix {

namespace {

/// Accents gone, and a gap for what is no letter or digit.
QString withoutAccents(const QString& text) {
    QString plain;
    for (const char32_t letter : text.normalized(QString::NormalizationForm_KD).toUcs4())
        if (QChar::isLetterOrNumber(letter))
            plain += QChar::fromUcs4(letter);
        else if (!QChar::isMark(letter))
            plain += QLatin1Char(' ');
    return plain.toLower().simplified();
}

}  // namespace

NameFolding::NameFolding(QHash<QString, QString> letters) : letters_(std::move(letters)) {
    for (auto entry = letters_.cbegin(); entry != letters_.cend(); ++entry)
        longest_ = std::max(longest_, entry.key().size());
}

std::pair<QString, qsizetype> NameFolding::entryAt(const QString& text, qsizetype at) const {
    for (qsizetype length = std::min(longest_, text.size() - at); length > 0; --length) {
        const auto entry = letters_.constFind(text.mid(at, length));
        if (entry != letters_.cend())
            return {*entry, length};
    }
    return {text.mid(at, 1), 1};
}

QString NameFolding::folded(const QString& text) const {
    const QString lower =
        QLatin1Char(' ') + text.toLower().normalized(QString::NormalizationForm_C);
    QString plain;
    for (qsizetype at = 0; at < lower.size();) {
        const auto [letters, length] = entryAt(lower, at);
        plain += letters;
        at += length;
    }
    return withoutAccents(plain);
}

}  // namespace zephyrix
