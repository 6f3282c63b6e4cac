#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace zephyrix {

/// Tells on standard output when a paint has ended: milliseconds of the wall clock since the
/// process began, milliseconds of processor time, and the most memory that the process ever had.
/// One line each:
///
///     first paint: 31.42 ms, processor 27.10 ms, memory 36.2 MB
///
/// A paint ends when the window's picture has been handed to the display.
///
/// A process cannot ask precisely when it began (the kernel says it in hundredths of a second), so
/// whoever starts it puts that moment into the environment; noteStart() does it where nobody did.
/// Main thread.
class PaintTime : public QObject {
    Q_OBJECT

  public:
    /// Where no moment is in the environment, puts this one there and begins the program anew, from
    /// the same file with the same arguments. Returns only if there was one or none can be put.
    static void noteStart(char** arguments);

    /// Tells of the first paint, whichever window's it is.
    PaintTime();

    /// Tells of the next paint also, under this name.
    void awaitPaint(const QString& name);

    /// CLOCK_MONOTONIC in nanoseconds at which the process began, in decimal digits.
    static constexpr auto* startVariable = "ZEPHYRIX_STARTED_AT";

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void customEvent(QEvent* event) override;

  private:
    qint64 start_;  // nanoseconds, CLOCK_MONOTONIC
    QStringList awaited_;
};

}  // namespace zephyrix
