#include "UserLocale.h"

#include <initializer_list>

namespace zephyrix {

namespace {

QByteArray& replacement() {
    static QByteArray name;
    return name;
}

/// ICU's name for a name in POSIX form, "language_COUNTRY.encoding@modifier".
QByteArray icuName(const QByteArray& posixName) {
    const qsizetype at = posixName.indexOf('@');
    const QByteArray modifier = at < 0 ? QByteArray() : posixName.mid(at + 1);
    QByteArray name = posixName.left(at);
    name.truncate(name.indexOf('.') < 0 ? name.size() : name.indexOf('.'));
    if (name.isEmpty() || name == "C" || name == "POSIX")
        return QByteArrayLiteral("en_US_POSIX");
    const QByteArray script = modifier == "latin"      ? QByteArrayLiteral("_Latn")
                              : modifier == "cyrillic" ? QByteArrayLiteral("_Cyrl")
                                                       : QByteArray();
    const qsizetype language = name.indexOf('_');
    return name.insert(language < 0 ? name.size() : language, script);
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
