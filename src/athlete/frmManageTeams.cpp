#include "athlete/frmManageTeams.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/widgets/ListFill.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

frmManageTeams::frmManageTeams(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmManageTeams"));
    setWindowTitle(QStringLiteral("Manage Teams"));

    Combo1 = new QComboBox;
    Combo1->setObjectName(QStringLiteral("Combo1"));
    lstGroups = new QListWidget;
    lstGroups->setObjectName(QStringLiteral("lstGroups"));
    cmdSave = new QPushButton(QStringLiteral("&Save"));
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdClose = new QPushButton(QStringLiteral("&Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    for (QPushButton* b : {cmdSave, cmdClose}) b->setAutoDefault(false);

    auto* athlete = new QLabel(QStringLiteral("&Athlete Name"));
    athlete->setBuddy(Combo1);
    auto* coach = new QLabel(QStringLiteral("C&oach"));
    coach->setBuddy(lstGroups);

    auto* g = new QGridLayout(this);
    g->addWidget(athlete, 0, 0);
    g->addWidget(Combo1, 0, 1);
    g->addWidget(coach, 1, 0, 1, 2);
    g->addWidget(lstGroups, 2, 0, 1, 2);
    auto* b = new QHBoxLayout;
    b->addStretch();
    b->addWidget(cmdSave);
    b->addWidget(cmdClose);
    g->addLayout(b, 3, 0, 1, 2);
    g->setColumnStretch(1, 1);

    connect(cmdSave, &QPushButton::clicked, this, &frmManageTeams::on_cmdSave_clicked);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    resize(380, 400);

    Guard([this] {
        LoadGroups();
        LoadAthletes();
    });
    connect(Combo1, &QComboBox::currentIndexChanged, this, [this] { Guard([this] { LoadAssociations(); }); });
    Guard([this] { LoadAssociations(); });
}

void frmManageTeams::LoadAthletes()
{
    Combo1->clear();
    UserRS.Close();
    SqlText = QStringLiteral("select * from User_Info");
    ForEachRow(UserRS, SqlText,
               [this](Recordset& rs) { Combo1->addItem(Str(rs.Field("Name")), Str(rs.Field("User_ID"))); });
    const int signedIn = Combo1->findData(CurrentUserID);
    Combo1->setCurrentIndex(signedIn >= 0 ? signedIn : (Combo1->count() ? 0 : -1));
}

void frmManageTeams::LoadGroups()
{
    lstGroups->clear();
    UserRS.Close();
    SqlText = QStringLiteral("select * from User_Groups");
    listfill::FillList(lstGroups, UserRS, SqlText, [](QListWidget* list, Recordset& rs) {
        auto* item = new QListWidgetItem(Str(rs.Field("Name")));
        item->setData(Qt::UserRole, Str(rs.Field("Group_ID")));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        list->addItem(item);
    });
}

void frmManageTeams::LoadAssociations()
{
    for (int i = 0; i < lstGroups->count(); ++i) lstGroups->item(i)->setCheckState(Qt::Unchecked);
    if (Combo1->currentIndex() < 0) return;
    const QString id = Combo1->currentData().toString();
    UserRS.Close();
    SqlText = "select * from user_associations where User_ID=" + id;
    ForEachRow(UserRS, SqlText, [this](Recordset& rs) {
        const QString group = Str(rs.Field("Group_ID"));
        for (int i = 0; i < lstGroups->count(); ++i)
            if (lstGroups->item(i)->data(Qt::UserRole).toString() == group)
                lstGroups->item(i)->setCheckState(Qt::Checked);
    });
}

void frmManageTeams::on_cmdSave_clicked()
{
    if (Combo1->currentIndex() < 0) return;
    const QString id = Combo1->currentData().toString();
    Guard([&] {
        // The athlete's old teams go only when the new ones are there.
        StoreTransaction teams(UserConn);
        UserConn.Execute("delete from user_associations where User_ID=" + id);
        for (int i = 0; i < lstGroups->count(); ++i) {
            QListWidgetItem* item = lstGroups->item(i);
            if (item->checkState() != Qt::Checked) continue;
            UserRS.Close();
            UserRS.Open(QStringLiteral("user_associations"));
            UserRS.AddNew();
            UserRS.SetField("User_ID", Val(id));
            UserRS.SetField("Group_ID", Val(item->data(Qt::UserRole).toString()));
            UserRS.Update();
            UserRS.Close();
        }
        teams.Commit();
    });
}
