#include "core/store/testhooks.h"

#include "core/store/connection.h"
#include "core/store/connectionimpl.h"

#include <QFile>
#include <sqlite3.h>

namespace storetest {

QString Raw(Connection& conn, const char* sql)
{
    sqlite3* db = ConnectionAccess::Impl(conn)->db;
    if (!db) return QStringLiteral("<error>");
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) != SQLITE_OK) {
        sqlite3_finalize(st);
        return QStringLiteral("<error>");
    }
    QString out = QStringLiteral("<none>");
    if (st && sqlite3_step(st) == SQLITE_ROW)
        out = sqlite3_column_type(st, 0) == SQLITE_NULL
            ? QStringLiteral("<null>")
            : QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    return out;
}

bool ExecPlain(const QString& path, const char* sql)
{
    sqlite3* db = nullptr;
    if (sqlite3_open(QFile::encodeName(path).constData(), &db) != SQLITE_OK) {
        sqlite3_close(db);
        return false;
    }
    const bool ok = sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(db);
    return ok;
}

}  // namespace storetest
