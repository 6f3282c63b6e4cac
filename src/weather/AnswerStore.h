#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "foundation/Instant.h"

namespace zephyrix {

/// An answer of a weather service as it is kept between requests and program starts.
struct KeptAnswer {
    Instant fetched;            // when the service last said that this holds
    Instant freshUntil;         // it is not asked again before
    QByteArray lastModified{};  // as the service sent it, to be sent back
    QByteArray body{};
};

/// Answers on disk, one file each, in a folder that nobody else can look into: the file names tell
/// where the user lives. Written all at once or not at all. What cannot be read counts as not
/// there, what cannot be written is told in the log and not kept. Any thread, any process.
class AnswerStore {
  public:
    /// The folder is made when the first answer is written.
    explicit AnswerStore(QString folder);

    /// "$XDG_CACHE_HOME/zephyrix-feedd".
    [[nodiscard]] static QString defaultFolder();

    /// A name is one of ours: letters, digits, "-", "." and "_".
    [[nodiscard]] std::optional<KeptAnswer> read(const QString& name) const;
    void write(const QString& name, const KeptAnswer& answer) const;

    /// Removes what was last written before that time.
    void removeOlderThan(Instant time) const;

  private:
    QString folder_;
};

}  // namespace zephyrix
