#pragma once

#include <utility>

#include <QHash>
#include <QString>

namespace zephyrix {

/// Puts names into plain lower-case words with one blank between them: "Tromsø" becomes "tromso",
/// "Нижний Новгород" "nizhniy novgorod", "St. John's" "st johns". The list was folded in the same
/// way when it was made.
class NameFolding {
  public:
    /// Letters and what becomes of them; the longest entry that fits is taken, and a blank in it is
    /// the beginning of a word. Other letters lose their accents.
    explicit NameFolding(QHash<QString, QString> letters);

    /// Nothing but letters, digits and single blanks; empty for a text without any.
    [[nodiscard]] QString folded(const QString& text) const;

  private:
    /// What becomes of the letters from `at` on, and how many they are.
    [[nodiscard]] std::pair<QString, qsizetype> entryAt(const QString& text, qsizetype at) const;

    QHash<QString, QString> letters_;
    qsizetype longest_ = 0;
};

}  // namespace zephyrix
