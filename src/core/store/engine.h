#pragma once
// The seam between the store (Connection, Recordset, field reading) and a database engine.
// SQLite is the engine of the delivered stores (sqliteengine.h); a server engine is another
// Engine with its own SqlWriter. Nothing above this seam knows which engine it works on.
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

#include "core/store/fieldvalue.h"

namespace sqldialect {
class SqlWriter;
}

namespace storeengine {

// A column of a prepared statement's rows.
struct ResultColumn {
    QString name;
    QString declaredType;   // empty for an expression
    QString table;          // the base table it comes from; empty for an expression
    QString origin;         // the base table's column; empty for an expression
};

// A column of a table as the engine keeps it.
struct TableColumn {
    QString name;
    QString declaredType;
    bool notNull = false;
    bool hasDefault = false;
    QString defaultText;    // the default as written in the schema ("0", "'plain'", "CURRENT_TIMESTAMP")
    bool primaryKey = false;
};

// A prepared statement. Failures throw StoreError naming the statement as the screen wrote it.
class Statement {
public:
    virtual ~Statement() = default;
    virtual void Bind(int i, const QVariant& value) = 0;   // parameter i from 1; a field value as Convert gives it
    virtual bool Step() = 0;                               // true while a row is there
    virtual void Reset() = 0;                              // ready to run again, parameters cleared
    virtual int ColumnCount() const = 0;
    virtual ResultColumn Column(int i) const = 0;
    virtual QVariant Read(int i, fieldvalue::Kind kind) const = 0;   // column i of the current row as a field
    virtual qint64 ReadId(int i) const = 0;                          // a row identity column
};

class Engine {
public:
    virtual ~Engine() = default;

    // Opens a store file; read-only, nothing is written to it or beside it. Throws StoreError:
    // NotADatabase for a file that is no store, InvalidPassword for a password that does not
    // match the one kept in it.
    virtual void Open(const QString& path, const QString& password, bool readOnly) = 0;
    virtual void Close() = 0;
    virtual bool IsOpen() const = 0;

    // The writer of this engine's SQL.
    virtual const sqldialect::SqlWriter& Writer() const = 0;

    // A statement of the engine's SQL; messageSql (the dialect's text) names it in failures.
    virtual std::unique_ptr<Statement> Prepare(const QString& sql, const QString& messageSql) = 0;
    // Runs a statement of the engine's SQL on its own: DDL, transactions.
    virtual void Exec(const QString& sql) = 0;
    // Rows changed by the last insert, update or delete; the identity of the last row added.
    virtual long Changes() const = 0;
    virtual qint64 LastInsertId() const = 0;
    // Whether a transaction is open in the engine (it may have ended one on a failure).
    virtual bool InTransaction() const = 0;

    virtual std::vector<TableColumn> TableColumns(const QString& table) = 0;
    // Gives a column another declared type and converts its values; inTransaction says whether
    // the caller's transaction holds the change.
    virtual void ChangeColumnType(const QString& table, const QString& column, const QString& type,
                                  bool inTransaction) = 0;
};

// The engine of the delivered stores.
std::unique_ptr<Engine> MakeSqliteEngine();

// Creates a store file from schema and seed SQL in the engine's own dialect, keeping the password.
void CreateSqliteStore(const QString& path, const QString& schemaSql, const QString& seedSql, const QString& password);

}  // namespace storeengine
