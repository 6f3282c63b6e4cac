
#include <gtest/gtest.h>

#include "cells/QKWindpfeil.h"
#include "foundation/UserDefaults.h"
#include "support/DataLines.h"
#include "ui/Motion.h"
#include "ui/NotificationQueue.h"
#include "ui/ScreenReader.h"

namespace zephyrix {
namespace {

constexpr QRect frame{10, 20, 100, 60};

class QKWindpfeilTest : public ::testing::Test {
  protected:
    void SetUp() override { Motion::setReduced(false); }
    void TearDown() override { Motion::setReduced(std::nullopt); }

    // The clock of the swing stands still, so that a test may set it.
    void swingTo(double degrees) {
        view.setDirection(Number(degrees), true);
        view.swing().clock().pause();
    }
    double angleAt(int milliseconds) {
        view.swing().clock().setCurrentTime(milliseconds);
        if (view.swing().stage() != ArrowSwing::Stage::Rest)
            view.swing().clock().pause();
        return view.windPfeil()->rotation();
    }

    QKWindpfeil view{frame};
};

TEST_F(QKWindpfeilTest, ByFrameHasFourViewsOnTheVeryRectangle) {
    const QList<QWidget*> views = {view.windBg(), view.windPfeil(), view.windSpeedLabel(),
                                   view.windSpeedMaxLabel()};
    QList<QWidget*> children;
    for (QObject* child : view.children())
        if (auto* widget = qobject_cast<QWidget*>(child))
            children << widget;
    EXPECT_EQ(children, views);  // from the lowest to the topmost
    for (const QWidget* child : views)
        EXPECT_EQ(child->geometry(), frame);
    EXPECT_FALSE(view.autoCreateLabels());
    EXPECT_TRUE(view.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(QKWindpfeilTest, AReplacementTakesTheOldViewsPlace) {
    auto* label = new Label;
    const QPointer<Label> old = view.windSpeedLabel();
    view.setWindSpeedLabel(label);
    EXPECT_TRUE(old.isNull());
    const QObjectList children = view.children();
    EXPECT_EQ(children.indexOf(label), children.indexOf(view.windPfeil()) + 1);
    EXPECT_EQ(children.indexOf(label), children.indexOf(view.windSpeedMaxLabel()) - 1);
    view.setWindSpeedLabel(label);
    EXPECT_EQ(view.windSpeedLabel(), label);
    EXPECT_EQ(view.children(), children);
}

TEST_F(QKWindpfeilTest, TheSpeedTextIsReadAsA32BitInteger) {
    testing::forEachLine("cells/speeds.tsv", [this](const testing::DataLine& line) {
        view.setWindSpeed(line[0]);
        EXPECT_EQ(view.windSpeedLabel()->text(), line[0]);
        EXPECT_EQ(view.windSpeedLabel()->accessibleName(), line[0]);
        EXPECT_EQ(view.numSpeed()->integerValue(), line.integer(1));
    });
}

TEST_F(QKWindpfeilTest, UnitsComeFromTheProgramsOwnStore) {
    view.setWindSpeedUnitsLabel(new Label(&view));
    view.setWindSpeedMaxUnitsLabel(new Label(&view));
    UserDefaults::standard().set(QStringLiteral("wind"), 3);
    view.setWindSpeed(QStringLiteral("5"));
    view.setWindSpeedMax(QStringLiteral("9"));
    EXPECT_EQ(view.windSpeedUnitsLabel()->text(), QStringLiteral("m/s"));
    EXPECT_EQ(view.windSpeedMaxUnitsLabel()->text(), QStringLiteral("m/s"));
    EXPECT_EQ(view.windSpeedMaxLabel()->text(), QStringLiteral("9"));
    EXPECT_EQ(view.numSpeedMax()->integerValue(), 9);
    UserDefaults::standard().remove(QStringLiteral("wind"));
}

void expectFrame(const QKWindpfeil& view, const QRectF& expected) {
    const QRectF label = view.windSpeedLabel()->exactFrame();
    EXPECT_NEAR(label.x(), expected.x(), 1e-9);
    EXPECT_NEAR(label.y(), expected.y(), 1e-9);
    EXPECT_NEAR(label.width(), expected.width(), 1e-9);
    EXPECT_NEAR(label.height(), expected.height(), 1e-9);
}

// The width goes by the shorter side, the height by the height.
TEST(QKWindpfeil, ATallViewHasATallSpeedLabel) {
    QKWindpfeil view;
    view.resize(60, 100);
    view.setAutoCreateLabels(true);
    view.setWindSpeed(QStringLiteral("5"));
    expectFrame(view, {19.8, 33.0, 20.4, 34.0});
}

TEST(QKWindpfeil, BuildsItsOwnViewsWhereThereAreNone) {
    QKWindpfeil view;
    view.doInit();
    view.resize(100, 60);
    view.setWindSpeed(QStringLiteral("5"));
    EXPECT_EQ(view.windSpeedLabel(), nullptr);  // not asked to

    view.setAutoCreateLabels(true);
    view.setWindSpeed(QStringLiteral("5"));
    ASSERT_NE(view.windSpeedLabel(), nullptr);
    expectFrame(view, {39.8, 19.8, 20.4, 20.4});

    view.setDirection(Number(225));
    EXPECT_EQ(view.windBg()->geometry(), QRect(0, 0, 60, 60));
    EXPECT_EQ(view.windPfeil()->geometry(), QRect(0, 0, 60, 60));
    EXPECT_FALSE(view.windBg()->image().isNull());
    EXPECT_FALSE(view.windPfeil()->image().isNull());
    EXPECT_EQ(view.children().indexOf(view.windBg()), 0);
    EXPECT_EQ(view.children().last(), view.windPfeil());
    EXPECT_EQ(view.labelView()->text(), QStringLiteral("SW\n5"));
    EXPECT_TRUE(view.labelView()->isHidden());
}

TEST_F(QKWindpfeilTest, TheSameNumberObjectTurnsNothingButRefreshes) {
    const Number west(270);
    view.setDirection(west);
    view.windPfeil()->setRotation(3.0);
    view.doubleTap(nullptr);
    ASSERT_TRUE(view.windPfeil()->isHidden());
    view.setDirection(west);
    EXPECT_EQ(view.windPfeil()->rotation(), 3.0);
    EXPECT_FALSE(view.windPfeil()->isHidden());
    view.setDirection(Number(270));  // equal, but another object
    EXPECT_EQ(view.windPfeil()->rotation(), 270.0);
}

TEST_F(QKWindpfeilTest, SwingsAboutItsTarget) {
    swingTo(270.0);
    EXPECT_EQ(view.swing().clock().duration(), 250);
    EXPECT_DOUBLE_EQ(angleAt(125), 137.5);
    EXPECT_DOUBLE_EQ(angleAt(250), 275.0);
    ASSERT_EQ(view.swing().stage(), ArrowSwing::Stage::Swing);
    EXPECT_EQ(view.swing().clock().duration(), 11 * 2000);
    for (int leg = 0; leg < 11; ++leg) {
        EXPECT_DOUBLE_EQ(angleAt(leg * 2000), leg % 2 == 0 ? 275.0 : 265.0) << leg;
        EXPECT_NEAR(angleAt(leg * 2000 + 1000), 270.0, 1e-9) << leg;
        // Eases in: after a quarter of a leg an eighth of the way.
        EXPECT_NEAR(angleAt(leg * 2000 + 500), leg % 2 == 0 ? 273.75 : 266.25, 1e-9) << leg;
    }
    angleAt(22000);
    ASSERT_EQ(view.swing().stage(), ArrowSwing::Stage::Settle);
    EXPECT_DOUBLE_EQ(view.windPfeil()->rotation(), 265.0);
    EXPECT_EQ(view.swing().clock().duration(), 1000);
    EXPECT_DOUBLE_EQ(angleAt(500), 267.5);
    angleAt(1000);
    EXPECT_DOUBLE_EQ(view.windPfeil()->rotation(), 270.0);
    EXPECT_EQ(view.swing().stage(), ArrowSwing::Stage::Rest);
}

TEST_F(QKWindpfeilTest, AnInterruptedOvershootGoesToTheTargetAndALaterStageStays) {
    swingTo(90.0);
    angleAt(100);
    view.swing().interrupt();
    EXPECT_EQ(view.windPfeil()->rotation(), 90.0);

    swingTo(180.0);
    angleAt(250);
    const double reached = angleAt(700);
    view.swing().interrupt();
    EXPECT_EQ(view.windPfeil()->rotation(), reached);
    EXPECT_EQ(view.swing().stage(), ArrowSwing::Stage::Rest);
    EXPECT_EQ(view.swing().clock().state(), QAbstractAnimation::Stopped);
}

TEST_F(QKWindpfeilTest, ANewDirectionInterruptsTheSwing) {
    swingTo(90.0);
    view.setDirection(Number(45));
    EXPECT_EQ(view.windPfeil()->rotation(), 45.0);
    EXPECT_EQ(view.swing().stage(), ArrowSwing::Stage::Rest);
}

TEST_F(QKWindpfeilTest, TurnsAtOnceWhereMotionIsReduced) {
    Motion::setReduced(true);
    view.setDirection(Number(270), true);
    EXPECT_EQ(view.windPfeil()->rotation(), 270.0);
    EXPECT_EQ(view.swing().stage(), ArrowSwing::Stage::Rest);
}

TEST_F(QKWindpfeilTest, ADoubleTapHidesTheArrowAndPostsOnce) {
    QObject observer;
    QList<QObject*> senders;
    NotificationQueue::standard().addObserver(&observer, QStringLiteral("QKArrowSettingChanged"),
                                              [&](QObject* sender) { senders << sender; });
    view.doubleTap(nullptr);
    EXPECT_TRUE(view.windBg()->isHidden());
    EXPECT_TRUE(view.windPfeil()->isHidden());
    EXPECT_EQ(senders, QList<QObject*>{&view});
    view.singleTap(nullptr);
    view.doubleTap(nullptr);
    EXPECT_FALSE(view.windBg()->isHidden());
    EXPECT_EQ(senders.size(), 2);
}

TEST_F(QKWindpfeilTest, SpeaksOnlyWhileAScreenReaderRuns) {
    view.setWindSpeed(QStringLiteral("10"));
    ScreenReader::setRunning(false);
    view.setDirection(Number(225));
    EXPECT_EQ(view.windPfeil()->accessibleName(), QString());
    ScreenReader::setRunning(true);
    UserDefaults::standard().set(QStringLiteral("wind"), 2);
    view.refreshArrow();
    EXPECT_EQ(view.windPfeil()->accessibleName(), QStringLiteral("Wind:225 degrees 19 km/h"));
    ScreenReader::setRunning(std::nullopt);
    UserDefaults::standard().remove(QStringLiteral("wind"));
}

}  // namespace
}  // namespace zephyrix
