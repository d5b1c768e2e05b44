#include "exercise/frmExerciseLog.h"

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
#include "exercise/frmHRM.h"
#include "exercise/intervalspanel.h"
#include "exercise/psychpanel.h"
#include "exercise/rules/exercisecalc.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <memory>

std::function<void(const QString& fileName)>& ReportExerciseLink()
{
    static std::function<void(const QString&)> link;
    return link;
}

namespace {

QString Msg() { return QStringLiteral("Message"); }

struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

bool IsNumeric(const QString& text)
{
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

// A combo's value is its item of exactly that text; a text not in the list selects nothing.
void SelectExact(QComboBox* list, const QString& text)
{
    list->setCurrentIndex(list->findText(text, Qt::MatchExactly));
}

// An editable combo shows what was stored even when its list has lost it.
void SelectOrShow(QComboBox* list, const QString& text)
{
    SelectExact(list, text);
    if (list->currentIndex() < 0 && list->isEditable())
        list->setEditText(text);
}

QLineEdit* DurationEdit(const QString& name, QWidget* parent)
{
    auto* e = form::Named(new QLineEdit(parent), name, QStringLiteral("hh:mm:ss"));
    e->setInputMask(QStringLiteral("99:99:99;_"));
    e->setMaximumWidth(90);
    return e;
}

QLineEdit* NumberEdit(const QString& name, QWidget* parent, int width = 90)
{
    auto* e = form::Named(new QLineEdit(parent), name);
    e->setMaximumWidth(width);
    e->setAlignment(Qt::AlignRight);
    return e;
}

QComboBox* Combo(const QString& name, QWidget* parent, bool editable = false)
{
    auto* c = form::Named(new QComboBox(parent), name);
    c->setEditable(editable);
    if (editable)
        c->setInsertPolicy(QComboBox::NoInsert);
    // Long remembered entries widen the list, not the window.
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    c->setMinimumContentsLength(editable ? 14 : 6);
    return c;
}

QString NumberOrBlank(const QVariant& v) { return IsNull(v) ? QString() : Str(v); }

}  // namespace

frmExerciseLog::frmExerciseLog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmExerciseLog"));
    setWindowTitle(QStringLiteral("Exercise/Sports Planning and Log"));
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

    // The session's header: icon, name and when.
    imgExercise = form::Named(new QLabel(this), QStringLiteral("imgExercise"));
    imgExercise->setFixedSize(40, 40);
    imgExercise->setAlignment(Qt::AlignCenter);
    lblExercise = form::Named(new QLabel(this), QStringLiteral("lblExercise"));
    QFont big = lblExercise->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    lblExercise->setFont(big);
    lblTime = form::Named(new QLabel(this), QStringLiteral("lblTime"));
    auto* header = new QHBoxLayout;
    header->addWidget(imgExercise);
    auto* names = new QVBoxLayout;
    names->setSpacing(0);
    names->addWidget(lblExercise);
    names->addWidget(lblTime);
    header->addLayout(names, 1);

    TabPerformance = form::Named(new QTabWidget(this), QStringLiteral("TabPerformance"));
    TabPerformance->addTab(buildDetailsTab(), QStringLiteral("De&tails"));
    TabPerformance->addTab(buildFieldsTab(), QStringLiteral("&Fields"));
    Intervals = new IntervalsPanel(this);
    TabPerformance->addTab(Intervals, QStringLiteral("&Intervals"));
    TabPerformance->addTab(buildHeartTab(), QStringLiteral("Heart R&ate"));
    Psych = new PsychPanel(PsychPanel::ExerciseLog, this);
    TabTop = form::Named(new QTabWidget(this), QStringLiteral("TabTop"));
    TabTop->addTab(TabPerformance, QStringLiteral("Perf&ormance"));
    TabTop->addTab(Psych, QStringLiteral("Psycholo&gy"));
    TabTop->addTab(buildHistoryTab(), QStringLiteral("&History"));
    theme::ApplyToTabs(TabTop);
    theme::ApplyToTabs(TabPerformance);

    cmdPreviewExercise = form::Button(QStringLiteral("cmdPreviewExercise"), QStringLiteral("&Print"),
                                      QStringLiteral("Print this session"));
    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    cmdClose = form::Button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    cmdPreviewExercise->setEnabled(bool(ReportExerciseLink()));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdPreviewExercise);
    bottom->addStretch(1);
    bottom->addWidget(cmdSave);
    bottom->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(TabTop, 1);
    layout->addLayout(bottom);

    QMetaObject::connectSlotsByName(this);
    for (auto* e : {txtDistance, txtPlannedDistance, txtDuration, txtPlannedDuration})
        connect(e, &QLineEdit::textChanged, this, [this] { updateCalcEnabled(); });
    connect(cboDistUnit, &QComboBox::currentIndexChanged, this, [this] { updateCalcEnabled(); });
    connect(txtLaps, &QSpinBox::valueChanged, this, [this](int n) {
        if (!m_loading) setLaps(n);
    });
    connect(txtRows, &QSpinBox::valueChanged, this, [this](int n) {
        if (!m_loading) setFieldRows(n);
    });
    connect(SS2, &Grid::CellEdited, this, [this](int row, int col) { fieldLeft(row, col); });
    SS2->installEventFilter(this);
    connect(Psych, &PsychPanel::Changed, this, [this] { changed(); });
    connect(Intervals, &IntervalsPanel::Changed, this, [this] { changed(); });
    connect(TabTop, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_loading && index == HistoryTab) historyTabShown();
    });
    for (auto* d : {txtStart, txtEnd})
        connect(d, &QDateEdit::dateChanged, this, [this] { historyChanged(); });
    connect(cboHistUnit, &QComboBox::currentIndexChanged, this, [this] { historyChanged(); });
    connect(cboGraph, &QComboBox::currentIndexChanged, this, [this](int view) {
        if (!m_loading && view >= 0) Guard([this, view] { RefreshExerciseGraph(view); });
    });
    connect(cboStyle, &QComboBox::currentIndexChanged, this, [this](int style) {
        if (m_loading || style < 0) return;
        Chart1->SetStyle(style == 1 ? Chart::Line : Chart::Bar);
        if (cboGraph->currentIndex() >= 0) Guard([this] { RefreshExerciseGraph(cboGraph->currentIndex()); });
    });

    // Opening, in the screen's order.
    for (Grid* g : {Intervals->SS1, SS2, SS3})
        g->SetGridBackColor(theme::Tint(theme::Color()));
    if (!m_name.isEmpty())
        lblExercise->setText(m_name);
    Guard([this] {
        FillCombos();
        FormatGrid();
        LoadIntervals();
        SqlText = QStringLiteral("select * from hrm_info where User_ID ='") + CurrentUserID + QStringLiteral("'");
        FirstRow(UserRS, SqlText, [this](Recordset& rs) {
            txtRHR->setText(NumberOrBlank(rs.Field(QStringLiteral("RESTING_HR"))));
            txtMHR->setText(NumberOrBlank(rs.Field(QStringLiteral("MAXIMUM_HR"))));
            // The athlete's bounds beside each zone.
            for (int i = 0; i < 5 && m_zoneCaptions[i]; ++i) {
                const QString lower = Str(rs.Field(QStringLiteral("Z%1Lower").arg(i + 1)));
                const QString upper = Str(rs.Field(QStringLiteral("Z%1Upper").arg(i + 1)));
                if (!lower.isEmpty() && !upper.isEmpty())
                    m_zoneCaptions[i]->setText(QStringLiteral("Zone &%1 (%2-%3)").arg(i + 1).arg(lower, upper));
            }
        });
    });
    if (m_scheduling) {
        lblTime->setText(QStringLiteral("To be scheduled."));
        lblExercise->setText(m_name);
        txtStartTime->setTime(PlannerStartTime());
        // Half an hour later (0.02083 of a day).
        txtEndTime->setTime(PlannerStartTime().addSecs(qRound(0.02083 * 86400)));
        Guard([this] { LoadTemplate(); });
    } else {
        setWindowTitle(QStringLiteral("Exercise/Sports Planning and Log for ") + regional::LongDate(m_date));
        for (QWidget* w : std::initializer_list<QWidget*>{txtStartTime, txtEndTime, lblStart, lblEnd})
            w->hide();
        Guard([this] {
            // The entry's own times stand until the session's row says otherwise.
            QTime s, e;
            ReadEntryTimes(m_key, m_date, &s, &e);
            if (s.isValid()) txtStartTime->setTime(s);
            if (e.isValid()) txtEndTime->setTime(e);
            LoadInfo();
            LoadForm();
            LoadPsych();
        });
    }
    txtStart->setDate(QDate::currentDate());
    txtEnd->setDate(QDate::currentDate());
    Guard([this] {
        cboHistUnit->clear();
        SqlText = QStringLiteral("select distinct distanceunit from daily_exercise where User_ID='") + CurrentUserID +
                  QStringLiteral("' and name='") + SqlQuote(m_name) + QStringLiteral("'");
        ForEachRow(UserRS, SqlText, [this](Recordset& rs) {
            const QString unit = Str(rs.Field(0));
            if (!unit.isEmpty()) cboHistUnit->addItem(unit);
        });
        cboHistUnit->setCurrentIndex(cboHistUnit->count() > 0 ? 0 : -1);
        lblAvgSpeed->setText(cboHistUnit->currentText() + QStringLiteral("/h"));
    });
    SetupScrollBars();
    CreateZoomActions();
    updateCalcEnabled();
    loading.reset();

    for (auto* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    resize(1120, 680);
    CenterForm(this);
}

// ---------------------------------------------------------------- building the tabs

QWidget* frmExerciseLog::buildDetailsTab()
{
    auto* page = new QWidget(this);

    // The plan beside the result.
    auto* fraPerf = new QGroupBox(QStringLiteral("Planned and Actual"), page);
    auto* pg = new QGridLayout(fraPerf);
    txtPlannedDistance = NumberEdit(QStringLiteral("txtPlannedDistance"), fraPerf);
    txtDistance = NumberEdit(QStringLiteral("txtDistance"), fraPerf);
    cboDistUnit = Combo(QStringLiteral("cboDistUnit"), fraPerf);
    txtPlannedDuration = DurationEdit(QStringLiteral("txtPlannedDuration"), fraPerf);
    txtDuration = DurationEdit(QStringLiteral("txtDuration"), fraPerf);
    txtPlannedSpeed = NumberEdit(QStringLiteral("txtPlannedSpeed"), fraPerf);
    txtSpeed = NumberEdit(QStringLiteral("txtSpeed"), fraPerf);
    cboBaseUnit = Combo(QStringLiteral("cboBaseUnit"), fraPerf);
    cmdCalc = form::Button(QStringLiteral("cmdCalc"), QStringLiteral("Calc"), QStringLiteral("Calculate the speed"));
    cboIntensity = Combo(QStringLiteral("cboIntensity"), fraPerf);
    cboIntensity->setMinimumWidth(90);
    txtCals = NumberEdit(QStringLiteral("txtCals"), fraPerf);
    cmdCalcCals = form::Button(QStringLiteral("cmdCalcCals"), QStringLiteral("Calc"),
                               QStringLiteral("Calculate the calories burned"));
    for (auto* b : {cmdCalc, cmdCalcCals})
        b->setMaximumWidth(64);
    auto* planned = new QLabel(QStringLiteral("Planned"), fraPerf);
    auto* actual = new QLabel(QStringLiteral("Actual"), fraPerf);
    for (auto* l : {planned, actual})
        l->setStyleSheet(QStringLiteral("font-weight: bold"));
    pg->addWidget(planned, 0, 1);
    pg->addWidget(actual, 0, 2);
    form::AddRow(pg, 1, QStringLiteral("&Distance"), txtPlannedDistance);
    txtPlannedDistance->setAccessibleName(QStringLiteral("Planned distance"));
    pg->addWidget(txtDistance, 1, 2);
    txtDistance->setAccessibleName(QStringLiteral("Distance"));
    pg->addWidget(cboDistUnit, 1, 3);
    cboDistUnit->setAccessibleName(QStringLiteral("Distance unit"));
    form::AddRow(pg, 2, QStringLiteral("Ti&me"), txtPlannedDuration);
    txtPlannedDuration->setAccessibleName(QStringLiteral("Planned time"));
    pg->addWidget(txtDuration, 2, 2);
    txtDuration->setAccessibleName(QStringLiteral("Time"));
    pg->addWidget(new QLabel(QStringLiteral("hh:mm:ss"), fraPerf), 2, 3);
    form::AddRow(pg, 3, QStringLiteral("Sp&eed"), txtPlannedSpeed);
    txtPlannedSpeed->setAccessibleName(QStringLiteral("Planned speed"));
    pg->addWidget(txtSpeed, 3, 2);
    txtSpeed->setAccessibleName(QStringLiteral("Speed"));
    pg->addWidget(cboBaseUnit, 3, 3);
    cboBaseUnit->setAccessibleName(QStringLiteral("Speed unit"));
    pg->addWidget(cmdCalc, 3, 4);
    form::AddRow(pg, 4, QStringLiteral("Intensit&y"), cboIntensity);
    form::AddRow(pg, 5, QStringLiteral("Ca&lories"), txtCals);
    pg->addWidget(cmdCalcCals, 5, 2, Qt::AlignLeft);
    pg->setColumnStretch(5, 1);
    pg->setRowStretch(6, 1);

    // What kind of session, where and with what.
    auto* fraSession = new QGroupBox(QStringLiteral("Session"), page);
    auto* sg = new QGridLayout(fraSession);
    txtStartTime = form::Named(new QTimeEdit(fraSession), QStringLiteral("txtStartTime"));
    txtEndTime = form::Named(new QTimeEdit(fraSession), QStringLiteral("txtEndTime"));
    for (auto* t : {txtStartTime, txtEndTime})
        t->setDisplayFormat(QStringLiteral("h:mm:ss AP"));
    cboTraining = Combo(QStringLiteral("cboTraining"), fraSession);
    txtEvent = form::Edit(QStringLiteral("txtEvent"), TextLength);
    cboRoute = Combo(QStringLiteral("cboRoute"), fraSession, true);
    cboFacility = Combo(QStringLiteral("cboFacility"), fraSession, true);
    cboEquipment = Combo(QStringLiteral("cboEquipment"), fraSession, true);
    txtWarmup = form::Edit(QStringLiteral("txtWarmup"), 255);
    txtRecovery = form::Edit(QStringLiteral("txtRecovery"), 255);
    int r = 0;
    auto* startRow = new QHBoxLayout;
    startRow->addWidget(txtStartTime);
    lblEnd = form::Caption(QStringLiteral("E&nd"), txtEndTime);
    startRow->addWidget(lblEnd);
    startRow->addWidget(txtEndTime);
    startRow->addStretch(1);
    lblStart = form::Caption(QStringLiteral("Sta&rt"), txtStartTime);
    sg->addWidget(lblStart, r, 0);
    sg->addLayout(startRow, r++, 1);
    form::AddRow(sg, r++, QStringLiteral("T&ype"), cboTraining);
    form::AddRow(sg, r++, QStringLiteral("E&vent"), txtEvent);
    form::AddRow(sg, r++, QStringLiteral("Locatio&n"), cboRoute);
    form::AddRow(sg, r++, QStringLiteral("Facility/Co&urse"), cboFacility);
    form::AddRow(sg, r++, QStringLiteral("E&quipment"), cboEquipment);
    form::AddRow(sg, r++, QStringLiteral("&Warmup"), txtWarmup);
    form::AddRow(sg, r++, QStringLiteral("Re&covery"), txtRecovery);
    sg->setColumnStretch(1, 1);

    // Laps.
    auto* fraLaps = new QGroupBox(QStringLiteral("Laps"), page);
    auto* lg = new QVBoxLayout(fraLaps);
    txtLaps = form::Named(new QSpinBox(fraLaps), QStringLiteral("txtLaps"));
    txtLaps->setRange(0, 999);
    SS3 = form::Named(new Grid(fraLaps), QStringLiteral("SS3"));
    auto* lapsRow = new QHBoxLayout;
    lapsRow->addWidget(form::Caption(QStringLiteral("La&ps"), txtLaps));
    lapsRow->addWidget(txtLaps);
    lapsRow->addStretch(1);
    lg->addLayout(lapsRow);
    lg->addWidget(SS3, 1);
    fraLaps->setMinimumWidth(190);

    txtComments = form::Named(new QPlainTextEdit(page), QStringLiteral("txtComments"));
    txtComments->setTabChangesFocus(true);
    txtComments->setMinimumHeight(60);

    auto* grid = new QGridLayout(page);
    grid->addWidget(fraPerf, 0, 0);
    grid->addWidget(fraSession, 0, 1);
    grid->addWidget(fraLaps, 0, 2, 3, 1);
    grid->addWidget(form::Caption(QStringLiteral("N&otes"), txtComments), 1, 0, 1, 2);
    grid->addWidget(txtComments, 2, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 2);
    grid->setRowStretch(2, 1);   // the notes take what the fields leave

    // Tab runs down the plan beside the result, then the session, the notes and the laps.
    const QList<QWidget*> order = {txtPlannedDistance, txtDistance,  cboDistUnit, txtPlannedDuration, txtDuration,
                                   txtPlannedSpeed,    txtSpeed,     cboBaseUnit, cmdCalc,            cboIntensity,
                                   txtCals,            cmdCalcCals,  txtStartTime, txtEndTime,        cboTraining,
                                   txtEvent,           cboRoute,     cboFacility, cboEquipment,       txtWarmup,
                                   txtRecovery,        txtComments,  txtLaps,     SS3};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);

    for (auto* e : {txtDistance, txtPlannedDistance, txtDuration, txtPlannedDuration, txtSpeed, txtPlannedSpeed, txtCals,
                    txtEvent, txtWarmup, txtRecovery})
        connect(e, &QLineEdit::textEdited, this, [this] { changed(); });
    for (auto* c : {cboDistUnit, cboBaseUnit, cboIntensity, cboTraining, cboRoute, cboFacility, cboEquipment})
        connect(c, &QComboBox::currentTextChanged, this, [this] { changed(); });
    return page;
}

QWidget* frmExerciseLog::buildFieldsTab()
{
    auto* page = new QWidget(this);
    txtRows = form::Named(new QSpinBox(page), QStringLiteral("txtRows"));
    txtRows->setRange(0, 500);
    SS2 = form::Named(new Grid(page), QStringLiteral("SS2"));
    SSCommand1 = form::Button(QStringLiteral("SSCommand1"), QStringLiteral("Reset For&m"),
                              QStringLiteral("Load the form of the library item again"));
    SSCommand2 = form::Button(QStringLiteral("SSCommand2"), QStringLiteral("&Delete Row"));
    auto* top = new QHBoxLayout;
    top->addWidget(form::Caption(QStringLiteral("Ro&ws"), txtRows));
    top->addWidget(txtRows);
    top->addStretch(1);
    top->addWidget(SSCommand1);
    top->addWidget(SSCommand2);
    auto* tip = new QLabel(QStringLiteral("Type a value, or a formula over other cells beginning with \"=\" "
                                          "(for instance =B1/B2). Formula cells are read-only; F2 edits a cell."),
                           page);
    tip->setWordWrap(true);
    auto* v = new QVBoxLayout(page);
    v->addLayout(top);
    v->addWidget(SS2, 1);
    v->addWidget(tip);
    return page;
}

QWidget* frmExerciseLog::buildHeartTab()
{
    auto* page = new QWidget(this);
    auto* fraRates = new QGroupBox(QStringLiteral("Heart Rate"), page);
    auto* g = new QGridLayout(fraRates);
    txtRHR = NumberEdit(QStringLiteral("txtRHR"), fraRates);
    txtMHR = NumberEdit(QStringLiteral("txtMHR"), fraRates);
    for (auto* e : {txtRHR, txtMHR})
        e->setReadOnly(true);
    txtStartHeart = NumberEdit(QStringLiteral("txtStartHeart"), fraRates);
    txtEndHeart = NumberEdit(QStringLiteral("txtEndHeart"), fraRates);
    txtAvgHR = NumberEdit(QStringLiteral("txtAvgHR"), fraRates);
    form::AddRow(g, 0, QStringLiteral("Resting Heart Rate"), txtRHR);
    form::AddRow(g, 1, QStringLiteral("Maximum Heart Rate"), txtMHR);
    form::AddRow(g, 2, QStringLiteral("A&verage Heart Rate"), txtStartHeart);
    form::AddRow(g, 3, QStringLiteral("Ma&x Heart Rate"), txtEndHeart);
    form::AddRow(g, 4, QStringLiteral("Average HR(calc&ulated)"), txtAvgHR);
    g->setRowStretch(5, 1);

    auto* fraZones = new QGroupBox(QStringLiteral("Time in Heart Rate Zones"), page);
    auto* z = new QGridLayout(fraZones);
    for (int i = 0; i < 6; ++i) {
        txtZone[i] = form::Named(new QLineEdit(fraZones), QStringLiteral("txtZone_%1").arg(i),
                                 QStringLiteral("hh:mm:ss"));
        txtZone[i]->setMaximumWidth(90);
        txtZone[i]->setMaxLength(TextLength);
        const QString caption = i < 5 ? QStringLiteral("Zone &%1").arg(i + 1) : QStringLiteral("Time to return to RH&R");
        QLabel* l = form::AddRow(z, i, caption, txtZone[i]);
        if (i < 5) m_zoneCaptions[i] = l;
        connect(txtZone[i], &QLineEdit::textEdited, this, [this] { changed(); });
    }
    z->setRowStretch(6, 1);

    FB1 = form::Button(QStringLiteral("FB1"), QStringLiteral("Enter/Import Heart Rate Data"),
                       QStringLiteral("Type the readings of a heart rate monitor or import its file"));
    auto* h = new QHBoxLayout;
    h->addWidget(fraRates);
    h->addWidget(fraZones);
    h->addStretch(1);
    auto* v = new QVBoxLayout(page);
    v->addLayout(h);
    auto* b = new QHBoxLayout;
    b->addWidget(FB1);
    b->addStretch(1);
    v->addLayout(b);
    v->addStretch(1);
    for (auto* e : {txtStartHeart, txtEndHeart, txtAvgHR})
        connect(e, &QLineEdit::textEdited, this, [this] { changed(); });
    return page;
}

// ---------------------------------------------------------------- lists and grids

void frmExerciseLog::FillCombos()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    cboTraining->clear();
    cboTraining->addItems({QString(), QStringLiteral("Competition"), QStringLiteral("Practice"), QStringLiteral("Testing"),
                           QStringLiteral("Base Training"), QStringLiteral("Advanced Training"),
                           QStringLiteral("Off-Season Training")});
    cboTraining->setCurrentIndex(-1);
    cboBaseUnit->clear();
    cboBaseUnit->addItems({QStringLiteral("kph"), QStringLiteral("mph")});
    cboBaseUnit->setCurrentIndex(-1);

    cboIntensity->clear();
    SqlText = QStringLiteral("select * from intensity where User_ID=") + CurrentUserID + QStringLiteral(" order by intensity");
    ForEachRow(UserRS, SqlText, [this](Recordset& rs) {
        cboIntensity->addItem(Str(rs.Field(1)), qlonglong(IntensityData(Val(rs.Field(QStringLiteral("Value"))))));
    });
    cboIntensity->setCurrentIndex(-1);

    cboDistUnit->clear();
    listfill::FillList(cboDistUnit, LibraryRS, QStringLiteral("select * from units where type='distance'"),
                       QStringLiteral("Name"));
    cboDistUnit->setCurrentIndex(-1);

    // What earlier sessions of the item were done on, by any athlete.
    const QString item = SqlQuote(m_name);
    auto remembered = [&item](QComboBox* list, const QString& column) {
        list->clear();
        list->addItem(QString());
        SqlText = QStringLiteral("select distinct ") + column + QStringLiteral(" from daily_exercise  where name='") + item +
                  QStringLiteral("'");
        listfill::FillList(list, UserRS, SqlText, column, QString(), true);
        list->setCurrentIndex(-1);
    };
    remembered(cboRoute, QStringLiteral("route"));
    remembered(cboFacility, QStringLiteral("facility"));
    remembered(cboEquipment, QStringLiteral("equipment"));

    cboGraph->clear();
    cboGraph->addItems({QStringLiteral("Distance"), QStringLiteral("Speed"), QStringLiteral("Duration(hours)"),
                        QStringLiteral("Intensity"), QStringLiteral("Average Heart Rate")});
    cboGraph->setCurrentIndex(-1);
    cboStyle->clear();
    cboStyle->addItems({QStringLiteral("Bar"), QStringLiteral("Line")});
    cboStyle->setCurrentIndex(0);

    // The item's icon. This statement doubles a quote only after a blank.
    QString iconName = m_name;
    iconName.replace(QStringLiteral(" '"), QStringLiteral(" ''"));
    m_image = 0;
    try {
        FirstRow(LibraryRS,
                 QStringLiteral("select Image from endurance_exercises where exercise='") + iconName + QStringLiteral("'"),
                 [this](Recordset& rs) { m_image = int(Val(rs.Field(0))); });
    } catch (const StoreError&) {
        m_image = 0;   // a name the statement cannot hold shows no icon
    }
    imgExercise->clear();
    if (m_image != 0)
        imgExercise->setPixmap(ExerciseIcon(m_image).scaled(36, 36, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmExerciseLog::FormatGrid()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    // Laps: the number, then the time typed through a mask.
    SS3->SetMaxCols(2);
    SS3->SetMaxRows(0);
    SS3->SetColumnHeaders({QStringLiteral("Lap"), QStringLiteral("Time (mm:ss:ms)")});
    SS3->SetColumnType(1, Grid::TypeStatic);
    SS3->SetColumnType(2, Grid::TypeTime);
    SS3->SetColumnWidthChars(1, 5);
    SS3->SetColumnWidthChars(2, 14);
    SS3->SetRowHeadersVisible(false);
    SS3->setAccessibleName(QStringLiteral("Lap times"));

    // Fields: name, value or formula, unit.
    SS2->SetMaxCols(3);
    SS2->SetMaxRows(0);
    SS2->SetColumnHeaders({QStringLiteral("Field"), QStringLiteral("Value"), QStringLiteral("Units")});
    SS2->SetColumnType(1, Grid::TypeText);
    SS2->SetColumnType(2, Grid::TypeText);
    SS2->SetColumnType(3, Grid::TypeText);
    SS2->SetMaxLength(1, 50);
    SS2->SetMaxLength(2, 255);
    SS2->SetMaxLength(3, 50);
    SS2->SetColumnWidthChars(1, 28);
    SS2->SetColumnWidthChars(2, 22);
    SS2->SetColumnWidthChars(3, 16);
    SS2->horizontalHeader()->setStretchLastSection(true);
    SS2->SetDecimals(2, -1);
    SS2->setAccessibleName(QStringLiteral("Fields"));
    if (auto* corner = SS2->verticalHeader())
        corner->setToolTip(QStringLiteral("Row"));
}

void frmExerciseLog::LoadIntervals() { Intervals->LoadIntervals(); }

void frmExerciseLog::setLaps(int laps)
{
    const int old = SS3->MaxRows();
    SS3->SetMaxRows(std::max(0, laps));
    for (int r = old + 1; r <= SS3->MaxRows(); ++r) {
        SS3->SetText(r, 1, QString::number(r));
        SS3->SetText(r, 2, QStringLiteral("00:00:00"));
    }
    if (txtLaps->value() != laps) {
        QScopedValueRollback<bool> loading(m_loading, true);
        txtLaps->setValue(laps);
    }
    changed();
}

void frmExerciseLog::setFieldRows(int rows)
{
    const int old = SS2->MaxRows();
    SS2->SetMaxRows(std::max(0, rows));
    for (int r = std::max(1, old + 1); r <= SS2->MaxRows(); ++r)
        SS2->SetText(r, 0, QString::number(r));
    if (txtRows->value() != rows) {
        QScopedValueRollback<bool> loading(m_loading, true);
        txtRows->setValue(rows);
    }
    changed();
}

void frmExerciseLog::loadunits(int row, const QString& fieldName)
{
    QStringList items;
    SqlText = QStringLiteral("select * from DefaultUnits where name = '") + SqlQuote(fieldName) +
              QStringLiteral("' and unit is not null");
    ForEachRow(LibraryRS, SqlText, [&items](Recordset& rs) {
        const QVariant unit = rs.Field(QStringLiteral("unit"));
        if (!IsNull(unit)) items << Str(unit);
    });
    if (items.isEmpty())
        return;
    SS2->SetCellType(row, 3, Grid::TypeList);
    SS2->SetListItems(row, 3, items);
}

// One row of SS2 from a stored field: a formula, a value, a unit or a selection list.
void frmExerciseLog::fillFieldRow(int row, const QString& fieldName, const QString& formula, const QString& value,
                                  const QVariant& units, bool fromTemplate)
{
    SS2->SetText(row, 0, QString::number(row));
    SS2->SetText(row, 1, fieldName);
    if (!formula.isEmpty()) {
        SS2->SetFormula(row, 2, formula);   // a leading "=" is dropped by the grid
        SS2->SetCellColor(row, 2, palette().color(QPalette::Button));
    } else {
        bool list = false;
        {
            // Selection fields: a list of the field's items in the unit column.
            SqlText = QStringLiteral("select * from DefaultUnits where name = '") + SqlQuote(fieldName) +
                      QStringLiteral("' and unit is not null");
            list = FirstRow(LibraryRS, SqlText, [](Recordset&) {});
        }
        QString shown = value;
        // A form's 0 is a blank to fill in; a session's 0 was recorded.
        if (fromTemplate && !list && IsNumeric(value) && Val(value) == 0)
            shown.clear();
        if (list) {
            loadunits(row, fieldName);
            SS2->SetCellType(row, 2, IsNumeric(shown) ? Grid::TypeNumber : Grid::TypeText);
        } else {
            SS2->SetCellType(row, 2, IsNumeric(value) ? Grid::TypeNumber : Grid::TypeText);
        }
        SS2->SetText(row, 2, shown);
    }
    if (!IsNull(units)) {
        const QString u = Str(units);
        if (SS2->GetCellType(row, 3) != Grid::TypeList)
            SS2->SetCellType(row, 3, IsNumeric(u) ? Grid::TypeNumber : Grid::TypeText);
        SS2->SetText(row, 3, u);
    }
}

void frmExerciseLog::LoadForm()
{
    struct Field {
        QString name, formula, value;
        QVariant units;
    };
    QList<Field> fields;
    SqlText = QStringLiteral("select * from Daily_Templates where ") + where() + QStringLiteral(" order by WORDER");
    ForEachRow(UserRS, SqlText, [&fields](Recordset& rs) {
        fields << Field{Str(rs.Field(QStringLiteral("field_name"))), Str(rs.Field(QStringLiteral("Formula"))),
                        Str(rs.Field(QStringLiteral("Value"))), rs.Field(QStringLiteral("Units"))};
    });
    if (fields.isEmpty()) {
        LoadTemplate();
        return;
    }
    QScopedValueRollback<bool> loading(m_loading, true);
    SS2->BeginUpdate();
    SS2->SetMaxRows(0);
    SS2->SetMaxRows(int(fields.size()));
    txtRows->setValue(int(fields.size()));
    for (int i = 0; i < fields.size(); ++i)
        fillFieldRow(i + 1, fields[i].name, fields[i].formula, fields[i].value, fields[i].units, false);
    SS2->EndUpdate();
}

void frmExerciseLog::LoadTemplate()
{
    struct Field {
        QString name, formula, value;
        QVariant units;
    };
    QList<Field> fields;
    SqlText = QStringLiteral("select * from endurance_templates where name='") + SqlQuote(m_name) +
              QStringLiteral("' order by WORDER");
    ForEachRow(LibraryRS, SqlText, [&fields](Recordset& rs) {
        fields << Field{Str(rs.Field(QStringLiteral("field_name"))), Str(rs.Field(QStringLiteral("Formula"))),
                        Str(rs.Field(QStringLiteral("Value"))), rs.Field(QStringLiteral("Units"))};
    });
    if (fields.isEmpty())
        return;
    QScopedValueRollback<bool> loading(m_loading, true);
    SS2->BeginUpdate();
    SS2->SetMaxRows(0);
    SS2->SetMaxRows(int(fields.size()));
    txtRows->setValue(int(fields.size()));
    for (int i = 0; i < fields.size(); ++i)
        fillFieldRow(i + 1, fields[i].name.trimmed(), fields[i].formula, fields[i].value, fields[i].units, true);
    SS2->EndUpdate();
}

void frmExerciseLog::LoadPsych() { Psych->LoadPsych(m_date, m_name, m_key); }

QString frmExerciseLog::where() const
{
    return QStringLiteral("User_ID='") + CurrentUserID + QStringLiteral("' and Date=#") + SqlDate(m_date) +
           QStringLiteral("# and name='") + SqlQuote(m_name) + QStringLiteral("' and key='") + SqlQuote(m_key) +
           QStringLiteral("'");
}

QString frmExerciseLog::durationText(const QLineEdit* edit) const
{
    const QString shown = edit->displayText();
    if (!shown.contains(QRegularExpression(QStringLiteral("[0-9]"))))
        return QString();
    QString t = shown;
    t.replace(QLatin1Char('_'), QLatin1Char(' '));
    return t;
}

void frmExerciseLog::LoadInfo()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    SqlText = QStringLiteral("select * from Daily_Exercise where ") + where();
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        auto text = [&rs](const char* c) { return Str(rs.Field(QString::fromLatin1(c))); };
        auto number = [&rs](const char* c) { return NumberOrBlank(rs.Field(QString::fromLatin1(c))); };
        lblExercise->setText(text("Name"));
        const QTime s = EntryTime(rs.Field(QStringLiteral("StartTime")));
        const QTime e = EntryTime(rs.Field(QStringLiteral("EndTime")));
        if (s.isValid()) txtStartTime->setTime(s);
        if (e.isValid()) txtEndTime->setTime(e);
        lblTime->setText(QStringLiteral("Scheduled from ") + regional::FormatDate(QDateTime(m_date, txtStartTime->time()), QStringLiteral("Long Time")) +
                         QStringLiteral(" to ") + regional::FormatDate(QDateTime(m_date, txtEndTime->time()), QStringLiteral("Long Time")));
        txtDistance->setText(number("Distance"));
        txtPlannedDistance->setText(number("PlannedDistance"));
        SelectExact(cboDistUnit, text("DistanceUnit"));
        txtDuration->setText(text("duration"));
        txtPlannedDuration->setText(text("PlannedDuration"));
        txtSpeed->setText(number("Speed"));
        txtPlannedSpeed->setText(number("PlannedSpeed"));
        SelectExact(cboBaseUnit, text("SpeedUnit"));
        SelectExact(cboIntensity, text("Intensity"));
        txtWarmup->setText(text("Warmup"));
        txtRecovery->setText(text("Recovery"));
        SelectOrShow(cboRoute, text("Route"));
        SelectOrShow(cboFacility, text("facility"));
        SelectOrShow(cboEquipment, text("Equipment"));
        txtComments->setPlainText(text("Comments"));
        txtCals->setText(number("Cals"));
        txtStartHeart->setText(number("StartHeart"));
        txtEndHeart->setText(number("EndHeart"));
        for (int i = 0; i < 5; ++i)
            txtZone[i]->setText(Str(rs.Field(QStringLiteral("Zone%1").arg(i + 1))));
        txtAvgHR->setText(number("avgHR"));
        txtZone[5]->setText(text("TimetoRHR"));
        const QStringList laps = SplitLaps(text("LapTimes"));
        SS3->BeginUpdate();
        SS3->SetMaxRows(int(laps.size()));
        for (int r = 0; r < laps.size(); ++r) {
            SS3->SetText(r + 1, 1, QString::number(r + 1));
            SS3->SetText(r + 1, 2, laps[r]);
        }
        SS3->EndUpdate();
        txtLaps->setValue(int(laps.size()));
        SelectExact(cboTraining, text("Type"));
        txtEvent->setText(text("EventName"));
    });
    Intervals->LoadSession(m_date, m_key);
}

// ---------------------------------------------------------------- commands of the session

void frmExerciseLog::changed()
{
    if (!m_loading)
        cmdSave->setEnabled(true);
}

void frmExerciseLog::updateCalcEnabled()
{
    cmdCalc->setEnabled(CanCalcSpeed(Val(txtDistance->text()), gethours(durationText(txtDuration)),
                                     Val(txtPlannedDistance->text()), gethours(durationText(txtPlannedDuration)),
                                     cboDistUnit->currentText()));
}

void frmExerciseLog::on_cmdCalc_clicked()
{
    Guard([this] {
        const QString unit = cboDistUnit->currentText();
        const QString base = cboBaseUnit->currentText();
        if (auto v = CalcSpeed(Val(txtDistance->text()), unit, base, gethours(durationText(txtDuration))))
            txtSpeed->setText(NumberText(*v));
        if (auto v = CalcSpeed(Val(txtPlannedDistance->text()), unit, base, gethours(durationText(txtPlannedDuration))))
            txtPlannedSpeed->setText(NumberText(*v));
        changed();
    });
}

void frmExerciseLog::on_cmdCalcCals_clicked()
{
    if (cboIntensity->currentIndex() < 0) {
        MsgBox(QStringLiteral("Please select an intensity to calculate calories burned."), vbInformation, Msg());
        return;
    }
    Guard([this] {
        const auto weight = SessionWeight(CurrentUserID, m_date);
        if (!weight)
            return;
        const double hours = gethours(durationText(txtDuration));
        txtCals->setText(QString::number(CaloriesBurned(cboIntensity->currentData().toLongLong(), hours, *weight)));
        changed();
    });
}

void frmExerciseLog::on_FB1_clicked()
{
    HrmSession session;
    session.date = m_date;
    session.name = m_name;
    session.key = m_key;
    session.zonesChanged = [this](const QStringList& zoneTimes, double averageHR) {
        for (int i = 0; i < 5 && i < zoneTimes.size(); ++i)
            txtZone[i]->setText(zoneTimes[i]);
        txtAvgHR->setText(QString::number(qlonglong(regional::Round(averageHR, 0))));
        changed();
    };
    frmHRM dialog(session, this);
    ShowModal(&dialog);
}

void frmExerciseLog::on_cmdPreviewExercise_clicked()
{
    if (m_scheduling) {
        MsgBox(QStringLiteral("You must Save this Exercise/Sport before printing."), vbInformation, Msg());
        return;
    }
    auto& report = ReportExerciseLink();
    if (!report)
        return;
    QString file = m_name;
    file.remove(QLatin1Char('/'));
    file.remove(QLatin1Char('\\'));
    file += QStringLiteral(".htm");
    Guard([&] { report(file); });
}

void frmExerciseLog::on_SSCommand1_clicked()
{
    Guard([this] {
        LoadTemplate();
        changed();
    });
}

void frmExerciseLog::on_SSCommand2_clicked()
{
    if (SS2->MaxRows() == 0)
        return;
    const int row = SS2->ActiveRow() > 0 ? SS2->ActiveRow() : SS2->MaxRows();
    SS2->DeleteRow(row);
    for (int r = 1; r <= SS2->MaxRows(); ++r)
        SS2->SetText(r, 0, QString::number(r));
    QScopedValueRollback<bool> loading(m_loading, true);
    txtRows->setValue(SS2->MaxRows());
    cmdSave->setEnabled(true);
}

void frmExerciseLog::on_cmdClose_clicked() { reject(); }

// A key of a letter turns the field's cell into a text cell (so does "=", which begins a formula).
bool frmExerciseLog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == SS2 && event->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(event);
        const int row = SS2->ActiveRow();
        const int col = SS2->ActiveCol();
        const bool letter = (k->key() >= 65 && k->key() < Qt::Key_Escape) || k->text() == QLatin1String("=");
        if (row > 0 && col == 2 && letter && !(k->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            const Grid::CellType t = SS2->GetCellType(row, col);
            if (t == Grid::TypeNumber)
                SS2->SetCellType(row, col, Grid::TypeText);
        }
    }
    return QDialog::eventFilter(watched, event);
}

// Leaving a value cell: a number (or "0") makes a number cell, "=..." a formula, other text a
// text cell. Formula and list cells keep their kind.
void frmExerciseLog::fieldLeft(int row, int col)
{
    if (m_loading || col != 2 || row < 1)
        return;
    const Grid::CellType t = SS2->GetCellType(row, col);
    if (t == Grid::TypeFormula || t == Grid::TypeList || SS2->HasFormula(row, col))
        return;
    const QString text = SS2->Text(row, col);
    QScopedValueRollback<bool> loading(m_loading, true);
    if (text.startsWith(QLatin1Char('='))) {
        SS2->SetFormula(row, col, text);
        SS2->SetCellColor(row, col, palette().color(QPalette::Button));
    } else if (Val(text) != 0 || text == QLatin1String("0")) {
        SS2->SetCellType(row, col, Grid::TypeNumber);
    } else {
        SS2->SetCellType(row, col, Grid::TypeText);
    }
    cmdSave->setEnabled(true);
}

// ---------------------------------------------------------------- saving

void frmExerciseLog::on_cmdSave_clicked()
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
        RefreshPlanner();
    } else {
        MsgBox(QStringLiteral("Exercise/Sport Saved."), vbInformation, Msg());
    }
    accept();
}

bool frmExerciseLog::SaveDate(const QDate& date)
{
    // Everything of one date is written together or not at all.
    StoreTransaction transaction(UserConn);
    if (m_scheduling) {
        if (!ScheduleEntry(m_name, QStringLiteral("Exercise"), date, txtStartTime->time(), txtEndTime->time(), m_image)) {
            MsgBox(QStringLiteral("Exercise time is out of range, please verify start and end times."), vbInformation, Msg());
            return false;
        }
        m_key = SelectedKey;
    }
    m_date = date;
    const QString session = where();

    UserConn.Execute(QStringLiteral("delete * from Daily_Exercise where ") + session);
    {
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("Daily_Exercise"));
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("Date"), date);
        UserRS.SetField(QStringLiteral("Name"), lblExercise->text());
        UserRS.SetField(QStringLiteral("Key"), m_key);
        UserRS.SetField(QStringLiteral("StartTime"), QDateTime(date, txtStartTime->time()));
        UserRS.SetField(QStringLiteral("EndTime"), QDateTime(date, txtEndTime->time()));
        UserRS.SetField(QStringLiteral("Distance"), Val(txtDistance->text()));
        UserRS.SetField(QStringLiteral("PlannedDistance"), Val(txtPlannedDistance->text()));
        UserRS.SetField(QStringLiteral("DistanceUnit"), cboDistUnit->currentText());
        UserRS.SetField(QStringLiteral("duration"), durationText(txtDuration));
        UserRS.SetField(QStringLiteral("PlannedDuration"), durationText(txtPlannedDuration));
        UserRS.SetField(QStringLiteral("Speed"), Val(txtSpeed->text()));
        UserRS.SetField(QStringLiteral("PlannedSpeed"), Val(txtPlannedSpeed->text()));
        UserRS.SetField(QStringLiteral("SpeedUnit"), cboBaseUnit->currentText());
        UserRS.SetField(QStringLiteral("Intensity"), Val(cboIntensity->currentText()));
        UserRS.SetField(QStringLiteral("Warmup"), txtWarmup->text().trimmed());
        UserRS.SetField(QStringLiteral("Recovery"), txtRecovery->text().trimmed());
        QStringList laps;
        for (int r = 1; r <= SS3->MaxRows(); ++r)
            laps << SS3->Text(r, 2);
        UserRS.SetField(QStringLiteral("LapTimes"), JoinLaps(laps));
        UserRS.SetField(QStringLiteral("Type"), cboTraining->currentText().left(TextLength));
        UserRS.SetField(QStringLiteral("EventName"), txtEvent->text().left(TextLength));
        UserRS.SetField(QStringLiteral("Route"), cboRoute->currentText().left(TextLength));
        UserRS.SetField(QStringLiteral("facility"), cboFacility->currentText().left(TextLength));
        UserRS.SetField(QStringLiteral("Equipment"), cboEquipment->currentText().left(TextLength));
        UserRS.SetField(QStringLiteral("Comments"), txtComments->toPlainText());
        UserRS.SetField(QStringLiteral("Cals"), qlonglong(Val(txtCals->text())));
        UserRS.SetField(QStringLiteral("StartHeart"), Val(txtStartHeart->text()));
        UserRS.SetField(QStringLiteral("EndHeart"), Val(txtEndHeart->text()));
        for (int i = 0; i < 5; ++i)
            UserRS.SetField(QStringLiteral("Zone%1").arg(i + 1), txtZone[i]->text());
        UserRS.SetField(QStringLiteral("avgHR"), qlonglong(Val(txtAvgHR->text())));
        UserRS.SetField(QStringLiteral("TimetoRHR"), txtZone[5]->text());
        UserRS.Update();
    }

    Intervals->SaveSession(date, m_name, m_key);
    Psych->SavePsych(date, m_name, m_key);

    // An empty form keeps the fields last saved.
    if (SS2->MaxRows() > 0) {
        UserConn.Execute(QStringLiteral("delete * from Daily_Templates where ") + session);
        RecordsetScope scope(UserRS);
        UserRS.Open(QStringLiteral("Daily_Templates"));
        for (int r = 1; r <= SS2->MaxRows(); ++r) {
            UserRS.AddNew();
            UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
            UserRS.SetField(QStringLiteral("Date"), date);
            UserRS.SetField(QStringLiteral("Name"), m_name);
            UserRS.SetField(QStringLiteral("Key"), m_key);
            UserRS.SetField(QStringLiteral("field_name"), SS2->Text(r, 1).trimmed());
            if (SS2->HasFormula(r, 2)) {
                UserRS.SetField(QStringLiteral("Formula"), SS2->Formula(r, 2));
                UserRS.SetField(QStringLiteral("Value"), QString());
            } else {
                UserRS.SetField(QStringLiteral("Formula"), QString());
                UserRS.SetField(QStringLiteral("Value"), SS2->Text(r, 2));
            }
            UserRS.SetField(QStringLiteral("Units"), SS2->Text(r, 3));
            UserRS.SetField(QStringLiteral("worder"), r);
            UserRS.Update();
        }
    }

    // The day's totals read the calendar alone.
    SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and key=") +
              QString::number(qlonglong(Val(m_key))) + QStringLiteral(" and Date=#") + SqlDate(date) + QStringLiteral("#");
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        rs.SetField(QStringLiteral("Cals"), Val(txtCals->text()));
        rs.SetField(QStringLiteral("duration"), durationText(txtDuration));
        rs.SetField(QStringLiteral("Intensity"), Val(cboIntensity->currentText()));
        rs.Update();
    });
    transaction.Commit();
    return true;
}
