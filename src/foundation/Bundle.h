#pragma once

#include <array>
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
    /// The same in the form that goes with a number as it is shown; see pluralForm(). A form
    /// without a text of its own has that of the key alone.
    [[nodiscard]] QString localizedString(const QString& key, QStringView shownNumber) const;
    /// After a change of the language: the next text comes from a table that is loaded anew.
    void forgetStringTable();

    /// The languages of the string table that the user wants, best first: two-letter codes such as
    /// "de". Never empty: English is the last resort. The environment decides: LANGUAGE (a list
    /// "de_AT:nl"), then the first of LC_ALL, LC_MESSAGES and LANG that is not empty.
    [[nodiscard]] QStringList preferredLocalizations() const;

  private:
    struct StringTable {
        QString language;
        QTranslator texts;
    };

    [[nodiscard]] const StringTable& stringTable() const;
    [[nodiscard]] QString text(const QString& key, std::size_t form) const;

    QString dataDirectory_;
    mutable std::unique_ptr<StringTable> stringTable_;
    // What was looked up in it, by key: first the texts that have no forms, then form by form.
    mutable std::array<QHash<QString, QString>, 5> textsByKey_;
};

}  // namespace zephyrix
