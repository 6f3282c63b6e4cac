#include "OperationQueue.h"

#include <utility>

namespace zephyrix {

OperationQueue::~OperationQueue() {
    // The worker ends as the first of the members: asked to stop, then waited for.
    const std::lock_guard lock(mutex_);
    ending_ = true;
}

void OperationQueue::addOperation(std::function<void()> operation) {
    const std::lock_guard lock(mutex_);
    if (ending_)
        return;
    waiting_.push_back(std::move(operation));
    if (!worker_.joinable())
        worker_ = std::jthread([this](const std::stop_token& stop) { work(stop); });
    added_.notify_one();
}

void OperationQueue::work(const std::stop_token& stop) {
    while (true) {
        std::function<void()> operation;
        {
            std::unique_lock lock(mutex_);
            added_.wait(lock, stop, [this] { return !waiting_.empty(); });
            if (stop.stop_requested())
                return;
            operation = std::move(waiting_.front());
            waiting_.pop_front();
        }
        operation();
    }
}

}  // namespace zephyrix
