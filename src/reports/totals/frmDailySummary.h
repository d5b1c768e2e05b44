#pragma once
#include <QDialog>
#include <QStringList>

#include "reports/totals/summaryengine.h"
#include "reports/totals/totalsviews.h"

class Grid;
class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;
class QRadioButton;
class QTableWidget;
class QTabWidget;

// "Daily Summary": a range of days turned into totals. The Summary tab holds the day table and
// the balance strip; the Nutrition, Exercise, Strength and Wellness tabs list the range item by
// item. Every tab has a date pair that follows the Summary tab's, and prints and exports the
// page in front.
class frmDailySummary : public QDialog {
    Q_OBJECT
public:
    explicit frmDailySummary(QWidget* parent = nullptr);

    enum Tab { tabSummary, tabNutrition, tabExercise, tabStrength, tabWellness };

    // The one entry point of a recomputation: shows the range and runs LoadTotals.
    void DateChange();
    // The whole computation, in its fixed order.
    void LoadTotals();
    // The day table from tmpDate, refilled for the range.
    void summaryTable();
    // Lays out the day table (and its group headings) and the balance strip.
    void SS1Set();
    void SS2Set();
    // The range as the date fields hold it.
    totals::Range CurrentRange() const;
    // The group heading over each column of the day table ("" over the date).
    const QStringList& Groups() const { return m_groups; }
    const totals::Balance& CurrentBalance() const { return m_balance; }

    QTabWidget* TotalsTab = nullptr;
    QDateEdit* txtStartDate = nullptr;
    QDateEdit* txtEndDate = nullptr;
    QLabel* lblDateRange = nullptr;
    Grid* SS1 = nullptr;
    QTableWidget* SS1Groups = nullptr;
    Grid* SS2 = nullptr;

    QDateEdit *txtNutStartDate = nullptr, *txtNutEndDate = nullptr;
    QDateEdit *txtExeStartDate = nullptr, *txtExeEndDate = nullptr;
    QDateEdit *txtStrStartDate = nullptr, *txtStrEndDate = nullptr;
    QDateEdit *txtWelStartDate = nullptr, *txtWelEndDate = nullptr;

    QTabWidget* NutritionPages = nullptr;   // "Nutrition", "Nutrients"
    QTabWidget* WellnessPages = nullptr;    // "Feel Well", "Readings", "Medication"
    Grid* SSNutrition = nullptr;
    Grid* SSNutrients = nullptr;
    Grid* SSExercise = nullptr;
    Grid* SSStrength = nullptr;
    Grid* SSWellness[3] = {nullptr, nullptr, nullptr};

    QComboBox* cboNutrition = nullptr;
    QComboBox* cboExerciseSports = nullptr;
    QComboBox* cboStrength = nullptr;
    QComboBox* cboReadings = nullptr;
    QComboBox* cboMedication = nullptr;
    QRadioButton* optFeelWell[3] = {nullptr, nullptr, nullptr};   // "Yes", "No", "Show All"
    QRadioButton* optAccomp[3] = {nullptr, nullptr, nullptr};

    QPushButton* cmdFields[2] = {nullptr, nullptr};   // on the Summary and the Nutrition tab
    QPushButton* cmdPrint[5] = {};                    // one per tab, by Tab
    QPushButton* cmdExport[5] = {};
    QPushButton* cmdClose = nullptr;

private:
    QWidget* buildSummaryTab();
    QWidget* buildNutritionTab();
    QWidget* buildExerciseTab();
    QWidget* buildStrengthTab();
    QWidget* buildWellnessTab();
    QWidget* datePair(QWidget* page, QDateEdit** start, QDateEdit** end, const QString& prefix, bool own);
    void connectHandlers();

    void startDateChanged();
    void endDateChanged();
    void followDates();
    void cutBack();
    void showMessages();
    void writeStrip();
    void stripToGrid();
    totals::YesNoFilter yesNo(QRadioButton* const (&opt)[3]) const;

    void nutritionFilterChanged();
    void exerciseFilterChanged();
    void strengthFilterChanged();
    void feelWellFilterChanged();
    void readingsFilterChanged();
    void medicationFilterChanged();

    void PrintTab(int tab);
    void ExportTable(int tab);
    Grid* GridInFront(int tab) const;
    void OpenFields(int page);
    // The Nutrients page is filled when it is in front: a year of it is some 150,000 cells.
    void nutrientsDue();
    void fillNutrients();

    QList<summary::DisplayColumn> m_columns;
    QStringList m_groups;
    summary::Strip m_strip;
    summary::Messages m_messages;
    totals::Balance m_balance;
    bool m_loadingScreen = true;
    bool m_silenceEnd = false;
    bool m_computing = false;
    bool m_nutrientsDue = false;
};
