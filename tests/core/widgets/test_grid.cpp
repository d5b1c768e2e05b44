// The shared grid: formulas over A1 references, typed cells and locks, text and Excel export.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <cmath>

#include "core/widgets/Grid.h"
#include "core/widgets/GridFormula.h"

namespace {

// A 4 x 3 grid of numbers: column B holds 1, 2, 3 in rows 1 to 3.
void FillNumbers(Grid& g)
{
    g.SetMaxRows(4);
    g.SetMaxCols(3);
    g.SetColumnType(2, Grid::TypeNumber);
    g.SetText(1, 2, "1");
    g.SetText(2, 2, "2");
    g.SetText(3, 2, "3");
}

double Eval(const QString& f, QString* err = nullptr)
{
    double v = NAN;
    const bool ok = Grid::Evaluate(f, [](int r, int c) { return r * 10.0 + c; }, &v, err);
    return ok ? v : NAN;
}

}  // namespace

TEST(GridFormula, ReferencesOperatorsAndFunctions)
{
    // Cell (r, c) is worth 10r + c: B1 = 12, C3 = 33, A2 = 21.
    EXPECT_DOUBLE_EQ(Eval("B1"), 12);
    EXPECT_DOUBLE_EQ(Eval("=B1+C3"), 45);
    EXPECT_DOUBLE_EQ(Eval("(B1 + 8) * 2 / 4 - 1"), 9);
    EXPECT_DOUBLE_EQ(Eval("b1*2"), 24);                       // lower-case reference
    EXPECT_DOUBLE_EQ(Eval("$B$1"), 12);                       // absolute form
    EXPECT_DOUBLE_EQ(Eval("SUM(B1:B3)"), 12 + 22 + 32);       // range, upper-case function
    EXPECT_DOUBLE_EQ(Eval("avg(B1:B3)"), 22);
    EXPECT_DOUBLE_EQ(Eval("Min(B3:B1)"), 12);                 // reversed range
    EXPECT_DOUBLE_EQ(Eval("max(A1:B2)"), 22);                 // a block
    EXPECT_DOUBLE_EQ(Eval("sum(B1:B2, C1) + 1"), 12 + 22 + 13 + 1);
    EXPECT_DOUBLE_EQ(Eval("AA1"), 10 + 27);                   // two-letter column

    int r = 0, c = 0;
    EXPECT_TRUE(Grid::ParseReference("AB12", &r, &c));
    EXPECT_EQ(r, 12);
    EXPECT_EQ(c, 28);
    EXPECT_FALSE(Grid::ParseReference("B0", &r, &c));
    EXPECT_FALSE(Grid::ParseReference("12", &r, &c));
    EXPECT_EQ(Grid::ColumnLetters(1), "A");
    EXPECT_EQ(Grid::ColumnLetters(28), "AB");

    QString err;
    EXPECT_TRUE(std::isnan(Eval("B1 +* 2", &err)));
    EXPECT_FALSE(err.isEmpty());
    EXPECT_TRUE(std::isnan(Eval("foo + 1")));                 // a name that is no cell
    double v = 0;
    EXPECT_TRUE(Grid::Evaluate("B1/0", [](int, int) { return 1.0; }, &v));
    EXPECT_TRUE(std::isinf(v));
}

TEST(GridFormula, CellsRecomputeOnEveryChange)
{
    Grid g;
    FillNumbers(g);
    g.SetFormula(4, 2, "=sum(B1:B3)");
    g.SetFormula(1, 3, "B4*2");                 // a formula over a formula
    g.SetFormula(2, 3, "B1/B2");
    EXPECT_EQ(g.Text(4, 2), "6");
    EXPECT_EQ(g.Text(1, 3), "12");
    EXPECT_EQ(g.Text(2, 3), "0.5");
    EXPECT_EQ(g.Formula(4, 2), "sum(B1:B3)");   // kept without "="
    EXPECT_EQ(g.GetCellType(4, 2), Grid::TypeFormula);
    EXPECT_EQ(static_cast<QTableWidget&>(g).item(3, 1)->toolTip(), "Formula =sum(B1:B3)");

    g.SetText(3, 2, "10");
    EXPECT_EQ(g.Text(4, 2), "13");
    EXPECT_EQ(g.Text(1, 3), "26");
    EXPECT_DOUBLE_EQ(g.Value(1, 3), 26);

    // Division by zero shows nothing and counts 0; a bad formula shows #ERR.
    g.SetText(2, 2, "0");
    EXPECT_EQ(g.Text(2, 3), "");
    EXPECT_DOUBLE_EQ(g.Value(2, 3), 0);
    g.SetFormula(3, 3, "B1 +");
    EXPECT_EQ(g.Text(3, 3), "#ERR");

    // Circular references are errors, not hangs, and so is what reads them.
    g.SetFormula(4, 3, "C4+1");
    EXPECT_EQ(g.Text(4, 3), "#ERR");
    EXPECT_DOUBLE_EQ(g.Value(4, 3), 0);
    g.SetFormula(3, 3, "C4*2");
    EXPECT_EQ(g.Text(3, 3), "#ERR");

    // Formula cells are read-only and cannot take text; clearing the formula frees the cell.
    EXPECT_TRUE(g.IsLocked(4, 2));
    g.SetText(4, 2, "99");
    EXPECT_EQ(g.Text(4, 2), "11");
    g.SetFormula(4, 2, "");
    EXPECT_FALSE(g.HasFormula(4, 2));
    g.SetText(4, 2, "99");
    EXPECT_EQ(g.Text(4, 2), "99");
    EXPECT_EQ(g.Text(1, 3), "198");
}

TEST(GridFormula, FillInOneBatchEditOnlyWhatDepends)
{
    // A column where each row adds 1 to the row above, filled as a screen fills it.
    const int rows = 200;
    Grid g;
    g.SetMaxCols(2);
    g.BeginUpdate();
    g.SetMaxRows(rows);
    for (int r = rows; r >= 2; --r)   // the worst order: readers before what they read
        g.SetFormula(r, 1, QStringLiteral("A%1+1").arg(r - 1));
    g.SetText(1, 1, "5");
    g.SetFormula(1, 2, "sum(A1:A3)");
    EXPECT_EQ(g.Text(rows, 1), "");                          // nothing computed while filling
    g.EndUpdate();
    EXPECT_EQ(g.Text(rows, 1), "204");
    EXPECT_EQ(g.Text(1, 2), "18");
    const FormulaSheet& f = g.Formulas();
    EXPECT_EQ(f.Evaluations(), rows);                        // each formula once
    EXPECT_EQ(f.Compilations(), rows);

    // An edit of the first cell recomputes its readers once each; an edit elsewhere nothing.
    g.SetText(1, 1, "10");
    EXPECT_EQ(g.Text(rows, 1), "209");
    EXPECT_DOUBLE_EQ(g.Value(100, 1), 109);
    EXPECT_EQ(f.Evaluations(), 2 * rows);
    g.SetText(5, 2, "1");
    EXPECT_EQ(f.Evaluations(), 2 * rows);
    EXPECT_EQ(f.Compilations(), rows);

    // Decimals set later show at once; inserted and deleted rows keep formulas as written.
    g.SetDecimals(2, 1);
    EXPECT_EQ(g.Text(1, 2), "33.0");
    g.InsertRow(1);
    EXPECT_EQ(g.Formula(2, 2), "sum(A1:A3)");
    EXPECT_EQ(g.Text(2, 2), "11.0");                          // A1 empty, A2 = 10, A3 = A1+1
    g.DeleteRow(1);
    EXPECT_EQ(g.Text(1, 2), "33.0");
    EXPECT_EQ(g.Text(rows, 1), "209");
    g.SetMaxRows(2);                                          // A3 gone: it reads as empty
    EXPECT_EQ(g.Text(1, 2), "21.0");
}

TEST(GridKeys, TabLeavesTheGridArrowsMoveInside)
{
    QWidget w;
    auto* lay = new QVBoxLayout(&w);
    auto* before = new QLineEdit(&w);
    auto* g = new Grid(&w);
    auto* after = new QLineEdit(&w);
    lay->addWidget(before);
    lay->addWidget(g);
    lay->addWidget(after);
    g->SetMaxRows(3);
    g->SetMaxCols(3);
    w.show();
    QApplication::setActiveWindow(&w);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w));

    g->setFocus();
    g->SetActiveCell(1, 1);
    QTest::keyClick(g, Qt::Key_Down);
    QTest::keyClick(g, Qt::Key_Right);
    EXPECT_EQ(g->ActiveRow(), 2);
    EXPECT_EQ(g->ActiveCol(), 2);
    EXPECT_FALSE(g->TabMovesBetweenCells());
    QTest::keyClick(g, Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    g->setFocus();
    QTest::keyClick(g, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before->hasFocus());

    // A grid filled in cell after cell may keep Tab for its cells.
    g->SetTabMovesBetweenCells(true);
    g->setFocus();
    QTest::keyClick(g, Qt::Key_Tab);
    EXPECT_TRUE(g->hasFocus());
    EXPECT_EQ(g->ActiveCol(), 3);
}

TEST(GridCells, TypesHeadersLocksAndEdits)
{
    Grid g;
    g.SetMaxRows(3);
    g.SetMaxCols(4);
    g.SetColumnHeaders({"Nutrient", "Amount", "Kind", "Time"});
    g.SetColumnType(1, Grid::TypeStatic);
    g.SetColumnType(2, Grid::TypeNumber);
    g.SetColumnType(3, Grid::TypeList);
    g.SetListItems(0, 3, {"a", "b"});
    g.SetCellType(2, 3, Grid::TypeText);
    g.SetColumnType(4, Grid::TypeTime);

    EXPECT_EQ(g.Text(0, 2), "Amount");
    g.SetText(2, 0, "key-7");                               // the row header holds a key
    EXPECT_EQ(g.Text(2, 0), "key-7");
    EXPECT_EQ(g.ListItems(1, 3), (QStringList{"a", "b"}));
    EXPECT_EQ(g.GetCellType(2, 3), Grid::TypeText);         // the cell's own type wins
    EXPECT_EQ(g.GetCellType(3, 3), Grid::TypeList);

    EXPECT_TRUE(g.IsLocked(1, 1));                          // static
    EXPECT_FALSE(g.IsLocked(1, 2));
    g.SetRowLocked(1);
    EXPECT_TRUE(g.IsLocked(1, 2));
    g.SetRowLocked(1, false);
    g.SetLocked(3, 2);
    EXPECT_TRUE(g.IsLocked(3, 2));
    EXPECT_FALSE(g.IsLocked(2, 2));

    // Values: leading number of a text, hours of a time cell.
    g.SetText(1, 2, "12.5 g");
    EXPECT_DOUBLE_EQ(g.Value(1, 2), 12.5);
    g.SetText(1, 4, "01:30:00");
    EXPECT_DOUBLE_EQ(g.Value(1, 4), 1.5);
    EXPECT_DOUBLE_EQ(g.Value(9, 9), 0);                     // outside the grid

    // Programmatic changes are silent; a user's change is reported with its cell.
    QSignalSpy spy(&g, &Grid::CellEdited);
    g.SetText(2, 2, "4");
    EXPECT_EQ(spy.count(), 0);
    static_cast<QTableWidget&>(g).item(1, 1)->setText("5");  // what the editor commits
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toInt(), 2);
    EXPECT_EQ(spy.at(0).at(1).toInt(), 2);

    g.SetCellColor(2, 2, Qt::yellow);
    EXPECT_EQ(g.CellBackColor(2, 2), QColor(Qt::yellow));
    g.HideColumn(4);
    EXPECT_TRUE(g.IsColumnHidden(4));

    g.SetCellData(3, 1, 42);
    EXPECT_EQ(g.CellData(3, 1).toInt(), 42);
    g.ClearData();
    EXPECT_EQ(g.Text(1, 2), "");
    EXPECT_EQ(g.Text(0, 2), "Amount");                      // headers stay
    EXPECT_EQ(g.AddRow(), 4);
    EXPECT_EQ(g.GetCellType(4, 2), Grid::TypeNumber);       // new rows take the column's type
}

TEST(GridExport, TextAndExcelFiles)
{
    QTemporaryDir dir;
    Grid g;
    g.SetMaxRows(2);
    g.SetMaxCols(3);
    g.SetColumnHeaders({"Date", "Name", "Value"});
    g.SetText(1, 1, "2026-01-02");
    g.SetText(1, 2, "Run");
    g.SetText(1, 3, "5");
    g.SetText(2, 1, "2026-01-03");                          // row 2 ends in two empty cells
    g.SetFormula(2, 3, "C1*2");
    const QString log = dir.filePath("export.log");

    const QString txt = dir.filePath("out.txt");
    ASSERT_TRUE(g.ExportToText(txt, log));
    QFile f(txt);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(f.readAll()), "2026-01-02\tRun\t5\r\n2026-01-03\t\t10\r\n");
    f.close();
    ASSERT_TRUE(g.ExportToText(txt, QString(), ",", "\n", true));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(f.readAll()).startsWith("Date,Name,Value\n2026-01-02,Run,5\n"));
    f.close();

    QString err;
    EXPECT_FALSE(g.ExportToText(dir.filePath("no/such/folder/x.txt"), log, "\t", "\r\n", false, &err));
    EXPECT_FALSE(err.isEmpty());

    // The workbook is read back by a real reader; cells are text, the sheet named as asked
    // (characters a sheet name can't hold become blanks).
    const QString xls = dir.filePath("out.xlsx");
    ASSERT_TRUE(g.ExportToExcel(xls, "Exercise/Sports", log));
    QProcess py;
    py.start("/usr/bin/python3", {"-c",
        "import sys, openpyxl\n"
        "wb = openpyxl.load_workbook(sys.argv[1])\n"
        "ws = wb.active\n"
        "print(ws.title)\n"
        "for row in ws.iter_rows(values_only=True): print('|'.join('' if v is None else str(v) for v in row))\n",
        xls});
    ASSERT_TRUE(py.waitForFinished(30000));
    if (py.exitCode() != 0)
        GTEST_SKIP() << "no workbook reader: " << py.readAllStandardError().toStdString();
    const QStringList lines = QString::fromUtf8(py.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], "Exercise Sports");
    EXPECT_EQ(lines[1], "2026-01-02|Run|5");
    EXPECT_EQ(lines[2], "2026-01-03||10");

    EXPECT_FALSE(g.ExportToExcel(dir.filePath("no/such/folder/x.xlsx"), "S", log, false, &err));

    // Every export left a line in the log, failures too.
    QFile lf(log);
    ASSERT_TRUE(lf.open(QIODevice::ReadOnly));
    const QStringList logLines = QString::fromUtf8(lf.readAll()).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(logLines.size(), 4);   // the second text export was given no log
}
