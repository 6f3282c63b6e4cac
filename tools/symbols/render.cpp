// Renders every SVG file of a folder as a PNG file of the same name.
//
//     symbols-render FOLDER OUTPUT SIZE
//
// SIZE is the width and height in pixels. Stops with one line at the first file it cannot read or
// write.
#include <cstdio>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int kBestCompression = 0;  // "quality" of QImage::save for PNG

bool render(const QString& source, const QString& target, int size) {
    QSvgRenderer drawing(source);
    if (!drawing.isValid())
        return false;
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawing.render(&painter);
    painter.end();
    return image.save(target, "PNG", kBestCompression);
}

}  // namespace

int main(int argc, char** argv) {
    const int size = argc == 4 ? QByteArray(argv[3]).toInt() : 0;
    if (size <= 0) {
        std::fputs("usage: symbols-render FOLDER OUTPUT SIZE\n", stderr);
        return 2;
    }
    const QDir sources(QString::fromLocal8Bit(argv[1]));
    const QDir targets(QString::fromLocal8Bit(argv[2]));
    targets.mkpath(QStringLiteral("."));
    for (const QFileInfo& file : sources.entryInfoList({QStringLiteral("*.svg")}, QDir::Files)) {
        const QString target = targets.filePath(file.completeBaseName() + QStringLiteral(".png"));
        if (!render(file.filePath(), target, size)) {
            std::fprintf(stderr, "symbols-render: cannot make %s\n", qPrintable(target));
            return 1;
        }
    }
    return 0;
}
