#include "reports/totals/summaryengine.h"

#include <QDateTime>
#include <algorithm>
#include <QVector>

#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"

namespace summary {

namespace {

const QString kDate = QStringLiteral("YYYY-MM-DD");

// A date field of any kind a statement gives back.
QDate DateOf(const QVariant& v)
{
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    return regional::ParseDate(v.toString());
}

QString Hash(const QDate& d) { return QLatin1Char('#') + SqlDate(d) + QLatin1Char('#'); }

// Runs one step; a failing statement is told and the computation goes on with the next step.
void Step(Messages* messages, const std::function<void()>& f)
{
    try {
        f();
    } catch (const StoreError& e) {
        if (messages) messages->append({e.Description(), true});
    }
}

// "create table" of a working table: failing because the table is there is the normal path.
bool Create(const QString& sql, Messages* messages)
{
    try {
        UserConn.Execute(sql);
        return true;
    } catch (const StoreError& e) {
        if (e.Number() != StoreError::TableExists && messages) messages->append({e.Description(), true});
        return false;
    }
}

struct SummaryRow {
    int fNumber;
    const char* name;
    bool display;
    int width;
    const char* fname;
};
const SummaryRow kSummaryRows[] = {
    {0, "Date", true, 750, "Dates"},          {1, "Feel Well", true, 750, "feelwell"},
    {2, "Hours Sleep", true, 1000, "sleep"},   {3, "Accomp Goals", true, 1200, "accomplish"},
    {4, "BMR", true, 500, "bmr"},              {5, "Calories Eaten", true, 1200, "calories"},
    {6, "Difference", true, 850, "difference"}, {7, "Water", true, 550, "water"},
    {8, "Duration", true, 750, "eDuration"},   {9, "Calories Burned", true, 1200, "eCals"},
    {10, "Intensity", true, 700, "eIntensity"}, {11, "Accomp Goals", false, 1200, "eComplete"},
    {12, "Duration", true, 750, "sDuration"},  {13, "Calories Burned", true, 1200, "sCals"},
    {14, "Intensity", true, 750, "sIntensity"}, {15, "Accomp Goals", true, 1200, "sComplete"},
};

struct NutrientRow {
    const char* name;
    const char* fieldName;
};
const NutrientRow kNutrientRows[] = {
    {"Fiber", "Fiber"},           {"Sodium", "Sodium"},         {"Potassium", "Potassium"},
    {"Calcium", "Calcium"},       {"Iron", "Iron"},             {"Cholesterol", "Cholesterol"},
    {"Sugars", "Sugar"},          {"Caffeine", "Caffeine"},     {"Fat-Sat", "Fat-Saturated"},
    {"Fat-Mono", "Fat-Monounsaturated"}, {"Fat-Poly", "Fat-Polyunsaturated"}, {"Folate", "Folate"},
    {"Vit-A", "Vit_A"},           {"Vit-C", "Vit_C"},           {"Vit-D", "Vit_D"},
    {"Vit-E", "Vit_E"},           {"Vit-K", "Vit_K"},           {"Vit-B6", "Vit_B6"},
    {"Vit-B12", "Vit_B12"},       {"Niacin", "Niacin"},         {"Thiamin", "Thiamin"},
    {"Riboflavin", "Riboflavin"}, {"Magnesium", "Magnesium"},   {"Zinc", "Zinc"},
    {"Phosphorus", "Phosphorus"}, {"Copper", "Copper"},         {"Manganese", "Manganese"},
    {"Selenium", "Selenium"},     {"Biotin", "Biotin"},         {"Pantothenic acid", "Pantothenic acid"},
    {"Chromium", "Chromium"},     {"Molybdenum", "Molybdenum"}, {"Chloride", "Chloride"},
};

// A day's sums of one log, read by two statements matched by position.
struct LogDay {
    QDate date;
    double cals = 0, intensity = 0, complete = 0, hours = 0;
};

// The per-day sums of exercise sessions or strength workouts: the grouped statement gives the
// days and their calories, intensity (and completion); the second gives the durations row by
// row, a row of another date starting the next day's slot.
QList<LogDay> ReadLog(const QString& grouped, const QString& durations, bool withComplete)
{
    QList<LogDay> days;
    ForEachRow(UserRS, grouped, [&](Recordset& rs) {
        LogDay d;
        d.date = DateOf(rs.Field(QStringLiteral("date")));
        d.cals = regional::Round(Val(rs.Field(QStringLiteral("calSum"))));
        d.intensity = regional::Round(Val(rs.Field(QStringLiteral("intAvg"))));
        if (withComplete) d.complete = regional::Round(Val(rs.Field(QStringLiteral("compAvg"))));
        days.append(d);
    });
    int slot = -1;
    QDate previous;
    ForEachRow(UserRS, durations, [&](Recordset& rs) {
        const QDate date = DateOf(rs.Field(QStringLiteral("date")));
        if (slot < 0 || date != previous) ++slot;
        previous = date;
        QString text = Str(rs.Field(QStringLiteral("duration")));
        text.replace(QLatin1Char(' '), QLatin1Char('0'));
        if (slot < days.size()) days[slot].hours += TimeToHours(text);
    });
    return days;
}

bool IsNumericText(const QString& text, double* value)
{
    QString t = text.trimmed();
    if (t.isEmpty()) return false;
    t.remove(regional::Locale().groupSeparator());
    t.replace(regional::DecimalSeparator(), QStringLiteral("."));
    bool ok = false;
    *value = t.toDouble(&ok);
    return ok;
}

// Writes the current tmpDate record as a day row in the shown columns.
QStringList SummaryEnter(Recordset& day)
{
    QStringList cells;
    cells << regional::FormatDate(DateOf(day.Field(QStringLiteral("dateS"))), kDate);
    bool first = true;
    ForEachRow(UserRS2, QStringLiteral("select * from summary_display where display = true"), [&](Recordset& rs) {
        if (first) {
            first = false;
            return;
        }
        const int fNumber = int(Val(rs.Field(QStringLiteral("fnumber"))));
        const QVariant v = day.Field(Str(rs.Field(QStringLiteral("fname"))));
        if (fNumber == 1 || fNumber == 3 || fNumber == 11 || fNumber == 15) {
            const double x = IsNull(v) ? 2 : Val(v);
            cells << (x == -1 ? QStringLiteral("Yes") : x == 0 ? QStringLiteral("No") : QString());
        } else {
            cells << (!IsNull(v) && Val(v) > 0 ? Str(v) : QStringLiteral("0"));
        }
    });
    return cells;
}

// The BMR walk: from the last day down, each day without a BMR takes the one carried from the
// nearest weigh-in below it.
void BmrWalk(const QDate& start, const QDate& end, Messages* messages)
{
    QDate day = end;
    double carried = getNextBMR(end, true, messages);
    RecordsetScope scope(UserRS);
    UserRS.Open(QStringLiteral("select bmr from tmpdate order by dateS desc"));
    if (UserRS.Eof()) return;
    bool last = false;
    while (!UserRS.Eof()) {
        const QVariant bmr = UserRS.Field(QStringLiteral("bmr"));
        if (IsNull(bmr))
            Step(messages, [&] {
                UserConn.Execute(QStringLiteral("update tmpDate set bmr = ") + NumberText(carried) +
                                 QStringLiteral(" where dateS = ") + Hash(day));
            });
        else
            carried = getNextBMR(day, false, messages);
        const bool wasLast = last;
        day = day.addDays(-1);
        if (wasLast) break;
        if (day == start)
            last = true;
        else if (UserRS.RecordCount() == 1)
            break;
        UserRS.MoveNext();
    }
}

QString Num(double v, const char* picture) { return regional::FormatNumber(v, QString::fromLatin1(picture)); }

}  // namespace

void sdTableCreate(Messages* messages)
{
    if (Create(QStringLiteral("create table Summary_Display (fNumber integer, name text, display yesno, width integer, fname text)"),
               messages)) {
        Step(messages, [] {
            RecordsetScope scope(UserRS);
            UserRS.Open(QStringLiteral("Summary_Display"));
            for (const SummaryRow& r : kSummaryRows) {
                UserRS.AddNew();
                UserRS.SetField(QStringLiteral("fnumber"), r.fNumber);
                UserRS.SetField(QStringLiteral("Name"), QString::fromLatin1(r.name));
                UserRS.SetField(QStringLiteral("Display"), r.display);
                UserRS.SetField(QStringLiteral("Width"), r.width);
                UserRS.SetField(QStringLiteral("fname"), QString::fromLatin1(r.fname));
                UserRS.Update();
            }
        });
    }
    // No step fills the exercise "Accomp Goals", so it is never shown, whatever was saved.
    Step(messages, [] {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("select * from summary_display where fnumber = 11"));
        if (UserRS.Eof()) return;
        UserRS.SetField(QStringLiteral("Display"), false);
        UserRS.Update();
    });
}

void ndTableCreate(Messages* messages)
{
    if (!Create(QStringLiteral("create table Nutrient_Display (fNumber integer, name text, fieldName text, display yesno)"),
                messages))
        return;
    Step(messages, [] {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("Nutrient_Display"));
        for (int n = 1; n <= 33; ++n) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("fnumber"), n);
            UserRS.SetField(QStringLiteral("Display"), true);
            UserRS.SetField(QStringLiteral("Name"), QString::fromLatin1(kNutrientRows[n - 1].name));
            UserRS.SetField(QStringLiteral("FieldName"), QString::fromLatin1(kNutrientRows[n - 1].fieldName));
            UserRS.Update();
        }
    });
}

QList<DisplayColumn> ShownColumns()
{
    UserConn.Execute(QStringLiteral("update summary_display set width = 1000 where name = 'Date'"));
    UserConn.Execute(QStringLiteral("update summary_display set width = 1000 where name = 'BMR'"));
    QList<DisplayColumn> columns;
    ForEachRow(UserRS, QStringLiteral("select * from Summary_Display where display = true"), [&](Recordset& rs) {
        DisplayColumn c;
        c.fNumber = int(Val(rs.Field(QStringLiteral("fNumber"))));
        c.name = Str(rs.Field(QStringLiteral("Name")));
        c.width = int(Val(rs.Field(QStringLiteral("Width"))));
        c.fname = Str(rs.Field(QStringLiteral("fname")));
        columns.append(c);
    });
    return columns;
}

QStringList GroupHeadings(const QList<DisplayColumn>& columns)
{
    auto groupOf = [](int fNumber) { return fNumber <= 0 ? 0 : fNumber <= 3 ? 1 : fNumber <= 7 ? 2 : fNumber <= 11 ? 3 : 4; };
    static const QStringList kHeadings[5] = {
        {QString()},
        {QStringLiteral("Wellness"), QStringLiteral("Well")},
        {QStringLiteral("Nutrition"), QStringLiteral("Nutrit")},
        {QStringLiteral("Exercise/Sports (Average)"), QStringLiteral("E/S (Average)"), QStringLiteral("E/S (Avg)")},
        {QStringLiteral("Strength Training (Average)"), QStringLiteral("ST (Average)"), QStringLiteral("ST (Avg)")},
    };
    int width[5] = {0, 0, 0, 0, 0};
    for (const DisplayColumn& c : columns) width[groupOf(c.fNumber)] += c.width;
    QStringList headings;
    for (const DisplayColumn& c : columns) {
        const int g = groupOf(c.fNumber);
        QString chosen = kHeadings[g].last();
        for (const QString& h : kHeadings[g])
            if (h.size() * 100 <= width[g]) {
                chosen = h;
                break;
            }
        headings << chosen;
    }
    return headings;
}

int tdays(const QDate& start, const QDate& end)
{
    if (!start.isValid() || !end.isValid() || end < start) return 1;
    return int(start.daysTo(end)) + 1;
}

double getNextBMR(const QDate& date, bool first, Messages* messages)
{
    double result = 0;
    bool found = false;
    auto take = [&](Recordset& rs) {
        result = Val(rs.Field(QStringLiteral("bmr")));
        found = true;
    };
    if (first)
        FirstRow(UserRS2, QStringLiteral("select bmr from tmpdate where bmr <> null and dateS = ") + Hash(date) +
                              QStringLiteral(" order by dateS desc"), take);
    if (!found)
        FirstRow(UserRS2, QStringLiteral("select bmr from tmpdate where bmr <> null and dateS < ") + Hash(date) +
                              QStringLiteral(" order by dateS desc"), take);
    // The weigh-ins of every athlete of the store, forward first, then back.
    if (!found)
        FirstRow(UserRS2, QStringLiteral("select bmr from WeighIn where bmr <> null and date >= ") + Hash(date) +
                              QStringLiteral(" order by date"), take);
    if (!found)
        FirstRow(UserRS2, QStringLiteral("select bmr from WeighIn where bmr <> null and date <= ") + Hash(date) +
                              QStringLiteral(" order by date desc"), take);
    if (!found && messages) messages->append({QStringLiteral("No BMR found"), false});
    return found ? result : 0;
}

DayTable summaryTable(const QString& userId, const QDate& start, const QDate& end, Messages* messages)
{
    DayTable table;
    const QString range = QStringLiteral(" and date between ") + Hash(start) + QStringLiteral(" and ") + Hash(end);
    const QString user = QStringLiteral(" where User_ID = '") + SqlQuote(userId) + QLatin1Char('\'');

    Create(QStringLiteral("create table tmpDate (dateS date, feelwell integer, sleep double, accomplish integer, bmr double, "
                          "calories double, difference double, water double, eDuration text(10), eCals integer, "
                          "eIntensity integer, eComplete integer, sDuration text(10), sCals double, sIntensity integer, "
                          "sComplete integer)"),
           messages);
    // Every step finds its day by dateS: an index keeps a long range from scanning the table once
    // per statement. Like the table, it is there after the first run.
    try {
        UserConn.Execute(QStringLiteral("create index tmpDate_dateS on tmpDate (dateS)"));
    } catch (const StoreError&) {
        // there already, or the table could not be made: the steps below tell that
    }
    Step(messages, [] { UserConn.Execute(QStringLiteral("delete * from tmpDate")); });
    Step(messages, [&] {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("tmpDate"));
        const QString last = regional::FormatDate(end.addDays(1), kDate);
        for (QDate d = start; regional::FormatDate(d, kDate) != last && d <= end; d = d.addDays(1)) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("Dates"), regional::FormatDate(d, kDate));
            UserRS.SetField(QStringLiteral("eComplete"), 2);
            UserRS.SetField(QStringLiteral("sComplete"), 2);
            UserRS.Update();
        }
    });

    // Wellness: a null Yes/No counts as No, a null sleep as 0.
    Step(messages, [&] {
        ForEachRow(UserRS, QStringLiteral("select date, feelwell, sleep, accomplish from wellness") + user + range +
                               QStringLiteral(" order by date"),
                   [&](Recordset& rs) {
                       const QString f = Val(rs.Field(QStringLiteral("feelwell"))) != 0 ? QStringLiteral("-1") : QStringLiteral("0");
                       const QString a = Val(rs.Field(QStringLiteral("accomplish"))) != 0 ? QStringLiteral("-1") : QStringLiteral("0");
                       UserConn.Execute(QStringLiteral("update tmpDate set feelwell = ") + f + QStringLiteral(", sleep =") +
                                        NumberText(Val(rs.Field(QStringLiteral("sleep")))) + QStringLiteral(", accomplish = ") + a +
                                        QStringLiteral(" where dateS = ") + Hash(DateOf(rs.Field(QStringLiteral("date")))));
                   });
    });

    using DayValues = QVector<QPair<QDate, double>>;
    auto read = [&](const QString& sql, const QString& field) {
        DayValues values;
        Step(messages, [&] {
            ForEachRow(UserRS, sql, [&](Recordset& rs) {
                values.append({DateOf(rs.Field(QStringLiteral("date"))), Val(rs.Field(field))});
            });
        });
        return values;
    };
    const DayValues bmrs = read(QStringLiteral("select date, bmr from WeighIn") + user + range, QStringLiteral("bmr"));
    const DayValues food = read(QStringLiteral("select date, sum(calories) as calSum from daily_nutrition") + user + range +
                                    QStringLiteral(" and meal_id <> 9999 group by date"),
                                QStringLiteral("calSum"));
    const DayValues water = read(QStringLiteral("select date, water from daily_water where User_ID = ") + userId + range,
                                 QStringLiteral("water"));
    auto update = [&](const DayValues& values, const char* column) {
        for (const auto& v : values)
            Step(messages, [&] {
                UserConn.Execute(QStringLiteral("update tmpDate set %1 = ").arg(QLatin1String(column)) + NumberText(v.second) +
                                 QStringLiteral(" where dateS = ") + Hash(v.first));
            });
    };
    update(bmrs, "bmr");
    Step(messages, [&] { BmrWalk(start, end, messages); });
    update(food, "calories");
    Step(messages, [] {
        UserConn.Execute(QStringLiteral("update tmpDate set difference = iif(isnull(bmr), 0, bmr) - iif(isnull(calories), 0, calories)"));
    });
    update(water, "water");

    // Exercise sessions, then strength workouts: hours, calories and intensity per day.
    Step(messages, [&] {
        const QList<LogDay> days =
            ReadLog(QStringLiteral("select date, sum(cals) as calSum, avg(Intensity) as intAvg from daily_exercise") + user + range +
                        QStringLiteral(" group by date order by date"),
                    QStringLiteral("select date, duration from daily_exercise") + user + range + QStringLiteral(" order by date"), false);
        for (const LogDay& d : days)
            Step(messages, [&] {
                UserConn.Execute(QStringLiteral("update tmpDate set eDuration = ") + NumberText(d.hours) + QStringLiteral(", eCals = ") +
                                 NumberText(d.cals) + QStringLiteral(", eIntensity = ") + NumberText(d.intensity) +
                                 QStringLiteral(" where dateS = ") + Hash(d.date));
            });
    });
    Step(messages, [&] {
        const QString strength = QStringLiteral(" and workoutType = 'strength'");
        const QList<LogDay> days = ReadLog(
            QStringLiteral("select date, sum(cals) as calSum, avg(Intensity) as intAvg, avg(complete) as compAvg from calendar") + user +
                range + strength + QStringLiteral(" group by date order by date"),
            QStringLiteral("select date, duration from calendar") + user + range + strength + QStringLiteral(" order by date"), true);
        for (const LogDay& d : days)
            Step(messages, [&] {
                UserConn.Execute(QStringLiteral("update tmpDate set sDuration = ") + NumberText(d.hours) + QStringLiteral(", sCals = ") +
                                 NumberText(d.cals) + QStringLiteral(", sIntensity = ") + NumberText(d.intensity) +
                                 QStringLiteral(", scomplete = ") + NumberText(d.complete) + QStringLiteral(" where dateS = ") +
                                 Hash(d.date));
            });
    });

    // Every day of the range, since eComplete always holds a value.
    Step(messages, [&] {
        ForEachRow(UserRS,
                   QStringLiteral("select * from tmpDate where feelwell <> null or sleep <> null or accomplish <> null or bmr <> null "
                                  "or calories <> null or water <> null or eDuration <> null or eCals <> null or eIntensity <> null "
                                  "or eComplete <> null or sDuration <> null or sCals <> null or sIntensity <> null or sComplete <> "
                                  "null order by dateS"),
                   [&](Recordset& rs) { table.rows.append(SummaryEnter(rs)); });
    });
    DayTotals(table.rows, &table.total, &table.average);
    return table;
}

void DayTotals(const QList<QStringList>& rows, QStringList* total, QStringList* average)
{
    total->clear();
    average->clear();
    int columns = 0;
    for (const QStringList& r : rows) columns = std::max(columns, int(r.size()));
    if (columns == 0) return;
    *total << QString();
    *average << QString();
    for (int c = 1; c < columns; ++c) {
        double sum = 0, v = 0;
        bool any = false;
        for (const QStringList& r : rows)
            if (c < r.size() && IsNumericText(r[c], &v)) {
                sum += v;
                any = true;
            }
        *total << (any ? Num(sum, "#,##0.#") : QString());
        *average << (any ? Num(sum / rows.size(), "#,##0.#") : QString());
    }
}

void SS2Set(Strip& strip)
{
    static const char* const kHeadings[7] = {"Calories Burned Exercising", "+ BMR", "= Total Calories Burned",
                                             "- Total Caloric Intake", "= Net Loss of (Calories)", "= Net Loss of ",
                                             "Time Spent Exercising"};
    for (int c = 0; c < 7; ++c) {
        strip.heading[c] = QString::fromLatin1(kHeadings[c]);
        strip.cell[0][c].clear();
        strip.cell[1][c].clear();
    }
}

void SetCaloriesEaten(Strip& strip, double caloriesEaten) { strip.cell[0][colIntake] = Num(caloriesEaten, "#,##0.0"); }

double CellNumber(const QString& text)
{
    double v = 0;
    return IsNumericText(text, &v) ? v : Val(text);
}

void BmrSums(const QDate& start, const QDate& end, double* total, double* average, Messages* messages)
{
    *total = 0;
    *average = 0;
    const QString range = QStringLiteral(" from tmpDate where dateS between ") + Hash(start) + QStringLiteral(" and ") + Hash(end);
    Step(messages, [&] {
        FirstRow(UserRS2, QStringLiteral("select sum(bmr) as totalBMR") + range,
                 [&](Recordset& rs) { *total = Val(rs.Field(QStringLiteral("totalBMR"))); });
    });
    Step(messages, [&] {
        FirstRow(UserRS2, QStringLiteral("select avg(bmr) as avgBMR") + range,
                 [&](Recordset& rs) { *average = Val(rs.Field(QStringLiteral("avgBMR"))); });
    });
}

void FillStrip(Strip& strip, const totals::Balance& balance, int daysInRange, double totalBmr, double averageBmr)
{
    auto& total = strip.cell[0];
    auto& average = strip.cell[1];
    const double days = daysInRange > 0 ? daysInRange : 1;
    // A cell's text through "0.0", as a number.
    auto through = [](const QString& text) { return CellNumber(Num(CellNumber(text), "0.0")); };

    total[colBurned] = Num(balance.caloriesBurned, "#,##0.0");
    average[colBurned] = balance.workouts != 0 ? Num(balance.caloriesBurned / days, "#,##0.0") : QStringLiteral("0.0");

    total[colBmr] = Num(totalBmr, "#,##0.0");
    average[colBmr] = Num(averageBmr, "#,##0.0");

    for (int r = 0; r < 2; ++r)
        strip.cell[r][colTotalBurned] = Num(through(strip.cell[r][colBurned]) + through(strip.cell[r][colBmr]), "#,##0.0");

    const double eaten = CellNumber(total[colIntake]);
    average[colIntake] = eaten != 0 ? Num(eaten / days, "#,##0.0") : QStringLiteral("0.0");

    total[colNetCalories] = Num(through(total[colTotalBurned]) - through(total[colIntake]), "#,##0.0");
    average[colNetCalories] = Num(CellNumber(total[colNetCalories]) / days, "#,##0.0");

    const double pounds = CellNumber(Num(CellNumber(total[colNetCalories]) / 3500, "#,##0.0"));
    total[colNetWeight] = Num(pounds, "#,##0.0");
    average[colNetWeight] = Num(pounds / days, "#,##0.0");

    const double hours = balance.hoursExercised;
    total[colTime] = hours == 1 ? NumberText(hours) + QStringLiteral(" hour") : Num(hours, "0.0") + QStringLiteral(" hours");
    average[colTime] = Num(hours / days, "#,##0.0") + (hours / days == 1 ? QStringLiteral(" hour") : QStringLiteral(" hours"));
}

void ApplyUnit(Strip& strip, const QString& userId, Messages* messages)
{
    Step(messages, [&] {
        FirstRow(UserRS, QStringLiteral("select * from User_Info where User_ID=") + userId, [&](Recordset& rs) {
            strip.heading[colNetWeight] = Str(rs.Field(QStringLiteral("personal_measurements"))) == QLatin1String("lbs")
                                              ? QStringLiteral("= Net Loss of (lbs)")
                                              : QStringLiteral("= Net Loss of (kg)");
        });
    });
    // Only a loss is converted, and only its Total: the Average stays in pounds.
    if (strip.heading[colNetWeight].endsWith(QLatin1String("(kg)"))) {
        const double net = CellNumber(strip.cell[0][colNetWeight]);
        if (net > 0) strip.cell[0][colNetWeight] = Num(net / 2.2, "#,##0.0");
    }
}

}  // namespace summary
