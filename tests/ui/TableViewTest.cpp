#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "ui/Motion.h"
#include "ui/TableViewController.h"
#include "ui/TextButton.h"

namespace zephyrix {
namespace {

constexpr auto fade = TableView::RowAnimation::Fade;

Nib rowNib() {
    return Nib(QStringLiteral("Row"),
               "<ui version=\"4.0\"><class>Row</class><widget class=\"TableCell\" name=\"Row\">"
               "<widget class=\"Label\" name=\"textLabel\"/></widget></ui>");
}

class Rows : public TableViewController {
  public:
    Rows() : TableViewController(QString()) {
        table.registerNib(QStringLiteral("row"), rowNib());
        auto* footer = new View(&table);
        button = new TextButton(footer);
        footer->setMinimumSize(0, 36);
        auto* box = new QVBoxLayout(footer);
        box->setContentsMargins(0, 0, 0, 0);
        box->addWidget(button);
        table.setFooterView(footer);
        table.setController(this);
        table.resize(300, 200);
    }

    int numberOfRowsInSection(int /*section*/) override { return static_cast<int>(texts.size()); }
    TableCell* cellForRowAtIndexPath(const IndexPath& path) override {
        ++asked;
        TableCell* cell = table.dequeueReusableCell(QStringLiteral("row"), path);
        cell->textLabel()->setText(texts.at(path.row));
        return cell;
    }
    double heightForRowAtIndexPath(const IndexPath& path) override {
        return path.row == 0 ? 110.0 : 104.0;
    }
    void willDisplayCell(TableCell* cell, const IndexPath& /*path*/) override {
        cell->setSelectedBackgroundView(new View);
    }
    void didSelectRowAtIndexPath(const IndexPath& path) override { chosen << path.row; }

    QString shown(int row) {
        const TableCell* cell = table.cellForRow({row, 0});
        return cell == nullptr ? QString() : cell->textLabel()->text();
    }

    TableView table;
    TextButton* button = nullptr;
    QStringList texts{QStringLiteral("a")};
    QList<int> chosen;
    int asked = 0;
};

class TableViewTest : public testing::Test {
  protected:
    void SetUp() override { Motion::setReduced(true); }
    void TearDown() override { Motion::setReduced(std::nullopt); }

    void show() {
        rows.table.show();
        rows.table.activateWindow();
        rows.table.layoutIfNeeded();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&rows.table));
    }

    Rows rows;
};

TEST_F(TableViewTest, ReloadsInTheNextPassAndOnce) {
    rows.table.reloadData();
    rows.table.reloadData();
    rows.texts << QStringLiteral("b");  // seen, although it comes after the call
    EXPECT_EQ(rows.asked, 0);
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.asked, 2);
    EXPECT_EQ(rows.shown(1), QStringLiteral("b"));
    EXPECT_EQ(rows.table.contentHeight(), 110.0 + 104.0 + 36.0);
}

TEST_F(TableViewTest, UsesCellsAgain) {
    rows.table.layoutIfNeeded();
    const TableCell* cell = rows.table.cellForRow({0, 0});
    rows.table.reloadData();
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.table.cellForRow({0, 0}), cell);
    rows.texts << QStringLiteral("b");
    rows.table.insertRow({1, 0}, fade);
    const TableCell* second = rows.table.cellForRow({1, 0});
    EXPECT_NE(second, cell);
    rows.texts.removeLast();
    rows.table.deleteRow({1, 0}, fade);
    rows.texts << QStringLiteral("c");
    rows.table.insertRow({1, 0}, fade);
    EXPECT_EQ(rows.table.cellForRow({1, 0}), second);
    EXPECT_EQ(rows.shown(1), QStringLiteral("c"));
}

TEST_F(TableViewTest, RowsStandBelowEachOtherInTheWidthOfTheTable) {
    rows.texts << QStringLiteral("b");
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.table.cellForRow({0, 0})->geometry(), QRect(0, 0, 300, 110));
    EXPECT_EQ(rows.table.cellForRow({1, 0})->geometry(), QRect(0, 110, 300, 104));
    EXPECT_EQ(rows.table.footerView()->geometry(), QRect(0, 214, 300, 36));
    rows.table.resize(320, 200);
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.table.cellForRow({1, 0})->width(), 320);
}

TEST_F(TableViewTest, AChangeWhileAReloadIsDueIsLeftToTheReload) {
    rows.texts << QStringLiteral("b");
    rows.table.insertRow({1, 0}, fade);
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.shown(1), QStringLiteral("b"));
    EXPECT_EQ(rows.table.cellForRow({2, 0}), nullptr);
}

TEST_F(TableViewTest, RowsFadeWithinAQuarterOfASecondUnlessMotionIsReduced) {
    show();
    rows.texts << QStringLiteral("b");
    rows.table.insertRow({1, 0}, fade);
    EXPECT_EQ(rows.table.contentHeight(), 250.0);
    EXPECT_EQ(rows.table.cellForRow({1, 0})->graphicsEffect(), nullptr);
    rows.texts.removeLast();
    rows.table.deleteRow({1, 0}, fade);

    Motion::setReduced(false);
    QSignalSpy heights(&rows.table, &TableView::contentHeightChanged);
    rows.texts << QStringLiteral("c");
    rows.table.insertRow({1, 0}, fade);
    TableCell* cell = rows.table.cellForRow({1, 0});
    ASSERT_NE(cell->graphicsEffect(), nullptr);
    EXPECT_LT(rows.table.contentHeight(), 250.0);
    auto* animation = cell->findChild<QVariantAnimation*>();
    ASSERT_NE(animation, nullptr);
    EXPECT_EQ(animation->duration(), 250);
    animation->setCurrentTime(250);
    EXPECT_EQ(cell->graphicsEffect(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rows.table.contentHeight() == 250.0; }));
    EXPECT_GT(heights.count(), 1);

    // Reloading while the row fades out must not bring it back, nor use it twice.
    rows.texts.removeLast();
    rows.table.deleteRow({1, 0}, fade);
    rows.table.reloadData();
    rows.table.layoutIfNeeded();
    EXPECT_EQ(rows.table.cellForRow({1, 0}), nullptr);
    EXPECT_EQ(rows.table.contentHeight(), 146.0);
}

TEST_F(TableViewTest, APressedRowShowsItsBackgroundUntilItIsDeselected) {
    show();
    TableCell* cell = rows.table.cellForRow({0, 0});
    const QWidget* background = cell->selectedBackgroundView();
    QTest::mousePress(cell, Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_TRUE(background->isVisible());
    EXPECT_EQ(background->geometry(), cell->rect());
    QTest::mouseRelease(cell, Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_EQ(rows.chosen, QList<int>{0});
    EXPECT_TRUE(background->isVisible());
    rows.table.deselectRow({0, 0}, true);
    EXPECT_FALSE(background->isVisible());
}

TEST_F(TableViewTest, APressThatLeavesTheRowChoosesNothing) {
    show();
    TableCell* cell = rows.table.cellForRow({0, 0});
    QTest::mousePress(cell, Qt::LeftButton, {}, QPoint(50, 50));
    QTest::mouseRelease(cell, Qt::LeftButton, {}, QPoint(50, 120));
    EXPECT_TRUE(rows.chosen.isEmpty());
    EXPECT_FALSE(cell->selectedBackgroundView()->isVisible());
}

TEST_F(TableViewTest, WorksByKeyboard) {
    rows.texts << QStringLiteral("b");
    show();
    QSignalSpy toggles(&rows.table, &TableView::toggleRequested);
    QSignalSpy clicks(rows.button, &TextButton::clicked);
    rows.table.cellForRow({0, 0})->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(rows.table.cellForRow({1, 0})->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(rows.chosen, QList<int>{1});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(toggles.count(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(rows.button->hasFocus());
    QTest::keyClick(rows.button, Qt::Key_Return);
    QTest::keyClick(rows.button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(TableViewTest, AReloadKeepsTheFocusOnItsRow) {
    rows.texts << QStringLiteral("b");
    show();
    rows.table.cellForRow({1, 0})->setFocus(Qt::TabFocusReason);
    rows.table.reloadData();
    rows.table.layoutIfNeeded();
    EXPECT_TRUE(rows.table.cellForRow({1, 0})->hasFocus());
}

TEST_F(TableViewTest, IsAListOfPressableRowsForAssistivePrograms) {
    show();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&rows.table);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->role(), QAccessible::List);
    QAccessibleInterface* row =
        QAccessible::queryAccessibleInterface(rows.table.cellForRow({0, 0}));
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(row->text(QAccessible::Name), QStringLiteral("a"));
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(rows.chosen, QList<int>{0});
    EXPECT_EQ(QAccessible::queryAccessibleInterface(rows.button)->role(), QAccessible::Button);
}

QStringList accessibleTree(QAccessibleInterface* around) {
    QStringList names;
    for (int index = 0; index < around->childCount(); ++index) {
        QAccessibleInterface* const child = around->child(index);
        names << child->text(QAccessible::Name);
        EXPECT_EQ(child->parent(), around);
        EXPECT_EQ(around->indexOfChild(child), index);
    }
    return names;
}

TEST_F(TableViewTest, TheListHasItsRowsAndFooterAndNoSpareCells) {
    rows.texts << QStringLiteral("b");
    show();
    rows.table.footerView()->setAccessibleName(QStringLiteral("footer"));
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&rows.table);
    const QStringList expanded{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("footer")};
    EXPECT_EQ(accessibleTree(table), expanded);
    const QRect second = table->child(1)->rect();
    EXPECT_EQ(table->childAt(second.center().x(), second.center().y()), table->child(1));

    rows.texts.removeLast();
    rows.table.deleteRow({1, 0}, TableView::RowAnimation::None);
    rows.table.setFooterView(nullptr);
    EXPECT_EQ(accessibleTree(table), QStringList{QStringLiteral("a")});
    EXPECT_EQ(table->child(1), nullptr);
    EXPECT_EQ(table->child(-1), nullptr);
    EXPECT_EQ(table->indexOfChild(nullptr), -1);
}

TEST_F(TableViewTest, AssistiveProgramsPressTheRowTheyMeanAlsoWhileTheWindowIsNotActive) {
    rows.texts << QStringLiteral("b");
    show();
    TableCell* second = rows.table.cellForRow({1, 0});
    QAccessibleActionInterface* pressed =
        QAccessible::queryAccessibleInterface(second)->actionInterface();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    pressed->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(rows.chosen, QList<int>{1});

    rows.texts.removeLast();
    rows.table.deleteRow({1, 0}, TableView::RowAnimation::None);
    EXPECT_EQ(pressed->actionNames(), QStringList());
    rows.table.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&rows.table));
    rows.table.cellForRow({0, 0})->setFocus();
    pressed->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(rows.chosen, QList<int>{1}) << "the cell is on no row";
}

TEST_F(TableViewTest, TheFooterCanBeTakenAway) {
    rows.table.layoutIfNeeded();
    const QPointer<TextButton> button = rows.button;
    rows.table.setFooterView(nullptr);
    EXPECT_TRUE(button.isNull());
    EXPECT_EQ(rows.table.contentHeight(), 110.0);
}

TEST(TableViewDeathTest, StopsWhenRowsAndDataDisagree) {
    EXPECT_DEATH(
        {
            Rows rows;
            rows.table.layoutIfNeeded();
            rows.table.insertRow({0, 0}, fade);
        },
        "the table has 2 rows after the change, but its data has 1");
    EXPECT_DEATH(
        {
            Rows rows;
            static_cast<void>(rows.table.dequeueReusableCell(QStringLiteral("other"), {}));
        },
        "no row layout is registered as \"other\"");
}

}  // namespace
}  // namespace zephyrix
