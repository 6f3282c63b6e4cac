#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>

namespace zephyrix {

/// The feed server that the panel starts for itself, on loopback, when no other is named. It runs
/// from the first address() on until this object ends. When the panel's process dies in another
/// way, the server sees the end of its standard input and ends too. Main thread.
///
/// It gets no more than it needs: of the environment what says where the shared settings lie, the
/// language and the zone; of the open files its three standard ones; no right to gain others.
class FeedChild : public QObject {
    Q_OBJECT

  public:
    using Then = std::function<void(const QString& base)>;

    static constexpr std::chrono::seconds patience{5};  // until the server says its port

    /// The program to run, "zephyrix-feedd" beside this one unless given.
    explicit FeedChild(QString program = {});
    ~FeedChild() override;

    /// Starts the server unless it runs, and hands on "http://127.0.0.1:PORT/"; an empty text,
    /// after one line in the log, when it does not come up.
    void address(Then then);

  private:
    void start();
    void readPort();
    void ended(const QString& why);
    void stop();
    void answer();

    QString program_;
    std::unique_ptr<QProcess> process_;  // null when none runs
    QTimer deadline_;
    QString base_;  // empty until the server has said its port
    QByteArray heard_;
    std::vector<Then> waiting_;
};

}  // namespace zephyrix
