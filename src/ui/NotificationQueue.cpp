#include "NotificationQueue.h"

#include <algorithm>
#include <utility>

#include <QPointer>

namespace zephyrix {

NotificationQueue& NotificationQueue::standard() {
    static NotificationQueue queue;
    return queue;
}

void NotificationQueue::addObserver(QObject* owner, const QString& name, Observer observer) {
    entries_.push_back({owner, name, std::move(observer)});
    QObject::connect(owner, &QObject::destroyed,
                     [this](const QObject* gone) { removeObserver(gone); });
}

void NotificationQueue::removeObserver(const QObject* owner) {
    std::erase_if(entries_, [&](const Entry& entry) { return entry.owner == owner; });
}

void NotificationQueue::postNow(const QString& name, QObject* sender) {
    if (std::ranges::find(underWay_, name) != underWay_.end())
        return;
    underWay_.push_back(name);
    // Observers may come and go while they are told: each is asked for again before its turn.
    std::vector<std::pair<QPointer<QObject>, Observer>> turns;
    for (const Entry& entry : entries_)
        if (entry.name == name)
            turns.emplace_back(entry.owner, entry.observer);
    for (const auto& [owner, observer] : turns)
        if (owner)
            observer(sender);
    std::erase(underWay_, name);
}

}  // namespace zephyrix
