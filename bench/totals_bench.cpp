// The Daily Summary's speed: the whole computation of the screen (the day table with its BMR
// walk, every item tab and the balance strip) over a year and over ten years of a full diary,
// against a yardstick that runs the same statements, translated once, on the engine's own
// calls in one transaction, in the same run.
#include <benchmark/benchmark.h>

#include <sqlite3.h>

#include <QApplication>
#include <QHash>
#include <QSet>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <QDateEdit>
#include <functional>

#include "core/opendatabases.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/sqlfunctions.h"
#include "core/store/translator.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Grid.h"
#include "reports/totals/frmDailySummary.h"
#include "sampledata.h"

namespace {

const QDate kLast(2026, 10, 31);

struct Stores {
    QTemporaryDir dir;
    QString id;
    sampledata::Counts counts;

    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        id = sampledata::CreateAthlete(QStringLiteral("Bench"));
        CurrentUserID = id;
        CurrentUserName = QStringLiteral("Bench");
        sampledata::Options o;
        o.userId = id;
        o.from = kLast.addYears(-10).addDays(1);
        o.to = kLast;
        counts = sampledata::Fill(o);
    }
};
Stores* g_stores = nullptr;

// The screen, opened once; each iteration recomputes a range as a change of date does.
void RunScreen(benchmark::State& state, int days)
{
    CurrentUserID = g_stores->id;
    SetCalendarDateProvider([] { return kLast; });
    frmDailySummary screen;
    {
        const QSignalBlocker a(screen.txtStartDate), b(screen.txtEndDate);
        screen.txtStartDate->setDate(kLast.addDays(1 - days));
        screen.txtEndDate->setDate(kLast);
    }
    for (auto _ : state) screen.DateChange();
    if (screen.SS1->MaxRows() != days + 3) state.SkipWithError("the day table is not the range");
    state.counters["diary rows"] = g_stores->counts.diaryRows;
    state.counters["sessions"] = g_stores->counts.sessions;
    state.counters["workouts"] = g_stores->counts.workouts;
}

// The yardstick: the engine's own calls on the user store, the statements translated once.
class Raw {
public:
    Raw()
    {
        sqlite3_open_v2(UserDbPath.toUtf8().constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        RegisterSqlFunctions(m_db);
    }
    ~Raw() { sqlite3_close(m_db); }

    void Exec(const QString& dialect)
    {
        Walk(dialect, [](sqlite3_stmt*) {});
    }
    // Runs a statement and calls `row` for each row, every column read as a screen would.
    long Walk(const QString& dialect, const std::function<void(sqlite3_stmt*)>& row)
    {
        auto it = m_cache.find(dialect);
        if (it == m_cache.end()) it = m_cache.insert(dialect, TranslateToSqlite(dialect).toUtf8());
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(m_db, it->constData(), int(it->size()), &st, nullptr) != SQLITE_OK) {
            sqlite3_finalize(st);
            return -1;
        }
        long n = 0;
        while (sqlite3_step(st) == SQLITE_ROW) {
            const int cols = sqlite3_column_count(st);
            for (int c = 0; c < cols; ++c) benchmark::DoNotOptimize(sqlite3_column_text(st, c));
            row(st);
            ++n;
        }
        sqlite3_finalize(st);
        return n;
    }
    sqlite3* m_db = nullptr;

private:
    QHash<QString, QByteArray> m_cache;
};

QString D(const QDate& d) { return QLatin1Char('#') + SqlDate(d) + QLatin1Char('#'); }
QString Text(sqlite3_stmt* st, int c) { return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, c))); }

// The computation's statements, in the screen's order, on the yardstick.
void Reference(Raw& raw, const QString& id, const QDate& start, const QDate& end)
{
    const QString range = QStringLiteral(" and date between ") + D(start) + QStringLiteral(" and ") + D(end);
    const QString user = QStringLiteral(" where User_ID = '") + id + QLatin1Char('\'');
    sqlite3_exec(raw.m_db, "BEGIN", nullptr, nullptr, nullptr);
    // The nutrition tab: its rows (the Nutrients page is filled when it is shown).
    raw.Walk(QStringLiteral("select * from daily_nutrition") + user + range + QStringLiteral(" and meal_id <> 9999 order by date"),
             [](sqlite3_stmt*) {});
    // The day table.
    raw.Exec(QStringLiteral("delete * from tmpDate"));
    for (QDate d = start; d <= end; d = d.addDays(1))
        raw.Exec(QStringLiteral("insert into tmpDate (dateS, eComplete, sComplete) values (") + D(d) + QStringLiteral(", 2, 2)"));
    QList<QPair<QString, QString>> updates;
    raw.Walk(QStringLiteral("select date, feelwell, sleep, accomplish from wellness") + user + range + QStringLiteral(" order by date"),
             [&](sqlite3_stmt* st) {
                 updates.append({QStringLiteral("feelwell = -1, sleep =") + Text(st, 2) + QStringLiteral(", accomplish = 0"), Text(st, 0)});
             });
    auto read = [&](const QString& sql, const QString& column) {
        raw.Walk(sql, [&](sqlite3_stmt* st) { updates.append({column + QStringLiteral(" = ") + Text(st, 1), Text(st, 0)}); });
    };
    read(QStringLiteral("select date, bmr from WeighIn") + user + range, QStringLiteral("bmr"));
    const int bmrs = int(updates.size());
    for (const auto& u : updates)
        raw.Exec(QStringLiteral("update tmpDate set ") + u.first + QStringLiteral(" where dateS = #") + u.second.left(10) + QLatin1Char('#'));
    updates.clear();
    // The BMR walk: a lookup per weigh-in, an update per other day.
    auto lookup = [&](const QDate& d) {
        if (raw.Walk(QStringLiteral("select bmr from tmpdate where bmr <> null and dateS < ") + D(d) + QStringLiteral(" order by dateS desc"),
                     [](sqlite3_stmt*) {}) == 0)
            raw.Walk(QStringLiteral("select bmr from WeighIn where bmr <> null and date >= ") + D(d) + QStringLiteral(" order by date"),
                     [](sqlite3_stmt*) {});
    };
    raw.Walk(QStringLiteral("select bmr from tmpdate where bmr <> null and dateS = ") + D(end) + QStringLiteral(" order by dateS desc"),
             [](sqlite3_stmt*) {});
    lookup(end);
    QDate day = end;
    raw.Walk(QStringLiteral("select bmr from tmpdate order by dateS desc"), [&](sqlite3_stmt* st) {
        if (sqlite3_column_type(st, 0) == SQLITE_NULL)
            raw.Exec(QStringLiteral("update tmpDate set bmr = 1800 where dateS = ") + D(day));
        else
            lookup(day);
        day = day.addDays(-1);
    });
    Q_UNUSED(bmrs);
    read(QStringLiteral("select date, sum(calories) as calSum from daily_nutrition") + user + range +
             QStringLiteral(" and meal_id <> 9999 group by date"),
         QStringLiteral("calories"));
    for (const auto& u : updates)
        raw.Exec(QStringLiteral("update tmpDate set ") + u.first + QStringLiteral(" where dateS = #") + u.second.left(10) + QLatin1Char('#'));
    updates.clear();
    raw.Exec(QStringLiteral("update tmpDate set difference = iif(isnull(bmr), 0, bmr) - iif(isnull(calories), 0, calories)"));
    read(QStringLiteral("select date, water from daily_water where User_ID = ") + id + range, QStringLiteral("water"));
    for (const auto& u : updates)
        raw.Exec(QStringLiteral("update tmpDate set ") + u.first + QStringLiteral(" where dateS = #") + u.second.left(10) + QLatin1Char('#'));
    updates.clear();
    for (const bool strength : {false, true}) {
        const QString table = strength ? QStringLiteral(" from calendar") : QStringLiteral(" from daily_exercise");
        const QString kind = strength ? QStringLiteral(" and workoutType = 'strength'") : QString();
        QStringList days;
        raw.Walk(QStringLiteral("select date, sum(cals) as calSum, avg(Intensity) as intAvg") +
                     (strength ? QStringLiteral(", avg(complete) as compAvg") : QString()) + table + user + range + kind +
                     QStringLiteral(" group by date order by date"),
                 [&](sqlite3_stmt* st) { days << Text(st, 0).left(10); });
        raw.Walk(QStringLiteral("select date, duration") + table + user + range + kind + QStringLiteral(" order by date"),
                 [&](sqlite3_stmt* st) { benchmark::DoNotOptimize(TimeToHours(Text(st, 1))); });
        for (const QString& d : days)
            raw.Exec(QStringLiteral("update tmpDate set ") + (strength ? QStringLiteral("sDuration = 1, sCals = 300, sIntensity = 5, scomplete = -1")
                                                                         : QStringLiteral("eDuration = 1, eCals = 300, eIntensity = 5")) +
                     QStringLiteral(" where dateS = #") + d + QLatin1Char('#'));
    }
    raw.Walk(QStringLiteral("select * from tmpDate where feelwell <> null or sleep <> null or accomplish <> null or bmr <> null or "
                            "calories <> null or water <> null or eDuration <> null or eCals <> null or eIntensity <> null or "
                            "eComplete <> null or sDuration <> null or sCals <> null or sIntensity <> null or sComplete <> null "
                            "order by dateS"),
             [&](sqlite3_stmt*) { raw.Walk(QStringLiteral("select * from summary_display where display = true"), [](sqlite3_stmt*) {}); });
    sqlite3_exec(raw.m_db, "COMMIT", nullptr, nullptr, nullptr);
    // The item tabs and the strip.
    raw.Walk(QStringLiteral("select * from daily_exercise where User_ID='") + id + QLatin1Char('\'') + range +
                 QStringLiteral(" order by date, name"),
             [](sqlite3_stmt*) {});
    QSet<QString> keysRead;
    raw.Walk(QStringLiteral("select * from calendar where User_ID='") + id + QLatin1Char('\'') + range +
                 QStringLiteral(" and WorkoutType = 'Strength' order by date, name"),
             [&](sqlite3_stmt* st) {
                 // Once per key, as the screen reads it.
                 const QString key = Text(st, 2);
                 if (keysRead.contains(key))
                     return;
                 keysRead.insert(key);
                 raw.Walk(QStringLiteral("select sum(reps) as sumReps, count(sets) as sumSets from daily_weights where key = '") +
                              key + QLatin1Char('\''),
                          [](sqlite3_stmt*) {});
             });
    const QString tmpRange = QStringLiteral(" from tmpDate where dateS between ") + D(start) + QStringLiteral(" and ") + D(end);
    raw.Walk(QStringLiteral("select sum(bmr) as totalBMR") + tmpRange, [](sqlite3_stmt*) {});
    raw.Walk(QStringLiteral("select avg(bmr) as avgBMR") + tmpRange, [](sqlite3_stmt*) {});
    raw.Walk(QStringLiteral("select * from Wellness where User_ID='") + id + QLatin1Char('\'') + range + QStringLiteral(" order by date"),
             [](sqlite3_stmt*) {});
    for (int type = 0; type < 2; ++type)
        raw.Walk(QStringLiteral("select * from wellness_readings where User_ID=") + id + range +
                     QStringLiteral(" and type = %1 order by date").arg(type),
                 [](sqlite3_stmt*) {});
    raw.Walk(QStringLiteral("select * from User_Info where User_ID=") + id, [](sqlite3_stmt*) {});
}

void RunReference(benchmark::State& state, int days)
{
    Raw raw;
    for (auto _ : state) Reference(raw, g_stores->id, kLast.addDays(1 - days), kLast);
}

void BM_DailySummaryYear(benchmark::State& state) { RunScreen(state, 365); }
void BM_ReferenceYear(benchmark::State& state) { RunReference(state, 365); }
void BM_DailySummaryTenYears(benchmark::State& state) { RunScreen(state, int(kLast.addYears(-10).daysTo(kLast))); }
void BM_ReferenceTenYears(benchmark::State& state) { RunReference(state, int(kLast.addYears(-10).daysTo(kLast))); }

BENCHMARK(BM_DailySummaryYear)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_ReferenceYear)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_DailySummaryTenYears)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_ReferenceTenYears)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ui::CurrentHooks().msgBox = [](const QString&, int style, const QString&) { return (style & 7) == vbYesNo ? int(vbYes) : int(vbOK); };
    Stores stores;
    g_stores = &stores;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    g_stores = nullptr;
    return 0;
}
