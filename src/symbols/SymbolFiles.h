#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

#include <QImage>
#include <QString>

#include "foundation/OperationQueue.h"

namespace zephyrix {

/// The PNG image in a file, in premultiplied alpha; with the scale that writing it has noted, else
/// 1. Null when the file does not exist, is cut off, is no plain file, or holds an image larger
/// than any symbol.
[[nodiscard]] QImage readSymbolFile(const QString& path);

/// Writes images as PNG files, one after the other, on a thread of its own which starts with the
/// first image. Its operations are called on the main thread. A file that cannot be written is
/// removed.
class SymbolFileWriter {
  public:
    SymbolFileWriter() = default;
    /// Leaves out what is not begun; see waitUntilDone().
    ~SymbolFileWriter();
    SymbolFileWriter(const SymbolFileWriter&) = delete;
    SymbolFileWriter& operator=(const SymbolFileWriter&) = delete;

    void write(const QImage& image, const QString& path);
    /// The image that is to be in a file but is not all there yet; null when there is none.
    [[nodiscard]] QImage unwrittenImage(const QString& path);
    /// Returns when all files are written.
    void waitUntilDone();
    /// Leaves out what is not begun and returns when the rest is done.
    void discard();

  private:
    struct Job {
        QImage image;
        QString path;
    };

    void writeFirst();

    std::mutex mutex_;
    std::condition_variable written_;
    std::deque<Job> jobs_;
    bool writing_ = false;  // the first of the jobs has begun
    OperationQueue queue_;  // last: it ends before what it uses
};

}  // namespace zephyrix
