#pragma once
// The SQLite engine: store files are SQLite databases, the dialect is written by SqliteWriter,
// its functions and the case-free collation are registered on every connection (sqlfunctions.h).
// Only the store's own files include this.
#include "core/store/engine.h"
#include "core/store/sqlwriter.h"

struct sqlite3;

namespace storeengine {

class SqliteEngine : public Engine {
public:
    SqliteEngine() = default;
    ~SqliteEngine() override;

    void Open(const QString& path, const QString& password, bool readOnly) override;
    void Close() override;
    bool IsOpen() const override { return m_db != nullptr; }
    const sqldialect::SqlWriter& Writer() const override { return m_writer; }
    std::unique_ptr<Statement> Prepare(const QString& sql, const QString& messageSql) override;
    void Exec(const QString& sql) override;
    long Changes() const override;
    qint64 LastInsertId() const override;
    bool InTransaction() const override;
    std::vector<TableColumn> TableColumns(const QString& table) override;
    void ChangeColumnType(const QString& table, const QString& column, const QString& type, bool inTransaction) override;

    // The connection's handle, for the store's test hooks only.
    sqlite3* Handle() const { return m_db; }

private:
    sqlite3* m_db = nullptr;
    sqldialect::SqliteWriter m_writer;
};

}  // namespace storeengine
