#pragma once

#include <memory>

#include <QObject>
#include <QString>

namespace zephyrix {

/// The one panel of a user on a display. A start that finds another asks it to show itself, and
/// ends; the one that is there hears of it by shownAgain(). It listens on a socket in
/// $XDG_RUNTIME_DIR that only its user can open. What a killed panel left behind is replaced.
/// Main thread.
class OnlyInstance : public QObject {
    Q_OBJECT

  public:
    /// The folder must exist; that of the user's session unless given.
    explicit OnlyInstance(const QString& folder = {});
    ~OnlyInstance() override;

    /// Whether another panel runs already: it has been asked to show itself. Where nothing can be
    /// asked and nothing be listened on, every start is a panel of its own, after one line in the
    /// log.
    [[nodiscard]] bool isTaken() const noexcept { return taken_; }

  Q_SIGNALS:
    void shownAgain();

  private:
    class Listener;

    void listen(const QString& path);

    std::unique_ptr<Listener> listener_;  // null when nobody will be heard
    bool taken_ = false;
};

}  // namespace zephyrix
