#include "SymbolFiles.h"

#include <algorithm>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include "png/PngImage.h"

namespace zephyrix {

namespace {

constexpr int largestSide = 4096;                 // pixels
constexpr qint64 largestFile = qint64{64} << 20;  // bytes: as much as the largest image
constexpr double largestScale = 16.0;
constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// The keyword under which a PNG file says the scale of its image.
constexpr auto scaleTag = "Scale";

/// Deliberately in place: a reader that finds half a file takes it for none.
void writeFile(const QImage& image, const QString& path) {
    if (const QFileInfo there(path); there.exists() && !there.isFile())
        return;  // a pipe would make us wait
    const QByteArray bytes = pngOf(image, scaleTag, QByteArray::number(image.devicePixelRatio()));
    QFile file(path);
    if (bytes.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered, ownerOnly))
        return;
    if (file.write(bytes) != bytes.size())
        file.remove();
}

}  // namespace

QImage readSymbolFile(const QString& path) {
    if (!QFileInfo(path).isFile())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return {};
    const QByteArray bytes = file.readAll();
    QImage image = readPng(bytes, largestSide);
    const double scale = pngText(bytes, scaleTag).toDouble();
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
