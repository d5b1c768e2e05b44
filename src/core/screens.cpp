#include "core/screens.h"
#include "core/ChangePass.h"
#include "core/frmAboutBox.h"
#include "core/frmCreateAthelete1.h"
#include "core/frmNewUser.h"
#include "core/frmOpen.h"
#include "core/frmPassword.h"
#include "core/frmWebView.h"
#include "core/ui.h"

void RegisterCoreScreens()
{
    ui::RegisterScreen(QStringLiteral("frmOpen"), [](QWidget* p) { return new frmOpen(p); });
    ui::RegisterScreen(QStringLiteral("frmPassword"), [](QWidget* p) { return new frmPassword(p); });
    ui::RegisterScreen(QStringLiteral("ChangePass"), [](QWidget* p) { return new ChangePass(p); });
    ui::RegisterScreen(QStringLiteral("frmCreateAthelete1"), [](QWidget* p) { return new frmCreateAthelete1(p); });
    ui::RegisterScreen(QStringLiteral("frmNewUser"), [](QWidget* p) { return new frmNewUser(p); });
    ui::RegisterScreen(QStringLiteral("frmAboutBox"), [](QWidget* p) { return new frmAboutBox(p); });
    ui::RegisterScreen(QStringLiteral("frmWebView"), [](QWidget* p) { return new frmWebView(p); });
}
