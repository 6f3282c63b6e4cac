#include "SymbolSet.h"

#include <algorithm>
#include <array>
#include <cmath>
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

std::array<double, 256> linearLight() {
    std::array<double, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double c = double(i) / 255.0;
        table[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    return table;
}

double luminance(QRgb colour) {
    static const std::array<double, 256> linear = linearLight();
    return 0.2126 * linear[std::size_t(qRed(colour))] +
           0.7152 * linear[std::size_t(qGreen(colour))] +
           0.0722 * linear[std::size_t(qBlue(colour))];
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

double contrast(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QRgb over(QRgb pixel, QRgb ground) {
    const double alpha = qAlpha(pixel) / 255.0;
    const auto mix = [&](int above, int below) {
        return int(std::lround(alpha * above + (1 - alpha) * below));
    };
    return qRgb(mix(qRed(pixel), qRed(ground)), mix(qGreen(pixel), qGreen(ground)),
                mix(qBlue(pixel), qBlue(ground)));
}

}  // namespace zephyrix::testing
