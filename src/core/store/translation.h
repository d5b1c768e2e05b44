#pragma once
// A statement of the dialect translated for one engine, with what the connection and recordsets
// need to know of it. Connection caches these.
#include <QString>
#include <vector>
#include "core/store/dialect.h"

struct Translation {
    sqldialect::Statement::Kind kind = sqldialect::Statement::Other;
    QString sql;            // the engine's text ("" for ALTER COLUMN, which the connection carries out)
    QString sqlWithRowId;   // an updatable select or bare table: the same with each row's identity last
    bool updatable = false;
    QString table;          // the table the statement works on
    QString alias;
    std::vector<sqldialect::TableRef> from;
    sqldialect::ColumnDef column;   // alter table add / alter column: the column
    QString columnType;             // its declared type in the engine
};

namespace sqldialect {
class SqlWriter;
}

// Reads a statement of the dialect and writes it with an engine's writer. Throws
// StoreError(SyntaxError) on text the dialect's reader cannot read.
Translation TranslateFor(const QString& dialectSql, const sqldialect::SqlWriter& writer);
// The same for SQLite, the engine of the delivered stores.
Translation TranslateForSqlite(const QString& dialectSql);
