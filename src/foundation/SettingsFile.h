#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace zephyrix {

/// The file behind a settings store, shared with other processes. A change is made in one way only:
/// lock "<path>.lock" (flock), read, change, write "<path>.new", flush it to the disk, rename it
/// over the file. So a reader, who needs no lock, always sees a whole file, and a process that is
/// killed leaves the old file and no lock.
///
/// A damaged file is renamed to "<path>.corrupt-1" (-2, ...) and told in one line; it is never
/// overwritten. Any other trouble is told in one line when it begins, and not again while it lasts.
class SettingsFile {
  public:
    /// The longest wait for another process's lock, in milliseconds.
    static constexpr int mostWaiting = 900;

    explicit SettingsFile(QString path);

    struct Content {
        QVariantMap values;
        QByteArray bytes;   // what the file holds now; null when there is no file
        QByteArray before;  // what it held when it was read: different only after a merge
    };

    /// What the file holds; nothing when it is there but cannot be read. An absent file and one
    /// that had to be set aside are empty.
    [[nodiscard]] std::optional<Content> load();

    /// The same for a file that has other bytes than these and is undamaged; touches nothing.
    [[nodiscard]] std::optional<Content> newsSince(const QByteArray& bytes) const;

    /// Makes these changes to what the file holds now; an invalid value removes its key. Nothing
    /// when the file could not be locked, read or written: it is then as it was.
    [[nodiscard]] std::optional<Content> merge(const QVariantMap& changes);

    [[nodiscard]] const QString& path() const { return path_; }

  private:
    /// Sets a damaged file aside only while it is locked: another process may just be replacing it.
    std::optional<Content> read(bool locked);
    bool setAside(const QString& problem);
    bool replace(const QByteArray& bytes);
    void tell(const QString& trouble);

    QString path_;
    QString trouble_;  // what was told last; empty while all is well
};

}  // namespace zephyrix
