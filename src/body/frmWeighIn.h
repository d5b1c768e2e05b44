#pragma once
// The Weigh In view: an athlete's body on a date (girths, weight, body fat, skinfolds,
// condition, BMR, BMI, VO2max, a photo), the goals for those figures, three calculators and
// the history graph. Closing it sets the athlete's calorie target from the newest weigh-in.
#include <QDialog>
#include <QDate>
#include <functional>

class QTabWidget;
class QDateEdit;
class QListWidget;
class QListWidgetItem;
class QLineEdit;
class QComboBox;
class QLabel;
class QPushButton;
class QGroupBox;
class Chart;

// The weigh-in report page lives in the reports subsystem above this one; it fills this link
// when it registers, and "&Print" calls it with the date ("YYYY-MM-DD").
std::function<void(const QString& date)>& ReportWeighInLink();

class frmWeighIn : public QDialog {
    Q_OBJECT
public:
    explicit frmWeighIn(QWidget* parent = nullptr);

    // Procedures of the view.
    void LoadDates();
    void LoadWeighIn(const QDate& date);
    void Graph();
    void loadmonths();
    QString GetLocalDate() const;

    static constexpr int DataFields = 23;   // txtData(0..22)
    static constexpr int GoalFields = 16;   // txtGoal(0..15)

    QTabWidget* Tab1 = nullptr;
    QDateEdit* cboDate = nullptr;
    QListWidget* lstWeighIns = nullptr;
    QLineEdit* txtData[DataFields] = {};
    QLineEdit* txtGoal[GoalFields] = {};
    QLineEdit* txtHeight = nullptr;
    QLineEdit* txtBMR = nullptr;
    QLineEdit* txtBMI = nullptr;
    QLineEdit* txtVo2 = nullptr;
    QLineEdit* txtBFMeasure = nullptr;
    QLineEdit* txtPhoto = nullptr;
    QComboBox* cboCondition = nullptr;
    QLabel* lblSex = nullptr;
    QLabel* lblWeight = nullptr;
    QGroupBox* fraMeasurements = nullptr;
    QLabel* Picture1 = nullptr;
    QPushButton* calcbmi = nullptr;
    QPushButton* Command2 = nullptr;       // BMR "Calc"
    QPushButton* command3 = nullptr;       // body fat "Calc"
    QPushButton* cmdLastWeighIn = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdPreviewExercise = nullptr;
    QPushButton* FB1 = nullptr;            // the calculator
    QPushButton* cmdClose = nullptr;
    QPushButton* Command1 = nullptr;       // "&Browse..."
    QPushButton* SSCommand1 = nullptr;     // "&Remove Photo"
    QComboBox* cboGraph = nullptr;
    QDateEdit* txtStartDate = nullptr;
    QDateEdit* txtEndDate = nullptr;
    QPushButton* cmdGraph = nullptr;
    QPushButton* cmdPrintGraph = nullptr;
    Chart* Chart1 = nullptr;

public slots:
    void on_calcbmi_clicked();
    void on_Command2_clicked();
    void on_command3_clicked();
    void on_cmdLastWeighIn_clicked();
    void on_cmdSave_clicked();
    void on_cmdDelete_clicked();
    void on_cmdPreviewExercise_clicked();
    void on_FB1_clicked();
    void on_cmdClose_clicked();
    void on_Command1_clicked();
    void on_SSCommand1_clicked();
    void on_cmdGraph_clicked();
    void on_cmdPrintGraph_clicked();
    void on_cboDate_dateChanged(const QDate& date);
    void on_lstWeighIns_itemClicked(QListWidgetItem* item);
    void on_cboGraph_currentIndexChanged(int index);

public:
    void done(int result) override;
    // What closing does: TargetCals = BMR of the newest weigh-in - DietCalsPerDay.
    void SetTargetCalories();

private:
    QWidget* buildWeighInTab();
    QWidget* buildPhotoTab();
    QWidget* buildHistoryTab();
    void clearform();
    void loadProfile();
    void loadGoals();
    void showPhoto(const QString& path);
    void fieldChanged();
    void setLabels();

    bool m_loading = false;
    double m_height = 0;       // User_Info.Height, as read at opening
    double m_ideal = 0;        // IdealWeight
    double m_age = 0;
    double m_targetWeight = 0;
    double m_targetBodyFat = 0;
    QString m_units;           // personal_measurements
    QLabel* m_lengthLabels[14] = {};
    QLabel* m_skinLabels[7] = {};
    QLabel* m_goalWeightUnit = nullptr;
};
