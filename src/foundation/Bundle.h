#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zephyrix {

/// What ships with the program: layouts, images and the string table "Localizable" inside it,
/// larger data files beside it. Main thread.
class Bundle {
  public:
    static Bundle& main();

    /// The path of a data file or folder of this full name ("meteoDB.sqlite", "symbols_1.bundle")
    /// in the program's data folder; empty when there is none. The data folder is
    /// "../share/zephyrix" as seen from the program.
    [[nodiscard]] QString pathForResource(const QString& name) const;
    /// For tests: the data folder to use from now on.
    void setDataDirectory(const QString& directory);

    /// The path of an image of the program's own catalogue, named with or without ".png"
    /// ("symbols_0/sun", "WindLabelSquare.png"); empty when there is none.
    [[nodiscard]] QString pathForImage(const QString& name) const;

    /// The text of an interface description ("ObsCell" for ObsCell.ui); nothing when there is none.
    [[nodiscard]] std::optional<QByteArray> layout(const QString& name) const;

    /// The text for a key in the user's language; the key itself where there is no translation.
    [[nodiscard]] QString localizedString(const QString& key) const;

    /// The languages of the string table that the user wants, best first: two-letter codes such as
    /// "de". Never empty: English is the last resort.
    [[nodiscard]] QStringList preferredLocalizations() const;

  private:
    QString dataDirectory_;
};

}  // namespace zephyrix
