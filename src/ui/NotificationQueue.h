#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QString>

namespace zephyrix {

/// Something that happened to an object, told by name to whoever wants to know. Main thread.
///
/// Posts are coalesced by name: while a post is under way (an observer is being told), further
/// posts of the same name are dropped, so that an observer which provokes the notification again is
/// told once.
class NotificationQueue {
  public:
    using Observer = std::function<void(QObject* sender)>;

    static NotificationQueue& standard();

    /// The observer is told of every post of this name until `owner` is destroyed or removed.
    void addObserver(QObject* owner, const QString& name, Observer observer);
    void removeObserver(const QObject* owner);

    /// Tells the observers before it returns.
    void postNow(const QString& name, QObject* sender);

  private:
    struct Entry {
        QObject* owner;
        QString name;
        Observer observer;
    };
    std::vector<Entry> entries_;
    std::vector<QString> underWay_;
};

}  // namespace zephyrix
