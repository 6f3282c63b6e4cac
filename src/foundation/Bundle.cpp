#include "Bundle.h"

#include <algorithm>
#include <array>

#include <QFile>
#include <QFileInfo>

#include "PluralForm.h"

namespace zephyrix {

namespace {

QString existing(const QString& path) {
    return QFileInfo::exists(path) ? path : QString();
}

/// The folder of the running program's own file; needs no application object.
QString programFolder() {
    return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
}

constexpr std::array languages{"en", "de", "pl", "nl", "fr", "es", "sv", "it", "ru"};

/// The comment of a text's entry in the table: none, or the form's name in the order of PluralForm.
constexpr std::array<const char*, 5> formComments{nullptr, "one", "few", "many", "other"};

/// "de" for "de_AT.UTF-8" and "DE"; empty for a language without a string table. "C" and "POSIX"
/// are English.
QString languageOf(const QString& locale) {
    const QString ends = QStringLiteral("-_.@");
    const auto end = std::find_if(locale.begin(), locale.end(),
                                  [&](QChar character) { return ends.contains(character); });
    const QString name = locale.left(end - locale.begin()).toLower();
    if (name == QLatin1String("c") || name == QLatin1String("posix"))
        return QStringLiteral("en");
    const bool known = std::any_of(languages.begin(), languages.end(), [&](const char* language) {
        return name == QLatin1String(language);
    });
    return known ? name : QString();
}

/// What the environment asks for, best first.
QStringList wantedLocales() {
    QStringList locales = qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'));
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty())
            return locales << locale;
    }
    return locales;
}

}  // namespace

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

QString Bundle::pathForResource(const QString& name) const {
    if (name.isEmpty() || name == QLatin1String(".") || name.contains(QLatin1String("..")) ||
        name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')))
        return {};
    const QString directory = dataDirectory_.isEmpty()
                                  ? programFolder() + QStringLiteral("/../share/zephyrix")
                                  : dataDirectory_;
    return existing(directory + QLatin1Char('/') + name);
}

void Bundle::setDataDirectory(const QString& directory) {
    dataDirectory_ = directory;
}

// Whatever is asked, a bundle is asked: that some of it lies inside the program is its own matter.
// NOLINTBEGIN(readability-convert-member-functions-to-static)

QString Bundle::pathForImage(const QString& name) const {
    const QString path = QStringLiteral(":/zephyrix/images/") + name;
    return path.endsWith(QLatin1String(".png")) ? existing(path)
                                                : existing(path + QStringLiteral(".png"));
}

std::optional<QByteArray> Bundle::layout(const QString& name) const {
    QFile file(QStringLiteral(":/zephyrix/layouts/%1.ui").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

QStringList Bundle::preferredLocalizations() const {
    QStringList preferred;
    for (const QString& locale : wantedLocales())
        preferred << languageOf(locale);
    preferred << QStringLiteral("en");
    preferred.removeAll(QString());
    preferred.removeDuplicates();
    return preferred;
}

// NOLINTEND(readability-convert-member-functions-to-static)

QString Bundle::localizedString(const QString& key) const {
    return text(key, 0);
}

QString Bundle::localizedString(const QString& key, QStringView shownNumber) const {
    const PluralForm form = pluralForm(shownNumber, stringTable().language);
    return text(key, 1 + static_cast<std::size_t>(form));
}

QString Bundle::text(const QString& key, std::size_t form) const {
    QHash<QString, QString>& texts = textsByKey_.at(form);
    const auto known = texts.constFind(key);
    if (known != texts.cend())
        return *known;
    // The key may be a view of memory that is not ours.
    const QString kept(key.constData(), key.size());
    // The table itself falls back to the entry without a comment.
    const QString text = stringTable().texts.translate("Localizable", key.toUtf8().constData(),
                                                       formComments.at(form));
    return *texts.insert(kept, text.isEmpty() ? kept : text);
}

const Bundle::StringTable& Bundle::stringTable() const {
    if (!stringTable_) {
        stringTable_ = std::make_unique<StringTable>();
        stringTable_->language = preferredLocalizations().first();
        // English needs no table: a table that is not there leaves the keys as they are.
        static_cast<void>(
            stringTable_->texts.load(QStringLiteral(":/zephyrix/translations/Localizable_%1.qm")
                                         .arg(stringTable_->language)));
    }
    return *stringTable_;
}

void Bundle::forgetStringTable() {
    stringTable_.reset();
    textsByKey_ = {};
}

}  // namespace zephyrix
