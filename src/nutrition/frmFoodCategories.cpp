#include "nutrition/frmFoodCategories.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/ListFill.h"

frmFoodCategories::frmFoodCategories(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFoodCategories"));
    setWindowTitle(QStringLiteral("Food Categories"));
    resize(380, 460);
    cboType = new QComboBox(this);
    cboType->setObjectName(QStringLiteral("cboType"));
    lstGroups = new QListWidget(this);
    lstGroups->setObjectName(QStringLiteral("lstGroups"));
    txtGroup = new QLineEdit(this);
    txtGroup->setObjectName(QStringLiteral("txtGroup"));
    cmdAdd = new QPushButton(QStringLiteral("&Add"), this);
    cmdAdd->setObjectName(QStringLiteral("cmdAdd"));
    cmdDelete = new QPushButton(QStringLiteral("&Delete"), this);
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdClose = new QPushButton(QStringLiteral("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    for (auto* b : {cmdAdd, cmdDelete, cmdClose})
        b->setAutoDefault(false);

    auto* form = new QFormLayout;
    auto* lblType = new QLabel(QStringLiteral("&Type:"), this);
    lblType->setBuddy(cboType);
    form->addRow(lblType, cboType);
    auto* lblGroups = new QLabel(QStringLiteral("Ca&tegories:"), this);
    lblGroups->setBuddy(lstGroups);
    auto* lblNew = new QLabel(QStringLiteral("&New category:"), this);
    lblNew->setBuddy(txtGroup);
    auto* addRow = new QHBoxLayout;
    addRow->addWidget(txtGroup, 1);
    addRow->addWidget(cmdAdd);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);
    auto* lay = new QVBoxLayout(this);
    lay->addLayout(form);
    lay->addWidget(lblGroups);
    lay->addWidget(lstGroups, 1);
    lay->addWidget(lblNew);
    lay->addLayout(addRow);
    lay->addLayout(buttons);

    connect(cboType, &QComboBox::currentIndexChanged, this, [this] { Guard([&] { LoadGroups(); }); });
    connect(cmdAdd, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdAdd_clicked(); }); });
    connect(txtGroup, &QLineEdit::returnPressed, this, [this] { Guard([&] { on_cmdAdd_clicked(); }); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdDelete_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    Guard([this] { LoadTypes(); });
    CenterForm(this);
}

void frmFoodCategories::LoadTypes()
{
    cboType->blockSignals(true);
    cboType->clear();
    SqlText = QStringLiteral("select distinct type from food_groups");
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) { cboType->addItem(Str(rs.Field(0))); });
    const int foods = cboType->findText(QStringLiteral("Foods"));
    cboType->setCurrentIndex(foods >= 0 ? foods : (cboType->count() ? 0 : -1));
    cboType->blockSignals(false);
    LoadGroups();
}

void frmFoodCategories::LoadGroups()
{
    lstGroups->clear();
    SqlText = "select Group,Group_ID from food_groups where type='" + SqlQuote(cboType->currentText()) + "'";
    listfill::FillList(lstGroups, LibraryRS, SqlText, [](QListWidget* list, Recordset& rs) {
        auto* it = new QListWidgetItem(Str(rs.Field(0)), list);
        it->setData(Qt::UserRole, rs.Field(1));
    });
}

void frmFoodCategories::on_cmdAdd_clicked()
{
    const QString name = txtGroup->text();
    const QString type = cboType->currentText();
    if (name.trimmed().isEmpty() || type.isEmpty())
        return;
    SqlText = "select * from food_groups where food_groups.group='" + SqlQuote(name) + "' and type='" +
              SqlQuote(type) + "'";
    if (FirstRow(LibraryRS, SqlText, [](Recordset&) {})) {
        MsgBox(QStringLiteral("This food group already exists."), vbOKOnly + vbInformation, QStringLiteral("Message"));
        return;
    }
    RecordsetScope scope(LibraryRS);
    LibraryRS.Open(QStringLiteral("food_groups"), &LibraryConn);
    LibraryRS.AddNew();
    LibraryRS.SetField("Group", name);
    LibraryRS.SetField("Type", type);
    LibraryRS.Update();
    LibraryRS.Close();
    MsgBox(QStringLiteral("Food Group Added."), vbOKOnly + vbInformation, QStringLiteral("Message"));
    txtGroup->clear();
    LoadGroups();
}

void frmFoodCategories::on_cmdDelete_clicked()
{
    QListWidgetItem* it = lstGroups->currentItem();
    if (!it)
        return;
    if (lstGroups->count() == 1) {
        MsgBox(QStringLiteral("You must have at least one category for the program to function."),
               vbOKOnly + vbInformation, QStringLiteral("Message"));
        return;
    }
    if (MsgBox(QStringLiteral("Delete this food group and all associated foods?"), vbYesNo + vbQuestion,
               QStringLiteral("Action")) != vbYes)
        return;
    const QString id = Str(it->data(Qt::UserRole));
    // The category and its foods go together.
    StoreTransaction transaction(LibraryConn);
    LibraryConn.Execute("delete * from food_groups where group_id=" + id);
    LibraryConn.Execute("delete * from foods where group_id=" + id);
    transaction.Commit();
    LoadGroups();
}
