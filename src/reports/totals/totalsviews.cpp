#include "reports/totals/totalsviews.h"

#include <optional>

#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"

#include <QComboBox>
#include <QVector>
#include <cmath>

namespace totals {

namespace {

const QString kShowAll = QStringLiteral("Show all");

// Top rows: Total, an average, the other average, one empty row; items start below.
constexpr int kTopRows = 4;
constexpr int kFeelWellTopRows = 3;

// The daily_nutrition column a nutrient's display row reads: 12 + fnumber, from 0.
constexpr int kNutrientBase = 12;

bool NoFilter(const QString& name)
{
    return name.trimmed().isEmpty() || name.compare(kShowAll, Qt::CaseInsensitive) == 0;
}

QString Figure(double v) { return regional::FormatNumber(v, QStringLiteral("#,##0.#")); }
QString Plain(double v) { return NumberText(v); }
QString OneDecimal(double v) { return NumberText(regional::Round(v, 1)); }
QString HoursText(double h, bool single) { return NumberText(h) + (single ? QStringLiteral(" hour") : QStringLiteral(" hours")); }
QString Hours(double h) { return HoursText(h, h == 1); }

QDate DateOf(const QVariant& v)
{
    if (v.metaType().id() == QMetaType::QDate)
        return v.toDate();
    if (v.metaType().id() == QMetaType::QDateTime)
        return v.toDateTime().date();
    return regional::ParseDate(v.toString());
}

QString DateText(const QVariant& v) { return regional::FormatDate(DateOf(v), QStringLiteral("YYYY-MM-DD")); }

// A time of day stored as text, in the system's long time form; as stored when unreadable.
QString LongTime(const QVariant& v)
{
    const QString text = Str(v).trimmed();
    if (text.isEmpty())
        return text;
    const QTime t = regional::ParseTime(text);
    if (!t.isValid())
        return text;
    return regional::FormatDate(QDateTime(QDate(1899, 12, 30), t), QStringLiteral("Long Time"));
}

// A figure read back from a cell: the thousands separators go before its value is taken.
double CellNumber(const Grid* grid, int row, int col)
{
    QString text = grid->Text(row, col);
    text.remove(QLatin1Char(','));
    return Val(text);
}

// Hours of a stored duration, every blank in it read as "0".
double DurationHours(const QVariant& v)
{
    QString text = Str(v);
    text.replace(QLatin1Char(' '), QLatin1Char('0'));
    return TimeToHours(text);
}

int Days(const Range& range) { return range.days > 0 ? range.days : 1; }

QString Between(const Range& range)
{
    return QStringLiteral(" and date between #") + SqlDate(range.start) + QStringLiteral("# and #") +
           SqlDate(range.end) + QStringLiteral("#");
}

// Cuts the grid back to its top rows, empties them and writes the labels of the bottom rows.
void CutBack(Grid* grid, int topRows, int labelCol, const QStringList& labels)
{
    grid->SetMaxRows(topRows);
    for (int r = 1; r <= topRows; ++r)
        for (int c = 1; c <= grid->MaxCols(); ++c)
            grid->ClearCell(r, c);
    for (int i = 0; i < labels.size(); ++i)
        grid->SetText(i + 1, labelCol, labels[i]);
}

int AddItem(Grid* grid)
{
    grid->SetMaxRows(grid->MaxRows() + 1);
    return grid->MaxRows();
}

// Columns from firstFigure on hold figures: shown to the right, as numbers are (0: none).
void Layout(Grid* grid, const QStringList& headers, const QList<int>& widthChars, int firstFigure = 0)
{
    grid->SetMaxCols(headers.size());
    grid->SetColumnHeaders(headers);
    for (int c = 1; c <= headers.size(); ++c) {
        const bool figure = firstFigure > 0 && c >= firstFigure;
        grid->SetColumnType(c, figure ? Grid::TypeNumber : Grid::TypeStatic);
        grid->SetColumnLocked(c, figure);
        if (c <= widthChars.size())
            grid->SetColumnWidthChars(c, widthChars[c - 1]);
    }
    grid->SetRowHeadersVisible(false);
    grid->SetTabMovesBetweenCells(false);
}

const QStringList& NutritionLabels()
{
    static const QStringList l{QStringLiteral("Total   "), QStringLiteral("Average/Day   "),
                               QStringLiteral("Average/Item   ")};
    return l;
}
const QStringList& ExerciseLabels()
{
    static const QStringList l{QStringLiteral("Total   "), QStringLiteral("Average/Day   "),
                               QStringLiteral("Average/Exercise   ")};
    return l;
}
const QStringList& StrengthLabels()
{
    static const QStringList l{QStringLiteral("Total   "), QStringLiteral("Average/Day   "),
                               QStringLiteral("Average/Workout   ")};
    return l;
}
const QStringList& FeelWellLabels()
{
    static const QStringList l{QStringLiteral("Total   "), QStringLiteral("Average   ")};
    return l;
}

// The nutrients shown, in the order of their columns.
QList<int> ShownNutrients()
{
    QList<int> numbers;
    ForEachRow(UserRS2, QStringLiteral("select * from nutrient_display where display = true"),
               [&numbers](Recordset& rs) { numbers << int(Val(rs.Field(QStringLiteral("fNumber")))); });
    return numbers;
}

void SSNutritionEnter(Grid* grid, int r, const Recordset& rs)
{
    grid->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
    grid->SetText(r, 2, Str(rs.Field(QStringLiteral("Name"))));
    grid->SetText(r, 3, Figure(Val(rs.Field(QStringLiteral("amount")))) + QStringLiteral(" ") +
                            Str(rs.Field(QStringLiteral("Measure"))));
    int c = 4;
    for (const char* f : {"calories", "protein", "Fat", "Carbs", "points"})
        grid->SetText(r, c++, Figure(Val(rs.Field(QString::fromLatin1(f)))));
    grid->SetText(r, 9, Str(rs.Field(QStringLiteral("Food_ID"))));
}

void SSNutrientsEnter(Grid* grid, int r, const Recordset& rs, const QList<int>& nutrients)
{
    grid->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
    grid->SetText(r, 2, Str(rs.Field(QStringLiteral("Name"))));
    int c = 3;
    for (int fnumber : nutrients) {
        const int position = kNutrientBase + fnumber;
        const QVariant v = position < rs.FieldCount() ? rs.Field(position) : QVariant();
        grid->SetText(r, c++, IsNull(v) ? QStringLiteral("0") : Figure(Val(v)));
    }
}

// The bottom rows of the Nutrients grid, added up from its cells.
void SSNutrientsTotalEnter(Grid* grid, int days)
{
    const int last = grid->MaxRows();
    if (last <= kTopRows)
        return;
    for (int i = 0; i < NutritionLabels().size(); ++i)
        grid->SetText(i + 1, 2, NutritionLabels()[i]);
    const int items = last - kTopRows;
    for (int c = 3; c <= grid->MaxCols(); ++c) {
        double sum = 0;
        for (int r = kTopRows; r <= last; ++r)
            sum += CellNumber(grid, r, c);
        grid->SetText(1, c, Figure(regional::Round(sum, 1)));
        grid->SetText(2, c, Figure(regional::Round(sum / days, 1)));
        grid->SetText(3, c, Figure(regional::Round(sum / items, 1)));
    }
}

// Keeps a grid from repainting and recomputing while a routine fills it.
class FillScope {
public:
    explicit FillScope(Grid* g) : m_grid(g), m_updates(g->updatesEnabled())
    {
        m_grid->setUpdatesEnabled(false);
        m_grid->BeginUpdate();
    }
    ~FillScope()
    {
        m_grid->EndUpdate();
        m_grid->setUpdatesEnabled(m_updates);
    }
    FillScope(const FillScope&) = delete;
    FillScope& operator=(const FillScope&) = delete;
private:
    Grid* m_grid;
    bool m_updates;
};

QString YesNoText(bool yes, const QString& reason)
{
    const QString r = reason.trimmed();
    if (yes)
        return r.isEmpty() ? QStringLiteral("Yes.") : QStringLiteral("Yes, ") + r;
    return r.isEmpty() ? QStringLiteral("No.") : QStringLiteral("No, ") + r;
}

QString YesNoCondition(const char* column, YesNoFilter f)
{
    switch (f) {
    case YesNoFilter::Yes: return QStringLiteral(" and ") + QLatin1String(column) + QStringLiteral(" = true");
    case YesNoFilter::No: return QStringLiteral(" and ") + QLatin1String(column) + QStringLiteral(" = false");
    case YesNoFilter::All: break;
    }
    return QString();
}

// Readings and medications share their grid's shape and bottom rows.
void wellnessList(Grid* grid, int type, const QString& name, const Range& range)
{
    const QStringList labels{QStringLiteral("Total   "), QStringLiteral("Average/Day   "),
                             QStringLiteral("Average/Item   ")};
    FillScope fill(grid);
    CutBack(grid, kTopRows, 3, labels);
    double sum = 0;
    int items = 0;
    SqlText = QStringLiteral("select * from wellness_readings where User_ID=") + CurrentUserID + Between(range) +
              QStringLiteral(" and type = ") + QString::number(type);
    if (!NoFilter(name))
        SqlText += QStringLiteral(" and reading = '") + SqlQuote(name) + QStringLiteral("'");
    SqlText += QStringLiteral(" order by date");
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        const int r = AddItem(grid);
        grid->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
        grid->SetText(r, 2, LongTime(rs.Field(QStringLiteral("time"))));
        grid->SetText(r, 3, Str(rs.Field(QStringLiteral("Reading"))));
        if (type == 0) {
            const double v = Val(rs.Field(QStringLiteral("Value")));
            grid->SetText(r, 4, Plain(v));
            sum += v;
        } else {
            const QVariant dose = rs.Field(QStringLiteral("dose"));
            grid->SetText(r, 4, IsNull(dose) ? QStringLiteral("0") : Str(dose));
            sum += Val(dose);
        }
        ++items;
    });
    grid->SetText(1, 4, Plain(sum));
    grid->SetText(2, 4, OneDecimal(sum / Days(range)));
    grid->SetText(3, 4, items > 0 ? OneDecimal(sum / items) : QStringLiteral("0"));
}

}  // namespace

// ---- layouts ------------------------------------------------------------------------------

void SSNutritionSet(Grid* grid)
{
    Layout(grid, {QStringLiteral("Date"), QStringLiteral("Food"), QStringLiteral("Amount"), QStringLiteral("Calories"),
                  QStringLiteral("Protein"), QStringLiteral("Fat"), QStringLiteral("Carb"), QStringLiteral("Points"),
                  QStringLiteral("Food_ID")},
           {11, 30, 16, 9, 8, 8, 8, 8, 6}, 4);
    grid->HideColumn(9);
    CutBack(grid, kTopRows, 3, NutritionLabels());
}

void SSNutrientsSet(Grid* grid)
{
    Guard([grid] {
        QStringList headers{QStringLiteral("Date"), QStringLiteral("Food")};
        ForEachRow(UserRS2, QStringLiteral("select * from Nutrient_Display where display = true"),
                   [&headers](Recordset& rs) { headers << Str(rs.Field(QStringLiteral("name"))); });
        grid->SetMaxCols(0);
        QList<int> widths{11, 30};
        for (int c = 3; c <= headers.size(); ++c)
            widths << (headers[c - 1].compare(QStringLiteral("Pantothenic acid"), Qt::CaseInsensitive) == 0 ? 17 : 10);
        Layout(grid, headers, widths, 3);
        CutBack(grid, kTopRows, 2, {});
    });
}

void SSExerciseSet(Grid* grid)
{
    Layout(grid, {QStringLiteral("Date"), QStringLiteral("Exercise"), QStringLiteral("Duration"),
                  QStringLiteral("Intensity"), QStringLiteral("Calories Burned")},
           {11, 24, 12, 10, 15}, 4);
    CutBack(grid, kTopRows, 2, ExerciseLabels());
}

void SSStrengthSet(Grid* grid)
{
    Layout(grid, {QStringLiteral("Date"), QStringLiteral("Workout"), QStringLiteral("Duration"),
                  QStringLiteral("Intensity"), QStringLiteral("Reps"), QStringLiteral("Sets"),
                  QStringLiteral("Calories Burned")},
           {11, 24, 12, 10, 8, 8, 15}, 4);
    CutBack(grid, kTopRows, 2, StrengthLabels());
}

void SSWellnessSet(Grid* grid, int index)
{
    if (index == 0) {
        Layout(grid, {QStringLiteral("Date"), QStringLiteral("Feel Well?"), QStringLiteral("Accomplish Goals?"),
                      QStringLiteral("Hours sleep"), QStringLiteral("Wakeup Time")},
               {11, 30, 30, 12, 12}, 4);
        CutBack(grid, kFeelWellTopRows, 3, FeelWellLabels());
        return;
    }
    const QString third = index == 1 ? QStringLiteral("Readings") : QStringLiteral("Medication");
    const QString fourth = index == 1 ? QStringLiteral("Value") : QStringLiteral("Dosage");
    Layout(grid, {QStringLiteral("Date"), QStringLiteral("Time"), third, fourth}, {11, 12, 30, 14}, index == 1 ? 4 : 0);
    CutBack(grid, kTopRows, 3,
            {QStringLiteral("Total   "), QStringLiteral("Average/Day   "), QStringLiteral("Average/Item   ")});
}

// ---- filters ------------------------------------------------------------------------------

void FillNutritionFilter(QComboBox* cboNutrition)
{
    cboNutrition->clear();
    cboNutrition->addItem(kShowAll);
    Guard([cboNutrition] {
        listfill::FillList(cboNutrition, UserRS,
                           QStringLiteral("select meal from Setup_Meals where User_ID = ") + CurrentUserID +
                               QStringLiteral(" order by meal"),
                           QStringLiteral("meal"), QString(), true);
    });
}

void FillExerciseFilter(QComboBox* cboExerciseSports)
{
    cboExerciseSports->clear();
    cboExerciseSports->addItem(QStringLiteral("Show All"));
    Guard([cboExerciseSports] {
        listfill::FillList(cboExerciseSports, UserRS,
                           QStringLiteral("select distinct name from calendar where User_ID = '") + CurrentUserID +
                               QStringLiteral("' and workoutType = 'exercise' order by name"),
                           QStringLiteral("name"), QString(), true);
    });
}

void FillStrengthFilter(QComboBox* cboStrength)
{
    cboStrength->clear();
    cboStrength->addItem(kShowAll);
    Guard([cboStrength] {
        listfill::FillList(cboStrength, UserRS,
                           QStringLiteral("select distinct name from calendar where User_ID = '") + CurrentUserID +
                               QStringLiteral("' and workoutType = 'strength' order by name"),
                           QStringLiteral("name"), QString(), true);
    });
}

void FillWellnessFilters(QComboBox* cboReadings, QComboBox* cboMedication)
{
    cboReadings->clear();
    cboMedication->clear();
    cboReadings->addItem(kShowAll);
    cboMedication->addItem(kShowAll);
    Guard([&] {
        ForEachRow(UserRS,
                   QStringLiteral("select distinct reading, type from wellness_readings where User_ID= ") +
                       CurrentUserID + QStringLiteral(" order by reading"),
                   [&](Recordset& rs) {
                       const QVariant reading = rs.Field(QStringLiteral("reading"));
                       if (IsNull(reading))
                           return;
                       const int type = int(Val(rs.Field(QStringLiteral("type"))));
                       if (type == 0)
                           cboReadings->addItem(Str(reading));
                       else if (type == 1)
                           cboMedication->addItem(Str(reading));
                   });
    });
}

// ---- the item routines --------------------------------------------------------------------

void nutritionInfo(Grid* SSNutrition, Grid* SSNutrients, const QString& meal, const Range& range, Balance& balance)
{
    balance.caloriesEaten = 0;
    Guard([&] {
        std::optional<FillScope> fillNutrition, fillNutrients;
        if (SSNutrition) {
            fillNutrition.emplace(SSNutrition);
            CutBack(SSNutrition, kTopRows, 3, NutritionLabels());
        }
        if (SSNutrients) {
            fillNutrients.emplace(SSNutrients);
            CutBack(SSNutrients, kTopRows, 2, {});
        }
        double protein = 0, fat = 0, carbs = 0, points = 0;
        int items = 0;
        const QList<int> nutrients = SSNutrients ? ShownNutrients() : QList<int>();
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID = '") + CurrentUserID +
                  QStringLiteral("'") + Between(range) + QStringLiteral(" and meal_id <> 9999");
        if (!NoFilter(meal))
            SqlText += QStringLiteral(" and meal_id = (select meal_id from setup_meals where meal = '") +
                       SqlQuote(meal) + QStringLiteral("' and User_ID = ") + CurrentUserID + QStringLiteral(")");
        SqlText += QStringLiteral(" order by date");
        UserRS.Open(SqlText);
        RecordsetScope scope(UserRS);
        // Both grids take their item rows at once: the rows are as many as the records.
        if (SSNutrition) SSNutrition->SetMaxRows(kTopRows + int(UserRS.RecordCount()));
        if (SSNutrients) SSNutrients->SetMaxRows(kTopRows + int(UserRS.RecordCount()));
        for (; !UserRS.Eof(); UserRS.MoveNext()) {
            ++items;
            if (SSNutrition) SSNutritionEnter(SSNutrition, kTopRows + items, UserRS);
            if (SSNutrients) SSNutrientsEnter(SSNutrients, kTopRows + items, UserRS, nutrients);
            balance.caloriesEaten += Val(UserRS.Field(QStringLiteral("calories")));
            protein += Val(UserRS.Field(QStringLiteral("protein")));
            fat += Val(UserRS.Field(QStringLiteral("Fat")));
            carbs += Val(UserRS.Field(QStringLiteral("Carbs")));
            points += Val(UserRS.Field(QStringLiteral("points")));
        }
        if (SSNutrients) SSNutrientsTotalEnter(SSNutrients, Days(range));
        if (!SSNutrition) return;
        const double sums[5] = {balance.caloriesEaten, protein, fat, carbs, points};
        for (int i = 0; i < 5; ++i) {
            SSNutrition->SetText(1, 4 + i, Figure(sums[i]));
            if (items == 0) {
                SSNutrition->SetText(2, 4 + i, QStringLiteral("0"));
                SSNutrition->SetText(3, 4 + i, QStringLiteral("0"));
                continue;
            }
            SSNutrition->SetText(2, 4 + i, Figure(regional::Round(sums[i] / Days(range), 1)));
            SSNutrition->SetText(3, 4 + i, Figure(regional::Round(sums[i] / items, 1)));
        }
    });
}

void exerciseSports(Grid* SSExercise, const QString& name, const Range& range, Balance& balance)
{
    balance.hoursExercised = 0;
    Guard([&] {
        FillScope fill(SSExercise);
        CutBack(SSExercise, kTopRows, 2, ExerciseLabels());
        double hours = 0, intensity = 0, calories = 0;
        int items = 0;
        SqlText = QStringLiteral("select * from daily_exercise where User_ID='") + CurrentUserID +
                  QStringLiteral("'") + Between(range);
        if (!NoFilter(name))
            SqlText += QStringLiteral(" and name = '") + SqlQuote(name) + QStringLiteral("'");
        SqlText += QStringLiteral(" order by date, name");
        ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
            const int r = AddItem(SSExercise);
            const QVariant duration = rs.Field(QStringLiteral("duration"));
            const double h = DurationHours(duration);
            const double i = Val(rs.Field(QStringLiteral("Intensity")));
            const double cals = Val(rs.Field(QStringLiteral("Cals")));
            SSExercise->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
            SSExercise->SetText(r, 2, Str(rs.Field(QStringLiteral("Name"))));
            SSExercise->SetText(r, 3, Str(duration));
            SSExercise->SetText(r, 4, Plain(i));
            SSExercise->SetText(r, 5, Figure(cals));
            hours += h;
            intensity += i;
            calories += cals;
            ++items;
            balance.caloriesBurned += cals;
            balance.hoursExercised += h;
        });
        if (items == 0) {
            for (int r = 1; r <= 3; ++r) {
                SSExercise->SetText(r, 3, QStringLiteral("0 hours"));
                SSExercise->SetText(r, 4, QStringLiteral("0"));
                SSExercise->SetText(r, 5, QStringLiteral("0"));
            }
            return;
        }
        const int days = Days(range);
        const auto averageRow = [&](int row, int by) {
            const double h = regional::Round(hours / by, 1);
            SSExercise->SetText(row, 3, Hours(h));
            SSExercise->SetText(row, 4, OneDecimal(intensity / by));
            SSExercise->SetText(row, 5, regional::FormatNumber(regional::Round(calories / by, 1), QStringLiteral("#,###")));
        };
        SSExercise->SetText(1, 3, Hours(hours));
        SSExercise->SetText(1, 4, Plain(intensity));
        SSExercise->SetText(1, 5, Figure(calories));
        averageRow(2, days);
        averageRow(3, items);
    });
}

void strengthTraining(Grid* SSStrength, const QString& name, const Range& range, Balance& balance)
{
    balance.workouts = 0;
    Guard([&] {
        FillScope fill(SSStrength);
        CutBack(SSStrength, kTopRows, 2, StrengthLabels());
        double hours = 0, intensity = 0, reps = 0, sets = 0, calories = 0;
        QHash<QString, QPair<QVariant, QVariant>> setsOfKey;
        SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("'") +
                  Between(range) + QStringLiteral(" and WorkoutType = 'Strength'");
        if (!NoFilter(name))
            SqlText += QStringLiteral(" and name = '") + SqlQuote(name) + QStringLiteral("'");
        SqlText += QStringLiteral(" order by date, name");
        ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
            const int r = AddItem(SSStrength);
            const QVariant duration = rs.Field(QStringLiteral("duration"));
            const double h = DurationHours(duration);
            const double i = Val(rs.Field(QStringLiteral("Intensity")));
            const double cals = Val(rs.Field(QStringLiteral("Cals")));
            SSStrength->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
            SSStrength->SetText(r, 2, Str(rs.Field(QStringLiteral("Name"))));
            SSStrength->SetText(r, 3, Str(duration));
            SSStrength->SetText(r, 4, Plain(i));
            // A key is a number within its day, so the sums of one key are those of every day
            // that used it: the same for each workout of that key, read once per computation.
            const QString key = Str(rs.Field(QStringLiteral("Key")));
            auto known = setsOfKey.find(key);
            if (known == setsOfKey.end()) {
                QPair<QVariant, QVariant> sums;
                FirstRow(UserRS2,
                         QStringLiteral("select sum(reps) as sumReps, count(sets) as sumSets from daily_weights where key = '") +
                             SqlQuote(key) + QStringLiteral("'"),
                         [&](Recordset& w) {
                             sums = {w.Field(QStringLiteral("sumreps")), w.Field(QStringLiteral("sumsets"))};
                         });
                known = setsOfKey.insert(key, sums);
            }
            if (!IsNull(known->first)) {
                SSStrength->SetText(r, 5, Figure(Val(known->first)));
                reps += Val(known->first);
            }
            if (!IsNull(known->second)) {
                SSStrength->SetText(r, 6, Figure(Val(known->second)));
                sets += Val(known->second);
            }
            SSStrength->SetText(r, 7, Figure(cals));
            hours += h;
            intensity += i;
            calories += cals;
            ++balance.workouts;
            balance.caloriesBurned += cals;
            balance.hoursExercised += h;
        });
        if (balance.workouts == 0) {
            for (int r = 1; r <= 3; ++r) {
                SSStrength->SetText(r, 3, QStringLiteral("0 hours"));
                for (int c = 4; c <= 7; ++c)
                    SSStrength->SetText(r, c, QStringLiteral("0"));
            }
            return;
        }
        const double whole = regional::Round(hours);
        SSStrength->SetText(1, 3, Hours(whole));
        SSStrength->SetText(1, 4, Plain(intensity));
        SSStrength->SetText(1, 5, Figure(reps));
        SSStrength->SetText(1, 6, Figure(sets));
        SSStrength->SetText(1, 7, Figure(calories));
        const auto averageRow = [&](int row, int by) {
            SSStrength->SetText(row, 3, HoursText(regional::Round(hours / by, 1), false));
            int c = 4;
            for (double sum : {intensity, reps, sets, calories})
                SSStrength->SetText(row, c++, OneDecimal(sum / by));
        };
        averageRow(2, Days(range));
        averageRow(3, balance.workouts);
    });
}

bool WakeupHours(const QString& shown, double* hours)
{
    const QString text = shown.trimmed();
    if (text.isEmpty() || text == QStringLiteral("00:00") || text.size() <= 3)
        return false;
    QString clock = text.left(text.size() - 3).trimmed();
    if (clock.indexOf(QLatin1Char(':')) == 1)
        clock.prepend(QLatin1Char('0'));
    double h = TimeToHours(clock);
    const bool noonHour = h >= 12 && h < 13;
    if (text.endsWith(QStringLiteral("PM"), Qt::CaseInsensitive) && !noonHour)
        h += 12;
    else if (text.endsWith(QStringLiteral("AM"), Qt::CaseInsensitive) && noonHour)
        h -= 12;
    *hours = h;
    return true;
}

QString WakeupMean(double sum, int count)
{
    if (count <= 0)
        return QString();
    double mean = sum / count;
    QString suffix = QStringLiteral(" AM");
    if (mean >= 13) {
        mean -= 12;
        suffix = QStringLiteral(" PM");
    }
    const int whole = int(std::floor(mean));
    const QString text = (whole < 10 ? QStringLiteral("0") : QString()) + QString::number(whole) +
                         QStringLiteral(":") + regional::FormatNumber((mean - whole) * 60, QStringLiteral("00")) + suffix;
    return text.startsWith(QStringLiteral("00:00")) ? QString() : text;
}

void wellnessFeelWell(Grid* grid, YesNoFilter feelWell, YesNoFilter accomplish, const Range& range)
{
    Guard([&] {
        FillScope fill(grid);
        CutBack(grid, kFeelWellTopRows, 3, FeelWellLabels());
        double sleep = 0, wakeSum = 0;
        int sleepDays = 0, wakeups = 0, items = 0;
        SqlText = QStringLiteral("select * from Wellness where User_ID='") + CurrentUserID + QStringLiteral("'") +
                  Between(range) + YesNoCondition("feelwell", feelWell) + YesNoCondition("Accomplish", accomplish) +
                  QStringLiteral(" order by date");
        ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
            const int r = AddItem(grid);
            grid->SetText(r, 1, DateText(rs.Field(QStringLiteral("Date"))));
            grid->SetText(r, 2, YesNoText(Val(rs.Field(QStringLiteral("FeelWell"))) != 0,
                                          Str(rs.Field(QStringLiteral("txtFeelWell")))));
            grid->SetText(r, 3, YesNoText(Val(rs.Field(QStringLiteral("Accomplish"))) != 0,
                                          Str(rs.Field(QStringLiteral("txtAccomplish")))));
            const double s = Val(rs.Field(QStringLiteral("sleep")));
            grid->SetText(r, 4, Plain(s));
            sleep += s;
            if (s > 0)
                ++sleepDays;
            const QString wake = LongTime(rs.Field(QStringLiteral("wakeup")));
            grid->SetText(r, 5, wake);
            double h = 0;
            if (WakeupHours(wake, &h)) {
                wakeSum += h;
                ++wakeups;
            }
            ++items;
        });
        if (items == 0)
            return;
        grid->SetText(1, 4, Plain(sleep) + QStringLiteral(" hours"));
        grid->SetText(2, 4, sleepDays > 0 ? HoursText(regional::Round(sleep / sleepDays, 1), sleepDays == 1)
                                          : QStringLiteral("0 hours"));
        grid->SetText(2, 5, WakeupMean(wakeSum, wakeups));
    });
}

void wellnessReadings(Grid* grid, const QString& reading, const Range& range)
{
    Guard([&] { wellnessList(grid, 0, reading, range); });
}

void wellnessMedication(Grid* grid, const QString& medication, const Range& range)
{
    Guard([&] { wellnessList(grid, 1, medication, range); });
}

}  // namespace totals
