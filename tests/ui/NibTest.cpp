#include <QGridLayout>
#include <QLabel>
#include <gtest/gtest.h>

#include "support/DataLines.h"
#include "ui/Label.h"
#include "ui/Nib.h"
#include "ui/TableCell.h"

namespace zephyrix {
namespace {

QStringList& calls() {
    static QStringList list;
    return list;
}

class Recorder : public View, public NibObject {
    Q_OBJECT

  public:
    explicit Recorder(QWidget* parent = nullptr) : View(parent) {}
    void connectOutlets() override { calls() << objectName() + QStringLiteral(" outlets"); }
    void awakeFromNib() override { calls() << objectName() + QStringLiteral(" awake"); }
};

Nib nibOf(const char* body) {
    return Nib(QStringLiteral("Test"),
               QByteArray("<ui version=\"4.0\"><class>Root</class>") + body + "</ui>");
}

TEST(Nib, OutletsComeBeforeAwakeningAndChildrenBeforeParents) {
    Nib::registerClass<Recorder>();
    calls().clear();
    const Nib nib = nibOf(
        "<widget class=\"Recorder\" name=\"root\">"
        "<widget class=\"QWidget\" name=\"plain\"><widget class=\"Recorder\" "
        "name=\"child\"/></widget>"
        "</widget>");
    const std::unique_ptr<QWidget> root(nib.instantiate());
    ASSERT_TRUE(root);
    EXPECT_EQ(calls().join(QLatin1Char(',')),
              QStringLiteral("child outlets,root outlets,child awake,root awake"));
}

// Each kind of value, layout and item that the shipped layouts use.
TEST(Nib, ViewsAreAsDescribed) {
    const Nib nib(QStringLiteral("Test"), testing::dataFile(QStringLiteral("ui/each_kind.ui")));
    const std::unique_ptr<View> root(nib.instantiate<View>(nullptr));
    activateLayouts(root.get());
    const auto* label = outlet<Label>(root.get(), QStringLiteral("label"));
    EXPECT_EQ(label->alignment(), Qt::AlignTrailing | Qt::AlignBottom);
    EXPECT_EQ(label->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    EXPECT_EQ(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    EXPECT_TRUE(label->wordWrap());
    EXPECT_EQ(label->minimumScale(), 0.5);
    EXPECT_EQ(label->x(), 3);
    const auto* inGrid = outlet<View>(root.get(), QStringLiteral("inGrid"));
    EXPECT_EQ(inGrid->parentWidget(), root.get());
    EXPECT_EQ(inGrid->geometry().right(), 200 - 5 - 1);
    EXPECT_EQ(label->geometry().right() + 1 + 12, inGrid->x()) << "the gap lies between";
    const auto* grid = root->findChild<QGridLayout*>(QStringLiteral("grid"));
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->columnStretch(1), 1);
    EXPECT_EQ(grid->horizontalSpacing(), 7);
    EXPECT_EQ(grid->itemAtPosition(1, 1)->alignment(), Qt::AlignHCenter);
}

TEST(Nib, TextsKeepTheirBlanksAndLineBreaks) {
    const std::unique_ptr<Label> label(
        nibOf("<widget class=\"Label\" name=\"label\">\n <property name=\"text\">\n  "
              "<string>one\n\n&lt; &gt; two</string>\n </property>\n</widget>")
            .instantiate<Label>(nullptr));
    EXPECT_EQ(label->text(), QStringLiteral("one\n\n< > two"));
}

TEST(Nib, WithoutOrWithABrokenDescriptionGivesNothing) {
    EXPECT_EQ(Nib(QStringLiteral("NoSuchLayout")).instantiate(), nullptr);
    const QByteArray whole =
        "<ui version=\"4.0\"><widget class=\"View\" name=\"v\"><property name=\"geometry\"><rect>"
        "<x>1</x></rect></property><layout class=\"QHBoxLayout\" name=\"l\"><item>";
    for (qsizetype length = 1; length <= whole.size(); ++length)
        EXPECT_EQ(Nib(QStringLiteral("Test"), whole.left(length)).instantiate(), nullptr) << length;
}

TEST(NibDeathTest, MistakesInADescriptionStopWithALineThatNamesThem) {
    QWidget root;
    root.setObjectName(QStringLiteral("root"));
    QLabel wrongClass(&root);
    wrongClass.setObjectName(QStringLiteral("ppp"));
    EXPECT_DEATH(static_cast<void>(outlet<Label>(&root, QStringLiteral("rrr"))),
                 "no zephyrix::Label called \"rrr\"");
    EXPECT_DEATH(static_cast<void>(outlet<Label>(&root, QStringLiteral("ppp"))),
                 "no zephyrix::Label called \"ppp\"");
    EXPECT_DEATH(
        static_cast<void>(nibOf("<widget class=\"NoSuchView\" name=\"x\"/>").instantiate()),
        "unknown class \"NoSuchView\"");
    EXPECT_DEATH(static_cast<void>(nibOf("<widget class=\"View\" name=\"x\"><property "
                                         "name=\"colour\"><number>1</number></property></widget>")
                                       .instantiate()),
                 "\"Test\" gives \"x\" a \"colour\" that it cannot have");
    EXPECT_DEATH(
        static_cast<void>(
            nibOf("<widget class=\"View\" name=\"x\"><action name=\"a\"/></widget>").instantiate()),
        "unknown element <action>");
    EXPECT_DEATH(
        static_cast<void>(
            nibOf("<widget class=\"QWidget\" name=\"x\"/>").instantiate<TableCell>(nullptr)),
        "layout \"Test\" gives no zephyrix::TableCell");
}

}  // namespace
}  // namespace zephyrix

#include "NibTest.moc"
