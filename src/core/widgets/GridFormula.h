#pragma once
// FormulaSheet: the formulas of a grid, apart from the grid's windows.
//
// A formula reads other cells in A1 form ("B1" is row 1, column 2; "$B$1" the same), with
// + - * / ^, parentheses, ranges ("B1:B3", expanded into their cells) and the functions sum,
// avg (or average), min and max in any case. Each formula is compiled once, when it is set: its
// references become variables of its own parser, and the cells it reads are kept as a
// dependency graph. A change to a cell makes its dependents due; Recompute() then evaluates
// every due formula once, each after the formulas it reads.
//
// Results: Ok (the value may be infinite after a division by zero), Error (the formula cannot
// be read) or Circular (it reads itself through other cells, or reads such a cell). A formula
// reading an Error, Circular or infinite cell takes 0 for it.
//
// Cells without a formula are read through the input function given to the sheet.
#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>
#include <functional>
#include <memory>

class FormulaSheet {
public:
    enum State { Ok, Error, Circular };
    using Key = qint64;
    static Key KeyOf(int row, int col) { return (Key(row) << 32) | quint32(col); }
    static int RowOf(Key k) { return int(k >> 32); }
    static int ColOf(Key k) { return int(quint32(k)); }

    explicit FormulaSheet(std::function<double(int row, int col)> input);
    ~FormulaSheet();
    FormulaSheet(const FormulaSheet&) = delete;
    FormulaSheet& operator=(const FormulaSheet&) = delete;

    // Compiles and keeps a cell's formula (a leading "=" is dropped); an empty one removes it.
    // The cell and what reads it become due.
    void SetFormula(int row, int col, const QString& formula);
    void Remove(int row, int col);
    void Clear();
    bool Has(int row, int col) const { return m_cells.contains(KeyOf(row, col)); }
    QString Formula(int row, int col) const;
    QList<Key> Cells() const { return m_cells.keys(); }

    // The value of a cell changed: the formulas reading it become due.
    void Changed(int row, int col);
    // Every formula becomes due.
    void ChangedAll();
    bool Pending() const { return !m_dueFormulas.isEmpty() || !m_dueInputs.isEmpty(); }
    // Evaluates each due formula once, in dependency order, and returns the cells evaluated
    // in that order.
    QVector<Key> Recompute();

    State StateOf(int row, int col) const;
    double Result(int row, int col) const;      // as computed; 0 unless Ok
    double Value(int row, int col) const;       // as other formulas read it
    QString ErrorText(int row, int col) const;

    // How often formulas were compiled and evaluated since the sheet was made.
    int Compilations() const { return m_compilations; }
    int Evaluations() const { return m_evaluations; }

    // One formula over a value source, compiled and evaluated once. False, with a reason, when
    // it cannot be read; a division by zero gives true and a non-finite result.
    static bool Evaluate(const QString& formula, const std::function<double(int row, int col)>& cell,
                         double* result, QString* error = nullptr);
    // "B3" -> row 3, col 2 (a "$" before either part is allowed); false when it is no reference.
    static bool ParseReference(const QString& ref, int* row, int* col);

private:
    struct Compiled;
    void evaluate(Compiled& c);
    void unlink(Key key, const Compiled& c);

    std::function<double(int, int)> m_input;
    QHash<Key, std::shared_ptr<Compiled>> m_cells;
    QHash<Key, QSet<Key>> m_readers;      // cell -> the formulas that read it
    QSet<Key> m_dueFormulas;
    QSet<Key> m_dueInputs;
    int m_compilations = 0;
    int m_evaluations = 0;
};
