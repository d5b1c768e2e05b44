// The exercise log's speed: opening a logged session with its fields, formulas, intervals,
// laps and questionnaire, over an athlete with three years of sessions.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>

#include "calendar/planner.h"
#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Grid.h"
#include "exercise/frmExerciseLog.h"

namespace {

const QDate kFirst(2023, 1, 1);
const QDate kSession(2025, 6, 14);

void Add(Recordset& rs, const QList<QPair<QString, QVariant>>& fields)
{
    rs.AddNew();
    for (const auto& f : fields) rs.SetField(f.first, f.second);
    rs.Update();
}

// An athlete with a run every day for three years (each with its form, plan and answers), a
// library form of twelve fields with formulas, selection fields and interval templates.
struct Stores {
    QTemporaryDir dir;
    QString id;

    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("User_Info"));
        Add(rs, {{"Name", "Runner"}, {"sex", "F"}, {"personal_measurements", "kg"}});
        id = Str(rs.Field(QStringLiteral("User_ID")));
        rs.Close();

        LibraryConn.BeginTrans();
        Recordset lib(&LibraryConn);
        lib.Open(QStringLiteral("endurance_exercises"));
        Add(lib, {{"Category", "Training"}, {"exercise", "Running"}, {"Image", 1}});
        lib.Close();
        lib.Open(QStringLiteral("DefaultUnits"));
        for (const char* s : {"Road", "Trail", "Track", "Treadmill", "Grass"})
            Add(lib, {{"Name", "Surface"}, {"unit", s}});
        lib.Close();
        lib.Open(QStringLiteral("Intervals"));
        for (int t = 0; t < 20; ++t)
            for (int s = 1; s <= 8; ++s)
                Add(lib, {{"Name", QStringLiteral("Template %1").arg(t)}, {"Set", QString::number(s)}, {"Description", "400 m"}});
        lib.Close();
        LibraryConn.CommitTrans();

        UserConn.BeginTrans();
        Recordset cal(&UserConn), ex(&UserConn), tpl(&UserConn), iv(&UserConn), psy(&UserConn), in(&UserConn), w(&UserConn);
        cal.Open(QStringLiteral("calendar"));
        ex.Open(QStringLiteral("Daily_Exercise"));
        tpl.Open(QStringLiteral("Daily_Templates"));
        iv.Open(QStringLiteral("Daily_Intervals"));
        psy.Open(QStringLiteral("Daily_Psych"));
        in.Open(QStringLiteral("Intensity"));
        w.Open(QStringLiteral("WeighIn"));
        for (int level = 1; level <= 10; ++level)
            Add(in, {{"User_ID", id.toInt()}, {"Intensity", level}, {"Value", 0.7 + 0.5 * level}});
        QString laps;
        for (int l = 0; l < 20; ++l) laps += QStringLiteral("00:04:%1~").arg(10 + l);
        int n = 0;
        for (QDate d = kFirst; d < kFirst.addYears(3); d = d.addDays(1), ++n) {
            const QString key = QStringLiteral("1");
            Add(cal, {{"User_ID", id}, {"Date", d}, {"Key", 1}, {"Name", "Running"}, {"WorkoutType", "Exercise"},
                      {"StartTime", "6:00 AM"}, {"EndTime", "7:00 AM"}, {"Image", 1}, {"Cals", 500}});
            Add(ex, {{"User_ID", id}, {"Date", d}, {"Name", "Running"}, {"Key", key},
                     {"StartTime", QDateTime(d, QTime(6, 0))}, {"EndTime", QDateTime(d, QTime(7, 0))},
                     {"Distance", 10 + n % 5}, {"DistanceUnit", "kilometers"}, {"duration", "00:55:00"},
                     {"Speed", 11}, {"SpeedUnit", "kph"}, {"Intensity", 6}, {"Route", QStringLiteral("Route %1").arg(n % 40)},
                     {"facility", QStringLiteral("Park %1").arg(n % 15)}, {"Equipment", QStringLiteral("Shoes %1").arg(n % 8)},
                     {"LapTimes", laps}, {"Cals", 500}, {"StartHeart", 145}, {"Zone1", "00:10:00"}, {"Type", "Practice"}});
            for (int f = 1; f <= 12; ++f) {
                const bool formula = f % 4 == 0;
                Add(tpl, {{"User_ID", id}, {"Date", d}, {"Name", "Running"}, {"Key", key},
                          {"field_name", f == 3 ? QStringLiteral("Surface") : QStringLiteral("Field %1").arg(f)},
                          {"Formula", formula ? QStringLiteral("B%1*2+B%2").arg(f - 1).arg(f - 2) : QString()},
                          {"Value", formula ? QString() : QString::number(f * 1.5)}, {"Units", f == 3 ? "Trail" : "units"},
                          {"worder", f}});
            }
            for (int s = 1; s <= 10; ++s)
                Add(iv, {{"User_ID", id}, {"Date", d}, {"Name", "Template 3"}, {"Key", key}, {"Set", QString::number(s)},
                         {"Description", "400 m"}, {"Instruction", "hard"}, {"Rest", "90 s"}, {"Intensity", "8"}});
            Add(psy, {{"User_ID", id}, {"Date", d}, {"Name", "Running"}, {"Key", key}, {"sleep", true},
                      {"Levelbefore", "high"}, {"LevelRating", "8"}});
            if (n % 7 == 0) Add(w, {{"User_ID", id}, {"Date", d}, {"weight", 60}});
        }
        for (Recordset* r : {&cal, &ex, &tpl, &iv, &psy, &in, &w}) r->Close();
        UserConn.CommitTrans();
    }
};

Stores* g_stores = nullptr;

void OpenSession()
{
    CurrentUserID = g_stores->id;
    SetCalendarDateProvider([] { return kSession; });
    SetPlannerAdding(false);
    SelectedKey = QStringLiteral("1");
    SelectedName = QStringLiteral("Running");
}

// Opening a logged session: every statement and the filling of every control.
void BM_OpenLoggedSession(benchmark::State& state)
{
    OpenSession();
    for (auto _ : state) {
        frmExerciseLog log;
        if (log.SS2->MaxRows() != 12 || log.SS3->MaxRows() != 20 || log.txtDistance->text().isEmpty())
            state.SkipWithError("session not loaded");
        benchmark::DoNotOptimize(log.SS2);
    }
}
BENCHMARK(BM_OpenLoggedSession)->Unit(benchmark::kMillisecond);

// The same, drawn once as the user first sees it.
void BM_OpenAndDrawLoggedSession(benchmark::State& state)
{
    OpenSession();
    for (auto _ : state) {
        frmExerciseLog log;
        log.resize(1120, 680);
        const QPixmap shot = log.grab();
        benchmark::DoNotOptimize(shot);
    }
}
BENCHMARK(BM_OpenAndDrawLoggedSession)->Unit(benchmark::kMillisecond);

// Saving the session back: the four tables and the calendar's totals in one transaction.
void BM_SaveLoggedSession(benchmark::State& state)
{
    OpenSession();
    frmExerciseLog log;
    for (auto _ : state) {
        if (!log.SaveDate(kSession)) state.SkipWithError("refused");
    }
}
BENCHMARK(BM_SaveLoggedSession)->Unit(benchmark::kMillisecond);

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
