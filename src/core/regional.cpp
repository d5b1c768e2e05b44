#include "core/regional.h"
#include "core/store/datereader.h"

#include <QRegularExpression>
#include <QStringList>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace regional {

namespace {

std::optional<QLocale>& CurrentLocale()
{
    static std::optional<QLocale> locale;
    return locale;
}

bool IsUsEnglish(const QLocale& l)
{
    return l.language() == QLocale::English && l.territory() == QLocale::UnitedStates;
}

// ---------------------------------------------------------------- numbers

// The value as 15 significant decimal digits, the precision a double holds for sure:
// rounding decides on this decimal form, so 2.675 is the half it looks like.
struct Decimal {
    bool negative = false;
    QByteArray digits;  // 15 digits, first one not 0 unless the value is 0
    int exponent = 0;   // value = 0.d1d2d3... x 10^(exponent + 1)
};

Decimal ToDecimal(double value)
{
    Decimal d;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.14e", value);
    const char* p = buf;
    if (*p == '-') {
        d.negative = true;
        ++p;
    }
    for (; *p && *p != 'e'; ++p)
        if (*p >= '0' && *p <= '9')
            d.digits.append(*p);
    if (*p == 'e')
        d.exponent = std::atoi(p + 1);
    return d;
}

// Plain decimal text of |value| rounded to `places` decimals, to even on an exact half:
// integer digits (at least "0"), and exactly `places` fraction digits.
void RoundedDigits(double value, int places, QByteArray& intDigits, QByteArray& fracDigits)
{
    const Decimal d = ToDecimal(value);
    // Digits of the scaled integer: value x 10^places = d.digits x 10^(exponent + 1 + places - 15).
    const int kept = d.exponent + 1 + places;  // how many leading digits survive
    QByteArray scaled;                         // |value| x 10^places as a whole number, in digits
    if (kept <= 0) {
        bool up = false;
        if (kept == 0) {
            // The first digit decides: above a half goes up, an exact half goes to the even 0.
            const QByteArray rest = d.digits;
            up = rest[0] > '5' || (rest[0] == '5' && rest.mid(1).count('0') != rest.size() - 1);
        }
        scaled = up ? QByteArray("1") : QByteArray("0");
    } else if (kept >= d.digits.size()) {
        scaled = d.digits + QByteArray(kept - d.digits.size(), '0');
    } else {
        scaled = d.digits.left(kept);
        const QByteArray rest = d.digits.mid(kept);
        bool up;
        if (rest[0] > '5')
            up = true;
        else if (rest[0] < '5')
            up = false;
        else if (rest.mid(1).count('0') != rest.size() - 1)
            up = true;
        else
            up = (scaled.back() - '0') % 2 == 1;
        if (up) {
            int i = scaled.size() - 1;
            while (i >= 0 && scaled[i] == '9') {
                scaled[i] = '0';
                --i;
            }
            if (i < 0)
                scaled.prepend('1');
            else
                scaled[i] = char(scaled[i] + 1);
        }
    }
    if (scaled.size() < places + 1)
        scaled = QByteArray(places + 1 - scaled.size(), '0') + scaled;
    intDigits = scaled.left(scaled.size() - places);
    fracDigits = scaled.right(places);
    int lead = 0;
    while (lead < intDigits.size() - 1 && intDigits[lead] == '0')
        ++lead;
    intDigits = intDigits.mid(lead);
}

// Shortest plain text of a number with up to 15 significant digits, the system's general form.
QString GeneralNumber(double value, const QLocale& l)
{
    if (!std::isfinite(value))
        return QString::number(value);
    QString s = QString::number(value, 'g', 15);
    if (s.contains(QLatin1Char('e'))) {
        const double a = std::fabs(value);
        if (a >= 1e-4 && a < 1e15) {
            s = QString::number(value, 'f', 15);
            if (s.contains(QLatin1Char('.'))) {
                while (s.endsWith(QLatin1Char('0')))
                    s.chop(1);
                if (s.endsWith(QLatin1Char('.')))
                    s.chop(1);
            }
        } else {
            s = s.toUpper();
        }
    }
    s.replace(QLatin1Char('.'), l.decimalPoint());
    return s;
}

QString Grouped(const QByteArray& digits, const QString& separator)
{
    QString out;
    const int n = digits.size();
    for (int i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0)
            out += separator;
        out += QLatin1Char(digits[i]);
    }
    return out;
}

// Splits a picture into its ';' sections, keeping quoted text and escapes whole.
QStringList Sections(const QString& picture)
{
    QStringList out;
    QString cur;
    bool quoted = false;
    for (int i = 0; i < picture.size(); ++i) {
        const QChar c = picture[i];
        if (c == QLatin1Char('"'))
            quoted = !quoted;
        if (!quoted && c == QLatin1Char('\\') && i + 1 < picture.size()) {
            cur += c;
            cur += picture[++i];
            continue;
        }
        if (!quoted && c == QLatin1Char(';')) {
            out << cur;
            cur.clear();
            continue;
        }
        cur += c;
    }
    out << cur;
    return out;
}

// One element of a number picture: a digit placeholder, the point, a comma, or literal text.
struct NumToken {
    enum Kind { Zero, Hash, Point, Comma, Percent, Literal } kind;
    QString text;
};

QList<NumToken> NumTokens(const QString& picture)
{
    QList<NumToken> out;
    for (int i = 0; i < picture.size(); ++i) {
        const QChar c = picture[i];
        if (c == QLatin1Char('"')) {
            const int end = picture.indexOf(QLatin1Char('"'), i + 1);
            const int stop = end < 0 ? picture.size() : end;
            out.append(NumToken{NumToken::Literal, picture.mid(i + 1, stop - i - 1)});
            i = stop;
        } else if (c == QLatin1Char('\\')) {
            if (i + 1 < picture.size())
                out.append(NumToken{NumToken::Literal, QString(picture[++i])});
        } else if (c == QLatin1Char('0')) {
            out.append(NumToken{NumToken::Zero, {}});
        } else if (c == QLatin1Char('#')) {
            out.append(NumToken{NumToken::Hash, {}});
        } else if (c == QLatin1Char('.')) {
            out.append(NumToken{NumToken::Point, {}});
        } else if (c == QLatin1Char(',')) {
            out.append(NumToken{NumToken::Comma, {}});
        } else if (c == QLatin1Char('%')) {
            out.append(NumToken{NumToken::Percent, {}});
        } else {
            out.append(NumToken{NumToken::Literal, QString(c)});
        }
    }
    return out;
}

// |value| in one section of a picture; the caller puts any sign in front.
QString FormatSection(double value, const QString& picture, const QLocale& l)
{
    QList<NumToken> tokens = NumTokens(picture);
    int pointAt = -1;
    for (int i = 0; i < tokens.size(); ++i)
        if (tokens[i].kind == NumToken::Point) {
            if (pointAt < 0)
                pointAt = i;
            else
                tokens[i] = {NumToken::Literal, QStringLiteral(".")};
        }
    const int intEnd = pointAt < 0 ? int(tokens.size()) : pointAt;

    int firstDigit = -1, lastIntDigit = -1, fracPlaces = 0;
    bool percent = false;
    for (int i = 0; i < tokens.size(); ++i) {
        const bool digit = tokens[i].kind == NumToken::Zero || tokens[i].kind == NumToken::Hash;
        if (tokens[i].kind == NumToken::Percent)
            percent = true;
        if (!digit)
            continue;
        if (i < intEnd) {
            if (firstDigit < 0)
                firstDigit = i;
            lastIntDigit = i;
        } else {
            ++fracPlaces;
        }
    }
    // Commas between integer placeholders ask for separators; those right after the last
    // one (before the point) scale by a thousand each.
    bool grouping = false;
    int scaleCommas = 0;
    for (int i = 0; i < intEnd; ++i) {
        if (tokens[i].kind != NumToken::Comma)
            continue;
        if (firstDigit >= 0 && i > firstDigit && i < lastIntDigit)
            grouping = true;
        else if (lastIntDigit >= 0 && i > lastIntDigit)
            ++scaleCommas;
    }
    if (percent)
        value *= 100.0;
    for (int k = 0; k < scaleCommas; ++k)
        value /= 1000.0;

    QByteArray intDigits, fracDigits;
    RoundedDigits(value, fracPlaces, intDigits, fracDigits);
    if (intDigits == "0")
        intDigits.clear();  // a # shows nothing for a zero integer part

    // Required integer digits: every placeholder from the first 0 on.
    int required = 0;
    bool seenZero = false;
    for (int i = 0; i < intEnd; ++i) {
        if (tokens[i].kind == NumToken::Zero)
            seenZero = true;
        if (seenZero && (tokens[i].kind == NumToken::Zero || tokens[i].kind == NumToken::Hash))
            ++required;
    }
    if (intDigits.size() < required)
        intDigits = QByteArray(required - intDigits.size(), '0') + intDigits;

    bool innerLiterals = false;
    for (int i = firstDigit + 1; firstDigit >= 0 && i < lastIntDigit; ++i)
        if (tokens[i].kind == NumToken::Literal || tokens[i].kind == NumToken::Percent)
            innerLiterals = true;

    QString out;
    // Integer part.
    if (firstDigit < 0) {
        for (int i = 0; i < intEnd; ++i)
            if (tokens[i].kind == NumToken::Literal)
                out += tokens[i].text;
            else if (tokens[i].kind == NumToken::Percent)
                out += QLatin1Char('%');
        // No integer placeholder: the integer digits still show, before the point.
        out += QString::fromLatin1(intDigits);
    } else if (!innerLiterals) {
        for (int i = 0; i < firstDigit; ++i)
            if (tokens[i].kind == NumToken::Literal)
                out += tokens[i].text;
            else if (tokens[i].kind == NumToken::Percent)
                out += QLatin1Char('%');
        out += grouping ? Grouped(intDigits, l.groupSeparator()) : QString::fromLatin1(intDigits);
        for (int i = lastIntDigit + 1; i < intEnd; ++i)
            if (tokens[i].kind == NumToken::Literal)
                out += tokens[i].text;
            else if (tokens[i].kind == NumToken::Percent)
                out += QLatin1Char('%');
    } else {
        // Literals among the placeholders ("000-00-0000"): digits fill from the right.
        QString built;
        int next = intDigits.size() - 1;
        for (int i = intEnd - 1; i >= 0; --i) {
            const NumToken& t = tokens[i];
            if (t.kind == NumToken::Zero || t.kind == NumToken::Hash) {
                if (i == firstDigit) {
                    built.prepend(QString::fromLatin1(intDigits.left(next + 1)));
                    next = -1;
                } else if (next >= 0) {
                    built.prepend(QLatin1Char(intDigits[next--]));
                }
            } else if (t.kind == NumToken::Literal) {
                if (i > firstDigit && next < 0)
                    continue;  // nothing left to separate
                built.prepend(t.text);
            } else if (t.kind == NumToken::Percent) {
                built.prepend(QLatin1Char('%'));
            }
        }
        out += built;
    }
    // Fraction part.
    if (pointAt >= 0) {
        out += l.decimalPoint();
        // Trailing zeros at optional places drop away.
        QList<int> places;
        for (int i = pointAt + 1; i < tokens.size(); ++i)
            if (tokens[i].kind == NumToken::Zero || tokens[i].kind == NumToken::Hash)
                places << i;
        int show = fracDigits.size();
        while (show > 0 && fracDigits[show - 1] == '0' && tokens[places[show - 1]].kind == NumToken::Hash)
            --show;
        int f = 0;
        for (int i = pointAt + 1; i < tokens.size(); ++i) {
            const NumToken& t = tokens[i];
            if (t.kind == NumToken::Zero || t.kind == NumToken::Hash) {
                if (f < show)
                    out += QLatin1Char(fracDigits[f]);
                ++f;
            } else if (t.kind == NumToken::Literal) {
                out += t.text;
            } else if (t.kind == NumToken::Percent) {
                out += QLatin1Char('%');
            }
        }
    }
    return out;
}

bool AllZeroDigits(const QString& s)
{
    for (QChar c : s)
        if (c.isDigit() && c != QLatin1Char('0'))
            return false;
    return true;
}

QString Scientific(double value, const QLocale& l)
{
    if (value == 0)
        return QStringLiteral("0") + l.decimalPoint() + QStringLiteral("00E+00");
    int exp = int(std::floor(std::log10(std::fabs(value))));
    double mant = Round(value / std::pow(10.0, exp), 2);
    if (std::fabs(mant) >= 10.0) {
        mant /= 10.0;
        ++exp;
    }
    QString m = QString::number(mant, 'f', 2).replace(QLatin1Char('.'), l.decimalPoint());
    return m + (exp < 0 ? QStringLiteral("E-") : QStringLiteral("E+"))
        + QStringLiteral("%1").arg(std::abs(exp), 2, 10, QLatin1Char('0'));
}

// ---------------------------------------------------------------- dates

QString LongTimeFormat(const QLocale& l)
{
    if (IsUsEnglish(l))
        return QStringLiteral("h:mm:ss AP");
    QString f = l.timeFormat(QLocale::LongFormat);
    f.remove(QRegularExpression(QStringLiteral("\\s*t+\\s*$")));
    f.remove(QRegularExpression(QStringLiteral("^\\s*t+\\s*")));
    return f.trimmed();
}

QString ShortDateFormat(const QLocale& l)
{
    return IsUsEnglish(l) ? QStringLiteral("M/d/yyyy") : l.dateFormat(QLocale::ShortFormat);
}

QString AmPm(const QLocale& l, bool pm)
{
    QString s = pm ? l.pmText() : l.amText();
    if (s.isEmpty())
        s = pm ? QStringLiteral("PM") : QStringLiteral("AM");
    return s;
}

QString Pad2(int n)
{
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

struct DateToken {
    enum Kind { Literal, Day, Month, MonthOrMinute, Year, Hour, Minute, Second, AmPm, WeekDay, Week,
                Quarter, DayOfYear, ShortDateTok, LongDateTok, LongTimeTok, GeneralTok } kind;
    int width = 0;
    QString text;  // literal text, or the AM/PM form as written
};

QList<DateToken> DateTokens(const QString& picture)
{
    QList<DateToken> out;
    auto run = [&](int i, QChar letter) {
        int n = 0;
        while (i + n < picture.size() && picture[i + n].toLower() == letter)
            ++n;
        return n;
    };
    for (int i = 0; i < picture.size();) {
        const QChar c = picture[i];
        const QChar lc = c.toLower();
        const QString rest = picture.mid(i);
        if (rest.startsWith(QLatin1String("AM/PM"), Qt::CaseInsensitive)) {
            out.append(DateToken{DateToken::AmPm, 0, picture.mid(i, 5)});
            i += 5;
        } else if (rest.startsWith(QLatin1String("A/P"), Qt::CaseInsensitive)) {
            out.append(DateToken{DateToken::AmPm, 0, picture.mid(i, 3)});
            i += 3;
        } else if (rest.startsWith(QLatin1String("AMPM"), Qt::CaseInsensitive)) {
            out.append(DateToken{DateToken::AmPm, 0, QStringLiteral("AMPM")});
            i += 4;
        } else if (c == QLatin1Char('"')) {
            const int end = picture.indexOf(QLatin1Char('"'), i + 1);
            const int stop = end < 0 ? picture.size() : end;
            out.append(DateToken{DateToken::Literal, 0, picture.mid(i + 1, stop - i - 1)});
            i = stop + 1;
        } else if (c == QLatin1Char('\\')) {
            if (i + 1 < picture.size())
                out.append(DateToken{DateToken::Literal, 0, QString(picture[i + 1])});
            i += 2;
        } else if (lc == QLatin1Char('d')) {
            const int n = run(i, lc);
            if (n >= 6)
                out.append(DateToken{DateToken::LongDateTok, n, {}});
            else if (n == 5)
                out.append(DateToken{DateToken::ShortDateTok, n, {}});
            else
                out.append(DateToken{DateToken::Day, n, {}});
            i += n;
        } else if (lc == QLatin1Char('m')) {
            const int n = run(i, lc);
            out.append({n <= 2 ? DateToken::MonthOrMinute : DateToken::Month, n, {}});
            i += n;
        } else if (lc == QLatin1Char('y')) {
            const int n = run(i, lc);
            out.append({n == 1 ? DateToken::DayOfYear : DateToken::Year, n, {}});
            i += n;
        } else if (lc == QLatin1Char('h')) {
            const int n = run(i, lc);
            out.append(DateToken{DateToken::Hour, std::min(n, 2), {}});
            i += n;
        } else if (lc == QLatin1Char('n')) {
            const int n = run(i, lc);
            out.append(DateToken{DateToken::Minute, std::min(n, 2), {}});
            i += n;
        } else if (lc == QLatin1Char('s')) {
            const int n = run(i, lc);
            out.append(DateToken{DateToken::Second, std::min(n, 2), {}});
            i += n;
        } else if (lc == QLatin1Char('w')) {
            const int n = run(i, lc);
            out.append({n == 1 ? DateToken::WeekDay : DateToken::Week, n, {}});
            i += n;
        } else if (lc == QLatin1Char('q')) {
            out.append(DateToken{DateToken::Quarter, 1, {}});
            i += 1;
        } else if (lc == QLatin1Char('c')) {
            out.append(DateToken{DateToken::GeneralTok, 1, {}});
            i += 1;
        } else if (lc == QLatin1Char('t') && run(i, lc) == 5) {
            out.append(DateToken{DateToken::LongTimeTok, 5, {}});
            i += 5;
        } else {
            out.append(DateToken{DateToken::Literal, 0, QString(c)});
            i += 1;
        }
    }
    // An m or mm right after an hour, or right before seconds, stands for minutes.
    auto isField = [](const DateToken& t) { return t.kind != DateToken::Literal; };
    for (int i = 0; i < out.size(); ++i) {
        if (out[i].kind != DateToken::MonthOrMinute)
            continue;
        int p = i - 1;
        while (p >= 0 && !isField(out[p]))
            --p;
        int q = i + 1;
        while (q < out.size() && !isField(out[q]))
            ++q;
        const bool minute = (p >= 0 && out[p].kind == DateToken::Hour)
            || (q < out.size() && out[q].kind == DateToken::Second);
        out[i].kind = minute ? DateToken::Minute : DateToken::Month;
    }
    return out;
}

QString Apply(const QDate& d, const QTime& t, const QString& picture, const QLocale& l);

QString GeneralDate(const QDate& d, const QTime& t, const QLocale& l)
{
    QString s = d.isValid() ? l.toString(d, ShortDateFormat(l)) : QString();
    if (t.isValid() && t != QTime(0, 0)) {
        if (!s.isEmpty())
            s += QLatin1Char(' ');
        s += l.toString(t, LongTimeFormat(l));
    }
    return s;
}

QString Apply(const QDate& d, const QTime& t, const QString& picture, const QLocale& l)
{
    const QList<DateToken> tokens = DateTokens(picture);
    bool twelve = false;
    for (const DateToken& tok : tokens)
        if (tok.kind == DateToken::AmPm)
            twelve = true;
    const bool pm = t.hour() >= 12;
    QString out;
    for (const DateToken& tok : tokens) {
        switch (tok.kind) {
        case DateToken::Literal: out += tok.text; break;
        case DateToken::Day:
            if (tok.width == 1) out += QString::number(d.day());
            else if (tok.width == 2) out += Pad2(d.day());
            else if (tok.width == 3) out += l.dayName(d.dayOfWeek(), QLocale::ShortFormat);
            else out += l.dayName(d.dayOfWeek(), QLocale::LongFormat);
            break;
        case DateToken::Month:
            if (tok.width == 1) out += QString::number(d.month());
            else if (tok.width == 2) out += Pad2(d.month());
            else if (tok.width == 3) out += l.monthName(d.month(), QLocale::ShortFormat);
            else out += l.monthName(d.month(), QLocale::LongFormat);
            break;
        case DateToken::Year:
            if (tok.width == 2) out += Pad2(d.year() % 100);
            else out += QString::number(d.year());
            break;
        case DateToken::DayOfYear: out += QString::number(d.dayOfYear()); break;
        case DateToken::WeekDay: out += QString::number(d.dayOfWeek() % 7 + 1); break;
        case DateToken::Week: out += QString::number(d.weekNumber()); break;
        case DateToken::Quarter: out += QString::number((d.month() - 1) / 3 + 1); break;
        case DateToken::Hour: {
            int h = t.hour();
            if (twelve) {
                h %= 12;
                if (h == 0)
                    h = 12;
            }
            out += tok.width == 1 ? QString::number(h) : Pad2(h);
            break;
        }
        case DateToken::Minute: out += tok.width == 1 ? QString::number(t.minute()) : Pad2(t.minute()); break;
        case DateToken::Second: out += tok.width == 1 ? QString::number(t.second()) : Pad2(t.second()); break;
        case DateToken::AmPm:
            if (tok.text == QLatin1String("AMPM")) {
                out += AmPm(l, pm);
            } else if (tok.text.size() == 3) {  // A/P, a/p
                out += pm ? tok.text[2] : tok.text[0];
            } else {  // AM/PM as written, in its case
                out += pm ? tok.text.mid(3, 2) : tok.text.left(2);
            }
            break;
        case DateToken::ShortDateTok: out += l.toString(d, ShortDateFormat(l)); break;
        case DateToken::LongDateTok: out += l.toString(d, QLocale::LongFormat); break;
        case DateToken::LongTimeTok: out += l.toString(t, LongTimeFormat(l)); break;
        case DateToken::GeneralTok: out += GeneralDate(d, t, l); break;
        case DateToken::MonthOrMinute: break;
        }
    }
    return out;
}

// ---------------------------------------------------------------- reading dates

// The day comes before the month in the locale's short date.
bool DayFirst(const QLocale& l)
{
    if (IsUsEnglish(l))
        return false;
    const QString f = l.dateFormat(QLocale::ShortFormat);
    const int d = f.indexOf(QLatin1Char('d'));
    const int m = f.indexOf(QLatin1Char('M'));
    return d >= 0 && m >= 0 && d < m;
}


// What a person types: the locale's order of day and month (a date with dots is day first),
// its month and day names and AM/PM, its own short and long forms; "13:00 PM" is 13:00.
datereader::Options TypedOptions(const QLocale& l)
{
    datereader::Options o;
    o.dayFirst = DayFirst(l);
    o.dotMeansDayFirst = true;
    o.lenientMeridian = true;
    o.locale = &l;
    return o;
}

}  // namespace

QLocale Locale()
{
    const auto& l = CurrentLocale();
    return l ? *l : QLocale::system();
}

void SetLocale(const QLocale& locale)
{
    CurrentLocale() = locale;
}

double Round(double value, int places)
{
    if (!std::isfinite(value) || value == 0)
        return value;
    if (places < 0)
        places = 0;
    QByteArray intDigits, fracDigits;
    RoundedDigits(value, places, intDigits, fracDigits);
    QByteArray text = intDigits;
    if (!fracDigits.isEmpty())
        text += '.' + fracDigits;
    const double r = std::strtod(text.constData(), nullptr);
    return (value < 0 && r != 0) ? -r : r;
}

QString FormatNumber(double value, const QString& picture)
{
    const QLocale l = Locale();
    if (!std::isfinite(value))
        return QString::number(value);
    const QString named = picture.trimmed();
    if (named.isEmpty() || named.compare(QLatin1String("General Number"), Qt::CaseInsensitive) == 0)
        return GeneralNumber(value, l);
    if (named.compare(QLatin1String("Currency"), Qt::CaseInsensitive) == 0)
        return l.toCurrencyString(Round(value, 2), CurrencySymbol(), 2);
    if (named.compare(QLatin1String("Fixed"), Qt::CaseInsensitive) == 0)
        return FormatNumber(value, QStringLiteral("0.00"));
    if (named.compare(QLatin1String("Standard"), Qt::CaseInsensitive) == 0)
        return FormatNumber(value, QStringLiteral("#,##0.00"));
    if (named.compare(QLatin1String("Percent"), Qt::CaseInsensitive) == 0)
        return FormatNumber(value, QStringLiteral("0.00%"));
    if (named.compare(QLatin1String("Scientific"), Qt::CaseInsensitive) == 0)
        return Scientific(value, l);
    if (named.compare(QLatin1String("Yes/No"), Qt::CaseInsensitive) == 0)
        return value != 0 ? QStringLiteral("Yes") : QStringLiteral("No");
    if (named.compare(QLatin1String("True/False"), Qt::CaseInsensitive) == 0)
        return value != 0 ? QStringLiteral("True") : QStringLiteral("False");
    if (named.compare(QLatin1String("On/Off"), Qt::CaseInsensitive) == 0)
        return value != 0 ? QStringLiteral("On") : QStringLiteral("Off");

    // positive[;negative[;zero]]; an empty section takes the first one's form.
    const QStringList sections = Sections(picture);
    if (value == 0 && sections.size() >= 3)
        return sections[2].isEmpty() ? FormatSection(0, sections[0], l) : FormatSection(0, sections[2], l);
    if (value < 0 && sections.size() >= 2 && !sections[1].isEmpty())
        return FormatSection(-value, sections[1], l);
    const QString s = FormatSection(std::fabs(value), sections[0], l);
    if (value < 0 && !AllZeroDigits(s))
        return QStringLiteral("-") + s;
    return s;
}

QString FormatDate(const QDateTime& value, const QString& picture)
{
    const QDate d = value.date();
    const QTime t = value.time().isValid() ? value.time() : QTime(0, 0);
    if (!d.isValid())
        return QString();
    const QLocale l = Locale();
    const QString named = picture.trimmed();
    if (named.compare(QLatin1String("Long Date"), Qt::CaseInsensitive) == 0)
        return LongDate(d);
    if (named.compare(QLatin1String("Short Date"), Qt::CaseInsensitive) == 0)
        return ShortDate(d);
    if (named.compare(QLatin1String("Long Time"), Qt::CaseInsensitive) == 0)
        return l.toString(t, LongTimeFormat(l));
    if (named.compare(QLatin1String("Medium Time"), Qt::CaseInsensitive) == 0)
        return Apply(d, t, QStringLiteral("hh:nn AMPM"), l);
    if (named.compare(QLatin1String("Short Time"), Qt::CaseInsensitive) == 0)
        return Apply(d, t, QStringLiteral("hh:nn"), l);
    if (named.compare(QLatin1String("Medium Date"), Qt::CaseInsensitive) == 0)
        return Apply(d, t, QStringLiteral("dd-mmm-yy"), l);
    if (named.isEmpty() || named.compare(QLatin1String("General Date"), Qt::CaseInsensitive) == 0)
        return GeneralDate(d, t, l);
    return Apply(d, t, picture, l);
}

QString FormatDate(const QDate& value, const QString& picture)
{
    return FormatDate(QDateTime(value, QTime(0, 0)), picture);
}

QDate ParseDate(const QString& text)
{
    const QLocale l = Locale();
    datereader::Result r;
    if (!datereader::Read(text, TypedOptions(l), r) || !r.hasDate) return QDate();
    return r.date;
}

QTime ParseTime(const QString& text)
{
    const QLocale l = Locale();
    datereader::Result r;
    if (!datereader::Read(text, TypedOptions(l), r) || !r.hasTime) return QTime();
    return r.time;
}

QString ShortDate(const QDate& d)
{
    if (!d.isValid())
        return QString();
    const QLocale l = Locale();
    return l.toString(d, ShortDateFormat(l));
}

QString LongDate(const QDate& d)
{
    if (!d.isValid())
        return QString();
    return Locale().toString(d, QLocale::LongFormat);
}

QString DecimalSeparator()
{
    return Locale().decimalPoint();
}

QString CurrencySymbol()
{
    return Locale().currencySymbol(QLocale::CurrencySymbol);
}

}  // namespace regional
