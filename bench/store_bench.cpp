// The store against the raw engine (SQLite's own calls) doing the same work: walking 10,000 rows (the same columns
// read into the same types), adding 10,000 rows (each committed on its own, as the screens'
// inserts are), and creating both store files with their seed.
#include <benchmark/benchmark.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>
#include <vector>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/storefiles.h"
#include "core/store/testhooks.h"

namespace {

constexpr int kRows = 10000;

const char* kSchema = R"(
CREATE TABLE walk ("id" INTEGER PRIMARY KEY AUTOINCREMENT, "name" TEXT(50) COLLATE NOCASE, "amount" DOUBLE,
                   "visits" LONG, "day" DATETIME, "flag" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0);
CREATE TABLE added ("id" INTEGER PRIMARY KEY AUTOINCREMENT, "name" TEXT(50) COLLATE NOCASE, "amount" DOUBLE,
                    "visits" LONG, "day" DATETIME, "flag" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0);
)";

struct Fixture {
    QTemporaryDir dir;
    QString path;
    Connection conn;
    std::unique_ptr<storetest::RawStore> raw;
    std::vector<QString> names;
    std::vector<QDate> days;

    Fixture()
    {
        path = dir.filePath(QStringLiteral("bench.mdb"));
        QString seed = QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                                      "INSERT INTO walk (name, amount, visits, day, flag) SELECT 'Food number ' || i, "
                                      "i * 1.25, i % 97, date('2020-01-01', '+' || (i % 2000) || ' days'), "
                                      "-(i % 2) FROM n;").arg(kRows);
        Connection::CreateStore(path, QString::fromUtf8(kSchema), seed, StorePassword);
        conn.Open(ConnectionString(path));
        raw = std::make_unique<storetest::RawStore>(path);
        for (int i = 0; i < kRows; ++i) {
            names.push_back(QStringLiteral("Added food %1").arg(i));
            days.push_back(QDate(2024, 1, 1).addDays(i % 700));
        }
    }
    void EmptyAdded() { raw->Exec("DELETE FROM added"); }
};

Fixture& F()
{
    static Fixture f;
    return f;
}

void BM_WalkRecordset(benchmark::State& state)
{
    Fixture& f = F();
    Recordset rs(&f.conn);
    for (auto _ : state) {
        rs.Open(QStringLiteral("select name, amount, visits, day, flag from walk"));
        long n = 0;
        while (!rs.Eof()) {
            QString name = rs(QStringLiteral("name")).toString();
            double amount = rs(QStringLiteral("amount")).toDouble();
            qlonglong visits = rs(QStringLiteral("visits")).toLongLong();
            QDate day = rs(QStringLiteral("day")).toDate();
            bool flag = rs(QStringLiteral("flag")).toBool();
            benchmark::DoNotOptimize(name);
            benchmark::DoNotOptimize(amount);
            benchmark::DoNotOptimize(visits);
            benchmark::DoNotOptimize(day);
            benchmark::DoNotOptimize(flag);
            ++n;
            rs.MoveNext();
        }
        rs.Close();
        if (n != kRows) state.SkipWithError("wrong row count");
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_WalkRaw(benchmark::State& state)
{
    Fixture& f = F();
    for (auto _ : state) {
        const long n = f.raw->Walk();
        if (n != kRows) state.SkipWithError("wrong row count");
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_AddRecordset(benchmark::State& state)
{
    Fixture& f = F();
    Recordset rs(&f.conn);
    for (auto _ : state) {
        state.PauseTiming();
        f.EmptyAdded();
        state.ResumeTiming();
        rs.Open(QStringLiteral("added"));
        for (int i = 0; i < kRows; ++i) {
            rs.AddNew();
            rs.SetField(QStringLiteral("name"), f.names[size_t(i)]);
            rs.SetField(QStringLiteral("amount"), i * 1.25);
            rs.SetField(QStringLiteral("visits"), i % 97);
            rs.SetField(QStringLiteral("day"), f.days[size_t(i)]);
            rs.SetField(QStringLiteral("flag"), (i % 2) == 1);
            rs.Update();
        }
        rs.Close();
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_AddRaw(benchmark::State& state)
{
    Fixture& f = F();
    for (auto _ : state) {
        state.PauseTiming();
        f.EmptyAdded();
        state.ResumeTiming();
        f.raw->Add(f.names, f.days);
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_CreateBothStores(benchmark::State& state)
{
    QTemporaryDir dir;
    const QString lib = dir.filePath(QStringLiteral("orvantis.mdb"));
    const QString user = dir.filePath(QStringLiteral("orvantisuser.mdb"));
    for (auto _ : state) {
        state.PauseTiming();
        for (const QString& p : {lib, user}) QFile::remove(p);
        state.ResumeTiming();
        CreateStoreFiles(lib, user);
    }
}

// On a shared machine the least of several runs is the fairest figure: run with
// --benchmark_repetitions=10 and compare the "min" rows.
double Least(const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); }

BENCHMARK(BM_WalkRecordset)->Unit(benchmark::kMillisecond)->ComputeStatistics("min", Least);
BENCHMARK(BM_WalkRaw)->Unit(benchmark::kMillisecond)->ComputeStatistics("min", Least);
BENCHMARK(BM_AddRecordset)->Unit(benchmark::kMillisecond)->Iterations(3)->ComputeStatistics("min", Least);
BENCHMARK(BM_AddRaw)->Unit(benchmark::kMillisecond)->Iterations(3)->ComputeStatistics("min", Least);
BENCHMARK(BM_CreateBothStores)->Unit(benchmark::kMillisecond)->Iterations(3)->ComputeStatistics("min", Least);

}  // namespace

BENCHMARK_MAIN();
