#include "exercise/frmSelections.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/ListFill.h"

namespace {

const QString kMessage = QStringLiteral("Message");
void Inform(const QString& text) { MsgBox(text, vbOKOnly + vbInformation, kMessage); }

}  // namespace

frmSelections::frmSelections(Use use, QWidget* parent) : QDialog(parent), m_use(use)
{
    setObjectName(QStringLiteral("frmSelections"));
    setWindowTitle(QStringLiteral("Manage Selection Fields"));
    buildUi();
    // Picking a field for a form needs "&OK"; the plain manager has none.
    cmdOK->setVisible(m_use == PickForForm);
    Guard([this] { FillFields(); });
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(false);
    CenterForm(this);
}

void frmSelections::buildUi()
{
    resize(460, 420);
    cboSelect = form::Named(new QComboBox, QStringLiteral("cboSelect"), QStringLiteral("Select a Field"));
    cboSelect->setEditable(true);
    cboSelect->setInsertPolicy(QComboBox::NoInsert);
    cboSelect->lineEdit()->setMaxLength(50);   // DefaultUnits.Name
    cboSelect->setMaxVisibleItems(20);
    txtSelect = form::Named(new QPlainTextEdit, QStringLiteral("txtSelect"),
                            QStringLiteral("Enter the items available for this field."));
    txtSelect->setTabChangesFocus(true);
    lblHint = form::Label(QStringLiteral("lblHint"),
                          QStringLiteral("Enter the selection items in the Items field, use the enter key to separate them."));
    lblHint->setWordWrap(true);

    auto* fields = new QGridLayout;
    form::AddRow(fields, 0, QStringLiteral("&Field Name:"), cboSelect);
    QLabel* items = form::AddRow(fields, 1, QStringLiteral("&Items:"), txtSelect);
    items->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    fields->addWidget(lblHint, 2, 1);
    fields->setRowStretch(1, 1);
    fields->setColumnStretch(1, 1);

    cmdNew = form::Button(QStringLiteral("cmdNew"), QStringLiteral("&New"), QStringLiteral("Clear the fields to enter a new selection field"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"), QStringLiteral("Save this selection field and its items"));
    cmdDelete = form::Button(QStringLiteral("cmdDelete"), QStringLiteral("&Delete"), QStringLiteral("Delete this selection field"));
    cmdOK = form::Button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), QStringLiteral("Add this field to the exercise/sport form"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdNew, cmdSave, cmdDelete})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addLayout(fields, 1);
    main->addLayout(buttons);

    connect(cboSelect, &QComboBox::activated, this, [this](int i) { Guard([&] { on_cboSelect_chosen(i); }); });
    connect(cboSelect, &QComboBox::editTextChanged, this, [this] { fieldsChanged(); });
    connect(txtSelect, &QPlainTextEdit::textChanged, this, [this] { fieldsChanged(); });
    connect(cmdNew, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdNew_clicked(); }); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdSave_clicked(); }); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDelete_clicked(); }); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdOK_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &frmSelections::reject);
}

QString frmSelections::fieldName() const { return cboSelect->currentText().trimmed(); }

void frmSelections::fieldsChanged()
{
    if (m_loading)
        return;
    cmdSave->setEnabled(!fieldName().isEmpty() && !txtSelect->toPlainText().trimmed().isEmpty());
}

void frmSelections::FillFields()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    const QString text = cboSelect->currentText();
    cboSelect->clear();
    SqlText = QStringLiteral("select distinct name from DefaultUnits where unit is not null order by name");
    listfill::FillList(cboSelect, LibraryRS, SqlText, QStringLiteral("name"), QString(), true);
    cboSelect->setCurrentIndex(-1);
    cboSelect->setEditText(text);
}

void frmSelections::on_cboSelect_chosen(int index)
{
    if (m_loading || index < 0)
        return;
    QScopedValueRollback<bool> loading(m_loading, true);
    QStringList items;
    SqlText = "select unit,mtype from DefaultUnits where name='" + SqlQuote(cboSelect->itemText(index)) + "'";
    ForEachRow(LibraryRS, SqlText, [&items](Recordset& rs) {
        if (!IsNull(rs.Field("unit")))
            items << Str(rs.Field("unit"));
    });
    txtSelect->setPlainText(items.join(QStringLiteral("\r\n")));
    cmdDelete->setEnabled(true);
    // What is shown is what is stored: nothing to save until it changes.
    cmdSave->setEnabled(false);
}

void frmSelections::on_cmdSave_clicked()
{
    const QString name = fieldName();
    if (name.isEmpty())
        return;
    const QString text = txtSelect->toPlainText();
    QStringList items;
    for (QString item : text.split(QLatin1Char('\n'))) {
        item = item.trimmed();
        if (item.length() > MaxItemLength) {
            Inform(item + " is too long.  Items cannot be longer than 15 characters.  Please adjust this item before saving.");
            return;
        }
        item.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
        if (!item.isEmpty())
            items << item;
    }
    if (text.trimmed().isEmpty())
        return;

    {
        // The field's list is replaced whole, or not at all.
        StoreTransaction transaction(LibraryConn);
        SqlText = "delete * from defaultunits where name='" + SqlQuote(name) + "'";
        LibraryConn.Execute(SqlText);
        RecordsetScope scope(LibraryRS);
        LibraryRS.Open(QStringLiteral("DefaultUnits"), &LibraryConn);
        for (const QString& item : items) {
            LibraryRS.AddNew();
            LibraryRS.SetField("Name", name);
            LibraryRS.SetField("unit", item);
            LibraryRS.Update();
        }
        LibraryRS.Close();
        transaction.Commit();
    }
    FillFields();
    cmdSave->setEnabled(false);
    cmdDelete->setEnabled(true);
    Inform(QStringLiteral("Selection Field information saved."));
}

void frmSelections::on_cmdNew_clicked()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        cboSelect->setCurrentIndex(-1);
        cboSelect->setEditText(QString());
        txtSelect->clear();
    }
    cmdDelete->setEnabled(false);
    cmdSave->setEnabled(false);
    cboSelect->setFocus();
}

void frmSelections::on_cmdDelete_clicked()
{
    const QString name = fieldName();
    if (name.isEmpty())
        return;
    if (MsgBox(QStringLiteral("Delete this selection field?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    SqlText = "delete * from defaultunits where name='" + SqlQuote(name) + "'";
    LibraryConn.Execute(SqlText);
    on_cmdNew_clicked();
    FillFields();
}

void frmSelections::on_cmdOK_clicked()
{
    if (cmdSave->isEnabled()) {
        Inform(QStringLiteral("Please save selection field before adding it to the exercise/sport form."));
        return;
    }
    m_result = fieldName() + QLatin1Char('\t') + QStringLiteral("selection");
    accept();
}

void frmSelections::reject()
{
    // Closed without "&OK": the caller takes it as a cancel.
    m_result.clear();
    QDialog::reject();
}

void frmSelections::closeEvent(QCloseEvent* event)
{
    m_result.clear();
    QDialog::closeEvent(event);
}
