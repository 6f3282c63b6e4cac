#include "StartGuard.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "foundation/Log.h"
#include "foundation/PrivateFolder.h"

namespace zephyrix {

namespace {

const QString documentKey = QStringLiteral("lastWeatherData");
const QString rejectedKey = QStringLiteral("lastWeatherData.rejected");

bool hasNote(int file) {
    struct stat state {};
    return ::fstat(file, &state) == 0 && state.st_size > 0;
}

void moveDocumentAside(UserDefaults& settings) {
    const QVariant document = settings.object(documentKey);
    if (!document.isValid())
        return;
    settings.set(rejectedKey, document);
    settings.remove(documentKey);
    settings.synchronize();
    logLine(QStringLiteral("the last start ended before the panel was laid out: its weather "
                           "document is kept as \"%1\" in %2 and not used")
                .arg(rejectedKey, settings.fileName()));
}

}  // namespace

StartGuard::StartGuard(const QString& noteFile, UserDefaults& panelSettings) {
    makePrivateFolder(QFileInfo(noteFile).path());
    const int file = ::open(QFile::encodeName(noteFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                            S_IRUSR | S_IWUSR);
    if (file < 0) {
        logLine(QStringLiteral("cannot note the start in %1: %2")
                    .arg(noteFile, QString::fromLocal8Bit(std::strerror(errno))));
        return;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
        ::close(file);  // another start is under way and keeps the note
        return;
    }
    note_ = file;
    if (hasNote(note_))
        moveDocumentAside(panelSettings);
    else if (::write(note_, "starting\n", 9) != 9)
        logLine(QStringLiteral("cannot note the start in %1").arg(noteFile));
}

StartGuard::~StartGuard() {
    if (note_ >= 0)
        ::close(note_);
}

void StartGuard::started() {
    if (note_ >= 0 && ::ftruncate(note_, 0) != 0)
        logLine(QStringLiteral("cannot clear the note of the start"));
    if (note_ >= 0)
        ::close(std::exchange(note_, -1));
}

QString StartGuard::defaultNoteFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/zephyrix-panel/starting");
}

}  // namespace zephyrix
