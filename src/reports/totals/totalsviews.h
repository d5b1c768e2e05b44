#pragma once
// The item tabs of the Daily Summary: the Nutrition, Nutrients, Exercise, Strength and three
// Wellness grids, each filled from the stores for a range and a filter, with its bottom rows
// (Total and the averages) computed while the rows are read. The screen owns the grids and
// the filters and calls these in its fixed order; the balance strip is the screen's.
#include <QDate>
#include <QString>
#include <QStringList>

class Grid;
class QComboBox;

namespace totals {

// The range of one computation: both ends included; `days` is the number of days counted
// from start to end, both ends included (the screen's tdays).
struct Range {
    QDate start, end;
    int days = 1;
};

// What the item routines leave for the balance strip. The screen resets caloriesBurned
// before a computation; exerciseSports resets hoursExercised on entry; nutritionInfo sets
// caloriesEaten; strengthTraining sets workouts to the number of workouts it listed.
struct Balance {
    double caloriesBurned = 0;
    double hoursExercised = 0;
    double caloriesEaten = 0;
    int workouts = 0;
};

// Which rows of the wellness journal the Feel Well grid lists.
enum class YesNoFilter { Yes, No, All };

// Column layouts and the labels of the top rows. SSNutrientsSet reads Nutrient_Display.
void SSNutritionSet(Grid* grid);
void SSNutrientsSet(Grid* grid);
void SSExerciseSet(Grid* grid);
void SSStrengthSet(Grid* grid);
void SSWellnessSet(Grid* grid, int index);   // 0 Feel Well, 1 Readings, 2 Medication

// The filters, read once when the screen opens: "Show all" (or "Show All") first.
void FillNutritionFilter(QComboBox* cboNutrition);
void FillExerciseFilter(QComboBox* cboExerciseSports);
void FillStrengthFilter(QComboBox* cboStrength);
void FillWellnessFilters(QComboBox* cboReadings, QComboBox* cboMedication);

// Each cuts its grid(s) back to the top rows and fills them. An empty name, or the
// "Show all" item's text, means no filter.
// nutritionInfo fills either grid alone when the other is null (the screen fills the Nutrients
// page when it is shown); caloriesEaten is set either way.
void nutritionInfo(Grid* SSNutrition, Grid* SSNutrients, const QString& meal, const Range& range, Balance& balance);
void exerciseSports(Grid* SSExercise, const QString& name, const Range& range, Balance& balance);
void strengthTraining(Grid* SSStrength, const QString& name, const Range& range, Balance& balance);
void wellnessFeelWell(Grid* grid, YesNoFilter feelWell, YesNoFilter accomplish, const Range& range);
void wellnessReadings(Grid* grid, const QString& reading, const Range& range);
void wellnessMedication(Grid* grid, const QString& medication, const Range& range);

// The wake-up times of the Feel Well grid. WakeupHours reads one as the grid shows it
// ("6:30:00 AM") into hours after midnight, false when it does not count; WakeupMean writes
// the Average row's time ("06:30 AM") from the sum and count of those hours, "" for none.
bool WakeupHours(const QString& shown, double* hours);
QString WakeupMean(double sum, int count);

// The pages of the tabs, written from the grids as they stand; each returns the page's file
// name (for ShowReport). `description` is the filter line of the page's head.
// A description of several lines writes one head row per line.
// groups: the group heading over each column of SS1, from column 1 ("" over the date).
QString PrintSummary(const Grid* SS1, const QStringList& groups, const Grid* SS2, const Range& range);
QString PrintNutrition(const Grid* SSNutrition, const QString& description, const Range& range);
QString PrintNutrients(const Grid* SSNutrients, const QString& description, const Range& range);
QString PrintExercise(const Grid* SSExercise, const QString& description, const Range& range);
QString PrintStrength(const Grid* SSStrength, const QString& description, const Range& range);
QString PrintWellness(const Grid* grid, int index, const QString& description, const Range& range);

// The filter lines of the pages' heads: "All meals", "All exercise/sports", "All Strength
// Training", "All Readings", "All Medication" when the filter shows all, else the chosen name;
// the Feel Well page has two lines, "Feel Well: " and "Accomplished Goals: " with All, Yes or No.
enum class TotalsPage { Nutrition, Exercise, Strength, Readings, Medication };
QString FilterDescription(TotalsPage page, const QString& filter);
QString FeelWellDescription(YesNoFilter feelWell, YesNoFilter accomplish);

}  // namespace totals
