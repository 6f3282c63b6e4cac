#pragma once

#include <sqlite3.h>

namespace zephyrix {

/// Holds the connection to the weather text database, the bundle's data file "meteoDB.sqlite". One
/// a process: made when the first text is asked for and never released.
///
/// A read transaction is kept open on the connection, so that a lookup need not lock and unlock the
/// file. The database is only ever read; a newer file is put in place by renaming, which this does
/// not hinder.
class MeteoDB {
  public:
    /// Made once, on whichever thread asks first.
    static MeteoDB& sharedManager();

    /// Opens the database. When that fails, one line goes to the log and the connection stays null.
    MeteoDB();
    /// Ends the process: every lookup relies on the connection, so it must outlive them all.
    ~MeteoDB();
    MeteoDB(const MeteoDB&) = delete;
    MeteoDB& operator=(const MeteoDB&) = delete;

    /// Null when the database could not be opened.
    [[nodiscard]] sqlite3* dbConnection() const noexcept { return dbConnection_; }
    void setDbConnection(sqlite3* connection) noexcept { dbConnection_ = connection; }

    /// Does nothing: the connection stays open for the life of the process.
    void dbCloseAndDispose() noexcept {}

  private:
    sqlite3* dbConnection_ = nullptr;
};

}  // namespace zephyrix
