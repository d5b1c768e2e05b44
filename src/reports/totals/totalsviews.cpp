#include "reports/totals/totalsviews.h"

namespace totals {

void SSNutritionSet(Grid*) {}
void SSNutrientsSet(Grid*) {}
void SSExerciseSet(Grid*) {}
void SSStrengthSet(Grid*) {}
void SSWellnessSet(Grid*, int) {}
void FillNutritionFilter(QComboBox*) {}
void FillExerciseFilter(QComboBox*) {}
void FillStrengthFilter(QComboBox*) {}
void FillWellnessFilters(QComboBox*, QComboBox*) {}
void nutritionInfo(Grid*, Grid*, const QString&, const Range&, Balance&) {}
void exerciseSports(Grid*, const QString&, const Range&, Balance&) {}
void strengthTraining(Grid*, const QString&, const Range&, Balance&) {}
void wellnessFeelWell(Grid*, YesNoFilter, YesNoFilter, const Range&) {}
void wellnessReadings(Grid*, const QString&, const Range&) {}
void wellnessMedication(Grid*, const QString&, const Range&) {}
QString PrintSummary(const Grid*, const QStringList&, const Grid*, const Range&) { return {}; }
QString PrintNutrition(const Grid*, const QString&, const Range&) { return {}; }
QString PrintNutrients(const Grid*, const QString&, const Range&) { return {}; }
QString PrintExercise(const Grid*, const QString&, const Range&) { return {}; }
QString PrintStrength(const Grid*, const QString&, const Range&) { return {}; }
QString PrintWellness(const Grid*, int, const QString&, const Range&) { return {}; }

}  // namespace totals
