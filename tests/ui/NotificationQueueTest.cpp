#include <memory>

#include <QObject>
#include <gtest/gtest.h>

#include "ui/NotificationQueue.h"

namespace zephyrix {
namespace {

const QString name = QStringLiteral("QKArrowSettingChanged");

TEST(NotificationQueue, PostsReachTheObserversOfTheirNameAtOnce) {
    NotificationQueue queue;
    QObject owner;
    QObject sender;
    const QObject* told = nullptr;
    queue.addObserver(&owner, name, [&](QObject* from) { told = from; });
    queue.postNow(QStringLiteral("Other"), &owner);
    EXPECT_EQ(told, nullptr);
    queue.postNow(name, &sender);
    EXPECT_EQ(told, &sender);
}

TEST(NotificationQueue, APostFromAnObserverOfTheSameNameIsCoalesced) {
    NotificationQueue queue;
    QObject owner;
    int told = 0;
    queue.addObserver(&owner, name, [&](QObject* from) {
        ++told;
        queue.postNow(name, from);
    });
    queue.postNow(name, &owner);
    EXPECT_EQ(told, 1);
    queue.postNow(name, &owner);
    EXPECT_EQ(told, 2);
}

TEST(NotificationQueue, AnObserverThatGoesWhileOthersAreToldIsNotTold) {
    NotificationQueue queue;
    QObject first;
    auto second = std::make_unique<QObject>();
    bool toldSecond = false;
    queue.addObserver(&first, name, [&](QObject*) { second.reset(); });
    queue.addObserver(second.get(), name, [&](QObject*) { toldSecond = true; });
    queue.postNow(name, &first);
    EXPECT_FALSE(toldSecond);
}

}  // namespace
}  // namespace zephyrix
