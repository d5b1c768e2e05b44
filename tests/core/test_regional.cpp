#include <gtest/gtest.h>
#include <cmath>

#include "core/regional.h"

using namespace regional;

namespace {

// Switches the regional settings for one test and puts the previous ones back.
struct LocaleScope {
    QLocale saved = Locale();
    explicit LocaleScope(const QLocale& l) { SetLocale(l); }
    ~LocaleScope() { SetLocale(saved); }
};

const QDate Nov23(2026, 11, 23);  // a Monday

}  // namespace

TEST(Regional, RoundsToEvenOnlyOnAnExactDecimalHalf)
{
    EXPECT_EQ(Round(2.5), 2);
    EXPECT_EQ(Round(3.5), 4);
    EXPECT_EQ(Round(-2.5), -2);
    EXPECT_EQ(Round(-3.5), -4);
    EXPECT_EQ(Round(0.5), 0);
    EXPECT_EQ(Round(2.4999), 2);
    EXPECT_EQ(Round(2.5001), 3);
    EXPECT_DOUBLE_EQ(Round(0.125, 2), 0.12);
    EXPECT_DOUBLE_EQ(Round(0.375, 2), 0.38);
    // Halves that binary doubles hold a little below or above: decided on the decimal value.
    EXPECT_DOUBLE_EQ(Round(2.675, 2), 2.68);
    EXPECT_DOUBLE_EQ(Round(1.005, 2), 1.0);
    EXPECT_DOUBLE_EQ(Round(1.015, 2), 1.02);
    EXPECT_DOUBLE_EQ(Round(0.1 + 0.2, 1), 0.3);
    EXPECT_DOUBLE_EQ(Round(9.995, 2), 10.0);   // the carry runs through
    EXPECT_DOUBLE_EQ(Round(0.005, 2), 0.0);    // half below the first kept digit
    EXPECT_DOUBLE_EQ(Round(0.0051, 2), 0.01);
    EXPECT_DOUBLE_EQ(Round(0.0004, 2), 0.0);
    EXPECT_DOUBLE_EQ(Round(1234.5678, 2), 1234.57);
    EXPECT_DOUBLE_EQ(Round(1e20, 2), 1e20);
    EXPECT_DOUBLE_EQ(Round(1.0 / 3.0, 10), 0.3333333333);
    EXPECT_FALSE(std::signbit(Round(-0.4)));  // no negative zero to print as "-0"
}

TEST(Regional, NumberPictures)
{
    // The point always shows; optional places drop their zeros.
    EXPECT_EQ(FormatNumber(5, "#,##0.#"), "5.");
    EXPECT_EQ(FormatNumber(1234.56, "#,##0.#"), "1,234.6");
    EXPECT_EQ(FormatNumber(1234567.25, "#,##0.#"), "1,234,567.2");
    EXPECT_EQ(FormatNumber(0, "#,##0.#"), "0.");
    EXPECT_EQ(FormatNumber(40, "###.##"), "40.");
    EXPECT_EQ(FormatNumber(0.5, "###.##"), ".5");
    EXPECT_EQ(FormatNumber(33.3333, "###.##"), "33.33");
    EXPECT_EQ(FormatNumber(1.5, "0.0#"), "1.5");
    EXPECT_EQ(FormatNumber(1.256, "0.0#"), "1.26");
    // Required and optional whole digits.
    EXPECT_EQ(FormatNumber(5, "0000"), "0005");
    EXPECT_EQ(FormatNumber(1725.4, "0000"), "1725");
    EXPECT_EQ(FormatNumber(12345, "0000"), "12345");
    EXPECT_EQ(FormatNumber(1725.6, "####"), "1726");
    EXPECT_EQ(FormatNumber(0, "#"), "");
    EXPECT_EQ(FormatNumber(0, "#####"), "");
    EXPECT_EQ(FormatNumber(7, "00"), "07");
    EXPECT_EQ(FormatNumber(3.14159, "0.00"), "3.14");
    EXPECT_EQ(FormatNumber(0.2, "0.00"), "0.20");
    EXPECT_EQ(FormatNumber(1234567, "#,##0"), "1,234,567");
    EXPECT_EQ(FormatNumber(999, "#,##0"), "999");
    // Halves to even, also where the double is a hair off the half.
    EXPECT_EQ(FormatNumber(2.5, "0"), "2");
    EXPECT_EQ(FormatNumber(3.5, "0"), "4");
    EXPECT_EQ(FormatNumber(0.125, "0.00"), "0.12");
    EXPECT_EQ(FormatNumber(2.675, "0.00"), "2.68");
    EXPECT_EQ(FormatNumber(9.96, "0.0"), "10.0");
    // Negative numbers: the sign in front, a separate section without it.
    EXPECT_EQ(FormatNumber(-1234.56, "#,##0.00"), "-1,234.56");
    EXPECT_EQ(FormatNumber(-5, "0.00;(0.00)"), "(5.00)");
    EXPECT_EQ(FormatNumber(0, "0.00;(0.00);\"nil\""), "nil");
    EXPECT_EQ(FormatNumber(-0.001, "0.00"), "0.00");
    // Literals, percent, scaling, named forms.
    EXPECT_EQ(FormatNumber(12.5, "$#,##0.00"), "$12.50");
    EXPECT_EQ(FormatNumber(75, "0 \"kg\""), "75 kg");
    EXPECT_EQ(FormatNumber(0.256, "0.0%"), "25.6%");
    EXPECT_EQ(FormatNumber(5551234, "000-0000"), "555-1234");
    EXPECT_EQ(FormatNumber(1234.5, "Currency"), "$1,234.50");
    EXPECT_EQ(FormatNumber(1234.5, "Standard"), "1,234.50");
    EXPECT_EQ(FormatNumber(2, "Fixed"), "2.00");
    EXPECT_EQ(FormatNumber(2.5, ""), "2.5");
    EXPECT_EQ(FormatNumber(0.1 + 0.2, "General Number"), "0.3");
}

TEST(Regional, NumberPicturesFollowTheRegionalSeparators)
{
    LocaleScope de(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(DecimalSeparator(), ",");
    EXPECT_EQ(FormatNumber(5, "#,##0.#"), "5,");
    EXPECT_EQ(FormatNumber(1234.56, "#,##0.#"), "1.234,6");
    EXPECT_EQ(FormatDate(Nov23, "YYYY-MM-DD"), "2026-11-23");  // SQL dates stay ISO
    EXPECT_EQ(ParseDate("23.11.2026"), Nov23);
}

TEST(Regional, DatePictures)
{
    const QDateTime morning(Nov23, QTime(6, 5, 9));
    const QDateTime evening(Nov23, QTime(18, 30, 0));
    // Y, M and D in either case.
    EXPECT_EQ(FormatDate(Nov23, "YYYY-MM-DD"), "2026-11-23");
    EXPECT_EQ(FormatDate(Nov23, "yyyy-mm-dd"), "2026-11-23");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "YYYY-MM-DD"), "2026-03-04");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "MM/DD/YYYY"), "03/04/2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "MMM D, YYYY"), "Mar 4, 2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "MMM DD, YYYY"), "Mar 04, 2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "MMMM DD, YYYY"), "March 04, 2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "MMM-DD-YYYY"), "Mar-04-2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "DD-MM-YY"), "04-03-26");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "YYYYMMDD"), "20260304");
    EXPECT_EQ(FormatDate(Nov23, "MMMM"), "November");
    EXPECT_EQ(FormatDate(Nov23, "MMM"), "Nov");
    EXPECT_EQ(FormatDate(Nov23, "DDD"), "Mon");
    EXPECT_EQ(FormatDate(Nov23, "DDDD"), "Monday");
    // Times: m after h is minutes; AM/PM makes the clock twelve hours.
    EXPECT_EQ(FormatDate(morning, "h:mm AM/PM"), "6:05 AM");
    EXPECT_EQ(FormatDate(evening, "h:mm AM/PM"), "6:30 PM");
    EXPECT_EQ(FormatDate(evening, "h:mm am/pm"), "6:30 pm");
    EXPECT_EQ(FormatDate(QDateTime(Nov23, QTime(0, 15)), "h:mm AM/PM"), "12:15 AM");
    EXPECT_EQ(FormatDate(QDateTime(Nov23, QTime(12, 0)), "h:mm AM/PM"), "12:00 PM");
    EXPECT_EQ(FormatDate(evening, "hh:mm:ss"), "18:30:00");
    EXPECT_EQ(FormatDate(morning, "HH:MM:SS"), "06:05:09");
    EXPECT_EQ(FormatDate(morning, "YYYY-MM-DD hh:mm:ss"), "2026-11-23 06:05:09");
    // The regional forms.
    EXPECT_EQ(FormatDate(Nov23, "Long Date"), "Monday, November 23, 2026");
    EXPECT_EQ(FormatDate(Nov23, "long date"), "Monday, November 23, 2026");
    EXPECT_EQ(FormatDate(QDate(2026, 3, 4), "Short Date"), "3/4/2026");
    EXPECT_EQ(FormatDate(morning, "Long Time"), "6:05:09 AM");
    EXPECT_EQ(FormatDate(evening, "Long Time"), "6:30:00 PM");
    EXPECT_EQ(FormatDate(morning, "Medium Time"), "06:05 AM");
    EXPECT_EQ(FormatDate(evening, "Medium Time"), "06:30 PM");
    EXPECT_EQ(ShortDate(Nov23), "11/23/2026");
    EXPECT_EQ(LongDate(Nov23), "Monday, November 23, 2026");
    EXPECT_EQ(CurrencySymbol(), "$");
    EXPECT_EQ(DecimalSeparator(), ".");
    EXPECT_EQ(FormatDate(QDate(), "YYYY-MM-DD"), "");
    EXPECT_EQ(ShortDate(QDate()), "");
}

TEST(Regional, ReadsIsoDates)
{
    EXPECT_EQ(ParseDate("2026-11-23"), Nov23);
    EXPECT_EQ(ParseDate("2026-1-5"), QDate(2026, 1, 5));
    EXPECT_EQ(ParseDate(" 2026-11-23 "), Nov23);
    EXPECT_EQ(ParseDate("2026-11-23 18:30"), Nov23);
    EXPECT_EQ(ParseDate("2026-11-23 18:30:05"), Nov23);
    EXPECT_EQ(ParseDate("2026-11-23T18:30:05"), Nov23);
}

TEST(Regional, ReadsUsAndLongDates)
{
    EXPECT_EQ(ParseDate("11/23/2026"), Nov23);
    EXPECT_EQ(ParseDate("3/4/2026"), QDate(2026, 3, 4));   // month first
    EXPECT_EQ(ParseDate("03/04/2026"), QDate(2026, 3, 4));
    EXPECT_EQ(ParseDate("11-23-2026"), Nov23);
    EXPECT_EQ(ParseDate("11/23/26"), Nov23);
    EXPECT_EQ(ParseDate("11/23/2026 6:00:00 PM"), Nov23);
    EXPECT_EQ(ParseDate("November 23, 2026"), Nov23);
    EXPECT_EQ(ParseDate("Nov 23, 2026"), Nov23);
    EXPECT_EQ(ParseDate("nov 23 2026"), Nov23);
    EXPECT_EQ(ParseDate("Nov-23-2026"), Nov23);
    EXPECT_EQ(ParseDate("Monday, November 23, 2026"), Nov23);
    EXPECT_EQ(ParseDate("23 November 2026"), Nov23);
    EXPECT_EQ(ParseDate("Sept 3, 2026"), QDate(2026, 9, 3));
}

TEST(Regional, UnreadableDatesAreInvalid)
{
    for (const char* text : {"", "   ", "hello", "2/30/2026", "13/1/2026", "2026-02-29", "2026-13-01",
                             "Foo 23, 2026", "November 31, 2026", "11/23", "2026", "0/0/0000"})
        EXPECT_FALSE(ParseDate(text).isValid()) << text;
    EXPECT_EQ(ParseDate("2028-02-29"), QDate(2028, 2, 29));  // a leap day is a day
}

TEST(Regional, ReadsTimes)
{
    EXPECT_EQ(ParseTime("6:00 AM"), QTime(6, 0));
    EXPECT_EQ(ParseTime("6:00 PM"), QTime(18, 0));
    EXPECT_EQ(ParseTime("6:00pm"), QTime(18, 0));
    EXPECT_EQ(ParseTime("12:00 AM"), QTime(0, 0));
    EXPECT_EQ(ParseTime("12:30 PM"), QTime(12, 30));
    EXPECT_EQ(ParseTime("18:30"), QTime(18, 30));
    EXPECT_EQ(ParseTime("06:00:00"), QTime(6, 0));
    EXPECT_EQ(ParseTime("6:00:00 AM"), QTime(6, 0));
    EXPECT_EQ(ParseTime("6:05:09 PM"), QTime(18, 5, 9));
    EXPECT_EQ(ParseTime("2026-11-23 18:30:00"), QTime(18, 30));
    EXPECT_EQ(ParseTime("11/23/2026 6:00 PM"), QTime(18, 0));
    for (const char* text : {"", "noon", "25:00", "6:61", "6", "6:00 XM", "::"})
        EXPECT_FALSE(ParseTime(text).isValid()) << text;
    // What the pictures write, the reader reads back.
    const QTime t(18, 30);
    EXPECT_EQ(ParseTime(FormatDate(QDateTime(Nov23, t), "Long Time")), t);
    EXPECT_EQ(ParseTime(FormatDate(QDateTime(Nov23, t), "Medium Time")), t);
}
