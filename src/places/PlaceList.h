#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QString>

#include "ListedPlace.h"
#include "NameFolding.h"
#include "SqliteFile.h"
#include "model/Coordinate.h"

namespace zephyrix {

/// The places that ship with the programs, the data file "places.sqlite": those of 15,000
/// inhabitants or more and the capitals of countries and provinces. Used by one thread at a time.
///
///     PlaceList list(QStringLiteral("ru"));
///     list.search(QStringLiteral("tromso"), 1).front().name  // "Тромсё"
class PlaceList {
  public:
    /// With names in a language of the string table, such as "de". A file that is missing or
    /// damaged is told in one line of the log, and is a list without places.
    explicit PlaceList(const QString& language);

    /// The places that a person may mean, at most `most`, best first: those whose name is the text,
    /// then those whose name begins with it, then those with its words in their names, then those
    /// with its words in name, province or country; each the larger first. Upper case, accents and
    /// the language of the name make no difference. Any text is welcome; what is behind its first
    /// 100 characters is not looked at.
    [[nodiscard]] std::vector<ListedPlace> search(const QString& text, std::size_t most);

    /// The place of a uid, if it is in the list.
    [[nodiscard]] std::optional<ListedPlace> place(std::int64_t uid);

    /// The place that is closest, however far; nothing from a list without places.
    [[nodiscard]] std::optional<ListedPlace> nearest(const Coordinate& coordinate);

    /// A zone for any coordinates: that of the nearest place, or on the high seas, 300 km from any,
    /// that of the longitude ("Etc/GMT-2"). Near a border it may be the neighbour's.
    [[nodiscard]] QString zoneAt(const Coordinate& coordinate);

    /// The name of a country by its two letters; empty for one that is not in the list.
    [[nodiscard]] QString countryName(const QString& code) const;

  private:
    PlaceList(const QString& file, const QString& language);

    SqliteFile file_;
    QByteArray language_;
    NameFolding folding_;
    SqliteStatement exactly_;
    SqliteStatement matching_;
    SqliteStatement details_;
    SqliteStatement between_;
};

}  // namespace zephyrix
