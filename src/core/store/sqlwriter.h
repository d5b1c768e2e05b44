#pragma once
// Writing a statement read from the dialect (dialect.h) in one engine's SQL. SQLite is the
// engine of the delivered stores; a server engine gets a writer of its own.
#include <QString>
#include "core/store/dialect.h"

namespace sqldialect {

class SqlWriter {
public:
    virtual ~SqlWriter() = default;

    // The statement in the engine's SQL. With withRowId, an updatable select (or a bare table)
    // gives each row's identity as its last column, named RowIdColumn().
    virtual QString Write(const Statement& st, bool withRowId) const = 0;

    // The declared type that a column of the dialect's type gets, with its constraints of type
    // (for SQLite: "TEXT(10) COLLATE NOCASE", "YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0", "DOUBLE" ...).
    virtual QString ColumnType(const ColumnDef& col) const = 0;

    // A name as the engine must see it: quoted where it would be read as grammar.
    virtual QString Name(const QString& name) const = 0;

    // How a statement names one row of a table by the identity the writer gives (rowid for SQLite).
    virtual QString RowIdentity() const = 0;

    static QString RowIdColumn() { return QStringLiteral("__orv_rowid"); }
};

// The writer of SQLite's SQL: dates as ISO text, Yes/No as -1 and 0, "&" through jet_concat,
// the dialect's functions through the functions each connection registers (sqlfunctions.h).
class SqliteWriter : public SqlWriter {
public:
    QString Write(const Statement& st, bool withRowId) const override;
    QString ColumnType(const ColumnDef& col) const override;
    QString Name(const QString& name) const override;
    QString RowIdentity() const override { return QStringLiteral("rowid"); }
};

}  // namespace sqldialect
