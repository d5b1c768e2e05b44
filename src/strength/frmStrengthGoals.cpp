#include "strength/frmStrengthGoals.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"

frmStrengthGoals::frmStrengthGoals(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmStrengthGoals"));
    setWindowTitle(QStringLiteral("Goal Builder"));
    buildUi();
    Guard([this] {
        QScopedValueRollback<bool> loading(Loading, true);
        FormatGrid();
        cboStrengthLevel->addItems(strengthgoals::StrengthLevels());
        cboLevel->addItems(strengthgoals::TrainingLevels());
        cboStrengthPurpose->addItems(strengthgoals::Purposes());
        for (QComboBox* c : {cboStrengthLevel, cboLevel, cboStrengthPurpose})
            c->setCurrentIndex(-1);
        loadAthlete();
        fillGrid();
    });
    DataChanged = false;
    CenterForm(this);
}

void frmStrengthGoals::buildUi()
{
    resize(760, 600);

    cboStrengthLevel = form::Named(new QComboBox, QStringLiteral("cboStrengthLevel"),
                                   QStringLiteral("Estimate your current strength."));
    cboLevel = form::Named(new QComboBox, QStringLiteral("cboLevel"), QStringLiteral("Select a training level."));
    cboStrengthPurpose = form::Named(new QComboBox, QStringLiteral("cboStrengthPurpose"),
                                     QStringLiteral("Select your strength training purpose."));
    for (QComboBox* c : {cboStrengthLevel, cboLevel, cboStrengthPurpose})
        c->setPlaceholderText(QStringLiteral(" "));
    auto* levels = new QGridLayout;
    form::AddRow(levels, 0, QStringLiteral("&Strength Level:"), cboStrengthLevel);
    form::AddRow(levels, 1, QStringLiteral("Your &Training Level:"), cboLevel);
    form::AddRow(levels, 2, QStringLiteral("Training &Purpose:"), cboStrengthPurpose);
    levels->setColumnStretch(1, 1);

    txtSquat = form::Edit(QStringLiteral("txtSquat"), 10, 90, QStringLiteral("Optional - Enter your best squat."));
    txtDeadLift = form::Edit(QStringLiteral("txtDeadLift"), 10, 90, QStringLiteral("Optional - Enter your best dead lift."));
    txtBenchPress = form::Edit(QStringLiteral("txtBenchPress"), 10, 90,
                               QStringLiteral("Optional - Enter your best bench press."));
    auto* liftsBox = new QGroupBox(QStringLiteral("Estimated Maximum Lifts"));
    auto* lifts = new QGridLayout(liftsBox);
    const QStringList captions{QStringLiteral("S&quat:"), QStringLiteral("&Dead Lift:"), QStringLiteral("&Bench Press:")};
    const QList<QLineEdit*> edits{txtSquat, txtDeadLift, txtBenchPress};
    for (int i = 0; i < 3; ++i) {
        form::AddRow(lifts, i, captions[i], edits[i]);
        QLabel* unit = form::Label(QStringLiteral("lblWeight"));
        lblWeight << unit;
        lifts->addWidget(unit, i, 2);
    }
    lifts->setColumnStretch(3, 1);

    chkPrefill = form::Check(QStringLiteral("chkPrefill"), QStringLiteral("&Auto-Fill Workouts with these Goals"),
                             QStringLiteral("Pre-fill the reps and weight columns in the main window."));
    cmdGoals = form::Button(QStringLiteral("cmdGoals"), QStringLiteral("&Generate Goals"),
                            QStringLiteral("Generate starting goalsl for each exercise."));

    auto* top = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    left->addLayout(levels);
    left->addWidget(chkPrefill);
    left->addStretch(1);
    top->addLayout(left, 1);
    top->addWidget(liftsBox, 1);

    SS1 = form::Named(new Grid, QStringLiteral("SS1"), QStringLiteral("Starting reps and weight of each exercise"));
    SS1->setAccessibleName(QStringLiteral("Exercise goals"));

    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoals);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);

    auto* main = new QVBoxLayout(this);
    main->addLayout(top);
    main->addWidget(form::Caption(QStringLiteral("E&xercise goals:"), SS1));
    main->addWidget(SS1, 1);
    main->addLayout(buttons);

    connect(cboStrengthLevel, &QComboBox::currentIndexChanged, this,
            [this] { Guard([&] { on_cboStrengthLevel_changed(); }); });
    for (QComboBox* c : {cboLevel, cboStrengthPurpose})
        connect(c, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    for (QLineEdit* e : edits)
        connect(e, &QLineEdit::textEdited, this, [this] { changed(); });
    connect(chkPrefill, &QCheckBox::toggled, this, [this] { changed(); });
    connect(SS1, &Grid::CellEdited, this, [this] { changed(); });
    connect(cmdGoals, &QPushButton::clicked, this, [this] { Guard([&] { on_cmdGoals_clicked(); }); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
}

void frmStrengthGoals::changed()
{
    if (!Loading)
        DataChanged = true;
}

void frmStrengthGoals::FormatGrid()
{
    SS1->SetMaxRows(0);
    SS1->SetMaxCols(3);
    SS1->SetColumnHeaders({QStringLiteral("Exercise"), QStringLiteral("Reps"), QStringLiteral("Weight (") + m_unit + ")"});
    SS1->SetColumnType(gcExercise, Grid::TypeStatic);
    SS1->SetColumnType(gcReps, Grid::TypeNumber);
    SS1->SetColumnType(gcWeight, Grid::TypeNumber);
    SS1->SetDecimals(gcReps, 0);
    SS1->HideColumn(0);
    SS1->SetColumnWidthChars(gcExercise, 40);
    SS1->SetColumnWidthChars(gcReps, 8);
    SS1->horizontalHeader()->setStretchLastSection(true);
}

void frmStrengthGoals::loadAthlete()
{
    SqlText = "select * from User_Info where User_ID=" + QString::number(long(Val(CurrentUserID)));
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        if (!IsNull(rs.Field("Workout_In")))
            m_unit = Str(rs.Field("Workout_In"));
        m_age = Val(rs.Field("age"));
        m_sex = Str(rs.Field("sex"));
        txtSquat->setText(Str(rs.Field("squat")));
        txtDeadLift->setText(Str(rs.Field("deadlift")));
        txtBenchPress->setText(Str(rs.Field("benchpress")));
        if (!IsNull(rs.Field("StrengthLevel")))
            SelectListItem(cboLevel, Str(rs.Field("StrengthLevel")));
        if (!IsNull(rs.Field("StrengthPurpose")))
            SelectListItem(cboStrengthPurpose, Str(rs.Field("StrengthPurpose")));
        if (!IsNull(rs.Field("Strength")))
            SelectListItem(cboStrengthLevel, Str(rs.Field("Strength")));
        chkPrefill->setChecked(Val(rs.Field("Prefill")) != 0);
    });
    const QString word = m_unit == QLatin1String("kg") ? QStringLiteral("Kg") : QStringLiteral("Lbs");
    for (QLabel* l : lblWeight)
        l->setText(word);
    SS1->SetText(0, gcWeight, QStringLiteral("Weight (") + m_unit + ")");
}

void frmStrengthGoals::fillGrid()
{
    struct Exercise { long id; QString name; };
    QList<Exercise> exercises;
    SqlText = "select * from strength_exercises where (type not like 'Stretch' and type not like 'Isometric') order by exercise";
    ForEachRow(LibraryRS, SqlText, [&exercises](Recordset& rs) {
        exercises.append({long(Val(rs.Field("exercise_id"))), Str(rs.Field("exercise"))});
    });
    const QString user = QString::number(long(Val(CurrentUserID)));
    SS1->BeginUpdate();
    SS1->SetMaxRows(int(exercises.size()));
    for (int r = 1; r <= exercises.size(); ++r) {
        const Exercise& e = exercises[r - 1];
        SS1->SetText(r, 0, QString::number(e.id));
        SS1->SetText(r, gcExercise, e.name);
        SqlText = "select * from strength_goals where User_ID=" + user + " and exercise_id=" + QString::number(e.id);
        FirstRow(UserRS, SqlText, [&](Recordset& rs) {
            SS1->SetText(r, gcReps, Str(rs.Field("Reps")));
            SS1->SetText(r, gcWeight, Str(rs.Field("weight")));
        });
    }
    SS1->EndUpdate();
}

strengthgoals::GoalSettings frmStrengthGoals::Settings() const
{
    strengthgoals::GoalSettings s;
    s.purpose = cboStrengthPurpose->currentIndex();
    s.trainingLevel = cboLevel->currentText();
    s.strengthLevel = cboStrengthLevel->currentText();
    s.squat = txtSquat->text();
    s.deadLift = txtDeadLift->text();
    s.benchPress = txtBenchPress->text();
    s.age = m_age;
    s.sex = m_sex;
    s.unit = m_unit;
    return s;
}

double frmStrengthGoals::SetReps(const QString& type) const { return strengthgoals::SetReps(type, Settings()); }

double frmStrengthGoals::SetWeight(const QString& percLift, const QString& lift) const
{
    return strengthgoals::SetWeight(percLift, lift, Settings());
}

void frmStrengthGoals::on_cboStrengthLevel_changed()
{
    if (Loading)
        return;
    strengthgoals::Lifts l;
    if (strengthgoals::LiftsForStrength(cboStrengthLevel->currentText(), m_unit, &l)) {
        txtSquat->setText(QString::number(l.squat));
        txtDeadLift->setText(QString::number(l.deadLift));
        txtBenchPress->setText(QString::number(l.benchPress));
    }
    changed();
}

void frmStrengthGoals::on_cmdGoals_clicked()
{
    const QString user = QString::number(long(Val(CurrentUserID)));
    SqlText = "select * from strength_goals where User_ID=" + user;
    if (FirstRow(UserRS, SqlText, [](Recordset&) {}) &&
        MsgBox(QStringLiteral("Overwrite existing exercise goals?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;

    const strengthgoals::GoalSettings settings = Settings();
    SS1->BeginUpdate();
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        SqlText = "select * from strength_exercises where exercise_id=" + QString::number(long(Val(SS1->Text(r, 0))));
        FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
            SS1->SetCellType(r, gcReps, Grid::TypeNumber);
            SS1->SetValue(r, gcReps, strengthgoals::SetReps(Str(rs.Field("Type")), settings));
            SS1->SetCellType(r, gcWeight, Grid::TypeNumber);
            SS1->SetValue(r, gcWeight,
                          strengthgoals::SetWeight(Str(rs.Field("Perc_Lift")), Str(rs.Field("lift")), settings));
        });
    }
    SS1->EndUpdate();
    SaveGoals();
}

void frmStrengthGoals::SaveGoals()
{
    const QString user = QString::number(long(Val(CurrentUserID)));
    StoreTransaction transaction(UserConn);
    {
        RecordsetScope scope(UserRS);
        SqlText = "select * from User_Info where User_ID =" + user;
        UserRS.Open(SqlText, &UserConn);
        if (!UserRS.Eof()) {
            UserRS.SetField("StrengthPurpose", cboStrengthPurpose->currentText());
            UserRS.SetField("Prefill", chkPrefill->isChecked());
            UserRS.SetField("StrengthLevel", cboLevel->currentText());
            UserRS.SetField("Strength", cboStrengthLevel->currentText());
            UserRS.SetField("benchpress", Val(txtBenchPress->text()));
            UserRS.SetField("deadlift", Val(txtDeadLift->text()));
            UserRS.SetField("squat", Val(txtSquat->text()));
            UserRS.Update();
        }
    }
    SqlText = "delete * from strength_goals where User_ID=" + user;
    UserConn.Execute(SqlText);
    {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("strength_goals"), &UserConn);
        for (int r = 1; r <= SS1->MaxRows(); ++r) {
            if (SS1->Text(r, gcWeight).trimmed().isEmpty())
                SS1->SetText(r, gcWeight, QStringLiteral("0"));
            UserRS.AddNew();
            UserRS.SetField("User_ID", qlonglong(Val(user)));
            UserRS.SetField("exercise_id", qlonglong(Val(SS1->Text(r, 0))));
            UserRS.SetField("exercise", SS1->Text(r, gcExercise));
            UserRS.SetField("Reps", SS1->Value(r, gcReps));
            UserRS.SetField("weight", SS1->Value(r, gcWeight));
            UserRS.SetField("weight_unit", m_unit);
            UserRS.Update();
        }
    }
    transaction.Commit();
    DataChanged = false;
}

void frmStrengthGoals::done(int result)
{
    if (DataChanged)
        Guard([this] { SaveGoals(); });
    QDialog::done(result);
}
