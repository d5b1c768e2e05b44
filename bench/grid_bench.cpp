// The formula grid's speed: a column where each row adds 1 to the row above, filled and then
// edited in its first cell, and a form of chained formulas loaded and edited.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "core/widgets/Grid.h"

namespace {

const int kChainRows = 200;

void FillChain(Grid& g, bool batched)
{
    if (batched)
        g.BeginUpdate();
    g.SetMaxCols(1);
    g.SetMaxRows(kChainRows);
    g.SetText(1, 1, QStringLiteral("1"));
    for (int r = 2; r <= kChainRows; ++r)
        g.SetFormula(r, 1, QStringLiteral("A%1+1").arg(r - 1));
    if (batched)
        g.EndUpdate();
}

void BM_ChainFill(benchmark::State& state)
{
    const bool batched = state.range(0) != 0;
    for (auto _ : state) {
        Grid g;
        FillChain(g, batched);
        benchmark::DoNotOptimize(g.Value(kChainRows, 1));
    }
    state.SetLabel(batched ? "batched" : "cell by cell");
}
BENCHMARK(BM_ChainFill)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_ChainEditFirstCell(benchmark::State& state)
{
    Grid g;
    FillChain(g, true);
    int v = 0;
    for (auto _ : state) {
        g.SetText(1, 1, QString::number(++v));
        benchmark::DoNotOptimize(g.Value(kChainRows, 1));
    }
}
BENCHMARK(BM_ChainEditFirstCell)->Unit(benchmark::kMillisecond);

// A form of 15 formulas, each reading the one before and some of the 5 entered values.
void LoadForm(Grid& g)
{
    g.SetMaxRows(15);
    g.SetMaxCols(3);
    for (int r = 1; r <= 5; ++r)
        g.SetText(r, 2, QString::number(r * 10));
    g.SetFormula(1, 3, QStringLiteral("B1*2"));
    for (int r = 2; r <= 15; ++r)
        g.SetFormula(r, 3, QStringLiteral("C%1 + B%2 / 2 + max(B1:B5) - min(B1:B5)").arg(r - 1).arg((r - 1) % 5 + 1));
}

void BM_FormLoad(benchmark::State& state)
{
    for (auto _ : state) {
        Grid g;
        LoadForm(g);
        benchmark::DoNotOptimize(g.Value(15, 3));
    }
}
BENCHMARK(BM_FormLoad)->Unit(benchmark::kMillisecond);

void BM_FormEdit(benchmark::State& state)
{
    Grid g;
    LoadForm(g);
    int v = 0;
    for (auto _ : state) {
        g.SetText(1, 2, QString::number(++v % 100));
        benchmark::DoNotOptimize(g.Value(15, 3));
    }
}
BENCHMARK(BM_FormEdit)->Unit(benchmark::kMillisecond);

// A year of a totals list: 1,825 item rows of 35 columns sized at once, then every cell
// written, as the Nutrients tab does.
void BM_FillLargeList(benchmark::State& state)
{
    const int rows = 1825, cols = 35;
    const QString text = QStringLiteral("12.5");
    for (auto _ : state) {
        Grid g;
        g.SetMaxCols(cols);
        g.SetMaxRows(4);
        g.SetMaxRows(rows + 4);
        for (int r = 5; r <= rows + 4; ++r)
            for (int c = 1; c <= cols; ++c)
                g.SetText(r, c, text);
        benchmark::DoNotOptimize(g.Text(rows, cols));
    }
}
BENCHMARK(BM_FillLargeList)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
