#include "BarFollower.h"

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <QMetaObject>

#include "DescriptorWatch.h"

namespace zephyrix {

namespace {

/// The writing end of a pipe becomes readable when its reader is gone, and never otherwise.
class PipeReader : public DescriptorWatch {
  public:
    explicit PipeReader(BarFollower& follower)
        : DescriptorWatch(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0),
                          QStringLiteral("the reader of its lines")),
          follower_(follower) {}

    static bool isPossible() {
        struct stat output {};
        return ::fstat(STDOUT_FILENO, &output) == 0 && S_ISFIFO(output.st_mode);
    }

  protected:
    void ready() override { Q_EMIT follower_.abandoned(); }

  private:
    BarFollower& follower_;
};

}  // namespace

BarFollower::BarFollower(BarFormat format, QTextStream& out)
    : format_(std::move(format)), out_(out) {
    std::signal(SIGPIPE, SIG_IGN);  // a line that nobody takes is an error to see, not an end
    if (PipeReader::isPossible())
        reader_ = std::make_unique<PipeReader>(*this);
}

BarFollower::~BarFollower() = default;

void BarFollower::hold(LivePanel& panel) {
    panel_ = &panel;
    // Each reload of the rows ends with their height.
    connect(panel.controller().tableView(), &TableView::contentHeightChanged, this,
            &BarFollower::printLater);
    connect(&panel.controller(), &TodayViewController::refreshed, this, &BarFollower::printLater);
    connect(&panel, &LivePanel::unitsChanged, this, &BarFollower::printLater);
    panel.appear();
    printLater();
}

void BarFollower::printLater() {
    if (std::exchange(printDue_, true))
        return;
    QMetaObject::invokeMethod(this, &BarFollower::print, Qt::QueuedConnection);
}

void BarFollower::print() {
    printDue_ = false;
    TodayViewController& controller = panel_->controller();
    // At a first start the weather is worth the wait.
    if (controller.isRefreshing() && !controller.lastWeatherData())
        return;
    controller.tableView()->layoutIfNeeded();
    const QString line = format_.line(controller);
    if (printed_ == line)
        return;
    printed_ = line;
    out_ << line << Qt::endl;
    if (out_.status() != QTextStream::Ok)
        Q_EMIT abandoned();
}

}  // namespace zephyrix
