#include "exercise/intervalspanel.h"

#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
const char* const Columns[5] = {"Set", "Description", "Instruction", "Rest", "Intensity"};
QString Msg() { return QStringLiteral("Message"); }
}  // namespace

IntervalsPanel::IntervalsPanel(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("IntervalsPanel"));
    QScopedValueRollback<bool> loading(m_loading, true);
    cboIntervals = form::Named(new QComboBox(this), QStringLiteral("cboIntervals"));
    cboIntervals->setEditable(true);
    cboIntervals->setInsertPolicy(QComboBox::NoInsert);
    cboIntervals->lineEdit()->setMaxLength(NameLength);
    cboIntervals->setMinimumWidth(220);
    Spin1 = form::Named(new QSpinBox(this), QStringLiteral("Spin1"));
    Spin1->setRange(0, 500);
    cmdClearIntervals = form::Button(QStringLiteral("cmdClearIntervals"), QStringLiteral("&New"),
                                     QStringLiteral("Clear Intervals"));
    cmdDelInterval = form::Button(QStringLiteral("cmdDelInterval"), QStringLiteral("De&lete"),
                                  QStringLiteral("Delete Interval Template"));
    cmdSaveInterval = form::Button(QStringLiteral("cmdSaveInterval"), QStringLiteral("Sa&ve"),
                                   QStringLiteral("Save Interval Template"));
    cmdDelInterval->setEnabled(false);
    cmdSaveInterval->setEnabled(false);

    SS1 = form::Named(new Grid(this), QStringLiteral("SS1"));
    SS1->SetMaxCols(5);
    SS1->SetColumnHeaders({QStringLiteral("Set"), QStringLiteral("Description"), QStringLiteral("Instruction"),
                           QStringLiteral("Recovery"), QStringLiteral("Intensity")});
    SS1->SetColumnWidthChars(1, 8);
    SS1->SetColumnWidthChars(2, 30);
    SS1->SetColumnWidthChars(3, 30);
    SS1->SetColumnWidthChars(4, 14);
    SS1->SetColumnWidthChars(5, 12);
    SS1->SetMaxLength(1, 50);
    SS1->SetMaxLength(2, 255);
    SS1->SetMaxLength(3, 255);
    SS1->SetMaxLength(4, 50);
    SS1->SetMaxLength(5, 50);
    SS1->setAccessibleName(QStringLiteral("Intervals"));

    auto* top = new QHBoxLayout;
    QLabel* caption = form::Caption(QStringLiteral("&Template"), cboIntervals);
    caption->setMinimumWidth(caption->sizeHint().width());
    top->addWidget(caption);
    top->addWidget(cboIntervals, 1);
    top->addWidget(cmdClearIntervals);
    top->addWidget(cmdDelInterval);
    top->addWidget(cmdSaveInterval);
    top->addSpacing(16);
    top->addWidget(form::Caption(QStringLiteral("Se&ts"), Spin1));
    top->addWidget(Spin1);
    auto* v = new QVBoxLayout(this);
    v->addLayout(top);
    v->addWidget(SS1, 1);
    auto* lblSS1 = new QLabel(QStringLiteral("&Intervals"), this);
    lblSS1->setBuddy(SS1);
    lblSS1->hide();   // the accelerator reaches the grid; its columns say what it is

    QWidget::setTabOrder(cboIntervals, cmdClearIntervals);
    QWidget::setTabOrder(cmdClearIntervals, cmdDelInterval);
    QWidget::setTabOrder(cmdDelInterval, cmdSaveInterval);
    QWidget::setTabOrder(cmdSaveInterval, Spin1);
    QWidget::setTabOrder(Spin1, SS1);

    connect(cboIntervals, &QComboBox::activated, this, [this](int index) { SelectTemplate(index); });
    connect(cboIntervals, &QComboBox::editTextChanged, this, [this](const QString& text) {
        if (m_loading) return;
        cmdSaveInterval->setEnabled(!text.isEmpty());
        changed();
    });
    connect(Spin1, &QSpinBox::valueChanged, this, [this](int n) {
        if (m_loading) return;
        SetRows(n);
        changed();
    });
    connect(SS1, &Grid::CellEdited, this, [this] { changed(); });
    QMetaObject::connectSlotsByName(this);
}

void IntervalsPanel::changed()
{
    if (!m_loading)
        emit Changed();
}

void IntervalsPanel::numberRows(int from)
{
    for (int r = std::max(1, from); r <= SS1->MaxRows(); ++r)
        SS1->SetText(r, 0, QString::number(r));
}

void IntervalsPanel::SetRows(int rows)
{
    const int old = SS1->MaxRows();
    SS1->SetMaxRows(std::max(0, rows));
    numberRows(old + 1);
    if (Spin1->value() != rows) {
        QScopedValueRollback<bool> loading(m_loading, true);
        Spin1->setValue(rows);
    }
}

void IntervalsPanel::LoadIntervals()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    const QString text = cboIntervals->currentText();
    cboIntervals->clear();
    listfill::FillList(cboIntervals, LibraryRS, QStringLiteral("select distinct name from Intervals"),
                       QStringLiteral("name"), QString(), true);
    cboIntervals->setCurrentIndex(-1);
    cboIntervals->setEditText(text);
}

void IntervalsPanel::SelectTemplate(int index)
{
    if (index < 0 || index >= cboIntervals->count())
        return;
    Guard([this, index] {
        cmdDelInterval->setEnabled(true);
        const QString name = cboIntervals->itemText(index);
        QList<QStringList> rows;
        // The template's name goes in as it is typed.
        ForEachRow(LibraryRS, QStringLiteral("select * from Intervals where name='") + name + QStringLiteral("'"),
                   [&rows](Recordset& rs) {
                       QStringList row;
                       for (const char* c : Columns)
                           row << Str(rs.Field(QString::fromLatin1(c)));
                       rows << row;
                   });
        if (rows.isEmpty())
            return;
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->BeginUpdate();
        SS1->SetMaxRows(0);
        SetRows(int(rows.size()));
        for (int r = 0; r < rows.size(); ++r)
            for (int c = 0; c < 5; ++c)
                SS1->SetText(r + 1, c + 1, rows[r][c]);
        SS1->EndUpdate();
        emit Changed();
    });
}

void IntervalsPanel::LoadSession(const QDate& date, const QString& key)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    QString name;
    QList<QStringList> rows;
    SqlText = QStringLiteral("select * from Daily_Intervals where User_ID='") + CurrentUserID +
              QStringLiteral("' and Date=#") + SqlDate(date) + QStringLiteral("# and key='") + SqlQuote(key) +
              QStringLiteral("'");
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        if (rows.isEmpty())
            name = Str(rs.Field(QStringLiteral("Name")));
        QStringList row;
        for (const char* c : Columns)
            row << Str(rs.Field(QString::fromLatin1(c)));
        rows << row;
    });
    if (rows.isEmpty())
        return;
    const int i = cboIntervals->findText(name, Qt::MatchExactly);
    cboIntervals->setCurrentIndex(i);
    if (i < 0)
        cboIntervals->setEditText(name);
    cmdDelInterval->setEnabled(i >= 0);
    SS1->BeginUpdate();
    SS1->SetMaxRows(0);
    SetRows(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r)
        for (int c = 0; c < 5; ++c)
            SS1->SetText(r + 1, c + 1, rows[r][c]);
    SS1->EndUpdate();
}

void IntervalsPanel::SaveSession(const QDate& date, const QString& /*name*/, const QString& key)
{
    UserConn.Execute(QStringLiteral("delete * from Daily_Intervals where User_ID='") + CurrentUserID +
                     QStringLiteral("' and date=#") + SqlDate(date) + QStringLiteral("# and key='") + SqlQuote(key) +
                     QStringLiteral("'"));
    if (SS1->MaxRows() == 0)
        return;
    // The rows carry the template's name, so the session finds its template again.
    const QString templateName = cboIntervals->currentText().left(NameLength);
    RecordsetScope scope(UserRS);
    UserRS.Open(QStringLiteral("Daily_Intervals"));
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("Date"), date);
        UserRS.SetField(QStringLiteral("Name"), templateName);
        UserRS.SetField(QStringLiteral("Key"), key);
        for (int c = 0; c < 5; ++c)
            UserRS.SetField(QString::fromLatin1(Columns[c]), SS1->Text(r, c + 1));
        UserRS.Update();
    }
}

void IntervalsPanel::on_cmdSaveInterval_clicked()
{
    Guard([this] {
        if (SS1->MaxRows() == 0) {
            MsgBox(QStringLiteral("Please add an interval before saving."), vbInformation, Msg());
            return;
        }
        const QString name = cboIntervals->currentText().left(NameLength);
        {
            StoreTransaction transaction(LibraryConn);
            LibraryConn.Execute(QStringLiteral("delete * from Intervals where name='") + name + QStringLiteral("'"));
            RecordsetScope scope(LibraryRS);
            LibraryRS.Open(QStringLiteral("Intervals"));
            for (int r = 1; r <= SS1->MaxRows(); ++r) {
                if (SS1->Text(r, 1).isEmpty())
                    continue;
                LibraryRS.AddNew();
                LibraryRS.SetField(QStringLiteral("Name"), name);
                for (int c = 0; c < 5; ++c)
                    LibraryRS.SetField(QString::fromLatin1(Columns[c]), SS1->Text(r, c + 1));
                LibraryRS.Update();
            }
            LibraryRS.Close();
            transaction.Commit();
        }
        cmdSaveInterval->setEnabled(false);
        if (cboIntervals->findText(name, Qt::MatchExactly) < 0) {
            QScopedValueRollback<bool> loading(m_loading, true);
            cboIntervals->addItem(name);
            cboIntervals->setCurrentIndex(cboIntervals->count() - 1);
            cmdDelInterval->setEnabled(true);
        }
        MsgBox(QStringLiteral("Interval Template Saved."), vbInformation, Msg());
    });
}

void IntervalsPanel::on_cmdDelInterval_clicked()
{
    const int index = cboIntervals->currentIndex();
    if (index < 0)
        return;
    if (MsgBox(QStringLiteral("Delete Interval Template?"), vbYesNo + vbQuestion, Msg()) != vbYes)
        return;
    Guard([this, index] {
        LibraryConn.Execute(QStringLiteral("delete * from Intervals where name='") + cboIntervals->itemText(index) +
                            QStringLiteral("'"));
        QScopedValueRollback<bool> loading(m_loading, true);
        cboIntervals->removeItem(index);
        cboIntervals->setCurrentIndex(-1);
        cboIntervals->setEditText(QString());
        cmdDelInterval->setEnabled(false);
        SS1->SetMaxRows(0);
        SetRows(0);
        emit Changed();
    });
}

void IntervalsPanel::on_cmdClearIntervals_clicked()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->SetMaxRows(0);
        SetRows(1);
        SS1->SetText(1, 1, QStringLiteral("1"));
        cboIntervals->setCurrentIndex(-1);
        cboIntervals->setEditText(QString());
        cmdSaveInterval->setEnabled(false);
        cmdDelInterval->setEnabled(false);
    }
    emit Changed();
}
