#include "strength/rules/strengthlog.h"

#include "core/regional.h"
#include "core/routines.h"
#include "core/store/value.h"

#include <algorithm>

namespace strengthlog {

double CellNumber(const QString& cell) { return Val(cell.trimmed()); }

bool CanInsertSet(const QString& lastSet) { return CellNumber(lastSet) <= MaxSets - 1; }

QString NextSet(const QString& previous) { return QString::number(qlonglong(CellNumber(previous)) + 1); }

double WorkoutHours(const QString& duration) { return TimeToHours(duration); }

long WorkoutCalories(long intensityData, const QString& duration, double weight)
{
    return long(regional::Round(double(intensityData) * WorkoutHours(duration) * weight / 1000.0, 0));
}

QString IntensityText(const QString& cell) { return cell.left(10); }

QString NoteText(const QString& cell) { return cell.left(50).trimmed(); }

QStringList ReportNames()
{
    return {QStringLiteral("Weight Lifted by Workout"), QStringLiteral("Weight Lifted by Muscle Group"),
            QStringLiteral("Weight Lifted by Exercise"),  QStringLiteral("Total Reps by Workout"),
            QStringLiteral("Total Reps by Muscle Group"), QStringLiteral("Total Reps by Exercise")};
}

bool WeightReport(int view) { return view >= 0 && view <= 2; }

QString ReportFilterColumn(int view)
{
    if (view == 1 || view == 4) return QStringLiteral("muscle_group");
    if (view == 2 || view == 5) return QStringLiteral("exercise");
    return QString();
}

QString ReportFilterWord(int view)
{
    if (view == 1 || view == 4) return QStringLiteral("Muscle Group");
    if (view == 2 || view == 5) return QStringLiteral("Exercise");
    return QString();
}

double WeightLifted(const QList<QPair<double, double>>& repsAndWeights)
{
    double total = 0;
    for (const auto& s : repsAndWeights)
        total += s.first * s.second;
    return total;
}

double AxisTop(const QList<double>& values)
{
    if (values.isEmpty()) return 0;
    return *std::max_element(values.cbegin(), values.cend()) * 1.1;
}

}  // namespace strengthlog
