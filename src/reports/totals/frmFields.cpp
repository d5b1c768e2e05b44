#include "reports/totals/frmFields.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"

namespace {

// A check list under its caption, with its Check All, Clear All and Invert buttons.
QWidget* ListBox(QWidget* parent, const QString& caption, QListWidget* list, QPushButton* check, QPushButton* clear,
                 QPushButton* invert)
{
    auto* box = new QWidget(parent);
    auto* v = new QVBoxLayout(box);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(form::Caption(caption, list));
    v->addWidget(list, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(check);
    row->addWidget(clear);
    row->addWidget(invert);
    v->addLayout(row);
    return box;
}

void AddEntry(QListWidget* list, Recordset& rs)
{
    auto* item = new QListWidgetItem(Str(rs.Field(QStringLiteral("Name"))), list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Val(rs.Field(QStringLiteral("Display"))) != 0 ? Qt::Checked : Qt::Unchecked);
}

}  // namespace

frmFields::frmFields(QWidget* parent, Page page) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFields"));
    setWindowTitle(QStringLiteral("Fields"));
    static const char* const kSelect[15] = {"Check All", "Clear All", "Check All", "Clear All", "Check All",
                                            "Clear All", "Check All", "Clear All", "Check All", "Clear All",
                                            "Invert",    "Invert",    "Invert",    "Invert",    "Invert"};
    for (int i = 0; i < 15; ++i) {
        cmdSelect[i] = form::Button(QStringLiteral("cmdSelect%1").arg(i), QString::fromLatin1(kSelect[i]));
        connect(cmdSelect[i], &QPushButton::clicked, this, [this, i] { Select(i); });
    }
    auto makeList = [this](const char* name, const QString& accessible) {
        auto* l = form::Named(new QListWidget(this), QString::fromLatin1(name));
        l->setAccessibleName(accessible);
        return l;
    };
    lstWellness = makeList("lstWellness", QStringLiteral("Wellness fields"));
    lstNutrition = makeList("lstNutrition", QStringLiteral("Nutrition fields"));
    lstExercise = makeList("lstExercise", QStringLiteral("Exercise/Sports fields"));
    lstWorkout = makeList("lstWorkout", QStringLiteral("Strength Training fields"));
    lstNutrients = makeList("lstNutrients", QStringLiteral("Nutrients"));

    auto* summary = new QWidget(this);
    auto* grid = new QGridLayout(summary);
    grid->addWidget(ListBox(summary, QStringLiteral("&Wellness"), lstWellness, cmdSelect[2], cmdSelect[3], cmdSelect[12]), 0, 0);
    grid->addWidget(ListBox(summary, QStringLiteral("N&utrition"), lstNutrition, cmdSelect[4], cmdSelect[5], cmdSelect[13]), 0, 1);
    grid->addWidget(ListBox(summary, QStringLiteral("&Exercise/Sports"), lstExercise, cmdSelect[6], cmdSelect[7], cmdSelect[14]), 1, 0);
    grid->addWidget(ListBox(summary, QStringLiteral("S&trength Training"), lstWorkout, cmdSelect[8], cmdSelect[9], cmdSelect[10]), 1, 1);
    auto* nutrients = new QWidget(this);
    auto* nv = new QVBoxLayout(nutrients);
    nv->addWidget(ListBox(nutrients, QStringLiteral("Nut&rients"), lstNutrients, cmdSelect[0], cmdSelect[1], cmdSelect[11]));
    lstNutrients->setFlow(QListView::TopToBottom);
    lstNutrients->setWrapping(true);
    lstNutrients->setResizeMode(QListView::Adjust);

    Pages = form::Named(new QTabWidget(this), QStringLiteral("Pages"));
    Pages->addTab(summary, QStringLiteral("Summary"));
    Pages->addTab(nutrients, QStringLiteral("Nutrients"));
    Pages->setCurrentIndex(page == pageNutrients ? 1 : 0);

    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    cmdCancel = form::Button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Pages, 1);
    layout->addLayout(buttons);
    connect(cmdSave, &QPushButton::clicked, this, [this] { Guard([this] { on_cmdSave_clicked(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    Guard([this] { Load(); });
    resize(640, 520);
    CenterForm(this);
}

void frmFields::Load()
{
    long record = 0;
    ForEachRow(UserRS, QStringLiteral("select * from Summary_Display"), [&](Recordset& rs) {
        ++record;
        if (record >= 2 && record <= 4) AddEntry(lstWellness, rs);
        else if (record >= 5 && record <= 8) AddEntry(lstNutrition, rs);
        else if (record >= 9 && record <= 12) {
            // No step fills the exercise "Accomp Goals": it is not offered.
            if (Str(rs.Field(QStringLiteral("Name"))) != QLatin1String("Accomp Goals")) AddEntry(lstExercise, rs);
        } else if (record >= 13 && record <= 16) AddEntry(lstWorkout, rs);
    });
    ForEachRow(UserRS, QStringLiteral("select * from Nutrient_Display"), [&](Recordset& rs) { AddEntry(lstNutrients, rs); });
}

void frmFields::Select(int index)
{
    static const int kTarget[15] = {4, 4, 0, 0, 1, 1, 2, 2, 3, 3, 3, 4, 0, 1, 2};
    QListWidget* lists[5] = {lstWellness, lstNutrition, lstExercise, lstWorkout, lstNutrients};
    QListWidget* list = lists[kTarget[index]];
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem* it = list->item(i);
        if (index >= 10)
            it->setCheckState(it->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        else
            it->setCheckState(index % 2 == 0 ? Qt::Checked : Qt::Unchecked);
    }
}

void frmFields::on_cmdSave_clicked()
{
    auto save = [](const char* table, QListWidget* list, int first) {
        for (int i = 0; i < list->count(); ++i)
            UserConn.Execute(QStringLiteral("update %1 set display = %2 where fNumber = %3")
                                 .arg(QLatin1String(table),
                                      list->item(i)->checkState() == Qt::Checked ? QStringLiteral("true") : QStringLiteral("false"))
                                 .arg(first + i));
    };
    save("Summary_Display", lstWellness, 1);
    save("Summary_Display", lstNutrition, 4);
    save("Summary_Display", lstExercise, 8);
    save("Summary_Display", lstWorkout, 12);
    save("Nutrient_Display", lstNutrients, 1);
    accept();
}
