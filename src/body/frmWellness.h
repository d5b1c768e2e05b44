#pragma once
// The Wellness view: a small daily health journal (whether the athlete felt well and reached
// their goals, hours of sleep, wake-up time), any number of timed readings and medications of
// the day, and the history graph of sleep or of one reading. The readings and medications are
// written at once; the journal row waits for Save. A resting heart rate entered here also
// becomes the athlete's resting rate of the heart-rate profile.
#include <QDate>
#include <QDialog>
#include <QStringList>

class QButtonGroup;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTimeEdit;
class QTreeWidget;
class QTreeWidgetItem;
class Chart;

class frmWellness : public QDialog {
    Q_OBJECT
public:
    explicit frmWellness(QWidget* parent = nullptr);

    // The readings offered, in order; the graph offers "Hours of Sleep" before them.
    static const QStringList& ReadingNames();
    // The text of a time of day as the lists show it and the store keeps it ("6:05 PM").
    static QString TimeText(const QTime& t);

    // Procedures of the view.
    void LoadWellness(const QDate& date);
    void SaveWellness();
    void clearWellness();
    void PrintWellness();
    QString GetLocalDate() const;
    void Graph();

    QTabWidget* Tab1 = nullptr;
    QDateEdit* cboDate = nullptr;
    QRadioButton* opt1[2] = {};   // felt well: "Yes", "No"
    QRadioButton* opt2[2] = {};   // accomplished the goals: "Yes", "No"
    QLineEdit* txtFeelWell = nullptr;
    QLineEdit* txtAccomplish = nullptr;
    QLineEdit* txtSleep = nullptr;
    QLineEdit* TxtWakeup = nullptr;
    QComboBox* cboReading = nullptr;
    QTimeEdit* txtTime = nullptr;
    QLineEdit* txtReading = nullptr;
    QTreeWidget* lstReadings = nullptr;   // Reading, Time, Value
    QLineEdit* txtMed = nullptr;
    QTimeEdit* txtMedTime = nullptr;
    QLineEdit* txtDose = nullptr;
    QTreeWidget* lstMeds = nullptr;       // Medication, Time, Dosage
    QPushButton* cmdAddReading = nullptr;
    QPushButton* cmdDelReading = nullptr;
    QPushButton* cmdClearReading = nullptr;
    QPushButton* cmdAddMed = nullptr;
    QPushButton* cmdDelMed = nullptr;
    QPushButton* cmdClearmed = nullptr;
    QPushButton* cmdLastWellness = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdClose = nullptr;
    QComboBox* cboGraph = nullptr;
    QDateEdit* txtStartDate = nullptr;
    QDateEdit* txtEndDate = nullptr;
    QPushButton* cmdGraph = nullptr;        // "Refresh"
    QPushButton* cmdPrintGraph = nullptr;
    Chart* Chart1 = nullptr;

public slots:
    void on_cmdAddReading_clicked();
    void on_cmdDelReading_clicked();
    void on_cmdClearReading_clicked();
    void on_cmdAddMed_clicked();
    void on_cmdDelMed_clicked();
    void on_cmdClearmed_clicked();
    void on_cmdLastWellness_clicked();
    void on_cmdNew_clicked();
    void on_cmdSave_clicked();
    void on_cmdDelete_clicked();
    void on_cmdPrint_clicked();
    void on_cmdClose_clicked();
    void on_cmdGraph_clicked();
    void on_cmdPrintGraph_clicked();
    void on_cboDate_dateChanged(const QDate& date);
    void on_lstReadings_itemClicked(QTreeWidgetItem* item, int column);
    void on_lstMeds_itemClicked(QTreeWidgetItem* item, int column);

private:
    QWidget* buildWellnessTab();
    QWidget* buildHistoryTab();
    void loadLines(QTreeWidget* list, int type, const QDate& date);
    void journalChanged();
    void clearReadingEntry();
    void clearMedEntry();
    void setRestingHeartRate(double value);

    bool m_loading = false;
    QButtonGroup* m_feelWell = nullptr;
    QButtonGroup* m_accomplish = nullptr;
};
