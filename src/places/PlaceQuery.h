#pragma once

#include <array>

#include <QByteArray>
#include <QString>

namespace zephyrix {

/// What to look for in the list's full-text index. Made of letters and digits alone, so nothing
/// that a person types is read as an operator of the index or as SQL.
class PlaceQuery {
  public:
    /// From a text that NameFolding folded; the words behind the eighth are left out.
    explicit PlaceQuery(const QString& folded);

    [[nodiscard]] bool isEmpty() const { return whole_.isEmpty(); }
    /// All words, for the name that is exactly that.
    [[nodiscard]] const QByteArray& whole() const { return whole_; }
    /// Expressions for the index, the best kind of match first: names that begin with the text;
    /// names with all its words, of which the last may be the beginning of one; and the same with
    /// words of province and country ("paris texas").
    [[nodiscard]] const std::array<QByteArray, 3>& expressions() const { return expressions_; }

  private:
    QByteArray whole_;
    std::array<QByteArray, 3> expressions_;
};

}  // namespace zephyrix
