#include "DocumentKeeper.h"

#include <QCryptographicHash>

#include "FeedDocument.h"

namespace zephyrix {

namespace {

constexpr std::size_t mostPlaces = 50'000;  // some 2 KB each

/// A document of the future, but for what two threads differ in, is of a clock that was set back.
bool isValidAt(const KeptDocument& document, Instant now) {
    return now < document.validUntil && document.since.secondsSince(now) < 60.0;
}

}  // namespace

std::shared_ptr<const KeptDocument> DocumentKeeper::documentFor(const Place& place,
                                                                Instant now) const {
    const std::shared_ptr<Slot> slot = slotOf(place, now);
    auto document = documentIn(*slot);
    if (document && isValidAt(*document, now))
        return document;
    std::unique_lock making(slot->making, std::defer_lock);
    if (!document)
        making.lock();
    else if (!making.try_lock())
        return document;
    document = documentIn(*slot);  // who held it before may have made one
    if (document && isValidAt(*document, now))
        return document;
    auto made = make(place, document, now);
    const std::lock_guard lock(mutex_);
    slot->document = made;
    return made;
}

std::shared_ptr<DocumentKeeper::Slot> DocumentKeeper::slotOf(const Place& place,
                                                             Instant now) const {
    const std::lock_guard lock(mutex_);
    if (slots_.size() >= mostPlaces)
        std::erase_if(slots_, [&](const auto& entry) {
            const auto& document = entry.second->document;
            return !document || !isValidAt(*document, now);
        });
    if (slots_.size() >= mostPlaces)
        slots_.clear();
    auto& slot = slots_[{place.latitude, place.longitude, place.zone.id()}];
    if (!slot)
        slot = std::make_shared<Slot>();
    return slot;
}

std::shared_ptr<const KeptDocument> DocumentKeeper::documentIn(const Slot& slot) const {
    const std::lock_guard lock(mutex_);
    return slot.document;
}

std::shared_ptr<const KeptDocument> DocumentKeeper::make(
    const Place& place, const std::shared_ptr<const KeptDocument>& before, Instant now) const {
    const auto weather = source_.weatherAt(place, now);
    if (!weather)
        return nullptr;
    KeptDocument document{.body = feedDocument(*weather, place.zone),
                          .tag = {},
                          .since = now,
                          .validUntil = weather->validUntil.value_or(now),
                          .source = weather->source};
    if (before && before->body == document.body && before->since <= now)
        document.since = before->since;
    document.tag =
        "W/\"" + QCryptographicHash::hash(document.body, QCryptographicHash::Sha1).toHex() + '"';
    return std::make_shared<const KeptDocument>(std::move(document));
}

}  // namespace zephyrix
