#include "nutrition/frmNutrition.h"
#include "core/widgets/Theme.h"
#include "nutrition/dailynutrition.h"
#include "nutrition/frmChangeAmt.h"
#include "nutrition/frmNutSearch.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/widgets/ListFill.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Grid.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString DailyTotals = QStringLiteral("Daily Totals");
const QString SearchAll = QStringLiteral("Search All Groups");
constexpr int MealRole = Qt::UserRole + 1;

QString Msg() { return QStringLiteral("Message"); }

QString Num(double v) { return daily::ListNumber(v); }

// A field read through its text value, so that Null counts 0.
double TextVal(const Recordset& rs, const QString& name) { return Val(Str(rs.Field(name))); }

}  // namespace

frmNutrition::frmNutrition(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNutrition"));
    {
        QScopedValueRollback<bool> loading(m_loading, true);
        buildUi();
        QMetaObject::connectSlotsByName(this);
        Guard([this] {
            SetupNutrition();
            FormatGrid();
            SetTotals();
        });
        cboDate->setDate(CalendarQDate());
        setWindowTitle(QStringLiteral("Nutrition for ") + regional::LongDate(cboDate->date()));

        // The meal handed in by the caller.
        bool chosen = false;
        for (const QString& wanted : {SelectedItem, SelectedKey}) {
            if (chosen || wanted.isEmpty())
                continue;
            chosen = SelectMeal(wanted);
            if (chosen && wanted == SelectedItem)
                SelectedItem.clear();   // taken: the next opening starts from the first meal
            for (int i = 0; !chosen && i < Tab1->count() - 1; ++i)
                if (Tab1->tabData(i).toString() == wanted.trimmed()) {
                    Tab1->setCurrentIndex(i);
                    chosen = true;
                }
        }
    }
    Guard([this] {
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
    // Enter belongs to the field that has it (the search), never to a button by default.
    for (auto* b : findChildren<QPushButton*>())
        b->setAutoDefault(false);
    // Within a 1280x720 screen, frame included; smaller on request.
    resize(1180, 660);
    CenterForm(this);
}

void frmNutrition::buildUi()
{
    cboDate = new QDateEdit(this);
    cboDate->setObjectName(QStringLiteral("cboDate"));
    cboDate->setCalendarPopup(true);
    cboDate->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    cmdDateminus = new QPushButton(QStringLiteral("<"), this);
    cmdDateminus->setObjectName(QStringLiteral("cmdDateminus"));
    cmdDateminus->setToolTip(QStringLiteral("Previous day"));
    cmdDatePlus = new QPushButton(QStringLiteral(">"), this);
    cmdDatePlus->setObjectName(QStringLiteral("cmdDatePlus"));
    cmdDatePlus->setToolTip(QStringLiteral("Next day"));
    auto* lblDate = new QLabel(QStringLiteral("Da&te"), this);
    lblDate->setBuddy(cboDate);

    Tab1 = new QTabBar(this);
    Tab1->setObjectName(QStringLiteral("Tab1"));
    Tab1->setExpanding(false);
    theme::ApplyToTabs(Tab1);

    List2 = new QTreeWidget(this);
    List2->setObjectName(QStringLiteral("List2"));
    List2->setRootIsDecorated(false);
    List2->setColumnCount(8);
    List2->setHeaderLabels({QStringLiteral("Food_ID"), QStringLiteral("Food"), QStringLiteral("Amount"),
                            QStringLiteral("Calories"), QStringLiteral("Protein(g)"), QStringLiteral("Fat(g)"),
                            QStringLiteral("Carbs(g)"), QStringLiteral("Points")});
    List2->setColumnHidden(lstFoodID, true);
    List2->header()->setStretchLastSection(false);
    List2->header()->setSectionResizeMode(lstFood, QHeaderView::Stretch);
    List2->setColumnWidth(lstAmount, 90);
    for (int c = lstCalories; c <= lstPoints; ++c)
        List2->setColumnWidth(c, 70);
    List2->setContextMenuPolicy(Qt::CustomContextMenu);
    List2->setSelectionMode(QAbstractItemView::SingleSelection);
    List2->setAccessibleName(QStringLiteral("Foods of the meal"));

    mnupopup = new QMenu(this);
    mnupopup->setObjectName(QStringLiteral("mnupopup"));
    mnuCopy = mnupopup->addAction(QStringLiteral("&Copy Meal"), this, &frmNutrition::mnuCopy_Click);
    mnuPaste = mnupopup->addAction(QStringLiteral("&Paste Meal"), this, &frmNutrition::mnuPaste_Click);
    mnuDelMeal = mnupopup->addAction(QStringLiteral("&Delete Meal"), this, &frmNutrition::mnuDelMeal_Click);
    mnuPaste->setEnabled(false);

    cmdAdd = new QPushButton(QStringLiteral("A&dd >>"), this);
    cmdAdd->setObjectName(QStringLiteral("cmdAdd"));
    cmdAdd->setToolTip(QStringLiteral("Add the selected food to the meal"));
    cmdChange = new QPushButton(QStringLiteral("&Amount"), this);
    cmdChange->setObjectName(QStringLiteral("cmdChange"));
    cmdChange->setToolTip(QStringLiteral("Change the amount of the selected food"));
    cmdClear = new QPushButton(QStringLiteral("&Delete"), this);
    cmdClear->setObjectName(QStringLiteral("cmdClear"));
    cmdClear->setToolTip(QStringLiteral("Delete Selected Food"));
    cmdSaveMeal = new QPushButton(QStringLiteral("Save to  Meal Library"), this);
    cmdSaveMeal->setObjectName(QStringLiteral("cmdSaveMeal"));
    cmdClose = new QPushButton(QStringLiteral("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));

    // The food chooser.
    auto* chooser = new QGroupBox(QStringLiteral("Foods"), this);
    ribbon = new QButtonGroup(this);
    ribbon->setExclusive(true);
    const QString ribbonCaptions[4] = {QStringLiteral("Foods"), QStringLiteral("Meals"), QStringLiteral("Recipes"),
                                       QStringLiteral("Restaurants")};
    auto* ribbonRow = new QHBoxLayout;
    for (int i = 0; i < 4; ++i) {
        SSRibbon1[i] = new QPushButton(ribbonCaptions[i], chooser);
        SSRibbon1[i]->setObjectName(QStringLiteral("SSRibbon1_%1").arg(i));
        SSRibbon1[i]->setCheckable(true);
        ribbon->addButton(SSRibbon1[i], i);
        ribbonRow->addWidget(SSRibbon1[i]);
    }
    SSRibbon1[0]->setChecked(true);
    connect(ribbon, &QButtonGroup::idClicked, this, &frmNutrition::SSRibbon1_Click);
    Combo1 = new QComboBox(chooser);
    Combo1->setObjectName(QStringLiteral("Combo1"));
    auto* lblGroup = new QLabel(QStringLiteral("&Group"), chooser);
    lblGroup->setBuddy(Combo1);
    txtSearch = new QLineEdit(chooser);
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    auto* lblSearch = new QLabel(QStringLiteral("Searc&h"), chooser);
    lblSearch->setBuddy(txtSearch);
    cmdSearch = new QPushButton(QStringLiteral("&Search"), chooser);
    cmdSearch->setObjectName(QStringLiteral("cmdSearch"));
    cmdSearch->setAutoDefault(false);
    list1 = new QTreeWidget(chooser);
    list1->setObjectName(QStringLiteral("list1"));
    list1->setRootIsDecorated(false);
    list1->setColumnCount(3);
    list1->setHeaderLabels({QStringLiteral("Food"), QStringLiteral("Amount"), QStringLiteral("Group")});
    list1->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list1->setAccessibleName(QStringLiteral("Foods to choose from"));
    list1->header()->setStretchLastSection(false);
    cmdDelMeal = new QPushButton(QStringLiteral("De&lete"), chooser);
    cmdDelMeal->setObjectName(QStringLiteral("cmdDelMeal"));
    cmdDelMeal->setToolTip(QStringLiteral("Delete this meal from the foods library"));
    cmdDelMeal->setEnabled(false);

    auto* cv = new QVBoxLayout(chooser);
    cv->addLayout(ribbonRow);
    auto* gr = new QHBoxLayout;
    gr->addWidget(lblGroup);
    gr->addWidget(Combo1, 1);
    cv->addLayout(gr);
    auto* sr = new QHBoxLayout;
    sr->addWidget(lblSearch);
    sr->addWidget(txtSearch, 1);
    sr->addWidget(cmdSearch);
    cv->addLayout(sr);
    cv->addWidget(list1, 1);
    auto* dr = new QHBoxLayout;
    dr->addStretch(1);
    dr->addWidget(cmdDelMeal);
    cv->addLayout(dr);

    SS1 = new Grid(this);
    SS1->setObjectName(QStringLiteral("SS1"));
    SS1->setAccessibleName(QStringLiteral("Nutrients"));

    calmeter = new QProgressBar(this);
    calmeter->setObjectName(QStringLiteral("calmeter"));
    calmeter->setRange(0, 100);
    calmeter->setValue(0);
    calmeter->setTextVisible(false);
    calmeter->setToolTip(QStringLiteral("If you are within your caloric goal the meter is green.  If you are over by up to 10% the meter is yellow, if you are over by more than 10% the meter is red."));
    calmeter->setAccessibleName(QStringLiteral("Calorie Meter"));
    auto* lblMeter = new QLabel(QStringLiteral("Calorie Meter"), this);
    lblMeter->setBuddy(calmeter);
    setMeter(0, QColor(0, 255, 0));

    auto makePie = [this](const QString& name, const QString& title) {
        auto* c = new Chart(this);
        c->setObjectName(name);
        c->setAccessibleName(title);
        c->SetStyle(Chart::Pie);
        c->SetTitle(title);
        c->SetPieSlices({QStringLiteral("Carbs"), QStringLiteral("Fat"), QStringLiteral("Protein")});
        c->setMinimumSize(150, 150);
        return c;
    };
    Chart1 = makePie(QStringLiteral("Chart"), QStringLiteral("Selected Food Percentages"));
    Chart2 = makePie(QStringLiteral("Chart2"), QStringLiteral("Actual Diet Percentages"));
    Chart3 = makePie(QStringLiteral("Chart3"), QStringLiteral("Diet Goal Percentages"));

    // Layout: date row; tabs over the meal list with its buttons; chooser beside; grid, meter
    // and charts below.
    auto* dateRow = new QHBoxLayout;
    dateRow->addWidget(lblDate);
    dateRow->addWidget(cmdDateminus);
    dateRow->addWidget(cboDate);
    dateRow->addWidget(cmdDatePlus);
    dateRow->addStretch(1);

    auto* mealButtons = new QHBoxLayout;
    mealButtons->addWidget(cmdAdd);
    mealButtons->addWidget(cmdChange);
    mealButtons->addWidget(cmdClear);
    mealButtons->addStretch(1);
    mealButtons->addWidget(cmdSaveMeal);

    auto* mealBox = new QVBoxLayout;
    mealBox->setSpacing(0);
    mealBox->addWidget(Tab1);
    mealBox->addWidget(List2, 1);
    mealBox->addSpacing(6);
    mealBox->addLayout(mealButtons);

    auto* top = new QHBoxLayout;
    top->addLayout(mealBox, 3);
    top->addWidget(chooser, 2);

    auto* meterRow = new QHBoxLayout;
    meterRow->addWidget(lblMeter);
    meterRow->addWidget(calmeter, 1);
    auto* charts = new QVBoxLayout;
    charts->addLayout(meterRow);
    auto* pies = new QHBoxLayout;
    pies->addWidget(Chart1);
    pies->addWidget(Chart2);
    pies->addWidget(Chart3);
    charts->addLayout(pies, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(SS1, 1);
    bottom->addLayout(charts, 1);

    auto* closeRow = new QHBoxLayout;
    closeRow->addStretch(1);
    closeRow->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(dateRow);
    layout->addLayout(top, 1);
    layout->addLayout(bottom, 1);
    layout->addLayout(closeRow);
}

QString frmNutrition::GetLocalDate() const { return cboDate->date().toString(QStringLiteral("yyyy-MM-dd")); }

QString frmNutrition::MealTag() const
{
    const int i = Tab1->currentIndex();
    return i < 0 ? QString() : Tab1->tabData(i).toString();
}

bool frmNutrition::OnDailyTotals() const
{
    const int i = Tab1->currentIndex();
    return i < 0 || Tab1->tabText(i) == DailyTotals;
}

bool frmNutrition::SelectMeal(const QString& caption)
{
    for (int i = 0; i < Tab1->count(); ++i)
        if (Tab1->tabText(i).compare(caption.trimmed(), Qt::CaseInsensitive) == 0) {
            Tab1->setCurrentIndex(i);
            return true;
        }
    return false;
}

void frmNutrition::SetupNutrition()
{
    QScopedValueRollback<bool> loading(m_loading, true);
    while (Tab1->count() > 0)
        Tab1->removeTab(0);
    const auto addMealTab = [this](Recordset& rs) {
        const int i = Tab1->addTab(Str(rs.Field(QStringLiteral("meal"))).trimmed());
        Tab1->setTabData(i, Str(rs.Field(QStringLiteral("Meal_ID"))).trimmed());
    };
    SqlText = QStringLiteral("select * from setup_meals where User_ID =") + CurrentUserID +
              QStringLiteral("  and show=true order by [Position]");
    if (ForEachRow(UserRS, SqlText, addMealTab) == 0) {
        // No meal is shown: every meal gets its tab.
        SqlText = QStringLiteral("select * from setup_meals where User_ID =") + CurrentUserID +
                  QStringLiteral(" order by [Position]");
        ForEachRow(UserRS, SqlText, addMealTab);
    }
    const int t = Tab1->addTab(DailyTotals);
    Tab1->setTabData(t, QString());
    Tab1->setCurrentIndex(0);

    fillGroups(QStringLiteral("Foods"));

    Chart3->ClearPie();
    SqlText = QStringLiteral("select carbs,protein,fat from User_Info where User_ID=") + CurrentUserID;
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        const QVariant carbs = rs.Field(QStringLiteral("carbs"));
        const QVariant fat = rs.Field(QStringLiteral("fat"));
        const QVariant protein = rs.Field(QStringLiteral("protein"));
        if (!IsNull(carbs)) Chart3->SetPieValue(1, Val(carbs));
        if (!IsNull(fat)) Chart3->SetPieValue(2, Val(fat));
        if (!IsNull(protein)) Chart3->SetPieValue(3, Val(protein));
    });
}

void frmNutrition::fillGroups(const QString& type)
{
    QScopedValueRollback<bool> loading(m_loading, true);
    Combo1->clear();
    list1->clear();
    if (type == QLatin1String("Foods"))
        Combo1->addItem(SearchAll, -1);
    SqlText = QStringLiteral("select * from food_groups where type='") + type + QStringLiteral("' order by group");
    ForEachRow(LibraryRS, SqlText, [this](Recordset& rs) {
        QString name = Str(rs.Field(QStringLiteral("Group")));
        if (name == QLatin1String(" My Favorites"))
            name = name.trimmed();
        Combo1->addItem(name, Val(rs.Field(QStringLiteral("Group_ID"))));
    });
    Combo1->setCurrentIndex(0);
}

QString frmNutrition::ribbonType() const
{
    switch (ribbon->checkedId()) {
    case 1: return QStringLiteral("Meals");
    case 2: return QStringLiteral("Recipes");
    case 3: return QStringLiteral("Menus");
    default: return QStringLiteral("Foods");
    }
}

void frmNutrition::FormatGrid()
{
    SS1->ClearData();
    SS1->SetMaxCols(6);
    SS1->SetColumnHeaders({QStringLiteral("RDA"), QStringLiteral("Nutrient"), QStringLiteral("Amount"),
                           QStringLiteral("Daily Goal"), QStringLiteral("% RDA"), QStringLiteral("RDA")});
    SS1->HideColumn(colRDA, true);
    SS1->SetRowHeadersVisible(false);
    SqlText = QStringLiteral("select * from Nutrients order by Nutrient_ID");
    QList<QStringList> rows;
    ForEachRow(LibraryRS, SqlText, [&rows](Recordset& rs) {
        rows << QStringList{Str(rs.Field(QStringLiteral("Nutrient"))), Str(rs.Field(QStringLiteral("Measure"))),
                            Str(rs.Field(QStringLiteral("RDA")))};
    });
    m_rows = int(rows.size());
    SS1->SetMaxRows(m_rows);
    for (int r = 1; r <= m_rows; ++r) {
        const QStringList& n = rows[r - 1];
        const double rda = Val(n[2]);
        SS1->SetText(r, colRDA, n[2]);
        SS1->SetText(r, colNutrient, n[0] + QStringLiteral(" (") + n[1] + QStringLiteral(")"));
        SS1->SetText(r, colRdaText, rda > 0 ? n[2] + QStringLiteral(" ") + n[1] : QString());
    }
    for (int c = 1; c <= 6; ++c)
        SS1->SetColumnLocked(c, true);
    SS1->SetColumnWidthChars(colNutrient, 20);
    for (int c = colAmount; c <= colPercent; ++c)
        SS1->SetColumnWidthChars(c, 8);
    SS1->SetColumnWidthChars(colRdaText, 10);

    SqlText = QStringLiteral("select * from Nutrient_Goals where User_ID='") + CurrentUserID + QStringLiteral("'");
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        for (int r = 2; r <= m_rows && r < rs.FieldCount(); ++r)
            SS1->SetText(r, colGoal, Str(rs.Field(r)));
    });
}

void frmNutrition::SetTotals()
{
    SqlText = QStringLiteral("select * from User_Info where User_ID=") + CurrentUserID;
    FirstRow(UserRS, SqlText, [this](Recordset& rs) {
        if (m_rows < 4)
            return;
        const double target = Val(rs.Field(QStringLiteral("TargetCals")));
        SS1->SetText(1, colGoal, Str(rs.Field(QStringLiteral("TargetCals"))));
        if (target > 0) {
            const daily::GramGoals g =
                daily::GoalsFromTarget(target, Val(rs.Field(QStringLiteral("protein"))),
                                       Val(rs.Field(QStringLiteral("Fat"))), Val(rs.Field(QStringLiteral("Carbs"))));
            SS1->SetText(2, colGoal, Num(g.protein));
            SS1->SetText(3, colGoal, Num(g.fat));
            SS1->SetText(4, colGoal, Num(g.carbs));
        }
    });
}

void frmNutrition::clearform()
{
    List2->clear();
    for (int r = 1; r <= m_rows; ++r) {
        SS1->ClearCell(r, colAmount);
        SS1->ClearCell(r, colPercent);
    }
    Chart1->ClearPie();
}

void frmNutrition::addListLine(const QStringList& cells, const QString& foodId)
{
    auto* item = new QTreeWidgetItem(List2, cells);
    item->setData(0, Qt::UserRole, foodId);
    for (int c = lstCalories; c <= lstPoints; ++c)
        item->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
}

// A food's line from its row (diary or library): name, "amount measure", calories, protein,
// fat, carbs and points, with the meal it belongs to.
void frmNutrition::addListLine(const Recordset& rs, const QString& foodId, const QString& name, const QString& meal)
{
    addListLine({foodId, name,
                 Str(rs.Field(QStringLiteral("amount"))) + QStringLiteral(" ") + Str(rs.Field(QStringLiteral("Measure"))),
                 Num(Val(rs.Field(QStringLiteral("calories")))), Num(Val(rs.Field(QStringLiteral("protein")))),
                 Num(Val(rs.Field(QStringLiteral("Fat")))), Num(Val(rs.Field(QStringLiteral("Carbs")))),
                 Num(Val(rs.Field(QStringLiteral("points"))))},
                foodId);
    List2->topLevelItem(List2->topLevelItemCount() - 1)->setData(0, MealRole, meal);
}

void frmNutrition::addToGrid(Recordset& rs, int offset)
{
    for (int r = 1; r <= m_rows; ++r) {
        const int p = offset + r;
        if (p >= rs.FieldCount())
            break;
        const QVariant v = rs.Field(p);
        if (IsNull(v))
            continue;
        const double cell = SS1->Text(r, colAmount).isEmpty() ? 0 : SS1->Value(r, colAmount);
        SS1->SetText(r, colAmount, Num(regional::Round(cell + Val(v), 2)));
    }
}

void frmNutrition::LoadTodayFoods()
{
    for (int r = 1; r <= m_rows; ++r)
        SS1->ClearCell(r, colAmount);
    if (OnDailyTotals())
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID = '") + CurrentUserID +
                  QStringLiteral("' and date = #") + GetLocalDate() + QStringLiteral("# and meal_id<>9999");
    else
        SqlText = QStringLiteral("select * from daily_nutrition where meal_id = ") + MealTag() +
                  QStringLiteral(" and User_ID = '") + CurrentUserID + QStringLiteral("' and date = #") + GetLocalDate() +
                  QStringLiteral("#");
    ForEachRow(UserRS, SqlText, [this](Recordset& rs) {
        const QString foodId = Str(rs.Field(QStringLiteral("Food_ID")));
        addListLine(rs, foodId, Str(rs.Field(QStringLiteral("Name"))), Str(rs.Field(QStringLiteral("Meal_ID"))));
        addToGrid(rs, daily::DiaryOffset);
    });
    TotalNutrients();
}

void frmNutrition::setMeter(int value, const QColor& color)
{
    m_meterColor = color;
    calmeter->setValue(std::clamp(value, 0, 100));
    calmeter->setStyleSheet(QStringLiteral("QProgressBar::chunk { background-color: %1; }").arg(color.name()));
}

int frmNutrition::MeterValue() const { return calmeter->value(); }

void frmNutrition::setPie(Chart* chart, double carbs, double fat, double protein)
{
    chart->SetPieValue(1, regional::Round(carbs, 0));
    chart->SetPieValue(2, regional::Round(fat, 0));
    chart->SetPieValue(3, regional::Round(protein, 0));
}

void frmNutrition::TotalNutrients()
{
    Chart2->ClearPie();
    double calories = 0, protein = 0, fat = 0, carbs = 0, fiber = 0;
    if (OnDailyTotals())
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID = '") + CurrentUserID +
                  QStringLiteral("' and date = #") + GetLocalDate() + QStringLiteral("# and meal_id <> 9999");
    else
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID = '") + CurrentUserID +
                  QStringLiteral("' and date = #") + GetLocalDate() + QStringLiteral("# and meal_id=") + MealTag();
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        calories += TextVal(rs, QStringLiteral("calories"));
        protein += TextVal(rs, QStringLiteral("protein"));
        fat += TextVal(rs, QStringLiteral("Fat"));
        carbs += TextVal(rs, QStringLiteral("Carbs"));
        fiber += TextVal(rs, QStringLiteral("fiber"));
    });
    m_points = daily::DietPoints(fat, calories, fiber);

    const daily::Shares s = daily::EnergyShares(protein, fat, carbs);
    setPie(Chart2, s.carbs, s.fat, s.protein);

    double bmr = 0;
    SqlText = QStringLiteral("select weight,bmr from WeighIn where User_ID ='") + CurrentUserID +
              QStringLiteral("' order by date");
    ForEachRow(UserRS, SqlText, [&bmr](Recordset& rs) {
        const QVariant v = rs.Field(QStringLiteral("bmr"));
        bmr = IsNull(v) ? bmr : Val(v);
    });
    const double goal = regional::Round(bmr, 0);

    setMeter(0, m_meterColor.isValid() ? m_meterColor : QColor(0, 255, 0));
    const daily::Meter m = daily::CalorieMeter(calories, goal);
    if (m.set)
        setMeter(m.value, m.color);

    for (int r = 1; r <= m_rows; ++r) {
        const double amount = SS1->Value(r, colAmount);
        const double rda = SS1->Value(r, colRDA);
        if (SS1->Text(r, colAmount).isEmpty())
            SS1->SetText(r, colAmount, QStringLiteral("0"));
        if (SS1->Text(r, colRDA).isEmpty())
            SS1->SetText(r, colRDA, QStringLiteral("0"));
        SS1->ClearCell(r, colPercent);
        double percent = 0;
        if (daily::PercentOfRda(amount, rda, &percent))
            SS1->SetText(r, colPercent, Num(percent));
    }
}

void frmNutrition::updateButtons()
{
    const bool totals = OnDailyTotals();
    const bool selected = !List2->selectedItems().isEmpty();
    cmdChange->setEnabled(!totals && selected);
    cmdClear->setEnabled(!totals && selected);
    cmdSaveMeal->setEnabled(!totals && List2->topLevelItemCount() > 0);
}

void frmNutrition::SetDate(const QDate& date) { cboDate->setDate(date); }

void frmNutrition::on_cmdDateminus_clicked() { cboDate->setDate(cboDate->date().addDays(-1)); }

void frmNutrition::on_cmdDatePlus_clicked() { cboDate->setDate(cboDate->date().addDays(1)); }

void frmNutrition::on_cboDate_dateChanged(const QDate& date)
{
    setWindowTitle(QStringLiteral("Nutrition for ") + regional::LongDate(date));
    if (m_loading)
        return;
    Guard([this] {
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
}

void frmNutrition::on_Tab1_currentChanged(int)
{
    if (m_loading)
        return;
    Guard([this] {
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
}

void frmNutrition::on_List2_itemSelectionChanged()
{
    updateButtons();
    if (m_loading)
        return;
    auto* item = List2->currentItem();
    if (!item || !item->isSelected())
        return;
    Guard([this, item] {
        SqlText = QStringLiteral("select * from daily_nutrition where User_ID='") + CurrentUserID +
                  QStringLiteral("' and date=#") + GetLocalDate() + QStringLiteral("# and food_id=") +
                  item->data(0, Qt::UserRole).toString();
        if (!OnDailyTotals())
            SqlText += QStringLiteral(" and meal_id=") + MealTag();
        FirstRow(UserRS, SqlText, [this](Recordset& rs) {
            for (int r = 1; r <= m_rows; ++r)
                SS1->ClearCell(r, colAmount);
            addToGrid(rs, daily::DiaryOffset);
            const daily::Shares s = daily::FoodShares(Val(rs.Field(QStringLiteral("calories"))),
                                                      Val(rs.Field(QStringLiteral("protein"))),
                                                      Val(rs.Field(QStringLiteral("Fat"))),
                                                      Val(rs.Field(QStringLiteral("Carbs"))));
            Chart1->ClearPie();
            setPie(Chart1, s.carbs, s.fat, s.protein);
        });
        for (int r = 1; r <= m_rows; ++r) {
            SS1->ClearCell(r, colPercent);
            double percent = 0;
            if (daily::PercentOfRda(SS1->Value(r, colAmount), SS1->Value(r, colRDA), &percent))
                SS1->SetText(r, colPercent, Num(percent));
        }
    });
}

void frmNutrition::on_list1_itemSelectionChanged()
{
    if (m_loading)
        return;
    auto* item = list1->currentItem();
    cmdDelMeal->setEnabled(item && ribbon->checkedId() == 1);
    if (!item || OnDailyTotals())
        return;
    Guard([this, item] {
        SqlText = QStringLiteral("select calories,protein,fat,carbs from foods where food_id=") +
                  item->data(0, Qt::UserRole).toString();
        Chart1->ClearPie();
        FirstRow(LibraryRS, SqlText, [this](Recordset& rs) {
            const daily::Shares s = daily::FoodShares(Val(rs.Field(0)), Val(rs.Field(1)), Val(rs.Field(2)),
                                                      Val(rs.Field(3)));
            setPie(Chart1, s.carbs, s.fat, s.protein);
        });
    });
}

void frmNutrition::writeDiaryRow(Recordset& rs, int shift)
{
    RecordsetScope scope(UserRS2);
    UserRS2.Open(QStringLiteral("daily_nutrition"));
    UserRS2.AddNew();
    UserRS2.SetField(QStringLiteral("User_ID"), CurrentUserID);
    UserRS2.SetField(QStringLiteral("Date"), GetLocalDate());
    UserRS2.SetField(QStringLiteral("Meal_ID"), Val(MealTag()));
    UserRS2.SetField(QStringLiteral("Type"), QString());
    UserRS2.SetField(QStringLiteral("Food_ID"), rs.Field(QStringLiteral("Food_ID")));
    for (int p = 5; p < UserRS2.FieldCount(); ++p) {
        const int from = p + shift;
        if (from < 0 || from >= rs.FieldCount())
            break;
        UserRS2.SetField(p, rs.Field(from));
    }
    UserRS2.Update();
    UserRS2.Close();
}

void frmNutrition::on_cmdAdd_clicked()
{
    auto* chosen = list1->currentItem();
    if (!chosen || !chosen->isSelected())
        return;
    if (OnDailyTotals()) {
        MsgBox(QStringLiteral("Please select a meal to add the food to."), vbInformation, Msg());
        return;
    }
    const QString name = chosen->text(0);
    QStringList names;
    for (int i = 0; i < List2->topLevelItemCount(); ++i)
        names << List2->topLevelItem(i)->text(lstFood);
    if (daily::IsDuplicateName(names, name)) {
        MsgBox(QStringLiteral("You can't add duplicate foods to the same meal.  Try increasing the food amount."),
               vbInformation, Msg());
        return;
    }
    const QString foodId = chosen->data(0, Qt::UserRole).toString();
    bool added = false;
    const bool ok = Guard([&] {
        // The meal's rows are written together or not at all.
        StoreTransaction transaction(UserConn);
        if (ribbon->checkedId() == 1) {
            // A saved meal: its ingredients enter the diary, not the meal.
            SqlText = QStringLiteral("select * from daily_nutrition where meal_id=9999 and type='") + foodId +
                      QStringLiteral("'");
            ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
                const QString id = Str(rs.Field(QStringLiteral("Food_ID")));
                addListLine(rs, id, Str(rs.Field(QStringLiteral("Name"))), MealTag());
                addToGrid(rs, daily::DiaryOffset);
                writeDiaryRow(rs, 0);
                added = true;
            });
        } else {
            SqlText = QStringLiteral("select * from foods where food_id=") + foodId;
            // The library row may have gone: then there is nothing to copy.
            FirstRow(LibraryRS, SqlText, [&](Recordset& rs) {
                const QString foodName = Str(rs.Field(QStringLiteral("Name")));
                addListLine(rs, foodId, foodName, MealTag());
                addToGrid(rs, daily::FoodsOffset);
                SqlText = QStringLiteral("delete * from daily_nutrition where User_ID= '") + CurrentUserID +
                          QStringLiteral("' and date =#") + GetLocalDate() + QStringLiteral("# and  meal_id=") + MealTag() +
                          QStringLiteral(" and name='") + SqlQuote(foodName) + QStringLiteral("'");
                UserConn.Execute(SqlText);
                writeDiaryRow(rs, -daily::FoodsToDiary);
                added = true;
            });
        }
        transaction.Commit();
    });
    if (!ok) {
        // Nothing reached the store: the list shows what is there.
        added = false;
        Guard([this] {
            clearform();
            LoadTodayFoods();
        });
    }
    if (!added) {
        updateButtons();
        return;
    }
    cmdSaveMeal->setEnabled(List2->topLevelItemCount() > 0);
    auto* last = List2->topLevelItem(List2->topLevelItemCount() - 1);
    List2->setCurrentItem(last);
    last->setSelected(true);
    on_cmdChange_clicked();
}

void frmNutrition::on_cmdChange_clicked()
{
    auto* item = List2->currentItem();
    if (!item || !item->isSelected())
        return;
    QStringList cells;
    for (int c = 0; c < List2->columnCount(); ++c)
        cells << item->text(c);
    FoodPortion portion;
    portion.foodLine = cells.join(QLatin1Char('\t'));
    portion.foodId = item->data(0, Qt::UserRole).toString();
    const QString meal = item->data(0, MealRole).toString();
    portion.mealId = meal.isEmpty() ? MealTag() : meal;
    portion.mealDate = GetLocalDate();
    QString line;
    {
        frmChangeAmt dialog(portion, this);
        ShowModal(&dialog);
        line = dialog.NewLine();
    }
    if (line.isEmpty()) {
        Guard([this] { TotalNutrients(); });
        return;
    }
    const QString foodId = portion.foodId;
    for (int c = 0; c < List2->columnCount(); ++c)
        item->setText(c, GetTabField(line, c + 1));
    // The grid holds sums: read the tab again so they follow the new portion.
    Guard([this, foodId] {
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            clearform();
            LoadTodayFoods();
            for (int i = 0; i < List2->topLevelItemCount(); ++i)
                if (List2->topLevelItem(i)->data(0, Qt::UserRole).toString() == foodId)
                    List2->setCurrentItem(List2->topLevelItem(i));
        }
        if (auto* current = List2->currentItem()) {
            const daily::Shares s = daily::FoodShares(Val(current->text(lstCalories)), Val(current->text(lstProtein)),
                                                      Val(current->text(lstFat)), Val(current->text(lstCarbs)));
            setPie(Chart1, s.carbs, s.fat, s.protein);
        }
    });
    updateButtons();
}

void frmNutrition::on_cmdClear_clicked()
{
    Guard([this] {
        auto* item = List2->currentItem();
        if (item && item->isSelected()) {
            SqlText = QStringLiteral("delete * from daily_nutrition where User_ID='") + CurrentUserID +
                      QStringLiteral("' and date=#") + GetLocalDate() + QStringLiteral("# and meal_id=") + MealTag() +
                      QStringLiteral(" and food_ID=") + item->data(0, Qt::UserRole).toString();
            UserConn.Execute(SqlText);
        } else {
            if (MsgBox(QStringLiteral("Delete all foods in this meal?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
                return;
            SqlText = QStringLiteral("delete * from daily_nutrition where User_ID='") + CurrentUserID +
                      QStringLiteral("' and date=#") + GetLocalDate() + QStringLiteral("# and meal_id=") + MealTag();
            UserConn.Execute(SqlText);
        }
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
}

void frmNutrition::on_cmdSaveMeal_clicked()
{
    // The meal library names the meal, then opens on it, taking its foods from this day and
    // meal: the meal's id in SelectedKey, the day in SelectedItem.
    SelectedKey = MealTag();
    SelectedItem = GetLocalDate();
    if (ShowModal(QStringLiteral("frmMealSave")) == QDialog::Accepted)
        ShowModal(QStringLiteral("frmMealLibrary"));
}

void frmNutrition::on_cmdDelMeal_clicked()
{
    auto* item = list1->currentItem();
    if (!item || !item->isSelected() || ribbon->checkedId() != 1)
        return;
    if (MsgBox(QStringLiteral("Delete this meal from foods library?"), vbYesNo + vbQuestion, QStringLiteral("Action")) != vbYes)
        return;
    const QString name = SqlQuote(item->text(0));
    Guard([&] {
        StoreTransaction transaction(LibraryConn);
        LibraryConn.Execute(QStringLiteral("delete * from Recipe_Ingredients where name='") + name +
                            QStringLiteral("' and recipe_id=0"));
        LibraryConn.Execute(QStringLiteral("delete * From foods where group_id=65 and name='") + name + QStringLiteral("'"));
        transaction.Commit();
        LoadFoodList();
    });
}

void frmNutrition::LoadFoodList()
{
    list1->clear();
    const QVariant group = Combo1->currentData();
    if (!group.isValid() || group.toInt() < 0)
        return;
    SqlText = QStringLiteral("select * from foods where group_id =") + QString::number(group.toLongLong()) +
              QStringLiteral(" order by name");
    listfill::FillList(list1, LibraryRS, SqlText, [](QTreeWidget* list, Recordset& rs) {
        auto* item = new QTreeWidgetItem(list, {Str(rs.Field(QStringLiteral("Name"))),
                                                Str(rs.Field(QStringLiteral("amount"))) + QStringLiteral(" ") +
                                                    Str(rs.Field(QStringLiteral("Measure")))});
        item->setData(0, Qt::UserRole, Str(rs.Field(QStringLiteral("Food_ID"))));
        item->setToolTip(0, item->text(0));
    });
}

void frmNutrition::on_Combo1_currentIndexChanged(int)
{
    if (m_loading)
        return;
    Guard([this] { LoadFoodList(); });
}

void frmNutrition::SSRibbon1_Click(int index)
{
    Guard([this] {
        fillGroups(ribbonType());
        LoadFoodList();
    });
    cmdDelMeal->setEnabled(false);
}

void frmNutrition::on_txtSearch_returnPressed() { on_cmdSearch_clicked(); }

void frmNutrition::on_cmdSearch_clicked()
{
    const QString text = txtSearch->text();
    const QString filter = daily::SearchFilter(text, 3);
    if (filter.isEmpty())
        return;
    const bool all = Combo1->currentText() == SearchAll;
    int found = 0;
    Guard([&] {
        list1->clear();
        if (all)
            SqlText = QStringLiteral("select * from foods a, food_groups b where name ") + filter +
                      QStringLiteral(" and a.group_id = b.group_id and a.group_id <> 65 order by a.name");
        else
            SqlText = QStringLiteral("select * from foods a, food_groups b where name ") + filter +
                      QStringLiteral(" and a.group_id = b.group_id and a.group_id=") +
                      QString::number(Combo1->currentData().toLongLong()) + QStringLiteral(" order by a.name");
        listfill::FillList(list1, LibraryRS, SqlText, [&](QTreeWidget* list, Recordset& rs) {
            if (all && Val(rs.Field(QStringLiteral("Group_ID"))) == daily::SavedMealGroup)
                return;
            QString group = Str(rs.Field(QStringLiteral("Group")));
            if (group == QLatin1String(" My Favorites"))
                group = group.trimmed();
            auto* item = new QTreeWidgetItem(list, {Str(rs.Field(QStringLiteral("Name"))),
                                                    Str(rs.Field(QStringLiteral("amount"))) + QStringLiteral(" ") +
                                                        Str(rs.Field(QStringLiteral("Measure"))),
                                                    group});
            item->setData(0, Qt::UserRole, Str(rs.Field(QStringLiteral("Food_ID"))));
            item->setToolTip(0, item->text(0));
            ++found;
        });
    });
    if (found > 0)
        return;
    if (all) {
        if (MsgBox(QStringLiteral("Food not found, add it to the foods database?"), vbYesNo + vbQuestion,
                   QStringLiteral("Action")) == vbYes)
            ShowModal(QStringLiteral("frmFoods"));
        return;
    }
    int choice = 0;
    {
        frmNutSearch question(text.trimmed(), this);
        choice = ShowModal(&question);
    }
    switch (choice) {
    case frmNutSearch::AddToLibrary:
        ShowModal(QStringLiteral("frmFoods"));
        break;
    case frmNutSearch::SearchAll: {
        if (ribbon->checkedId() != 0) {
            SSRibbon1[0]->setChecked(true);
            Guard([this] { fillGroups(QStringLiteral("Foods")); });
        }
        {
            QScopedValueRollback<bool> loading(m_loading, true);
            Combo1->setCurrentIndex(Combo1->findText(SearchAll));
        }
        on_cmdSearch_clicked();
        break;
    }
    default:
        break;
    }
}

void frmNutrition::on_List2_customContextMenuRequested(const QPoint& pos)
{
    if (OnDailyTotals())
        return;
    mnuPaste->setEnabled(m_haveCopy);
    mnupopup->popup(List2->viewport()->mapToGlobal(pos));
}

void frmNutrition::mnuCopy_Click()
{
    if (OnDailyTotals())
        return;
    m_copyMeal = MealTag();
    m_copyDate = GetLocalDate();
    m_haveCopy = true;
    mnuPaste->setEnabled(true);
}

void frmNutrition::mnuPaste_Click()
{
    if (!m_haveCopy || OnDailyTotals())
        return;
    Guard([this] {
        SqlText = QStringLiteral("select * from daily_nutrition where meal_id = ") + m_copyMeal +
                  QStringLiteral(" and User_ID = '") + CurrentUserID + QStringLiteral("' and date = #") + m_copyDate +
                  QStringLiteral("#");
        // The rows are read first, then written: a paste onto its own meal must not read its
        // own copies.
        QList<QList<QVariant>> rows;
        ForEachRow(UserRS, SqlText, [&rows](Recordset& rs) {
            QList<QVariant> row;
            for (int p = 0; p < rs.FieldCount(); ++p)
                row << rs.Field(p);
            rows << row;
        });
        // The pasted meal arrives whole or not at all.
        StoreTransaction transaction(UserConn);
        for (const auto& row : rows) {
            UserRS2.Open(QStringLiteral("daily_nutrition"));
            UserRS2.AddNew();
            UserRS2.SetField(QStringLiteral("User_ID"), CurrentUserID);
            UserRS2.SetField(QStringLiteral("Date"), GetLocalDate());
            UserRS2.SetField(QStringLiteral("Meal_ID"), Val(MealTag()));
            UserRS2.SetField(QStringLiteral("Type"), QString());
            UserRS2.SetField(QStringLiteral("Food_ID"), row.value(4));
            for (int p = 5; p < UserRS2.FieldCount() && p < row.size(); ++p)
                UserRS2.SetField(p, row[p]);
            UserRS2.Update();
            UserRS2.Close();
        }
        transaction.Commit();
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
}

void frmNutrition::mnuDelMeal_Click()
{
    if (OnDailyTotals())
        return;
    Guard([this] {
        SqlText = QStringLiteral("delete * from daily_nutrition where User_ID='") + CurrentUserID +
                  QStringLiteral("' and date=#") + GetLocalDate() + QStringLiteral("# and meal_id=") + MealTag();
        UserConn.Execute(SqlText);
        clearform();
        LoadTodayFoods();
    });
    updateButtons();
}

void frmNutrition::on_cmdClose_clicked() { accept(); }
