#pragma once
// How a column's values look as fields: the kind a declared type gives, and converting a value
// given to a field. Reading a stored value and binding a field belong to the engine (engine.h).
#include <QVariant>

class QDate;
class QTime;

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

// The kind of a declared type ("TEXT(50)", "DOUBLE", "YESNO" ...); Any for none.
Kind KindOf(const char* declaredType);

// A value given to a field, as a column of the kind keeps it: text into a number takes its
// value, a date in any form becomes a date, true/false a Yes/No. Throws
// StoreError(TypeMismatch) for text that a date cannot take.
QVariant Convert(const QVariant& value, Kind kind);

// A date read from the store as a field: the day alone (QDate) when there is no time or it is
// midnight, else a QDateTime. A number read as a date counts days from the base day.
QVariant DateValue(const QDate& d, const QTime& t, bool hasTime);
QVariant FromSerial(double serial);

}  // namespace fieldvalue
