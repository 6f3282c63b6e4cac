#include "SymbolChoice.h"

#include <array>

#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

#include "foundation/Clock.h"
#include "foundation/Localized.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"
#include "symbolscheme/SymbolScheme.h"

namespace zephyrix {

namespace {

constexpr int symbolSize = 36;  // points

struct SymbolSet {
    int number;
    QStringView name;
};
constexpr std::array symbolSets{SymbolSet{0, u"Colour"}, SymbolSet{1, u"Lines"}};

// A fair day, light showers, a thunderstorm by night, snow.
constexpr std::array shownCodes{
    symbolCode(0, 3, CelestialBody::Sun), symbolCode(80, 5, CelestialBody::Sun),
    symbolCode(95, 6, CelestialBody::Moon), symbolCode(73, 8, CelestialBody::Sun)};

QPixmap preview(double scale) {
    const int count = static_cast<int>(shownCodes.size());
    QPixmap strip(QSize(symbolSize * count, symbolSize) * scale);
    strip.setDevicePixelRatio(scale);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    QKCompoundSymbol symbols;
    symbols.setWinscale(scale);
    for (int i = 0; i < count; ++i)
        painter.drawImage(
            QPointF(symbolSize * i, 0.0),
            symbols.symbolForCode(Number(static_cast<qlonglong>(shownCodes.at(std::size_t(i)))),
                                  QSizeF(symbolSize, symbolSize), Clock::now()));
    return strip;
}

}  // namespace

SymbolChoice::SymbolChoice(UserDefaults& panelSettings, QWidget* parent)
    : QWidget(parent), settings_(panelSettings), sets_(new QButtonGroup(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    for (const SymbolSet& set : symbolSets) {
        if (!QKWeatherSymbols::chooseSet(set.number))
            continue;  // not installed
        auto* const button = new QRadioButton(localized(set.name), this);
        button->setObjectName(QStringLiteral("symbols%1").arg(set.number));
        button->setIcon(preview(devicePixelRatioF()));
        button->setIconSize(QSize(symbolSize * static_cast<int>(shownCodes.size()), symbolSize));
        sets_->addButton(button, set.number);
        column->addWidget(button);
    }
    connect(sets_, &QButtonGroup::idClicked, this, [this](int set) {
        settings_.set(QStringLiteral("symbolSet"), set);
        Q_EMIT changed();
    });
}

void SymbolChoice::showStored() {
    const auto stored = settings_.integer(QStringLiteral("symbolSet"));
    QAbstractButton* button = sets_->button(stored == 1 ? 1 : 0);  // the panel takes 0 for others
    if (button != nullptr)
        button->setChecked(true);
}

}  // namespace zephyrix
