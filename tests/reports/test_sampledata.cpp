// The sample-data tool against real stores: a month for a fresh athlete as the screens would
// read it back, the same records for the same seed, and other athletes' records untouched.
#include "fixtures/fixture.h"

#include "calendar/calendarstore.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "sampledata.h"

#include <QHash>
#include <QSet>

namespace {

const QDate March1(2025, 3, 1);
const QDate March31(2025, 3, 31);

class SampleData : public StoreTest {
protected:
    QString Fill(const QString& name, quint32 seed = 7, QDate from = March1, QDate to = March31)
    {
        const QString id = sampledata::CreateAthlete(name, from);
        sampledata::Options o;
        o.userId = id;
        o.from = from;
        o.to = to;
        o.seed = seed;
        last = sampledata::Fill(o);
        return id;
    }

    // Every row an athlete owns in the day tables, without the User_ID, sorted.
    QStringList Dump(const QString& id)
    {
        QStringList lines;
        const QStringList quoted = {"daily_nutrition", "calendar", "Daily_Exercise", "Daily_Weights",
                                    "WeighIn",         "wellness", "daily_log",     "Daily_Psych"};
        const QStringList plain = {"daily_water", "wellness_readings"};
        Recordset rs(&UserConn);
        // Meals are numbered over all athletes: a diary row names its meal by position.
        QHash<QString, QString> position;
        ForEachRow(rs, "select meal_id, [position] from setup_meals where User_ID=" + id,
                   [&position](Recordset& r) { position.insert(Str(r.Field(0)), Str(r.Field(1))); });
        auto take = [&](const QString& table, Recordset& r) {
            QStringList cells{table};
            for (int p = 1; p < r.FieldCount(); ++p)
                cells << (table == "daily_nutrition" && p == 2 ? "meal " + position.value(Str(r.Field(p))) : Str(r.Field(p)));
            lines << cells.join('|');
        };
        for (const QString& t : quoted)
            ForEachRow(rs, "select * from " + t + " where User_ID='" + id + "'", [&](Recordset& r) { take(t, r); });
        for (const QString& t : plain)
            ForEachRow(rs, "select * from " + t + " where User_ID=" + id, [&](Recordset& r) { take(t, r); });
        lines.sort();
        return lines;
    }

    sampledata::Counts last;
};

TEST_F(SampleData, MonthForFreshAthleteReadsBackAsTheScreensWriteIt)
{
    const QString id = Fill("Sam O'Neil");
    const QString u = "User_ID='" + id + "'";

    // The profile of a new athlete.
    EXPECT_EQ(CountUser("User_Info where name='Sam O''Neil'"), 1);
    EXPECT_EQ(CountUser("setup_meals where User_ID=" + id), 6);
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
    EXPECT_EQ(CountUser("hrm_info where " + u), 1);
    EXPECT_EQ(CountUser("Nutrient_Goals where " + u + " and calories > 0"), 1);

    // The counts say what was written.
    EXPECT_EQ(last.diaryRows, CountUser("daily_nutrition where " + u));
    EXPECT_EQ(last.waterDays, CountUser("daily_water where User_ID=" + id));
    EXPECT_EQ(last.sessions, CountUser("Daily_Exercise where " + u));
    EXPECT_EQ(last.sessions, CountUser("calendar where " + u + " and workouttype='Exercise'"));
    EXPECT_EQ(last.workouts, CountUser("calendar where " + u + " and workouttype='Strength'"));
    EXPECT_EQ(last.wellnessDays, CountUser("wellness where " + u));
    EXPECT_EQ(last.readings, CountUser("wellness_readings where User_ID=" + id));
    EXPECT_EQ(last.logs, CountUser("daily_log where " + u));
    EXPECT_GT(last.sessions, 15);
    EXPECT_GT(last.workouts, 10);
    EXPECT_GT(last.wellnessDays, 15);
    EXPECT_GT(last.logs, 0);

    // Every day holds the five first meals, each with calories, on its ISO date.
    QList<qlonglong> meals;
    ForEachRowWhile(UserRS, "select meal_id from setup_meals where User_ID=" + id + " order by [Position]",
                    [&meals](Recordset& r) {
                        meals << qlonglong(Val(r.Field(0)));
                        return meals.size() < 5;
                    });
    for (QDate d = March1; d <= March31; d = d.addDays(1))
        for (qlonglong m : meals)
            EXPECT_GT(CountUser(QString("daily_nutrition where %1 and date=#%2# and meal_id=%3 and calories > 0")
                                    .arg(u, d.toString(Qt::ISODate))
                                    .arg(m)),
                      0)
                << d.toString(Qt::ISODate).toStdString() << " meal " << m;
    EXPECT_EQ(CountUser("daily_nutrition where " + u + " and meal_id not in (" +
                        QStringList{QString::number(meals[0]), QString::number(meals[1]), QString::number(meals[2]),
                                    QString::number(meals[3]), QString::number(meals[4])}
                            .join(',') +
                        ")"),
              0);

    // A diary row is its food's row, its figures scaled by the portion taken in the food's measure.
    Recordset food(&LibraryConn);
    int checked = 0;
    ForEachRow(UserRS, "select * from daily_nutrition where " + u + " and date=#2025-03-10#", [&](Recordset& r) {
        FirstRow(food, "select * from foods where food_id=" + Str(r.Field("Food_ID")), [&](Recordset& f) {
            EXPECT_EQ(Str(r.Field("Name")), Str(f.Field("Name")));
            EXPECT_EQ(Str(r.Field("Measure")), Str(f.Field("Measure")));
            const double portion = Val(r.Field("amount")) / Val(f.Field("amount"));
            EXPECT_NEAR(Val(r.Field("calories")), Val(f.Field("calories")) * portion, 0.01);
            EXPECT_NEAR(Val(r.Field("Iron")), Val(f.Field("Iron")) * portion, 0.01);
            EXPECT_NEAR(Val(r.Field("Chloride")), Val(f.Field("Chloride")) * portion, 0.01);
            ++checked;
        });
    });
    EXPECT_GE(checked, 5);

    // Weigh-ins every seven days from the first, each with a BMR; the athlete's own first one kept.
    QList<QDate> weighIns;
    ForEachRow(UserRS, "select * from WeighIn where " + u + " order by date", [&](Recordset& r) {
        weighIns << FieldDate(r.Field("Date"));
        EXPECT_GT(Val(r.Field("BMR")), 1000);
        EXPECT_GT(Val(r.Field("weight")), 50);
        if (weighIns.size() > 1) EXPECT_GT(Val(r.Field("Waist")), 50);
    });
    ASSERT_EQ(weighIns.size(), 5);
    EXPECT_EQ(last.weighIns, 4);
    for (int i = 0; i < weighIns.size(); ++i) EXPECT_EQ(weighIns[i], March1.addDays(7 * i));

    // Calendar keys are unique within a day; each entry has its log under the same key and name,
    // its times readable, its calories those of its log.
    QSet<QString> keys;
    int strength = 0;
    ForEachRow(UserRS3, "select * from calendar where " + u, [&](Recordset& c) {
        const QString day = FieldDate(c.Field("Date")).toString(Qt::ISODate);
        const QString key = Str(c.Field("Key"));
        EXPECT_FALSE(keys.contains(day + "/" + key)) << day.toStdString() << " key " << key.toStdString();
        keys.insert(day + "/" + key);
        const QTime start = EntryTime(c.Field("StartTime")), end = EntryTime(c.Field("EndTime"));
        EXPECT_TRUE(start.isValid() && end.isValid() && start < end) << day.toStdString();
        EXPECT_GT(Val(c.Field("Image")), 0);
        EXPECT_GT(Val(c.Field("Cals")), 0);
        EXPECT_EQ(TimeToHours(Str(c.Field("duration"))) > 0, true);
        const QString log = Str(c.Field("WorkoutType")) == "Strength" ? "Daily_Weights" : "Daily_Exercise";
        const QString where = QString("%1 where %2 and date=#%3# and key='%4' and name='%5'")
                                  .arg(log, u, day, key, SqlQuote(Str(c.Field("Name"))));
        EXPECT_GT(CountUser(where), 0) << where.toStdString();
        EXPECT_EQ(CountUser(QString("Daily_Psych where %1 and date=#%2# and key='%3' and name='%4'")
                                .arg(u, day, key, SqlQuote(Str(c.Field("Name"))))),
                  1);
        if (log == "Daily_Exercise") {
            FirstRow(UserRS, "select cals, intensity from " + where, [&](Recordset& e) {
                EXPECT_EQ(Val(e.Field(0)), Val(c.Field("Cals")));
                EXPECT_EQ(Val(e.Field(1)), Val(c.Field("Intensity")));
            });
        } else {
            ++strength;
        }
    });
    EXPECT_EQ(strength, last.workouts);
    // Sets keep the workout's order and hold loads; Yes/No columns hold -1 or 0.
    EXPECT_EQ(CountUser("Daily_Weights where " + u + " and (worder is null or worder < 1)"), 0);
    EXPECT_GT(CountUser("Daily_Weights where " + u + " and weight > 0 and reps > 0"), 0);
    EXPECT_EQ(CountUser("wellness where " + u + " and feelwell not in (-1, 0)"), 0);
    EXPECT_GT(CountUser("wellness where " + u + " and feelwell = true"), 0);
    EXPECT_EQ(CountUser("calendar where " + u + " and workouttype='Strength' and complete not in (-1, 0)"), 0);
    EXPECT_GT(CountUser("wellness_readings where User_ID=" + id + " and reading='Resting Heart Rate - bpm' and value > 30"), 0);
}

TEST_F(SampleData, SameSeedSameRowsAndAFillNeverRepeatsItself)
{
    const QString a = Fill("Ann", 11);
    const QString b = Fill("Ben", 11);
    const QString c = Fill("Cid", 12);
    EXPECT_EQ(Dump(a), Dump(b));
    EXPECT_NE(Dump(a), Dump(c));

    // A second fill over the same days with the same seed adds nothing: every day already holds
    // what it would write.
    const QStringList before = Dump(a);
    sampledata::Options o;
    o.userId = a;
    o.from = March1;
    o.to = March31;
    o.seed = 11;
    const sampledata::Counts again = sampledata::Fill(o);
    EXPECT_EQ(again.diaryRows + again.waterDays + again.sessions + again.workouts + again.weighIns + again.wellnessDays +
                  again.readings + again.logs,
              0);
    EXPECT_EQ(Dump(a), before);

    // A taken name is not added twice.
    EXPECT_EQ(sampledata::CreateAthlete("ann"), a);
    EXPECT_EQ(CountUser("User_Info where name='Ann'"), 1);
}

TEST_F(SampleData, FillingOneAthleteLeavesAnotherAlone)
{
    const QString other = AddAthlete("Other");
    UserConn.Execute("insert into daily_nutrition (User_ID, [Date], Meal_ID, Food_ID, Name, calories) values ('" + other +
                     "', #2025-03-05#, 1, 1, 'Toast', 80)");
    UserConn.Execute("insert into calendar (User_ID, [Date], Key, Name, WorkoutType) values ('" + other +
                     "', #2025-03-05#, 1, 'Run', 'Exercise')");
    const QStringList before = Dump(other);
    const QString id = Fill("Filled", 3, QDate(2025, 3, 1), QDate(2025, 3, 10));
    EXPECT_NE(id, other);
    EXPECT_EQ(Dump(other), before);
    EXPECT_GT(last.diaryRows, 0);

    // A day the athlete already logged keeps its own records of that kind.
    const QString own = sampledata::CreateAthlete("Partly", March1);
    UserConn.Execute("insert into calendar (User_ID, [Date], Key, Name, WorkoutType) values ('" + own +
                     "', #2025-03-02#, 1, 'Yoga', 'Appointment')");
    sampledata::Options o;
    o.userId = own;
    o.from = March1;
    o.to = QDate(2025, 3, 3);
    sampledata::Fill(o);
    EXPECT_EQ(CountUser("calendar where User_ID='" + own + "' and date=#2025-03-02#"), 1);
    EXPECT_GT(CountUser("daily_nutrition where User_ID='" + own + "' and date=#2025-03-02#"), 0);

    // A range given backwards writes nothing.
    o.from = QDate(2025, 4, 10);
    o.to = QDate(2025, 4, 1);
    const sampledata::Counts none = sampledata::Fill(o);
    EXPECT_EQ(none.diaryRows + none.sessions + none.weighIns, 0);
}

}  // namespace
