#include "core/store/storedate.h"

#include <cmath>

namespace storedate {
namespace {

struct Cursor {
    QStringView s;
    qsizetype i = 0;
    bool AtEnd() const { return i >= s.size(); }
    QChar Peek() const { return AtEnd() ? QChar() : s[i]; }
    void SkipBlanks() { while (!AtEnd() && s[i].isSpace()) ++i; }
    // Reads 1..maxDigits digits; -1 when there is none.
    int Number(int maxDigits, int* digits = nullptr) {
        int v = 0, n = 0;
        while (!AtEnd() && n < maxDigits && s[i].isDigit()) { v = v * 10 + s[i].digitValue(); ++i; ++n; }
        if (digits) *digits = n;
        return n ? v : -1;
    }
    bool Take(QChar c) { if (Peek() == c) { ++i; return true; } return false; }
    int Month() {
        // A month's name or its first three letters, in English, as the dialect writes them.
        static const char* names[] = {"january", "february", "march", "april", "may", "june", "july",
                                      "august", "september", "october", "november", "december"};
        qsizetype start = i;
        while (!AtEnd() && s[i].isLetter()) ++i;
        QString word = s.mid(start, i - start).toString().toLower();
        if (word.size() >= 3) {
            for (int m = 0; m < 12; ++m)
                if (QString::fromLatin1(names[m]).startsWith(word)) {
                    Take(u'.');
                    return m + 1;
                }
        }
        i = start;
        return -1;
    }
};

int FullYear(int y, int digits) {
    if (digits > 2) return y;
    return y < 30 ? 2000 + y : 1900 + y;   // two-digit years: 00-29 this century, 30-99 the last
}

bool ReadTime(Cursor& c, QTime& time) {
    c.SkipBlanks();
    int h = c.Number(2);
    if (h < 0) return false;
    int m = 0, sec = 0;
    bool hasMinutes = false;
    if (c.Take(u':')) {
        m = c.Number(2);
        if (m < 0) return false;
        hasMinutes = true;
        if (c.Take(u':')) {
            sec = c.Number(2);
            if (sec < 0) return false;
        }
    }
    c.SkipBlanks();
    QChar a = c.Peek().toUpper();
    if (a == u'A' || a == u'P') {
        ++c.i;
        QChar mch = c.Peek().toUpper();
        if (mch == u'M') ++c.i;
        if (h < 1 || h > 12) return false;
        if (a == u'A' && h == 12) h = 0;
        if (a == u'P' && h != 12) h += 12;
    } else if (!hasMinutes) {
        return false;
    }
    c.SkipBlanks();
    if (!c.AtEnd()) return false;
    time = QTime(h, m, sec);
    return time.isValid();
}

bool ReadDate(Cursor& c, QDate& date) {
    c.SkipBlanks();
    int d1 = 0;
    if (c.Peek().isLetter()) {
        // "Jan 5, 2024", "January 5 2024"
        int month = c.Month();
        if (month < 0) return false;
        c.SkipBlanks();
        int day = c.Number(2);
        if (day < 0) return false;
        c.Take(u',');
        c.SkipBlanks();
        int yd = 0;
        int year = c.Number(4, &yd);
        if (year < 0) return false;
        date = QDate(FullYear(year, yd), month, day);
        return date.isValid();
    }
    int n1 = c.Number(4, &d1);
    if (n1 < 0) return false;
    QChar sep = c.Peek();
    if (d1 <= 2 && (sep == u' ' || sep == u'-') && c.i + 1 < c.s.size() && c.s[c.i + 1].isLetter()) {
        // "5 Jan 2024", "5-Jan-2024"
        ++c.i;
        int month = c.Month();
        if (month < 0) return false;
        if (!c.Take(u'-')) c.SkipBlanks();
        int yd = 0;
        int year = c.Number(4, &yd);
        if (year < 0) return false;
        date = QDate(FullYear(year, yd), month, n1);
        return date.isValid();
    }
    if (sep != u'-' && sep != u'/' && sep != u'.') return false;
    ++c.i;
    int d2 = 0, d3 = 0;
    int n2 = c.Number(2, &d2);
    if (n2 < 0 || !c.Take(sep)) return false;
    int n3 = c.Number(4, &d3);
    if (n3 < 0) return false;
    if (d1 == 4) {
        date = QDate(n1, n2, n3);                       // year first
    } else {
        int month = n1, day = n2;
        if (month > 12 && day <= 12) std::swap(month, day);
        date = QDate(FullYear(n3, d3), month, day);      // month first
    }
    return date.isValid();
}

}  // namespace

bool ParseIso(const char* s, int len, QDate& date, QTime& time, bool& hasTime)
{
    auto dig = [s](int i) { return s[i] >= '0' && s[i] <= '9'; };
    auto num = [s](int i, int n) { int v = 0; for (int k = 0; k < n; ++k) v = v * 10 + (s[i + k] - '0'); return v; };
    if (len != 10 && len != 19) return false;
    if (!(dig(0) && dig(1) && dig(2) && dig(3) && s[4] == '-' && dig(5) && dig(6) && s[7] == '-' && dig(8) && dig(9)))
        return false;
    date = QDate(num(0, 4), num(5, 2), num(8, 2));
    if (!date.isValid()) return false;
    hasTime = len == 19;
    if (!hasTime) {
        time = QTime(0, 0);
        return true;
    }
    if (!((s[10] == ' ' || s[10] == 'T') && dig(11) && dig(12) && s[13] == ':' && dig(14) && dig(15) && s[16] == ':'
          && dig(17) && dig(18)))
        return false;
    time = QTime(num(11, 2), num(14, 2), num(17, 2));
    return time.isValid();
}

bool Parse(QStringView text, QDate& date, QTime& time, bool& hasTime)
{
    text = text.trimmed();
    if (text.isEmpty()) return false;
    Cursor c{text};
    hasTime = false;
    time = QTime(0, 0);
    // A time alone: digits then ':' or an AM/PM before any date separator.
    {
        Cursor t{text};
        t.Number(2);
        t.SkipBlanks();
        QChar next = t.Peek().toUpper();
        QChar after = t.i + 1 < text.size() ? text[t.i + 1].toUpper() : QChar();
        bool meridian = (next == u'A' || next == u'P') && (after == u'M' || !after.isLetter());
        if (t.i > 0 && (next == u':' || meridian)) {
            Cursor whole{text};
            if (!ReadTime(whole, time)) return false;
            date = BaseDay();
            hasTime = true;
            return true;
        }
    }
    if (!ReadDate(c, date)) return false;
    if (c.AtEnd()) return true;
    if (c.Peek() == u'T') ++c.i;
    c.SkipBlanks();
    if (c.AtEnd()) return true;
    if (!ReadTime(c, time)) return false;
    hasTime = true;
    return true;
}

QString IsoText(const QDate& date)
{
    return date.toString(Qt::ISODate);
}

QString IsoText(const QDate& date, const QTime& time, bool hasTime)
{
    if (!hasTime || !time.isValid() || (time.hour() == 0 && time.minute() == 0 && time.second() == 0))
        return date.toString(Qt::ISODate);
    return date.toString(Qt::ISODate) + u' ' + time.toString(u"HH:mm:ss");
}

QString IsoText(const QDateTime& value)
{
    return IsoText(value.date(), value.time(), true);
}

QDateTime FromSerial(double serial)
{
    double days = std::floor(serial);
    double frac = serial - days;
    // Negative serials count days backwards but the time forwards, as the dialect's do.
    if (serial < 0 && frac > 0) { days += 1; frac = 1 - frac; }
    QDate d = BaseDay().addDays(qint64(days));
    int secs = int(std::llround(frac * 86400.0));
    if (secs >= 86400) { d = d.addDays(1); secs = 0; }
    return QDateTime(d, QTime(0, 0).addSecs(secs));
}

double ToSerial(const QDateTime& value)
{
    double days = double(BaseDay().daysTo(value.date()));
    double frac = QTime(0, 0).secsTo(value.time()) / 86400.0;
    return days >= 0 ? days + frac : days - frac;
}

}  // namespace storedate
