#pragma once
// Dates as the stores keep them: ISO text, "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS".
// A time without a day sits on the base day 1899-12-30, as a date of the dialect does.
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringView>

namespace storedate {

inline QDate BaseDay() { return QDate(1899, 12, 30); }

// Reads a date written in any of the forms the system writes: "YYYY-MM-DD", "YYYY/MM/DD",
// "M/D/YYYY", "MM/DD/YY", "Jan 5, 2024", "5 January 2024", each optionally followed by a time
// ("10:30", "10:30:15", "6:00 AM"), or a time alone. A month above 12 with a day up to 12 is
// read the other way round. Returns false for anything else. (datereader with StoreOptions.)
bool Parse(QStringView text, QDate& date, QTime& time, bool& hasTime);

// Fast path for stored text: exactly "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS".
bool ParseIso(const char* s, int len, QDate& date, QTime& time, bool& hasTime);

// The stored form: the day alone when the time is midnight.
QString IsoText(const QDate& date);
QString IsoText(const QDateTime& value);
QString IsoText(const QDate& date, const QTime& time, bool hasTime);

// Dates kept as numbers: days since the base day, the fraction being the time of day.
QDateTime FromSerial(double serial);
double ToSerial(const QDateTime& value);

}  // namespace storedate
