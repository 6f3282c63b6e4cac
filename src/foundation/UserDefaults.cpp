#include "UserDefaults.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMetaMethod>
#include <QStandardPaths>
#include <QTimerEvent>

#include "Log.h"
#include "Number.h"
#include "PrivateFolder.h"
#include "PropertyList.h"
#include "SettingsFile.h"

namespace zephyrix {

namespace {

constexpr auto saveEvent = QEvent::User;
constexpr auto watchEvent = static_cast<QEvent::Type>(QEvent::User + 1);

// After a failed save the next attempt comes by itself after 1 s, 2 s, 4 s, ... and at most 64 s.
constexpr int firstRetry = 1000;
constexpr int lastRetry = 64000;

QString settingsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/zephyrix");
}

bool isPlainFileName(const QString& name) {
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null);
}

QString storePath(const QString& name) {
    return settingsFolder() + QLatin1Char('/') + name + QStringLiteral(".plist");
}

/// What reading and writing a date needs of Qt is made by the first one, and must be made before
/// the stores of the process: what is made later ends earlier, and a store that is written at the
/// very end would take its own file for damaged.
bool makeDatesFirst() {
    const QDateTime any = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    const auto bytes = PropertyList::write({{QStringLiteral("date"), any}});
    return PropertyList::read(bytes.value_or(QByteArray())).has_value();
}

}  // namespace

class UserDefaults::Private {
  public:
    explicit Private(const QString& path) : file(path) {}

    SettingsFile file;
    QVariantMap values;   // as the file held them when it was last read or written
    QVariantMap changes;  // own ones not yet in the file; an invalid value is a removal
    QByteArray seen;      // the file's bytes that belong to the values
    bool savePosted = false;
    std::unique_ptr<QFileSystemWatcher> watcher;
    QBasicTimer retry;
    int retryAfter = firstRetry;  // milliseconds
};

UserDefaults& UserDefaults::standard() {
    static const bool datesAreMade = makeDatesFirst();
    Q_UNUSED(datesAreMade)
    static std::map<QString, std::unique_ptr<UserDefaults>> stores;
    const QString application = QCoreApplication::applicationName();
    const QString path =
        storePath(isPlainFileName(application) ? application : QStringLiteral("zephyrix"));
    auto& store = stores[path];
    if (!store)
        store.reset(new UserDefaults(path));
    return *store;
}

std::unique_ptr<UserDefaults> UserDefaults::suite(const QString& name) {
    if (!isPlainFileName(name) || !makePrivateFolder(settingsFolder())) {
        logLine(QStringLiteral("the settings suite \"%1\" cannot be opened in %2")
                    .arg(name, settingsFolder()));
        return nullptr;
    }
    return std::unique_ptr<UserDefaults>(new UserDefaults(storePath(name)));
}

UserDefaults::UserDefaults(const QString& path) : d_(std::make_unique<Private>(path)) {
    if (const auto content = d_->file.load()) {
        d_->values = content->values;
        d_->seen = content->bytes;
    }
}

UserDefaults::~UserDefaults() {
    blockSignals(true);
    if (!d_->changes.isEmpty())
        synchronize();
}

QVariant UserDefaults::object(const QString& key) const {
    const auto changed = d_->changes.constFind(key);
    return changed != d_->changes.constEnd() ? *changed : d_->values.value(key);
}

std::optional<QVariantMap> UserDefaults::dictionary(const QString& key) const {
    const QVariant value = object(key);
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value.toMap();
}

bool UserDefaults::boolean(const QString& key) const {
    const QVariant value = object(key);
    if (const auto number = Number::fromVariant(value))
        return number->boolValue();
    return value.typeId() == QMetaType::Bool && value.toBool();
}

std::int64_t UserDefaults::integer(const QString& key) const {
    return integerValueOf(object(key));
}

void UserDefaults::set(const QString& key, const QVariant& value) {
    QString problem;
    // Written and read back: the store says now what it will say after the next start.
    const auto bytes = PropertyList::write({{key, value}}, &problem);
    const auto kept = bytes ? PropertyList::read(*bytes, &problem) : std::nullopt;
    if (!kept)
        return logLine(QStringLiteral("setting \"%1\" is refused: %2").arg(key, problem));
    if (kept->isEmpty())
        return remove(key);
    for (auto entry = kept->begin(); entry != kept->end(); ++entry)
        change(entry.key(), entry.value());
}

void UserDefaults::remove(const QString& key) {
    change(key, {});
}

void UserDefaults::change(const QString& key, const QVariant& value) {
    d_->changes.insert(key, value);
    if (!std::exchange(d_->savePosted, true))
        QCoreApplication::postEvent(this, new QEvent(saveEvent), Qt::LowEventPriority);
}

bool UserDefaults::synchronize() {
    if (!d_->changes.isEmpty())
        makePrivateFolder(QFileInfo(fileName()).path());
    const auto content = d_->changes.isEmpty() ? d_->file.load() : d_->file.merge(d_->changes);
    if (!content) {
        if (!d_->changes.isEmpty() && QCoreApplication::instance()) {
            d_->retry.start(d_->retryAfter, this);
            d_->retryAfter = std::min(2 * d_->retryAfter, lastRetry);
        }
        return false;
    }
    d_->retry.stop();
    d_->retryAfter = firstRetry;
    d_->changes.clear();
    d_->values = content->values;
    const bool changed = content->before != d_->seen;
    d_->seen = content->bytes;
    if (changed)
        Q_EMIT changedByOthers();
    return true;
}

QString UserDefaults::fileName() const {
    return d_->file.path();
}

void UserDefaults::connectNotify(const QMetaMethod& signal) {
    if (signal == QMetaMethod::fromSignal(&UserDefaults::changedByOthers) && !d_->watcher)
        QCoreApplication::postEvent(this, new QEvent(watchEvent), Qt::LowEventPriority);
}

void UserDefaults::customEvent(QEvent* event) {
    if (event->type() == watchEvent && !d_->watcher) {
        watch();
    } else if (event->type() == saveEvent) {
        d_->savePosted = false;
        if (!d_->changes.isEmpty())
            synchronize();
    }
}

void UserDefaults::timerEvent(QTimerEvent* event) {
    if (event->timerId() == d_->retry.timerId())
        synchronize();
}

void UserDefaults::watch() {
    d_->watcher = std::make_unique<QFileSystemWatcher>();
    // The folder tells of a file that is renamed into place, the file of one that is written over.
    d_->watcher->addPath(QFileInfo(fileName()).path());
    for (auto signal : {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged})
        connect(d_->watcher.get(), signal, this, &UserDefaults::takeNews);
    takeNews();
}

void UserDefaults::takeNews() {
    // A file that was replaced is no longer watched.
    if (!d_->watcher->files().contains(fileName()) && QFileInfo::exists(fileName()))
        d_->watcher->addPath(fileName());
    const auto content = d_->file.newsSince(d_->seen);
    if (!content)
        return;
    d_->values = content->values;
    d_->seen = content->bytes;
    Q_EMIT changedByOthers();
}

}  // namespace zephyrix
