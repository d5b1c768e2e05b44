#pragma once
// Grid: the table of typed cells that the logs, libraries and totals screens share.
//
// Addressing follows the screens' own numbering, row first:
//   - data cells are rows 1..MaxRows() and columns 1..MaxCols();
//   - row 0 is the column headers ("Nutrient", "Amount", ...), column 0 the row headers
//     (the row number, or a hidden key). Text(0, c) and SetText(0, c, ...) read and write a
//     column header, Text(r, 0) and SetText(r, 0, ...) a row header.
// So "grid row N, column Amount (2)" of a screen is Text(N, 2).
//
// Cell types: number, text, list (a combo of items), static (shown, never edited), masked
// time ("hh:mm:ss") and formula. A formula cell shows the value of an expression over other
// cells of the same grid, in A1 form (column letter, row number: "B1" is row 1 column 2), with
// + - * / ^, parentheses, ranges ("B1:B3") and the functions sum, avg, min, max (any case).
// Each formula is compiled once, when it is set (FormulaSheet, GridFormula.h); a change to a
// cell recomputes only the formulas that read it, directly or not, each once and after the
// formulas it reads. A screen filling the grid brackets its changes with BeginUpdate() and
// EndUpdate(): nothing is recomputed between them, EndUpdate() recomputes what became due.
// A formula that cannot be read, or that refers to itself through other cells, shows "#ERR";
// a division by zero shows nothing. Both count 0 in Value().
//
// Keys: Tab and Shift+Tab leave the grid for the next or previous control, the arrows move
// between cells. A grid filled in cell after cell may let Tab move between cells instead
// (SetTabMovesBetweenCells).
//
// Signals use the same numbering: CellEdited(row, col) after the user committed a change in a
// cell (not after SetText), LeaveCell(row, col, newRow, newCol) when the current cell moves.
#include <QTableWidget>
#include <QColor>
#include <QSet>
#include <QStringList>
#include <functional>
#include <memory>

class FormulaSheet;

class Grid : public QTableWidget {
    Q_OBJECT
public:
    enum CellType { TypeText, TypeNumber, TypeList, TypeStatic, TypeTime, TypeFormula };

    explicit Grid(QWidget* parent = nullptr);
    ~Grid() override;

    // Size in data rows and columns (headers not counted). Growing keeps the cells, new ones
    // take their column's type; shrinking drops the rows or columns at the end.
    void SetMaxRows(int rows);
    int MaxRows() const;
    void SetMaxCols(int cols);
    int MaxCols() const;
    // Adds an empty row at the end and returns its number.
    int AddRow();
    // Inserts an empty row before `row`, or deletes `row` (1-based); formulas are not rewritten.
    void InsertRow(int row);
    void DeleteRow(int row);

    // Headers and their visibility.
    void SetColumnHeaders(const QStringList& captions);   // columns 1.. in order
    void SetRowHeadersVisible(bool visible);
    void SetColumnHeadersVisible(bool visible);
    void SetColumnWidthChars(int col, int chars);           // width for so many characters
    void HideColumn(int col, bool hidden = true);           // col 0 hides the row headers
    bool IsColumnHidden(int col) const;

    // Types. A column's type applies to every cell of it not given a type of its own.
    void SetColumnType(int col, CellType type);
    void SetCellType(int row, int col, CellType type);
    CellType GetCellType(int row, int col) const;
    // The items of a list cell (or of every cell of a list column when row is 0).
    void SetListItems(int row, int col, const QStringList& items);
    QStringList ListItems(int row, int col) const;
    // Longest text accepted when typing in the column's cells (0: no limit).
    void SetMaxLength(int col, int chars);
    // Decimals shown by the number and formula cells of a column (-1: as typed / up to 4).
    void SetDecimals(int col, int decimals);

    // Values. Text is what the cell shows (a formula cell: its result; SetText on a formula cell
    // does nothing, use SetFormula). Value is the number
    // of the cell: the leading number of its text, hours for a time cell, 0 when empty.
    QString Text(int row, int col) const;
    void SetText(int row, int col, const QString& text);
    double Value(int row, int col) const;
    void SetValue(int row, int col, double value);
    void ClearCell(int row, int col);
    void ClearColumn(int col);                    // data cells of the column
    void ClearData();                             // every data cell; types and headers stay
    // Item data kept with a cell, not shown (an id, a key).
    void SetCellData(int row, int col, const QVariant& data);
    QVariant CellData(int row, int col) const;

    // Formulas, without a leading "=" ("B1*2"; a given "=" is removed). SetFormula makes the
    // cell a formula cell; an empty formula turns it back into a number cell.
    void SetFormula(int row, int col, const QString& formula);
    QString Formula(int row, int col) const;
    bool HasFormula(int row, int col) const;
    // Recomputes every formula.
    void Recalc();
    // Batches the recomputation while a screen fills the grid; the calls nest.
    void BeginUpdate();
    void EndUpdate();
    // The grid's formulas, compiled, with their dependencies and counts.
    const FormulaSheet& Formulas() const { return *m_sheet; }
    // Evaluates a formula over a value source; the grid's own evaluator, usable without a grid.
    // Returns false with a reason in error when it cannot be read; a division by zero gives
    // true and a non-finite result.
    static bool Evaluate(const QString& formula, const std::function<double(int row, int col)>& cell,
                         double* result, QString* error = nullptr);
    // "B3" -> row 3, col 2; false when it is no reference.
    static bool ParseReference(const QString& ref, int* row, int* col);
    static QString ColumnLetters(int col);

    // Locks: a locked cell is shown but cannot be edited.
    void SetLocked(int row, int col, bool locked = true);
    void SetColumnLocked(int col, bool locked = true);
    void SetRowLocked(int row, bool locked = true);
    bool IsLocked(int row, int col) const;

    // Colours of a cell (an invalid colour gives back the default), and of all data cells.
    void SetCellColor(int row, int col, const QColor& back, const QColor& fore = QColor());
    QColor CellBackColor(int row, int col) const;
    void SetGridBackColor(const QColor& back);
    void SetCellToolTip(int row, int col, const QString& tip);

    // Tab between cells rather than out of the grid (off by default).
    void SetTabMovesBetweenCells(bool on) { setTabKeyNavigation(on); }
    bool TabMovesBetweenCells() const { return tabKeyNavigation(); }

    // The block of rows from the first selected to the last (the current row when nothing is
    // selected); false when there is none. SelectRowBlock selects rows top..bottom whole, with
    // column `col` of the first current, as a block moved up or down stays selected.
    bool SelectedRowBlock(int* top, int* bottom) const;
    void SelectRowBlock(int top, int bottom, int col);

    // The current cell (0, 0 when none).
    int ActiveRow() const;
    int ActiveCol() const;
    void SetActiveCell(int row, int col);

    // Export of the data cells (headers when asked): text with a delimiter between cells and
    // rowEnd after each row, an empty cell as nothing; or an Excel workbook of one sheet, cells
    // as text. Each appends a line to logFile when one is given. False, with the reason in
    // error, when the file cannot be written.
    bool ExportToText(const QString& path, const QString& logFile = QString(),
                      const QString& delimiter = QStringLiteral("\t"),
                      const QString& rowEnd = QStringLiteral("\r\n"), bool headers = false,
                      QString* error = nullptr) const;
    bool ExportToExcel(const QString& path, const QString& sheetName,
                       const QString& logFile = QString(), bool headers = false,
                       QString* error = nullptr) const;

signals:
    void CellEdited(int row, int col);
    void LeaveCell(int row, int col, int newRow, int newCol);

private:
    friend class GridDelegate;
    QTableWidgetItem* item(int row, int col) const;   // data cell, created on demand
    QTableWidgetItem* ensureItem(int row, int col);
    void applyType(QTableWidgetItem* it, int row, int col);
    void showResult(int row, int col);
    void recompute();            // what became due, unless a batch is open
    void rebuildFormulas();      // after rows or columns moved or went
    QString formatNumber(double v, int col) const;
    void onItemChanged(QTableWidgetItem* it);
    void writeLog(const QString& logFile, const QString& line) const;

    QHash<int, CellType> m_colTypes;
    QHash<int, QStringList> m_colItems;
    QHash<int, int> m_maxLength;
    QHash<int, int> m_decimals;
    QHash<int, bool> m_colLocked;
    QHash<int, bool> m_rowLocked;
    QColor m_back;
    int m_updating = 0;
    int m_batch = 0;
    std::unique_ptr<FormulaSheet> m_sheet;
};
