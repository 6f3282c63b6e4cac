#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

#include "app/SettingsWindow.h"
#include "model/LocationResult.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class SettingsWindowTest : public ::testing::Test {
  protected:
    SettingsWindowTest() { qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8()); }
    static void runZephyrix(const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(QStringLiteral(PROGRAM_DIR "/zephyrix"), arguments), 0);
    }
    static QComboBox* box(const SettingsWindow& window, const char* quantity) {
        return window.findChild<QComboBox*>(QLatin1String(quantity));
    }
};

TEST_F(SettingsWindowTest, ChoiceByKeyboardIsStoredAtOnce) {
    SettingsWindow window;
    QComboBox* const wind = box(window, "wind");
    EXPECT_EQ(wind->currentText(), QStringLiteral("Bft"));
    window.show();
    QTest::keyClick(wind, Qt::Key_Down);
    QTest::keyClick(wind, Qt::Key_Down);
    const auto stored = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    EXPECT_EQ(stored->integer(QStringLiteral("wind")), 2);
    EXPECT_FALSE(stored->object(QStringLiteral("temperature")).isValid()) << "only what was chosen";
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SettingsWindowTest, ShowsWhatAnotherProgramStores) {
    const SettingsWindow window;
    const auto says = [&](const char* words) {
        return waitUntil([&] {
            for (const QLabel* label : window.findChildren<QLabel*>())
                if (label->text().contains(QLatin1String(words)))
                    return true;
            return false;
        });
    };
    EXPECT_TRUE(says("no place is chosen"));
    runZephyrix({QStringLiteral("place"), QStringLiteral("default")});
    EXPECT_TRUE(says("Berlin"));
    runZephyrix({QStringLiteral("units"), QStringLiteral("pressure"), QStringLiteral("inHg")});
    EXPECT_TRUE(waitUntil([&] { return box(window, "pressure")->currentText() == u"inHg"; }));
}

}  // namespace
}  // namespace zephyrix
