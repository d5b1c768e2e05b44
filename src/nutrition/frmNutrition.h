#pragma once
// The Nutrition view: the food diary of the signed-in athlete for one date. One tab per meal
// and "Daily Totals" last; adding a food copies its library row into daily_nutrition at once.
// The nutrient grid, the calorie meter and three pies show the tab's totals against the goals.
//
// Opened from the main shell, the day planner and quick scheduling by name ("frmNutrition").
// The day is the planner's (CalendarDate()), or today. A meal handed in by the caller in
// SelectedItem (its name) or SelectedKey (its name or Meal_ID) selects that tab.
#include <QDialog>
#include <QString>
#include <QStringList>

class QTabBar;
class QDateEdit;
class QTreeWidget;
class QTreeWidgetItem;
class QComboBox;
class QLineEdit;
class QPushButton;
class QProgressBar;
class QButtonGroup;
class QMenu;
class QAction;
class Grid;
class Chart;

class frmNutrition : public QDialog {
    Q_OBJECT
public:
    explicit frmNutrition(QWidget* parent = nullptr);

    // Procedures of the view.
    void clearform();
    void FormatGrid();
    void LoadTodayFoods();
    QString GetLocalDate() const;
    void SetTotals();
    void SetupNutrition();
    void TotalNutrients();
    void LoadFoodList();
    void SetDate(const QDate& date);
    // Selects the tab of a meal by caption; false when there is none.
    bool SelectMeal(const QString& caption);

    // Tab helpers: the tab's Meal_ID (its tag), and whether "Daily Totals" is shown.
    QString MealTag() const;
    bool OnDailyTotals() const;

    // The grid's columns.
    enum { colRDA = 1, colNutrient = 2, colAmount = 3, colGoal = 4, colPercent = 5, colRdaText = 6 };
    // List2's columns.
    enum { lstFoodID = 0, lstFood, lstAmount, lstCalories, lstProtein, lstFat, lstCarbs, lstPoints };

    QDateEdit* cboDate = nullptr;
    QPushButton* cmdDateminus = nullptr;
    QPushButton* cmdDatePlus = nullptr;
    QTabBar* Tab1 = nullptr;
    QTreeWidget* List2 = nullptr;
    Grid* SS1 = nullptr;
    QTreeWidget* list1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QLineEdit* txtSearch = nullptr;
    QPushButton* cmdSearch = nullptr;
    QPushButton* SSRibbon1[4] = {};      // Foods, Meals, Recipes, Restaurants
    QButtonGroup* ribbon = nullptr;
    QProgressBar* calmeter = nullptr;
    Chart* Chart1 = nullptr;             // "Selected Food Percentages" (the system's `Chart`)
    Chart* Chart2 = nullptr;             // "Actual Diet Percentages"
    Chart* Chart3 = nullptr;             // "Diet Goal Percentages"
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdChange = nullptr;    // "&Amount"
    QPushButton* cmdClear = nullptr;     // "&Delete"
    QPushButton* cmdSaveMeal = nullptr;  // "Save to  Meal Library"
    QPushButton* cmdDelMeal = nullptr;   // "De&lete" beside list1
    QPushButton* cmdClose = nullptr;
    QMenu* mnupopup = nullptr;
    QAction* mnuCopy = nullptr;
    QAction* mnuPaste = nullptr;
    QAction* mnuDelMeal = nullptr;

    // The meter's state as last set (value and colour), for the screen and tests.
    int MeterValue() const;
    QColor MeterColor() const { return m_meterColor; }
    // The diet points of the selection, kept and shown nowhere.
    double Points() const { return m_points; }

public slots:
    void on_cmdDateminus_clicked();
    void on_cmdDatePlus_clicked();
    void on_cboDate_dateChanged(const QDate& date);
    void on_Tab1_currentChanged(int index);
    void on_List2_itemSelectionChanged();
    void on_list1_itemSelectionChanged();
    void on_cmdAdd_clicked();
    void on_cmdChange_clicked();
    void on_cmdClear_clicked();
    void on_cmdSaveMeal_clicked();
    void on_cmdDelMeal_clicked();
    void on_cmdSearch_clicked();
    void on_txtSearch_returnPressed();
    void on_Combo1_currentIndexChanged(int index);
    void on_cmdClose_clicked();
    void on_List2_customContextMenuRequested(const QPoint& pos);
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuDelMeal_Click();
    void SSRibbon1_Click(int index);

private:
    void buildUi();
    void addListLine(const QStringList& cells, const QString& foodId);
    void addListLine(const class Recordset& rs, const QString& foodId, const QString& name, const QString& meal);
    // Adds a diary row's (or a library row's) nutrients to the grid's Amount cells, from the
    // given position of grid row 1 on.
    void addToGrid(class Recordset& rs, int offset);
    // Writes a diary row for the current tab copying positions 5 upward from rs (offset 0 for
    // a diary row, -3 for a foods row).
    void writeDiaryRow(class Recordset& rs, int shift);
    void setMeter(int value, const QColor& color);
    void setPie(Chart* chart, double carbs, double fat, double protein);
    void updateButtons();
    void fillGroups(const QString& type);
    QString ribbonType() const;

    bool m_loading = false;
    int m_rows = 0;                // grid rows, one per Nutrients row
    QString m_copyMeal;            // "&Copy Meal": the meal id and date held
    QString m_copyDate;
    bool m_haveCopy = false;
    QColor m_meterColor;
    double m_points = 0;
};
