#include "SymbolFiles.h"

#include <algorithm>
#include <array>

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>

namespace zephyrix {

namespace {

constexpr int largestSide = 4096;  // pixels
constexpr double largestScale = 16.0;
// Of Qt's 0 (smallest file) to 100: a third of the default's time for a file a little larger.
constexpr int pngQuality = 80;
constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QByteArray pngFormat() {
    return QByteArrayLiteral("png");
}

/// The text of a PNG file that keeps the scale of its image.
QString scaleTag() {
    return QStringLiteral("Scale");
}

QByteArray encoded(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, pngFormat());
    writer.setQuality(pngQuality);
    writer.setText(scaleTag(), QString::number(image.devicePixelRatio()));
    return writer.write(image) ? bytes : QByteArray();
}

/// Deliberately in place: a reader that finds half a file takes it for none.
void writeFile(const QImage& image, const QString& path) {
    if (const QFileInfo there(path); there.exists() && !there.isFile())
        return;  // a pipe would make us wait
    const QByteArray bytes = encoded(image);
    QFile file(path);
    if (bytes.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered, ownerOnly))
        return;
    if (file.write(bytes) != bytes.size())
        file.remove();
}

/// Whether each part of a PNG file (length, name, content, checksum) ends inside of the file. The
/// codec would make room for whatever a damaged length claims, gigabytes, before it reads on.
bool holdsItsParts(QFile& file) {
    constexpr qint64 signature = 8;
    constexpr qint64 frame = 12;    // length, name and checksum
    constexpr qint64 headSize = 8;  // length and name
    std::array<char, headSize> head{};
    qint64 at = signature;
    while (file.seek(at) && file.read(head.data(), headSize) == headSize) {
        at += frame + qFromBigEndian<quint32>(head.data());
        if (at > file.size())
            return false;
        if (QByteArrayView(head).last(4) == QByteArrayView("IEND"))
            return file.seek(0);
    }
    return false;
}

}  // namespace

QImage readSymbolFile(const QString& path) {
    if (!QFileInfo(path).isFile())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !holdsItsParts(file))
        return {};
    QImageReader reader(&file, pngFormat());
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    QImage image = reader.read();
    if (image.isNull())
        return {};
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    const double scale = image.text(scaleTag()).toDouble();
    if (scale > 0 && scale <= largestScale)
        image.setDevicePixelRatio(scale);
    return image;
}

SymbolFileWriter::~SymbolFileWriter() {
    discard();
}

void SymbolFileWriter::write(const QImage& image, const QString& path) {
    {
        const std::scoped_lock lock(mutex_);
        jobs_.push_back({image, path});
    }
    queue_.addOperation([this] { writeFirst(); });
}

QImage SymbolFileWriter::unwrittenImage(const QString& path) {
    const std::scoped_lock lock(mutex_);
    const auto job = std::find_if(jobs_.rbegin(), jobs_.rend(),
                                  [&](const Job& each) { return each.path == path; });
    return job == jobs_.rend() ? QImage() : job->image;
}

void SymbolFileWriter::waitUntilDone() {
    std::unique_lock lock(mutex_);
    written_.wait(lock, [this] { return jobs_.empty(); });
}

void SymbolFileWriter::discard() {
    {
        const std::scoped_lock lock(mutex_);
        jobs_.erase(jobs_.begin() + (writing_ ? 1 : 0), jobs_.end());
    }
    waitUntilDone();
}

void SymbolFileWriter::writeFirst() {
    std::unique_lock lock(mutex_);
    if (jobs_.empty())
        return;  // discarded meanwhile
    writing_ = true;
    const Job& job = jobs_.front();  // stays where it is: others only add and remove behind it
    lock.unlock();
    writeFile(job.image, job.path);
    lock.lock();
    writing_ = false;
    jobs_.pop_front();
    written_.notify_all();
}

}  // namespace zephyrix
