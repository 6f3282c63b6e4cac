#pragma once

#include <string>

#include <QString>
#include <QStringList>
#include <QVector>
#include <gtest/gtest.h>

namespace zephyrix::testing {

/// The fields of each line of a reference table below tests/data, which are separated by tabs; in
/// them "\n", "\t" and "\\" stand for a new line, a tab and a backslash. Empty lines and lines that
/// begin with "#" are left out. Ends the test program when the file is missing or has no such line,
/// so that no check passes for lack of cases.
[[nodiscard]] QVector<QStringList> dataLines(const QString& path);

/// A line of such a table, by its columns from 0 on.
class DataLine {
  public:
    explicit DataLine(QStringList fields) : fields_(std::move(fields)) {}

    /// Empty for a column that the line does not have.
    [[nodiscard]] QString operator[](qsizetype column) const { return fields_.value(column); }
    [[nodiscard]] QByteArray utf8(qsizetype column) const { return fields_.value(column).toUtf8(); }
    /// A field that has to be a number, "nan", "inf" and "-inf" included, fails the test if it is
    /// none; so does one that has to be "yes" or "no".
    [[nodiscard]] double number(qsizetype column) const;
    [[nodiscard]] qint64 integer(qsizetype column) const;
    [[nodiscard]] bool isYes(qsizetype column) const;
    /// The line as it stands.
    [[nodiscard]] std::string text() const;

  private:
    QStringList fields_;
};

/// Gives each line of a table to a check; whatever fails in it names the line.
template <typename Check>
void forEachLine(const char* path, const Check& check) {
    for (const QStringList& fields : dataLines(QLatin1String(path))) {
        const DataLine line(fields);
        SCOPED_TRACE(path + (": " + line.text()));
        check(line);
    }
}

/// The whole of a file below tests/data. Ends the test program when it is missing.
[[nodiscard]] QByteArray dataFile(const QString& path);

}  // namespace zephyrix::testing
