#include <QLabel>
#include <gtest/gtest.h>

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

TEST(Nib, EachInstanceIsItsOwn) {
    const Nib nib = nibOf(
        "<widget class=\"TableCell\" name=\"cell\"><widget class=\"Label\" "
        "name=\"textLabel\"/></widget>");
    const std::unique_ptr<TableCell> first(nib.instantiate<TableCell>(nullptr));
    const std::unique_ptr<TableCell> second(nib.instantiate<TableCell>(nullptr));
    ASSERT_NE(first->textLabel(), nullptr);
    EXPECT_NE(first->textLabel(), second->textLabel());
}

TEST(Nib, WithoutOrWithABrokenDescriptionGivesNothing) {
    EXPECT_EQ(Nib(QStringLiteral("NoSuchLayout")).instantiate(), nullptr);
    EXPECT_EQ(Nib(QStringLiteral("Test"), "<ui version=\"4.0\"><widget").instantiate(), nullptr);
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
    EXPECT_DEATH(
        static_cast<void>(
            nibOf("<widget class=\"QWidget\" name=\"x\"/>").instantiate<TableCell>(nullptr)),
        "layout \"Test\" gives no zephyrix::TableCell");
}

}  // namespace
}  // namespace zephyrix

#include "NibTest.moc"
