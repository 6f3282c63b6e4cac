#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace zephyrix {

/// A dictionary as an XML property list, version 1.0: the text form of a settings store, which
/// other languages read and write too (Python: plistlib). Any thread.
///
/// | element        | type on reading                 | types on writing                        |
/// |----------------|---------------------------------|-----------------------------------------|
/// | string         | QString                         | QString                                 |
/// | integer        | qlonglong, qulonglong past 2^63 | any integer type                        |
/// | real           | double                          | double, float; "inf", "-inf" and "nan"  |
/// | true, false    | bool                            | bool                                    |
/// | date           | QDateTime in UTC                | QDateTime, Instant; the years 1 to 9999 |
/// | data           | QByteArray                      | QByteArray                              |
/// | array          | QVariantList                    | QVariantList, QStringList               |
/// | dict           | QVariantMap                     | QVariantMap                             |
///
/// Writing gives the same bytes for the same values: keys are sorted, reals are the shortest text
/// that reads back as the same double. Dates are cut to whole seconds, rounded down. Characters
/// that XML cannot carry (controls, halves of surrogate pairs, U+FFFE, U+FFFF) become U+FFFD, in
/// keys too. An empty value (a null of JSON) is left out.
class PropertyList {
  public:
    /// Containers within containers, the outermost dictionary included.
    static constexpr int mostDepth = 128;
    static constexpr qsizetype mostBytes = 8LL * 1024 * 1024;

    /// Nothing, and a phrase in `problem`, for anything but a well-formed property list within the
    /// limits whose outermost value is a dictionary. Entity declarations are refused.
    [[nodiscard]] static std::optional<QVariantMap> read(const QByteArray& bytes,
                                                         QString* problem = nullptr);

    /// Nothing, and a phrase in `problem`, when a value is of no type of the table above or the
    /// limits would be passed: what is written can be read.
    [[nodiscard]] static std::optional<QByteArray> write(const QVariantMap& values,
                                                         QString* problem = nullptr);
};

}  // namespace zephyrix
