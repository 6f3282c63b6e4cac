// What a person types into the search for places.
#include <set>

#include "Surroundings.h"
#include "places/PlaceList.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

constexpr std::size_t most = 10;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static PlaceList list(QStringLiteral("ru"));
    const QString text = QString::fromUtf8(bytesOf(data, size));
    const auto found = list.search(text, most);
    expect(found.size() <= most, "no more than asked for");
    std::set<std::int64_t> uids;
    for (const ListedPlace& place : found) {
        expect(uids.insert(place.uid).second, "each place once");
        expect(locationOf(place).checkValidity(), "what is found can be chosen");
        expect(list.place(place.uid).has_value(), "what is found is in the list");
    }
    expect(!list.search(QStringLiteral("tromso"), 1).empty(), "the list is as it was");
    return 0;
}
