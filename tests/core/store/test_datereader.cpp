// The one reader of dates and times, as the stores read (stored text, values given to date
// fields), as the dialect's "#...#" dates read, and as the regional module reads what a person
// types: one row per input, with what each reading gives.
#include <gtest/gtest.h>

#include "core/regional.h"
#include "core/store/datereader.h"
#include "core/store/storedate.h"

namespace {

// "2024-01-13", "2024-01-13 13:00:00", "13:00:00" (a time alone), "-" (not read).
QString Shown(const QString& text, const datereader::Options& o)
{
    datereader::Result r;
    if (!datereader::Read(text, o, r)) return QStringLiteral("-");
    QString out;
    if (r.hasDate) out = r.date.toString(Qt::ISODate);
    if (r.hasTime) out += (out.isEmpty() ? QString() : QStringLiteral(" ")) + r.time.toString(u"HH:mm:ss");
    return out;
}

TEST(DateReader, OneTableOfInputsUnderEachReading)
{
    struct Row {
        const char* text;
        const char* store;     // StoreOptions: stored text, values given to date fields
        const char* literal;   // LiteralOptions: the dialect's "#...#"
        const char* typed;     // what the regional module reads (en_US)
    };
    const Row rows[] = {
        {"2024-01-13", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"2024/1/5", "2024-01-05", "2024-01-05", "2024-01-05"},
        {"2024-01-13 13:04:05", "2024-01-13 13:04:05", "2024-01-13 13:04:05", "2024-01-13 13:04:05"},
        {"2024-01-13T13:04:05", "2024-01-13 13:04:05", "2024-01-13 13:04:05", "2024-01-13 13:04:05"},
        {"1/13/2024", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"01/05/24", "2024-01-05", "2024-01-05", "2024-01-05"},
        {"1/5/99", "1999-01-05", "1999-01-05", "1999-01-05"},
        // A month above 12: the stores and the dialect read it the other way round, a person's typing is wrong.
        {"13/1/2024", "2024-01-13", "2024-01-13", "-"},
        {"13/13/2024", "-", "-", "-"},
        // Dots: day first in what a person types, month first in what the stores hold.
        {"5.1.2024", "2024-05-01", "2024-05-01", "2024-01-05"},
        {"20240113", "-", "2024-01-13", "-"},
        {"20241332", "-", "-", "-"},
        {"Jan 13, 2024", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"January 13th 2024", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"Sept 3, 2026", "2026-09-03", "2026-09-03", "2026-09-03"},
        {"13 Jan 2024", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"13-Jan-2024", "2024-01-13", "2024-01-13", "2024-01-13"},
        {"Monday, November 23, 2026", "2026-11-23", "2026-11-23", "2026-11-23"},
        {"1/5/2024 12:15 AM", "2024-01-05 00:15:00", "2024-01-05 00:15:00", "2024-01-05 00:15:00"},
        {"1/5/2024 10:30:00 PM", "2024-01-05 22:30:00", "2024-01-05 22:30:00", "2024-01-05 22:30:00"},
        {"6:00 AM", "06:00:00", "06:00:00", "06:00:00"},
        {"6:00pm", "18:00:00", "18:00:00", "18:00:00"},
        {"6 PM", "18:00:00", "18:00:00", "18:00:00"},
        {"18:30", "18:30:00", "18:30:00", "18:30:00"},
        {"6:05:09.5", "06:05:09", "06:05:09", "06:05:09"},
        // An hour outside 1-12 before AM or PM: a person's "13:00 PM" is 13:00; stored text has none.
        {"13:00 PM", "-", "-", "13:00:00"},
        {"0:30 AM", "-", "-", "00:30:00"},
        {"25:00", "-", "-", "-"},
        {"6:61", "-", "-", "-"},
        {"6", "-", "-", "-"},
        {"6:00 XM", "-", "-", "-"},
        {"2024-01-05 xx", "-", "-", "-"},
        {"2024-02-30", "-", "-", "-"},
        {"2028-02-29", "2028-02-29", "2028-02-29", "2028-02-29"},
        {"1/5", "-", "-", "-"},
        {"2026", "-", "-", "-"},
        {"Foo 23, 2026", "-", "-", "-"},
        {"", "-", "-", "-"},
    };
    regional::SetLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    const QLocale us(QLocale::English, QLocale::UnitedStates);
    datereader::Options typed;
    typed.dotMeansDayFirst = true;
    typed.lenientMeridian = true;
    typed.locale = &us;
    for (const Row& row : rows) {
        const QString text = QString::fromUtf8(row.text);
        EXPECT_EQ(Shown(text, datereader::StoreOptions()), QString::fromUtf8(row.store)) << row.text << " (store)";
        EXPECT_EQ(Shown(text, datereader::LiteralOptions()), QString::fromUtf8(row.literal)) << row.text << " (literal)";
        EXPECT_EQ(Shown(text, typed), QString::fromUtf8(row.typed)) << row.text << " (typed)";

        // The store's and the regional module's entry points are this reader.
        QDate d;
        QTime t;
        bool hasTime = false;
        const bool stored = storedate::Parse(text, d, t, hasTime);
        EXPECT_EQ(stored, QString::fromUtf8(row.store) != u"-") << row.text;
        const QString typedText = QString::fromUtf8(row.typed);
        const QDate typedDate = regional::ParseDate(text);
        EXPECT_EQ(typedDate.isValid(), typedText != u"-" && typedText.size() >= 10 && typedText[4] == u'-') << row.text;
        if (typedDate.isValid()) EXPECT_EQ(typedDate.toString(Qt::ISODate), typedText.left(10)) << row.text;
        const QTime typedTime = regional::ParseTime(text);
        EXPECT_EQ(typedTime.isValid(), typedText != u"-" && typedText.contains(u':')) << row.text;
    }
}

TEST(DateReader, TheLocalesOrderNamesAndForms)
{
    const QLocale de(QLocale::German, QLocale::Germany);
    datereader::Options o;
    o.dayFirst = true;
    o.dotMeansDayFirst = true;
    o.locale = &de;
    EXPECT_EQ(Shown(QStringLiteral("23.11.2026"), o), u"2026-11-23");
    EXPECT_EQ(Shown(QStringLiteral("5/1/2026"), o), u"2026-01-05");
    EXPECT_EQ(Shown(QStringLiteral("23. März 2026"), o), u"2026-03-23");
    EXPECT_EQ(Shown(QStringLiteral("23 March 2026"), o), u"2026-03-23");   // English names always
    o.locale = nullptr;
    EXPECT_EQ(Shown(QStringLiteral("23 März 2026"), o), u"-");
}

}  // namespace
