#pragma once
// The one reader of written dates and times, for the stores (stored text, the dialect's "#...#"
// dates, values given to date fields) and for the regional module (what a person types). The
// readers differ only where the options say so.
#include <QDate>
#include <QLocale>
#include <QStringView>
#include <QTime>

namespace datereader {

struct Options {
    // "a/b/yyyy" with the day first (the locale's order); otherwise the month first.
    bool dayFirst = false;
    // "23.11.2026": a date written with dots has the day first, whatever the order above.
    bool dotMeansDayFirst = false;
    // "13/1/2024": a first number above 12 with a second up to 12 is read the other way round.
    bool swapImpossibleMonth = false;
    // "13:00 PM", "0:30 AM": an hour outside 1-12 before AM or PM is read on the 24-hour clock.
    bool lenientMeridian = false;
    // "20240113": eight digits are a date, year, month and day.
    bool eightDigits = false;
    // Month and day names, AM and PM, and the locale's own short and long forms of this locale
    // are read besides the English ones; null for English only.
    const QLocale* locale = nullptr;
};

// How the stores read: stored text and values given to date fields.
Options StoreOptions();
// The dialect's "#...#" dates: as the stores read, and eight digits as the print logs write them.
Options LiteralOptions();

struct Result {
    QDate date;          // invalid when the text holds only a time
    QTime time;          // midnight when the text holds no time
    bool hasDate = false;
    bool hasTime = false;
};

// Reads a date, a date with a time ("2024-01-05 13:04", "1/5/2024 6:00 PM", "2024-01-05T13:04:05")
// or a time alone ("6:00 AM", "18:30"). The forms: "YYYY-MM-DD" (also with "/" or "."),
// "M/D/YYYY" or "D/M/YYYY" (also "-", ".", two-digit years: 00-29 this century), "Jan 5, 2024",
// "January 5th 2024", "5 Jan 2024", "5-Jan-2024", each after an optional day name ("Monday, ").
// Returns false when the text is none of them, or has anything else after it.
bool Read(QStringView text, const Options& options, Result& result);

}  // namespace datereader
