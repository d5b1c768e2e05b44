// The day planner's speed: selecting a full day, and signing in an athlete with years of data.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>

#include "calendar/frmSched2.h"
#include "calendar/screens.h"
#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/MonthCalendar.h"

namespace {

const QDate kFirst(2019, 1, 1);
const QDate kFullDay(2023, 6, 14);

void Add(Recordset& rs, const QList<QPair<QString, QVariant>>& fields)
{
    rs.AddNew();
    for (const auto& f : fields) rs.SetField(f.first, f.second);
    rs.Update();
}

// Two athletes in fresh stores: the first with five years of entries, one or two a day, meals
// and weigh-ins; the second with one day of 20 entries and a full diary.
struct Stores {
    QTemporaryDir dir;
    QString busy, fullDay;

    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("User_Info"));
        Add(rs, {{"Name", "Years"}, {"sex", "M"}, {"personal_measurements", "lbs"}});
        busy = Str(rs.Field(QStringLiteral("User_ID")));
        Add(rs, {{"Name", "Full day"}, {"sex", "F"}, {"personal_measurements", "kg"}});
        fullDay = Str(rs.Field(QStringLiteral("User_ID")));
        rs.Close();

        UserConn.BeginTrans();
        Recordset cal(&UserConn), food(&UserConn), weigh(&UserConn);
        cal.Open(QStringLiteral("calendar"));
        food.Open(QStringLiteral("daily_nutrition"));
        weigh.Open(QStringLiteral("WeighIn"));
        int n = 0;
        for (QDate d = kFirst; d < kFirst.addYears(5); d = d.addDays(1), ++n) {
            Add(cal, {{"User_ID", busy}, {"Date", d}, {"Key", 1}, {"Name", "Run"}, {"WorkoutType", "Exercise"},
                      {"StartTime", "6:00 AM"}, {"EndTime", "7:00 AM"}, {"Image", 1 + n % 9}, {"Cals", 350}});
            if (n % 3 == 0)
                Add(cal, {{"User_ID", busy}, {"Date", d}, {"Key", 2}, {"Name", "Legs"}, {"WorkoutType", "Strength"},
                          {"StartTime", "5:00 PM"}, {"EndTime", "6:00 PM"}, {"Image", 12}, {"Cals", 250}});
            if (n % 10 == 0)
                Add(cal, {{"User_ID", busy}, {"Date", d}, {"Key", 3}, {"Name", "Physio"}, {"WorkoutType", "Appointment"},
                          {"StartTime", "12:00 PM"}, {"EndTime", "12:30 PM"}, {"Image", 0}});
            for (int meal = 1; meal <= 4; ++meal)
                Add(food, {{"User_ID", busy}, {"Date", d}, {"Meal_ID", meal}, {"Name", "Oats"}, {"calories", 450}});
            if (n % 7 == 0) Add(weigh, {{"User_ID", busy}, {"Date", d}, {"weight", 180 - n / 100.0}, {"BMR", 1800}});
        }
        for (int k = 1; k <= 20; ++k) {
            const QTime s = QTime(5, 0).addSecs(k * 40 * 60);
            Add(cal, {{"User_ID", fullDay}, {"Date", kFullDay}, {"Key", k}, {"Name", QStringLiteral("Session %1").arg(k)},
                      {"WorkoutType", k % 2 ? "Exercise" : "Strength"}, {"StartTime", s.toString("h:mm AP")},
                      {"EndTime", s.addSecs(45 * 60).toString("h:mm AP")}, {"Image", k % 9 + 1}, {"Cals", 120}});
        }
        for (int meal = 1; meal <= 6; ++meal)
            for (int f = 0; f < 8; ++f)
                Add(food, {{"User_ID", fullDay}, {"Date", kFullDay}, {"Meal_ID", meal}, {"Name", "Food"}, {"calories", 95.5}});
        Add(weigh, {{"User_ID", fullDay}, {"Date", kFullDay.addDays(-3)}, {"weight", 61}, {"BMR", 1400}});
        cal.Close();
        food.Close();
        weigh.Close();
        Recordset log(&UserConn);
        log.Open(QStringLiteral("daily_log"));
        QString rtf = QStringLiteral("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil MS Sans Serif;}}\\pard");
        for (int i = 0; i < 40; ++i) rtf += QStringLiteral("\\plain\\f0\\fs20\\b Interval %1\\b0  felt good, splits even\\par\n").arg(i);
        rtf += '}';
        Add(log, {{"User_ID", fullDay}, {"Date", kFullDay}, {"Log", rtf}});
        log.Close();
        UserConn.CommitTrans();
    }
};

Stores* g_stores = nullptr;

void SignIn(const QString& id)
{
    CurrentUserID = id;
    CurrentUserName = QStringLiteral("Bench");
}

// Selecting a day with 20 entries, a full diary, a log and a weigh-in: the planner reloads
// the day and draws itself.
void BM_SelectFullDay(benchmark::State& state)
{
    SignIn(g_stores->fullDay);
    frmSched2 planner;
    planner.resize(1280, 900);
    planner.CalView->SetValue(kFullDay.addDays(1));
    bool flip = false;
    for (auto _ : state) {
        planner.CalView->SetValue(flip ? kFullDay.addDays(1) : kFullDay);
        if (!flip && planner.txtCalsOut->text() != QLatin1String("2400")) state.SkipWithError("wrong figures");
        const QPixmap shot = planner.grab();
        benchmark::DoNotOptimize(shot);
        flip = !flip;
    }
}
BENCHMARK(BM_SelectFullDay)->Unit(benchmark::kMillisecond);

// The same without drawing: the statements and the filling of the controls alone.
void BM_LoadFullDay(benchmark::State& state)
{
    SignIn(g_stores->fullDay);
    frmSched2 planner;
    bool flip = false;
    for (auto _ : state) {
        planner.CalView->SetValue(flip ? kFullDay.addDays(1) : kFullDay);
        flip = !flip;
    }
}
BENCHMARK(BM_LoadFullDay)->Unit(benchmark::kMillisecond);

// Signing in an athlete with five years of data: icons of every date and the planner's load.
void BM_SignInFiveYears(benchmark::State& state)
{
    SignIn(g_stores->busy);
    for (auto _ : state) {
        frmSched2 planner;
        if (planner.CalView->PictureCount() < 1800) state.SkipWithError("icons missing");
        benchmark::DoNotOptimize(planner.CalView);
    }
}
BENCHMARK(BM_SignInFiveYears)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    regional::SetLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    RegisterCalendarScreens();
    Stores stores;
    g_stores = &stores;
    ::benchmark::Initialize(&argc, argv);
    ::benchmark::RunSpecifiedBenchmarks();
    ::benchmark::Shutdown();
    ResetSharedState();
    return 0;
}
