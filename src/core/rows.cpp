#include "core/rows.h"

long ForEachRowWhile(Recordset& rs, const QString& sql, const std::function<bool(Recordset&)>& row)
{
    RecordsetScope scope(rs);
    rs.Open(sql);
    long n = 0;
    while (!rs.Eof()) {
        ++n;
        if (!row(rs)) break;
        rs.MoveNext();
    }
    return n;
}

long ForEachRow(Recordset& rs, const QString& sql, const std::function<void(Recordset&)>& row)
{
    return ForEachRowWhile(rs, sql, [&](Recordset& r) {
        row(r);
        return true;
    });
}

bool FirstRow(Recordset& rs, const QString& sql, const std::function<void(Recordset&)>& row)
{
    return ForEachRowWhile(rs, sql, [&](Recordset& r) {
        row(r);
        return false;
    }) > 0;
}
