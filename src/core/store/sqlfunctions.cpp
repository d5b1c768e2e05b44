#include "core/store/sqlfunctions.h"

#include "core/regional.h"
#include "core/store/storedate.h"
#include "core/store/textfold.h"
#include "core/store/value.h"

#include <QDateTime>
#include <cmath>
#include <sqlite3.h>

namespace {

QString Text(sqlite3_value* v)
{
    const char* s = reinterpret_cast<const char*>(sqlite3_value_text(v));
    return QString::fromUtf8(s, sqlite3_value_bytes(v));
}

void ResultText(sqlite3_context* ctx, const QString& s)
{
    const QByteArray b = s.toUtf8();
    sqlite3_result_text(ctx, b.constData(), int(b.size()), SQLITE_TRANSIENT);
}

void ResultNumber(sqlite3_context* ctx, double v)
{
    if (v == std::trunc(v) && std::fabs(v) < 9e15) sqlite3_result_int64(ctx, sqlite3_int64(v));
    else sqlite3_result_double(ctx, v);
}

bool AnyNull(int argc, sqlite3_value** argv)
{
    for (int i = 0; i < argc; ++i)
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL) return true;
    return false;
}

// A number argument: numbers as they are, text by its value.
double Number(sqlite3_value* v)
{
    switch (sqlite3_value_type(v)) {
    case SQLITE_INTEGER: return double(sqlite3_value_int64(v));
    case SQLITE_FLOAT: return sqlite3_value_double(v);
    case SQLITE_NULL: return 0;
    default: return Val(Text(v));
    }
}

// The text of a value as "&" joins it: numbers without a needless ".0".
QString JoinText(sqlite3_value* v)
{
    switch (sqlite3_value_type(v)) {
    case SQLITE_NULL: return QString();
    case SQLITE_INTEGER: return QString::number(sqlite3_value_int64(v));
    case SQLITE_FLOAT: return NumberText(sqlite3_value_double(v));
    default: return Text(v);
    }
}

// A date argument: ISO or any written form, or a serial number.
bool DateArg(sqlite3_value* v, QDateTime& out)
{
    switch (sqlite3_value_type(v)) {
    case SQLITE_NULL: return false;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT: out = storedate::FromSerial(sqlite3_value_double(v)); return true;
    default: {
        QDate d;
        QTime t;
        bool hasTime = false;
        const char* s = reinterpret_cast<const char*>(sqlite3_value_text(v));
        const int len = sqlite3_value_bytes(v);
        if (!storedate::ParseIso(s, len, d, t, hasTime) && !storedate::Parse(QString::fromUtf8(s, len), d, t, hasTime))
            return false;
        out = QDateTime(d, t);
        return true;
    }
    }
}

void ResultDate(sqlite3_context* ctx, const QDateTime& dt)
{
    ResultText(ctx, storedate::IsoText(dt));
}

#define FN(name) void name(sqlite3_context* ctx, int argc, sqlite3_value** argv)

FN(fnVal)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    ResultNumber(ctx, Number(argv[0]));
}

FN(fnIsNull) { sqlite3_result_int(ctx, sqlite3_value_type(argv[0]) == SQLITE_NULL ? -1 : 0); }

FN(fnConcat)
{
    QString out;
    bool any = false;
    for (int i = 0; i < argc; ++i) {
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL) continue;
        any = true;
        out += JoinText(argv[i]);
    }
    if (!any) return sqlite3_result_null(ctx);
    ResultText(ctx, out);
}

FN(fnNz)
{
    if (sqlite3_value_type(argv[0]) != SQLITE_NULL) return sqlite3_result_value(ctx, argv[0]);
    if (argc > 1) return sqlite3_result_value(ctx, argv[1]);
    sqlite3_result_text(ctx, "", 0, SQLITE_STATIC);
}

FN(fnLeft)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    ResultText(ctx, JoinText(argv[0]).left(qsizetype(std::max(0.0, Number(argv[1])))));
}

FN(fnRight)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    ResultText(ctx, JoinText(argv[0]).right(qsizetype(std::max(0.0, Number(argv[1])))));
}

FN(fnInstr)
{
    // InStr([start, ]text, sought[, compare])
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    int start = 1, at = 0;
    if (argc >= 3) { start = int(Number(argv[0])); at = 1; }
    if (start < 1) start = 1;
    const QString text = JoinText(argv[at]);
    const QString sought = JoinText(argv[at + 1]);
    const bool binary = argc == 4 && Number(argv[3]) == 0;
    qsizetype pos = text.indexOf(sought, start - 1, binary ? Qt::CaseSensitive : Qt::CaseInsensitive);
    sqlite3_result_int64(ctx, pos < 0 ? 0 : pos + 1);
}

FN(fnRound)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    const int places = argc > 1 ? int(Number(argv[1])) : 0;
    ResultNumber(ctx, regional::Round(Number(argv[0]), places));
}

FN(fnInt)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    ResultNumber(ctx, std::floor(Number(argv[0])));
}

FN(fnFix)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    ResultNumber(ctx, std::trunc(Number(argv[0])));
}

FN(fnCInt)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    sqlite3_result_int64(ctx, sqlite3_int64(std::nearbyint(Number(argv[0]))));
}

FN(fnCDbl)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    sqlite3_result_double(ctx, Number(argv[0]));
}

FN(fnCStr)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    ResultText(ctx, JoinText(argv[0]));
}

FN(fnCBool)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    sqlite3_result_int(ctx, Number(argv[0]) != 0 ? -1 : 0);
}

FN(fnCDate)
{
    QDateTime dt;
    if (!DateArg(argv[0], dt)) return sqlite3_result_null(ctx);
    ResultDate(ctx, dt);
}

FN(fnDateValue)
{
    QDateTime dt;
    if (!DateArg(argv[0], dt)) return sqlite3_result_null(ctx);
    ResultText(ctx, storedate::IsoText(dt.date()));
}

FN(fnDateSerial)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    // Months and days outside their range roll over, as DateSerial(2024, 13, 1) is 2025-01-01.
    const int y = int(Number(argv[0])), m = int(Number(argv[1])), d = int(Number(argv[2]));
    QDate date = QDate(y, 1, 1).addMonths(m - 1).addDays(d - 1);
    ResultText(ctx, storedate::IsoText(date));
}

int Part(const QString& interval, const QDateTime& dt, int firstDay)
{
    const QString i = interval.toLower();
    const QDate d = dt.date();
    if (i == u"yyyy") return d.year();
    if (i == u"q") return (d.month() - 1) / 3 + 1;
    if (i == u"m") return d.month();
    if (i == u"y") return d.dayOfYear();
    if (i == u"d") return d.day();
    if (i == u"w") return (d.dayOfWeek() % 7 + 7 - (firstDay - 1)) % 7 + 1;   // 1 = the first day
    if (i == u"ww") {
        const QDate jan1(d.year(), 1, 1);
        const int offset = (jan1.dayOfWeek() % 7 + 7 - (firstDay - 1)) % 7;
        return (jan1.daysTo(d) + offset) / 7 + 1;
    }
    if (i == u"h") return dt.time().hour();
    if (i == u"n") return dt.time().minute();
    if (i == u"s") return dt.time().second();
    return 0;
}

void DatePartOf(sqlite3_context* ctx, sqlite3_value* v, const char* interval)
{
    QDateTime dt;
    if (!DateArg(v, dt)) return sqlite3_result_null(ctx);
    sqlite3_result_int(ctx, Part(QString::fromLatin1(interval), dt, 1));
}

FN(fnYear) { DatePartOf(ctx, argv[0], "yyyy"); }
FN(fnMonth) { DatePartOf(ctx, argv[0], "m"); }
FN(fnDay) { DatePartOf(ctx, argv[0], "d"); }
FN(fnHour) { DatePartOf(ctx, argv[0], "h"); }
FN(fnMinute) { DatePartOf(ctx, argv[0], "n"); }
FN(fnSecond) { DatePartOf(ctx, argv[0], "s"); }

FN(fnWeekday)
{
    QDateTime dt;
    if (!DateArg(argv[0], dt)) return sqlite3_result_null(ctx);
    const int first = argc > 1 ? std::max(1, int(Number(argv[1]))) : 1;
    sqlite3_result_int(ctx, Part(QStringLiteral("w"), dt, first));
}

FN(fnDatePart)
{
    QDateTime dt;
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || !DateArg(argv[1], dt)) return sqlite3_result_null(ctx);
    const int first = argc > 2 ? std::max(1, int(Number(argv[2]))) : 1;
    sqlite3_result_int(ctx, Part(Text(argv[0]), dt, first));
}

FN(fnDateAdd)
{
    QDateTime dt;
    if (AnyNull(argc, argv) || !DateArg(argv[2], dt)) return sqlite3_result_null(ctx);
    const QString i = Text(argv[0]).toLower();
    const int n = int(Number(argv[1]));
    if (i == u"yyyy") dt = dt.addYears(n);
    else if (i == u"q") dt = dt.addMonths(3 * n);
    else if (i == u"m") dt = dt.addMonths(n);
    else if (i == u"y" || i == u"d" || i == u"w") dt = dt.addDays(n);
    else if (i == u"ww") dt = dt.addDays(7 * n);
    else if (i == u"h") dt = dt.addSecs(3600LL * n);
    else if (i == u"n") dt = dt.addSecs(60LL * n);
    else if (i == u"s") dt = dt.addSecs(n);
    ResultDate(ctx, dt);
}

FN(fnDateDiff)
{
    QDateTime a, b;
    if (AnyNull(argc, argv) || !DateArg(argv[1], a) || !DateArg(argv[2], b)) return sqlite3_result_null(ctx);
    const QString i = Text(argv[0]).toLower();
    qint64 r = 0;
    if (i == u"yyyy") r = b.date().year() - a.date().year();
    else if (i == u"q") r = (b.date().year() * 4 + (b.date().month() - 1) / 3) - (a.date().year() * 4 + (a.date().month() - 1) / 3);
    else if (i == u"m") r = (b.date().year() * 12 + b.date().month()) - (a.date().year() * 12 + a.date().month());
    else if (i == u"y" || i == u"d") r = a.date().daysTo(b.date());
    else if (i == u"w" || i == u"ww") r = a.date().daysTo(b.date()) / 7;
    else if (i == u"h") r = a.secsTo(b) / 3600;
    else if (i == u"n") r = a.secsTo(b) / 60;
    else if (i == u"s") r = a.secsTo(b);
    sqlite3_result_int64(ctx, r);
}

// Format(value[, picture]): dates with a date picture ("yyyy-mm-dd", "Short Date" ...),
// numbers with a number picture ("#,##0.0", "0.00" ...).
FN(fnFormat)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_text(ctx, "", 0, SQLITE_STATIC);
    if (argc < 2 || sqlite3_value_type(argv[1]) == SQLITE_NULL) return ResultText(ctx, JoinText(argv[0]));
    const QString picture = Text(argv[1]);
    const int type = sqlite3_value_type(argv[0]);
    if (type == SQLITE_TEXT) {
        QDateTime dt;
        if (DateArg(argv[0], dt)) {
            QString pic = picture;
            if (!pic.contains(u' ')) pic = pic.toUpper();   // the system's pictures spell Y, M, D in capitals
            return ResultText(ctx, regional::FormatDate(dt, pic));
        }
        const QString t = Text(argv[0]);
        bool ok = false;
        const double d = t.trimmed().toDouble(&ok);
        if (!ok) return ResultText(ctx, t);
        return ResultText(ctx, regional::FormatNumber(d, picture));
    }
    ResultText(ctx, regional::FormatNumber(Number(argv[0]), picture));
}

// First and Last: the value of the first and the last row of the group.
struct Pick {
    sqlite3_value* value;
};

void FirstStep(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    auto* p = static_cast<Pick*>(sqlite3_aggregate_context(ctx, sizeof(Pick)));
    if (p && !p->value) p->value = sqlite3_value_dup(argv[0]);
}

void LastStep(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    auto* p = static_cast<Pick*>(sqlite3_aggregate_context(ctx, sizeof(Pick)));
    if (!p) return;
    sqlite3_value_free(p->value);
    p->value = sqlite3_value_dup(argv[0]);
}

void PickFinal(sqlite3_context* ctx)
{
    auto* p = static_cast<Pick*>(sqlite3_aggregate_context(ctx, 0));
    if (!p || !p->value) return sqlite3_result_null(ctx);
    sqlite3_result_value(ctx, p->value);
    sqlite3_value_free(p->value);
}

// The dialect's "\": both sides rounded to whole numbers, the quotient cut to a whole number.
FN(fnIntDiv)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    const double a = std::nearbyint(Number(argv[0])), b = std::nearbyint(Number(argv[1]));
    if (b == 0) return sqlite3_result_null(ctx);   // as "/" gives for a division by zero
    ResultNumber(ctx, std::trunc(a / b));
}

// "x like pattern [escape e]" without regard to case for every letter.
FN(fnLike)
{
    if (AnyNull(argc, argv)) return sqlite3_result_null(ctx);
    char32_t escape = 0;
    if (argc == 3) {
        const QString e = Text(argv[2]);
        if (e.toUcs4().size() != 1) return sqlite3_result_error(ctx, "ESCAPE expression must be a single character", -1);
        escape = e.toUcs4().front();
    }
    const char* pattern = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    const int plen = sqlite3_value_bytes(argv[0]);
    const char* text = reinterpret_cast<const char*>(sqlite3_value_text(argv[1]));
    const int tlen = sqlite3_value_bytes(argv[1]);
    sqlite3_result_int(ctx, textfold::Like(pattern, plen, text, tlen, escape) ? 1 : 0);
}

int CompareFolded(void*, int alen, const void* a, int blen, const void* b)
{
    return textfold::Compare(static_cast<const char*>(a), alen, static_cast<const char*>(b), blen);
}

#undef FN

}  // namespace

void RegisterSqlFunctions(sqlite3* db)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    struct Entry {
        const char* name;
        int args;
        void (*fn)(sqlite3_context*, int, sqlite3_value**);
        bool deterministic;
    };
    const Entry entries[] = {
        {"val", 1, fnVal, true},           {"jet_isnull", 1, fnIsNull, true}, {"jet_concat", -1, fnConcat, true},
        {"nz", 1, fnNz, true},             {"nz", 2, fnNz, true},             {"jet_left", 2, fnLeft, true},
        {"jet_right", 2, fnRight, true},   {"jet_instr", 2, fnInstr, true},   {"jet_instr", 3, fnInstr, true},
        {"jet_instr", 4, fnInstr, true},   {"jet_round", 1, fnRound, true},   {"jet_round", 2, fnRound, true},
        {"jet_int", 1, fnInt, true},       {"jet_fix", 1, fnFix, true},       {"cint", 1, fnCInt, true},
        {"clng", 1, fnCInt, true},         {"cdbl", 1, fnCDbl, true},         {"csng", 1, fnCDbl, true},
        {"cstr", 1, fnCStr, true},         {"cbool", 1, fnCBool, true},       {"cdate", 1, fnCDate, true},
        {"datevalue", 1, fnDateValue, true}, {"dateserial", 3, fnDateSerial, true}, {"year", 1, fnYear, true},
        {"month", 1, fnMonth, true},       {"day", 1, fnDay, true},           {"hour", 1, fnHour, true},
        {"minute", 1, fnMinute, true},     {"second", 1, fnSecond, true},     {"weekday", 1, fnWeekday, true},
        {"weekday", 2, fnWeekday, true},   {"datepart", 2, fnDatePart, true}, {"datepart", 3, fnDatePart, true},
        {"dateadd", 3, fnDateAdd, true},   {"datediff", 3, fnDateDiff, true}, {"datediff", 4, fnDateDiff, true},
        {"jet_format", 1, fnFormat, true}, {"jet_format", 2, fnFormat, true},
        {"jet_intdiv", 2, fnIntDiv, true}, {"like", 2, fnLike, true},     {"like", 3, fnLike, true},
    };
    // Text columns are declared COLLATE NOCASE; the name is taken over so that they compare
    // every letter without regard to case, in new stores and in those made before.
    sqlite3_create_collation_v2(db, "NOCASE", SQLITE_UTF8, nullptr, CompareFolded, nullptr);
    for (const Entry& e : entries)
        sqlite3_create_function_v2(db, e.name, e.args, e.deterministic ? flags : SQLITE_UTF8, nullptr, e.fn, nullptr,
                                   nullptr, nullptr);
    sqlite3_create_function_v2(db, "jet_first", 1, SQLITE_UTF8, nullptr, nullptr, FirstStep, PickFinal, nullptr);
    sqlite3_create_function_v2(db, "jet_last", 1, SQLITE_UTF8, nullptr, nullptr, LastStep, PickFinal, nullptr);
}
