#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace zephyrix {

/// A file descriptor of the kernel that it owns, and that calls ready() from the event loop when
/// there is something to read. It is closed with the object.
class DescriptorWatch : public QObject {
    Q_OBJECT

  protected:
    /// A descriptor that could not be made, negative, leaves one line in the log and is never
    /// ready. `purpose` is what will be missing.
    DescriptorWatch(int descriptor, const QString& purpose);
    ~DescriptorWatch() override;

    [[nodiscard]] int descriptor() const noexcept { return descriptor_; }
    virtual void ready() = 0;

  private:
    int descriptor_;
};

}  // namespace zephyrix
