#pragma once
// The page of one weigh-in: girths against their goals, left and right limbs, and the
// conditioning figures.
#include <QString>

namespace reportpages {

// Writes "WeighIn.htm" for the signed-in athlete's weigh-in of `date` ("YYYY-MM-DD") and
// makes it ReportFile; returns the file name. A date without a weigh-in gives empty cells.
QString ReportWeighIn(const QString& date);

}  // namespace reportpages
