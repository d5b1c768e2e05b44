#pragma once
// Walking a statement's rows on a shared recordset. Every walk closes its recordset on every
// exit, also when a statement or the body fails, so that the next handler can open it again.
#include <QString>
#include <functional>
#include "core/store/recordset.h"

// Closes a recordset when it goes out of scope. For a handler that opens a recordset and
// reads it by hand (one row, or moving back and forth).
class RecordsetScope {
public:
    explicit RecordsetScope(Recordset& rs) : m_rs(rs) {}
    ~RecordsetScope() { m_rs.Close(); }
    RecordsetScope(const RecordsetScope&) = delete;
    RecordsetScope& operator=(const RecordsetScope&) = delete;
private:
    Recordset& m_rs;
};

// Opens `sql` on `rs`, calls `row` for every row in order and closes `rs`. Returns the number
// of rows walked.
long ForEachRow(Recordset& rs, const QString& sql, const std::function<void(Recordset&)>& row);
// The same, stopping after the row for which `row` returns false.
long ForEachRowWhile(Recordset& rs, const QString& sql, const std::function<bool(Recordset&)>& row);
// Opens `sql` on `rs` and, when there is a row, calls `row` for the first one; closes `rs`.
// Returns whether there was a row.
bool FirstRow(Recordset& rs, const QString& sql, const std::function<void(Recordset&)>& row);
