#include <cmath>
#include <complex>
#include <cstdlib>
#include <map>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "foundation/Localized.h"
#include "foundation/PluralForm.h"
#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// Those of the tables in the folder; that each one is built in and chosen is checked below.
const QStringList languages = [] {
    QStringList found;
    for (const QString& name : QDir(QStringLiteral(SOURCE_DIR "/resources/translations"))
                                   .entryList({QStringLiteral("Localizable_*.ts")}))
        found << name.mid(12).chopped(3);
    return found;
}();

const QStringList pluralForms{QStringLiteral("one"), QStringLiteral("few"), QStringLiteral("many"),
                              QStringLiteral("other")};

struct StringTable {
    QString language;
    QStringList keys;  // in the file's order
    std::map<QString, QString> texts;
    std::map<QString, std::map<QString, QString>> forms;  // by key and plural form
    QStringList faults;

    [[nodiscard]] QStringList keysWithForms() const {
        QStringList found;
        for (const auto& [key, ofKey] : forms)
            found << key;
        return found;
    }
};

/// Reads a .ts file as a person sees it, without Qt's own compiler of translations.
StringTable readTable(const QString& path) {
    StringTable table;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        table.faults << file.errorString();
    QXmlStreamReader xml(&file);
    QString key;
    QString form;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("TS"))
            table.language = xml.attributes().value(QLatin1String("language")).toString();
        else if (xml.name() == QLatin1String("name") &&
                 xml.readElementText() != QLatin1String("Localizable"))
            table.faults << QStringLiteral("another context");
        else if (xml.name() == QLatin1String("message"))
            form.clear();
        else if (xml.name() == QLatin1String("source"))
            key = xml.readElementText();
        else if (xml.name() == QLatin1String("comment"))
            form = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            if (xml.attributes().hasAttribute(QLatin1String("type")))
                table.faults << QStringLiteral("unfinished: ") + key;
            if (form.isEmpty()) {
                table.keys << key;
                table.texts[key] = xml.readElementText();
            } else if (pluralForms.contains(form)) {
                table.forms[key][form] = xml.readElementText();
            } else {
                table.faults << QStringLiteral("a comment that is no form: ") + key;
            }
        }
    }
    if (xml.hasError())
        table.faults << xml.errorString();
    return table;
}

StringTable tableOf(const QString& language) {
    return readTable(
        QStringLiteral(SOURCE_DIR "/resources/translations/Localizable_%1.ts").arg(language));
}

QStringList matches(const QString& pattern, const QString& text) {
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    return found;
}

TEST(StringTable, EveryLanguageHasEveryKey) {
    const QStringList keys = tableOf(QStringLiteral("en")).keys;
    ASSERT_GE(keys.size(), 50);
    ASSERT_GE(languages.size(), 9);
    for (const QString& language : languages) {
        const StringTable table = tableOf(language);
        EXPECT_EQ(table.language, language);
        EXPECT_EQ(table.keys, keys) << qPrintable(language);
        EXPECT_EQ(table.faults, QStringList()) << qPrintable(language);
        EXPECT_EQ(QStringList(table.keys).removeDuplicates(), 0) << qPrintable(language);
    }
}

TEST(StringTable, EveryTextIsFitForUse) {
    const QString placeholders = QStringLiteral("%[a-z@]");
    // A word of two scripts is a slip of the keyboard that nobody sees.
    const QRegularExpression mixedScripts(
        QStringLiteral("\\p{Cyrillic}[A-Za-z]|[A-Za-z]\\p{Cyrillic}"));
    for (const QString& language : languages) {
        const StringTable table = tableOf(language);
        std::multimap<QString, QString> texts(table.texts.begin(), table.texts.end());
        for (const auto& [key, forms] : table.forms)
            for (const auto& [form, text] : forms)
                texts.emplace(key, text);
        for (const auto& [key, text] : texts) {
            EXPECT_FALSE(text.trimmed().isEmpty()) << qPrintable(language + u' ' + key);
            EXPECT_EQ(matches(placeholders, text), matches(placeholders, key)) << qPrintable(text);
            for (const char* place : {"%1", "%2", "%3"})
                EXPECT_EQ(text.count(QLatin1String(place)), key.count(QLatin1String(place)))
                    << qPrintable(text);
            EXPECT_FALSE(text.contains(mixedScripts)) << qPrintable(text);
        }
    }
    for (const auto& [key, text] : tableOf(QStringLiteral("en")).texts)
        EXPECT_EQ(text, key);
}

// The text without a form is that for 14, and for 100.
TEST(StringTable, HasEachFormThatItsLanguageUses) {
    const QStringList keys = tableOf(QStringLiteral("en")).keysWithForms();
    ASSERT_GE(keys.size(), 14);
    for (const QString& language : languages) {
        const StringTable table = tableOf(language);
        const PluralForm usual = pluralForm(u"14", language);
        for (const QString& shown :
             {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("14"),
              QStringLiteral("100"), QStringLiteral("0.4")}) {
            const PluralForm form = pluralForm(shown, language);
            const QString name = pluralForms.at(static_cast<qsizetype>(form));
            for (const QString& key : keys)
                EXPECT_TRUE(form == usual ||
                            (table.forms.contains(key) && table.forms.at(key).contains(name)))
                    << qPrintable(language + u' ' + name + u' ' + key);
        }
    }
}

/// Where a name points, by its letters alone: "NNE" lies half-way from "N" to "NE".
std::complex<double> vectorOf(const QString& name, const StringTable& table) {
    const QStringList letters{
        table.texts.at(QStringLiteral("N")), table.texts.at(QStringLiteral("E")),
        table.texts.at(QStringLiteral("S")), table.texts.at(QStringLiteral("W"))};
    const qsizetype quarter = letters.indexOf(name.left(1));
    if (quarter < 0)
        return {};
    const std::complex<double> letter = std::polar(1.0, static_cast<double>(quarter) * M_PI_2);
    if (name.size() == 1)
        return letter;
    const std::complex<double> sum = letter + vectorOf(name.mid(1), table);
    return sum / std::abs(sum);
}

TEST(StringTable, SectorNamesPointWhereTheirSectorLies) {
    for (const QString& language : languages) {
        const StringTable table = tableOf(language);
        for (int sector = 0; sector < 16; ++sector) {
            const QString name = table.texts.at(MeteoMapping::windStringForSector(sector));
            const auto expected = std::polar(1.0, sector * M_PI / 8.0);
            EXPECT_LT(std::abs(vectorOf(name, table) - expected), 1e-9)
                << qPrintable(language + u' ' + name);
        }
    }
}

TEST(StringTable, HasEveryKeyThatUnitsAndTextsAskFor) {
    QStringList asked;
    for (const QuantityUnits& quantity : allQuantities)
        for (const Unit& unit : quantity.units)
            asked << unit.text.toString() << unit.spoken.toString();
    for (std::int64_t sector = -2; sector <= 16; ++sector)
        asked << MeteoMapping::windStringForSector(sector);
    for (int index = 0; index <= 15; ++index)
        asked << MeteoMapping::stringForUVIndex(Number(index));
    const QStringList keys = tableOf(QStringLiteral("en")).keys;
    for (const QString& key : asked)
        EXPECT_TRUE(keys.contains(key)) << qPrintable(key);
}

/// While it lives, texts come in this language.
class InLanguage {
  public:
    explicit InLanguage(const char* language) : environment_({{"LANGUAGE", language}}) {
        Bundle::main().forgetStringTable();
    }
    ~InLanguage() { Bundle::main().forgetStringTable(); }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

  private:
    ScopedEnvironment environment_;
};

TEST(StringTable, IsInsideTheProgramForEachLanguage) {
    for (const QString& language : languages) {
        const InLanguage chosen(language.toUtf8().constData());
        for (const auto& [key, text] : tableOf(language).texts)
            EXPECT_EQ(Bundle::main().localizedString(key), text) << qPrintable(language);
    }
}

TEST(StringTable, NumbersBringTheFormOfTheirUnit) {
    forEachLine("meteo/plural_forms.tsv", [](const DataLine& line) {
        const InLanguage chosen(line.utf8(0).constData());
        EXPECT_EQ(localized(u"degrees Celsius", line[1]), line[2]);
    });
    EXPECT_EQ(localized(u"Gusts", u"1"), QStringLiteral("Gusts")) << "a text without forms";
}

TEST(StringTable, OnlyKnownUnitsAreTranslated) {
    const InLanguage russian("ru_RU.UTF-8");
    EXPECT_EQ(MeteoMapping::windUnitForUnit(1), QStringLiteral("уз"));
    EXPECT_EQ(MeteoMapping::windUnitForUnit(5), QStringLiteral("kn"));
    EXPECT_EQ(MeteoMapping::pressureUnitForUnit(0), QStringLiteral("гПа"));
    EXPECT_EQ(MeteoMapping::pressureUnitForUnit(3), QStringLiteral("hPa"));
    EXPECT_EQ(MeteoMapping::stringForUVIndex(Number(16)), QStringLiteral("-"));
    EXPECT_EQ(MeteoMapping::formattedWindString(Number(10), 2), QStringLiteral("19 км/ч"));
}

/// In a process of its own, in which no name has been asked for.
TEST(StringTableDeathTest, SectorNamesStayInTheirFirstLanguage) {
    const auto eastBeforeAndAfter = [] {
        QString names;
        {
            const InLanguage austrian("de_AT");
            names = MeteoMapping::windStringForSector(4) + MeteoMapping::windStringForSector(-2);
        }
        MeteoMapping::finalizeStatements();
        const InLanguage russian("ru");
        names += MeteoMapping::windStringForSector(4) + MeteoMapping::windStringForSector(-2);
        std::exit(names == QStringLiteral("Ouml.Oперем.") ? 0 : 1);
    };
    EXPECT_EXIT(eastBeforeAndAfter(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace zephyrix
