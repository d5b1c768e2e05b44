#include "nutrition/frmMoveFood.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/ListFill.h"

frmMoveFood::frmMoveFood(const QString& foodName, Mode mode, QWidget* parent)
    : QDialog(parent), m_foodName(foodName), m_mode(mode)
{
    setObjectName(QStringLiteral("frmMoveFood"));
    setWindowTitle(QStringLiteral("Move Food"));
    resize(360, 420);
    lblCaption = new QLabel(QStringLiteral("&Select destination group."), this);
    lstGroups = new QListWidget(this);
    lstGroups->setObjectName(QStringLiteral("lstGroups"));
    lblCaption->setBuddy(lstGroups);
    cmdOK = new QPushButton(QStringLiteral("&OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* lay = new QVBoxLayout(this);
    lay->addWidget(lblCaption);
    lay->addWidget(lstGroups, 1);
    lay->addLayout(buttons);
    connect(cmdOK, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdOK_clicked(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(lstGroups, &QListWidget::itemDoubleClicked, this, [this] { Guard([&] { on_cmdOK_clicked(); }); });

    Guard([this] {
        SqlText = QStringLiteral("select * from food_groups where type = 'Menus' or type='Foods' order by group");
        listfill::FillList(lstGroups, LibraryRS, SqlText, [](QListWidget* list, Recordset& rs) {
            auto* it = new QListWidgetItem(Str(rs.Field("Group")), list);
            it->setData(Qt::UserRole, rs.Field("Group_ID"));
        });
    });
    CenterForm(this);
}

void frmMoveFood::on_cmdOK_clicked()
{
    QListWidgetItem* dest = lstGroups->currentItem();
    if (!dest)
        return;
    const QVariant groupId = dest->data(Qt::UserRole);
    const bool move = m_mode == Move;
    if (move &&
        MsgBox("Are you sure you want to permanently move " + m_foodName + " to the group " + dest->text() + "?",
               vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;

    SqlText = "Select * from foods where foods.name='" + SqlQuote(m_foodName) + "'";
    RecordsetScope scope(LibraryRS);
    LibraryRS.Open(SqlText, &LibraryConn);
    if (LibraryRS.Eof())
        return;
    if (move) {
        LibraryRS.SetField("Group_ID", groupId);
        LibraryRS.Update();
        LibraryRS.Close();
        MsgBox(QStringLiteral("The food has been moved."), vbOKOnly + vbInformation, QStringLiteral("Message"));
    } else {
        QVariantList values;
        for (int i = 1; i < LibraryRS.FieldCount(); ++i)
            values << LibraryRS.Field(i);
        LibraryRS.Close();
        LibraryRS.Open(QStringLiteral("foods"), &LibraryConn);
        LibraryRS.AddNew();
        for (int i = 1; i <= values.size(); ++i)
            LibraryRS.SetField(i, values[i - 1]);
        LibraryRS.SetField("Name", m_foodName + "2");
        LibraryRS.SetField("Group_ID", groupId);
        LibraryRS.Update();
        LibraryRS.Close();
        MsgBox(QStringLiteral("The food has been copied."), vbOKOnly + vbInformation, QStringLiteral("Message"));
    }
    m_completed = true;
    accept();
}
