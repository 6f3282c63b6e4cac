#include "MainQueue.h"

#include <deque>
#include <mutex>
#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThread>

namespace zephyrix {

namespace {

void forgetApplication();

/// Lives on the main thread. One event is on its way to it as long as jobs wait, and each event
/// runs one job: so the order also holds when a job runs an event loop of its own.
class Receiver : public QObject {
  public:
    void add(std::function<void()> job) {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(job));
        if (!eventPosted_)
            postEvent();
    }

    /// The application ends, and the event that is on its way with it.
    void forgetApplication() {
        std::deque<std::function<void()>> dropped;
        const std::lock_guard lock(mutex_);
        dropped.swap(waiting_);
        eventPosted_ = false;
        hasApplication_ = false;
    }

  protected:
    void customEvent(QEvent* /*event*/) override {
        std::function<void()> job;
        {
            const std::lock_guard lock(mutex_);
            eventPosted_ = false;
            if (waiting_.empty())
                return;
            job = std::move(waiting_.front());
            waiting_.pop_front();
            if (!waiting_.empty())
                postEvent();
        }
        job();
    }

  private:
    void postEvent() {
        const QCoreApplication* application = QCoreApplication::instance();
        if (!application)
            return;
        if (!hasApplication_) {
            if (thread() != application->thread())
                moveToThread(application->thread());
            qAddPostRoutine(zephyrix::forgetApplication);
        }
        hasApplication_ = true;
        eventPosted_ = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    std::mutex mutex_;
    std::deque<std::function<void()>> waiting_;
    bool eventPosted_ = false;
    bool hasApplication_ = false;
};

Receiver& receiver() {
    static Receiver receiver;
    return receiver;
}

void forgetApplication() {
    receiver().forgetApplication();
}

}  // namespace

void MainQueue::dispatch(std::function<void()> job) {
    receiver().add(std::move(job));
}

}  // namespace zephyrix
