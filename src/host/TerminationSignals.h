#pragma once

#include <QObject>

namespace zephyrix {

/// Turns SIGTERM, SIGINT and SIGHUP into a signal of the event loop, so that the panel ends in
/// order. A second one while it still ends has its usual effect. One object in a process.
class TerminationSignals : public QObject {
    Q_OBJECT

  public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

  Q_SIGNALS:
    void received();

  private:
    void takeArrived();
};

}  // namespace zephyrix
