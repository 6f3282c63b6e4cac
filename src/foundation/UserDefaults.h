#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace zephyrix {

/// A settings store: one XML property list in "$XDG_CONFIG_HOME/zephyrix/", shared with other
/// processes. Values keep their types: text, integer, real, boolean, date (QDateTime), data
/// (QByteArray), list and dictionary. Main thread.
///
/// Reading never fails: an absent key or a value of another type reads as nothing, false or 0.
/// Writing changes this object at once and the file at the next turn of the event loop, at
/// synchronize(), or when the object ends, whichever comes first. Only keys that were set or
/// removed here are written; what other processes wrote to other keys stays.
///
/// Trouble with the file is told in one line of the log; the values stay here and are tried again.
class UserDefaults : public QObject {
    Q_OBJECT

  public:
    /// The program's own store: "<application name>.plist", or "zephyrix.plist" for a program
    /// without a name. Lives as long as the process. (A test that changes the name or the settings
    /// folder gets another store; the earlier one stays.)
    static UserDefaults& standard();
    /// The store shared under a group's name, "<name>.plist"; null when it cannot be opened (a name
    /// that is no plain file name, or a settings folder that cannot be made or read).
    static std::unique_ptr<UserDefaults> suite(const QString& name);
    ~UserDefaults() override;

    [[nodiscard]] QVariant object(const QString& key) const;
    [[nodiscard]] std::optional<QVariantMap> dictionary(const QString& key) const;
    /// A boolean, or whether a number is not zero; else false.
    [[nodiscard]] bool boolean(const QString& key) const;
    /// A number's integer value, 0 or 1 for a boolean, the leading integer of a text; else 0.
    [[nodiscard]] std::int64_t integer(const QString& key) const;

    /// The value is kept as the next start will read it (see PropertyList: a date without its
    /// fraction of a second, a float as a double). An empty value removes the key. A value that
    /// no property list can hold is refused with one line in the log, and the key keeps its old
    /// one.
    void set(const QString& key, const QVariant& value);
    void remove(const QString& key);

    /// Writes what is still unwritten and takes over what other processes have written. False,
    /// after one line in the log, when the file could not be read or written; the values stay and
    /// are tried again. Waits for another process's lock for less than a second.
    bool synchronize();

    [[nodiscard]] QString fileName() const;

  Q_SIGNALS:
    /// Another process has changed the file and the new values are in force. The file is watched
    /// only once something is connected here and the event loop runs.
    void changedByOthers();

  protected:
    void connectNotify(const QMetaMethod& signal) override;
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    class Private;
    explicit UserDefaults(const QString& path);
    void change(const QString& key, const QVariant& value);
    void watch();
    void takeNews();
    std::unique_ptr<Private> d_;
};

}  // namespace zephyrix
