#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QTextStream>

#include "BarFormat.h"
#include "LivePanel.h"

namespace zephyrix {

/// Prints a bar's line, and prints it anew whenever it has changed. The panel behind it appears and
/// stays up to date as one on the screen does; nothing else wakes it up. Main thread.
class BarFollower : public QObject {
    Q_OBJECT

  public:
    BarFollower(BarFormat format, QTextStream& out);
    ~BarFollower() override;

    /// Takes the panel, which appears. It must stay until the next, or outlive this.
    void hold(LivePanel& panel);

  Q_SIGNALS:
    /// Nobody reads the lines any more.
    void abandoned();

  private:
    void printLater();
    void print();

    BarFormat format_;
    QTextStream& out_;
    std::unique_ptr<QObject> reader_;  // null where the output is no pipe
    LivePanel* panel_ = nullptr;
    std::optional<QString> printed_;
    bool printDue_ = false;
};

}  // namespace zephyrix
