#pragma once

#include <functional>

namespace zephyrix {

/// The way back to the main thread.
class MainQueue {
  public:
    /// Runs the job on the main thread, in a later turn of its event loop; jobs run in the order in
    /// which they were handed over, one a turn. From any thread, the main thread too, at any time
    /// in the life of the QCoreApplication, also before its loop runs. Jobs that wait when the
    /// application ends are dropped; a job without an application waits for the first that is
    /// handed over with one.
    static void dispatch(std::function<void()> job);

    MainQueue() = delete;
};

}  // namespace zephyrix
