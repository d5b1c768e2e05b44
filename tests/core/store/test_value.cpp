// The conversions every screen uses on fields: Val, Str, IsNull, SqlQuote.
#include <gtest/gtest.h>

#include <QDate>
#include <QDateTime>

#include "core/store/storedate.h"
#include "core/store/value.h"

namespace {

TEST(Value, ValReadsTheLeadingNumber)
{
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"12abc", 12},     {"abc", 0},       {"", 0},          {" 3.5 kg", 3.5},   {"-4", -4},
        {"+7", 7},         {".5", 0.5},      {"1.2.3", 1.2},   {"1e3", 1000},      {"2.5E-1", 0.25},
        {"1e", 1},         {"1d2", 100},     {"1,000", 1},     {" 1 2 3", 123},    {"- 5", -5},
        {"--1", 0},        {"&H10", 16},     {"&HFFFF", -1},   {"&O17", 15},       {"\t42\n", 42},
        {"00:45:00", 0},   {"1:30", 1},      {"2024-01-05", 2024},
    };
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(Val(QString::fromUtf8(c.text)), c.value) << c.text;

    EXPECT_EQ(Val(QVariant()), 0);
    EXPECT_EQ(Val(QVariant(true)), -1);
    EXPECT_EQ(Val(QVariant(false)), 0);
    EXPECT_EQ(Val(QVariant(qlonglong(9))), 9);
    EXPECT_EQ(Val(QVariant(2.25)), 2.25);
    EXPECT_EQ(Val(QVariant(QStringLiteral("7 reps"))), 7);
}

TEST(Value, StrJoinsAFieldToText)
{
    EXPECT_EQ(Str(QVariant()), u"");
    EXPECT_EQ(Str(QVariant(true)), u"True");
    EXPECT_EQ(Str(QVariant(false)), u"False");
    EXPECT_EQ(Str(QVariant(5.0)), u"5");
    EXPECT_EQ(Str(QVariant(-12.0)), u"-12");
    EXPECT_EQ(Str(QVariant(2.5)), u"2.5");
    EXPECT_EQ(Str(QVariant(0.1 + 0.2)), u"0.3");
    EXPECT_EQ(Str(QVariant(1.0 / 3.0)), u"0.333333333333333");
    EXPECT_EQ(Str(QVariant(123456.789)), u"123456.789");
    EXPECT_EQ(Str(QVariant(1e20)), u"1E+20");
    EXPECT_EQ(Str(QVariant(qlonglong(42))), u"42");
    EXPECT_EQ(Str(QVariant(QStringLiteral("text"))), u"text");
    EXPECT_EQ(Str(QVariant(QDate(2024, 1, 5))), u"1/5/2024");
    EXPECT_EQ(Str(QVariant(QDateTime(QDate(2024, 1, 5), QTime(0, 0)))), u"1/5/2024");
    EXPECT_TRUE(Str(QVariant(QDateTime(QDate(2024, 1, 5), QTime(14, 30)))).startsWith(u"1/5/2024 2:30"));
}

TEST(Value, NullAndQuoting)
{
    EXPECT_TRUE(IsNull(QVariant()));
    EXPECT_FALSE(IsNull(QVariant(QString())));
    EXPECT_FALSE(IsNull(QVariant(0)));
    EXPECT_FALSE(IsNull(QVariant(false)));
    EXPECT_EQ(SqlQuote(QStringLiteral("O'Brien's")), u"O''Brien''s");
    EXPECT_EQ(SqlQuote(QString()), u"");
}

TEST(Value, StoredDatesReadInEveryWrittenForm)
{
    const struct {
        const char* text;
        QDate date;
        QTime time;
    } cases[] = {
        {"2024-01-05", {2024, 1, 5}, {0, 0}},           {"2024/1/5", {2024, 1, 5}, {0, 0}},
        {"1/5/2024", {2024, 1, 5}, {0, 0}},             {"01/05/24", {2024, 1, 5}, {0, 0}},
        {"1/5/99", {1999, 1, 5}, {0, 0}},               {"January 5, 2024", {2024, 1, 5}, {0, 0}},
        {"5 Jan 2024", {2024, 1, 5}, {0, 0}},           {"5 April 2024", {2024, 4, 5}, {0, 0}},
        {"2024-01-05 13:04:05", {2024, 1, 5}, {13, 4, 5}}, {"2024-01-05T13:04:05", {2024, 1, 5}, {13, 4, 5}},
        {"1/5/2024 12:15 AM", {2024, 1, 5}, {0, 15}},   {"6:00 AM", {1899, 12, 30}, {6, 0}},
        {"18:30", {1899, 12, 30}, {18, 30}},
    };
    for (const auto& c : cases) {
        QDate d;
        QTime t;
        bool hasTime = false;
        ASSERT_TRUE(storedate::Parse(QString::fromUtf8(c.text), d, t, hasTime)) << c.text;
        EXPECT_EQ(d, c.date) << c.text;
        EXPECT_EQ(t, c.time) << c.text;
    }
    for (const char* bad : {"", "abc", "2024-02-30", "13/13/2024", "20240105", "1/5", "25:00", "2024-01-05 xx"}) {
        QDate d;
        QTime t;
        bool hasTime = false;
        EXPECT_FALSE(storedate::Parse(QString::fromUtf8(bad), d, t, hasTime)) << bad;
    }
    EXPECT_EQ(storedate::IsoText(QDateTime(QDate(2024, 1, 5), QTime(0, 0))), u"2024-01-05");
    EXPECT_EQ(storedate::IsoText(QDateTime(QDate(2024, 1, 5), QTime(9, 5, 1))), u"2024-01-05 09:05:01");
    EXPECT_EQ(storedate::FromSerial(45296.5), QDateTime(QDate(2024, 1, 5), QTime(12, 0)));
    EXPECT_DOUBLE_EQ(storedate::ToSerial(QDateTime(QDate(2024, 1, 5), QTime(12, 0))), 45296.5);
}

}  // namespace
