#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace zephyrix {

/// What ships with the program: layouts, images and the string table "Localizable" inside it,
/// larger data files beside it. Main thread.
class Bundle {
  public:
    static Bundle& main();

    /// The path of a data file or folder of this full name ("meteoDB.sqlite", "symbols_1.bundle")
    /// in the program's data folder; empty when there is none, also for a name that leads out of
    /// the folder. The data folder is "../share/zephyrix" as seen from the program's file, in the
    /// build tree and where it is installed.
    [[nodiscard]] QString pathForResource(const QString& name) const;
    /// For tests: the data folder to use from now on.
    void setDataDirectory(const QString& directory);

    /// The path of an image of the program's own catalogue, named with or without ".png"
    /// ("symbols_0/sun", "WindLabelSquare.png"); empty when there is none.
    [[nodiscard]] QString pathForImage(const QString& name) const;

    /// The text of an interface description ("ObsCell" for ObsCell.ui); nothing when there is none.
    [[nodiscard]] std::optional<QByteArray> layout(const QString& name) const;

    /// The text for a key, which is the English text, in the user's language; the key itself where
    /// there is no translation. The table is loaded at the first use.
    [[nodiscard]] QString localizedString(const QString& key) const;
    /// After a change of the language: the next text comes from a table that is loaded anew.
    void forgetStringTable();

    /// The languages of the string table that the user wants, best first: two-letter codes such as
    /// "de". Never empty: English is the last resort. The environment decides: LANGUAGE (a list
    /// "de_AT:nl"), then the first of LC_ALL, LC_MESSAGES and LANG that is not empty.
    [[nodiscard]] QStringList preferredLocalizations() const;

  private:
    [[nodiscard]] const QTranslator& stringTable() const;

    QString dataDirectory_;
    mutable std::unique_ptr<QTranslator> stringTable_;
    mutable QHash<QString, QString> textsByKey_;  // what was looked up in it
};

}  // namespace zephyrix
