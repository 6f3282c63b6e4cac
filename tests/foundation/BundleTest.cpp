#include <array>

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

TEST(Bundle, TheEnvironmentChoosesTheLanguages) {
    forEachLine("foundation/languages.tsv", [](const DataLine& line) {
        const std::array variables{line.utf8(0), line.utf8(1), line.utf8(2), line.utf8(3)};
        const auto set = [&](std::size_t variable) {
            return variables.at(variable) == "-" ? nullptr : variables.at(variable).constData();
        };
        const ScopedEnvironment environment(
            {{"LANGUAGE", set(0)}, {"LC_ALL", set(1)}, {"LC_MESSAGES", set(2)}, {"LANG", set(3)}});
        EXPECT_EQ(Bundle().preferredLocalizations().join(QLatin1Char(' ')), line[4]);
    });
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
    const QString folder = freshFolder();
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
