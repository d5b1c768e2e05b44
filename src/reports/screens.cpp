#include "reports/screens.h"
#include "core/ui.h"
#include "reports/preview.h"
#include "reports/totals/frmDailySummary.h"

void RegisterReportsScreens()
{
    ui::RegisterScreen(QStringLiteral("frmDailySummary"), [](QWidget* p) { return new frmDailySummary(p); });
    InstallReportLinks();
}
