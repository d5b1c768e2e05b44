#include "core/store/storedate.h"

#include "core/store/datereader.h"

#include <cmath>

namespace storedate {

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
    datereader::Result r;
    if (!datereader::Read(text, datereader::StoreOptions(), r)) return false;
    date = r.hasDate ? r.date : BaseDay();
    time = r.time;
    hasTime = r.hasTime;
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
