#include "strength/frmMuscleGroup.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
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

frmMuscleGroup::frmMuscleGroup(const QString& exercise, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmMuscleGroup"));
    setWindowTitle(QStringLiteral("Muscle Groups Associations"));

    cboExercise = form::Named(new QComboBox, QStringLiteral("cboExercise"),
                              QStringLiteral("The exercise whose muscle groups are shown"));
    cboExercise->setMinimumWidth(260);
    lblMainAss = form::Label(QStringLiteral("lblMainAss"));
    List1 = form::Named(new QListWidget, QStringLiteral("List1"),
                        QStringLiteral("Select every further muscle group this exercise works"));
    List1->setSelectionMode(QAbstractItemView::MultiSelection);
    auto* close = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout;
    form::AddRow(grid, 0, QStringLiteral("&Exercise:"), cboExercise);
    auto* mainCaption = new QLabel(QStringLiteral("Major muscle group:"));
    grid->addWidget(mainCaption, 1, 0);
    grid->addWidget(lblMainAss, 1, 1);
    lblMainAss->setAccessibleName(QStringLiteral("Major muscle group"));
    QLabel* minor = form::AddRow(grid, 2, QStringLiteral("&Minor groups:"), List1);
    minor->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto* main = new QVBoxLayout(this);
    main->addLayout(grid, 1);
    main->addLayout(buttons);
    resize(460, 480);

    connect(cboExercise, &QComboBox::currentIndexChanged, this, [this] { Guard([&] { on_cboExercise_changed(); }); });
    connect(List1, &QListWidget::itemClicked, this, [this] { Guard([&] { on_List1_clicked(); }); });

    Guard([&] {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            listfill::FillList(cboExercise, LibraryRS, QStringLiteral("select distinct Exercise from Strength_Exercises"),
                               QStringLiteral("Exercise"), QString(), true);
            cboExercise->setCurrentIndex(-1);
        }
        if (!exercise.isEmpty())
            SelectListItem(cboExercise, exercise);
    });
    CenterForm(this);
}

void frmMuscleGroup::on_cboExercise_changed()
{
    if (m_loading)
        return;
    QScopedValueRollback<bool> loading(m_loading, true);
    const QString exercise = cboExercise->currentText();
    lblMainAss->clear();
    SqlText = QStringLiteral("select muscle_group from strength_exercises where exercise ='") + SqlQuote(exercise) + "'";
    FirstRow(LibraryRS, SqlText, [this](Recordset& rs) { lblMainAss->setText(Str(rs.Field(0))); });
    FillMuscleList();
}

void frmMuscleGroup::FillMuscleList()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    List1->clear();
    const QString main = lblMainAss->text();
    listfill::FillList(List1, LibraryRS, QStringLiteral("select distinct group from muscle_groups"),
                       [&main](QListWidget* list, Recordset& rs) {
                           const QString group = Str(rs.Field(0));
                           if (group != main)
                               list->addItem(group);
                       });
    List1->clearSelection();
    SqlText = QStringLiteral("select * from muscle_associations where exercise='") + SqlQuote(cboExercise->currentText()) + "'";
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) {
        const QString group = Str(rs.Field(QStringLiteral("muscle_group")));
        for (int i = 0; i < List1->count(); ++i)
            if (List1->item(i)->text() == group)
                List1->item(i)->setSelected(true);
    });
}

void frmMuscleGroup::on_List1_clicked()
{
    if (m_loading || cboExercise->currentIndex() < 0)
        return;
    const QString exercise = cboExercise->currentText();
    StoreTransaction transaction(LibraryConn);
    SqlText = QStringLiteral("delete from muscle_associations where exercise='") + SqlQuote(exercise) + "'";
    LibraryConn.Execute(SqlText);
    RecordsetScope scope(LibraryRS);
    LibraryRS.Open(QStringLiteral("muscle_associations"), &LibraryConn);
    for (int i = 0; i < List1->count(); ++i) {
        if (!List1->item(i)->isSelected())
            continue;
        LibraryRS.AddNew();
        LibraryRS.SetField(QStringLiteral("exercise"), exercise);
        LibraryRS.SetField(QStringLiteral("muscle_group"), List1->item(i)->text());
        LibraryRS.Update();
    }
    LibraryRS.Close();
    transaction.Commit();
}
