#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using testing::ScopedEnvironment;

TEST(Bundle, TheEnvironmentChoosesTheLanguages) {
    struct Case {
        const char* language;
        const char* all;
        const char* messages;
        const char* lang;
        const char* expected;
    };
    const Case cases[] = {
        {nullptr, nullptr, nullptr, "de_AT.UTF-8", "de en"},
        {nullptr, nullptr, "fr_FR@euro", "de_DE", "fr en"},
        {nullptr, "sv_SE", "fr_FR", "de_DE", "sv en"},
        {nullptr, "", "", "ru_RU", "ru en"},     // empty is unset
        {nullptr, "C", nullptr, "de_DE", "en"},  // C is English, not the next variable
        {nullptr, "C.UTF-8", nullptr, "de_DE", "en"},
        {nullptr, nullptr, nullptr, "POSIX", "en"},
        {nullptr, nullptr, nullptr, nullptr, "en"},
        {nullptr, nullptr, nullptr, "tlh_001", "en"},  // no table
        {nullptr, nullptr, nullptr, "deu_DE", "en"},   // no two-letter code
        {"xx:de", nullptr, nullptr, "en_US", "de en"},
        {"pl:nl_BE:pl_PL:", nullptr, nullptr, "it_IT", "pl nl it en"},
        {"en:de", nullptr, nullptr, "de_DE", "en de"},
        {"pt-BR:es-MX", "C", nullptr, nullptr, "es en"},
    };
    for (const Case& row : cases) {
        const ScopedEnvironment environment({{"LANGUAGE", row.language},
                                             {"LC_ALL", row.all},
                                             {"LC_MESSAGES", row.messages},
                                             {"LANG", row.lang}});
        EXPECT_EQ(Bundle().preferredLocalizations().join(QLatin1Char(' ')),
                  QLatin1String(row.expected));
    }
}

TEST(Bundle, TextsComeFromTheTableOfTheFirstLanguage) {
    Bundle bundle;
    const QString key = QStringLiteral("Wind gusts (test)");
    const QString missing = QStringLiteral("not in any table");
    {
        const ScopedEnvironment german({{"LANGUAGE", "de"}});
        EXPECT_EQ(bundle.localizedString(key), QStringLiteral("Windböen (Prüfung)"));
        EXPECT_EQ(bundle.localizedString(missing), missing);
        EXPECT_EQ(bundle.localizedString({}), QString());
    }
    const ScopedEnvironment english({{"LANGUAGE", "en"}});
    EXPECT_EQ(bundle.localizedString(key), QStringLiteral("Windböen (Prüfung)"))
        << "the table is kept";
    bundle.forgetStringTable();
    EXPECT_EQ(bundle.localizedString(key), key);
}

TEST(Bundle, DataFilesAreFoundByPlainNamesOnly) {
    const QString folder = testing::freshFolder();
    ASSERT_TRUE(QDir(folder).mkpath(QStringLiteral("data/symbols_1.bundle")));
    ASSERT_TRUE(QFile(folder + QStringLiteral("/secret")).open(QIODevice::WriteOnly));
    Bundle bundle;
    bundle.setDataDirectory(folder + QStringLiteral("/data"));
    EXPECT_EQ(bundle.pathForResource(QStringLiteral("symbols_1.bundle")),
              folder + QStringLiteral("/data/symbols_1.bundle"));
    for (const char* name : {"", ".", "..", "../secret", "/etc/passwd", "symbols_1.bundle/.",
                             "symbols_1.bundle/../../secret", "absent"})
        EXPECT_EQ(bundle.pathForResource(QLatin1String(name)), QString()) << name;
}

TEST(Bundle, DataLieBesideTheProgram) {
    const QString share = QStringLiteral(PROGRAM_DIR "/../share/zephyrix");
    ASSERT_TRUE(QDir().mkpath(share));
    QFile file(share + QStringLiteral("/foundation-test.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(QFileInfo(Bundle().pathForResource(QStringLiteral("foundation-test.txt")))
                  .canonicalFilePath(),
              QFileInfo(file).canonicalFilePath());
    file.remove();
}

}  // namespace
}  // namespace zephyrix
