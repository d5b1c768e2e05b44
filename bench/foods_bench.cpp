// The Foods Library's speed on the whole seeded library: a two-word search as a statement
// (open and walk), the same search through the view (statement, list lines), listing a large
// category, showing a food, and creating the library store with its seed.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/storefiles.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "nutrition/frmFoods.h"

namespace {

struct Stores {
    QTemporaryDir dir;
    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        ui::CurrentHooks().showModal = [](QDialog*) { return 0; };
        ui::CurrentHooks().msgBox = [](const QString&, int, const QString&) { return int(vbOK); };
    }
};

Stores& TheStores()
{
    static Stores s;
    return s;
}

const QString kSearch = QStringLiteral("select * from foods a, food_groups b where name like '%banana%' and name "
                                       "like '%raw%' and a.group_id = b.group_id and a.group_id <> 65 order by a.name");

void BM_SearchStatement(benchmark::State& state)
{
    TheStores();
    long lines = 0;
    for (auto _ : state) {
        LibraryRS.Open(kSearch, &LibraryConn);
        lines = 0;
        while (!LibraryRS.Eof()) {
            if (Val(LibraryRS.Field(1)) != 65) {
                benchmark::DoNotOptimize(Str(LibraryRS.Field("Name")));
                benchmark::DoNotOptimize(Str(LibraryRS.Field("Group")));
                ++lines;
            }
            LibraryRS.MoveNext();
        }
        LibraryRS.Close();
    }
    state.counters["lines"] = double(lines);
}
BENCHMARK(BM_SearchStatement)->Unit(benchmark::kMillisecond);

void BM_SearchInTheView(benchmark::State& state)
{
    TheStores();
    frmFoods f;
    f.txtSearch->setText(QString::fromLatin1(state.range(0) ? "chicken breast" : "banana raw"));
    for (auto _ : state)
        f.on_cmdSearch_clicked();
    state.counters["lines"] = double(f.lstFoods->topLevelItemCount());
}
BENCHMARK(BM_SearchInTheView)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_ListLargestCategory(benchmark::State& state)
{
    TheStores();
    frmFoods f;
    const int i = f.cboGroups->findText(QStringLiteral("Vegetables and Vegetable Products"));
    for (auto _ : state) {
        f.cboGroups->setCurrentIndex(-1);
        f.cboGroups->setCurrentIndex(i);
    }
    state.counters["lines"] = double(f.lstFoods->topLevelItemCount());
}
BENCHMARK(BM_ListLargestCategory)->Unit(benchmark::kMillisecond);

void BM_ShowFood(benchmark::State& state)
{
    TheStores();
    frmFoods f;
    f.txtSearch->setText(QStringLiteral("banana"));
    f.on_cmdSearch_clicked();
    const int n = f.lstFoods->topLevelItemCount();
    int k = 0;
    for (auto _ : state) {
        f.lstFoods->setCurrentItem(f.lstFoods->topLevelItem(k++ % n));
    }
}
BENCHMARK(BM_ShowFood)->Unit(benchmark::kMillisecond);

void BM_CreateLibraryStore(benchmark::State& state)
{
    QTemporaryDir dir;
    int n = 0;
    for (auto _ : state) {
        const QString path = QDir(dir.path()).filePath(QStringLiteral("lib%1.mdb").arg(n++));
        CreateStoreFile(path, StoreKind::Library);
    }
}
BENCHMARK(BM_CreateLibraryStore)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    regional::SetLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
