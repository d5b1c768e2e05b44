#pragma once
// The number and date pictures of the system, and the regional forms.
#include <QString>
#include <QDate>
#include <QDateTime>
#include <QTime>
#include <QLocale>

namespace regional {

// The locale the regional forms come from: QLocale::system() in the program, en_US in tests.
QLocale Locale();
void SetLocale(const QLocale& locale);

// Rounds to `places` decimals, to even on an exact half (Round(2.5) = 2, Round(0.125, 2) = 0.12).
double Round(double value, int places = 0);

// A number in a picture: "#,##0.#", "0000", "0.00", "#", "#,##0" ... # an optional digit,
// 0 a required one, a comma asks for thousands separators, the point always shows.
QString FormatNumber(double value, const QString& picture);

// A date in a picture: "YYYY-MM-DD", "MMM D, YYYY", "MMMM", "DDDD", or the named forms
// "Long Date", "Short Date", "Long Time", "Medium Time".
QString FormatDate(const QDateTime& value, const QString& picture);
QString FormatDate(const QDate& value, const QString& picture);

// Reads a date in any form the system writes (ISO, M/D/YYYY, the short and long forms).
QDate ParseDate(const QString& text);
// "6:00 AM", "18:30", "06:00:00" -> time; invalid when unreadable.
QTime ParseTime(const QString& text);

QString ShortDate(const QDate& d);   // "Short Date"
QString LongDate(const QDate& d);    // "Long Date"
QString DecimalSeparator();
QString CurrencySymbol();

}  // namespace regional
