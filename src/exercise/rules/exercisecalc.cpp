#include "exercise/rules/exercisecalc.h"

#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"

namespace {
// A piece of the duration as a 16-bit whole number, as the field is read: leading digits.
int Part(const QString& s)
{
    bool ok = false;
    const int v = s.trimmed().toInt(&ok);
    return ok ? qint16(v) : 0;
}
}  // namespace

double gethours(const QString& duration)
{
    QString t = duration;
    t.replace(QLatin1Char(' '), QLatin1Char('0'));
    const int h = Part(t.left(2));
    const int m = Part(t.mid(3, 2));
    const int s = Part(t.right(2));
    return h + m / 60.0 + s / 3600.0;
}

QStringList SplitLaps(const QString& lapTimes)
{
    QStringList laps = lapTimes.split(QLatin1Char('~'));
    laps.removeLast();   // what follows the last "~" (or the whole text without one)
    return laps;
}

QString JoinLaps(const QStringList& laps)
{
    QString text;
    for (const QString& lap : laps)
        text += lap + QLatin1Char('~');
    return text;
}

std::optional<double> CalcSpeed(double distance, const QString& distUnit, const QString& baseUnit, double hours)
{
    if (hours <= 0 || distance <= 0)
        return std::nullopt;
    const double converted = ConvertSpeed(distance, distUnit, baseUnit);
    return regional::Round(converted / hours, 2);
}

bool CanCalcSpeed(double distance, double hours, double plannedDistance, double plannedHours, const QString& distUnit)
{
    if (distUnit.isEmpty())
        return false;
    return (distance > 0 && hours > 0) || (plannedDistance > 0 && plannedHours > 0);
}

long CaloriesBurned(long intensityData, double hours, double weight)
{
    return long(regional::Round(double(intensityData) * hours * weight / 1000.0, 0));
}

long IntensityData(double value) { return long(regional::Round(value * 1000.0, 0)); }

std::optional<double> SessionWeight(const QString& userId, const QDate& day)
{
    std::optional<double> weight;
    SqlText = QStringLiteral("select weight,date from WeighIn where User_ID='") + userId +
              QStringLiteral("' and date <=#") + SqlDate(day) + QStringLiteral("# order by date desc");
    FirstRow(UserRS, SqlText, [&weight](Recordset& rs) { weight = Val(rs.Field(0)); });
    if (weight)
        return weight;
    // Before the first weigh-in: the earliest one, the last row in descending order.
    SqlText = QStringLiteral("select weight,date from WeighIn where User_ID='") + userId +
              QStringLiteral("' order by date desc");
    RecordsetScope scope(UserRS);
    UserRS.Open(SqlText);
    if (UserRS.Eof())
        return std::nullopt;
    UserRS.MoveLast();
    return Val(UserRS.Field(0));
}

bool TimesInOrder(const QTime& start, const QTime& end)
{
    const int s = start.hour() * 60 + start.minute();
    const int e = end.hour() * 60 + end.minute();
    return s < e;
}
