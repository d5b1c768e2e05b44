#include "core/widgets/Grid.h"

#include <QSignalBlocker>

#include <QComboBox>
#include <QDateTime>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QStyledItemDelegate>
#include <QTextStream>
#include <cmath>
#include <xlsxwriter.h>

#include "core/store/value.h"
#include "core/widgets/GridFormula.h"

namespace {

// What a data cell keeps beside its text.
enum Role {
    RoleType = Qt::UserRole + 1,    // int, absent: the column's type
    RoleFormula,                    // QString
    RoleItems,                      // QStringList of a list cell
    RoleLocked,                     // bool
    RoleData,                       // the screen's item data
    RoleValue,                      // double: a formula's result
    RoleError,                      // bool: the formula could not be read
};

double TimeHours(const QString& text)
{
    const QStringList parts = text.trimmed().split(':');
    double h = 0;
    double f = 1.0;
    for (const QString& p : parts) {
        h += Val(p) * f;
        f /= 60.0;
    }
    return h;
}

}  // namespace

// The editors of the typed cells.
class GridDelegate : public QStyledItemDelegate {
public:
    explicit GridDelegate(Grid* grid) : QStyledItemDelegate(grid), m_grid(grid) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        const int row = index.row() + 1;
        const int col = index.column() + 1;
        const int maxLen = m_grid->m_maxLength.value(col, 0);
        switch (m_grid->GetCellType(row, col)) {
        case Grid::TypeList: {
            auto* cb = new QComboBox(parent);
            cb->setEditable(true);
            cb->addItems(m_grid->ListItems(row, col));
            return cb;
        }
        case Grid::TypeNumber: {
            auto* ed = new QLineEdit(parent);
            ed->setValidator(new QRegularExpressionValidator(
                QRegularExpression(QStringLiteral("^[-+]?[0-9]*[.,]?[0-9]*([eE][-+]?[0-9]*)?$")), ed));
            if (maxLen > 0)
                ed->setMaxLength(maxLen);
            return ed;
        }
        case Grid::TypeTime: {
            auto* ed = new QLineEdit(parent);
            ed->setInputMask(QStringLiteral("99:99:99"));
            return ed;
        }
        case Grid::TypeStatic:
        case Grid::TypeFormula:
            return nullptr;
        case Grid::TypeText:
        default: {
            auto* ed = new QLineEdit(parent);
            if (maxLen > 0)
                ed->setMaxLength(maxLen);
            return ed;
        }
        }
        return QStyledItemDelegate::createEditor(parent, option, index);
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        const QString text = index.data(Qt::EditRole).toString();
        if (auto* cb = qobject_cast<QComboBox*>(editor)) {
            const int i = cb->findText(text);
            if (i >= 0)
                cb->setCurrentIndex(i);
            else
                cb->setEditText(text);
        } else if (auto* ed = qobject_cast<QLineEdit*>(editor)) {
            ed->setText(text);
        } else {
            QStyledItemDelegate::setEditorData(editor, index);
        }
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        if (auto* cb = qobject_cast<QComboBox*>(editor))
            model->setData(index, cb->currentText(), Qt::EditRole);
        else if (auto* ed = qobject_cast<QLineEdit*>(editor))
            model->setData(index, ed->text(), Qt::EditRole);
        else
            QStyledItemDelegate::setModelData(editor, model, index);
    }

private:
    Grid* m_grid;
};

Grid::Grid(QWidget* parent)
    : QTableWidget(parent), m_sheet(std::make_unique<FormulaSheet>([this](int r, int c) { return Value(r, c); }))
{
    setItemDelegate(new GridDelegate(this));
    setTabKeyNavigation(false);   // Tab leaves the grid; the arrows move inside
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(this, &QTableWidget::itemChanged, this, &Grid::onItemChanged);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int r, int c, int pr, int pc) {
        if (pr >= 0 && pc >= 0)
            emit LeaveCell(pr + 1, pc + 1, r + 1, c + 1);
    });
}

Grid::~Grid() = default;

// ---- size ---------------------------------------------------------------------------------

void Grid::SetMaxRows(int rows)
{
    const int old = rowCount();
    ++m_updating;
    setRowCount(qMax(0, rows));
    for (int r = old; r < rows; ++r)
        for (int c = 0; c < columnCount(); ++c)
            ensureItem(r + 1, c + 1);
    --m_updating;
    // New rows are empty, as the cells outside the grid read; dropped ones take their formulas.
    if (rowCount() < old)
        rebuildFormulas();
}

int Grid::MaxRows() const { return rowCount(); }

void Grid::SetMaxCols(int cols)
{
    const int old = columnCount();
    ++m_updating;
    setColumnCount(qMax(0, cols));
    for (int c = old; c < cols; ++c)
        for (int r = 0; r < rowCount(); ++r)
            ensureItem(r + 1, c + 1);
    --m_updating;
    if (columnCount() < old)
        rebuildFormulas();
}

int Grid::MaxCols() const { return columnCount(); }

int Grid::AddRow()
{
    SetMaxRows(rowCount() + 1);
    return rowCount();
}

void Grid::InsertRow(int row)
{
    if (row < 1 || row > rowCount() + 1)
        return;
    ++m_updating;
    insertRow(row - 1);
    for (int c = 0; c < columnCount(); ++c)
        ensureItem(row, c + 1);
    --m_updating;
    rebuildFormulas();
}

void Grid::DeleteRow(int row)
{
    if (row < 1 || row > rowCount())
        return;
    ++m_updating;
    removeRow(row - 1);
    --m_updating;
    rebuildFormulas();
}

// ---- headers ------------------------------------------------------------------------------

void Grid::SetColumnHeaders(const QStringList& captions)
{
    if (columnCount() < captions.size())
        SetMaxCols(captions.size());
    for (int i = 0; i < captions.size(); ++i)
        SetText(0, i + 1, captions[i]);
}

void Grid::SetRowHeadersVisible(bool visible) { verticalHeader()->setVisible(visible); }
void Grid::SetColumnHeadersVisible(bool visible) { horizontalHeader()->setVisible(visible); }

void Grid::SetColumnWidthChars(int col, int chars)
{
    const int w = fontMetrics().horizontalAdvance(QLatin1Char('0')) * chars + 12;
    if (col == 0)
        verticalHeader()->setFixedWidth(w);
    else if (col <= columnCount())
        setColumnWidth(col - 1, w);
}

void Grid::HideColumn(int col, bool hidden)
{
    if (col == 0)
        verticalHeader()->setVisible(!hidden);
    else if (col <= columnCount())
        setColumnHidden(col - 1, hidden);
}

bool Grid::IsColumnHidden(int col) const
{
    if (col == 0)
        return verticalHeader()->isHidden();
    return col <= columnCount() && isColumnHidden(col - 1);
}

// ---- types --------------------------------------------------------------------------------

void Grid::SetColumnType(int col, CellType type)
{
    m_colTypes[col] = type;
    ++m_updating;
    for (int r = 1; r <= rowCount(); ++r)
        if (auto* it = item(r, col))
            applyType(it, r, col);
    --m_updating;
}

void Grid::SetCellType(int row, int col, CellType type)
{
    auto* it = ensureItem(row, col);
    if (!it)
        return;
    ++m_updating;
    it->setData(RoleType, int(type));
    if (type != TypeFormula)
        it->setData(RoleFormula, QVariant());
    applyType(it, row, col);
    --m_updating;
    if (type != TypeFormula && m_sheet->Has(row, col)) {
        m_sheet->Remove(row, col);
        recompute();
    }
}

Grid::CellType Grid::GetCellType(int row, int col) const
{
    if (auto* it = item(row, col)) {
        const QVariant t = it->data(RoleType);
        if (t.isValid())
            return CellType(t.toInt());
    }
    return m_colTypes.value(col, TypeText);
}

void Grid::SetListItems(int row, int col, const QStringList& items)
{
    if (row == 0) {
        m_colItems[col] = items;
        return;
    }
    if (auto* it = ensureItem(row, col)) {
        ++m_updating;
        it->setData(RoleItems, items);
        --m_updating;
    }
}

QStringList Grid::ListItems(int row, int col) const
{
    if (auto* it = item(row, col)) {
        const QVariant v = it->data(RoleItems);
        if (v.isValid())
            return v.toStringList();
    }
    return m_colItems.value(col);
}

void Grid::SetMaxLength(int col, int chars) { m_maxLength[col] = chars; }
void Grid::SetDecimals(int col, int decimals)
{
    m_decimals[col] = decimals;
    ++m_updating;
    for (FormulaSheet::Key k : m_sheet->Cells())
        if (FormulaSheet::ColOf(k) == col)
            showResult(FormulaSheet::RowOf(k), col);
    --m_updating;
}

void Grid::applyType(QTableWidgetItem* it, int row, int col)
{
    const CellType t = GetCellType(row, col);
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool locked = it->data(RoleLocked).toBool() || m_colLocked.value(col) || m_rowLocked.value(row);
    if (!locked && t != TypeStatic && t != TypeFormula)
        f |= Qt::ItemIsEditable;
    it->setFlags(f);
    if (t == TypeNumber || t == TypeFormula)
        it->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    else
        it->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

// ---- cells --------------------------------------------------------------------------------

QTableWidgetItem* Grid::item(int row, int col) const
{
    if (row < 1 || col < 1 || row > rowCount() || col > columnCount())
        return nullptr;
    return QTableWidget::item(row - 1, col - 1);
}

QTableWidgetItem* Grid::ensureItem(int row, int col)
{
    if (row < 1 || col < 1 || row > rowCount() || col > columnCount())
        return nullptr;
    QTableWidgetItem* it = QTableWidget::item(row - 1, col - 1);
    if (!it) {
        ++m_updating;
        it = new QTableWidgetItem;
        if (m_back.isValid())
            it->setBackground(m_back);
        // Set up before it joins the table: each change of an item in the table is a signal.
        applyType(it, row, col);
        setItem(row - 1, col - 1, it);
        --m_updating;
    }
    return it;
}

QString Grid::Text(int row, int col) const
{
    if (row == 0 && col >= 1) {
        auto* h = horizontalHeaderItem(col - 1);
        return h ? h->text() : QString();
    }
    if (col == 0 && row >= 1) {
        auto* h = verticalHeaderItem(row - 1);
        return h ? h->text() : QString();
    }
    auto* it = item(row, col);
    return it ? it->text() : QString();
}

void Grid::SetText(int row, int col, const QString& text)
{
    if (row == 0 && col >= 1 && col <= columnCount()) {
        setHorizontalHeaderItem(col - 1, new QTableWidgetItem(text));
        return;
    }
    if (col == 0 && row >= 1 && row <= rowCount()) {
        setVerticalHeaderItem(row - 1, new QTableWidgetItem(text));
        return;
    }
    auto* it = ensureItem(row, col);
    if (!it || GetCellType(row, col) == TypeFormula)
        return;
    ++m_updating;
    if (m_batch > 0) {
        // Inside a batch the view is told once, at its end, not cell by cell.
        const QSignalBlocker quiet(model());
        it->setText(text);
    } else {
        it->setText(text);
    }
    --m_updating;
    m_sheet->Changed(row, col);
    recompute();
}

double Grid::Value(int row, int col) const
{
    auto* it = item(row, col);
    if (!it)
        return 0.0;
    switch (GetCellType(row, col)) {
    case TypeFormula: {
        const double v = it->data(RoleValue).toDouble();
        return std::isfinite(v) ? v : 0.0;
    }
    case TypeTime:
        return TimeHours(it->text());
    default:
        return Val(it->text());
    }
}

void Grid::SetValue(int row, int col, double value) { SetText(row, col, formatNumber(value, col)); }

void Grid::ClearCell(int row, int col)
{
    if (auto* it = item(row, col); it && GetCellType(row, col) != TypeFormula) {
        ++m_updating;
        it->setText(QString());
        --m_updating;
        m_sheet->Changed(row, col);
        recompute();
    }
}

void Grid::ClearColumn(int col)
{
    ++m_updating;
    for (int r = 1; r <= rowCount(); ++r)
        if (auto* it = item(r, col); it && GetCellType(r, col) != TypeFormula) {
            it->setText(QString());
            m_sheet->Changed(r, col);
        }
    --m_updating;
    recompute();
}

void Grid::ClearData()
{
    ++m_updating;
    for (int r = 1; r <= rowCount(); ++r)
        for (int c = 1; c <= columnCount(); ++c)
            if (auto* it = item(r, c); it && GetCellType(r, c) != TypeFormula) {
                it->setText(QString());
                m_sheet->Changed(r, c);
            }
    --m_updating;
    recompute();
}

void Grid::SetCellData(int row, int col, const QVariant& data)
{
    if (auto* it = ensureItem(row, col)) {
        ++m_updating;
        it->setData(RoleData, data);
        --m_updating;
    }
}

QVariant Grid::CellData(int row, int col) const
{
    auto* it = item(row, col);
    return it ? it->data(RoleData) : QVariant();
}

// ---- formulas -----------------------------------------------------------------------------

void Grid::SetFormula(int row, int col, const QString& formula)
{
    auto* it = ensureItem(row, col);
    if (!it)
        return;
    QString f = formula.trimmed();
    if (f.startsWith('='))
        f.remove(0, 1);
    ++m_updating;
    if (f.isEmpty()) {
        it->setData(RoleFormula, QVariant());
        it->setData(RoleType, int(TypeNumber));
        it->setToolTip(QString());
    } else {
        it->setData(RoleFormula, f);
        it->setData(RoleType, int(TypeFormula));
        it->setToolTip(QStringLiteral("Formula =") + f);
    }
    applyType(it, row, col);
    --m_updating;
    m_sheet->SetFormula(row, col, f);
    recompute();
}

QString Grid::Formula(int row, int col) const
{
    auto* it = item(row, col);
    return it ? it->data(RoleFormula).toString() : QString();
}

bool Grid::HasFormula(int row, int col) const { return !Formula(row, col).isEmpty(); }

QString Grid::ColumnLetters(int col)
{
    QString s;
    while (col > 0) {
        const int m = (col - 1) % 26;
        s.prepend(QChar('A' + m));
        col = (col - 1) / 26;
    }
    return s;
}

bool Grid::ParseReference(const QString& ref, int* row, int* col)
{
    return FormulaSheet::ParseReference(ref, row, col);
}

bool Grid::Evaluate(const QString& formula, const std::function<double(int, int)>& cell,
                    double* result, QString* error)
{
    return FormulaSheet::Evaluate(formula, cell, result, error);
}

void Grid::Recalc()
{
    m_sheet->ChangedAll();
    recompute();
}

void Grid::BeginUpdate() { ++m_batch; }

void Grid::EndUpdate()
{
    if (m_batch > 0 && --m_batch == 0) {
        recompute();
        viewport()->update();
    }
}

void Grid::recompute()
{
    if (m_batch > 0 || !m_sheet->Pending())
        return;
    const QVector<FormulaSheet::Key> done = m_sheet->Recompute();
    ++m_updating;
    for (FormulaSheet::Key k : done)
        showResult(FormulaSheet::RowOf(k), FormulaSheet::ColOf(k));
    --m_updating;
}

void Grid::rebuildFormulas()
{
    // Formulas travel with their cells; their references stay as written.
    m_sheet->Clear();
    for (int r = 1; r <= rowCount(); ++r)
        for (int c = 1; c <= columnCount(); ++c)
            if (auto* it = item(r, c)) {
                const QString f = it->data(RoleFormula).toString();
                if (!f.isEmpty())
                    m_sheet->SetFormula(r, c, f);
            }
    m_sheet->ChangedAll();
    recompute();
}

void Grid::showResult(int row, int col)
{
    auto* it = item(row, col);
    if (!it || !m_sheet->Has(row, col))
        return;
    const bool ok = m_sheet->StateOf(row, col) == FormulaSheet::Ok;
    const double v = m_sheet->Result(row, col);
    it->setData(RoleError, !ok);
    it->setData(RoleValue, v);
    if (!ok)
        it->setText(QStringLiteral("#ERR"));
    else if (!std::isfinite(v))
        it->setText(QString());
    else
        it->setText(formatNumber(v, col));
}

QString Grid::formatNumber(double v, int col) const
{
    const int dec = m_decimals.value(col, -1);
    if (dec >= 0)
        return QString::number(v, 'f', dec);
    QString s = QString::number(v, 'f', 4);
    if (s.contains('.')) {
        while (s.endsWith('0'))
            s.chop(1);
        if (s.endsWith('.'))
            s.chop(1);
    }
    if (s == QLatin1String("-0"))
        s = QStringLiteral("0");
    return s;
}

void Grid::onItemChanged(QTableWidgetItem* it)
{
    if (m_updating)
        return;
    const int row = it->row() + 1;
    const int col = it->column() + 1;
    m_sheet->Changed(row, col);
    recompute();
    emit CellEdited(row, col);
}

// ---- locks, colours -----------------------------------------------------------------------

void Grid::SetLocked(int row, int col, bool locked)
{
    if (auto* it = ensureItem(row, col)) {
        ++m_updating;
        it->setData(RoleLocked, locked);
        applyType(it, row, col);
        --m_updating;
    }
}

void Grid::SetColumnLocked(int col, bool locked)
{
    m_colLocked[col] = locked;
    ++m_updating;
    for (int r = 1; r <= rowCount(); ++r)
        if (auto* it = item(r, col))
            applyType(it, r, col);
    --m_updating;
}

void Grid::SetRowLocked(int row, bool locked)
{
    m_rowLocked[row] = locked;
    ++m_updating;
    for (int c = 1; c <= columnCount(); ++c)
        if (auto* it = item(row, c))
            applyType(it, row, c);
    --m_updating;
}

bool Grid::IsLocked(int row, int col) const
{
    auto* it = item(row, col);
    return !it || !(it->flags() & Qt::ItemIsEditable);
}

void Grid::SetCellColor(int row, int col, const QColor& back, const QColor& fore)
{
    if (auto* it = ensureItem(row, col)) {
        ++m_updating;
        it->setBackground(back.isValid() ? QBrush(back) : (m_back.isValid() ? QBrush(m_back) : QBrush()));
        it->setForeground(fore.isValid() ? QBrush(fore) : QBrush());
        --m_updating;
    }
}

QColor Grid::CellBackColor(int row, int col) const
{
    auto* it = item(row, col);
    if (!it || it->background().style() == Qt::NoBrush)
        return QColor();
    return it->background().color();
}

void Grid::SetGridBackColor(const QColor& back)
{
    m_back = back;
    ++m_updating;
    for (int r = 1; r <= rowCount(); ++r)
        for (int c = 1; c <= columnCount(); ++c)
            if (auto* it = item(r, c))
                it->setBackground(back.isValid() ? QBrush(back) : QBrush());
    --m_updating;
}

void Grid::SetCellToolTip(int row, int col, const QString& tip)
{
    if (auto* it = ensureItem(row, col)) {
        ++m_updating;
        it->setToolTip(tip);
        --m_updating;
    }
}

bool Grid::SelectedRowBlock(int* top, int* bottom) const
{
    int first = 0, last = 0;
    for (const QTableWidgetSelectionRange& r : selectedRanges()) {
        if (first == 0 || r.topRow() + 1 < first)
            first = r.topRow() + 1;
        last = std::max(last, r.bottomRow() + 1);
    }
    if (first == 0) {
        const int active = ActiveRow();
        if (active < 1 || active > MaxRows())
            return false;
        first = last = active;
    }
    *top = first;
    *bottom = last;
    return true;
}

void Grid::SelectRowBlock(int top, int bottom, int col)
{
    clearSelection();
    setCurrentCell(top - 1, std::max(0, col - 1), QItemSelectionModel::NoUpdate);
    setRangeSelected(QTableWidgetSelectionRange(top - 1, 0, bottom - 1, MaxCols() - 1), true);
}

int Grid::ActiveRow() const { return currentRow() + 1; }
int Grid::ActiveCol() const { return currentColumn() + 1; }
void Grid::SetActiveCell(int row, int col) { setCurrentCell(row - 1, col - 1); }

// ---- export -------------------------------------------------------------------------------

void Grid::writeLog(const QString& logFile, const QString& line) const
{
    if (logFile.isEmpty())
        return;
    QFile f(logFile);
    if (f.open(QIODevice::Append | QIODevice::Text)) {
        QTextStream ts(&f);
        ts << QDateTime::currentDateTime().toString(Qt::ISODate) << ' ' << line << '\n';
    }
}

bool Grid::ExportToText(const QString& path, const QString& logFile, const QString& delimiter,
                        const QString& rowEnd, bool headers, QString* error) const
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        const QString why = f.errorString();
        if (error)
            *error = why;
        writeLog(logFile, QStringLiteral("Export to %1 failed: %2").arg(path, why));
        return false;
    }
    QString out;
    for (int r = headers ? 0 : 1; r <= rowCount(); ++r) {
        QStringList cells;
        for (int c = 1; c <= columnCount(); ++c)
            cells << Text(r, c);
        out += cells.join(delimiter) + rowEnd;
    }
    const QByteArray data = out.toUtf8();
    const bool ok = f.write(data) == data.size();
    f.close();
    if (!ok && error)
        *error = f.errorString();
    writeLog(logFile, ok ? QStringLiteral("Exported %1 rows to %2").arg(rowCount()).arg(path)
                         : QStringLiteral("Export to %1 failed: %2").arg(path, f.errorString()));
    return ok;
}

bool Grid::ExportToExcel(const QString& path, const QString& sheetName, const QString& logFile,
                         bool headers, QString* error) const
{
    const QByteArray file = QFile::encodeName(path);
    lxw_workbook* wb = workbook_new(file.constData());
    if (!wb) {
        if (error)
            *error = QStringLiteral("The file cannot be created.");
        writeLog(logFile, QStringLiteral("Export to %1 failed: the file cannot be created").arg(path));
        return false;
    }
    // A sheet name has at most 31 characters and none of []:*?/\ .
    QString sheet = sheetName;
    static const QRegularExpression bad(QStringLiteral("[\\[\\]:*?/\\\\]"));
    sheet.replace(bad, QStringLiteral(" "));
    sheet = sheet.trimmed().left(31);
    if (sheet.isEmpty())
        sheet = QStringLiteral("Sheet1");
    const QByteArray sheetUtf8 = sheet.toUtf8();
    lxw_worksheet* ws = workbook_add_worksheet(wb, sheetUtf8.constData());
    int outRow = 0;
    for (int r = headers ? 0 : 1; r <= rowCount(); ++r, ++outRow)
        for (int c = 1; c <= columnCount(); ++c) {
            const QString t = Text(r, c);
            if (!t.isEmpty())
                worksheet_write_string(ws, lxw_row_t(outRow), lxw_col_t(c - 1), t.toUtf8().constData(), nullptr);
        }
    const lxw_error rc = workbook_close(wb);
    const bool ok = rc == LXW_NO_ERROR;
    const QString why = ok ? QString() : QString::fromUtf8(lxw_strerror(rc));
    if (!ok && error)
        *error = why;
    writeLog(logFile, ok ? QStringLiteral("Exported %1 rows to %2").arg(rowCount()).arg(path)
                         : QStringLiteral("Export to %1 failed: %2").arg(path, why));
    return ok;
}
