// Athlete Information: building the screen, loading the athlete and saving everything.
#include "athlete/frmUserInfo.h"
#include "core/widgets/Caption.h"
#include "athlete/energymodel.h"
#include "athlete/percentpie.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/widgets/ListFill.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QButtonGroup>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

using energy::NumText;

namespace {

const QString kMessage = QStringLiteral("Message");
// The size of the text columns the fields are saved in (Name, meal, StartTime), and room
// for any number a number column holds.
constexpr int TextColumn = 50;
constexpr int NumberLength = 24;

QComboBox* Combo(const QString& name)
{
    auto* c = new QComboBox;
    c->setObjectName(name);
    return c;
}

// A tab whose page scrolls when the window is made smaller than the page.
void AddPage(QTabWidget* tabs, QWidget* page, const QString& title)
{
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(page);
    tabs->addTab(scroll, title);
}

// A column of the open row, Null when the store has no such column.
QVariant Col(const Recordset& rs, const QString& name)
{
    return rs.HasField(name) ? rs.Field(name) : QVariant();
}

// A number typed into a field, or Null for a field left empty.
QVariant NumOrNull(const QString& text)
{
    return text.trimmed().isEmpty() ? QVariant() : QVariant(Val(text));
}

void SetIfPresent(QLineEdit* e, const QVariant& v)
{
    if (!IsNull(v)) e->setText(Str(v));
}

}  // namespace

frmUserInfo::frmUserInfo(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmUserInfo"));
    setWindowTitle(QStringLiteral("Athlete Information"));

    tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("tabs"));
    BuildPersonalTab();
    BuildWeightTab();
    BuildNutritionTab();
    BuildStrengthTab();
    BuildHeartRateTab();

    cmdSave = form::Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    cmdCancel = form::Button(QStringLiteral("cmdCancel"), QStringLiteral("&Close"));
    cmdCancel->setToolTip(QStringLiteral("Close without saving"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdCancel);

    auto* lay = new QVBoxLayout(this);
    lay->addWidget(tabs);
    lay->addLayout(buttons);

    connect(cmdSave, &QPushButton::clicked, this, &frmUserInfo::on_cmdSave_clicked);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    tmrHR = new QTimer(this);
    tmrHR->setObjectName(QStringLiteral("tmrHR"));
    tmrHR->setInterval(1000);
    connect(tmrHR, &QTimer::timeout, this, &frmUserInfo::on_tmrHR_timeout);

    ConnectChanges();
    resize(820, 640);
    Form_Load();
}

frmUserInfo::~frmUserInfo() = default;

// ---------------------------------------------------------------------------------- tabs

void frmUserInfo::BuildPersonalTab()
{
    auto* page = new QWidget;
    auto* g = new QGridLayout(page);

    txtName = form::Edit(QStringLiteral("txtName"), TextColumn);
    txtAge = form::Edit(QStringLiteral("txtAge"), NumberLength, 80);
    txtHeight = form::Edit(QStringLiteral("txtHeight"), NumberLength, 80);
    txtWeight2 = form::Edit(QStringLiteral("txtWeight2"), NumberLength, 80);
    txtBMR = form::Edit(QStringLiteral("txtBMR"), NumberLength, 80);
    lblStartDate = form::Label(QStringLiteral("lblStartDate"));
    Combo1 = Combo(QStringLiteral("Combo1"));
    cboFitness = Combo(QStringLiteral("cboFitness"));
    cmdCondition = form::Button(QStringLiteral("cmdCondition"), QStringLiteral("Conditioning &Test..."));
    cmdCalc = form::Button(QStringLiteral("cmdCalc"), QStringLiteral("Ca&lc"));
    cmdCalc->setToolTip(QStringLiteral("Calculate your daily calories from weight, age, sex and condition"));

    auto* sexBox = new QGroupBox(QStringLiteral("Sex"));
    auto* sexLay = new QHBoxLayout(sexBox);
    auto* sexGroup = new QButtonGroup(this);
    for (const QString& caption : {QStringLiteral("&Male"), QStringLiteral("&Female")}) {
        auto* r = new QRadioButton(caption);
        r->setObjectName(QStringLiteral("optsex(%1)").arg(optsex.size()));
        sexGroup->addButton(r);
        sexLay->addWidget(r);
        optsex << r;
    }
    sexLay->addStretch();
    auto* unitBox = new QGroupBox(QStringLiteral("Personal Measurements"));
    auto* unitLay = new QHBoxLayout(unitBox);
    auto* unitGroup = new QButtonGroup(this);
    for (const QString& caption : {QStringLiteral("M&etric"), QStringLiteral("&US/Imperial")}) {
        auto* r = new QRadioButton(caption);
        r->setObjectName(QStringLiteral("optMetric(%1)").arg(optMetric.size()));
        unitGroup->addButton(r);
        unitLay->addWidget(r);
        optMetric << r;
    }
    unitLay->addStretch();

    int row = 0;
    g->addWidget(Caption(QStringLiteral("&Name"), txtName), row, 0);
    g->addWidget(txtName, row++, 1, 1, 2);
    g->addWidget(Caption(QStringLiteral("&Age"), txtAge), row, 0);
    g->addWidget(txtAge, row++, 1);
    g->addWidget(sexBox, row++, 0, 1, 3);
    g->addWidget(unitBox, row++, 0, 1, 3);
    lblHeight = Caption(QStringLiteral("Hei&ght - in"), txtHeight);
    lblHeight->setObjectName(QStringLiteral("lblHeight"));
    g->addWidget(lblHeight, row, 0);
    g->addWidget(txtHeight, row++, 1);
    lblWeight2 = Caption(QStringLiteral("Starting &Weight - lbs"), txtWeight2);
    lblWeight2->setObjectName(QStringLiteral("lblWeight2"));
    g->addWidget(lblWeight2, row, 0);
    g->addWidget(txtWeight2, row++, 1);
    g->addWidget(new QLabel(QStringLiteral("Start Date")), row, 0);
    g->addWidget(lblStartDate, row++, 1, 1, 3);
    g->addWidget(Caption(QStringLiteral("&Purpose"), Combo1), row, 0);
    g->addWidget(Combo1, row++, 1, 1, 2);
    g->addWidget(Caption(QStringLiteral("C&ondition"), cboFitness), row, 0);
    g->addWidget(cboFitness, row, 1);
    g->addWidget(cmdCondition, row++, 2, Qt::AlignLeft);
    g->addWidget(Caption(QStringLiteral("Daily Calories (&BMR)"), txtBMR), row, 0);
    g->addWidget(txtBMR, row, 1);
    g->addWidget(cmdCalc, row++, 2, Qt::AlignLeft);
    g->setColumnStretch(2, 1);
    g->setColumnStretch(3, 2);
    txtName->setMaximumWidth(420);
    Combo1->setMaximumWidth(420);
    cboFitness->setMinimumWidth(140);
    g->setRowStretch(row, 1);
    AddPage(tabs, page, QStringLiteral("Personal"));

    connect(cmdCondition, &QPushButton::clicked, this, &frmUserInfo::on_cmdCondition_clicked);
    connect(cmdCalc, &QPushButton::clicked, this, &frmUserInfo::on_cmdCalc_clicked);
}

void frmUserInfo::BuildWeightTab()
{
    auto* page = new QWidget;
    auto* g = new QGridLayout(page);
    for (int i = 0; i < 4; ++i) lblkg << form::Label(QStringLiteral("lblkg(%1)").arg(i), QStringLiteral("lbs"));

    txtweight = form::Edit(QStringLiteral("txtweight"), NumberLength, 80);
    txtweight->setReadOnly(true);
    txtweight->setToolTip(QStringLiteral("Your starting weight from the Personal tab"));
    txtBMI = form::Edit(QStringLiteral("txtBMI"), NumberLength, 80);
    cmdBMI = form::Button(QStringLiteral("cmdBMI"), QStringLiteral("C&alc"));
    cboFrame = Combo(QStringLiteral("cboFrame"));
    cboFrame->setMinimumWidth(100);
    txtIdealWeight = form::Edit(QStringLiteral("txtIdealWeight"), NumberLength, 80);
    cmdLBM = form::Button(QStringLiteral("cmdLBM"), QStringLiteral("Ca&lc"));
    txtBodyfat = form::Edit(QStringLiteral("txtBodyfat"), NumberLength, 80);
    cmdBodyfat = form::Button(QStringLiteral("cmdBodyfat"), QStringLiteral("Calc"));
    txtTargetWeight = form::Edit(QStringLiteral("txtTargetWeight"), NumberLength, 80);
    txtBodyFatGoal = form::Edit(QStringLiteral("txtBodyFatGoal"), NumberLength, 80);
    lblDifference = form::Label(QStringLiteral("lblDifference"));
    lblLoss = form::Label(QStringLiteral("lblLoss"), QStringLiteral("Weight loss per week"));
    cboWeightLoss = Combo(QStringLiteral("cboWeightLoss"));
    cboWeightLoss->setMinimumWidth(80);
    cboWeightLoss->setToolTip(QStringLiteral(
        "Select your weight loss/gain per week. Authorities recommend losing no more than two pounds per week."));
    lblLoss->setBuddy(cboWeightLoss);
    txtDietLoss = form::Edit(QStringLiteral("txtDietLoss"), NumberLength, 60);
    txtExerciseLoss = form::Edit(QStringLiteral("txtExerciseLoss"), NumberLength, 60);
    lblmaintain = form::Label(QStringLiteral("lblmaintain"));
    lblmaintain->setWordWrap(true);
    lblCals = form::Label(QStringLiteral("lblCals"));
    lblDietSide = form::Label(QStringLiteral("lblDietSide"), QStringLiteral("calories less per day and burn"));
    lblExercise = form::Label(QStringLiteral("lblExercise"));
    lblExerciseSide = form::Label(QStringLiteral("lblExerciseSide"), QStringLiteral("calories per day, a"));
    lblChangeOf = form::Label(QStringLiteral("lblChangeOf"), QStringLiteral("loss of"));
    lblWeekly = form::Label(QStringLiteral("lblWeekly"));

    auto unitRow = [](QWidget* field, QWidget* unit, QWidget* extra = nullptr) {
        auto* h = new QHBoxLayout;
        h->addWidget(field);
        h->addWidget(unit);
        if (extra) h->addWidget(extra);
        h->addStretch();
        return h;
    };

    int row = 0;
    g->addWidget(Caption(QStringLiteral("Current Weight"), txtweight), row, 0);
    g->addLayout(unitRow(txtweight, lblkg[0]), row++, 1);
    g->addWidget(Caption(QStringLiteral("Body Mass &Index (BMI)"), txtBMI), row, 0);
    g->addLayout(unitRow(txtBMI, cmdBMI), row++, 1);
    g->addWidget(Caption(QStringLiteral("&Frame Size"), cboFrame), row, 0);
    g->addWidget(cboFrame, row++, 1, Qt::AlignLeft);
    g->addWidget(Caption(QStringLiteral("I&deal Weight"), txtIdealWeight), row, 0);
    g->addLayout(unitRow(txtIdealWeight, lblkg[1], cmdLBM), row++, 1);
    g->addWidget(Caption(QStringLiteral("Bod&y Fat %"), txtBodyfat), row, 0);
    g->addLayout(unitRow(txtBodyfat, cmdBodyfat), row++, 1);

    auto* goals = new QGroupBox(QStringLiteral("Goals"));
    auto* gg = new QGridLayout(goals);
    int r = 0;
    gg->addWidget(Caption(QStringLiteral("&Target Weight"), txtTargetWeight), r, 0);
    gg->addLayout(unitRow(txtTargetWeight, lblkg[2]), r++, 1);
    gg->addWidget(Caption(QStringLiteral("Target Body Fat %"), txtBodyFatGoal), r, 0);
    gg->addWidget(txtBodyFatGoal, r++, 1, Qt::AlignLeft);
    gg->addWidget(new QLabel(QStringLiteral("Difference")), r, 0);
    gg->addLayout(unitRow(lblDifference, lblkg[3]), r++, 1);
    gg->addWidget(lblLoss, r, 0);
    gg->addWidget(cboWeightLoss, r++, 1, Qt::AlignLeft);
    auto* shares = new QHBoxLayout;
    shares->addWidget(Caption(QStringLiteral("Di&et %"), txtDietLoss));
    shares->addWidget(txtDietLoss);
    shares->addSpacing(12);
    shares->addWidget(Caption(QStringLiteral("E&xercise %"), txtExerciseLoss));
    shares->addWidget(txtExerciseLoss);
    shares->addStretch();
    gg->addWidget(new QLabel(QStringLiteral("Share of the change")), r, 0);
    gg->addLayout(shares, r++, 1);
    gg->addWidget(lblmaintain, r++, 0, 1, 2);
    auto* sentence = new QHBoxLayout;
    for (QWidget* w : {static_cast<QWidget*>(new QLabel(QStringLiteral("Eat"))), static_cast<QWidget*>(lblCals),
                       static_cast<QWidget*>(lblDietSide), static_cast<QWidget*>(lblExercise),
                       static_cast<QWidget*>(lblExerciseSide), static_cast<QWidget*>(lblChangeOf),
                       static_cast<QWidget*>(lblWeekly)})
        sentence->addWidget(w);
    sentence->addStretch();
    lblEat = qobject_cast<QLabel*>(sentence->itemAt(0)->widget());
    gg->addLayout(sentence, r++, 0, 1, 2);
    gg->setColumnStretch(1, 1);
    g->addWidget(goals, row++, 0, 1, 2);
    g->setColumnStretch(1, 1);
    g->setRowStretch(row, 1);
    AddPage(tabs, page, QStringLiteral("Weight"));

    connect(cmdBMI, &QPushButton::clicked, this, &frmUserInfo::on_cmdBMI_clicked);
    connect(cmdLBM, &QPushButton::clicked, this, &frmUserInfo::on_cmdLBM_clicked);
    connect(cmdBodyfat, &QPushButton::clicked, this, &frmUserInfo::on_cmdBodyfat_clicked);
}

void frmUserInfo::BuildNutritionTab()
{
    auto* page = new QWidget;
    auto* h = new QHBoxLayout(page);

    // Left: the diet, its percentages and the meals of the day.
    auto* left = new QVBoxLayout;
    auto* dietBox = new QGroupBox(QStringLiteral("Percent of Calories"));
    auto* dg = new QGridLayout(dietBox);
    cboDiet = Combo(QStringLiteral("cboDiet"));
    txtCarbs = form::Edit(QStringLiteral("txtCarbs"), NumberLength, 60);
    txtProtein = form::Edit(QStringLiteral("txtProtein"), NumberLength, 60);
    txtFat = form::Edit(QStringLiteral("txtFat"), NumberLength, 60);
    txtPoints = form::Edit(QStringLiteral("txtPoints"), NumberLength, 60);
    Graph1 = new PercentPie;
    Graph1->setObjectName(QStringLiteral("Graph1"));
    Graph1->SetTitle(QStringLiteral("Percent of Calories Breakdown"));
    dg->addWidget(Caption(QStringLiteral("D&iet"), cboDiet), 0, 0);
    dg->addWidget(cboDiet, 0, 1, 1, 3);
    dg->addWidget(Caption(QStringLiteral("Car&bs %"), txtCarbs), 1, 0);
    dg->addWidget(txtCarbs, 1, 1);
    dg->addWidget(Caption(QStringLiteral("P&rotein %"), txtProtein), 2, 0);
    dg->addWidget(txtProtein, 2, 1);
    dg->addWidget(Caption(QStringLiteral("&Fat %"), txtFat), 3, 0);
    dg->addWidget(txtFat, 3, 1);
    dg->addWidget(Graph1, 1, 2, 4, 2);
    auto* pointsCaption = Caption(QStringLiteral("If you use a points system, enter your target points value:"), txtPoints);
    pointsCaption->setWordWrap(true);
    dg->addWidget(pointsCaption, 5, 0, 1, 3);
    dg->addWidget(txtPoints, 5, 3);
    dg->setColumnStretch(2, 1);
    left->addWidget(dietBox);

    auto* mealBox = new QGroupBox(QStringLiteral("Meals"));
    auto* mg = new QGridLayout(mealBox);
    lstMeals = new QTreeWidget;
    lstMeals->setObjectName(QStringLiteral("lstMeals"));
    lstMeals->setAccessibleName(QStringLiteral("Meals"));
    lstMeals->setHeaderLabels({QStringLiteral("Meal"), QStringLiteral("Time"), QStringLiteral("Show")});
    lstMeals->setRootIsDecorated(false);
    lstMeals->setMinimumHeight(120);
    txtMeal = form::Edit(QStringLiteral("txtMeal"), TextColumn);
    txtMealTime = form::Edit(QStringLiteral("txtMealTime"), TextColumn, 90);
    txtMealTime->setToolTip(QStringLiteral("Start time, such as 7:00AM"));
    chkShow = new QCheckBox(QStringLiteral("S&how"));
    chkShow->setObjectName(QStringLiteral("chkShow"));
    chkShow->setChecked(true);
    chkShow->setToolTip(QStringLiteral("Show this meal in the daily schedule"));
    cmdNewMeal = form::Button(QStringLiteral("cmdNewMeal"), QStringLiteral("Ne&w"));
    cmdAddMeal = form::Button(QStringLiteral("cmdAddMeal"), QStringLiteral("&Add/Update"));
    cmdDelMeal = form::Button(QStringLiteral("cmdDelMeal"), QStringLiteral("&Delete"));
    cmdMealUp = form::Button(QStringLiteral("cmdMealUp"), QStringLiteral("&Up"));
    cmdMealDown = form::Button(QStringLiteral("cmdMealDown"), QStringLiteral("Do&wn"));
    cmdMealDown->setText(QStringLiteral("D&own"));
    mg->addWidget(lstMeals, 0, 0, 1, 6);
    mg->addWidget(Caption(QStringLiteral("&Meal"), txtMeal), 1, 0);
    mg->addWidget(txtMeal, 1, 1);
    mg->addWidget(Caption(QStringLiteral("Tim&e"), txtMealTime), 1, 2);
    mg->addWidget(txtMealTime, 1, 3);
    mg->addWidget(chkShow, 1, 4);
    auto* mb = new QHBoxLayout;
    for (QPushButton* b : {cmdNewMeal, cmdAddMeal, cmdDelMeal, cmdMealUp, cmdMealDown}) mb->addWidget(b);
    mg->addLayout(mb, 2, 0, 1, 6);
    left->addWidget(mealBox, 1);
    h->addLayout(left, 1);

    // Right: the daily goal of each nutrient.
    auto* goalBox = new QGroupBox(QStringLiteral("Nutrient Goals"));
    auto* gv = new QVBoxLayout(goalBox);
    SS1 = new QTableWidget(0, 3);
    SS1->setObjectName(QStringLiteral("SS1"));
    SS1->setAccessibleName(QStringLiteral("Nutrient Goals"));
    SS1->setHorizontalHeaderLabels({QStringLiteral("Nutrient"), QStringLiteral("Daily Goal"), QStringLiteral("RDA")});
    SS1->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    SS1->verticalHeader()->setDefaultSectionSize(22);
    SS1->setMinimumWidth(360);
    SS1->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    SS1->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Fixed);
    SS1->setColumnWidth(1, 80);
    SS1->setColumnWidth(2, 64);
    SS1->verticalHeader()->setVisible(false);
    SSCommand2 = form::Button(QStringLiteral("SSCommand2"), QStringLiteral("Set Daily &Goals to RDA"));
    SSCommand3 = form::Button(QStringLiteral("SSCommand3"), QStringLiteral("Calculate Macro-&Nutrients"));
    gv->addWidget(SS1);
    auto* gb = new QHBoxLayout;
    gb->addWidget(SSCommand2);
    gb->addWidget(SSCommand3);
    gv->addLayout(gb);
    h->addWidget(goalBox, 1);
    AddPage(tabs, page, QStringLiteral("Nutrition"));

    connect(cmdNewMeal, &QPushButton::clicked, this, &frmUserInfo::on_cmdNewMeal_clicked);
    connect(cmdAddMeal, &QPushButton::clicked, this, &frmUserInfo::on_cmdAddMeal_clicked);
    connect(cmdDelMeal, &QPushButton::clicked, this, &frmUserInfo::on_cmdDelMeal_clicked);
    connect(cmdMealUp, &QPushButton::clicked, this, &frmUserInfo::on_cmdMealUp_clicked);
    connect(cmdMealDown, &QPushButton::clicked, this, &frmUserInfo::on_cmdMealDown_clicked);
    connect(SSCommand2, &QPushButton::clicked, this, &frmUserInfo::on_SSCommand2_clicked);
    connect(SSCommand3, &QPushButton::clicked, this, &frmUserInfo::on_SSCommand3_clicked);
    connect(lstMeals, &QTreeWidget::itemSelectionChanged, this, &frmUserInfo::MealSelected);
}

void frmUserInfo::BuildStrengthTab()
{
    auto* page = new QWidget;
    auto* h = new QHBoxLayout(page);

    auto* left = new QVBoxLayout;
    auto* unitBox = new QGroupBox(QStringLiteral("Strength weights in"));
    auto* ul = new QHBoxLayout(unitBox);
    auto* unitGroup = new QButtonGroup(this);
    for (const QString& caption : {QStringLiteral("&kg"), QStringLiteral("&lbs")}) {
        auto* r = new QRadioButton(caption);
        r->setObjectName(QStringLiteral("optWorkoutIn(%1)").arg(optWorkoutIn.size()));
        unitGroup->addButton(r);
        ul->addWidget(r);
        optWorkoutIn << r;
    }
    ul->addStretch();
    left->addWidget(unitBox);
    cboStrength = Combo(QStringLiteral("cboStrength"));
    auto* sl = new QHBoxLayout;
    sl->addWidget(Caption(QStringLiteral("S&trength Level"), cboStrength));
    sl->addWidget(cboStrength, 1);
    left->addLayout(sl);
    chkPrefill = new QCheckBox(QStringLiteral("&Fill reps and weights from my goals"));
    chkPrefill->setObjectName(QStringLiteral("chkPrefill"));
    left->addWidget(chkPrefill);
    lstMuscleGroups = new QListWidget;
    lstMuscleGroups->setObjectName(QStringLiteral("lstMuscleGroups"));
    lstMuscleGroups->setSelectionMode(QAbstractItemView::NoSelection);
    left->addWidget(Caption(QStringLiteral("M&uscle Groups"), lstMuscleGroups));
    left->addWidget(lstMuscleGroups, 1);
    h->addLayout(left, 1);

    auto* burn = new QGroupBox(QStringLiteral("Caloric Burn - calories per hour per pound of body weight"));
    auto* bg = new QGridLayout(burn);
    const QStringList examples = energy::IntensityExamples();
    bg->addWidget(new QLabel(QStringLiteral("Intensity")), 0, 0);
    bg->addWidget(new QLabel(QStringLiteral("Rate")), 0, 1);
    bg->addWidget(new QLabel(QStringLiteral("Example")), 0, 2);
    for (int i = 0; i < 10; ++i) {
        auto* e = form::Edit(QStringLiteral("txtInt(%1)").arg(i), NumberLength, 70);
        txtInt << e;
        e->setAccessibleName(QStringLiteral("Intensity %1 rate").arg(i + 1));
        bg->addWidget(Caption(QString::number(i + 1), e), i + 1, 0);
        bg->addWidget(e, i + 1, 1);
        bg->addWidget(new QLabel(examples.value(i)), i + 1, 2);
    }
    SSCommand1 = form::Button(QStringLiteral("SSCommand1"), QStringLiteral("&Restore Defaults"));
    bg->addWidget(SSCommand1, 11, 0, 1, 3, Qt::AlignLeft);
    bg->setRowStretch(12, 1);
    bg->setColumnStretch(2, 1);
    h->addWidget(burn, 1);
    AddPage(tabs, page, QStringLiteral("Strength/Exercise"));

    connect(SSCommand1, &QPushButton::clicked, this, &frmUserInfo::on_SSCommand1_clicked);
}

void frmUserInfo::BuildHeartRateTab()
{
    auto* page = new QWidget;
    auto* v = new QVBoxLayout(page);

    auto* top = new QGridLayout;
    cboHRM = Combo(QStringLiteral("cboHRM"));
    cboHRM->setMinimumWidth(110);
    txtRHR = form::Edit(QStringLiteral("txtRHR"), NumberLength, 70);
    txtMHR = form::Edit(QStringLiteral("txtMHR"), NumberLength, 70);
    cmdCalculate = form::Button(QStringLiteral("cmdCalculate"), QStringLiteral("Calculate &MHR and Training Zones"));
    top->addWidget(Caption(QStringLiteral("Heart Rate Mo&nitor"), cboHRM), 0, 0);
    top->addWidget(cboHRM, 0, 1);
    top->addWidget(Caption(QStringLiteral("&Resting Heart Rate"), txtRHR), 1, 0);
    top->addWidget(txtRHR, 1, 1);
    top->addWidget(Caption(QStringLiteral("Ma&ximum Heart Rate"), txtMHR), 2, 0);
    top->addWidget(txtMHR, 2, 1);
    top->addWidget(cmdCalculate, 2, 2);
    top->setColumnStretch(3, 1);
    v->addLayout(top);

    auto* zones = new QGroupBox(QStringLiteral("Training Zones"));
    auto* zg = new QGridLayout(zones);
    const QStringList captions = energy::ZoneCaptions();
    for (int z = 0; z < 5; ++z) {
        auto* lo = form::Edit(QStringLiteral("txtZ1(%1)").arg(2 * z), NumberLength, 60);
        auto* up = form::Edit(QStringLiteral("txtZ1(%1)").arg(2 * z + 1), NumberLength, 60);
        txtZ1 << lo << up;
        lo->setAccessibleName(QStringLiteral("Zone %1 lower").arg(z + 1));
        up->setAccessibleName(QStringLiteral("Zone %1 upper").arg(z + 1));
        auto* cap = form::Label(QStringLiteral("lblZone(%1)").arg(z), captions[z]);
        lblZone << cap;
        zg->addWidget(Caption(QStringLiteral("Zone &%1").arg(z + 1), lo), z, 0);
        zg->addWidget(lo, z, 1);
        zg->addWidget(new QLabel(QStringLiteral("to")), z, 2);
        zg->addWidget(up, z, 3);
        zg->addWidget(cap, z, 4);
    }
    for (int i = 0; i < 10; ++i)
        txtZ1[i]->setToolTip(energy::ZoneTooltip(NumText(energy::ZoneFractions()[i] * 100) + "%"));
    zg->setColumnStretch(5, 1);

    auto* range = new QGroupBox(QStringLiteral("Training Range"));
    auto* rg = new QGridLayout(range);
    for (int i = 0; i < 2; ++i) {
        auto* e = form::Edit(QStringLiteral("txtTrainingHR(%1)").arg(i), NumberLength, 60);
        auto* cap = form::Label(QStringLiteral("lblTraining(%1)").arg(i), i == 0 ? QStringLiteral("Lower - 50%")
                                                                              : QStringLiteral("Upper - 60%"));
        cap->setBuddy(e);
        txtTrainingHR << e;
        lblTraining << cap;
        rg->addWidget(cap, i, 0);
        rg->addWidget(e, i, 1);
    }
    rg->setColumnStretch(2, 1);

    auto* pulse = new QGroupBox(QStringLiteral("Pulse Timer"));
    auto* pg = new QHBoxLayout(pulse);
    cboSetTimer = Combo(QStringLiteral("cboSetTimer"));
    cboSetTimer->addItems({QStringLiteral("15 Seconds"), QStringLiteral("30 Seconds"), QStringLiteral("60 Seconds")});
    lblCountDown = form::Label(QStringLiteral("lblCountDown"), QStringLiteral("15"));
    QFont f = lblCountDown->font();
    f.setPointSize(f.pointSize() * 2);
    f.setBold(true);
    lblCountDown->setFont(f);
    lblCountDown->setMinimumWidth(50);
    lblCountDown->setAlignment(Qt::AlignCenter);
    cmdGo = form::Button(QStringLiteral("cmdGo"), QStringLiteral("Star&t"));
    pg->addWidget(Caption(QStringLiteral("T&imer"), cboSetTimer));
    pg->addWidget(cboSetTimer);
    pg->addWidget(lblCountDown);
    pg->addWidget(cmdGo);
    pg->addStretch();

    auto* lower = new QHBoxLayout;
    lower->addWidget(range, 1);
    lower->addWidget(pulse, 1);
    v->addWidget(zones);
    v->addLayout(lower);
    v->addStretch();
    AddPage(tabs, page, QStringLiteral("Heart Rate"));

    connect(cmdCalculate, &QPushButton::clicked, this, &frmUserInfo::on_cmdCalculate_clicked);
    connect(cmdGo, &QPushButton::clicked, this, &frmUserInfo::on_cmdGo_clicked);
    connect(cboSetTimer, &QComboBox::currentIndexChanged, this, &frmUserInfo::TimerChoiceChanged);
}

void frmUserInfo::ConnectChanges()
{
    // Every field marks the screen changed; some also recompute.
    for (QLineEdit* e : findChildren<QLineEdit*>())
        connect(e, &QLineEdit::textChanged, this, &frmUserInfo::Changed);
    for (QComboBox* c : findChildren<QComboBox*>())
        if (c != cboSetTimer) connect(c, &QComboBox::currentIndexChanged, this, &frmUserInfo::Changed);
    for (QRadioButton* r : findChildren<QRadioButton*>())
        connect(r, &QRadioButton::toggled, this, &frmUserInfo::Changed);
    connect(chkPrefill, &QCheckBox::toggled, this, &frmUserInfo::Changed);
    connect(SS1, &QTableWidget::itemChanged, this, &frmUserInfo::Changed);

    connect(txtWeight2, &QLineEdit::textChanged, this, &frmUserInfo::WeightChanged);
    connect(txtAge, &QLineEdit::textChanged, this, &frmUserInfo::AgeChanged);
    connect(txtTargetWeight, &QLineEdit::textChanged, this, &frmUserInfo::TargetWeightChanged);
    connect(txtDietLoss, &QLineEdit::textChanged, this, &frmUserInfo::DietLossChanged);
    connect(txtExerciseLoss, &QLineEdit::textChanged, this, &frmUserInfo::ExerciseLossChanged);
    connect(cboWeightLoss, &QComboBox::currentIndexChanged, this, [this] {
        if (!Loading) CalcLoss();
    });
    connect(cboDiet, &QComboBox::currentIndexChanged, this, &frmUserInfo::DietChanged);
    connect(cboFrame, &QComboBox::currentIndexChanged, this, [this] {
        if (!Loading) on_cmdLBM_clicked();
    });
    connect(optsex[0], &QRadioButton::toggled, this, [this] {
        if (!Loading) calcBMR();
    });
    connect(optMetric[0], &QRadioButton::toggled, this, [this] {
        if (!Loading) SetUnits();
    });
    for (QLineEdit* e : {txtCarbs, txtProtein, txtFat})
        connect(e, &QLineEdit::textChanged, this, [this] {
            if (!Loading) SetGraph();
        });
    for (int i = 0; i < txtZ1.size(); ++i)
        connect(txtZ1[i], &QLineEdit::textChanged, this, [this, i] { ZoneChanged(i); });
    for (int i = 0; i < txtTrainingHR.size(); ++i)
        connect(txtTrainingHR[i], &QLineEdit::textChanged, this, [this, i] { TrainingChanged(i); });
    connect(txtMeal, &QLineEdit::textChanged, this, [this] { cmdAddMeal->setEnabled(!txtMeal->text().trimmed().isEmpty()); });
}

void frmUserInfo::Changed()
{
    if (Loading) return;
    DataChanged = true;
}

// ---------------------------------------------------------------------------------- load

void frmUserInfo::FillLists()
{
    cboFitness->clear();
    cboFitness->addItems(energy::ConditionList());
    cboWeightLoss->clear();
    cboWeightLoss->addItems(energy::WeightLossList());
    Combo1->clear();
    Combo1->addItems(energy::PurposeList());
    cboHRM->clear();
    cboHRM->addItems(energy::MonitorList());
    cboStrength->clear();
    cboStrength->addItems(energy::StrengthList());
    cboDiet->clear();
    cboDiet->addItems(energy::DietList());
    cboFrame->clear();
    cboFrame->addItems(energy::FrameList());
    for (QComboBox* c : {cboFitness, cboWeightLoss, Combo1, cboHRM, cboStrength, cboDiet, cboFrame})
        c->setCurrentIndex(-1);
}

void frmUserInfo::Form_Load()
{
    {
        // Filling the screen is no change of the athlete; the flag goes back also when a step
        // fails, and is then cleared as the load ends.
        QScopedValueRollback<bool> loading(Loading, true);
        FillLists();
        optsex[0]->setChecked(true);
        optMetric[1]->setChecked(true);
        optWorkoutIn[1]->setChecked(true);
        cboSetTimer->setCurrentIndex(0);
        lblCountDown->setText(QStringLiteral("15"));
        const bool ok = Guard([this] {
            FormatGrid();
            LoadUserRow();
            SetUnits();
            FillZones();
            FillMuscleGroup();
            LoadMeals();
            LoadNutrientGoals();
            LoadCaloricBurn();
        });
        if (!ok) {
            UserRS.Close();
            LibraryRS.Close();
        }
        SetGraph();
        cmdAddMeal->setEnabled(false);
    }
    Loading = false;
    if (NewAthlete) {
        DataChanged = true;
        // The note comes up over the screen once it is on view.
    } else {
        DataChanged = false;
    }
}

void frmUserInfo::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    CenterForm(this);
    if (NewAthlete && !m_noteShown) {
        m_noteShown = true;
        QTimer::singleShot(0, this, [] { ShowModal(QStringLiteral("frmNewUser")); });
    }
}

void frmUserInfo::LoadUserRow()
{
    UserRS.Close();
    SqlText = "select * from User_Info where User_ID=" + CurrentUserID;
    UserRS.Open(SqlText);
    if (!UserRS.Eof()) {
        const Recordset& rs = UserRS;
        SetIfPresent(txtName, Col(rs, "Name"));
        SetIfPresent(txtAge, Col(rs, "age"));
        QVariant v = Col(rs, "sex");
        if (!IsNull(v)) (Str(v) == QLatin1String("F") ? optsex[1] : optsex[0])->setChecked(true);
        SetIfPresent(txtHeight, Col(rs, "Height"));
        v = Col(rs, "startdate");
        QDate start = IsNull(v) ? QDate() : regional::ParseDate(Str(v));
        if (!IsNull(v) && v.typeId() == QMetaType::QDate) start = v.toDate();
        if (!IsNull(v) && v.typeId() == QMetaType::QDateTime) start = v.toDateTime().date();
        if (!start.isValid()) start = QDate::currentDate();
        lblStartDate->setText(start.toString(QStringLiteral("yyyy-MM-dd")));
        v = Col(rs, "personal_measurements");
        (!IsNull(v) && Str(v) == QLatin1String("kg") ? optMetric[0] : optMetric[1])->setChecked(true);
        v = Col(rs, "Workout_In");
        (!IsNull(v) && Str(v) == QLatin1String("kg") ? optWorkoutIn[0] : optWorkoutIn[1])->setChecked(true);
        SetIfPresent(txtWeight2, Col(rs, "CurrentWeight"));
        txtweight->setText(txtWeight2->text());
        SetIfPresent(txtTargetWeight, Col(rs, "TargetWeight"));
        SetIfPresent(txtIdealWeight, Col(rs, "IdealWeight"));
        SetIfPresent(txtBodyfat, Col(rs, "BodyFat"));
        SetIfPresent(txtBodyFatGoal, Col(rs, "TargetBodyFat"));
        v = Col(rs, "WeightLossPerWeek");
        if (!IsNull(v)) SelectListItem(cboWeightLoss, Str(v));
        v = Col(rs, "FrameSize");
        if (!IsNull(v) && Val(v) >= 0 && Val(v) < cboFrame->count()) cboFrame->setCurrentIndex(int(Val(v)));
        SetIfPresent(txtBMR, Col(rs, "BMR"));
        SetIfPresent(txtBMI, Col(rs, "BMI"));
        v = Col(rs, "Purpose");
        if (IsNull(v)) v = Col(rs, "Fitness_Goals");
        if (!IsNull(v)) SelectListItem(Combo1, Str(v));
        v = Col(rs, "Current_Condition");
        if (!IsNull(v) && Val(v) >= 0 && Val(v) < cboFitness->count()) cboFitness->setCurrentIndex(int(Val(v)));
        v = Col(rs, "DietName");
        if (!IsNull(v)) SelectListItem(cboDiet, Str(v));
        v = Col(rs, "StrengthLevel");
        if (!IsNull(v)) {
            // A level kept as its text selects by text, a number by position.
            const QString text = Str(v);
            const int byText = cboStrength->findText(text);
            if (byText >= 0) cboStrength->setCurrentIndex(byText);
            else if (Val(v) >= 0 && Val(v) < cboStrength->count()) cboStrength->setCurrentIndex(int(Val(v)));
        }
        v = Col(rs, "Prefill");
        chkPrefill->setChecked(!IsNull(v) && Val(v) != 0);
        SetIfPresent(txtDietLoss, Col(rs, "DietLoss"));
        SetIfPresent(txtExerciseLoss, Col(rs, "ExerciseLoss"));
        SetIfPresent(txtCarbs, Col(rs, "Carbs"));
        SetIfPresent(txtProtein, Col(rs, "protein"));
        SetIfPresent(txtFat, Col(rs, "Fat"));
        v = Col(rs, "DietCalsPerDay");
        if (!IsNull(v)) lblCals->setText(Str(v));
        v = Col(rs, "ExerciseCalsPerDay");
        if (!IsNull(v)) lblExercise->setText(Str(v));
        SetIfPresent(txtPoints, Col(rs, "Targetpoints"));
    }
    UserRS.Close();

    // The figures that follow from what was read, computed once the fields hold the row.
    const double current = Val(txtweight->text()), target = Val(txtTargetWeight->text());
    lblDifference->setText(txtTargetWeight->text().isEmpty() ? QString()
                                                              : NumText(energy::WeightDifference(current, target)));
    lblLoss->setText(current - target < 0 ? QStringLiteral("Weight gain per week") : QStringLiteral("Weight loss per week"));
    cboWeightLoss->setEnabled(energy::WeeklyAmountAllowed(current, target));
    const double weekly = energy::WeeklyFigure(Val(lblCals->text()), Val(lblExercise->text()));
    lblWeekly->setText(NumText(weekly));
    const auto t = energy::MaintainSentence(txtBMR->text(), lblLoss->text(), cboWeightLoss->currentText(),
                                            MetricUnits() ? QStringLiteral("kg") : QStringLiteral("lbs"));
    // Without a BMR yet there is nothing to say.
    lblmaintain->setText(txtBMR->text().isEmpty() ? QString() : t.maintain);
    if (!t.dietSide.isEmpty()) lblDietSide->setText(t.dietSide);
    if (!t.changeOf.isEmpty()) lblChangeOf->setText(t.changeOf);
    for (QLabel* l : {lblEat, lblCals, lblDietSide, lblExercise, lblExerciseSide, lblChangeOf, lblWeekly})
        if (l) l->setVisible(weekly > 0);
}

bool frmUserInfo::MetricUnits() const { return optMetric[0]->isChecked(); }
bool frmUserInfo::Male() const { return optsex[0]->isChecked(); }

void frmUserInfo::SetUnits()
{
    const bool metric = MetricUnits();
    // The captions keep their keyboard accelerators; only the unit word changes.
    lblHeight->setText(metric ? QStringLiteral("Hei&ght - cm") : QStringLiteral("Hei&ght - in"));
    lblWeight2->setText(metric ? QStringLiteral("Starting &Weight - kg") : QStringLiteral("Starting &Weight - lbs"));
    for (QLabel* l : lblkg) l->setText(metric ? QStringLiteral("kg") : QStringLiteral("lbs"));
}

void frmUserInfo::FillMuscleGroup()
{
    lstMuscleGroups->clear();
    LibraryRS.Close();
    SqlText = QStringLiteral("select distinct group from muscle_groups");
    listfill::FillList(lstMuscleGroups, LibraryRS, SqlText, [](QListWidget* list, Recordset& rs) {
        const QVariant v = rs.Field(0);
        if (!IsNull(v)) list->addItem(Str(v));
    });
}

// ---------------------------------------------------------------------------------- save

void frmUserInfo::on_cmdSave_clicked()
{
    if (txtName->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Please enter your name to continue."), vbInformation, kMessage);
        return;
    }
    if (Val(txtWeight2->text()) == 0) {
        MsgBox(QStringLiteral("Please enter your weight to continue."), vbInformation, kMessage);
        return;
    }
    if (Val(txtAge->text()) == 0) {
        MsgBox(QStringLiteral("Please enter your age to continue."), vbInformation, kMessage);
        return;
    }
    if (Val(txtCarbs->text()) + Val(txtProtein->text()) + Val(txtFat->text()) > 100) {
        MsgBox(QStringLiteral("Carbs, Protein and Fat Percentages are greater than 100%.  Please correct percentages."),
               vbInformation, kMessage);
        return;
    }

    // Two athletes never share a name: removal and the lists go by it.
    bool taken = false;
    if (!Guard([&] { taken = AthleteNameTaken(txtName->text().trimmed(), CurrentUserID); })) return;
    if (taken) {
        MsgBox(QStringLiteral("This user already exists.  Please try another name or remove existing athlete."),
               vbInformation, kMessage);
        tabs->setCurrentIndex(0);
        txtName->setFocus();
        txtName->selectAll();
        return;
    }

    // Everything is written in one transaction: a failure leaves the athlete as it was.
    const QString savedId = CurrentUserID;
    const bool ok = Guard([this] {
        StoreTransaction save(UserConn);
        {
            if (NewAthlete) WriteFirstWeighIn();
            WriteUserRow();
            if (NewAthlete) {
                UserRS.Close();
                SqlText = "select * from User_Info where name = '" + SqlQuote(txtName->text().trimmed()) + "'";
                UserRS.Open(SqlText);
                if (!UserRS.Eof()) CurrentUserID = Str(UserRS.Field("User_ID"));
                UserRS.Close();
            }
            WriteHrmInfo();
            SaveNutrientGoals();
            SaveIntensity();
        }
        save.Commit();
    });
    if (!ok) {
        CurrentUserID = savedId;
        return;
    }

    CurrentUserName = txtName->text().trimmed();
    if (QWidget* main = ui::MainWindow()) main->setWindowTitle(CurrentUserName + " - " + "Orvantis");
    if (!NewAthlete) {
        DataChanged = false;
        MsgBox(QStringLiteral("Information Saved."), vbInformation, kMessage);
    } else {
        MsgBox(QStringLiteral("New Athlete Information Saved."), vbInformation, kMessage);
        DataChanged = false;
        NewAthlete = false;
    }
    accept();
}

void frmUserInfo::WriteFirstWeighIn()
{
    if (txtBMR->text().trimmed().isEmpty()) calcBMR();
    UserRS.Close();
    SqlText = "select * from WeighIn where User_ID ='" + CurrentUserID + "'";
    UserRS.Open(SqlText);
    if (UserRS.Eof()) {
        UserRS.Close();
        UserRS.Open(QStringLiteral("WeighIn"));
        UserRS.AddNew();
        UserRS.SetField("User_ID", CurrentUserID);
        UserRS.SetField("Date", QDate::fromString(lblStartDate->text(), QStringLiteral("yyyy-MM-dd")));
        UserRS.SetField("weight", Val(txtweight->text()));
        UserRS.SetField("Height", NumOrNull(txtHeight->text()));
        UserRS.SetField("Condition", cboFitness->currentText());
        UserRS.SetField("BMR", Val(txtBMR->text()));
        UserRS.SetField("BMI", NumOrNull(txtBMI->text()));
        UserRS.SetField("BodyFat", NumOrNull(txtBodyfat->text()));
        UserRS.Update();
    }
    UserRS.Close();

    SqlText = "select * from WeighIn_goals where User_ID='" + CurrentUserID + "'";
    UserRS.Open(SqlText);
    if (UserRS.Eof()) {
        UserRS.Close();
        UserRS.Open(QStringLiteral("WeighIn_goals"));
        UserRS.AddNew();
    }
    UserRS.SetField("User_ID", CurrentUserID);
    UserRS.SetField("weight", Val(txtTargetWeight->text()));
    UserRS.SetField("BodyFat", Val(txtBodyFatGoal->text()));
    UserRS.Update();
    UserRS.Close();
}

void frmUserInfo::WriteUserRow()
{
    UserRS.Close();
    SqlText = "select * from User_Info where User_ID =" + CurrentUserID;
    UserRS.Open(SqlText);
    if (UserRS.Eof()) {
        UserRS.Close();
        throw StoreError(StoreError::NoCurrentRecord, QStringLiteral("There was a problem locating the user info."));
    }
    Recordset& rs = UserRS;
    rs.SetField("Name", txtName->text().trimmed());
    rs.SetField("age", Val(txtAge->text()));
    rs.SetField("sex", Male() ? QStringLiteral("M") : QStringLiteral("F"));
    rs.SetField("Height", NumOrNull(txtHeight->text()));
    rs.SetField("startdate", lblStartDate->text());
    rs.SetField("personal_measurements", MetricUnits() ? QStringLiteral("kg") : QStringLiteral("lbs"));
    rs.SetField("Workout_In", optWorkoutIn[0]->isChecked() ? QStringLiteral("kg") : QStringLiteral("lbs"));
    rs.SetField("CurrentWeight", Val(txtWeight2->text()));
    rs.SetField("TargetWeight", NumOrNull(txtTargetWeight->text()));
    rs.SetField("IdealWeight", NumOrNull(txtIdealWeight->text()));
    rs.SetField("TargetCals", Val(txtBMR->text()) - Val(lblCals->text()));
    rs.SetField("TargetExCals", Val(lblExercise->text()));
    rs.SetField("BodyFat", NumOrNull(txtBodyfat->text()));
    rs.SetField("TargetBodyFat", NumOrNull(txtBodyFatGoal->text()));
    rs.SetField("WeightLossPerWeek", cboWeightLoss->currentText());
    rs.SetField("FrameSize", cboFrame->currentIndex());
    rs.SetField("BMR", NumOrNull(txtBMR->text()));
    rs.SetField("BMI", NumOrNull(txtBMI->text()));
    rs.SetField("Purpose", Combo1->currentText());
    rs.SetField("Fitness_Goals", Combo1->currentText());
    rs.SetField("Current_Condition", cboFitness->currentIndex());
    rs.SetField("DietName", cboDiet->currentText());
    rs.SetField("StrengthLevel", cboStrength->currentText());
    rs.SetField("Prefill", chkPrefill->isChecked());
    rs.SetField("DietLoss", NumOrNull(txtDietLoss->text()));
    rs.SetField("ExerciseLoss", NumOrNull(txtExerciseLoss->text()));
    rs.SetField("Carbs", NumOrNull(txtCarbs->text()));
    rs.SetField("protein", NumOrNull(txtProtein->text()));
    rs.SetField("Fat", NumOrNull(txtFat->text()));
    rs.SetField("DietCalsPerDay", NumOrNull(lblCals->text()));
    rs.SetField("ExerciseCalsPerDay", NumOrNull(lblExercise->text()));
    rs.SetField("Targetpoints", NumOrNull(txtPoints->text()));
    rs.Update();
    rs.Close();
}
