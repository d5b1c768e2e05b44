#include "core/frmMain.h"
#include "core/ini.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QToolBar>

namespace {
double LogicalDpi()
{
    QScreen* s = QGuiApplication::primaryScreen();
    const double dpi = s ? s->logicalDotsPerInchX() : 96.0;
    return dpi > 0 ? dpi : 96.0;
}
const QString Window = QStringLiteral("Window");
}  // namespace

int TwipsToPixels(double twips) { return qRound(twips * LogicalDpi() / 1440.0); }
double PixelsToTwips(int pixels) { return pixels * 1440.0 / LogicalDpi(); }

frmMain::frmMain(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("frmMain"));
    Picture1 = addToolBar(QStringLiteral("Picture1"));
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setMovable(false);
    Picture1->setVisible(false);
    ui::SetMainWindow(this);
    Form_Load();
}

frmMain::~frmMain()
{
    if (ui::MainWindow() == this) ui::SetMainWindow(nullptr);
}

void frmMain::Form_Load()
{
    resize(TwipsToPixels(7200), TwipsToPixels(9500));
    Loading = true;
    setWindowTitle(QStringLiteral("Orvantis"));

    AppColor = static_cast<long>(Val(ReadIni(Window, QStringLiteral("Color"), IniFile)));
    if (AppColor == 0) AppColor = DefaultAppColor;

    const QString stateText = ReadIni(Window, QStringLiteral("State"), IniFile);
    int state = static_cast<int>(Val(stateText));
    if (stateText.isEmpty() || state == 1) state = 2;   // never restored minimised

    if (state == 0) {
        // Geometry is kept as single-precision twips.
        const double left = Val(ReadIni(Window, QStringLiteral("Left"), IniFile));
        const double top = Val(ReadIni(Window, QStringLiteral("Top"), IniFile));
        double height = Val(ReadIni(Window, QStringLiteral("Height"), IniFile));
        double width = Val(ReadIni(Window, QStringLiteral("Width"), IniFile));
        if (height < 6000) height = 6000;
        if (width < 5000) width = 5000;
        move(TwipsToPixels(left), TwipsToPixels(top));
        resize(TwipsToPixels(width), TwipsToPixels(height));
        setWindowState(Qt::WindowNoState);
    } else {
        setWindowState(Qt::WindowMaximized);
    }
}

void frmMain::AfterSignIn()
{
    Loading = false;
}

int frmMain::WindowStateValue() const
{
    if (windowState() & Qt::WindowMinimized) return 1;
    if (windowState() & Qt::WindowMaximized) return 2;
    return 0;
}

void frmMain::SaveWindowPlacement() const
{
    // Errors writing the settings file are ignored.
    const QRect g = (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) ? normalGeometry() : frameGeometry();
    WriteIni(Window, QStringLiteral("State"), QString::number(WindowStateValue()), IniFile);
    WriteIni(Window, QStringLiteral("Left"), QString::number(float(PixelsToTwips(g.left()))), IniFile);
    WriteIni(Window, QStringLiteral("Top"), QString::number(float(PixelsToTwips(g.top()))), IniFile);
    WriteIni(Window, QStringLiteral("Height"), QString::number(float(PixelsToTwips(g.height()))), IniFile);
    WriteIni(Window, QStringLiteral("Width"), QString::number(float(PixelsToTwips(g.width()))), IniFile);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    SaveWindowPlacement();
    for (Recordset* rs : {&UserRS, &UserRS2, &UserRS3, &UserRS4, &LibraryRS, &LibraryRS2, &LibraryRS3})
        rs->Close();
    Form_Unload();
    event->accept();
}

void frmMain::Form_Unload()
{
    if (m_unloaded) return;
    m_unloaded = true;
    WriteIni(Window, QStringLiteral("State"), QString::number(WindowStateValue()), IniFile);
    WriteIni(Window, QStringLiteral("Color"), QString::number(AppColor), IniFile);
}
