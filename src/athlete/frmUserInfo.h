#pragma once
// Athlete Information: every setting of one athlete on five tabs, the energy model that runs
// as the athlete types, heart-rate zones, intensity rates, meals of the day and nutrient goals.
#include <QDialog>
#include <QList>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableWidget;
class QTimer;
class QTreeWidget;
class QListWidget;
class QTreeWidgetItem;
class PercentPie;

class frmUserInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmUserInfo(QWidget* parent = nullptr);
    ~frmUserInfo() override;

    // Procedures of the screen, under the system's names.
    void Form_Load();
    void calcBMR();
    void CalcLoss();
    void SetGraph();
    void FillZones();
    void FillMuscleGroup();
    void LoadMeals();
    void LoadNutrientGoals();
    void LoadCaloricBurn();
    void SaveNutrientGoals();
    void SaveIntensity();
    void ChangeZones(int index);
    void SetUnits();

    // Controls, named as the system names them.
    QTabWidget* tabs = nullptr;

    // Personal
    QLineEdit* txtName = nullptr;
    QLineEdit* txtAge = nullptr;
    QList<QRadioButton*> optsex;          // 0 Male, 1 Female
    QLabel* lblHeight = nullptr;
    QLineEdit* txtHeight = nullptr;
    QLabel* lblStartDate = nullptr;
    QList<QRadioButton*> optMetric;       // 0 Metric, 1 US/Imperial
    QComboBox* Combo1 = nullptr;          // purpose
    QComboBox* cboFitness = nullptr;
    QPushButton* cmdCondition = nullptr;
    QLabel* lblWeight2 = nullptr;
    QLineEdit* txtWeight2 = nullptr;
    QLineEdit* txtBMR = nullptr;
    QPushButton* cmdCalc = nullptr;

    // Weight
    QLineEdit* txtweight = nullptr;
    QList<QLabel*> lblkg;                 // 0..3
    QLineEdit* txtBMI = nullptr;
    QPushButton* cmdBMI = nullptr;
    QComboBox* cboFrame = nullptr;
    QLineEdit* txtIdealWeight = nullptr;
    QPushButton* cmdLBM = nullptr;
    QLineEdit* txtBodyfat = nullptr;
    QPushButton* cmdBodyfat = nullptr;
    QLineEdit* txtTargetWeight = nullptr;
    QLineEdit* txtBodyFatGoal = nullptr;
    QLabel* lblDifference = nullptr;
    QLabel* lblLoss = nullptr;            // "Weight loss per week" / "Weight gain per week"
    QComboBox* cboWeightLoss = nullptr;
    QLineEdit* txtDietLoss = nullptr;
    QLineEdit* txtExerciseLoss = nullptr;
    QLabel* lblmaintain = nullptr;
    QLabel* lblCals = nullptr;
    QLabel* lblDietSide = nullptr;
    QLabel* lblExercise = nullptr;
    QLabel* lblExerciseSide = nullptr;
    QLabel* lblChangeOf = nullptr;
    QLabel* lblWeekly = nullptr;
    QLabel* lblEat = nullptr;

    // Nutrition
    QComboBox* cboDiet = nullptr;
    QLineEdit* txtCarbs = nullptr;
    QLineEdit* txtProtein = nullptr;
    QLineEdit* txtFat = nullptr;
    PercentPie* Graph1 = nullptr;
    QLineEdit* txtPoints = nullptr;
    QTreeWidget* lstMeals = nullptr;
    QLineEdit* txtMeal = nullptr;
    QLineEdit* txtMealTime = nullptr;
    QCheckBox* chkShow = nullptr;
    QPushButton* cmdNewMeal = nullptr;
    QPushButton* cmdAddMeal = nullptr;
    QPushButton* cmdDelMeal = nullptr;
    QPushButton* cmdMealUp = nullptr;
    QPushButton* cmdMealDown = nullptr;
    QTableWidget* SS1 = nullptr;
    QPushButton* SSCommand2 = nullptr;    // Set Daily Goals to RDA
    QPushButton* SSCommand3 = nullptr;    // Calculate Macro-Nutrients

    // Strength/Exercise
    QList<QRadioButton*> optWorkoutIn;    // 0 kg, 1 lbs
    QComboBox* cboStrength = nullptr;
    QCheckBox* chkPrefill = nullptr;
    QListWidget* lstMuscleGroups = nullptr;
    QList<QLineEdit*> txtInt;             // 0..9
    QPushButton* SSCommand1 = nullptr;    // Restore Defaults

    // Heart Rate
    QComboBox* cboHRM = nullptr;
    QLineEdit* txtRHR = nullptr;
    QLineEdit* txtMHR = nullptr;
    QPushButton* cmdCalculate = nullptr;
    QList<QLineEdit*> txtZ1;              // 0..9
    QList<QLabel*> lblZone;               // 0..4
    QList<QLineEdit*> txtTrainingHR;      // 0..1
    QList<QLabel*> lblTraining;           // 0..1
    QComboBox* cboSetTimer = nullptr;
    QLabel* lblCountDown = nullptr;
    QPushButton* cmdGo = nullptr;
    QTimer* tmrHR = nullptr;

    QPushButton* cmdSave = nullptr;
    QPushButton* cmdCancel = nullptr;

public slots:
    void on_cmdSave_clicked();
    void on_cmdCalc_clicked();
    void on_cmdBMI_clicked();
    void on_cmdLBM_clicked();
    void on_cmdBodyfat_clicked();
    void on_cmdCondition_clicked();
    void on_cmdCalculate_clicked();
    void on_SSCommand1_clicked();
    void on_SSCommand2_clicked();
    void on_SSCommand3_clicked();
    void on_cmdNewMeal_clicked();
    void on_cmdAddMeal_clicked();
    void on_cmdDelMeal_clicked();
    void on_cmdMealUp_clicked();
    void on_cmdMealDown_clicked();
    void on_cmdGo_clicked();
    void on_tmrHR_timeout();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildPersonalTab();
    void BuildWeightTab();
    void BuildNutritionTab();
    void BuildStrengthTab();
    void BuildHeartRateTab();
    void ConnectChanges();
    void FillLists();
    void FormatGrid();
    void LoadUserRow();

    // Change handlers; each returns at once while Loading.
    void Changed();
    void WeightChanged();
    void AgeChanged();
    void TargetWeightChanged();
    void DietLossChanged();
    void ExerciseLossChanged();
    void DietChanged();
    void ZoneChanged(int index);
    void TrainingChanged(int index);
    void MealSelected();
    void TimerChoiceChanged();

    // The macro rows of the nutrient grid from a calorie target and the three percentages;
    // `onlyEmpty` leaves goals that are set.
    void FillMacroRows(double targetCals, double protein, double fat, double carbs, bool onlyEmpty);
    void WriteFirstWeighIn();
    void WriteUserRow();
    void WriteHrmInfo();
    void MoveMeal(int step);
    bool MetricUnits() const;
    bool Male() const;

    bool m_noteShown = false;
    bool m_inShare = false;
};
