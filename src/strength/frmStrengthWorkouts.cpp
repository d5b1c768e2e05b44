#include "strength/frmStrengthWorkouts.h"

#include <QCheckBox>
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
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"
#include "strength/frmExercise.h"
#include "strength/frmStrengthInfo.h"

std::function<void(const QString& fileName, const workoutpage::Workout& workout, const QString& tags)>& ReportWorkoutLink()
{
    static std::function<void(const QString&, const workoutpage::Workout&, const QString&)> link;
    return link;
}

namespace {

const QString kMessage = QStringLiteral("Message");
const QString kTotalBody = QStringLiteral("Total Body");
const QString kNameTaken = QStringLiteral("A workout with this name already exists.  Please rename your workout.");
// Sizes of the workouts and Workout_exercises columns.
constexpr int NameLength = 50;
constexpr int DescLength = 255;
constexpr int NoteLength = 50;

void Inform(const QString& text) { MsgBox(text, vbOKOnly + vbInformation, kMessage); }

QString Yes(bool on) { return on ? QStringLiteral("Y") : QString(); }

}  // namespace

frmStrengthWorkouts::frmStrengthWorkouts(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmStrengthWorkouts"));
    setWindowTitle(QStringLiteral("Workout Library"));
    buildUi();
    Guard([this] {
        SqlText = "select Workout_in from User_Info where User_ID=" + QString::number(long(Val(CurrentUserID)));
        FirstRow(UserRS, SqlText, [this](Recordset& rs) {
            if (!IsNull(rs.Field(0)))
                m_unit = Str(rs.Field(0));
        });
        FormatGrid();
        FillCombos();
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            optExercise[0]->setChecked(true);
        }
        Loadexercises();
        if (cboType->currentIndex() == 0)
            on_cboType_changed();
        else
            cboType->setCurrentIndex(0);
    });
    if (SelectedItem.contains(QStringLiteral("exerciseinfo"))) {
        Guard([this] { ImportWorkout(); });
        SelectedItem.clear();
    }
    CenterForm(this);
}

void frmStrengthWorkouts::buildUi()
{
    resize(1180, 660);

    auto* fraPlanner = new QGroupBox(QStringLiteral("Strength Training Planner"));

    // The library of workouts.
    cboType = form::Named(new QComboBox, QStringLiteral("cboType"), QStringLiteral("Strength or sports workouts"));
    lstWorkouts = form::Named(new QListWidget, QStringLiteral("lstWorkouts"),
                              QStringLiteral("Select a workout to see its sets"));
    lstWorkouts->setSelectionMode(QAbstractItemView::SingleSelection);
    lstWorkouts->setMinimumWidth(180);
    auto* left = new QVBoxLayout;
    left->addWidget(form::Caption(QStringLiteral("&Type:"), cboType));
    left->addWidget(cboType);
    left->addWidget(form::Caption(QStringLiteral("&Workouts:"), lstWorkouts));
    left->addWidget(lstWorkouts, 1);

    // The exercises to add.
    optExercise[0] = form::Named(new QRadioButton(QStringLiteral("E&xercises")), QStringLiteral("optExercise(0)"),
                                 QStringLiteral("List the strength exercises"));
    optExercise[1] = form::Named(new QRadioButton(QStringLiteral("S&tretches")), QStringLiteral("optExercise(1)"),
                                 QStringLiteral("List the stretches"));
    list1 = form::Named(new QListWidget, QStringLiteral("list1"),
                        QStringLiteral("Double click an exercise to add it to the workout"));
    list1->setMinimumWidth(200);
    cmdAdd = form::Button(QStringLiteral("cmdAdd"), QStringLiteral("&Add"), QStringLiteral("Add the exercise to the workout"));
    cmdInfo = form::Button(QStringLiteral("cmdInfo"), QStringLiteral("In&fo..."),
                           QStringLiteral("Show the description and picture of the exercise"));
    cmdNewExercise = form::Button(QStringLiteral("cmdNewExercise"), QStringLiteral("New &Exercise"),
                                  QStringLiteral("Open the exercise library"));
    auto* opts = new QHBoxLayout;
    opts->addWidget(optExercise[0]);
    opts->addWidget(optExercise[1]);
    opts->addStretch(1);
    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(cmdAdd);
    listButtons->addWidget(cmdInfo);
    listButtons->addWidget(cmdNewExercise);
    auto* middle = new QVBoxLayout;
    middle->addLayout(opts);
    middle->addWidget(form::Caption(QStringLiteral("Exercise &list:"), list1));
    middle->addWidget(list1, 1);
    middle->addLayout(listButtons);

    // The workout.
    lblWorkout = form::Label(QStringLiteral("lblWorkout"), QStringLiteral("Workout"));
    QFont bold = lblWorkout->font();
    bold.setBold(true);
    lblWorkout->setFont(bold);
    txtWorkout = form::Edit(QStringLiteral("txtWorkout"), NameLength, 0, QStringLiteral("The name of the workout"));
    txtComments = form::Edit(QStringLiteral("txtComments"), DescLength, 0, QStringLiteral("A description of the workout"));
    cboMuscleGroup = form::Named(new QComboBox, QStringLiteral("cboMuscleGroup"),
                                 QStringLiteral("The muscle group the workout trains"));
    cboMuscleGroup->setMinimumWidth(150);
    chkBeginner = form::Check(QStringLiteral("chkBeginner"), QStringLiteral("&Beginner"));
    chkIntermediate = form::Check(QStringLiteral("chkIntermediate"), QStringLiteral("&Intermediate"));
    chkAdvanced = form::Check(QStringLiteral("chkAdvanced"), QStringLiteral("Ad&vanced"));
    auto* fields = new QGridLayout;
    form::AddRow(fields, 0, QStringLiteral("&Name:"), txtWorkout);
    form::AddRow(fields, 0, QStringLiteral("&Muscle Group:"), cboMuscleGroup, 2);
    form::AddRow(fields, 1, QStringLiteral("&Description:"), txtComments, 0, 3);
    auto* levels = new QHBoxLayout;
    levels->addWidget(new QLabel(QStringLiteral("Suitable for:")));
    levels->addWidget(chkBeginner);
    levels->addWidget(chkIntermediate);
    levels->addWidget(chkAdvanced);
    levels->addStretch(1);
    fields->addLayout(levels, 2, 0, 1, 4);
    fields->setColumnStretch(1, 1);

    SS1 = form::Named(new Grid, QStringLiteral("SS1"),
                      QStringLiteral("The sets of the workout; + inserts a set, - removes one"));
    SS1->setAccessibleName(QStringLiteral("Sets"));
    SS1->setSelectionMode(QAbstractItemView::ContiguousSelection);
    SS1->installEventFilter(this);
    cmdAddSet = form::Button(QStringLiteral("cmdAddSet"), QStringLiteral("Insert &Set"),
                             QStringLiteral("Add a set after the last set of this exercise (+)"));
    cmdRemoveSet = form::Button(QStringLiteral("cmdRemoveSet"), QStringLiteral("&Remove Set"),
                                QStringLiteral("Remove the selected set (-)"));
    cmdUp = form::Button(QStringLiteral("cmdUp"), QStringLiteral("Move &Up"), QStringLiteral("Move the selected set(s) up"));
    cmdDown = form::Button(QStringLiteral("cmdDown"), QStringLiteral("Move D&own"),
                           QStringLiteral("Move the selected set(s) down"));
    auto* setButtons = new QHBoxLayout;
    for (QPushButton* b : {cmdAddSet, cmdRemoveSet, cmdUp, cmdDown})
        setButtons->addWidget(b);
    setButtons->addStretch(1);

    auto* right = new QVBoxLayout;
    right->addWidget(lblWorkout);
    right->addLayout(fields);
    right->addWidget(form::Caption(QStringLiteral("Se&ts:"), SS1));
    right->addWidget(SS1, 1);
    right->addLayout(setButtons);

    auto* planner = new QHBoxLayout(fraPlanner);
    planner->addLayout(left, 0);
    planner->addLayout(middle, 0);
    planner->addLayout(right, 1);

    cmdClear = form::Button(QStringLiteral("cmdClear"), QStringLiteral("Ne&w"), QStringLiteral("Start a new workout"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("Sa&ve"), QStringLiteral("Save this workout"));
    cmdDeleteWorkout = form::Button(QStringLiteral("cmdDeleteWorkout"), QStringLiteral("&Delete"),
                                    QStringLiteral("Delete the selected workout"));
    cmdPrint = form::Button(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), QStringLiteral("Print this workout"));
    cmdPrint->setEnabled(bool(ReportWorkoutLink()));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {cmdClear, cmdSave, cmdDeleteWorkout, cmdPrint})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addWidget(fraPlanner, 1);
    main->addLayout(buttons);

    auto guarded = [this](void (frmStrengthWorkouts::*slot)()) {
        return [this, slot] { Guard([&] { (this->*slot)(); }); };
    };
    connect(cboType, &QComboBox::currentIndexChanged, this, guarded(&frmStrengthWorkouts::on_cboType_changed));
    connect(lstWorkouts, &QListWidget::itemSelectionChanged, this, guarded(&frmStrengthWorkouts::on_lstWorkouts_changed));
    connect(optExercise[0], &QRadioButton::toggled, this, guarded(&frmStrengthWorkouts::on_optExercise_changed));
    connect(list1, &QListWidget::itemDoubleClicked, this, guarded(&frmStrengthWorkouts::on_cmdAdd_clicked));
    connect(cmdAdd, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdAdd_clicked));
    connect(cmdInfo, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdInfo_clicked));
    connect(cmdNewExercise, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdNewExercise_clicked));
    connect(cmdAddSet, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdAddSet_clicked));
    connect(cmdRemoveSet, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdRemoveSet_clicked));
    connect(cmdUp, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdUp_clicked));
    connect(cmdDown, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdDown_clicked));
    connect(cmdClear, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdClear_clicked));
    connect(cmdSave, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdSave_clicked));
    connect(cmdDeleteWorkout, &QPushButton::clicked, this, guarded(&frmStrengthWorkouts::on_cmdDeleteWorkout_clicked));
    connect(cmdPrint, &QPushButton::clicked, this, &frmStrengthWorkouts::on_cmdPrint_clicked);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(txtWorkout, &QLineEdit::textEdited, this, [this] { changed(); });
    connect(txtComments, &QLineEdit::textEdited, this, [this] { changed(); });
    connect(cboMuscleGroup, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
        connect(c, &QCheckBox::toggled, this, [this] { changed(); });
    connect(SS1, &Grid::CellEdited, this, [this] { changed(); });
    connect(SS1, &QTableWidget::itemSelectionChanged, this, [this] { CheckMoveButtons(); });
    cmdSave->setEnabled(false);
}

void frmStrengthWorkouts::changed()
{
    if (m_loading)
        return;
    // Nothing is saved without a name.
    cmdSave->setEnabled(!txtWorkout->text().trimmed().isEmpty());
}

QString frmStrengthWorkouts::wtype() const
{
    return cboType->currentIndex() == 1 ? QStringLiteral("sports") : QStringLiteral("strength");
}

// ---- procedures ---------------------------------------------------------------------------

void frmStrengthWorkouts::FillCombos()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboType->clear();
    cboType->addItems({QStringLiteral("Workouts"), QStringLiteral("Sports Workouts")});
    cboType->setCurrentIndex(-1);
    cboMuscleGroup->clear();
    listfill::FillList(cboMuscleGroup, LibraryRS, QStringLiteral("select distinct group from muscle_groups"),
                       QStringLiteral("group"), QString(), true);
    cboMuscleGroup->setCurrentIndex(-1);
}

void frmStrengthWorkouts::LoadWorkouts()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    lstWorkouts->clear();
    SqlText = QStringLiteral("select workout_name,workout_id from workouts where wtype='strength'");
    listfill::FillList(lstWorkouts, LibraryRS, SqlText, QStringLiteral("workout_name"), QStringLiteral("workout_id"));
}

void frmStrengthWorkouts::Loadexercises()
{
    list1->clear();
    if (optExercise[1]->isChecked())
        SqlText = QStringLiteral("select distinct exercise from strength_exercises where type='Stretch' order by exercise");
    else
        SqlText = QStringLiteral(
            "select distinct exercise from strength_exercises where type not like 'Stretch' order by exercise");
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) {
        if (!IsNull(rs.Field(0)))
            list1->addItem(Str(rs.Field(0)).trimmed());
    });
}

void frmStrengthWorkouts::FormatGrid()
{
    SS1->SetMaxRows(0);
    SS1->SetMaxCols(8);
    SS1->SetColumnHeaders({QStringLiteral("muscle Grp"), QStringLiteral("Exercise"), QStringLiteral("Set"),
                           QStringLiteral("Reps"), QStringLiteral("Weight (") + m_unit + ")", QStringLiteral("Intensity"),
                           QStringLiteral("Goal"), QStringLiteral("Notes")});
    SS1->SetRowHeadersVisible(false);
    SS1->SetColumnType(gcMuscle, Grid::TypeStatic);
    SS1->SetColumnType(gcExercise, Grid::TypeStatic);
    SS1->SetColumnType(gcSet, Grid::TypeText);
    SS1->SetColumnType(gcReps, Grid::TypeText);
    SS1->SetColumnType(gcWeight, Grid::TypeNumber);
    SS1->SetColumnType(gcIntensity, Grid::TypeText);
    SS1->SetColumnType(gcGoal, Grid::TypeText);
    SS1->SetColumnType(gcNotes, Grid::TypeText);
    SS1->SetMaxLength(gcIntensity, NoteLength);
    SS1->SetMaxLength(gcGoal, NoteLength);
    SS1->SetMaxLength(gcNotes, NoteLength);
    SS1->SetColumnWidthChars(gcMuscle, 12);
    SS1->SetColumnWidthChars(gcExercise, 24);
    SS1->SetColumnWidthChars(gcSet, 4);
    SS1->SetColumnWidthChars(gcReps, 5);
    SS1->SetColumnWidthChars(gcWeight, 10);
    SS1->SetColumnWidthChars(gcIntensity, 9);
    SS1->SetColumnWidthChars(gcGoal, 14);
    SS1->horizontalHeader()->setStretchLastSection(true);
}

void frmStrengthWorkouts::FormatData()
{
    SS1->SetColumnLocked(gcMuscle, true);
    SS1->SetColumnLocked(gcExercise, true);
    for (int c = gcSet; c <= gcNotes; ++c)
        SS1->SetColumnLocked(c, false);
}

void frmStrengthWorkouts::CheckMoveButtons()
{
    int top = 0, bottom = 0;
    const bool any = SS1->MaxRows() > 0 && SS1->SelectedRowBlock(&top, &bottom);
    cmdUp->setEnabled(any && top > 1);
    cmdDown->setEnabled(any && bottom < SS1->MaxRows());
}

QStringList frmStrengthWorkouts::readRow(int row) const
{
    QStringList cells;
    for (int c = gcMuscle; c <= gcNotes; ++c)
        cells << SS1->Text(row, c);
    return cells;
}

void frmStrengthWorkouts::writeRow(int row, const QStringList& cells)
{
    for (int c = gcMuscle; c <= gcNotes; ++c) {
        const QString text = cells.value(c - 1);
        if (text.isEmpty())
            SS1->ClearCell(row, c);
        else
            SS1->SetText(row, c, text);
    }
}

int frmStrengthWorkouts::lastRowOf(const QString& exercise) const
{
    int last = 0;
    for (int r = 1; r <= SS1->MaxRows(); ++r)
        if (SS1->Text(r, gcExercise) == exercise)
            last = r;
    return last;
}

QString frmStrengthWorkouts::muscleGroupOf(const QString& exercise, const QString& otherwise) const
{
    QString group = otherwise;
    SqlText = "select muscle_group from strength_exercises where exercise='" + SqlQuote(exercise) + "'";
    FirstRow(LibraryRS, SqlText, [&group](Recordset& rs) { group = Str(rs.Field(0)); });
    return group;
}

void frmStrengthWorkouts::SaveWeights(long workoutId)
{
    const QString name = txtWorkout->text().trimmed();
    if (SS1->MaxRows() == 0 || name.isEmpty())
        return;
    SqlText = "delete * from Workout_exercises where workout_id=" + QString::number(workoutId);
    LibraryConn.Execute(SqlText);
    RecordsetScope scope(LibraryRS);
    LibraryRS.Open(QStringLiteral("Workout_exercises"), &LibraryConn);
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        if (SS1->Text(r, gcWeight).trimmed().isEmpty())
            SS1->SetText(r, gcWeight, QStringLiteral("0"));
        LibraryRS.AddNew();
        LibraryRS.SetField("Workout_Name", name.left(NameLength));
        LibraryRS.SetField("Workout_ID", qlonglong(workoutId));
        LibraryRS.SetField("muscle_group", SS1->Text(r, gcMuscle));
        LibraryRS.SetField("exercise", SS1->Text(r, gcExercise));
        LibraryRS.SetField("Sets", Val(SS1->Text(r, gcSet)));
        LibraryRS.SetField("Reps", Val(SS1->Text(r, gcReps)));
        LibraryRS.SetField("weight", Val(SS1->Text(r, gcWeight)));
        LibraryRS.SetField("Intensity", SS1->Text(r, gcIntensity).left(NoteLength));
        LibraryRS.SetField("Goal", SS1->Text(r, gcGoal).left(NoteLength).trimmed());
        LibraryRS.SetField("Comments", SS1->Text(r, gcNotes).left(NoteLength).trimmed());
        LibraryRS.Update();
    }
}

void frmStrengthWorkouts::clearFields()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SS1->SetMaxRows(0);
    txtWorkout->clear();
    txtComments->clear();
    cboMuscleGroup->setCurrentIndex(-1);
    for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
        c->setChecked(false);
    lblWorkout->setText(QStringLiteral("Workout"));
    CheckMoveButtons();
}

long frmStrengthWorkouts::workoutIdOf(const QString& name) const
{
    long id = 0;
    SqlText = "select workout_id from workouts where workout_name='" + SqlQuote(name) + "'";
    FirstRow(LibraryRS, SqlText, [&id](Recordset& rs) { id = long(Val(rs.Field(0))); });
    return id;
}

void frmStrengthWorkouts::addWorkoutRow(const QString& name, const QString& description, const QString& muscleGroup,
                                        const QString& type)
{
    RecordsetScope scope(LibraryRS);
    LibraryRS.Open(QStringLiteral("workouts"), &LibraryConn);
    LibraryRS.AddNew();
    LibraryRS.SetField("Workout_Name", name.left(NameLength));
    LibraryRS.SetField("workout_desc", description.left(DescLength));
    LibraryRS.SetField("muscle_group", muscleGroup);
    LibraryRS.SetField("wtype", type);
    LibraryRS.SetField("Beginner", Yes(chkBeginner->isChecked()));
    LibraryRS.SetField("Intermediate", Yes(chkIntermediate->isChecked()));
    LibraryRS.SetField("Advanced", Yes(chkAdvanced->isChecked()));
    LibraryRS.Update();
}

// ---- commands -----------------------------------------------------------------------------

void frmStrengthWorkouts::on_cboType_changed()
{
    if (m_loading)
        return;
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->SetMaxRows(0);
        txtComments->clear();
        for (QCheckBox* c : {chkBeginner, chkIntermediate, chkAdvanced})
            c->setChecked(false);
        lstWorkouts->clear();
        SqlText = "select distinct workout_Name, workout_id from workouts where wtype='" + wtype() +
                  "' order by workout_name";
        listfill::FillList(lstWorkouts, LibraryRS, SqlText, QStringLiteral("workout_Name"), QStringLiteral("workout_id"));
        lstWorkouts->setCurrentRow(-1);
    }
    CheckMoveButtons();
    cmdSave->setEnabled(false);
}

void frmStrengthWorkouts::on_lstWorkouts_changed()
{
    if (m_loading)
        return;
    QListWidgetItem* line = lstWorkouts->currentItem();
    if (!line || !line->isSelected())
        return;
    QScopedValueRollback<bool> loading(m_loading, true);
    const QString id = QString::number(line->data(Qt::UserRole).toLongLong());
    SS1->SetMaxRows(0);
    SqlText = "select * from workouts where Workout_ID=" + id;
    FirstRow(LibraryRS, SqlText, [this](Recordset& rs) {
        cboMuscleGroup->setCurrentIndex(cboMuscleGroup->findText(Str(rs.Field("muscle_group")), Qt::MatchFixedString));
        txtWorkout->setText(Str(rs.Field("Workout_Name")));
        txtComments->setText(Str(rs.Field("workout_desc")));
        chkBeginner->setChecked(Str(rs.Field("Beginner")) == QLatin1String("Y"));
        chkIntermediate->setChecked(Str(rs.Field("Intermediate")) == QLatin1String("Y"));
        chkAdvanced->setChecked(Str(rs.Field("Advanced")) == QLatin1String("Y"));
    });
    lblWorkout->setText(txtWorkout->text());
    SqlText = "select * from Workout_exercises where Workout_ID=" + id;
    SS1->BeginUpdate();
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) {
        const int r = SS1->AddRow();
        writeRow(r, {Str(rs.Field("muscle_group")), Str(rs.Field("exercise")), Str(rs.Field("Sets")),
                     Str(rs.Field("Reps")), Str(rs.Field("weight")), Str(rs.Field("Intensity")), Str(rs.Field("Goal")),
                     Str(rs.Field("Comments"))});
    });
    SS1->EndUpdate();
    FormatData();
    CheckMoveButtons();
    cmdSave->setEnabled(false);
    cmdDeleteWorkout->setEnabled(true);
}

void frmStrengthWorkouts::on_optExercise_changed()
{
    if (m_loading)
        return;
    Loadexercises();
}

void frmStrengthWorkouts::on_cmdAdd_clicked()
{
    QListWidgetItem* line = list1->currentItem();
    if (!line)
        return;
    const QString exercise = line->text();
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        const int last = lastRowOf(exercise);
        if (last > 0) {
            // A further set goes behind the exercise's last one.
            SS1->InsertRow(last + 1);
            SS1->SetText(last + 1, gcMuscle, SS1->Text(last, gcMuscle));
            SS1->SetText(last + 1, gcExercise, exercise);
            SS1->SetText(last + 1, gcSet, QString::number(long(Val(SS1->Text(last, gcSet))) + 1));
            if (!SS1->Text(last, gcIntensity).isEmpty())
                SS1->SetText(last + 1, gcIntensity, SS1->Text(last, gcIntensity));
            SS1->SetActiveCell(last + 1, gcReps);
        } else {
            const int r = SS1->AddRow();
            SS1->SetText(r, gcMuscle, muscleGroupOf(exercise, kTotalBody));
            SS1->SetText(r, gcExercise, exercise);
            SS1->SetText(r, gcSet, QStringLiteral("1"));
            SS1->SetText(r, gcReps, QStringLiteral("10"));
            SS1->SetActiveCell(r, gcReps);
        }
        FormatData();
    }
    CheckMoveButtons();
    changed();
}

void frmStrengthWorkouts::on_cmdInfo_clicked()
{
    QListWidgetItem* line = list1->currentItem();
    QString exercise = line ? line->text() : QString();
    if (SS1->hasFocus() && SS1->ActiveRow() > 0)
        exercise = SS1->Text(SS1->ActiveRow(), gcExercise);
    if (exercise.isEmpty())
        return;
    frmStrengthInfo info(exercise, this);
    ShowModal(&info);
}

void frmStrengthWorkouts::on_cmdNewExercise_clicked()
{
    {
        frmExercise library(this);
        ShowModal(&library);
    }
    Loadexercises();
}

void frmStrengthWorkouts::on_cmdAddSet_clicked()
{
    const int active = SS1->ActiveRow();
    if (active < 1 || active > SS1->MaxRows())
        return;
    const QString exercise = SS1->Text(active, gcExercise);
    if (exercise.isEmpty())
        return;
    // Sets have no limit in a library workout.
    const int last = lastRowOf(exercise);
    QStringList cells = readRow(last);
    cells[gcSet - 1] = QString::number(long(Val(cells[gcSet - 1])) + 1);
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->InsertRow(last + 1);
        writeRow(last + 1, cells);
        FormatData();
        SS1->SetActiveCell(last + 1, qMax(1, SS1->ActiveCol()));
    }
    CheckMoveButtons();
    changed();
}

void frmStrengthWorkouts::on_cmdRemoveSet_clicked()
{
    const int active = SS1->ActiveRow();
    if (active < 1 || active > SS1->MaxRows())
        return;
    const int col = qMax(1, SS1->ActiveCol());
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->DeleteRow(active);
        if (SS1->MaxRows() > 0)
            SS1->SetActiveCell(qMin(active, SS1->MaxRows()), col);
    }
    CheckMoveButtons();
    changed();
}

void frmStrengthWorkouts::moveBlock(int by)
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
    // The neighbouring row goes to the other side of the block.
    const int first = by < 0 ? top - 1 : top;
    const int last = by < 0 ? bottom : bottom + 1;
    QList<QStringList> rows;
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
    CheckMoveButtons();
    changed();
}

void frmStrengthWorkouts::on_cmdUp_clicked() { moveBlock(-1); }
void frmStrengthWorkouts::on_cmdDown_clicked() { moveBlock(1); }

void frmStrengthWorkouts::on_cmdClear_clicked()
{
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        lstWorkouts->setCurrentRow(-1);
        lstWorkouts->clearSelection();
    }
    clearFields();
    cmdSave->setEnabled(false);
    txtWorkout->setFocus();
}

void frmStrengthWorkouts::on_cmdSave_clicked()
{
    if (cboMuscleGroup->currentIndex() < 0) {
        Inform(QStringLiteral("Please select a mucle group to save this workout."));
        return;
    }
    const QString name = txtWorkout->text().trimmed().left(NameLength);
    const QString description = txtComments->text().trimmed();
    QListWidgetItem* line = lstWorkouts->currentItem();
    if (line && !line->isSelected())
        line = nullptr;

    if (line) {
        const long id = long(line->data(Qt::UserRole).toLongLong());
        {
            StoreTransaction transaction(LibraryConn);
            {
                RecordsetScope scope(LibraryRS);
                SqlText = "select * from workouts where workout_id=" + QString::number(id);
                LibraryRS.Open(SqlText, &LibraryConn);
                if (!LibraryRS.Eof()) {
                    LibraryRS.SetField("Workout_Name", name);
                    LibraryRS.SetField("workout_desc", description);
                    LibraryRS.SetField("muscle_group", cboMuscleGroup->currentText());
                    LibraryRS.SetField("Beginner", Yes(chkBeginner->isChecked()));
                    LibraryRS.SetField("Intermediate", Yes(chkIntermediate->isChecked()));
                    LibraryRS.SetField("Advanced", Yes(chkAdvanced->isChecked()));
                    LibraryRS.Update();
                }
            }
            SaveWeights(id);
            transaction.Commit();
        }
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            line->setText(name);
            lblWorkout->setText(name);
        }
        cmdSave->setEnabled(false);
        Inform(QStringLiteral("Workout updated."));
        return;
    }

    SqlText = "select * from workouts where workout_name='" + SqlQuote(name) + "'";
    if (FirstRow(LibraryRS, SqlText, [](Recordset&) {})) {
        Inform(kNameTaken);
        return;
    }
    long id = 0;
    {
        StoreTransaction transaction(LibraryConn);
        addWorkoutRow(name, description, cboMuscleGroup->currentText(),
                      cboType->currentIndex() == 0 ? QStringLiteral("strength") : QStringLiteral("sports"));
        id = workoutIdOf(name);
        SaveWeights(id);
        transaction.Commit();
    }
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        auto* item = new QListWidgetItem(name);
        item->setData(Qt::UserRole, qlonglong(id));
        lstWorkouts->addItem(item);
        lstWorkouts->setCurrentItem(item);
        item->setSelected(true);
        lblWorkout->setText(name);
    }
    cmdSave->setEnabled(false);
    cmdDeleteWorkout->setEnabled(true);
    Inform(QStringLiteral("New Workout Saved."));
}

void frmStrengthWorkouts::on_cmdDeleteWorkout_clicked()
{
    QListWidgetItem* line = lstWorkouts->currentItem();
    if (!line || !line->isSelected()) {
        Inform(QStringLiteral("Please select a workout to delete."));
        cmdDeleteWorkout->setEnabled(false);
        return;
    }
    if (MsgBox(QStringLiteral("Delete this workout?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    const QString id = QString::number(line->data(Qt::UserRole).toLongLong());
    {
        StoreTransaction transaction(LibraryConn);
        LibraryConn.Execute("delete * from Workout_exercises where workout_ID=" + id);
        LibraryConn.Execute("delete * from workouts where workout_id=" + id);
        transaction.Commit();
    }
    int row = lstWorkouts->row(line);
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        delete lstWorkouts->takeItem(row);
        lstWorkouts->setCurrentRow(-1);
        lstWorkouts->clearSelection();
    }
    clearFields();
    cmdSave->setEnabled(false);
    if (lstWorkouts->count() > 0) {
        row = qMin(row, lstWorkouts->count() - 1);
        lstWorkouts->setCurrentRow(row);
        lstWorkouts->item(row)->setSelected(true);
    }
}

workoutpage::Workout frmStrengthWorkouts::PageWorkout() const
{
    workoutpage::Workout w;
    w.name = txtWorkout->text().trimmed();
    w.description = txtComments->text().trimmed();
    w.beginner = chkBeginner->isChecked();
    w.intermediate = chkIntermediate->isChecked();
    w.advanced = chkAdvanced->isChecked();
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        const QStringList c = readRow(r);
        w.rows.append({c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7]});
        QStringList info;
        SqlText = "select * from strength_exercises where exercise='" + SqlQuote(c[1]) + "'";
        FirstRow(LibraryRS, SqlText, [&info](Recordset& rs) {
            for (int i = 0; i < rs.FieldCount(); ++i)
                info << Str(rs.Field(i));
        });
        w.exerciseInfo.append(info);
    }
    return w;
}

QString frmStrengthWorkouts::CreateHTML() const { return workoutpage::WriteTags(PageWorkout()); }

void frmStrengthWorkouts::on_cmdPrint_clicked()
{
    auto& report = ReportWorkoutLink();
    if (!report)
        return;
    Guard([&] {
        const workoutpage::Workout workout = PageWorkout();
        report(workoutpage::PageFileName(workout.name), workout, workoutpage::WriteTags(workout));
    });
}

void frmStrengthWorkouts::ImportWorkout()
{
    const workoutpage::ReadPage page = workoutpage::ReadTags(SelectedItem);

    // Exercises that this library does not know come from the page's details.
    {
        StoreTransaction transaction(LibraryConn);
        for (int i = 0; i < page.rows.size(); ++i) {
            const QString exercise = page.rows[i].exercise;
            const QStringList& info = page.infoTags[i];
            const QString group = info.value(1);
            bool found = false;
            QString storedGroup;
            SqlText = "select * from strength_exercises where exercise='" + SqlQuote(exercise) + "'";
            FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
                found = true;
                storedGroup = Str(rs.Field("muscle_group"));
            });
            if (found) {
                if (group != storedGroup) {
                    SqlText = "select * from muscle_associations where exercise='" + SqlQuote(exercise) +
                              "' and muscle_group = '" + SqlQuote(group) + "'";
                    if (!FirstRow(LibraryRS, SqlText, [](Recordset&) {})) {
                        RecordsetScope scope(LibraryRS);
                        LibraryRS.Open(QStringLiteral("muscle_associations"), &LibraryConn);
                        LibraryRS.AddNew();
                        LibraryRS.SetField("muscle_group", group);
                        LibraryRS.SetField("exercise", exercise);
                        LibraryRS.Update();
                    }
                }
                continue;
            }
            // Every level follows the first level flag of the details.
            const QString level = info.value(3) == QLatin1String("Y") ? QStringLiteral("Y") : QString();
            RecordsetScope scope(LibraryRS);
            LibraryRS.Open(QStringLiteral("strength_exercises"), &LibraryConn);
            LibraryRS.AddNew();
            LibraryRS.SetField("muscle_group", group);
            LibraryRS.SetField("exercise", info.value(2));
            LibraryRS.SetField("Beginner", level);
            LibraryRS.SetField("Intermediate", level);
            LibraryRS.SetField("Advanced", level);
            LibraryRS.SetField("Type", info.value(6));
            LibraryRS.SetField("Description", info.value(7));
            LibraryRS.SetField("Instruction", QString());
            LibraryRS.SetField("Equipment", QString());
            LibraryRS.SetField("Perc_Lift", Val(info.value(8)));
            LibraryRS.SetField("lift", info.value(9));
            LibraryRS.SetField("Image", QString());
            LibraryRS.Update();
        }
        transaction.Commit();
    }

    // The grid and the fields.
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        lstWorkouts->setCurrentRow(-1);
        lstWorkouts->clearSelection();
        SS1->SetMaxRows(0);
        SS1->BeginUpdate();
        for (const workoutpage::SetRow& row : page.rows) {
            const int r = SS1->AddRow();
            writeRow(r, {muscleGroupOf(row.exercise, QString()), row.exercise, row.set, row.reps, row.weight, QString(),
                         row.goal, row.comments});
        }
        SS1->EndUpdate();
        FormatData();
        txtWorkout->setText(page.name);
        txtComments->setText(page.description);
        lblWorkout->setText(page.name);
        chkBeginner->setChecked(page.beg == QLatin1String("Y"));
        chkIntermediate->setChecked(page.intermediate == QLatin1String("Y"));
        chkAdvanced->setChecked(page.adv == QLatin1String("Y"));
    }
    CheckMoveButtons();

    const QString name = page.name.trimmed();
    SqlText = "select * from workouts where workout_name='" + SqlQuote(name) + "'";
    if (FirstRow(LibraryRS, SqlText, [](Recordset&) {})) {
        changed();
        Inform(kNameTaken);
        return;
    }
    long id = 0;
    {
        StoreTransaction transaction(LibraryConn);
        LibraryConn.Execute("delete * from workouts where workout_name='" + SqlQuote(name) + "'");
        addWorkoutRow(name, page.description, kTotalBody, QStringLiteral("strength"));
        id = workoutIdOf(name);
        SaveWeights(id);
        transaction.Commit();
    }
    QScopedValueRollback<bool> loading(m_loading, true);
    auto* item = new QListWidgetItem(name);
    item->setData(Qt::UserRole, qlonglong(id));
    lstWorkouts->addItem(item);
    cmdSave->setEnabled(false);
}

bool frmStrengthWorkouts::eventFilter(QObject* watched, QEvent* event)
{
    // Keys typed in an open editor go to the editor, not to the grid.
    if (watched == SS1 && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Plus) {
            Guard([this] { on_cmdAddSet_clicked(); });
            return true;
        }
        if (key->key() == Qt::Key_Minus) {
            Guard([this] { on_cmdRemoveSet_clicked(); });
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
