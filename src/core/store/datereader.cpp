#include "core/store/datereader.h"

#include <QString>

namespace datereader {
namespace {

struct Cursor {
    QStringView s;
    qsizetype i = 0;

    bool AtEnd() const { return i >= s.size(); }
    QChar Peek(qsizetype k = 0) const { return i + k < s.size() ? s[i + k] : QChar(); }
    bool Take(QChar c)
    {
        if (Peek() != c) return false;
        ++i;
        return true;
    }
    bool Blanks()
    {
        const qsizetype from = i;
        while (!AtEnd() && s[i].isSpace()) ++i;
        return i > from;
    }
    // Up to max digits; -1 when there is none. digits gets how many were read.
    int Number(int max, int& digits)
    {
        int v = 0;
        digits = 0;
        while (!AtEnd() && digits < max && s[i] >= u'0' && s[i] <= u'9') {
            v = v * 10 + (s[i].unicode() - '0');
            ++i;
            ++digits;
        }
        return digits ? v : -1;
    }
    QStringView Letters()
    {
        const qsizetype from = i;
        while (!AtEnd() && s[i].isLetter()) ++i;
        return s.mid(from, i - from);
    }
};

int FullYear(int y, int digits) { return digits > 2 ? y : y + (y < 30 ? 2000 : 1900); }

QList<QLocale> Locales(const Options& o)
{
    QList<QLocale> out;
    if (o.locale) out << *o.locale;
    out << QLocale::c();
    return out;
}

// A month's name, its short name, or the start of its name ("Sept"); 0 for none.
int MonthFromName(QStringView word, const Options& o)
{
    if (word.size() < 3) return 0;
    for (const QLocale& loc : Locales(o)) {
        for (int m = 1; m <= 12; ++m) {
            const QString full = loc.monthName(m, QLocale::LongFormat);
            const QString shrt = loc.monthName(m, QLocale::ShortFormat).remove(u'.');
            if (word.compare(shrt, Qt::CaseInsensitive) == 0 || full.startsWith(word, Qt::CaseInsensitive)) return m;
        }
    }
    return 0;
}

bool IsDayName(QStringView word, const Options& o)
{
    if (word.size() < 2) return false;
    for (const QLocale& loc : Locales(o))
        for (int d = 1; d <= 7; ++d)
            if (word.compare(loc.dayName(d, QLocale::LongFormat), Qt::CaseInsensitive) == 0
                || word.compare(loc.dayName(d, QLocale::ShortFormat).remove(u'.'), Qt::CaseInsensitive) == 0)
                return true;
    return false;
}

// A year of two or four digits.
bool Year(Cursor& c, int& year)
{
    int digits = 0;
    const int y = c.Number(4, digits);
    if (digits != 2 && digits != 4) return false;
    year = FullYear(y, digits);
    return true;
}

// What may stand between the parts of a date with a month's name: blanks, "-", ",".
bool NameSeparator(Cursor& c)
{
    const qsizetype from = c.i;
    c.Take(u'.');
    c.Take(u',');
    c.Blanks();
    c.Take(u'-');
    c.Blanks();
    return c.i > from;
}

bool ReadDate(Cursor& c, const Options& o, QDate& date)
{
    if (c.Peek().isLetter()) {
        // A day's name in front: "Monday, November 23, 2026".
        const qsizetype start = c.i;
        const QStringView word = c.Letters();
        if (IsDayName(word, o) && !MonthFromName(word, o)) {
            c.Take(u'.');
            c.Take(u',');
            if (!c.Blanks()) return false;
        } else {
            c.i = start;
        }
    }
    if (c.Peek().isLetter()) {
        // "Jan 5, 2024", "January 5th 2024", "Nov-23-2026"
        const int month = MonthFromName(c.Letters(), o);
        if (!month) return false;
        c.Take(u'.');
        c.Blanks();
        c.Take(u'-');
        int digits = 0;
        const int day = c.Number(2, digits);
        if (day < 0) return false;
        for (const char* suffix : {"st", "nd", "rd", "th"})
            if (c.s.mid(c.i).startsWith(QLatin1String(suffix), Qt::CaseInsensitive)) {
                c.i += 2;
                break;
            }
        if (!NameSeparator(c)) return false;
        int year = 0;
        if (!Year(c, year)) return false;
        date = QDate(year, month, day);
        return date.isValid();
    }
    if (o.eightDigits && c.s.size() - c.i >= 8) {
        bool eight = true;
        for (int k = 0; k < 8; ++k) eight = eight && c.Peek(k) >= u'0' && c.Peek(k) <= u'9';
        const QChar after = c.Peek(8);
        if (eight && (after.isNull() || after.isSpace() || after == u'T')) {
            const QStringView d = c.s.mid(c.i, 8);
            date = QDate(d.left(4).toInt(), d.mid(4, 2).toInt(), d.mid(6, 2).toInt());
            c.i += 8;
            return date.isValid();
        }
    }
    int d1 = 0;
    const int n1 = c.Number(4, d1);
    if (n1 < 0) return false;
    const QChar sep = c.Peek();
    if (d1 <= 2 && (sep == u' ' || sep == u'-' || sep == u'.')
        && (c.Peek(1).isLetter() || (sep == u'.' && c.Peek(1).isSpace() && c.Peek(2).isLetter()))) {
        // "5 Jan 2024", "5-Jan-2024", "23. November 2026"
        ++c.i;
        c.Blanks();
        const int month = MonthFromName(c.Letters(), o);
        if (!month || !NameSeparator(c)) return false;
        int year = 0;
        if (!Year(c, year)) return false;
        date = QDate(year, month, n1);
        return date.isValid();
    }
    if (sep != u'-' && sep != u'/' && sep != u'.') return false;
    ++c.i;
    int d2 = 0;
    const int n2 = c.Number(2, d2);
    if (n2 < 0 || !c.Take(sep)) return false;
    if (d1 == 4) {
        int d3 = 0;
        const int n3 = c.Number(2, d3);
        if (n3 < 0) return false;
        date = QDate(n1, n2, n3);   // the year first
        return date.isValid();
    }
    if (d1 > 2) return false;
    int year = 0;
    if (!Year(c, year)) return false;
    const bool dayFirst = (sep == u'.' && o.dotMeansDayFirst) || o.dayFirst;
    int month = dayFirst ? n2 : n1, day = dayFirst ? n1 : n2;
    if (o.swapImpossibleMonth && month > 12 && day <= 12) std::swap(month, day);
    date = QDate(year, month, day);
    return date.isValid();
}

// AM or PM at the cursor ("PM", "pm", "p.m.", "P", or the locale's designators): 1 for AM,
// 2 for PM, 0 for none; the cursor moves past it.
int Meridian(Cursor& c, const Options& o)
{
    const qsizetype start = c.i;
    const QChar a = c.Peek().toUpper();
    if (a == u'A' || a == u'P') {
        ++c.i;
        c.Take(u'.');
        if (c.Peek().toUpper() == u'M') {
            ++c.i;
            c.Take(u'.');
        }
        if (c.AtEnd() || !c.Peek().isLetter()) return a == u'A' ? 1 : 2;
        c.i = start;
    }
    if (o.locale) {
        const QStringView rest = c.s.mid(c.i);
        const QString am = o.locale->amText(), pm = o.locale->pmText();
        if (!am.isEmpty() && rest.compare(am, Qt::CaseInsensitive) == 0) { c.i = c.s.size(); return 1; }
        if (!pm.isEmpty() && rest.compare(pm, Qt::CaseInsensitive) == 0) { c.i = c.s.size(); return 2; }
    }
    return 0;
}

// "18:30", "6:00:00", "6:05:09.250", "6 PM", "6:00pm"; nothing may follow.
bool ReadTime(Cursor& c, const Options& o, QTime& time)
{
    int digits = 0;
    int h = c.Number(2, digits);
    if (h < 0) return false;
    int m = 0, s = 0, ms = 0;
    bool minutes = false;
    if (c.Take(u':')) {
        m = c.Number(2, digits);
        if (m < 0) return false;
        minutes = true;
        if (c.Take(u':')) {
            s = c.Number(2, digits);
            if (s < 0) return false;
            if (c.Take(u'.')) {
                const int f = c.Number(3, digits);
                if (f < 0) return false;
                ms = digits == 1 ? f * 100 : digits == 2 ? f * 10 : f;
                while (!c.AtEnd() && c.Peek().isDigit()) ++c.i;
            }
        }
    }
    c.Blanks();
    if (const int meridian = Meridian(c, o)) {
        if (h >= 1 && h <= 12) {
            if (meridian == 1 && h == 12) h = 0;
            if (meridian == 2 && h != 12) h += 12;
        } else if (!o.lenientMeridian) {
            return false;
        }
    } else if (!minutes) {
        return false;   // a bare number is no time
    }
    c.Blanks();
    if (!c.AtEnd() || h > 23 || m > 59 || s > 59) return false;
    time = QTime(h, m, s, ms);
    return time.isValid();
}

}  // namespace

Options StoreOptions()
{
    Options o;
    o.swapImpossibleMonth = true;
    return o;
}

Options LiteralOptions()
{
    Options o = StoreOptions();
    o.eightDigits = true;
    return o;
}

bool Read(QStringView text, const Options& o, Result& r)
{
    r = Result();
    r.time = QTime(0, 0);
    text = text.trimmed();
    if (text.isEmpty()) return false;
    Cursor c{text};
    QDate date;
    if (ReadDate(c, o, date)) {
        r.date = date;
        r.hasDate = true;
        if (c.AtEnd()) return true;
        if (!c.Blanks() && !c.Take(u'T')) return false;
        c.Blanks();
        if (c.AtEnd()) return true;
        QTime t;
        if (!ReadTime(c, o, t)) return false;
        r.time = t;
        r.hasTime = true;
        return true;
    }
    Cursor t{text};
    QTime time;
    if (ReadTime(t, o, time)) {
        r.time = time;
        r.hasTime = true;
        return true;
    }
    if (o.locale) {
        // The locale's own short and long forms.
        const QString s = text.toString();
        for (const QString& f : {o.locale->dateFormat(QLocale::ShortFormat), o.locale->dateFormat(QLocale::LongFormat)}) {
            const QDate d = o.locale->toDate(s, f);
            if (d.isValid()) {
                r.date = d;
                r.hasDate = true;
                return true;
            }
        }
    }
    return false;
}

}  // namespace datereader
