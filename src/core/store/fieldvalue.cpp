#include "core/store/fieldvalue.h"

#include "core/regional.h"
#include "core/store/storedate.h"
#include "core/store/storeerror.h"
#include "core/store/value.h"

#include <QDate>
#include <QDateTime>
#include <cmath>
#include <cstring>
#include <sqlite3.h>

namespace fieldvalue {
namespace {

bool StartsWith(const char* s, size_t n, const char* word)
{
    size_t w = std::strlen(word);
    return n == w && strncasecmp(s, word, w) == 0;
}

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

QVariant TextValue(sqlite3_stmt* st, int i)
{
    const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
    return QVariant(QString::fromUtf8(s, sqlite3_column_bytes(st, i)));
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

QVariant Read(sqlite3_stmt* st, int i, Kind kind)
{
    if (kind == Kind::Text) {
        // Text needs no look at the storage class: a Null gives no text at all.
        const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
        if (!s) return QVariant();
        return QVariant(QString::fromUtf8(s, sqlite3_column_bytes(st, i)));
    }
    const int type = sqlite3_column_type(st, i);
    if (type == SQLITE_NULL) return QVariant();
    switch (kind) {
    case Kind::Text:
        return TextValue(st, i);
    case Kind::Bool:
        if (type == SQLITE_TEXT) return QVariant(Val(TextValue(st, i).toString()) != 0);
        return QVariant(sqlite3_column_double(st, i) != 0);
    case Kind::Date: {
        if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) return FromSerial(sqlite3_column_double(st, i));
        const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
        const int len = sqlite3_column_bytes(st, i);
        QDate d;
        QTime t;
        bool hasTime = false;
        if (storedate::ParseIso(s, len, d, t, hasTime)) return DateValue(d, t, hasTime);
        QString text = QString::fromUtf8(s, len);
        if (storedate::Parse(text, d, t, hasTime)) return DateValue(d, t, hasTime);
        return QVariant(text);
    }
    case Kind::Integer:
        if (type == SQLITE_INTEGER) return QVariant(qlonglong(sqlite3_column_int64(st, i)));
        if (type == SQLITE_FLOAT) {
            double v = sqlite3_column_double(st, i);
            if (v == std::trunc(v) && std::fabs(v) < 9e15) return QVariant(qlonglong(v));
            return QVariant(v);
        }
        break;
    case Kind::Real:
        if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) return QVariant(sqlite3_column_double(st, i));
        break;
    case Kind::Blob:
    case Kind::Any:
        break;
    }
    switch (type) {
    case SQLITE_INTEGER: return QVariant(qlonglong(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT: return QVariant(sqlite3_column_double(st, i));
    case SQLITE_BLOB: {
        const char* b = static_cast<const char*>(sqlite3_column_blob(st, i));
        return QVariant(QByteArray(b, sqlite3_column_bytes(st, i)));
    }
    default: {
        if (kind == Kind::Any) {
            // An expression over dates (max(date) ...) keeps the date.
            const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
            const int len = sqlite3_column_bytes(st, i);
            QDate d;
            QTime t;
            bool hasTime = false;
            if ((len == 10 || len == 19) && s[4] == '-' && storedate::ParseIso(s, len, d, t, hasTime))
                return DateValue(d, t, hasTime);
        }
        return TextValue(st, i);
    }
    }
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

void Bind(sqlite3_stmt* st, int i, const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        sqlite3_bind_null(st, i);
        return;
    case QMetaType::Bool:
        sqlite3_bind_int64(st, i, v.toBool() ? -1 : 0);
        return;
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::Long:
    case QMetaType::Short: case QMetaType::UShort: case QMetaType::ULong:
        sqlite3_bind_int64(st, i, v.toLongLong());
        return;
    case QMetaType::ULongLong:
        sqlite3_bind_double(st, i, v.toDouble());
        return;
    case QMetaType::Double: case QMetaType::Float:
        sqlite3_bind_double(st, i, v.toDouble());
        return;
    case QMetaType::QDate: {
        const QByteArray b = storedate::IsoText(v.toDate()).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QDateTime: {
        const QByteArray b = storedate::IsoText(v.toDateTime()).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QTime: {
        const QByteArray b = storedate::IsoText(storedate::BaseDay(), v.toTime(), true).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QByteArray: {
        const QByteArray b = v.toByteArray();
        sqlite3_bind_blob(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    default: {
        const QByteArray b = v.toString().toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    }
}

}  // namespace fieldvalue
