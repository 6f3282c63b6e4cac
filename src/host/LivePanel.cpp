#include "LivePanel.h"

#include <utility>

#include "foundation/Log.h"
#include "symbols/QKWeatherSymbols.h"
#include "ui/SharedFont.h"
#include "ui/Theme.h"

namespace zephyrix {

LivePanel::LivePanel(WeatherFeed::BaseAddress feed, ExtensionContext& context, const Size& size,
                     bool expanded, std::unique_ptr<WakeSource> wakes)
    : guard_(StartGuard::defaultNoteFile(), UserDefaults::standard()),
      controller_(std::move(feed)),
      view_(controller_),
      schedule_(controller_, std::move(wakes)),
      place_(storedPlace()),
      symbolSet_(storedSymbols()) {
    controller_.setExtensionContext(&context);
    if (expanded)
        controller_.setShowingAll(true);
    view_.layOut(size.width, size.scale);
    guard_.started();
    if (!SharedFont(Theme::font(Theme::TextStyle::Words)).has(QLatin1Char('A')))
        logLine(QStringLiteral("no font is installed: texts cannot be read"));
    connect(&controller_.sharedDefaults(), &UserDefaults::changedByOthers, this,
            &LivePanel::takeNews);
    connect(&UserDefaults::standard(), &UserDefaults::changedByOthers, this,
            &LivePanel::takeSymbols);
}

void LivePanel::appear() {
    if (std::exchange(inSight_, true))
        return;
    controller_.viewWillAppear(false);
    schedule_.panelAppeared();
}

void LivePanel::disappear() {
    if (!std::exchange(inSight_, false))
        return;
    controller_.viewWillDisappear(false);
    schedule_.panelDisappeared();
}

QVariant LivePanel::storedPlace() const {
    return controller_.sharedDefaults().object(QStringLiteral("location"));
}

void LivePanel::takeNews() {
    if (storedPlace() != place_) {
        Q_EMIT placeChanged();
        return;
    }
    layOutRows();
    Q_EMIT unitsChanged();
}

std::int64_t LivePanel::storedSymbols() {
    return UserDefaults::standard().integer(QStringLiteral("symbolSet"));
}

void LivePanel::takeSymbols() {
    const std::int64_t set = storedSymbols();
    if (std::exchange(symbolSet_, set) == set)
        return;
    if (!QKWeatherSymbols::chooseSet(set))
        QKWeatherSymbols::chooseSet(0);  // as it is with a set that is not installed
    QKWeatherSymbols::clearCache();
    layOutRows();
    Q_EMIT unitsChanged();
}

void LivePanel::layOutRows() {
    for (int row = 0; row < controller_.numberOfRowsInSection(0); ++row)
        if (TableCell* cell = controller_.tableView()->cellForRow({row, 0}))
            cell->setNeedsLayout();
}

}  // namespace zephyrix
