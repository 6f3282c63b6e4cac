#include "PanelApplication.h"

#include <QApplication>
#include <QImage>
#include <QJsonDocument>
#include <QPainter>

#include "AppearanceSchedule.h"
#include "DesktopContext.h"
#include "FeedAddress.h"
#include "PanelView.h"
#include "PanelWindow.h"
#include "RowReport.h"
#include "StartGuard.h"
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
    explicit Panel(const PanelOptions& options)
        : options_(options),
          guard_(StartGuard::defaultNoteFile(), UserDefaults::standard()),
          controller_(feedAddress(options.feed, UserDefaults::standard(), ownServer_)),
          view_(controller_) {
        controller_.setExtensionContext(&context_);
        if (options.expanded)
            controller_.setShowingAll(true);
        layOut();
        guard_.started();
    }

    int showWindow() {
        PanelWindow window(controller_, view_, width());
        AppearanceSchedule schedule(controller_);
        window.appear();
        schedule.panelAppeared();
        const int status = QApplication::exec();
        if (window.isVisible())
            window.close();
        view_.setParent(nullptr);
        UserDefaults::standard().synchronize();
        return status;
    }

    int report(QTextStream& out) {
        controller_.viewWillAppear(false);
        if (controller_.isRefreshing()) {
            QObject::connect(&controller_, &TodayViewController::refreshed, qApp,
                             [] { QApplication::exit(reported); });
            if (QApplication::exec() != reported)
                return 1;
        }
        layOut();
        const RowReport rows(controller_);
        if (options_.text)
            out << rows.text();
        if (options_.json)
            out << QJsonDocument(rows.json()).toJson(QJsonDocument::Indented);
        return options_.snapshot ? writePicture(*options_.snapshot) : 0;
    }

  private:
    static constexpr int reported = 3;  // how the event loop ends when there is something to report

    [[nodiscard]] int width() const { return qRound(options_.width); }
    [[nodiscard]] double scale() const { return options_.scale.value_or(qApp->devicePixelRatio()); }

    void layOut() { view_.layOut(width(), scale()); }

    int writePicture(const QString& file) {
        const QSize size(width(), view_.panelHeight());
        QImage picture((QSizeF(size) * scale()).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale());
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        PanelSurface::paintSurface(painter, QRectF({}, size), false);
        view_.render(&painter, {}, {}, QWidget::DrawChildren);
        painter.end();
        if (picture.save(file, "PNG"))
            return 0;
        logLine(QStringLiteral("the picture cannot be written to %1").arg(file));
        return 1;
    }

    const PanelOptions& options_;
    StartGuard guard_;
    FeedChild ownServer_;
    DesktopContext context_;
    TodayViewController controller_;
    PanelView view_;
};

}  // namespace

int runPanel(const PanelOptions& options, char* programName, QTextStream& out) {
    if (!hasDisplay() && !options.reportsOnly()) {
        logLine(QStringLiteral("there is no display; --text, --json and --snapshot need none"));
        return 1;
    }
    if (!hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    char* arguments[] = {programName, nullptr};
    int count = 1;
    const QApplication application(count, arguments);
    QApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
    QApplication::setApplicationDisplayName(QStringLiteral("Zephyrix"));
    const TerminationSignals signalled;
    QObject::connect(&signalled, &TerminationSignals::received, qApp, [] { QApplication::quit(); });
    followScheme(options.scheme);
    registerCells();
    // The symbols take the screen's scale when the controller is made.
    Screen::setMain(QRectF(0.0, 0.0, options.width, 0.0),
                    options.scale.value_or(application.devicePixelRatio()));
    Panel panel(options);
    return options.reportsOnly() ? panel.report(out) : panel.showWindow();
}

}  // namespace zephyrix
