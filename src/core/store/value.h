#pragma once
#include <QVariant>
#include <QString>

// A field is a QVariant: invalid (Null), bool (Yes/No), qlonglong, double, QString,
// QDate or QDateTime. These are the conversions the screens use.

// The leading number of a text, 0 if there is none ("12abc" -> 12, " 3.5 kg" -> 3.5, "" -> 0).
double Val(const QString& text);
// The same of a field: a number as it is, a Yes/No as -1 or 0, Null as 0, text by its leading number.
double Val(const QVariant& v);
// A field joined to "": Null gives "", a Yes/No "True" or "False", a whole double without ".0",
// a date in the system's short date form.
QString Str(const QVariant& v);
bool IsNull(const QVariant& v);
// Doubles each ' so a text can be pasted into SQL.
QString SqlQuote(const QString& text);

// The text of a number as Str gives it: whole numbers without a point, others with up to 15
// significant digits ("0.3" for 0.1 + 0.2), an exponent only for very large or small numbers.
QString NumberText(double value);
