#include "core/store/value.h"

#include "core/regional.h"
#include "core/store/storedate.h"

#include <QDate>
#include <QDateTime>
#include <cmath>
#include <cstdlib>

namespace {

bool IsBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

double RadixValue(const QString& text, qsizetype i, int radix)
{
    quint64 v = 0;
    int digits = 0;
    for (; i < text.size(); ++i) {
        if (IsBlank(text[i])) continue;
        int d = text[i].digitValue();
        if (radix == 16 && d < 0) {
            QChar u = text[i].toUpper();
            if (u >= u'A' && u <= u'F') d = 10 + (u.unicode() - 'A');
        }
        if (d < 0 || d >= radix) break;
        v = v * radix + quint64(d);
        if (++digits > 16) break;
    }
    // As wide as its digits say: &HFFFF is a 16-bit -1, &HFFFFFFFF a 32-bit one.
    if (v <= 0xFFFF && v >= 0x8000) return double(qint64(v) - 0x10000);
    if (v <= 0xFFFFFFFFull && v >= 0x80000000ull && v > 0xFFFF) return double(qint64(v) - 0x100000000ll);
    return double(v);
}

}  // namespace

double Val(const QString& text)
{
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n && IsBlank(text[i])) ++i;
    if (i + 1 < n && text[i] == u'&') {
        QChar r = text[i + 1].toUpper();
        if (r == u'H') return RadixValue(text, i + 2, 16);
        if (r == u'O') return RadixValue(text, i + 2, 8);
    }
    char buf[96];
    int len = 0;
    auto put = [&](char c) { if (len < int(sizeof(buf)) - 1) buf[len++] = c; };
    auto next = [&]() -> QChar {   // the next character that is not a blank
        while (i < n && IsBlank(text[i])) ++i;
        return i < n ? text[i] : QChar();
    };
    QChar c = next();
    if (c == u'+' || c == u'-') { put(char(c.unicode())); ++i; }
    bool digits = false, point = false;
    for (;;) {
        c = next();
        if (c >= u'0' && c <= u'9') { put(char(c.unicode())); digits = true; ++i; }
        else if (c == u'.' && !point) { put('.'); point = true; ++i; }
        else break;
    }
    if (!digits) return 0.0;
    c = next();
    if (c == u'e' || c == u'E' || c == u'd' || c == u'D') {
        qsizetype save = i;
        int saveLen = len;
        ++i;
        put('e');
        QChar s = next();
        if (s == u'+' || s == u'-') { put(char(s.unicode())); ++i; }
        bool expDigits = false;
        for (c = next(); c >= u'0' && c <= u'9'; c = next()) { put(char(c.unicode())); expDigits = true; ++i; }
        if (!expDigits) { i = save; len = saveLen; }
    }
    buf[len] = 0;
    double v = std::strtod(buf, nullptr);
    return std::isfinite(v) ? v : 0.0;
}

double Val(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr: return 0.0;
    case QMetaType::Bool: return v.toBool() ? -1.0 : 0.0;
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::ULongLong:
    case QMetaType::Long: case QMetaType::ULong: case QMetaType::Short: case QMetaType::UShort:
    case QMetaType::Double: case QMetaType::Float:
        return v.toDouble();
    case QMetaType::QString: return Val(v.toString());
    default: return Val(Str(v));
    }
}

QString NumberText(double value)
{
    if (!std::isfinite(value)) return value != value ? QStringLiteral("NaN") : value > 0 ? QStringLiteral("Inf") : QStringLiteral("-Inf");
    if (value == 0) return QStringLiteral("0");
    if (std::fabs(value) < 1e15 && value == std::trunc(value)) return QString::number(qint64(value));
    QString s = QString::number(value, 'g', 15);
    qsizetype e = s.indexOf(u'e');
    if (e >= 0) s[e] = u'E';
    return s;
}

QString Str(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr: return QString();
    case QMetaType::Bool: return v.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::QString: return v.toString();
    case QMetaType::Double: case QMetaType::Float: return NumberText(v.toDouble());
    case QMetaType::QDate: return regional::ShortDate(v.toDate());
    case QMetaType::QTime:
        return regional::FormatDate(QDateTime(storedate::BaseDay(), v.toTime()), QStringLiteral("Long Time"));
    case QMetaType::QDateTime: {
        const QDateTime dt = v.toDateTime();
        const QTime t = dt.time();
        if (dt.date() == storedate::BaseDay()) return regional::FormatDate(dt, QStringLiteral("Long Time"));
        if (t == QTime(0, 0)) return regional::ShortDate(dt.date());
        return regional::ShortDate(dt.date()) + u' ' + regional::FormatDate(dt, QStringLiteral("Long Time"));
    }
    case QMetaType::QByteArray: return QString::fromUtf8(v.toByteArray());
    default: return v.toString();
    }
}

bool IsNull(const QVariant& v)
{
    return !v.isValid() || v.typeId() == QMetaType::Nullptr;
}

QString SqlQuote(const QString& text)
{
    QString out = text;
    out.replace(u'\'', QLatin1String("''"));
    return out;
}
