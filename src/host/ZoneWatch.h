#pragma once

#include <QByteArray>

#include "DescriptorWatch.h"

namespace zephyrix {

/// Tells when the system's zone is changed: when the file, mostly a link, that says so is replaced
/// or written. Main thread.
class ZoneWatch : public DescriptorWatch {
    Q_OBJECT

  public:
    explicit ZoneWatch(QByteArray file = "/etc/localtime");

  Q_SIGNALS:
    void changed();

  protected:
    void ready() override;

  private:
    void watch();

    QByteArray file_;
};

}  // namespace zephyrix
