#include <memory>

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "cells/Registration.h"
#include "foundation/Clock.h"
#include "foundation/Screen.h"
#include "host/PanelPopup.h"
#include "host/PanelView.h"
#include "host/PanelWindow.h"
#include "support/ChosenPlace.h"
#include "support/Documents.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class PanelViewTest : public ::testing::Test {
  protected:
    PanelViewTest() {
        qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
        qputenv("XDG_CACHE_HOME", freshFolder().toUtf8());
        registerCells();
        choosePlace();
        UserDefaults::standard().set(QStringLiteral("showingAll"), true);
        controller_ = std::make_unique<TodayViewController>([](const auto&) {});
        view_ = std::make_unique<PanelView>(*controller_);
        controller_->setLastWeatherData(
            FeedAnswer::fromBody(feedDocument(21.0, Clock::now()), Number(18228265)).document);
    }
    ~PanelViewTest() override { Screen::setMain(QRectF(0.0, 0.0, 375.0, 667.0), 1.0); }

    template <class Cell>
    [[nodiscard]] Cell* row(int row) const {
        return qobject_cast<Cell*>(controller_->tableView()->cellForRow({row, 0}));
    }

    std::unique_ptr<TodayViewController> controller_;
    std::unique_ptr<PanelView> view_;
};

TEST_F(PanelViewTest, SymbolsHaveThePixelsOfTheScreen) {
    for (const double scale : {1.0, 2.0, 1.25, 2.0}) {
        view_->layOut(440, scale);
        const ImageView* symbol = row<ObsCell>(0)->symbol();
        EXPECT_EQ(symbol->image().devicePixelRatio(), scale);
        EXPECT_EQ(symbol->image().width(), qRound(symbol->width() * scale));
    }
}

TEST_F(PanelViewTest, GrowsWithTheDesktopsTexts) {
    int told = 0;
    QObject::connect(view_.get(), &PanelView::textScaleChanged, view_.get(), [&] { ++told; });
    view_->layOut(440, 1.0);
    const int usual = view_->panelHeight();
    const QFont font = QApplication::font();
    QFont other = font;
    other.setItalic(true);
    const auto choose = [this](const QFont& chosen) {
        QApplication::setFont(chosen);
        QEvent change(QEvent::ApplicationFontChange);  // comes by itself while a program runs
        QApplication::sendEvent(view_.get(), &change);
    };
    choose(other);
    EXPECT_EQ(told, 0);
    other.setPointSizeF(22.0);
    choose(other);
    EXPECT_EQ(told, 1);
    // As the host then makes it anew.
    view_.reset();
    controller_ = std::make_unique<TodayViewController>([](const auto&) {});
    view_ = std::make_unique<PanelView>(*controller_);
    controller_->setLastWeatherData(
        FeedAnswer::fromBody(feedDocument(21.0, Clock::now()), Number(18228265)).document);
    view_->layOut(800, 1.0);
    EXPECT_EQ(view_->panelHeight(), 2 * usual);
    EXPECT_EQ(controller_->preferredViewHeight(), 110 + 36 + 104) << "points of the panel";
    EXPECT_EQ(row<ForecastCell>(1)->container()->findChildren<ForecastDayView*>().size(), 4)
        << "400 points of the panel";
    QApplication::setFont(font);
}

TEST_F(PanelViewTest, WithLittleRoomEverythingIsReachedByScrolling) {
    view_->layOut(440, 1.0);
    PanelScroll scroll(nullptr);
    scroll.hold(*view_);
    scroll.resize(440, view_->panelHeight());
    view_->show();
    scroll.show();
    EXPECT_EQ(view_->size(), scroll.size());
    EXPECT_EQ(scroll.findChild<QScrollArea*>(), nullptr) << "no bars where it fits";
    scroll.resize(440, view_->panelHeight() / 2);
    QCoreApplication::processEvents();
    const auto* const area = scroll.findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(view_->width(), area->viewport()->width()) << "beside the bar";
    EXPECT_LT(view_->width(), 440);
    EXPECT_EQ(view_->height(), view_->panelHeight());
    view_->focusFirstRow();
    for (int stop = 0; stop < 3; ++stop) {
        const QWidget* const focused = scroll.focusWidget();
        ASSERT_NE(focused, nullptr);
        const QRect seen(focused->mapTo(area->viewport(), QPoint()), focused->size());
        EXPECT_TRUE(area->viewport()->rect().contains(seen)) << stop;
        QTest::keyClick(scroll.focusWidget(), Qt::Key_Tab);
    }
    scroll.resize(200, 100);
    QCoreApplication::processEvents();
    EXPECT_EQ(view_->width(), PanelScroll::leastWidth()) << "narrower, its rows would overlap";
    EXPECT_TRUE(area->horizontalScrollBar()->isVisible());
    scroll.letGo();
}

template <class Frame>
void expectOnScreen(PanelView& view, int width) {
    Frame frame(width);
    frame.hold(view);
    frame.show();
    const QRect room = frame.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(frame.geometry())) << frame.width() << " x " << frame.height();
    EXPECT_EQ(view.height(), view.panelHeight()) << "all of it is there, to be scrolled to";
    frame.letGo();
}

TEST_F(PanelViewTest, NoFrameIsLargerThanTheScreen) {
    const int width = QApplication::primaryScreen()->availableSize().width() + 80;
    view_->layOut(width, 1.0);
    expectOnScreen<PanelWindow>(*view_, width);
    expectOnScreen<PanelPopup>(*view_, width);
}

TEST_F(PanelViewTest, SourceIsNamedBelowTheRows) {
    const int without = view_->panelHeight();
    Q_EMIT controller_->refreshed(true);
    view_->layOut(440, 1.0);
    const auto* named = view_->findChild<Label*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->text(), QStringLiteral("a test"));
    EXPECT_GE(named->y(), controller_->tableView()->geometry().bottom());
    EXPECT_GT(view_->panelHeight(), without);
}

}  // namespace
}  // namespace zephyrix
