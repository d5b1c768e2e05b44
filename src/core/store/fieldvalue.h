#pragma once
// How a column's values look as fields: the kind a declared type gives, reading a stored value
// as a field, converting a value given to a field, and binding it to a statement.
#include <QVariant>

struct sqlite3_stmt;

namespace fieldvalue {

enum class Kind : unsigned char {
    Text,      // TEXT(n), LONGTEXT ...: QString
    Bool,      // YESNO: bool, stored as -1 and 0
    Date,      // DATETIME: QDate, or QDateTime with a time; stored as ISO text
    Integer,   // BYTE, SHORT, LONG, INTEGER: qlonglong
    Real,      // SINGLE, DOUBLE, CURRENCY: double
    Blob,      // QByteArray
    Any        // no declared type (an expression): by what is stored
};

// The kind of a declared type as sqlite3_column_decltype gives it; Any for none.
Kind KindOf(const char* declaredType);

// Column i of a statement's current row as a field of the kind.
QVariant Read(sqlite3_stmt* stmt, int i, Kind kind);

// A value given to a field, as a column of the kind keeps it: text into a number takes its
// value, a date in any form becomes a date, true/false a Yes/No. Throws
// StoreError(TypeMismatch) for text that a date cannot take.
QVariant Convert(const QVariant& value, Kind kind);

// Binds a field value (as Convert gives it) to parameter i (from 1).
void Bind(sqlite3_stmt* stmt, int i, const QVariant& value);

}  // namespace fieldvalue
