#include "SymbolSet.h"

#include <span>

#include <QDir>

#include "symbolscheme/SymbolScheme.h"

namespace zephyrix::testing {

namespace {

QString text(std::string_view view) {
    return QString::fromLatin1(view.data(), qsizetype(view.size()));
}

void append(QStringList& names, std::span<const LayerImage> images) {
    for (const LayerImage& image : images)
        names.append(text(image.image));
}

}  // namespace

QImage SymbolSet::image(const QString& name) const {
    return QImage(folder + QLatin1Char('/') + name + QStringLiteral(".png"))
        .convertToFormat(QImage::Format_ARGB32);
}

QStringList SymbolSet::names() const {
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files);
    QStringList symbols;
    for (const QString& name : names)
        if (!name.startsWith(QLatin1String("Wind")))
            symbols.append(name.chopped(4));
    return symbols;
}

const std::vector<SymbolSet>& symbolSets() {
    static const std::vector<SymbolSet> sets{
        {QStringLiteral(":/zephyrix/images/symbols_0"), 78},
        {QStringLiteral(PROGRAM_DIR "/../share/zephyrix/symbols_1.bundle"), 72}};
    return sets;
}

QStringList namesOfScheme() {
    QStringList names;
    append(names, kCelestialImages);
    append(names, kMoonImages);
    append(names, kCloudImages);
    append(names, kWarningImages);
    append(names, kPrecipitationImages);
    for (const LayerImage& image : kPrecipitationImages)
        if (image.value / 100 % 10 < 9)
            names.append(QStringLiteral("noshadow_") + text(image.image));
    return names;
}

int countPixels(const QImage& image,
                const std::function<bool(int x, int y, QRgb pixel)>& condition) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += condition(x, y, image.pixel(x, y)) ? 1 : 0;
    return count;
}

double inkOf(const QImage& image) {
    double ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y)) / 255.0;
    return ink;
}

}  // namespace zephyrix::testing
