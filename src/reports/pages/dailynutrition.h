#pragma once
// The food diary over a range of days as pages: every food of every meal with the meal's
// totals, or the meals' totals alone; a new sheet for each day.
#include <QDate>
#include <QString>

namespace reportpages {

// "DailyNutrition.htm": for each meal of each day a heading, its foods and a "Meal Total"
// row; the page-break directive between days. Returns the file name (also ReportFile).
QString ReportDailyNutrition(const QDate& start, const QDate& end);

// "DailyTotals.htm": for each day a table of its meals' sums and a "Meals Total" row, each
// day followed by the page-break directive. Returns the file name (also ReportFile).
QString ReportDailyTotals(const QDate& start, const QDate& end);

}  // namespace reportpages
