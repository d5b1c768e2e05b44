#include "core/store/translator.h"

#include "core/store/sqlwriter.h"
#include "core/store/translation.h"

Translation TranslateForSqlite(const QString& dialectSql)
{
    static const sqldialect::SqliteWriter writer;
    return TranslateFor(dialectSql, writer);
}

Translation TranslateFor(const QString& dialectSql, const sqldialect::SqlWriter& writer)
{
    sqldialect::Statement st = sqldialect::Read(dialectSql);
    Translation t;
    t.kind = st.kind;
    t.sql = writer.Write(st, false);
    t.updatable = st.updatable;
    if (st.updatable) t.sqlWithRowId = writer.Write(st, true);
    t.table = st.table;
    t.alias = st.alias;
    t.from = std::move(st.from);
    if (!st.columns.empty()) {
        t.column = st.columns.front();
        t.columnType = writer.ColumnType(t.column);
    }
    return t;
}

QString TranslateToSqlite(const QString& dialectSql)
{
    return TranslateForSqlite(dialectSql).sql;
}
