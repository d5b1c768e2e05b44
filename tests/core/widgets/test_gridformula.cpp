// The grid's formulas without the grid: compiled once, recomputed by dependency, loops and
// unreadable formulas kept to their own cells and their readers.
#include <gtest/gtest.h>
#include <QHash>
#include <cmath>

#include "core/widgets/GridFormula.h"

namespace {

// A sheet over plain values; cells never given a value read 0.
struct Values {
    QHash<FormulaSheet::Key, double> cells;
    FormulaSheet sheet{[this](int r, int c) { return cells.value(FormulaSheet::KeyOf(r, c)); }};

    void Set(int r, int c, double v)
    {
        cells[FormulaSheet::KeyOf(r, c)] = v;
        sheet.Changed(r, c);
    }
};

int IndexOf(const QVector<FormulaSheet::Key>& order, int r, int c)
{
    return order.indexOf(FormulaSheet::KeyOf(r, c));
}

}  // namespace

TEST(FormulaSheet, DependencyOrderAndOneEvaluationPerChange)
{
    Values v;
    v.Set(1, 1, 3);
    // Set readers before what they read: the order comes from the references, not the calls.
    v.sheet.SetFormula(1, 5, "D1 + Z9");
    v.sheet.SetFormula(1, 4, "=B1 + C1");
    v.sheet.SetFormula(1, 3, "A1 * 2");
    v.sheet.SetFormula(1, 2, "A1 + 1");
    v.sheet.SetFormula(2, 2, "sum(A1:A3) + AVG(A1:A3)");
    v.sheet.Recompute();
    EXPECT_DOUBLE_EQ(v.sheet.Result(1, 4), 10);
    EXPECT_DOUBLE_EQ(v.sheet.Result(1, 5), 10);
    EXPECT_DOUBLE_EQ(v.sheet.Result(2, 2), 4);
    EXPECT_EQ(v.sheet.Compilations(), 5);

    // The diamond A1 -> B1, C1 -> D1 -> E1: D1 once, after both of its inputs.
    const int before = v.sheet.Evaluations();
    v.Set(1, 1, 10);
    const QVector<FormulaSheet::Key> order = v.sheet.Recompute();
    ASSERT_EQ(order.size(), 5);
    EXPECT_EQ(v.sheet.Evaluations() - before, 5);
    EXPECT_LT(IndexOf(order, 1, 2), IndexOf(order, 1, 4));
    EXPECT_LT(IndexOf(order, 1, 3), IndexOf(order, 1, 4));
    EXPECT_LT(IndexOf(order, 1, 4), IndexOf(order, 1, 5));
    EXPECT_DOUBLE_EQ(v.sheet.Result(1, 5), 31);
    EXPECT_DOUBLE_EQ(v.sheet.Result(2, 2), 10 + 10.0 / 3);

    // A cell inside a range is read; a cell nobody reads recomputes nothing.
    v.Set(3, 1, 5);
    EXPECT_EQ(v.sheet.Recompute(), QVector<FormulaSheet::Key>{FormulaSheet::KeyOf(2, 2)});
    v.Set(7, 7, 1);
    EXPECT_FALSE(v.sheet.Pending());
    EXPECT_TRUE(v.sheet.Recompute().isEmpty());
    EXPECT_EQ(v.sheet.Compilations(), 5);       // values change, formulas are not read again

    // A long chain: each row adds 1 to the row above, every row evaluated once per edit.
    Values chain;
    for (int r = 2; r <= 300; ++r)
        chain.sheet.SetFormula(r, 1, QStringLiteral("A%1+1").arg(r - 1));
    chain.sheet.Recompute();
    const int n = chain.sheet.Evaluations();
    chain.Set(1, 1, 1000);
    EXPECT_EQ(chain.sheet.Recompute().size(), 299);
    EXPECT_EQ(chain.sheet.Evaluations() - n, 299);
    EXPECT_DOUBLE_EQ(chain.sheet.Result(300, 1), 1299);

    // Removing a formula: its readers read the cell's own value again.
    v.cells[FormulaSheet::KeyOf(1, 4)] = 100;
    v.sheet.Remove(1, 4);
    v.sheet.Recompute();
    EXPECT_DOUBLE_EQ(v.sheet.Result(1, 5), 100);
}

TEST(FormulaSheet, ErrorsLoopsAndDivisionByZero)
{
    Values v;
    v.Set(1, 1, 2);
    v.sheet.SetFormula(1, 2, "A1 +");              // cannot be read
    v.sheet.SetFormula(2, 2, "B1 + 5");            // reads it as 0
    v.sheet.SetFormula(3, 2, "foo + 1");           // a name that is no cell
    v.sheet.SetFormula(4, 2, "A1 / 0");
    v.sheet.SetFormula(5, 2, "B4 + 1");            // reads the infinite cell as 0
    v.sheet.Recompute();
    EXPECT_EQ(v.sheet.StateOf(1, 2), FormulaSheet::Error);
    EXPECT_FALSE(v.sheet.ErrorText(1, 2).isEmpty());
    EXPECT_EQ(v.sheet.StateOf(2, 2), FormulaSheet::Ok);
    EXPECT_DOUBLE_EQ(v.sheet.Result(2, 2), 5);
    EXPECT_EQ(v.sheet.StateOf(3, 2), FormulaSheet::Error);
    EXPECT_TRUE(std::isinf(v.sheet.Result(4, 2)));
    EXPECT_DOUBLE_EQ(v.sheet.Value(4, 2), 0);
    EXPECT_DOUBLE_EQ(v.sheet.Result(5, 2), 1);

    // A loop of one, a loop of two and a reader of a loop; a cell beside them stays right.
    v.sheet.SetFormula(1, 3, "C1 + 1");
    v.sheet.SetFormula(2, 3, "D2 * 2");
    v.sheet.SetFormula(2, 4, "C2 - 1");
    v.sheet.SetFormula(3, 3, "C2 + A1");
    v.sheet.SetFormula(4, 3, "A1 * 3");
    v.sheet.Recompute();
    EXPECT_EQ(v.sheet.StateOf(1, 3), FormulaSheet::Circular);
    EXPECT_EQ(v.sheet.StateOf(2, 3), FormulaSheet::Circular);
    EXPECT_EQ(v.sheet.StateOf(2, 4), FormulaSheet::Circular);
    EXPECT_EQ(v.sheet.StateOf(3, 3), FormulaSheet::Circular);
    EXPECT_DOUBLE_EQ(v.sheet.Value(3, 3), 0);
    EXPECT_DOUBLE_EQ(v.sheet.Result(4, 3), 6);
    // A change upstream of a loop keeps its reader an error; breaking the loop mends all.
    v.Set(1, 1, 4);
    v.sheet.Recompute();
    EXPECT_EQ(v.sheet.StateOf(3, 3), FormulaSheet::Circular);
    v.sheet.SetFormula(2, 4, "A1 - 1");
    v.sheet.Recompute();
    EXPECT_EQ(v.sheet.StateOf(2, 3), FormulaSheet::Ok);
    EXPECT_DOUBLE_EQ(v.sheet.Result(2, 3), 6);
    EXPECT_DOUBLE_EQ(v.sheet.Result(3, 3), 10);

    // The one-shot evaluator and references.
    double r = 0;
    EXPECT_TRUE(FormulaSheet::Evaluate("max(A1:B2) - min(A1, B2)", [](int row, int col) { return row * 10.0 + col; }, &r));
    EXPECT_DOUBLE_EQ(r, 22 - 11);
    QString err;
    EXPECT_FALSE(FormulaSheet::Evaluate("sum(A1:Z9999)", [](int, int) { return 1.0; }, &r, &err));
    EXPECT_EQ(err, "Range too large");
    int row = 0, col = 0;
    EXPECT_TRUE(FormulaSheet::ParseReference("$c$7", &row, &col));
    EXPECT_EQ(row, 7);
    EXPECT_EQ(col, 3);
    EXPECT_FALSE(FormulaSheet::ParseReference("ABC1", &row, &col));
    EXPECT_FALSE(FormulaSheet::ParseReference("B", &row, &col));
    EXPECT_FALSE(FormulaSheet::ParseReference("B1x", &row, &col));
}
