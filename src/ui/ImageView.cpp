#include "ImageView.h"

#include <algorithm>
#include <array>

#include <QEvent>
#include <QFile>
#include <QPainter>

#include "DeviceGrid.h"
#include "Theme.h"
#include "foundation/Bundle.h"
#include "png/PngImage.h"

namespace zephyrix {

namespace {

// Turning blurs by half a pixel, which is not seen when it happens at twice the size.
constexpr int turnedAt = 2;

/// Of a catalogue's image, in a folder of its own, that many pixels wide and high.
struct SmallerCopy {
    const char* folder;
    int side;
};
constexpr std::array smallerCopies{SmallerCopy{"quarter/", 60}, SmallerCopy{"half/", 120}};

QImage catalogueImage(const QString& path) {
    constexpr int longestSide = 1024;  // pixels
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? readPng(file.readAll(), longestSide) : QImage();
}

}  // namespace

ImageView::ImageView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ImageView::setImage(const QImage& image) {
    imageName_.clear();
    image_ = image;
    ready_ = QImage();
    update();
}

void ImageView::setImageName(const QString& name) {
    imageName_ = name;
    image_ = QImage();
    forgetCatalogueImage();
}

void ImageView::setFollowsScheme(bool follows) {
    followsScheme_ = follows;
    forgetCatalogueImage();
}

void ImageView::forgetCatalogueImage() {
    if (!imageName_.isEmpty())
        image_ = QImage();
    ready_ = QImage();
    update();
}

QString ImageView::catalogueName() const {
    if (!followsScheme_)
        return imageName_;
    QString name = imageName_;
    name.replace(QLatin1String(".png"), Theme::scheme() == Theme::Scheme::Dark
                                            ? QLatin1String("-dark.png")
                                            : QLatin1String("-light.png"));
    return Bundle::main().pathForImage(name).isEmpty() ? imageName_ : name;
}

// Most screens need no more than a smaller copy, which takes a quarter of the work or less.
void ImageView::readCatalogueImage(const QSize& pixels) {
    const int needed = std::max(pixels.width(), pixels.height());
    if (!image_.isNull() && needed <= largestNeed_)
        return;
    const QString name = catalogueName();
    QString path = Bundle::main().pathForImage(name);
    largestNeed_ = QWIDGETSIZE_MAX;
    for (const SmallerCopy& copy : smallerCopies) {
        const QString smaller = Bundle::main().pathForImage(QLatin1String(copy.folder) + name);
        if (needed > copy.side || smaller.isEmpty())
            continue;
        path = smaller;
        largestNeed_ = copy.side;
        break;
    }
    image_ = catalogueImage(path);
    ready_ = QImage();
}

void ImageView::setRotation(double degrees) {
    if (degrees == rotation_)
        return;
    rotation_ = degrees;
    ready_ = QImage();
    update();
}

// Scaling down first and painting pixel for pixel afterwards is much smoother than a scaled paint.
QImage ImageView::fitted(const QSize& pixels) const {
    QImage image = image_.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QSize target = image.size().scaled(pixels, Qt::KeepAspectRatio);
    if (target != image.size())
        image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(1.0);
    return image;
}

QImage ImageView::turned(const QImage& source) const {
    QImage canvas(source.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // In bands: Qt gives more rows to threads of its own, which wake up once more half a minute
    // later.
    constexpr int rowsAtOnce = 64;
    for (int top = 0; top < canvas.height(); top += rowsAtOnce) {
        painter.save();
        painter.setClipRect(0, top, canvas.width(), rowsAtOnce);
        painter.translate(canvas.width() / 2.0, canvas.height() / 2.0);
        painter.rotate(rotation_);
        painter.drawImage(QPointF(-source.width() / 2.0, -source.height() / 2.0), source);
        painter.restore();
    }
    return canvas;
}

void ImageView::paintEvent(QPaintEvent* /*event*/) {
    if (image_.isNull() && imageName_.isEmpty())
        return;
    QPainter painter(this);
    const DeviceGrid grid(painter);
    const double ratio = grid.scale();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (!imageName_.isEmpty())
        readCatalogueImage(rotation_ == 0.0 ? pixels : pixels * turnedAt);
    if (image_.isNull())
        return;
    if (ready_.isNull() || ready_.devicePixelRatio() != ratio ||
        (ready_.width() != pixels.width() && ready_.height() != pixels.height())) {
        ready_ = rotation_ == 0.0
                     ? fitted(pixels)
                     : turned(fitted(pixels * turnedAt))
                           .scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        ready_.setDevicePixelRatio(ratio);
    }
    const QSizeF shown = QSizeF(ready_.size()) / ratio;
    const QPointF corner((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0);
    painter.drawImage(grid.snapped(corner), ready_);
}

void ImageView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        forgetCatalogueImage();
}

}  // namespace zephyrix
