#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "FeedTransport.h"

namespace zephyrix {

/// The transport that is loaded with the first request: a module of its own, as what it links takes
/// longer to load than the panel takes to show what it knows already. Loaded once, it stays for the
/// life of the process.
///
/// A module that is missing, cannot be loaded or belongs to another version of the program is a
/// transport error of that request, and is tried again with the next. Main thread.
class TransportModule : public FeedTransport {
  public:
    /// What a module gives under the name of makeFunction: a new transport, owned by the caller;
    /// null when it is not of that version.
    using Make = FeedTransport* (*)(const char* version);
    static constexpr const char* makeFunction = "zephyrix_make_transport";

    /// The module's file, that of the installation unless given: it lies where the build says, as
    /// seen from the running program.
    explicit TransportModule(QString file = {});

    void get(const QUrl& address, const FeedLimits& limits, Handler handler) override;

  private:
    /// Makes the transport; else says why it cannot.
    [[nodiscard]] QString load();

    QString file_;
    std::unique_ptr<FeedTransport> transport_;  // null until it is loaded
    QObject failures_;                          // they are told only while it lives
};

}  // namespace zephyrix
