#include "exercise/frmExerciseForms.h"

#include <QAbstractButton>
#include <QAbstractItemDelegate>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStyleOptionHeader>
#include <QStylePainter>
#include <QVBoxLayout>

#include "calendar/icons.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"
#include "core/widgets/Theme.h"
#include "exercise/frmSelections.h"

namespace {

const QString kMessage = QStringLiteral("Message");
const QString kReserved = QStringLiteral("Intervals");
// The background of the field names, as a stored colour value (0x00BBGGRR).
constexpr long NameColor = 0xFFFFC0;
// Column sizes of endurance_exercises and endurance_templates.
constexpr int NameLength = 50;
constexpr int TextLength = 255;

void Inform(const QString& text) { MsgBox(text, vbOKOnly + vbInformation, kMessage); }

bool IsNumeric(const QString& text)
{
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

// A key the number editor would refuse that makes a plain cell take text: a letter or above
// (code 65 or more), or the "=" that begins a formula.
bool TurnsCellToText(const QString& keyText)
{
    if (keyText.isEmpty())
        return false;
    const QChar c = keyText.at(0);
    return c.unicode() >= 65 || c == QLatin1Char('=');
}

}  // namespace

frmExerciseForms::frmExerciseForms(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmExerciseForms"));
    setWindowTitle(QStringLiteral("Exercise/Sports Library"));
    buildUi();
    Guard([this] {
        QScopedValueRollback<bool> loading(m_loading, true);
        optTraining->setChecked(true);
        FormatGrid();
        for (int i = 1; i <= ExerciseIconCount(); ++i)
            addImage(i);
        cboImage->setCurrentIndex(-1);
        fillList();
    });
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    CenterForm(this);
}

void frmExerciseForms::buildUi()
{
    // Within a 1280x720 screen, frame included.
    resize(1060, 640);

    // The library: category and items.
    optTraining = form::Named(new QRadioButton(QStringLiteral("&Training")), QStringLiteral("optTraining"),
                              QStringLiteral("Show the training exercises"));
    optSports = form::Named(new QRadioButton(QStringLiteral("&Sports")), QStringLiteral("optSports"),
                            QStringLiteral("Show the sports"));
    auto* show = new QGroupBox(QStringLiteral("Show"));
    auto* showRow = new QHBoxLayout(show);
    showRow->addWidget(optTraining);
    showRow->addWidget(optSports);
    showRow->addStretch(1);
    lstEndurance = form::Named(new QListWidget, QStringLiteral("lstEndurance"),
                               QStringLiteral("Select an exercise or sport to see its form"));
    lstEndurance->setSelectionMode(QAbstractItemView::SingleSelection);
    lstEndurance->setMinimumWidth(200);
    auto* left = new QVBoxLayout;
    left->addWidget(show);
    left->addWidget(form::Caption(QStringLiteral("Li&brary:"), lstEndurance));
    left->addWidget(lstEndurance, 1);

    // The item.
    txtExerciseName = form::Edit(QStringLiteral("txtExerciseName"), NameLength, 0,
                                 QStringLiteral("The name of the exercise or sport"));
    cboImage = form::Named(new QComboBox, QStringLiteral("cboImage"),
                           QStringLiteral("The picture shown for this exercise on the calendar"));
    cboImage->setIconSize(QSize(CalendarIconSize, CalendarIconSize));
    cboImage->setPlaceholderText(QStringLiteral("None"));
    cboImage->setMaxVisibleItems(16);
    cboImage->setMinimumWidth(90);
    txtComments = form::Named(new QPlainTextEdit, QStringLiteral("txtComments"),
                              QStringLiteral("A description of the exercise or sport"));
    txtHistory = form::Named(new QPlainTextEdit, QStringLiteral("txtHistory"),
                             QStringLiteral("The history of the exercise or sport"));
    for (QPlainTextEdit* e : {txtComments, txtHistory}) {
        e->setTabChangesFocus(true);
        e->setFixedHeight(e->fontMetrics().lineSpacing() * 3 + 12);
    }

    SS1 = form::Named(new Grid, QStringLiteral("SS1"),
                      QStringLiteral("The fields recorded with each session; F2 edits a formula"));
    SS1->setAccessibleName(QStringLiteral("Form fields"));
    SS1->setSelectionMode(QAbstractItemView::ContiguousSelection);
    SS1->setCornerButtonEnabled(false);
    if (auto* corner = SS1->findChild<QAbstractButton*>())
        corner->installEventFilter(this);
    SS1->installEventFilter(this);
    SS1->viewport()->installEventFilter(this);

    cmdAdd = form::Button(QStringLiteral("cmdAdd"), QStringLiteral("&Add Field..."),
                          QStringLiteral("Add a field to this form"));
    cmdDeleteField = form::Button(QStringLiteral("cmdDeleteField"), QStringLiteral("Remo&ve Field"),
                                  QStringLiteral("Remove the selected field from this form"));
    cmdUp = form::Button(QStringLiteral("cmdUp"), QStringLiteral("Move &Up"),
                         QStringLiteral("Move the selected field(s) up one row"));
    cmdDown = form::Button(QStringLiteral("cmdDown"), QStringLiteral("Move Do&wn"),
                           QStringLiteral("Move the selected field(s) down one row"));
    auto* fieldButtons = new QVBoxLayout;
    for (QPushButton* b : {cmdAdd, cmdDeleteField, cmdUp, cmdDown})
        fieldButtons->addWidget(b);
    fieldButtons->addStretch(1);

    auto* item = new QGridLayout;
    form::AddRow(item, 0, QStringLiteral("Na&me:"), txtExerciseName);
    form::AddRow(item, 0, QStringLiteral("&Picture:"), cboImage, 2);
    QLabel* desc = form::AddRow(item, 1, QStringLiteral("&Description:"), txtComments, 0, 3);
    QLabel* history = form::AddRow(item, 2, QStringLiteral("Histor&y:"), txtHistory, 0, 3);
    QLabel* fields = form::AddRow(item, 3, QStringLiteral("&Form fields:"), SS1, 0, 3);
    for (QLabel* l : {desc, history, fields})
        l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    item->addLayout(fieldButtons, 3, 4);
    item->setColumnStretch(1, 1);
    item->setRowStretch(3, 1);

    auto* top = new QHBoxLayout;
    top->addLayout(left, 0);
    top->addSpacing(8);
    top->addLayout(item, 1);

    cmdNew = form::Button(QStringLiteral("cmdNew"), QStringLiteral("&New"),
                          QStringLiteral("Clear the screen for a new exercise or sport"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("Sav&e"),
                           QStringLiteral("Save this exercise or sport and its form"));
    cmdDelete = form::Button(QStringLiteral("cmdDelete"), QStringLiteral("De&lete"),
                             QStringLiteral("Delete this exercise or sport"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdNew, cmdSave, cmdDelete})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addLayout(top, 1);
    main->addLayout(buttons);

    connect(optTraining, &QRadioButton::toggled, this, [this] { Guard([&] { on_opt_changed(); }); });
    connect(lstEndurance, &QListWidget::itemSelectionChanged, this, [this] { Guard([&] { on_lstEndurance_changed(); }); });
    connect(SS1, &Grid::CellEdited, this, [this](int r, int c) { Guard([&] { on_SS1_edited(r, c); }); });
    // A formula opened with F2 and left with Escape is a formula again.
    connect(SS1->itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] {
        const int row = SS1->ActiveRow();
        if (SS1->ActiveCol() == gcInfo && SS1->GetCellType(row, gcInfo) == Grid::TypeText &&
            SS1->Text(row, gcInfo).trimmed().startsWith(QLatin1Char('='))) {
            QScopedValueRollback<bool> loading(m_loading, true);
            SS1->SetFormula(row, gcInfo, SS1->Text(row, gcInfo));
        }
    });
    connect(cmdAdd, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdAdd_clicked(); }); });
    connect(cmdDeleteField, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDeleteField_clicked(); }); });
    connect(cmdUp, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdUp_clicked(); }); });
    connect(cmdDown, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDown_clicked(); }); });
    connect(cmdNew, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdNew_clicked(); }); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdSave_clicked(); }); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDelete_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(txtExerciseName, &QLineEdit::textChanged, this, [this] { changed(); });
    connect(txtComments, &QPlainTextEdit::textChanged, this, [this] {
        limitText(txtComments, TextLength);
        changed();
    });
    connect(txtHistory, &QPlainTextEdit::textChanged, this, [this] {
        limitText(txtHistory, TextLength);
        changed();
    });
    connect(cboImage, &QComboBox::currentIndexChanged, this, [this] { changed(); });
}

void frmExerciseForms::changed()
{
    if (m_loading)
        return;
    // Nothing is saved without a name.
    cmdSave->setEnabled(!txtExerciseName->text().trimmed().isEmpty());
}

void frmExerciseForms::limitText(QPlainTextEdit* edit, int chars)
{
    const QString text = edit->toPlainText();
    if (text.length() <= chars)
        return;
    edit->setPlainText(text.left(chars));
    edit->moveCursor(QTextCursor::End);
}

void frmExerciseForms::addImage(int image)
{
    cboImage->addItem(QIcon(ExerciseIcon(image)), QString::number(image), image);
}

QString frmExerciseForms::Category() const
{
    return optSports->isChecked() ? QStringLiteral("Sports") : QStringLiteral("Training");
}

// ---- procedures ---------------------------------------------------------------------------

void frmExerciseForms::FormatGrid()
{
    SS1->SetMaxRows(0);
    SS1->SetMaxCols(3);
    SS1->SetColumnHeaders({QStringLiteral("Name"), QStringLiteral("Field Information"), QStringLiteral("Unit of Measure")});
    for (int c = gcName; c <= gcUnits; ++c)
        SS1->SetColumnType(c, Grid::TypeText);
    SS1->SetMaxLength(gcName, NameLength);
    SS1->SetMaxLength(gcInfo, TextLength);
    SS1->SetMaxLength(gcUnits, NameLength);
    SS1->SetRowHeadersVisible(true);
    SS1->SetColumnWidthChars(0, 4);
    SS1->SetColumnWidthChars(gcName, 25);   // 2500 twips
    SS1->SetColumnWidthChars(gcInfo, 16);
    SS1->horizontalHeader()->setStretchLastSection(true);
}

void frmExerciseForms::FormatData()
{
    const QColor back = theme::FromWinColor(NameColor);
    for (int r = 1; r <= SS1->MaxRows(); ++r)
        SS1->SetCellColor(r, gcName, back);
}

void frmExerciseForms::loadunits(int row, const QString& unit)
{
    SqlText = "select * from DefaultUnits where name = '" + SqlQuote(SS1->Text(row, gcName)) + "' and unit is not null";
    QStringList items{QString()};
    ForEachRow(LibraryRS, SqlText, [&items](Recordset& rs) {
        if (!IsNull(rs.Field("unit")))
            items << Str(rs.Field("unit"));
    });
    if (items.size() == 1)
        return;   // no list: the cell takes a number, a text or a formula
    SS1->SetCellType(row, gcInfo, Grid::TypeList);
    SS1->SetListItems(row, gcInfo, items);
    SS1->SetCellToolTip(row, gcInfo, QString());
    if (unit != QLatin1String("load"))
        SS1->SetText(row, gcUnits, unit);
}

void frmExerciseForms::fillList()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    lstEndurance->clear();
    SqlText = "select distinct exercise from endurance_exercises where category='" + Category().toLower() +
              "' order by exercise";
    listfill::FillList(lstEndurance, LibraryRS, SqlText, QStringLiteral("exercise"), QString(), true);
    lstEndurance->setCurrentRow(-1);
}

void frmExerciseForms::clearForm()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    lstEndurance->setCurrentRow(-1);
    lstEndurance->clearSelection();
    txtExerciseName->clear();
    txtComments->clear();
    txtHistory->clear();
    cboImage->setCurrentIndex(-1);
    SS1->SetMaxRows(0);
    cmdDelete->setEnabled(false);
    cmdSave->setEnabled(false);
}

void frmExerciseForms::loadItem()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SS1->SetMaxRows(0);
    QListWidgetItem* line = lstEndurance->currentItem();
    if (!line || !line->isSelected())
        return;
    const QString name = line->text();
    const QString category = Category().toLower();

    txtExerciseName->setText(name);
    txtComments->clear();
    txtHistory->clear();
    long image = 0;
    // The item is found by name alone: of two items of one name, the first row's description shows.
    SqlText = "select * from endurance_exercises where exercise='" + SqlQuote(name) + "'";
    FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
        txtExerciseName->setText(Str(rs.Field("exercise")));
        txtComments->setPlainText(Str(rs.Field("Desc")));
        txtHistory->setPlainText(Str(rs.Field("History")));
        image = long(Val(rs.Field("Image")));
    });
    cboImage->setCurrentIndex(-1);
    if (image > 0) {
        int i = cboImage->findData(int(image));
        if (i < 0) {
            // A picture number from older data that the list does not have: kept, not lost.
            addImage(int(image));
            i = cboImage->count() - 1;
        }
        cboImage->setCurrentIndex(i);
    }

    // Read the rows first: loadunits needs the recordset.
    struct Stored { QVariant name, formula, value, units; };
    QList<Stored> rows;
    SqlText = "select * from endurance_templates where name='" + SqlQuote(name) + "' and category='" + category +
              "' order by WORDER";
    ForEachRow(LibraryRS, SqlText, [&rows](Recordset& rs) {
        rows.append({rs.Field("field_name"), rs.Field("Formula"), rs.Field("Value"), rs.Field("Units")});
    });

    SS1->BeginUpdate();
    SS1->SetMaxRows(int(rows.size()));
    for (int r = 1; r <= rows.size(); ++r) {
        const Stored& s = rows[r - 1];
        if (!IsNull(s.name))
            SS1->SetText(r, gcName, Str(s.name));
        const QString formula = Str(s.formula);
        if (!formula.isEmpty()) {
            SS1->SetFormula(r, gcInfo, formula);
        } else {
            const QString value = Str(s.value);
            if (IsNumeric(value))
                SS1->SetCellType(r, gcInfo, Grid::TypeNumber);
            SS1->SetText(r, gcInfo, value);
            loadunits(r, QStringLiteral("load"));
        }
        const QString units = Str(s.units);
        if (IsNumeric(units))
            SS1->SetCellType(r, gcUnits, Grid::TypeNumber);
        SS1->SetText(r, gcUnits, units);
    }
    SS1->EndUpdate();
    FormatData();
    cmdDelete->setEnabled(true);
    cmdSave->setEnabled(false);
}

void frmExerciseForms::saveExercise()
{
    const QString name = txtExerciseName->text().trimmed().left(NameLength);
    if (name.isEmpty())
        return;
    QListWidgetItem* line = lstEndurance->currentItem();
    if (line && !line->isSelected())
        line = nullptr;
    // An item whose name was edited goes under its old name; one saved under the name of
    // another item of the category replaces it.
    QStringList names{line ? line->text() : name};
    if (names.first().compare(name, Qt::CaseInsensitive) != 0)
        names << name;
    const QString category = Category();

    {
        StoreTransaction transaction(LibraryConn);
        for (const QString& old : names) {
            SqlText = "delete * from endurance_exercises where exercise='" + SqlQuote(old) + "' and category='" +
                      category + "'";
            LibraryConn.Execute(SqlText);
            SqlText = "delete * from endurance_templates where name='" + SqlQuote(old) + "' and category='" + category + "'";
            LibraryConn.Execute(SqlText);
        }
        RecordsetScope scope(LibraryRS);
        LibraryRS.Open(QStringLiteral("endurance_exercises"), &LibraryConn);
        LibraryRS.AddNew();
        LibraryRS.SetField("Category", category);
        LibraryRS.SetField("exercise", name);
        LibraryRS.SetField("Desc", txtComments->toPlainText().trimmed().left(TextLength));
        LibraryRS.SetField("History", txtHistory->toPlainText().trimmed().left(TextLength));
        if (cboImage->currentIndex() >= 0)
            LibraryRS.SetField("Image", cboImage->currentData().toInt());
        LibraryRS.Update();
        LibraryRS.Close();

        if (SS1->MaxRows() > 0) {
            LibraryRS.Open(QStringLiteral("endurance_templates"), &LibraryConn);
            for (int r = 1; r <= SS1->MaxRows(); ++r) {
                QString formula, value;
                if (SS1->HasFormula(r, gcInfo))
                    formula = QLatin1Char('=') + SS1->Formula(r, gcInfo);
                else if (SS1->Text(r, gcInfo).startsWith(QLatin1Char('=')))
                    formula = SS1->Text(r, gcInfo);
                else
                    value = SS1->Text(r, gcInfo);
                LibraryRS.AddNew();
                LibraryRS.SetField("Category", category);
                LibraryRS.SetField("Name", name);
                LibraryRS.SetField("field_name", SS1->Text(r, gcName).trimmed().left(NameLength));
                LibraryRS.SetField("Formula", formula.left(TextLength));
                LibraryRS.SetField("Value", value.left(TextLength));
                LibraryRS.SetField("Units", SS1->Text(r, gcUnits).left(NameLength));
                LibraryRS.SetField("worder", r);
                LibraryRS.Update();
            }
            LibraryRS.Close();
        }
        transaction.Commit();
    }

    {
        QScopedValueRollback<bool> loading(m_loading, true);
        // One line per name: a line of the same name that this save replaced goes.
        for (int i = lstEndurance->count() - 1; i >= 0; --i) {
            QListWidgetItem* other = lstEndurance->item(i);
            if (other != line && other->text().compare(name, Qt::CaseInsensitive) == 0)
                delete lstEndurance->takeItem(i);
        }
        if (!line) {
            lstEndurance->addItem(name);
            line = lstEndurance->item(lstEndurance->count() - 1);
        } else {
            line->setText(name);
        }
        lstEndurance->setCurrentItem(line);
        line->setSelected(true);
        txtExerciseName->setText(name);
    }
    cmdSave->setEnabled(false);
    cmdAdd->setEnabled(true);
    cmdDelete->setEnabled(true);
    Inform(QStringLiteral("Exercise Information Saved."));
}

// ---- rows ---------------------------------------------------------------------------------

frmExerciseForms::FieldRow frmExerciseForms::readRow(int row) const
{
    FieldRow f;
    f.name = SS1->Text(row, gcName);
    f.formula = SS1->Formula(row, gcInfo);
    f.info = f.formula.isEmpty() ? SS1->Text(row, gcInfo) : QString();
    f.infoType = SS1->GetCellType(row, gcInfo);
    f.items = SS1->GetCellType(row, gcInfo) == Grid::TypeList ? SS1->ListItems(row, gcInfo) : QStringList();
    f.units = SS1->Text(row, gcUnits);
    f.unitsType = SS1->GetCellType(row, gcUnits);
    return f;
}

void frmExerciseForms::writeRow(int row, const FieldRow& f)
{
    SS1->SetText(row, gcName, f.name);
    if (!f.formula.isEmpty()) {
        SS1->SetFormula(row, gcInfo, f.formula);
    } else {
        SS1->SetCellType(row, gcInfo, Grid::CellType(f.infoType));
        SS1->SetListItems(row, gcInfo, f.items);
        SS1->SetCellToolTip(row, gcInfo, QString());
        SS1->SetText(row, gcInfo, f.info);
    }
    SS1->SetCellType(row, gcUnits, Grid::CellType(f.unitsType));
    SS1->SetText(row, gcUnits, f.units);
}

void frmExerciseForms::moveBlock(int by)
{
    int top = 0, bottom = 0;
    if (!SS1->SelectedRowBlock(&top, &bottom))
        return;
    if (by < 0 && top <= 1) {
        Inform(QStringLiteral("Can't move selected exercise(s) up."));
        return;
    }
    if (by > 0 && bottom >= SS1->MaxRows()) {
        Inform(QStringLiteral("Can't move selected exercise(s) down."));
        return;
    }
    // The neighbouring row goes to the other side of the block; formulas move as typed.
    const int first = by < 0 ? top - 1 : top;
    const int last = by < 0 ? bottom : bottom + 1;
    QList<FieldRow> rows;
    for (int r = first; r <= last; ++r)
        rows << readRow(r);
    if (by < 0)
        rows.move(0, rows.size() - 1);
    else
        rows.move(rows.size() - 1, 0);
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->BeginUpdate();
        for (int i = 0; i < rows.size(); ++i)
            writeRow(first + i, rows[i]);
        SS1->EndUpdate();
        SS1->SelectRowBlock(top + by, bottom + by, qMax(1, SS1->ActiveCol()));
    }
    changed();
}

// ---- keys in the grid ---------------------------------------------------------------------

bool frmExerciseForms::eventFilter(QObject* watched, QEvent* event)
{
    // The row headers' caption.
    if (event->type() == QEvent::Paint && qobject_cast<QAbstractButton*>(watched) &&
        watched->parent() == SS1) {
        auto* corner = static_cast<QWidget*>(watched);
        QStylePainter painter(corner);
        QStyleOptionHeader opt;
        opt.initFrom(corner);
        // A caption, not a command: not drawn greyed.
        opt.state |= QStyle::State_Enabled;
        opt.palette.setCurrentColorGroup(QPalette::Active);
        opt.rect = corner->rect();
        opt.position = QStyleOptionHeader::OnlyOneSection;
        opt.textAlignment = Qt::AlignCenter;
        opt.text = QStringLiteral("Row");
        painter.drawControl(QStyle::CE_Header, opt);
        return true;
    }
    // Every editor the grid opens is watched for the keys that change a cell's type.
    if ((event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildPolished) && watched == SS1->viewport()) {
        if (QObject* child = static_cast<QChildEvent*>(event)->child())
            child->installEventFilter(this);
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const int row = SS1->ActiveRow();
    const int col = SS1->ActiveCol();
    if (watched == SS1) {
        // Formula cells take no keys; F2 opens the formula itself for editing, "=" first.
        if (key->key() == Qt::Key_F2 && col == gcInfo && SS1->HasFormula(row, col)) {
            const QString formula = SS1->Formula(row, col);
            SS1->SetCellType(row, col, Grid::TypeText);
            SS1->SetCellToolTip(row, col, QString());
            SS1->SetText(row, col, QLatin1Char('=') + formula);
            SS1->edit(SS1->model()->index(row - 1, col - 1));
            return true;
        }
        return false;
    }
    if (watched->parent() == SS1->viewport() && col == gcInfo)
        plainCellKey(row, col, watched, key->text());
    return false;
}

void frmExerciseForms::plainCellKey(int row, int col, QObject* editor, const QString& text)
{
    auto* ed = qobject_cast<QLineEdit*>(editor);
    if (!ed || !TurnsCellToText(text) || SS1->GetCellType(row, col) != Grid::TypeNumber)
        return;
    // A number cell that is given a letter or a formula takes text from now on.
    // The cell's change writes its stored text back into the open editor: keep what is being
    // typed over, selection included.
    const QString typed = ed->text();
    const int start = ed->selectionStart();
    const int length = ed->selectionLength();
    const int cursor = ed->cursorPosition();
    ed->setValidator(nullptr);
    SS1->SetCellType(row, col, Grid::TypeText);
    ed->setText(typed);
    if (start >= 0)
        ed->setSelection(start, length);
    else
        ed->setCursorPosition(cursor);
}

// ---- commands -----------------------------------------------------------------------------

void frmExerciseForms::on_opt_changed()
{
    if (m_loading)
        return;
    clearForm();
    fillList();
}

void frmExerciseForms::on_lstEndurance_changed()
{
    if (m_loading)
        return;
    loadItem();
}

void frmExerciseForms::on_SS1_edited(int row, int col)
{
    if (m_loading)
        return;
    if (col == gcInfo) {
        // Leaving a value cell: a formula, a number or a text; a list cell is left alone.
        const QString text = SS1->Text(row, col);
        const Grid::CellType type = SS1->GetCellType(row, col);
        if (type != Grid::TypeList && type != Grid::TypeFormula) {
            QScopedValueRollback<bool> loading(m_loading, true);
            if (text.trimmed().startsWith(QLatin1Char('=')))
                SS1->SetFormula(row, col, text);
            else if (IsNumeric(text) && Val(text) != 0)
                SS1->SetCellType(row, col, Grid::TypeNumber);
            else if (!IsNumeric(text) && !text.isEmpty())
                SS1->SetCellType(row, col, Grid::TypeText);
        }
    }
    changed();
}

void frmExerciseForms::on_cmdAdd_clicked()
{
    if (SS1->MaxRows() > MaxTemplateRows) {
        Inform(QStringLiteral("Maximum of 50 rows per template."));
        return;
    }
    QString result;
    {
        frmSelections dlg(frmSelections::PickForForm, this);
        ShowModal(&dlg);
        result = dlg.Result();
    }
    if (result.isEmpty())
        return;
    const QStringList tokens = result.split(QLatin1Char('\t'));
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        const int row = SS1->AddRow();
        SS1->SetText(row, gcName, tokens.value(0));
        loadunits(row, tokens.value(1));
        FormatData();
        SS1->SetActiveCell(row, gcInfo);
    }
    changed();
}

void frmExerciseForms::on_cmdDeleteField_clicked()
{
    int top = 0, bottom = 0;
    if (!SS1->SelectedRowBlock(&top, &bottom))
        return;
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->BeginUpdate();
        for (int r = bottom; r >= top; --r)
            SS1->DeleteRow(r);
        SS1->EndUpdate();
        SS1->clearSelection();
    }
    changed();
}

void frmExerciseForms::on_cmdUp_clicked() { moveBlock(-1); }
void frmExerciseForms::on_cmdDown_clicked() { moveBlock(1); }

void frmExerciseForms::on_cmdNew_clicked()
{
    clearForm();
    txtExerciseName->setFocus();
}

void frmExerciseForms::on_cmdSave_clicked() { saveExercise(); }

void frmExerciseForms::on_cmdDelete_clicked()
{
    QListWidgetItem* line = lstEndurance->currentItem();
    if (!line || !line->isSelected())
        return;
    const QString name = line->text();
    // Only this spelling stands for the interval plan.
    if (name == kReserved) {
        Inform(QStringLiteral("Intervals are a reserved exercise and cannot be deleted."));
        return;
    }
    if (MsgBox(QStringLiteral("Delete this Exercise/Sport?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    const QString category = Category().toLower();
    {
        StoreTransaction transaction(LibraryConn);
        SqlText = "delete * from endurance_exercises where exercise='" + SqlQuote(name) + "' and category='" + category + "'";
        LibraryConn.Execute(SqlText);
        SqlText = "delete * from endurance_templates where name='" + SqlQuote(name) + "' and category='" + category + "'";
        LibraryConn.Execute(SqlText);
        transaction.Commit();
    }
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        delete lstEndurance->takeItem(lstEndurance->row(line));
    }
    clearForm();
    if (lstEndurance->count() > 0) {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            lstEndurance->setCurrentRow(0);
            lstEndurance->item(0)->setSelected(true);
        }
        loadItem();
    }
}
