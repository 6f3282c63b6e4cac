#include "MeteoDB.h"

#include <cstdlib>

#include <QFile>

#include "foundation/Bundle.h"
#include "foundation/Log.h"

namespace zephyrix {

MeteoDB& MeteoDB::sharedManager() {
    static auto* const manager = new MeteoDB;  // never released, see the destructor
    return *manager;
}

MeteoDB::MeteoDB() {
    const QString path = Bundle::main().pathForResource(QStringLiteral("meteoDB.sqlite"));
    const QByteArray fileName = QFile::encodeName(path);
    sqlite3_initialize();
    sqlite3* connection = nullptr;
    // Without a file SQLite opens an empty private database: then no lookup finds its table.
    if (sqlite3_open(path.isEmpty() ? nullptr : fileName.constData(), &connection) != SQLITE_OK) {
        logLine(QStringLiteral("failed to open sqlite db"));
        return;
    }
    dbConnection_ = connection;
    sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
}

MeteoDB::~MeteoDB() {
    std::abort();
}

}  // namespace zephyrix
