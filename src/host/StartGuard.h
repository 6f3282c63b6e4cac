#pragma once

#include <QString>

#include "foundation/UserDefaults.h"

namespace zephyrix {

/// Makes sure that a cached document which stops the process does so once only. It notes a start
/// before the first layout and clears the note after it; where it finds the note of a start that
/// never got there, it moves "lastWeatherData" aside to "lastWeatherData.rejected" and says so in
/// one line. Nothing is deleted.
///
/// The note is a file that is locked while its start is under way, so that of several starts at the
/// same time none takes another's note for that of a dead one.
class StartGuard {
  public:
    /// Notes the start. Without a writable folder for the note it guards nothing.
    StartGuard(const QString& noteFile, UserDefaults& panelSettings);
    /// Does not clear the note: a process that ends before the first layout leaves it behind.
    ~StartGuard();
    StartGuard(const StartGuard&) = delete;
    StartGuard& operator=(const StartGuard&) = delete;

    /// The first layout is done.
    void started();

    /// "starting" in the panel's cache folder, "$XDG_CACHE_HOME/zephyrix-panel".
    [[nodiscard]] static QString defaultNoteFile();

  private:
    int note_ = -1;  // file descriptor, -1 when there is no note to keep
};

}  // namespace zephyrix
