#include "body/screens.h"
#include "body/frmWeighIn.h"
#include "core/ui.h"

void RegisterBodyScreens()
{
    ui::RegisterScreen(QStringLiteral("frmWeighIn"), [](QWidget* p) { return new frmWeighIn(p); });
}
