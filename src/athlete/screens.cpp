#include "athlete/screens.h"
#include "athlete/frmCondition.h"
#include "athlete/frmManageTeams.h"
#include "athlete/frmSetupTeams.h"
#include "athlete/frmUserInfo.h"
#include "core/ui.h"

void RegisterAthleteScreens()
{
    ui::RegisterScreen(QStringLiteral("frmUserInfo"), [](QWidget* p) { return new frmUserInfo(p); });
    ui::RegisterScreen(QStringLiteral("frmCondition"), [](QWidget* p) { return new frmCondition(p); });
    ui::RegisterScreen(QStringLiteral("frmSetupTeams"), [](QWidget* p) { return new frmSetupTeams(p); });
    ui::RegisterScreen(QStringLiteral("frmManageTeams"), [](QWidget* p) { return new frmManageTeams(p); });
}
