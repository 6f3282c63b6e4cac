#pragma once

#include <cstdint>
#include <optional>

#include <QHash>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

namespace zephyrix {

/// Finds named symbol images in the symbol set that the user chose, and keeps finished symbols in
/// memory and as PNG files that survive a restart. Class operations only; main thread.
///
/// The setting "symbolSet" of the program's own store names the set: K is the folder
/// "symbols_K.bundle" beside the program, or, when there is no such folder, "symbols_0" inside it.
///
/// A key of the caches ends in ".png" and is also the name of the file. A key that is no plain file
/// name stays in memory only. Files are written on a thread of their own after the call that asked
/// for them; a file that cannot be written, or that cannot be read back whole, is as good as none.
class QKWeatherSymbols {
  public:
    /// The finished symbols in memory, by key.
    [[nodiscard]] static QHash<QString, QImage>& symbolCache();

    /// The folder of the chosen symbol set. Once found it is kept: another choice then takes effect
    /// in the next process. While there is none, each call looks again.
    [[nodiscard]] static std::optional<QString> symbolBundle();

    /// Takes a set in place of the user's for this process; for programs that draw what was not
    /// shown yet, without the caches. False when there is no such set; set 0 always is there.
    static bool chooseSet(std::int64_t set);

    /// The folder of the PNG files, "$XDG_CACHE_HOME/zephyrix-panel/symbolCache", made for this
    /// user alone when it does not exist.
    [[nodiscard]] static QString documentsDir();

    /// An image of the chosen set, as it was drawn; null when there is none of this name.
    [[nodiscard]] static QImage imageForSymbolName(const QString& name);

    /// An image fitted into a size in points, with the pixels of the main screen; null when there
    /// is none of this name. A name that begins with a code from 1000000 to 9999999 is composed.
    [[nodiscard]] static QImage imageForSymbolName(const QString& name, const QSizeF& size);

    /// A finished symbol, from memory or else from its file; null when it is in neither.
    [[nodiscard]] static QImage imageFromCacheForKey(const QString& key);
    static void addObjectToCache(const QImage& image, const QString& key);

    /// Forgets all finished symbols, in memory and on disk, also those whose files are not written
    /// yet. What is on screen stays valid. Logs what could not be removed.
    static void clearCache();

    /// The image by name, filling these pixels: a layer ready to be drawn, kept for the next symbol
    /// of the same size. Null when there is none of this name.
    [[nodiscard]] static QImage layerForSymbolName(const QString& name, const QSize& pixels);

    /// Returns when all files are written. An ending QCoreApplication does so by itself.
    static void waitForFiles();

    /// For tests: waits for the files, then forgets all that a new process would not know.
    static void startAfresh();
};

}  // namespace zephyrix
