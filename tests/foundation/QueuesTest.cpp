#include <algorithm>
#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QEventLoop>
#include <gtest/gtest.h>

#include "foundation/MainQueue.h"
#include "foundation/OperationQueue.h"

namespace zephyrix {
namespace {

TEST(OperationQueue, RunsInOrderOnOneOtherThread) {
    constexpr int count = 1000;
    std::vector<int> order;  // of the worker alone until the last operation has told
    std::vector<std::thread::id> threads;
    std::promise<void> done;
    OperationQueue queue;
    for (int i = 0; i < count; ++i)
        queue.addOperation([&, i] {
            order.push_back(i);
            threads.push_back(std::this_thread::get_id());
            if (i == count - 1)
                done.set_value();
        });
    done.get_future().wait();
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(order.at(static_cast<std::size_t>(i)), i);
    EXPECT_EQ(std::count(threads.begin(), threads.end(), threads.front()), count);
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

/// Adds an operation; whether the queue took it.
bool isTaken(OperationQueue& queue, const std::function<void()>& operation) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> kept = token;
    queue.addOperation([operation, token = std::move(token)] { operation(); });
    return !kept.expired();
}

TEST(OperationQueue, EndWaitsForTheRunningOperationAndDropsTheRest) {
    std::promise<void> running;
    std::atomic<int> finished = 0;
    auto queue = std::make_unique<OperationQueue>();
    queue->addOperation([&, same = queue.get()] {
        running.set_value();
        while (isTaken(*same, [&] { finished += 10; }))  // until the end has begun
            std::this_thread::yield();
        ++finished;
    });
    running.get_future().wait();
    queue.reset();
    EXPECT_EQ(finished, 1);
}

class MainQueueTest : public ::testing::Test {
  protected:
    static void runUntil(const bool& done) {
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
};

TEST_F(MainQueueTest, KeepsTheOrderOfEachThread) {
    constexpr int threads = 4;
    constexpr int count = 500;
    std::vector<int> next(threads, 0);
    int inOrder = 0;
    bool done = false;
    {
        std::vector<std::jthread> senders;
        for (int thread = 0; thread < threads; ++thread)
            senders.emplace_back([&, thread] {
                for (int i = 0; i < count; ++i)
                    MainQueue::dispatch([&, thread, i] {
                        inOrder += next.at(static_cast<std::size_t>(thread))++ == i ? 1 : 0;
                        done = inOrder == threads * count;
                    });
            });
        runUntil(done);
    }
    EXPECT_EQ(inOrder, threads * count);
}

TEST_F(MainQueueTest, JobsBehindOneThatRunsALoopStillComeInOrder) {
    std::vector<int> order;
    bool last = false;
    MainQueue::dispatch([&] {
        order.push_back(1);
        runUntil(last);
        order.push_back(4);
    });
    MainQueue::dispatch([&] {
        order.push_back(2);
        MainQueue::dispatch([&] {
            order.push_back(3);
            last = true;
        });
    });
    runUntil(last);
    EXPECT_EQ(order, (std::vector{1, 2, 3, 4}));
}

TEST(MainQueue, JobsEndWithTheirApplication) {
    int argc = 0;
    bool stale = false;
    bool done = false;
    {
        const QCoreApplication application(argc, nullptr);
        MainQueue::dispatch([&] { stale = true; });
    }
    const QCoreApplication application(argc, nullptr);
    MainQueue::dispatch([&] { done = true; });
    while (!done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_FALSE(stale);
}

}  // namespace
}  // namespace zephyrix
