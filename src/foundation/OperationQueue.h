#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace zephyrix {

/// Work beside the main thread: operations run one after the other, in the order in which they were
/// added, on one thread that starts with the first of them. An operation hands its result back
/// through MainQueue. An exception that leaves an operation ends the process.
///
/// The end of the queue drops what has not begun, and what is added from then on, and waits for the
/// operation that runs. It must not come from within an operation.
class OperationQueue {
  public:
    OperationQueue() = default;
    ~OperationQueue();
    OperationQueue(const OperationQueue&) = delete;
    OperationQueue& operator=(const OperationQueue&) = delete;

    /// From any thread, also from within an operation.
    void addOperation(std::function<void()> operation);

  private:
    void work();

    std::mutex mutex_;
    std::condition_variable added_;  // something was added, or the queue ends
    std::deque<std::function<void()>> waiting_;
    bool ending_ = false;
    std::jthread worker_;  // last: it must end before what it uses
};

}  // namespace zephyrix
