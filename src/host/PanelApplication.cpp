#include "PanelApplication.h"

#include <array>
#include <memory>

#include <QApplication>
#include <QImage>
#include <QJsonDocument>
#include <QPainter>

#include "BarFollower.h"
#include "DesktopContext.h"
#include "FeedAddress.h"
#include "LivePanel.h"
#include "OnlyInstance.h"
#include "PaintGate.h"
#include "PaintTime.h"
#include "PanelDisplay.h"
#include "RowReport.h"
#include "TerminationSignals.h"
#include "cells/Registration.h"
#include "foundation/Log.h"
#include "foundation/Screen.h"
#include "ui/PanelSurface.h"
#include "ui/Theme.h"

namespace zephyrix {

namespace {

bool hasDisplay() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void followScheme(PanelOptions::Scheme scheme) {
    if (scheme != PanelOptions::Scheme::Desktop)
        Theme::setScheme(scheme == PanelOptions::Scheme::Dark ? Theme::Scheme::Dark
                                                              : Theme::Scheme::Light);
}

/// Everything that a panel consists of, in the order in which it comes to life.
class Panel {
  public:
    explicit Panel(const PanelOptions& options) : options_(options) { makeLive(options.expanded); }

    int showUntilClosed(const OnlyInstance& instance) {
        PanelDisplay display(width(), !options_.window);
        display.hold(*live_);
        display_ = &display;
        QObject::connect(&instance, &OnlyInstance::shownAgain, &display, &PanelDisplay::show);
        QObject::connect(&display, &PanelDisplay::painted, &receiver_, [this] { gate_.open(); });
        if (options_.paintTime)
            tellPaintTimes();
        display.show();
        const int status = QApplication::exec();
        display.hide();
        display.letGo();
        display_ = nullptr;
        UserDefaults::standard().synchronize();
        return status;
    }

    /// Ends when it is told to, and when nobody reads its lines.
    int follow(QTextStream& out) {
        gate_.open();
        BarFollower follower(BarFormat(*options_.format), out);
        QObject::connect(&follower, &BarFollower::abandoned, qApp, [] { QApplication::quit(); });
        follower_ = &follower;
        follower.hold(*live_);
        const int status = QApplication::exec();
        follower_ = nullptr;
        return status;
    }

    int report(QTextStream& out) {
        gate_.open();
        controller().viewWillAppear(false);
        if (controller().isRefreshing()) {
            QObject::connect(&controller(), &TodayViewController::refreshed, qApp,
                             [] { QApplication::exit(reported); });
            if (QApplication::exec() != reported)
                return 1;
        }
        layOut();
        const RowReport rows(controller());
        if (options_.text)
            out << rows.text();
        if (options_.format)
            out << BarFormat(*options_.format).line(controller()) << '\n';
        if (options_.json)
            out << QJsonDocument(rows.json()).toJson(QJsonDocument::Indented);
        return options_.snapshot ? writePicture(*options_.snapshot) : 0;
    }

  private:
    static constexpr int reported = 3;  // how the event loop ends when there is something to report

    /// Points of the screen.
    [[nodiscard]] int width() const { return Theme::scaled(options_.width); }
    [[nodiscard]] double scale() const { return options_.scale.value_or(qApp->devicePixelRatio()); }

    [[nodiscard]] TodayViewController& controller() { return live_->controller(); }

    void layOut() { live_->view().layOut(width(), scale()); }

    void makeLive(bool expanded) {
        live_ = std::make_unique<LivePanel>(
            gate_.before(feedAddress(options_.feed, UserDefaults::standard(), ownServer_)),
            context_, LivePanel::Size{width(), scale()}, expanded);
        // Queued, as the sender does not survive it.
        QObject::connect(
            live_.get(), &LivePanel::placeChanged, &receiver_, [this] { startOver(); },
            Qt::QueuedConnection);
        QObject::connect(
            &live_->view(), &PanelView::textScaleChanged, &receiver_, [this] { startOver(); },
            Qt::QueuedConnection);
    }

    /// For another place or another size of texts, as at view load.
    void startOver() {
        if (display_ != nullptr)
            display_->letGo();
        else if (follower_ == nullptr)
            return;
        live_.reset();
        makeLive(false);
        if (follower_ != nullptr)
            return follower_->hold(*live_);
        display_->setWidth(width());
        display_->hold(*live_);
    }

    /// Of the first paint, and of the first one that shows a fetched document.
    void tellPaintTimes() {
        paintTime_ = std::make_unique<PaintTime>();
        QObject::connect(
            &controller(), &TodayViewController::refreshed, paintTime_.get(),
            [this](bool succeeded) {
                if (succeeded)
                    paintTime_->awaitPaint(QStringLiteral("fetched document"));
            },
            Qt::SingleShotConnection);
    }

    int writePicture(const QString& file) {
        const QSize size(width(), live_->view().panelHeight());
        QImage picture((QSizeF(size) * scale()).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale());
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        PanelSurface::paintSurface(painter, QRectF({}, size), false);
        live_->view().render(&painter, {}, {}, QWidget::DrawChildren);
        painter.end();
        if (picture.save(file, "PNG"))
            return 0;
        logLine(QStringLiteral("the picture cannot be written to %1").arg(file));
        return 1;
    }

    const PanelOptions& options_;
    FeedChild ownServer_;
    PaintGate gate_;
    DesktopContext context_;
    std::unique_ptr<LivePanel> live_;
    QObject receiver_;
    std::unique_ptr<PaintTime> paintTime_;  // where it is asked for
    PanelDisplay* display_ = nullptr;       // while it is not only a report
    BarFollower* follower_ = nullptr;       // while it reports to a bar
};

}  // namespace

// NOLINTNEXTLINE(readability-non-const-parameter): the application object takes no other
int runPanel(const PanelOptions& options, char* programName, QTextStream& out) {
    if (!hasDisplay() && !options.reportsOnly()) {
        logLine(QStringLiteral(
            "there is no display; --text, --json, --format and --snapshot need none"));
        return 1;
    }
    if (!hasDisplay() || options.format)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::array<char*, 2> arguments{programName, nullptr};
    int count = 1;
    const QApplication application(count, arguments.data());
    QApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
    QApplication::setDesktopFileName(QStringLiteral("zephyrix-panel"));
    const TerminationSignals signalled;
    QObject::connect(&signalled, &TerminationSignals::received, qApp, [] { QApplication::quit(); });
    followScheme(options.scheme);
    registerCells();
    // The symbols take the screen's scale when the controller is made.
    Screen::setMain(QRectF(0.0, 0.0, options.width, 0.0),
                    options.scale.value_or(application.devicePixelRatio()));
    if (options.follow)
        return Panel(options).follow(out);
    if (options.reportsOnly())
        return Panel(options).report(out);
    const OnlyInstance instance;
    return instance.isTaken() ? 0 : Panel(options).showUntilClosed(instance);
}

}  // namespace zephyrix
