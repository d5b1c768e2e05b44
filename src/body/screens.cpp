#include "body/screens.h"
#include "body/frmWeighIn.h"
#include "body/frmWellness.h"
#include "core/ui.h"

void RegisterBodyScreens()
{
    ui::RegisterScreen(QStringLiteral("frmWeighIn"), [](QWidget* p) { return new frmWeighIn(p); });
    ui::RegisterScreen(QStringLiteral("frmWellness"), [](QWidget* p) { return new frmWellness(p); });
}
