// The strength log's speed: a library workout of 60 sets opened to be scheduled (the athlete's
// goals filling its zeros) and saved over 20 days, as the planner's selected days would have it.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include "calendar/planner.h"
#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Grid.h"
#include "strength/frmStrengthLog.h"

namespace {

const QDate kFirst(2026, 4, 1);
constexpr int kDays = 20;
constexpr int kSets = 60;

void Add(Recordset& rs, const QList<QPair<QString, QVariant>>& fields)
{
    rs.AddNew();
    for (const auto& f : fields) rs.SetField(f.first, f.second);
    rs.Update();
}

// An athlete with goals and Prefill on, a library of 150 exercises and a workout of 12
// exercises by 5 sets, half of them with zeros for the goals to fill; a year of logged workouts.
struct Stores {
    QTemporaryDir dir;
    QString id;

    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("User_Info"));
        Add(rs, {{"Name", "Lifter"}, {"sex", "F"}, {"Workout_In", "kg"}, {"Prefill", true}});
        id = Str(rs.Field(QStringLiteral("User_ID")));
        rs.Close();

        LibraryConn.BeginTrans();
        Recordset lib(&LibraryConn);
        lib.Open(QStringLiteral("strength_exercises"));
        for (int e = 0; e < 150; ++e)
            Add(lib, {{"muscle_group", QStringLiteral("Group %1").arg(e % 10)}, {"exercise", QStringLiteral("Exercise %1").arg(e)},
                      {"Type", e % 15 == 0 ? "Stretch" : "Free Weights"}});
        lib.Close();
        lib.Open(QStringLiteral("workouts"));
        Add(lib, {{"Workout_Name", "Big Day"}, {"workout_desc", "Sixty sets"}, {"wtype", "strength"}});
        const int wid = int(Val(lib.Field(QStringLiteral("Workout_ID"))));
        lib.Close();
        lib.Open(QStringLiteral("Workout_exercises"));
        for (int s = 0; s < kSets; ++s)
            Add(lib, {{"Workout_Name", "Big Day"}, {"Workout_ID", wid}, {"muscle_group", QStringLiteral("Group %1").arg(s / 5)},
                      {"exercise", QStringLiteral("Exercise %1").arg(s / 5 + 1)}, {"Sets", s % 5 + 1},
                      {"Reps", s % 2 ? 8 : 0}, {"weight", s % 2 ? 40 : 0}, {"Intensity", "6"}, {"Goal", "Strength"}});
        lib.Close();
        LibraryConn.CommitTrans();

        UserConn.BeginTrans();
        Recordset in(&UserConn), goals(&UserConn), w(&UserConn), log(&UserConn), cal(&UserConn);
        in.Open(QStringLiteral("Intensity"));
        for (int level = 1; level <= 10; ++level)
            Add(in, {{"User_ID", id.toInt()}, {"Intensity", level}, {"Value", level}});
        goals.Open(QStringLiteral("strength_goals"));
        for (int e = 0; e < 150; ++e)
            Add(goals, {{"User_ID", id.toInt()}, {"exercise", QStringLiteral("Exercise %1").arg(e)}, {"Reps", 10}, {"weight", 50}});
        w.Open(QStringLiteral("WeighIn"));
        Add(w, {{"User_ID", id}, {"Date", QDate(2026, 1, 1)}, {"weight", 70}});
        cal.Open(QStringLiteral("calendar"));
        log.Open(QStringLiteral("Daily_Weights"));
        for (QDate d = QDate(2025, 4, 1); d < kFirst; d = d.addDays(2)) {
            Add(cal, {{"User_ID", id}, {"Date", d}, {"Key", 1}, {"Name", "Big Day"}, {"WorkoutType", "Strength"},
                      {"StartTime", "6:00 PM"}, {"EndTime", "7:00 PM"}});
            for (int s = 1; s <= 20; ++s)
                Add(log, {{"User_ID", id}, {"Date", d}, {"Name", "Big Day"}, {"Key", "1"}, {"exercise", "Exercise 1"},
                          {"Sets", QString::number(s)}, {"Reps", 8}, {"weight", 40}, {"worder", s}});
        }
        for (Recordset* r : {&in, &goals, &w, &cal, &log}) r->Close();
        UserConn.CommitTrans();
    }
};

Stores* g_stores = nullptr;

// Opening the library workout to schedule it and saving it on 20 days, each day in its own
// transaction with its calendar row, 60 set rows and the questionnaire.
void BM_ScheduleSixtySetsOverTwentyDays(benchmark::State& state)
{
    CurrentUserID = g_stores->id;
    SetCalendarDateProvider([] { return kFirst; });
    for (auto _ : state) {
        SelectedItem = QStringLiteral("Big Day");
        SelectedKey.clear();
        SetPlannerAdding(true);
        {
            frmStrengthLog log;
            if (log.SS1->MaxRows() != kSets || Val(log.SS1->Text(1, frmStrengthLog::colWeight)) != 50)
                state.SkipWithError("workout not loaded");
            for (int i = 0; i < kDays; ++i)
                if (!log.SaveDate(kFirst.addDays(i))) state.SkipWithError("refused");
        }
        state.PauseTiming();
        SetPlannerAdding(false);
        const QString range = QStringLiteral("# and #") + SqlDate(kFirst.addDays(kDays)) + QStringLiteral("#");
        UserConn.Execute(QStringLiteral("delete * from Daily_Weights where date between #") + SqlDate(kFirst) + range);
        UserConn.Execute(QStringLiteral("delete * from calendar where date between #") + SqlDate(kFirst) + range);
        UserConn.Execute(QStringLiteral("delete * from Daily_Psych where date between #") + SqlDate(kFirst) + range);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ScheduleSixtySetsOverTwentyDays)->Unit(benchmark::kMillisecond);

// Opening one logged workout of 60 sets.
void BM_OpenLoggedWorkout(benchmark::State& state)
{
    CurrentUserID = g_stores->id;
    SetCalendarDateProvider([] { return kFirst; });
    SelectedItem = QStringLiteral("Big Day");
    SelectedKey.clear();
    SetPlannerAdding(true);
    QString key;
    {
        frmStrengthLog log;
        log.SaveDate(kFirst);
        key = log.WorkoutKey();
    }
    SetPlannerAdding(false);
    SelectedKey = key;
    SelectedName = QStringLiteral("Big Day");
    for (auto _ : state) {
        frmStrengthLog log;
        if (log.SS1->MaxRows() != kSets)
            state.SkipWithError("workout not loaded");
        benchmark::DoNotOptimize(log.SS1);
    }
}
BENCHMARK(BM_OpenLoggedWorkout)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    regional::SetLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    Stores stores;
    g_stores = &stores;
    ::benchmark::Initialize(&argc, argv);
    ::benchmark::RunSpecifiedBenchmarks();
    ::benchmark::Shutdown();
    SetCalendarDateProvider(nullptr);
    ResetSharedState();
    return 0;
}
