// What a feed sends: read, kept, restored, laid out, painted.
#include "OffscreenPanel.h"
#include "Surroundings.h"
#include "foundation/PropertyList.h"
#include "widget/FeedAnswer.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

const QString documentKey = QStringLiteral("lastWeatherData");

OffscreenPanel& panelInBerlin() {
    static OffscreenPanel* const panel = [] {
        UserDefaults::suite(QStringLiteral("group.Zephyrix"))
            ->set(QStringLiteral("location"), LocationResult::defaultSearchResult().asDict());
        return new OffscreenPanel;
    }();
    return *panel;
}

/// What the store takes, the next start finds again. (A document that no store can hold is refused
/// by it, and the one before stays.)
void checkRestored(const WeatherData& document) {
    const auto bytes = PropertyList::write({{documentKey, document.asDict()}});
    if (!document.obs || !bytes)
        return;
    const auto stored = PropertyList::read(*bytes);
    expect(stored.has_value(), "what was written can be read");
    const WeatherData restored(stored->value(documentKey).toMap());
    expect(restored.uid == document.uid, "the place's uid is restored");
    expect(restored.isValid() == document.isValid(), "a valid document stays valid");
    expect(restored.obs->date == document.obs->date, "the observation's time is restored");
    expect(restored.obs->symbol == document.obs->symbol, "the symbol is restored");
    expect(stopsTheRow(*restored.obs) == stopsTheRow(*document.obs),
           "a document that can be shown can be shown again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    OffscreenPanel& panel = panelInBerlin();
    const auto place = LocationResult::defaultSearchResult();
    WeatherData document = FeedAnswer::fromBody(bytesOf(data, size), *place.uid()).document;
    checkRestored(document);
    if (document.obs && stopsTheRow(*document.obs))
        document.obs.reset();  // the forecast is still shown
    panel.controller().setLastWeatherData(document);
    panel.layOut(size);
    return 0;
}
