#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStandardPaths>
#include <QStyle>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "app/ControlStyle.h"
#include "app/SettingsWindow.h"
#include "foundation/UserLocale.h"
#include "model/LocationResult.h"
#include "support/Contrast.h"
#include "support/Files.h"
#include "support/LoopbackServer.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class SettingsWindowTest : public ::testing::Test {
  protected:
    SettingsWindowTest() { qputenv("XDG_CONFIG_HOME", folder_.toUtf8()); }
    static void runZephyrix(const char* line) {
        ASSERT_EQ(runOurs(QLatin1String("zephyrix ") + QLatin1String(line)).exitCode, 0);
    }
    template <typename Widget>
    static Widget* named(const SettingsWindow& window, const char* name) {
        auto* const widget = window.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static bool says(const SettingsWindow& window, const char* words) {
        return waitUntil([&] {
            for (const QLabel* label : window.findChildren<QLabel*>())
                if (label->text().contains(QString::fromUtf8(words)))
                    return true;
            return false;
        });
    }
    static QVariant stored(const char* suite, const char* key) {
        return UserDefaults::suite(QLatin1String(suite))->object(QLatin1String(key));
    }

    QString folder_ = freshFolder();
};

TEST_F(SettingsWindowTest, APlaceIsFoundAndSetByKeyboardAlone) {
    SettingsWindow window;
    window.show();
    auto* const field = named<QLineEdit>(window, "search");
    auto* const results = named<QListWidget>(window, "results");
    EXPECT_FALSE(results->isVisible());
    const QSize whole = window.wholeSize();
    QTest::keyClicks(field, QStringLiteral("springf"));
    EXPECT_TRUE(results->isVisible());
    EXPECT_EQ(window.wholeSize(), whole) << "the list has the card's room";
    EXPECT_TRUE(waitUntil([&] { return results->height() > 4 * results->sizeHintForRow(0); }));
    QTest::keyClick(field, Qt::Key_Down);
    const QString second = results->item(1)->text();
    EXPECT_TRUE(results->item(1)->isSelected());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(field->text().isEmpty() && window.isVisible()) << "only the field is emptied";
    QTest::keyClicks(field, QStringLiteral("springf"));
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(field, Qt::Key_Return);
    const LocationResult place(stored("group.Zephyrix", "location").toMap());
    ASSERT_TRUE(place.checkValidity());
    EXPECT_TRUE(second.contains(*place.provinceName())) << second.toStdString();
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_FALSE(results->isVisible());
    EXPECT_TRUE(says(window, "America/"));
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SettingsWindowTest, CoordinatesAreAPlaceAndATextWithoutOneChoosesNothing) {
    SettingsWindow window;
    window.show();
    auto* const field = named<QLineEdit>(window, "search");
    for (const char* none : {"xqzzy", "91, 5", "0 0"}) {
        field->setText(QLatin1String(none));
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_FALSE(stored("group.Zephyrix", "location").isValid()) << none;
    }
    field->setText(QStringLiteral("-54.7, -68.2"));
    QTest::keyClick(field, Qt::Key_Return);
    const LocationResult hut(stored("group.Zephyrix", "location").toMap());
    EXPECT_EQ(hut.objTimeZone().id(), "America/Argentina/Ushuaia");
    EXPECT_TRUE(says(window, "54.70° S, 68.20° W"));
}

TEST_F(SettingsWindowTest, ChoiceByKeyboardIsStoredAtOnce) {
    SettingsWindow window;
    auto* const wind = named<QComboBox>(window, "wind");
    EXPECT_EQ(wind->currentText(), QStringLiteral("Bft"));
    window.show();
    QTest::keyClick(wind, Qt::Key_Down);
    QTest::keyClick(wind, Qt::Key_Down);
    EXPECT_EQ(stored("group.Zephyrix", "wind"), QVariant(2LL));
    EXPECT_FALSE(stored("group.Zephyrix", "temperature").isValid()) << "only what was chosen";
    EXPECT_TRUE(says(window, "22 km/h")) << "the example, 12 knots";
}

TEST_F(SettingsWindowTest, TheUsualUnitsOfTheCountryAreOneButton) {
    const ReplacedUserLocale america("en_US");
    SettingsWindow window;
    auto* const usual = named<QPushButton>(window, "usual");
    EXPECT_EQ(usual->text(), QStringLiteral("Usual in United States: °F, mph, in, inHg"));
    usual->click();
    EXPECT_FALSE(usual->isEnabled()) << "they are in force";
    for (const char* key : {"temperature", "precipitation", "pressure"})
        EXPECT_EQ(stored("group.Zephyrix", key), QVariant(1LL)) << key;
    EXPECT_EQ(stored("group.Zephyrix", "wind"), QVariant(4LL));
    EXPECT_TRUE(says(window, "70°F"));
}

TEST_F(SettingsWindowTest, SymbolsAreChosenInThePanelsOwnStore) {
    SettingsWindow window;
    EXPECT_TRUE(named<QRadioButton>(window, "symbols0")->isChecked());
    auto* const lines = named<QRadioButton>(window, "symbols1");
    EXPECT_NE(lines->icon().pixmap(lines->iconSize()).toImage(),
              named<QRadioButton>(window, "symbols0")->icon().pixmap(lines->iconSize()).toImage());
    lines->click();
    EXPECT_EQ(stored("zephyrix-panel", "symbolSet"), QVariant(1LL));
    EXPECT_TRUE(lines->isChecked());
}

TEST_F(SettingsWindowTest, ThePanelAtLoginIsAnEntryThatDesktopsRead) {
    const QString entry = folder_ + QStringLiteral("/autostart/zephyrix-panel.desktop");
    SettingsWindow window;
    auto* const login = named<QCheckBox>(window, "login");
    EXPECT_FALSE(login->isChecked());
    login->click();
    const QByteArray text = contentOf(entry);
    EXPECT_TRUE(text.startsWith("[Desktop Entry]\n"));
    EXPECT_TRUE(text.contains("/zephyrix-panel\"\n")) << text.toStdString();
    const QString validator =
        QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
    EXPECT_TRUE(validator.isEmpty() || QProcess::execute(validator, {entry}) == 0);
    const SettingsWindow other;
    EXPECT_TRUE(named<QCheckBox>(other, "login")->isChecked());
    login->click();
    EXPECT_FALSE(QFile::exists(entry));
}

TEST_F(SettingsWindowTest, EveryControlHasANameForAScreenReader) {
    runZephyrix("place default");
    SettingsWindow window;
    window.show();
    int controls = 0;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() ||
            qobject_cast<QLabel*>(widget) != nullptr)
            continue;
        const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(spoken, nullptr);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        ++controls;
    }
    EXPECT_GE(controls, 9);
}

TEST_F(SettingsWindowTest, OnASmallScreenEveryControlIsReachedByScrolling) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2.0 * usual.pointSizeF());
    QApplication::setFont(large);
    SettingsWindow window;
    window.show();
    const QSize room = window.screen()->availableSize();
    EXPECT_GT(window.wholeSize().height(), room.height());
    EXPECT_LT(window.height(), room.height()) << "there is a frame around it";
    EXPECT_LT(window.width(), room.width());
    const auto* const scroll = window.findChild<QScrollArea*>();
    ASSERT_NE(scroll, nullptr);
    int reached = 0;
    for (QWidget* first = window.focusWidget(); reached == 0 || window.focusWidget() != first;
         ++reached) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        const QWidget* const control = window.focusWidget();
        const QRect seen(control->mapTo(scroll->viewport(), QPoint()), control->size());
        EXPECT_TRUE(scroll->viewport()->rect().contains(seen))
            << control->objectName().toStdString();
    }
    EXPECT_GE(reached, 8);
    QApplication::setFont(usual);
}

TEST_F(SettingsWindowTest, BoxesAndHintsAreSeenOnDarkGround) {
    const QPalette usual = QApplication::palette();
    QApplication::setStyle(QStringLiteral("fusion"));
    ControlStyle::useWhereNoneIsChosen();
    const QColor ground(30, 36, 48);
    QApplication::setPalette(QPalette(QColor(44, 51, 66), ground));
    SettingsWindow window;
    window.show();
    auto* const login = named<QCheckBox>(window, "login");
    const QImage box = login->grab().toImage();
    double best = 1.0;
    for (int x = 0; x < login->style()->pixelMetric(QStyle::PM_IndicatorWidth); ++x)
        best = std::max(best, contrast(box.pixelColor(x, box.height() / 2), ground));
    EXPECT_GE(best, 3.0);
    const QPalette field = named<QLineEdit>(window, "search")->palette();
    const QColor paper = field.color(QPalette::Base);
    EXPECT_GE(contrast(over(paper, field.color(QPalette::PlaceholderText)), paper), 4.5);
    QApplication::setPalette(usual);
}

TEST_F(SettingsWindowTest, ScrollingPastAUnitLeavesIt) {
    SettingsWindow window;
    window.show();
    auto* const wind = named<QComboBox>(window, "wind");
    const QPointF middle = QRectF(wind->rect()).center();
    QWheelEvent turn(middle, wind->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(wind, &turn);
    EXPECT_EQ(wind->currentText(), QStringLiteral("Bft"));
    EXPECT_FALSE(turn.isAccepted()) << "it is left to the window";
    EXPECT_FALSE(stored("group.Zephyrix", "wind").isValid());
}

TEST_F(SettingsWindowTest, ShowsWhatAnotherProgramStores) {
    const SettingsWindow window;
    EXPECT_TRUE(says(window, "No place is chosen"));
    runZephyrix("place default");
    EXPECT_TRUE(says(window, "Berlin"));
    runZephyrix("units pressure inHg");
    EXPECT_TRUE(
        waitUntil([&] { return named<QComboBox>(window, "pressure")->currentText() == u"inHg"; }));
    EXPECT_TRUE(says(window, "No weather of this place yet"));
}

}  // namespace
}  // namespace zephyrix
