// A property list as both settings stores, and the panel that starts on it: place, units, cached
// document, expanded or not.
#include "OffscreenPanel.h"
#include "Surroundings.h"
#include "foundation/PropertyList.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

/// The program's own store is one object as long as it runs: it takes over what is in the file.
void putIntoStores(const QByteArray& list) {
    writeFile(home() + QStringLiteral("/config/zephyrix/group.Zephyrix.plist"), list);
    writeFile(UserDefaults::standard().fileName(), list);
    expect(UserDefaults::standard().synchronize(), "a sound store is read");
}

bool stopsByRule(const QVariantMap& stores) {
    const QVariant place = stores.value(QStringLiteral("location"));
    const QVariant cached = stores.value(QStringLiteral("lastWeatherData"));
    return place.typeId() == QMetaType::QVariantMap && cached.typeId() == QMetaType::QVariantMap &&
           stopsTheStart(cached.toMap(), LocationResult(place.toMap()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto folderMade = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    const QByteArray list = bytesOf(data, size);
    const auto stores = PropertyList::read(list);
    if (!stores || stopsByRule(*stores))
        return 0;  // damaged stores are the business of fuzz_settings
    putIntoStores(list);
    OffscreenPanel().layOut(size);
    return 0;
}
