#include "AnswerStore.h"

#include <utility>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include "foundation/Log.h"

namespace zephyrix {

namespace {

// Lines of a name and a value, an empty line, the body.
constexpr const char* firstLine = "zephyrix-feedd answer 1\n";
constexpr qint64 mostBytes = 8LL * 1024 * 1024;
constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

QByteArray line(const char* name, const QByteArray& value) {
    return QByteArray(name) + ' ' + value + '\n';
}

QByteArray seconds(Instant time) {
    return QByteArray::number(time.secondsSince1970(), 'f', 3);
}

/// The value of the next line, which has to have that name.
std::optional<QByteArray> nextValue(QFile& file, const QByteArray& name) {
    constexpr qint64 longestLine = 200;
    const QByteArray text = file.readLine(longestLine);
    if (!text.startsWith(name + ' ') || !text.endsWith('\n'))
        return std::nullopt;
    return text.mid(name.size() + 1).chopped(1);
}

std::optional<Instant> nextTime(QFile& file, const QByteArray& name) {
    bool isNumber = false;
    const double time = nextValue(file, name).value_or(QByteArray()).toDouble(&isNumber);
    constexpr double year2200 = 7258118400.0;
    if (!isNumber || !(time >= 0.0 && time < year2200))
        return std::nullopt;
    return Instant::fromSecondsSince1970(time);
}

bool makePrivateFolder(const QString& path) {
    if (QDir(path).exists())
        return true;
    return QDir().mkpath(path) && QFile::setPermissions(path, ownerOnly | QFile::ExeOwner);
}

}  // namespace

AnswerStore::AnswerStore(QString folder) : folder_(std::move(folder)) {}

QString AnswerStore::defaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/zephyrix-feedd");
}

std::optional<KeptAnswer> AnswerStore::read(const QString& name) const {
    QFile file(folder_ + QLatin1Char('/') + name);
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostBytes || file.readLine() != firstLine)
        return std::nullopt;
    const auto fetched = nextTime(file, "fetched");
    const auto freshUntil = nextTime(file, "fresh-until");
    const auto lastModified = nextValue(file, "last-modified");
    if (!fetched || !freshUntil || !lastModified || file.readLine() != "\n")
        return std::nullopt;
    return KeptAnswer{*fetched, *freshUntil, *lastModified, file.readAll()};
}

void AnswerStore::write(const QString& name, const KeptAnswer& answer) const {
    QSaveFile file(folder_ + QLatin1Char('/') + name);
    const bool isLine = answer.lastModified.size() < 100 && !answer.lastModified.contains('\n');
    const QByteArray lastModified = isLine ? answer.lastModified : QByteArray();
    const bool isWritten =
        makePrivateFolder(folder_) && file.open(QIODevice::WriteOnly) &&
        file.setPermissions(ownerOnly) && file.write(firstLine) > 0 &&
        file.write(line("fetched", seconds(answer.fetched)) +
                   line("fresh-until", seconds(answer.freshUntil)) +
                   line("last-modified", lastModified) + '\n' + answer.body) > 0 &&
        file.commit();
    if (!isWritten)
        logLine(
            QStringLiteral("an answer cannot be kept in %1: %2").arg(folder_, file.errorString()));
}

void AnswerStore::removeOlderThan(Instant time) const {
    const QDateTime limit = time.toDateTime();
    for (const QFileInfo& file : QDir(folder_).entryInfoList(QDir::Files))
        if (file.lastModified() < limit)
            QFile::remove(file.filePath());
}

}  // namespace zephyrix
