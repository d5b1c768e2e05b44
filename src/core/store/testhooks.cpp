#include "core/store/testhooks.h"

#include "core/store/connection.h"
#include "core/store/connectionimpl.h"
#include "core/store/sqliteengine.h"

#include <QFile>
#include <sqlite3.h>

namespace storetest {

QString Raw(Connection& conn, const char* sql)
{
    auto* engine = dynamic_cast<storeengine::SqliteEngine*>(ConnectionAccess::Impl(conn)->engine.get());
    sqlite3* db = engine ? engine->Handle() : nullptr;
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

struct RawStore::Inside {
    sqlite3* db = nullptr;
    sqlite3_stmt* walk = nullptr;
    sqlite3_stmt* add = nullptr;
};

RawStore::RawStore(const QString& path) : d(std::make_unique<Inside>())
{
    sqlite3_open_v2(QFile::encodeName(path).constData(), &d->db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_exec(d->db, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;", nullptr, nullptr, nullptr);
}

RawStore::~RawStore()
{
    sqlite3_finalize(d->walk);
    sqlite3_finalize(d->add);
    sqlite3_close_v2(d->db);
}

void RawStore::Exec(const char* sql) { sqlite3_exec(d->db, sql, nullptr, nullptr, nullptr); }

long RawStore::Walk()
{
    if (!d->walk)
        sqlite3_prepare_v3(d->db, "SELECT name, amount, visits, day, flag FROM walk", -1, SQLITE_PREPARE_PERSISTENT,
                           &d->walk, nullptr);
    sqlite3_stmt* st = d->walk;
    long n = 0;
    while (sqlite3_step(st) == SQLITE_ROW) {
        QString name = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)), sqlite3_column_bytes(st, 0));
        double amount = sqlite3_column_double(st, 1);
        qlonglong visits = sqlite3_column_int64(st, 2);
        QDate day = QDate::fromString(
            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 3)), sqlite3_column_bytes(st, 3)),
            Qt::ISODate);
        bool flag = sqlite3_column_int64(st, 4) != 0;
        Q_UNUSED(name);
        Q_UNUSED(amount);
        Q_UNUSED(visits);
        Q_UNUSED(day);
        Q_UNUSED(flag);
        ++n;
    }
    sqlite3_reset(st);
    return n;
}

void RawStore::Add(const std::vector<QString>& names, const std::vector<QDate>& days)
{
    if (!d->add)
        sqlite3_prepare_v3(d->db, "INSERT INTO added (name, amount, visits, day, flag) VALUES (?, ?, ?, ?, ?)", -1,
                           SQLITE_PREPARE_PERSISTENT, &d->add, nullptr);
    sqlite3_stmt* st = d->add;
    for (size_t i = 0; i < names.size(); ++i) {
        const QByteArray name = names[i].toUtf8();
        const QByteArray day = days[i].toString(Qt::ISODate).toUtf8();
        sqlite3_bind_text(st, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
        sqlite3_bind_double(st, 2, double(i) * 1.25);
        sqlite3_bind_int64(st, 3, qint64(i % 97));
        sqlite3_bind_text(st, 4, day.constData(), int(day.size()), SQLITE_TRANSIENT);
        sqlite3_bind_int64(st, 5, (i % 2) == 1 ? -1 : 0);
        sqlite3_step(st);
        sqlite3_reset(st);
        (void)sqlite3_last_insert_rowid(d->db);
    }
}

}  // namespace storetest
