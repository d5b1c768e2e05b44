// The food diary's speed: adding a food to a meal and redrawing the tab (list, grid, meter,
// pies), on a diary of a year with a full day of meals.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"
#include "nutrition/frmNutrition.h"

namespace {

const QDate kDay(2026, 11, 20);

struct Stores {
    QTemporaryDir dir;
    QString id;
    QString food;

    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("User_Info"));
        rs.AddNew();
        rs.SetField(QStringLiteral("Name"), QStringLiteral("Diary"));
        rs.SetField(QStringLiteral("sex"), QStringLiteral("F"));
        rs.SetField(QStringLiteral("TargetCals"), 2000);
        rs.Update();
        id = Str(rs.Field(QStringLiteral("User_ID")));
        rs.Close();
        CurrentUserID = id;

        UserConn.BeginTrans();
        const char* meals[] = {"Breakfast", "Lunch", "Dinner", "Snack"};
        for (int m = 0; m < 4; ++m)
            UserConn.Execute(QStringLiteral("insert into setup_meals (User_ID, Meal_ID, meal, [Position], Show) values (%1, %2, '%3', %2, true)")
                                 .arg(id)
                                 .arg(m + 1)
                                 .arg(QString::fromLatin1(meals[m])));
        UserConn.Execute(QStringLiteral("insert into WeighIn (User_ID, [Date], weight, BMR) values ('%1', #2026-01-01#, 150, 1900)").arg(id));

        // A year of diary, five foods a meal, copied from the library as the view does.
        Recordset foods(&LibraryConn);
        foods.Open(QStringLiteral("select top 40 * from foods where group_id <> 65 order by food_id"));
        QList<QList<QVariant>> rows;
        while (!foods.Eof()) {
            QList<QVariant> r;
            for (int p = 0; p < foods.FieldCount(); ++p) r << foods.Field(p);
            rows << r;
            foods.MoveNext();
        }
        foods.Close();
        food = rows.last().value(0).toString();
        Recordset diary(&UserConn);
        diary.Open(QStringLiteral("daily_nutrition"));
        int n = 0;
        for (QDate d = kDay.addDays(-365); d <= kDay; d = d.addDays(1))
            for (int meal = 1; meal <= 4; ++meal)
                for (int k = 0; k < 5; ++k, ++n) {
                    const QList<QVariant>& r = rows[n % (rows.size() - 1)];
                    diary.AddNew();
                    diary.SetField(QStringLiteral("User_ID"), id);
                    diary.SetField(QStringLiteral("Date"), d);
                    diary.SetField(QStringLiteral("Meal_ID"), meal);
                    diary.SetField(QStringLiteral("Type"), QString());
                    diary.SetField(QStringLiteral("Food_ID"), r[0]);
                    for (int p = 5; p < diary.FieldCount() && p - 3 < r.size(); ++p) diary.SetField(p, r[p - 3]);
                    diary.Update();
                }
        diary.Close();
        UserConn.CommitTrans();
        SetCalendarDateProvider([] { return kDay; });
        // Change Amount closes at once: what is measured is the view's own work.
        ui::CurrentHooks().showModal = [](QDialog*) { return 0; };
        ui::CurrentHooks().msgBox = [](const QString&, int, const QString&) { return int(vbOK); };
    }
};

Stores& TheStores()
{
    static Stores s;
    return s;
}

void BM_AddFoodAndRedraw(benchmark::State& state)
{
    Stores& s = TheStores();
    frmNutrition f;
    f.Tab1->setCurrentIndex(0);
    // The food to add, chosen in the chooser as a person would.
    auto* item = new QTreeWidgetItem(f.list1, {QStringLiteral("Benchmark food"), QStringLiteral("1 g")});
    item->setData(0, Qt::UserRole, s.food);
    for (auto _ : state) {
        f.list1->setCurrentItem(item);
        f.on_cmdAdd_clicked();          // copy, write, Change Amount, reload the tab
        state.PauseTiming();
        UserConn.Execute(QStringLiteral("delete * from daily_nutrition where User_ID='") + s.id +
                         QStringLiteral("' and date=#2026-11-20# and meal_id=1 and food_id=") + s.food);
        f.clearform();
        f.LoadTodayFoods();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_AddFoodAndRedraw)->Unit(benchmark::kMillisecond);

void BM_SwitchTabs(benchmark::State& state)
{
    TheStores();
    frmNutrition f;
    int i = 0;
    for (auto _ : state) {
        f.Tab1->setCurrentIndex(i % f.Tab1->count());   // a meal, or the whole day
        ++i;
    }
}
BENCHMARK(BM_SwitchTabs)->Unit(benchmark::kMillisecond);

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
