#include "reports/totals/frmDailySummary.h"

frmDailySummary::frmDailySummary(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDailySummary"));
    setWindowTitle(QStringLiteral("Daily Summary"));
}
