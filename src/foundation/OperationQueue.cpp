#include "OperationQueue.h"

#include <utility>

namespace zephyrix {

OperationQueue::~OperationQueue() {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    added_.notify_one();
    // The worker is waited for as the first of the members.
}

void OperationQueue::addOperation(std::function<void()> operation) {
    const std::lock_guard lock(mutex_);
    if (ending_)
        return;
    waiting_.push_back(std::move(operation));
    if (!worker_.joinable())
        worker_ = std::jthread([this] { work(); });
    added_.notify_one();
}

void OperationQueue::work() {
    while (true) {
        std::function<void()> operation;
        {
            std::unique_lock lock(mutex_);
            added_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
            if (ending_)
                return;
            operation = std::move(waiting_.front());
            waiting_.pop_front();
        }
        operation();
    }
}

}  // namespace zephyrix
