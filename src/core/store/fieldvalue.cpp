#include "core/store/fieldvalue.h"

#include "core/regional.h"
#include "core/store/storedate.h"
#include "core/store/storeerror.h"
#include "core/store/value.h"

#include <QDate>
#include <QDateTime>
#include <cmath>
#include <cstring>

namespace fieldvalue {

QVariant DateValue(const QDate& d, const QTime& t, bool hasTime)
{
    if (!hasTime || t == QTime(0, 0)) return QVariant(d);
    return QVariant(QDateTime(d, t));
}

QVariant FromSerial(double serial)
{
    QDateTime dt = storedate::FromSerial(serial);
    return DateValue(dt.date(), dt.time(), true);
}

namespace {

bool StartsWith(const char* s, size_t n, const char* word)
{
    size_t w = std::strlen(word);
    return n == w && strncasecmp(s, word, w) == 0;
}

qlonglong RoundToLong(double v)
{
    return qlonglong(std::nearbyint(v));   // the default rounding: to even on an exact half
}

[[noreturn]] void Mismatch()
{
    throw StoreError(StoreError::TypeMismatch,
                     QStringLiteral("Application uses a value of the wrong type for the current operation."));
}

bool IsNumber(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::ULongLong:
    case QMetaType::Long: case QMetaType::ULong: case QMetaType::Short: case QMetaType::UShort:
    case QMetaType::Double: case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

double DateSerial(const QVariant& v)
{
    if (v.typeId() == QMetaType::QDate) return storedate::ToSerial(QDateTime(v.toDate(), QTime(0, 0)));
    if (v.typeId() == QMetaType::QDateTime) return storedate::ToSerial(v.toDateTime());
    return storedate::ToSerial(QDateTime(storedate::BaseDay(), v.toTime()));
}

bool IsDateType(const QVariant& v)
{
    return v.typeId() == QMetaType::QDate || v.typeId() == QMetaType::QDateTime || v.typeId() == QMetaType::QTime;
}

}  // namespace

Kind KindOf(const char* decl)
{
    if (!decl || !*decl) return Kind::Any;
    size_t n = 0;
    while (decl[n] && decl[n] != '(' && decl[n] != ' ') ++n;
    auto is = [&](std::initializer_list<const char*> words) {
        for (const char* w : words)
            if (StartsWith(decl, n, w)) return true;
        return false;
    };
    if (is({"TEXT", "LONGTEXT", "CHAR", "VARCHAR", "NVARCHAR", "NCHAR", "MEMO", "CLOB", "STRING", "CHARACTER"}))
        return Kind::Text;
    if (is({"YESNO", "BIT", "BOOL", "BOOLEAN", "LOGICAL"})) return Kind::Bool;
    if (is({"DATETIME", "DATE", "TIME", "TIMESTAMP"})) return Kind::Date;
    if (is({"BYTE", "SHORT", "LONG", "INT", "INTEGER", "SMALLINT", "TINYINT", "BIGINT", "COUNTER"}))
        return Kind::Integer;
    if (is({"SINGLE", "DOUBLE", "REAL", "FLOAT", "CURRENCY", "MONEY", "NUMERIC", "DECIMAL", "NUMBER"}))
        return Kind::Real;
    if (is({"BLOB", "BINARY", "LONGBINARY", "VARBINARY"})) return Kind::Blob;
    return Kind::Any;
}

QVariant Convert(const QVariant& v, Kind kind)
{
    if (IsNull(v)) return kind == Kind::Bool ? QVariant(false) : QVariant();
    const int type = v.typeId();
    switch (kind) {
    case Kind::Text:
        if (type == QMetaType::QString) return v;
        return QVariant(Str(v));
    case Kind::Bool:
        if (type == QMetaType::Bool) return v;
        if (type == QMetaType::QString) {
            const QString s = v.toString().trimmed();
            if (s.compare(u"true", Qt::CaseInsensitive) == 0 || s.compare(u"yes", Qt::CaseInsensitive) == 0
                || s.compare(u"on", Qt::CaseInsensitive) == 0)
                return QVariant(true);
            return QVariant(Val(s) != 0);
        }
        return QVariant(Val(v) != 0);
    case Kind::Date: {
        if (type == QMetaType::QDate) return v;
        if (type == QMetaType::QDateTime) {
            const QDateTime dt = v.toDateTime();
            return DateValue(dt.date(), dt.time(), true);
        }
        if (type == QMetaType::QTime) return QVariant(QDateTime(storedate::BaseDay(), v.toTime()));
        if (IsNumber(v)) return FromSerial(v.toDouble());
        if (type == QMetaType::Bool) return FromSerial(v.toBool() ? -1 : 0);
        const QString s = v.toString();
        if (s.trimmed().isEmpty()) return QVariant();
        QDate d;
        QTime t;
        bool hasTime = false;
        if (storedate::Parse(s, d, t, hasTime)) return DateValue(d, t, hasTime);
        d = regional::ParseDate(s);
        if (d.isValid()) return QVariant(d);
        Mismatch();
    }
    case Kind::Integer:
        if (type == QMetaType::LongLong || type == QMetaType::Int) return QVariant(v.toLongLong());
        if (IsDateType(v)) return QVariant(RoundToLong(DateSerial(v)));
        return QVariant(RoundToLong(Val(v)));
    case Kind::Real:
        if (type == QMetaType::Double) return v;
        if (IsDateType(v)) return QVariant(DateSerial(v));
        return QVariant(Val(v));
    case Kind::Blob:
        if (type == QMetaType::QByteArray) return v;
        return QVariant(Str(v).toUtf8());
    case Kind::Any:
        return v;
    }
    return v;
}

}  // namespace fieldvalue
