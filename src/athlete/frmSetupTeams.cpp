#include "athlete/frmSetupTeams.h"
#include "core/shared.h"
#include "core/widgets/Form.h"
#include "core/widgets/ListFill.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

frmSetupTeams::frmSetupTeams(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSetupTeams"));
    setWindowTitle(QStringLiteral("Setup Coaches"));

    lstGroups = new QListWidget;
    lstGroups->setObjectName(QStringLiteral("lstGroups"));
    txtName = form::Edit(QStringLiteral("txtName"), 50);   // user_groups.Name
    cmdAdd = new QPushButton(QStringLiteral("&Add"));
    cmdAdd->setObjectName(QStringLiteral("cmdAdd"));
    cmdDelete = new QPushButton(QStringLiteral("&Delete"));
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdClose = new QPushButton(QStringLiteral("&Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    for (QPushButton* b : {cmdAdd, cmdDelete, cmdClose}) b->setAutoDefault(false);

    auto* coaches = new QLabel(QStringLiteral("C&oaches"));
    coaches->setBuddy(lstGroups);
    auto* name = new QLabel(QStringLiteral("Coach &Name"));
    name->setBuddy(txtName);

    auto* g = new QGridLayout(this);
    g->addWidget(coaches, 0, 0, 1, 2);
    g->addWidget(lstGroups, 1, 0, 1, 2);
    g->addWidget(name, 2, 0);
    g->addWidget(txtName, 2, 1);
    auto* b = new QHBoxLayout;
    b->addWidget(cmdAdd);
    b->addWidget(cmdDelete);
    b->addStretch();
    b->addWidget(cmdClose);
    g->addLayout(b, 3, 0, 1, 2);

    connect(cmdAdd, &QPushButton::clicked, this, &frmSetupTeams::on_cmdAdd_clicked);
    connect(cmdDelete, &QPushButton::clicked, this, &frmSetupTeams::on_cmdDelete_clicked);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(txtName, &QLineEdit::textChanged, this, [this] { cmdAdd->setEnabled(!txtName->text().trimmed().isEmpty()); });
    connect(lstGroups, &QListWidget::itemSelectionChanged, this,
            [this] { cmdDelete->setEnabled(!lstGroups->selectedItems().isEmpty()); });
    cmdAdd->setEnabled(false);
    cmdDelete->setEnabled(false);
    resize(360, 380);
    Guard([this] { loadGroups(); });
}

void frmSetupTeams::loadGroups()
{
    lstGroups->clear();
    UserRS.Close();
    SqlText = QStringLiteral("select * from user_groups order by name");
    listfill::FillList(lstGroups, UserRS, SqlText, [](QListWidget* list, Recordset& rs) {
        auto* item = new QListWidgetItem(Str(rs.Field("Name")));
        item->setData(Qt::UserRole, Str(rs.Field("Group_ID")));
        list->addItem(item);
    });
}

void frmSetupTeams::on_cmdAdd_clicked()
{
    const QString name = txtName->text().trimmed();
    if (name.isEmpty()) return;
    Guard([&] {
        UserRS.Close();
        // The name goes into the check as typed.
        SqlText = "select * from user_groups where name='" + name + "'";
        UserRS.Open(SqlText);
        const bool exists = !UserRS.Eof();
        UserRS.Close();
        if (exists) {
            MsgBox(QStringLiteral("This team already exists."), vbInformation, QStringLiteral("Message"));
            return;
        }
        UserRS.Open(QStringLiteral("user_groups"));
        UserRS.AddNew();
        UserRS.SetField("Name", name);
        UserRS.Update();
        UserRS.Close();
        MsgBox(QStringLiteral("Team/Group Added."), vbInformation, QStringLiteral("Message"));
        txtName->clear();
        loadGroups();
    });
}

void frmSetupTeams::on_cmdDelete_clicked()
{
    QListWidgetItem* item = lstGroups->currentItem();
    if (!item || !item->isSelected()) return;
    const QString id = item->data(Qt::UserRole).toString();
    Guard([&] {
        UserConn.Execute("delete * from user_groups where group_id=" + id);
        MsgBox(QStringLiteral("Team/Group Deleted."), vbInformation, QStringLiteral("Message"));
        loadGroups();
    });
}
