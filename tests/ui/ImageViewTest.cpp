#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "ui/Hairline.h"
#include "ui/ImageView.h"
#include "ui/Theme.h"

namespace zephyrix {
namespace {

QImage pictureOf(QWidget& view, double scale) {
    QImage image((QSizeF(view.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage halves(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter(&image).fillRect(0, 0, side, side / 2, Qt::red);
    return image;
}

TEST(ImageView, TurnsClockwiseAboutItsMiddle) {
    ImageView view;
    view.resize(40, 40);
    view.setImage(halves(240));  // the upper half is red
    view.setRotation(90.0);
    const QImage picture = pictureOf(view, 2.0);
    EXPECT_EQ(picture.pixelColor(70, 40), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(10, 40), QColor(Qt::white));
}

TEST(ImageView, FitsWithItsProportionsIntoTheMiddle) {
    ImageView view;
    view.resize(60, 40);
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::blue);
    view.setImage(image);
    const QImage picture = pictureOf(view, 1.0);
    EXPECT_EQ(picture.pixelColor(9, 20).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(10, 20), QColor(Qt::blue));
    EXPECT_EQ(picture.pixelColor(49, 20), QColor(Qt::blue));
    EXPECT_EQ(picture.pixelColor(50, 20).alpha(), 0);
}

// A sharp edge has at most one row of mixed colour, whatever the scale; an image that was painted
// for scale 1 and blown up has several.
TEST(ImageView, IsSharpAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        ImageView view;
        view.resize(40, 40);
        view.setImage(halves(240));
        const QImage picture = pictureOf(view, scale);
        int mixed = 0;
        for (int y = 0; y < picture.height(); ++y) {
            const QColor color = picture.pixelColor(picture.width() / 2, y);
            mixed += color != QColor(Qt::red) && color != QColor(Qt::white) ? 1 : 0;
        }
        EXPECT_LE(mixed, 2) << "scale " << scale;
    }
}

TEST(Hairline, IsOneSharpLineAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        QWidget window;
        window.resize(40, 21);
        Hairline line(&window);
        line.setGeometry(0, 9, 40, 1);
        const QImage picture = pictureOf(window, scale);
        int inked = 0;
        for (int y = 0; y < picture.height(); ++y)
            inked += picture.pixelColor(20, y).alpha() > 0 ? 1 : 0;
        EXPECT_EQ(inked, 1) << "scale " << scale;
    }
}

}  // namespace
}  // namespace zephyrix
