#pragma once

#include <cstdint>
#include <memory>

#include <QByteArray>
#include <QString>
#include <sqlite3.h>

namespace zephyrix {

/// A prepared statement, used again and again. A statement of a file that could not be opened, or
/// that does not fit the file, has no rows.
class SqliteStatement {
  public:
    SqliteStatement(sqlite3* connection, const char* sql);

    /// Values by their number in the statement, from 1. They are read at once.
    void bind(int number, const QByteArray& utf8);
    void bind(int number, std::int64_t value);
    void bind(int number, double value);

    /// Goes to the next row, if there is one. After the last the statement begins anew.
    [[nodiscard]] bool step();
    /// Leaves the rest of the rows, and lets the statement begin anew.
    void reset();

    /// Values of the present row by their column, from 0; empty or 0 for NULL.
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// A SQLite file that is only read, by one thread at a time. A read transaction is held open, so
/// that a statement need not lock the file; a newer file is put in place by renaming.
class SqliteFile {
  public:
    /// When the file cannot be opened, one line goes to the log and its statements have no rows.
    explicit SqliteFile(const QString& path);

    [[nodiscard]] SqliteStatement statement(const char* sql) const;

  private:
    struct Close {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };
    std::unique_ptr<sqlite3, Close> connection_;
};

}  // namespace zephyrix
