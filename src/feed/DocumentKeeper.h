#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <tuple>

#include <QByteArray>
#include <QString>

#include "weather/WeatherSource.h"

namespace zephyrix {

/// The panel's document for a place, ready to be sent.
struct KeptDocument {
    QByteArray body;
    QByteArray tag;      // W/"...": the same for the same document, however it is compressed
    Instant since;       // when it first said this
    Instant validUntil;  // before that its source has nothing new
    QString source;
};

/// Makes a document once for all who ask while it is valid. Of several who ask for a place
/// together one goes to the source; the others get the document before, or wait when there is none.
/// Any thread.
class DocumentKeeper {
  public:
    /// The source must outlive it.
    explicit DocumentKeeper(const WeatherSource& source) : source_(source) {}

    /// Null when the source knows nothing at present.
    [[nodiscard]] std::shared_ptr<const KeptDocument> documentFor(const Place& place,
                                                                  Instant now) const;

  private:
    struct Slot {
        std::mutex making;                             // held while the source is asked
        std::shared_ptr<const KeptDocument> document;  // guarded by the keeper's mutex
    };
    using Key = std::tuple<double, double, QByteArray>;

    [[nodiscard]] std::shared_ptr<Slot> slotOf(const Place& place, Instant now) const;
    [[nodiscard]] std::shared_ptr<const KeptDocument> documentIn(const Slot& slot) const;
    [[nodiscard]] std::shared_ptr<const KeptDocument> make(
        const Place& place, const std::shared_ptr<const KeptDocument>& before, Instant now) const;

    const WeatherSource& source_;
    mutable std::mutex mutex_;  // guards what follows
    mutable std::map<Key, std::shared_ptr<Slot>> slots_;
};

}  // namespace zephyrix
