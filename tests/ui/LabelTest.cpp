#include <cmath>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "ui/Label.h"

namespace zephyrix {
namespace {

QImage pictureOf(QWidget& view) {
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// The lowest row that has ink: the baseline of a text without descenders.
int lastInkedRow(const QImage& image) {
    for (int y = image.height() - 1; y >= 0; --y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 128)
                return y;
    return -1;
}

TEST(Label, ElidesWhatDoesNotFitAndKeepsTheWholeText) {
    Label label;
    label.setText(QStringLiteral("Frankfurt am Main"));
    label.resize(400, 20);
    EXPECT_FALSE(label.isTruncated());
    label.resize(60, 20);
    ASSERT_TRUE(label.isTruncated());
    EXPECT_TRUE(label.displayedLines().first().startsWith(QLatin1String("Fr")));
    EXPECT_EQ(label.text(), QStringLiteral("Frankfurt am Main"));
}

TEST(Label, ShrinksBeforeItElides) {
    Label label;
    label.setMinimumScale(0.6);
    label.setText(QStringLiteral("-10°C"));
    const int natural = label.sizeHint().width();
    label.resize(natural * 3 / 4, 40);
    EXPECT_FALSE(label.isTruncated());
    label.resize(natural / 3, 40);
    EXPECT_TRUE(label.isTruncated());
}

TEST(Label, WrappedTextNeedsItsHeightAndIsElidedInTheLastLine) {
    Label label;
    label.setWordWrap(true);
    label.setText(QStringLiteral("Leichter Regenschauer mit Hagel und Gewitter"));
    label.resize(90, label.heightForWidth(90));
    EXPECT_GT(label.displayedLines().size(), 2);
    EXPECT_FALSE(label.isTruncated());
    label.resize(90, label.heightForWidth(400) * 2);
    EXPECT_EQ(label.displayedLines().size(), 2);
    EXPECT_TRUE(label.isTruncated());
}

TEST(Label, NoLineIsWiderThanTheView) {
    Label label;
    label.setTextStyle(Theme::TextStyle::Words);
    for (const bool wraps : {false, true})
        for (int width = 20; width < 200; width += 7) {
            label.setWordWrap(wraps);
            label.setText(QStringLiteral("Переменная облачность\nSchneeregenschauer 1111"));
            label.resize(width, 40);
            for (const QString& line : label.displayedLines())
                EXPECT_LE(TextLine(line, SharedFont(Theme::font(Theme::TextStyle::Words))).width(),
                          width + 0.01)
                    << qPrintable(line) << " in " << width;
        }
}

TEST(Label, DifferentSizesShareABaseline) {
    Label value;
    Label unit;
    value.setTextStyle(Theme::TextStyle::Value);
    unit.setTextStyle(Theme::TextStyle::Unit);
    for (Label* label : {&value, &unit}) {
        label->setText(QStringLiteral("HEI"));
        label->setBaseline(6);
        label->resize(60, 24);
    }
    EXPECT_EQ(lastInkedRow(pictureOf(value)), 24 - 6 - 1);
    EXPECT_EQ(lastInkedRow(pictureOf(unit)), 24 - 6 - 1);
}

TEST(TextLine, TabularFiguresHaveOneWidth) {
    const SharedFont font(Theme::font(Theme::TextStyle::Value));
    const auto width = [&](const char* text, TextLine::Figures figures) {
        return TextLine(QString::fromLatin1(text), font, figures).width();
    };
    EXPECT_DOUBLE_EQ(width("1111", TextLine::Figures::Tabular),
                     width("8888", TextLine::Figures::Tabular));
    EXPECT_LT(width("1111", TextLine::Figures::Proportional),
              width("8888", TextLine::Figures::Proportional));
}

TEST(LabelDeathTest, UnknownTextStyleStops) {
    EXPECT_DEATH(
        {
            Label label;
            label.setTextStyleName(QStringLiteral("gigantic"));
        },
        "unknown text style \"gigantic\"");
}

}  // namespace
}  // namespace zephyrix
