#include "QKWeatherSymbols.h"

#include <filesystem>
#include <system_error>

#include <QCache>
#include <QCoreApplication>
#include <QStandardPaths>

#include "foundation/Bundle.h"
#include "foundation/Description.h"
#include "foundation/Log.h"
#include "foundation/Number.h"
#include "foundation/PrivateFolder.h"
#include "foundation/Screen.h"
#include "foundation/UserDefaults.h"
#include "symbols/ImageResize.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/SymbolFiles.h"
#include "symbols/SymbolKey.h"

namespace zephyrix {

namespace {

constexpr std::int64_t firstCode = 1'000'000;
constexpr std::int64_t lastCode = 9'999'999;
constexpr qsizetype layerMemory = 8 * 1024;  // kB

struct LayerKey {
    QString bundle;  // empty for the set inside the program
    QString name;
    QSize pixels;  // invalid for the image as it was drawn

    friend bool operator==(const LayerKey&, const LayerKey&) = default;
    friend std::size_t qHash(const LayerKey& key, std::size_t seed) {
        return qHashMulti(seed, key.bundle, key.name, key.pixels.width(), key.pixels.height());
    }
};

/// What the process keeps, each part made on first use.
struct Kept {
    QHash<QString, QImage> symbols;
    QCache<LayerKey, QImage> layers{layerMemory};
    std::optional<std::int64_t> chosenSet;  // instead of the user's
    std::optional<QString> bundle;
    QString folder;  // empty until it is needed
};

Kept& kept() {
    static Kept values;
    return values;
}

/// The one writer. An application that ends waits for its files; later there would be no codec.
SymbolFileWriter& fileWriter() {
    static SymbolFileWriter writer;
    static const bool waits = [] {
        qAddPostRoutine([] { QKWeatherSymbols::waitForFiles(); });
        return true;
    }();
    Q_UNUSED(waits)
    return writer;
}

bool isPlainFileName(const QString& name) {
    return !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null) && !name.isEmpty();
}

/// The path of a key's file; empty for a key that would lead out of the folder.
QString filePath(const QString& key) {
    return isPlainFileName(key) ? QKWeatherSymbols::documentsDir() + QLatin1Char('/') + key
                                : QString();
}

QString pathOfSet(std::int64_t set) {
    return Bundle::main().pathForResource(QStringLiteral("symbols_%1.bundle").arg(set));
}

QImage catalogueImage(const QString& name) {
    return readSymbolFile(Bundle::main().pathForImage(name));
}

QImage loadedImage(const std::optional<QString>& bundle, const QString& name) {
    if (!bundle)
        return catalogueImage(QStringLiteral("symbols_0/") + name);
    const QImage image = isPlainFileName(name)
                             ? readSymbolFile(QStringLiteral("%1/%2.png").arg(*bundle, name))
                             : QImage();
    return image.isNull() ? catalogueImage(name) : image;
}

/// The image under a key of the layers, made and kept when it is not there yet.
template <typename Make>
QImage keptLayer(const LayerKey& key, const Make& make) {
    auto& layers = kept().layers;
    if (const QImage* image = layers.object(key))
        return *image;
    const QImage image = make();
    if (!image.isNull())
        layers.insert(key, std::make_unique<QImage>(image).release(), image.sizeInBytes() / 1024);
    return image;
}

QImage composedSymbol(const QString& name, const QSizeF& pixelSize) {
    const std::int64_t code = integerValueOf(name);
    if (code < firstCode || code > lastCode)
        return {};
    return QKCompoundSymbol().symbolForCode(Number(static_cast<qlonglong>(code)), pixelSize);
}

std::error_code removeFolder(const QString& path) {
    std::error_code error;
    const auto removed = std::filesystem::remove_all(path.toStdString(), error);
    if (!error && removed == 0)
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return error;
}

}  // namespace

bool QKWeatherSymbols::chooseSet(std::int64_t set) {
    if (set != 0 && pathOfSet(set).isEmpty())
        return false;
    kept().chosenSet = set;
    kept().bundle.reset();
    return true;
}

QHash<QString, QImage>& QKWeatherSymbols::symbolCache() {
    return kept().symbols;
}

std::optional<QString> QKWeatherSymbols::symbolBundle() {
    auto& bundle = kept().bundle;
    if (!bundle) {
        const auto& chosen = kept().chosenSet;
        const auto set =
            chosen ? *chosen : UserDefaults::standard().integer(QStringLiteral("symbolSet"));
        const QString path = pathOfSet(set);
        if (!path.isEmpty())
            bundle = path;
    }
    return bundle;
}

QString QKWeatherSymbols::documentsDir() {
    auto& folder = kept().folder;
    if (folder.isEmpty()) {
        const QString panel =
            QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
            QStringLiteral("/zephyrix-panel");
        folder = panel + QStringLiteral("/symbolCache");
        makePrivateFolder(panel);
        makePrivateFolder(folder);
    }
    return folder;
}

QImage QKWeatherSymbols::imageForSymbolName(const QString& name) {
    const auto bundle = symbolBundle();
    return keptLayer({bundle.value_or(QString()), name, QSize()},
                     [&] { return loadedImage(bundle, name); });
}

QImage QKWeatherSymbols::layerForSymbolName(const QString& name, const QSize& pixels) {
    return keptLayer({symbolBundle().value_or(QString()), name, pixels}, [&] {
        const QImage image = imageForSymbolName(name);
        return image.isNull() ? image : scaledToPixels(image, pixels, InterpolationQuality::High);
    });
}

QImage QKWeatherSymbols::imageForSymbolName(const QString& name, const QSizeF& size) {
    const double scale = Screen::main().scale();
    const QString key = symbolKey(name, size, static_cast<double>(static_cast<float>(scale)));
    QImage image = imageFromCacheForKey(key);
    if (!image.isNull())
        return image;
    const QSizeF pixelSize = size * scale;
    image = composedSymbol(name, pixelSize);
    if (image.isNull())
        image = imageForSymbolName(name);
    image = resizedImageWithContentMode(image, ContentMode::ScaleAspectFit, pixelSize,
                                        InterpolationQuality::High);
    addObjectToCache(image, key);
    return image;
}

QImage QKWeatherSymbols::imageFromCacheForKey(const QString& key) {
    const auto found = symbolCache().constFind(key);
    if (found != symbolCache().constEnd())
        return *found;
    const QString path = filePath(key);
    if (path.isEmpty())
        return {};
    QImage image = fileWriter().unwrittenImage(path);
    if (image.isNull())
        image = readSymbolFile(path);
    if (!image.isNull())
        symbolCache().insert(key, image);
    return image;
}

void QKWeatherSymbols::addObjectToCache(const QImage& image, const QString& key) {
    if (image.isNull())
        return;
    symbolCache().insert(key, image);
    const QString path = filePath(key);
    if (!path.isEmpty())
        fileWriter().write(image, path);
}

void QKWeatherSymbols::clearCache() {
    fileWriter().discard();
    symbolCache().clear();
    kept().layers.clear();
    const QString folder = documentsDir();
    if (const std::error_code error = removeFolder(folder))
        logLine(description(
            QVariantMap{{QStringLiteral("path"), folder},
                        {QStringLiteral("error"), QString::fromStdString(error.message())}}));
    kept().folder.clear();
}

void QKWeatherSymbols::waitForFiles() {
    fileWriter().waitUntilDone();
}

void QKWeatherSymbols::startAfresh() {
    waitForFiles();
    kept().symbols.clear();
    kept().layers.clear();
    kept().bundle.reset();
    kept().chosenSet.reset();
    kept().folder.clear();
}

}  // namespace zephyrix
