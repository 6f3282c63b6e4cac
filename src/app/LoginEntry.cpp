#include "LoginEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "Command.h"

namespace zephyrix {

namespace {

/// The panel beside this program, so that one that is in no PATH is found, too. In the form of the
/// Exec key: in quotes, with a backslash before what they do not protect. A desktop reads that key
/// twice, first as a text, so each backslash is written twice.
QByteArray execLine() {
    QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/zephyrix-panel");
    for (const char* special : {"\\", "\"", "`", "$"})
        path.replace(QLatin1String(special), QLatin1String("\\") + QLatin1String(special));
    path.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    path.replace(QLatin1Char('%'), QLatin1String("%%"));
    return "Exec=\"" + path.toUtf8() + "\"\n";
}

}  // namespace

QString LoginEntry::fileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/zephyrix-panel.desktop");
}

bool LoginEntry::isOn() {
    QFile file(fileName());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return !file.readAll().split('\n').contains("Hidden=true");
}

void LoginEntry::set(bool on) {
    const QString name = fileName();
    bool done = false;
    if (on) {
        QSaveFile file(name);
        done = QDir().mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly) &&
               file.write(
                   "[Desktop Entry]\nType=Application\nVersion=1.4\nName=Zephyrix Panel\n"
                   "Icon=zephyrix\nTerminal=false\n" +
                   execLine()) > 0 &&
               file.commit();
    } else {
        done = !QFile::exists(name) || QFile::remove(name);
    }
    if (!done)
        throw CommandError::failure(QStringLiteral("%1 cannot be written").arg(name));
}

}  // namespace zephyrix
