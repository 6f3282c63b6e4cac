#include "UserLocale.h"

#include <initializer_list>

#include <QList>

namespace zephyrix {

namespace {

QByteArray& replacement() {
    static QByteArray name;
    return name;
}

/// The part of a text before the first of a mark; all of it where there is none.
QByteArray before(char mark, const QByteArray& text) {
    return text.split(mark).first();
}

/// ICU's name for a name in POSIX form, "language_COUNTRY.encoding@modifier".
QByteArray icuName(const QByteArray& posixName) {
    QByteArray name = before('.', before('@', posixName));
    if (name.isEmpty() || name == "C" || name == "POSIX")
        return QByteArrayLiteral("en_US_POSIX");
    const qsizetype languageEnd = before('_', name).size();
    if (posixName.endsWith("@latin"))
        name.insert(languageEnd, "_Latn");
    else if (posixName.endsWith("@cyrillic"))
        name.insert(languageEnd, "_Cyrl");
    return name;
}

QByteArray nameForCategory(const char* category) {
    if (!replacement().isEmpty())
        return replacement();
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return icuName(value);
    }
    return icuName({});
}

}  // namespace

QByteArray UserLocale::forNumbers() {
    return nameForCategory("LC_NUMERIC");
}

QByteArray UserLocale::forDates() {
    return nameForCategory("LC_TIME");
}

void UserLocale::replace(const QByteArray& name) {
    replacement() = name;
}

ReplacedUserLocale::ReplacedUserLocale(const QByteArray& name) {
    UserLocale::replace(name);
}

ReplacedUserLocale::~ReplacedUserLocale() {
    UserLocale::replace({});
}

}  // namespace zephyrix
