#pragma once

#include <map>
#include <memory>

#include <QByteArray>
#include <QString>
#include <QUrl>

#include "weather/WeatherSource.h"

namespace zephyrix {

/// Which public weather service is asked, and as whom.
struct BridgeSettings {
    QString source;   // one of weatherSourceNames(), but "demo"
    QString contact;  // an e-mail or web address of who runs this; empty where not given
    std::map<QString, QUrl> addresses{};  // others than the services' own, by service
};

/// The public weather services, ready to be asked. Lives as long as its source is asked.
class Bridge {
  public:
    /// Throws BadOption for a source that there is not, for a contact that is no address, and for a
    /// service that refuses clients without a contact when there is none.
    Bridge(const BridgeSettings& settings, const QByteArray& programVersion);
    ~Bridge();
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;

    [[nodiscard]] const WeatherSource& source() const;

  private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace zephyrix
