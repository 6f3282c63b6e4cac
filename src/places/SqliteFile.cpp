#include "SqliteFile.h"

#include <QFile>

#include "foundation/Log.h"

namespace zephyrix {

// Every operation of SQLite takes a null statement, and does nothing with it, except for the
// columns.

SqliteStatement::SqliteStatement(sqlite3* connection, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (connection != nullptr)
        sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    statement_.reset(statement);
}

void SqliteStatement::bind(int number, const QByteArray& utf8) {
    sqlite3_bind_text(statement_.get(), number, utf8.constData(), static_cast<int>(utf8.size()),
                      SQLITE_TRANSIENT);
}

void SqliteStatement::bind(int number, std::int64_t value) {
    sqlite3_bind_int64(statement_.get(), number, value);
}

void SqliteStatement::bind(int number, double value) {
    sqlite3_bind_double(statement_.get(), number, value);
}

bool SqliteStatement::step() {
    if (!statement_)
        return false;
    if (sqlite3_step(statement_.get()) == SQLITE_ROW)
        return true;
    reset();
    return false;
}

void SqliteStatement::reset() {
    sqlite3_reset(statement_.get());
}

QString SqliteStatement::text(int column) const {
    const void* const utf8 = sqlite3_column_blob(statement_.get(), column);
    return QString::fromUtf8(static_cast<const char*>(utf8),
                             sqlite3_column_bytes(statement_.get(), column));
}

std::int64_t SqliteStatement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

double SqliteStatement::real(int column) const {
    return sqlite3_column_double(statement_.get(), column);
}

SqliteFile::SqliteFile(const QString& path) {
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &connection,
                                       SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(connection);
    if (result != SQLITE_OK) {
        logLine(QStringLiteral("%1 cannot be opened").arg(path));
        connection_.reset();
        return;
    }
    sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
}

SqliteStatement SqliteFile::statement(const char* sql) const {
    return {connection_.get(), sql};
}

}  // namespace zephyrix
