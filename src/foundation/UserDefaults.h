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
class UserDefaults : public QObject {
    Q_OBJECT

  public:
    /// The program's own store: "<application name>.plist". Lives as long as the process.
    static UserDefaults& standard();
    /// The store shared under a group's name, "<name>.plist"; null when it cannot be opened (a name
    /// that is no plain file name, or a settings folder that cannot be made or read).
    static std::unique_ptr<UserDefaults> suite(const QString& name);
    ~UserDefaults() override;

    [[nodiscard]] QVariant object(const QString& key) const;
    [[nodiscard]] std::optional<QVariantMap> dictionary(const QString& key) const;
    [[nodiscard]] bool boolean(const QString& key) const;
    /// A number's integer value, 0 or 1 for a boolean, the leading integer of a text; else 0.
    [[nodiscard]] std::int64_t integer(const QString& key) const;

    void set(const QString& key, const QVariant& value);
    void remove(const QString& key);

    /// Writes what is still unwritten and takes over what other processes have written. False,
    /// after one line in the log, when the file could not be written; the values stay and are tried
    /// again.
    bool synchronize();

    [[nodiscard]] QString fileName() const;

  Q_SIGNALS:
    /// Another process has changed the file and the new values are in force.
    void changedByOthers();

  private:
    class Private;
    explicit UserDefaults(std::unique_ptr<Private> implementation);
    std::unique_ptr<Private> d_;
};

}  // namespace zephyrix
