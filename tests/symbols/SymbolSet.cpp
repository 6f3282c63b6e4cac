#include "SymbolSet.h"

#include <QDir>

#include "foundation/Bundle.h"
#include "foundation/Screen.h"
#include "support/TestHome.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix::testing {

void SymbolSet::SetUp() {
    dataFolder_ = freshFolder();
    QDir().mkpath(setFolder());
    Bundle::main().setDataDirectory(dataFolder_);
    setScreenScale(1.0);
    QKWeatherSymbols::clearCache();
    QKWeatherSymbols::startAfresh();
}

void SymbolSet::TearDown() {
    QKWeatherSymbols::clearCache();
    Bundle::main().setDataDirectory({});
}

void SymbolSet::add(const QString& name, const QImage& image) const {
    ASSERT_TRUE(image.save(QStringLiteral("%1/%2.png").arg(setFolder(), name)));
}

void SymbolSet::addFilled(const QString& name) {
    const auto number = static_cast<int>(colours_.size());
    const QColor colour(255 - 8 * number, 64 + 4 * number, 8 * number);
    colours_.insert(name, colour.rgb());
    add(name, filled({8, 8}, colour));
}

QString SymbolSet::nameOf(const QImage& image) const {
    return image.isNull() ? QString() : colours_.key(image.pixel(0, 0), QStringLiteral("?"));
}

QColor SymbolSet::colourOf(const QString& name) const {
    return QColor::fromRgb(colours_.value(name));
}

QString SymbolSet::setFolder() const {
    return dataFolder_ + QStringLiteral("/symbols_0.bundle");
}

void setScreenScale(double scale) {
    Screen::setMain(Screen::main().bounds(), scale);
}

QImage filled(const QSize& pixels, const QColor& colour) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

}  // namespace zephyrix::testing
