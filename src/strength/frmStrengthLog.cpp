#include "strength/frmStrengthLog.h"

#include "calendar/calendarstore.h"
#include "calendar/icons.h"
#include "calendar/planner.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Form.h"
#include "core/widgets/Grid.h"
#include "core/widgets/ListFill.h"
#include "core/widgets/Theme.h"
#include "exercise/psychpanel.h"
#include "exercise/rules/exercisecalc.h"
#include "strength/frmStrengthInfo.h"
#include "strength/rules/strengthlog.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
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
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

std::function<void(const QString& fileName, const StrengthLogPrint& print)>& ReportStrengthLink()
{
    static std::function<void(const QString&, const StrengthLogPrint&)> link;
    return link;
}

namespace {

QString Msg() { return QStringLiteral("Message"); }

struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

}  // namespace

frmStrengthLog::frmStrengthLog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmStrengthLog"));
    setWindowTitle(QStringLiteral("Strength Training Log"));
    setSizeGripEnabled(true);
    auto loading = std::make_unique<QScopedValueRollback<bool>>(m_loading, true);

    m_scheduling = PlannerAdding();
    m_date = CalendarQDate();
    if (m_scheduling) {
        m_name = SelectedItem;
    } else {
        // The planner hands the name over with its quotes doubled, ready for SQL.
        m_name = SelectedName;
        m_name.replace(QStringLiteral("''"), QStringLiteral("'"));
        m_key = SelectedKey;
    }

    Psych = new PsychPanel(PsychPanel::StrengthLog, this);
    TabTop = form::Named(new QTabWidget(this), QStringLiteral("TabTop"));
    TabTop->addTab(buildWorkoutTab(), QStringLiteral("&Workout"));
    TabTop->addTab(Psych, QStringLiteral("Psycholo&gy"));
    TabTop->addTab(buildHistoryTab(), QStringLiteral("&History"));
    theme::ApplyToTabs(TabTop);

    cmdPreviewWeights = form::Button(QStringLiteral("cmdPreviewWeights"), QStringLiteral("&Print"),
                                     QStringLiteral("Print this workout"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    cmdPreviewWeights->setEnabled(bool(ReportStrengthLink()));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdPreviewWeights);
    bottom->addStretch(1);
    bottom->addWidget(cmdSave);
    bottom->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TabTop, 1);
    layout->addLayout(bottom);

    QMetaObject::connectSlotsByName(this);
    connect(list1, &QListWidget::itemDoubleClicked, this, [this] { on_cmdAdd_clicked(); });
    connect(list1, &QListWidget::currentRowChanged, this, [this](int row) { cmdInfo->setEnabled(row >= 0); });
    for (int i = 0; i < 2; ++i)
        connect(optExercise[i], &QRadioButton::toggled, this, [this](bool on) {
            if (on && !m_loading) Guard([this] { Loadexercises(); });
        });
    connect(cboIntensity, &QComboBox::currentIndexChanged, this, [this] {
        if (m_loading) return;
        Guard([this] { CalcCalories(); });
        changed();
    });
    connect(txtDuration, &QLineEdit::textChanged, this, [this] {
        if (m_loading) return;
        Guard([this] { CalcCalories(); });
        changed();
    });
    connect(chkComplete, &QCheckBox::toggled, this, [this] { changed(); });
    for (auto* t : {txtStartTime, txtEndTime})
        connect(t, &QTimeEdit::timeChanged, this, [this] { changed(); });
    connect(SS1, &Grid::CellEdited, this, [this] { changed(); });
    connect(SS1, &QTableWidget::itemSelectionChanged, this, [this] { CheckMoveButtons(); });
    SS1->installEventFilter(this);
    connect(Psych, &PsychPanel::Changed, this, [this] { changed(); });
    connect(TabTop, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_loading && index == HistoryTab) historyTabShown();
    });

    // Opening, in the screen's order.
    SS1->SetGridBackColor(theme::Tint(theme::Color()));
    Guard([this] {
        SqlText = QStringLiteral("select Workout_In,Prefill from User_Info where User_ID=") + CurrentUserID.trimmed();
        FirstRow(UserRS, SqlText, [this](Recordset& rs) {
            m_unit = Str(rs.Field(QStringLiteral("Workout_In")));
            m_prefill = Val(rs.Field(QStringLiteral("Prefill"))) != 0;
        });
        WorkoutIn = m_unit;
        FillCombos();
        FormatGrid();
        SetupHistory();
        Loadexercises();
    });
    lblWorkout->setText(m_name);
    if (m_scheduling) {
        lblTime->setText(QStringLiteral("To be scheduled."));
        txtStartTime->setTime(PlannerStartTime());
        // Half an hour later (0.02083 of a day).
        txtEndTime->setTime(PlannerStartTime().addSecs(qRound(0.02083 * 86400)));
        Guard([this] { LoadStrengthTemplate(); });
    } else {
        setWindowTitle(QStringLiteral("Strength Training Log for ") + regional::LongDate(m_date));
        for (QWidget* w : std::initializer_list<QWidget*>{txtStartTime, txtEndTime, lblStart, lblEnd})
            w->hide();
        Guard([this] {
            // The entry's own times stand until its sets say otherwise.
            QTime s, e;
            ReadEntryTimes(m_key, m_date, &s, &e);
            if (s.isValid()) txtStartTime->setTime(s);
            if (e.isValid()) txtEndTime->setTime(e);
            LoadStrength();
            LoadPsych();
        });
    }
    CheckMoveButtons();
    cmdInfo->setEnabled(false);
    loading.reset();

    for (auto* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    resize(1100, 660);
    CenterForm(this);
}

// ---------------------------------------------------------------- building the tab

QWidget* frmStrengthLog::buildWorkoutTab()
{
    auto* page = new QWidget(this);

    lblWorkout = form::Named(new QLabel(page), QStringLiteral("lblWorkout"));
    QFont big = lblWorkout->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    lblWorkout->setFont(big);
    lblTime = form::Named(new QLabel(page), QStringLiteral("lblTime"));
    txtStartTime = form::Named(new QTimeEdit(page), QStringLiteral("txtStartTime"));
    txtEndTime = form::Named(new QTimeEdit(page), QStringLiteral("txtEndTime"));
    for (auto* t : {txtStartTime, txtEndTime})
        t->setDisplayFormat(QStringLiteral("h:mm:ss AP"));
    lblStart = form::Caption(QStringLiteral("Sta&rt"), txtStartTime);
    lblEnd = form::Caption(QStringLiteral("E&nd"), txtEndTime);
    auto* header = new QHBoxLayout;
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    names->addWidget(lblWorkout);
    names->addWidget(lblTime);
    header->addLayout(names, 1);
    header->addWidget(lblStart);
    header->addWidget(txtStartTime);
    header->addWidget(lblEnd);
    header->addWidget(txtEndTime);

    lblDesc = form::Named(new QLabel(page), QStringLiteral("lblDesc"));
    lblDesc->setWordWrap(true);
    auto* descCaption = new QLabel(QStringLiteral("Description"), page);
    descCaption->setStyleSheet(QStringLiteral("font-weight: bold"));

    // The sets.
    SS1 = form::Named(new Grid(page), QStringLiteral("SS1"));
    SS1->setAccessibleName(QStringLiteral("Sets"));
    SS1->setToolTip(QStringLiteral("\"+\" inserts a set, \"-\" removes one"));
    cmdAddSet = form::Button(QStringLiteral("cmdAddSet"), QStringLiteral("Insert S&et"),
                             QStringLiteral("Add a set after the exercise's last set (\"+\" in the grid)"));
    cmdRemoveSet = form::Button(QStringLiteral("cmdRemoveSet"), QStringLiteral("Re&move Set"),
                                QStringLiteral("Remove the current set (\"-\" in the grid)"));
    cmdUp = form::Button(QStringLiteral("cmdUp"), QStringLiteral("Move &Up"), QStringLiteral("Move the selected rows up"));
    cmdDown = form::Button(QStringLiteral("cmdDown"), QStringLiteral("Move Do&wn"),
                           QStringLiteral("Move the selected rows down"));
    auto* gridButtons = new QHBoxLayout;
    for (auto* b : {cmdAddSet, cmdRemoveSet, cmdUp, cmdDown})
        gridButtons->addWidget(b);
    gridButtons->addStretch(1);

    // The exercises to add.
    auto* fraList = new QGroupBox(QStringLiteral("Exercises"), page);
    auto* lv = new QVBoxLayout(fraList);
    optExercise[0] = form::Named(new QRadioButton(QStringLiteral("E&xercises"), fraList), QStringLiteral("optExercise_0"));
    optExercise[1] = form::Named(new QRadioButton(QStringLiteral("S&tretches"), fraList), QStringLiteral("optExercise_1"));
    auto* group = new QButtonGroup(fraList);
    group->addButton(optExercise[0], 0);
    group->addButton(optExercise[1], 1);
    optExercise[0]->setChecked(true);
    list1 = form::Named(new QListWidget(fraList), QStringLiteral("list1"));
    list1->setAccessibleName(QStringLiteral("Exercise list"));
    cmdAdd = form::Button(QStringLiteral("cmdAdd"), QStringLiteral("&Add"),
                          QStringLiteral("Add a set of the selected exercise (or double-click it)"));
    cmdInfo = form::Button(QStringLiteral("cmdInfo"), QStringLiteral("In&fo"),
                           QStringLiteral("Description and picture of the selected exercise"));
    auto* opts = new QHBoxLayout;
    opts->addWidget(optExercise[0]);
    opts->addWidget(optExercise[1]);
    lv->addLayout(opts);
    lv->addWidget(list1, 1);
    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(cmdAdd);
    listButtons->addWidget(cmdInfo);
    lv->addLayout(listButtons);
    fraList->setMinimumWidth(220);
    fraList->setMaximumWidth(300);

    // The workout as a whole, kept on its calendar row.
    txtDuration = form::Named(new QLineEdit(page), QStringLiteral("txtDuration"), QStringLiteral("hh:mm:ss"));
    txtDuration->setInputMask(QStringLiteral("99:99:99;_"));
    txtDuration->setMaximumWidth(90);
    cboIntensity = form::Named(new QComboBox(page), QStringLiteral("cboIntensity"));
    cboIntensity->setMinimumWidth(80);
    lblCal = form::Named(new QLabel(page), QStringLiteral("lblCal"));
    lblCal->setMinimumWidth(50);
    chkComplete = form::Check(QStringLiteral("chkComplete"), QStringLiteral("Workout is &Complete"));
    auto* totals = new QHBoxLayout;
    totals->addWidget(form::Caption(QStringLiteral("&Duration"), txtDuration));
    totals->addWidget(txtDuration);
    totals->addWidget(new QLabel(QStringLiteral("hh:mm:ss"), page));
    totals->addSpacing(12);
    totals->addWidget(form::Caption(QStringLiteral("&Intensity"), cboIntensity));
    totals->addWidget(cboIntensity);
    totals->addSpacing(12);
    auto* calCaption = new QLabel(QStringLiteral("Calories Burned:"), page);
    calCaption->setBuddy(lblCal);
    totals->addWidget(calCaption);
    totals->addWidget(lblCal);
    totals->addSpacing(12);
    totals->addWidget(chkComplete);
    totals->addStretch(1);

    auto* left = new QVBoxLayout;
    left->addWidget(descCaption);
    left->addWidget(lblDesc);
    left->addWidget(SS1, 1);
    left->addLayout(gridButtons);
    left->addLayout(totals);
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addWidget(fraList);
    auto* v = new QVBoxLayout(page);
    v->addLayout(header);
    v->addLayout(body, 1);

    const QList<QWidget*> order = {txtStartTime, txtEndTime,   SS1,          cmdAddSet,    cmdRemoveSet,
                                   cmdUp,        cmdDown,      txtDuration,  cboIntensity, chkComplete,
                                   optExercise[0], optExercise[1], list1,    cmdAdd,       cmdInfo};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    return page;
}

// ---------------------------------------------------------------- lists and the grid

void frmStrengthLog::FillCombos()
{
    // The questionnaire fills its own rating lists.
}

void frmStrengthLog::FormatGrid()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboIntensity->clear();
    QStringList levels;
    SqlText = QStringLiteral("select * from intensity where User_ID=") + CurrentUserID + QStringLiteral(" order by intensity");
    ForEachRow(UserRS, SqlText, [this, &levels](Recordset& rs) {
        const QString text = Str(rs.Field(1));
        cboIntensity->addItem(text, qlonglong(IntensityData(Val(rs.Field(QStringLiteral("Value"))))));
        levels << text;
    });
    cboIntensity->setCurrentIndex(-1);

    SS1->SetMaxCols(colCount);
    SS1->SetMaxRows(0);
    SS1->SetColumnHeaders({QStringLiteral("Muscle Group"), QStringLiteral("Exercise"), QStringLiteral("Set"),
                           QStringLiteral("Reps"), QStringLiteral("Weight(") + m_unit + QStringLiteral(")"),
                           QStringLiteral("Intensity"), QStringLiteral("Goal"), QStringLiteral("Notes")});
    SS1->SetColumnType(colGroup, Grid::TypeStatic);
    SS1->SetColumnType(colExercise, Grid::TypeText);
    SS1->SetColumnType(colSet, Grid::TypeText);
    SS1->SetColumnType(colReps, Grid::TypeNumber);
    SS1->SetColumnType(colWeight, Grid::TypeNumber);
    SS1->SetColumnType(colIntensity, Grid::TypeList);
    SS1->SetListItems(0, colIntensity, levels);
    SS1->SetColumnType(colGoal, Grid::TypeText);
    SS1->SetColumnType(colNotes, Grid::TypeText);
    SS1->SetDecimals(colReps, -1);
    SS1->SetDecimals(colWeight, -1);
    SS1->SetMaxLength(colSet, 50);
    SS1->SetMaxLength(colIntensity, 10);
    SS1->SetMaxLength(colGoal, 50);
    SS1->SetMaxLength(colNotes, 50);
    const int widths[] = {0, 14, 24, 5, 7, 10, 9, 18, 18};
    for (int c = 1; c <= colCount; ++c)
        SS1->SetColumnWidthChars(c, widths[c]);
    SS1->horizontalHeader()->setStretchLastSection(true);
}

void frmStrengthLog::FormatData()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SS1->BeginUpdate();
    SS1->SetColumnLocked(colGroup, true);
    SS1->SetColumnLocked(colExercise, true);
    for (int c = colSet; c <= colGoal; ++c)
        SS1->SetColumnLocked(c, false);
    const QColor grey(0xE0, 0xE0, 0xE0);
    auto* table = static_cast<QTableWidget*>(SS1);
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        SS1->SetCellType(r, colGroup, Grid::TypeStatic);
        SS1->SetCellColor(r, colGoal, grey);
        if (QTableWidgetItem* it = table->item(r - 1, colIntensity - 1))
            it->setTextAlignment(Qt::AlignCenter);
    }
    SS1->EndUpdate();
}

void frmStrengthLog::ClearGrid()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SS1->SetMaxRows(0);
}

void frmStrengthLog::Loadexercises()
{
    list1->clear();
    if (optExercise[1]->isChecked())
        SqlText = QStringLiteral("select distinct exercise from strength_exercises where type='Stretch' order by exercise");
    else
        SqlText = QStringLiteral("select distinct exercise from strength_exercises where type not like 'Stretch' order by exercise");
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) { list1->addItem(Str(rs.Field(0)).trimmed()); });
}

void frmStrengthLog::setRow(int row, const QStringList& cells)
{
    for (int c = colGroup; c <= colCount && c - 1 < cells.size(); ++c)
        SS1->SetText(row, c, cells[c - 1]);
}

QStringList frmStrengthLog::rowCells(int row) const
{
    QStringList cells;
    for (int c = colGroup; c <= colCount; ++c)
        cells << SS1->Text(row, c);
    return cells;
}

int frmStrengthLog::lastRowOf(const QString& exercise) const
{
    for (int r = SS1->MaxRows(); r >= 1; --r)
        if (SS1->Text(r, colExercise) == exercise)
            return r;
    return 0;
}

QString frmStrengthLog::muscleGroupOf(const QString& exercise)
{
    QString group = QStringLiteral("Total Body");
    SqlText = QStringLiteral("select muscle_group from strength_exercises where exercise='") + SqlQuote(exercise) +
              QStringLiteral("'");
    FirstRow(LibraryRS, SqlText, [&group](Recordset& rs) { group = Str(rs.Field(0)); });
    return group;
}

// ---------------------------------------------------------------- loading

void frmStrengthLog::LoadStrength()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    QList<QStringList> rows;
    SqlText = QStringLiteral("select * from daily_Weights where ") + where(m_date) + QStringLiteral(" order by worder");
    QVariant start, end;
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        if (rows.isEmpty()) {
            lblWorkout->setText(Str(rs.Field(QStringLiteral("Name"))));
            start = rs.Field(QStringLiteral("StartTime"));
            end = rs.Field(QStringLiteral("EndTime"));
        }
        auto text = [&rs](const char* c) { return Str(rs.Field(QString::fromLatin1(c))); };
        rows << QStringList{text("muscle_group"), text("exercise"), text("Sets"),     text("Reps"),
                            text("weight"),       text("Intensity"), text("Goal"),   text("Comments")};
    });
    if (!rows.isEmpty()) {
        const QTime s = EntryTime(start), e = EntryTime(end);
        if (s.isValid()) txtStartTime->setTime(s);
        if (e.isValid()) txtEndTime->setTime(e);
        lblTime->setText(QStringLiteral("Scheduled for ") +
                         regional::FormatDate(QDateTime(m_date, txtStartTime->time()), QStringLiteral("Medium Time")) +
                         QStringLiteral(" to ") +
                         regional::FormatDate(QDateTime(m_date, txtEndTime->time()), QStringLiteral("Medium Time")));
    }
    SS1->BeginUpdate();
    SS1->SetMaxRows(0);
    SS1->SetMaxRows(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r)
        setRow(r + 1, rows[r]);
    SS1->EndUpdate();

    SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and Date=#") +
              SqlDate(m_date) + QStringLiteral("# and name='") + SqlQuote(m_name) + QStringLiteral("' and key=") +
              QString::number(qlonglong(Val(m_key)));
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        chkComplete->setChecked(Val(rs.Field(QStringLiteral("Complete"))) != 0);
        txtDuration->setText(Str(rs.Field(QStringLiteral("duration"))));
        cboIntensity->setCurrentIndex(cboIntensity->findText(Str(rs.Field(QStringLiteral("Intensity"))), Qt::MatchExactly));
        lblCal->setText(Str(rs.Field(QStringLiteral("Cals"))));
    });
    FormatData();
}

void frmStrengthLog::LoadStrengthTemplate()
{
    ClearGrid();
    struct Set {
        QString group, exercise, set;
        double reps, weight;
        QString intensity, goal, comments;
    };
    QList<Set> sets;
    QString desc;
    SqlText = QStringLiteral("select a.workout_desc, b.* from workouts a, Workout_exercises b where a.workout_name='") +
              SqlQuote(m_name) + QStringLiteral("' and a.workout_id=b.workout_id");
    ForEachRow(LibraryRS, SqlText, [&](Recordset& rs) {
        desc = Str(rs.Field(QStringLiteral("workout_desc"))).trimmed();
        auto text = [&rs](const char* c) { return Str(rs.Field(QString::fromLatin1(c))); };
        sets << Set{text("muscle_group"), text("exercise"), text("Sets"),     Val(rs.Field(QStringLiteral("Reps"))),
                    Val(rs.Field(QStringLiteral("weight"))), text("Intensity"), text("Goal"), text("Comments")};
    });
    lblDesc->setText(desc);
    // The athlete's goals fill the library's zeros (read after the walk: LoadGoal has its own).
    for (Set& s : sets) {
        if (s.reps == 0) s.reps = LoadGoal(s.exercise, 2);
        if (s.weight == 0) s.weight = LoadGoal(s.exercise, 1);
    }
    QScopedValueRollback<bool> loading(m_loading, true);
    SS1->BeginUpdate();
    SS1->SetMaxRows(int(sets.size()));
    for (int r = 0; r < sets.size(); ++r) {
        const Set& s = sets[r];
        setRow(r + 1, {s.group, s.exercise, s.set, NumberText(s.reps), NumberText(s.weight), s.intensity, s.goal,
                       s.comments});
    }
    SS1->EndUpdate();
    FormatData();
}

double frmStrengthLog::LoadGoal(const QString& exercise, int which)
{
    if (!m_prefill)
        return 0;
    double value = 0;
    // The name goes in as it stands: a quote in it breaks the statement.
    SqlText = QStringLiteral("select * from strength_goals where User_ID=") + CurrentUserID +
              QStringLiteral(" and exercise='") + exercise + QStringLiteral("'");
    FirstRow(UserRS2, SqlText, [&value, which](Recordset& rs) {
        value = Val(Str(rs.Field(which == 1 ? QStringLiteral("weight") : QStringLiteral("Reps"))));
    });
    return value;
}

void frmStrengthLog::AddWorkout(QListWidget* list)
{
    if (!list || !list->currentItem())
        return;
    struct Set {
        QString exercise, set, reps, weight, intensity, goal, comments;
    };
    QList<Set> sets;
    SqlText = QStringLiteral("select * from Workout_exercises where Workout_name='") + SqlQuote(list->currentItem()->text()) +
              QStringLiteral("'");
    ForEachRow(LibraryRS, SqlText, [&sets](Recordset& rs) {
        auto text = [&rs](const char* c) { return Str(rs.Field(QString::fromLatin1(c))); };
        sets << Set{text("exercise"), text("Sets"), text("Reps"), text("weight"), text("Intensity"), text("Goal"),
                    text("Comments")};
    });
    QScopedValueRollback<bool> loading(m_loading, true);
    for (const Set& s : sets) {
        const QString group = muscleGroupOf(s.exercise);
        const int row = SS1->AddRow();
        setRow(row, {group, s.exercise, s.set, s.reps, s.weight, s.intensity, s.goal, s.comments});
    }
    FormatData();
}

void frmStrengthLog::LoadPsych() { Psych->LoadPsych(m_date, m_name, m_key); }

void frmStrengthLog::SavePsych(const QDate& date) { Psych->SavePsych(date, m_name, m_key); }

QString frmStrengthLog::where(const QDate& date) const
{
    return QStringLiteral("User_ID='") + CurrentUserID + QStringLiteral("' and Date=#") + SqlDate(date) +
           QStringLiteral("# and name='") + SqlQuote(m_name) + QStringLiteral("' and key='") + SqlQuote(m_key) +
           QStringLiteral("'");
}

QString frmStrengthLog::durationText() const
{
    const QString shown = txtDuration->displayText();
    if (!shown.contains(QRegularExpression(QStringLiteral("[0-9]"))))
        return QString();
    QString t = shown;
    t.replace(QLatin1Char('_'), QLatin1Char(' '));
    return t;
}

// ---------------------------------------------------------------- commands on the sets

void frmStrengthLog::changed()
{
    if (!m_loading)
        cmdSave->setEnabled(true);
}

void frmStrengthLog::on_cmdAdd_clicked()
{
    QListWidgetItem* item = list1->currentItem();
    if (!item)
        return;
    const QString exercise = item->text();
    Guard([this, &exercise] {
        QScopedValueRollback<bool> loading(m_loading, true);
        const int last = lastRowOf(exercise);
        int row = 0;
        if (last > 0) {
            row = last + 1;
            SS1->InsertRow(row);
            setRow(row, {SS1->Text(last, colGroup), exercise, strengthlog::NextSet(SS1->Text(last, colSet)), QString(),
                         QString(), SS1->Text(last, colIntensity)});
        } else {
            const QString group = muscleGroupOf(exercise);
            row = SS1->AddRow();
            setRow(row, {group, exercise, QStringLiteral("1")});
        }
        SS1->SetCellType(row, colReps, Grid::TypeNumber);
        SS1->SetCellType(row, colWeight, Grid::TypeNumber);
        FormatData();
        SS1->SetActiveCell(row, colReps);
    });
    CheckMoveButtons();
    changed();
}

void frmStrengthLog::on_cmdInfo_clicked()
{
    QListWidgetItem* item = list1->currentItem();
    if (!item)
        return;
    frmStrengthInfo info(item->text(), this);
    ShowModal(&info);
}

void frmStrengthLog::on_cmdAddSet_clicked()
{
    const int active = SS1->ActiveRow();
    if (active < 1 || active > SS1->MaxRows())
        return;
    const QString exercise = SS1->Text(active, colExercise);
    if (exercise.isEmpty())
        return;
    const int last = lastRowOf(exercise);
    if (!strengthlog::CanInsertSet(SS1->Text(last, colSet))) {
        MsgBox(QStringLiteral("You can add a maximum of 30 sets to an exercise."), vbInformation, Msg());
        return;
    }
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        QStringList cells = rowCells(last);
        cells[colSet - 1] = strengthlog::NextSet(cells[colSet - 1]);
        SS1->InsertRow(last + 1);
        setRow(last + 1, cells);
        FormatData();
    }
    CheckMoveButtons();
    cmdSave->setEnabled(true);
}

void frmStrengthLog::on_cmdRemoveSet_clicked()
{
    const int row = SS1->ActiveRow();
    const int col = std::max(1, SS1->ActiveCol());
    if (row < 1 || row > SS1->MaxRows())
        return;
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        SS1->DeleteRow(row);
        if (SS1->MaxRows() > 0)
            SS1->SetActiveCell(std::min(row, SS1->MaxRows()), col);
    }
    CheckMoveButtons();
    cmdSave->setEnabled(true);
}

QPair<int, int> frmStrengthLog::selectedBlock() const
{
    int first = 0, last = 0;
    if (!SS1->SelectedRowBlock(&first, &last))
        return {0, 0};
    return {first, last};
}

void frmStrengthLog::CheckMoveButtons()
{
    const auto [first, last] = selectedBlock();
    const bool empty = SS1->MaxRows() == 0 || first == 0;
    cmdUp->setEnabled(!empty && first > 1);
    cmdDown->setEnabled(!empty && last < SS1->MaxRows());
}

void frmStrengthLog::moveBlock(bool up)
{
    const auto [first, last] = selectedBlock();
    if (first == 0)
        return;
    if (up ? first <= 1 : last >= SS1->MaxRows()) {
        MsgBox(up ? QStringLiteral("Can't move selected exercise(s) up.") : QStringLiteral("Can't move selected exercise(s) down."),
               vbInformation, Msg());
        return;
    }
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        // The row passed over goes to the other side of the block.
        const int passed = up ? first - 1 : last + 1;
        const QStringList cells = rowCells(passed);
        SS1->BeginUpdate();
        SS1->DeleteRow(passed);
        const int target = up ? last : first;   // rows have shifted by one
        SS1->InsertRow(target);
        setRow(target, cells);
        SS1->EndUpdate();
        FormatData();
        const int shift = up ? -1 : 1;
        SS1->SelectRowBlock(first + shift, last + shift, 1);
    }
    CheckMoveButtons();
    cmdSave->setEnabled(true);
}

void frmStrengthLog::on_cmdUp_clicked() { moveBlock(true); }
void frmStrengthLog::on_cmdDown_clicked() { moveBlock(false); }

bool frmStrengthLog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == SS1 && event->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(event);
        if (k->text() == QLatin1String("+")) {
            on_cmdAddSet_clicked();
            return true;
        }
        if (k->text() == QLatin1String("-")) {
            on_cmdRemoveSet_clicked();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmStrengthLog::CalcCalories()
{
    const auto weight = SessionWeight(CurrentUserID, m_date);
    if (cboIntensity->currentIndex() < 0)
        return;
    lblCal->setText(QString::number(
        strengthlog::WorkoutCalories(cboIntensity->currentData().toLongLong(), durationText(), weight.value_or(0))));
}

// ---------------------------------------------------------------- saving

void frmStrengthLog::on_cmdSave_clicked()
{
    if (!TimesInOrder(txtStartTime->time(), txtEndTime->time())) {
        MsgBox(QStringLiteral("Please check your start and end times before scheduling."), vbInformation, Msg());
        return;
    }
    bool saved = false;
    Guard([this, &saved] {
        WaitCursor wait;
        if (!m_scheduling) {
            saved = SaveDate(m_date);
            return;
        }
        // A day whose view refuses the times ends the round: nothing more, the screen stays.
        saved = ForEachSelectedDay([this](const QDate& d) { return SaveDate(d); });
    });
    if (!saved)
        return;
    if (m_scheduling) {
        MsgBox(QStringLiteral("Workout Scheduled."), vbInformation, Msg());
        RefreshPlanner();
    } else {
        MsgBox(QStringLiteral("Workout Information Saved."), vbInformation, Msg());
    }
    accept();
}

bool frmStrengthLog::SaveDate(const QDate& date)
{
    // Everything of one date is written together or not at all.
    StoreTransaction transaction(UserConn);
    if (m_scheduling) {
        if (!ScheduleEntry(m_name, QStringLiteral("Strength"), date, txtStartTime->time(), txtEndTime->time(), StrengthIcon)) {
            MsgBox(QStringLiteral("Workout time is out of range, please verify start and end times."), vbInformation, Msg());
            return false;
        }
        m_key = SelectedKey;
    }
    m_date = date;
    UserConn.Execute(QStringLiteral("delete * from Daily_Weights where ") + where(date));
    {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("Daily_Weights"));
        const QDateTime start(date, txtStartTime->time()), end(date, txtEndTime->time());
        for (int r = 1; r <= SS1->MaxRows(); ++r) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
            UserRS.SetField(QStringLiteral("Date"), date);
            UserRS.SetField(QStringLiteral("Name"), lblWorkout->text());
            UserRS.SetField(QStringLiteral("Key"), m_key);
            UserRS.SetField(QStringLiteral("StartTime"), start);
            UserRS.SetField(QStringLiteral("EndTime"), end);
            UserRS.SetField(QStringLiteral("muscle_group"), SS1->Text(r, colGroup));
            UserRS.SetField(QStringLiteral("exercise"), SS1->Text(r, colExercise));
            UserRS.SetField(QStringLiteral("Sets"), SS1->Text(r, colSet));
            UserRS.SetField(QStringLiteral("Reps"), strengthlog::CellNumber(SS1->Text(r, colReps)));
            UserRS.SetField(QStringLiteral("weight"), strengthlog::CellNumber(SS1->Text(r, colWeight)));
            UserRS.SetField(QStringLiteral("Intensity"), strengthlog::IntensityText(SS1->Text(r, colIntensity)));
            UserRS.SetField(QStringLiteral("Goal"), strengthlog::NoteText(SS1->Text(r, colGoal)));
            UserRS.SetField(QStringLiteral("Comments"), strengthlog::NoteText(SS1->Text(r, colNotes)));
            UserRS.SetField(QStringLiteral("worder"), r);
            UserRS.Update();
        }
    }
    SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and Date=#") +
              SqlDate(date) + QStringLiteral("# and name='") + SqlQuote(m_name) + QStringLiteral("' and key=") +
              QString::number(qlonglong(Val(m_key)));
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        rs.SetField(QStringLiteral("Complete"), chkComplete->isChecked());
        rs.SetField(QStringLiteral("duration"), durationText());
        rs.SetField(QStringLiteral("Cals"), Val(lblCal->text()));
        rs.SetField(QStringLiteral("Intensity"), Val(cboIntensity->currentText()));
        rs.Update();
    });
    SavePsych(date);
    transaction.Commit();
    return true;
}

void frmStrengthLog::on_cmdPreviewWeights_clicked()
{
    auto& report = ReportStrengthLink();
    if (!report)
        return;
    QString file = lblWorkout->text();
    file.remove(QLatin1Char('/'));
    file.remove(QLatin1Char('\\'));
    file += QStringLiteral(".htm");
    StrengthLogPrint print;
    print.workout.name = lblWorkout->text();
    print.workout.description = lblDesc->text();
    for (int r = 1; r <= SS1->MaxRows(); ++r) {
        const QStringList c = rowCells(r);
        print.workout.rows.append({c.value(colGroup - 1), c.value(colExercise - 1), c.value(colSet - 1), c.value(colReps - 1),
                                   c.value(colWeight - 1), c.value(colIntensity - 1), c.value(colGoal - 1),
                                   c.value(colNotes - 1)});
    }
    print.date = m_date;
    print.key = m_scheduling ? QString() : m_key;
    print.from = regional::FormatDate(QDateTime(m_date, txtStartTime->time()), QStringLiteral("Medium Time"));
    print.to = regional::FormatDate(QDateTime(m_date, txtEndTime->time()), QStringLiteral("Medium Time"));
    Guard([&] { report(file, print); });
}

void frmStrengthLog::on_cmdClose_clicked() { reject(); }
