#include "core/frmMain.h"
#include <algorithm>
#include "core/widgets/Theme.h"
#include "core/frmWebView.h"
#include "core/ini.h"
#include "core/plannerlink.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "core/widgets/PageView.h"

#include <QAction>
#include <QCloseEvent>
#include <QTimer>
#include <QShowEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

#include <cmath>

namespace {
double LogicalDpi()
{
    QScreen* s = QGuiApplication::primaryScreen();
    const double dpi = s ? s->logicalDotsPerInchX() : 96.0;
    return dpi > 0 ? dpi : 96.0;
}
const QString Window = QStringLiteral("Window");

enum After { None = 0, DayItems = 1, NetCalories = 2 };

QHash<QString, std::function<void()>>& MenuActions()
{
    static QHash<QString, std::function<void()>> actions;
    return actions;
}

void PlannerCall(const std::function<void()>& f)
{
    if (f) f();
}

// The buttons of the bar: index, label, tooltip, picture, and the screen it opens ("" for none).
struct Button {
    int index;
    const char* label;
    const char* tip;
    const char* picture;
    const char* screen;
};
const Button Buttons[] = {
    {0, "Appt", "Schedule", "appt.png", "frmAppointment"},
    {1, "Strength", "Strength Training", "strength.png", ""},
    {2, "Exercise", "Training", "exercise.png", ""},
    {3, "Log Book", "Log Book", "logbook.png", ""},
    {4, "Nutrition", "Nutrition", "nutrition.png", "frmNutrition"},
    {5, "Wellness", "Wellness", "wellness.png", "frmWellness"},
    {6, "Sports", "Sports", "sports.png", ""},
    {7, "Weigh In", "Weigh In", "weighin.png", "frmWeighIn"},
    {9, "Totals", "Daily Summary", "totals.png", "frmDailySummary"},
    {12, "Calc", "Calculator", "calc.png", "Calculator"},
    {14, "Shop", "Shopping Cart", "shop.png", "frmShop"},
    {20, "Single", "Single Calendar View", "single.png", ""},
    {21, "Multi", "Multi Calendar View", "multi.png", ""},
};

// A picture from the program's Images folder, or a simple drawn one when it is missing.
QIcon ButtonIcon(const QString& file, const QString& label)
{
    const QString path = ProgramFile(QStringLiteral("Images/") + file);
    if (QFileInfo::exists(path)) {
        QIcon icon(path);
        if (!icon.isNull()) return icon;
    }
    QPixmap pm(32, 32);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(theme::FromWinColor(DefaultAppColor));
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(QRectF(2, 2, 28, 28), 6, 6);
    p.setPen(Qt::white);
    QFont f = p.font();
    f.setBold(true);
    f.setPixelSize(16);
    p.setFont(f);
    p.drawText(QRectF(2, 2, 28, 28), Qt::AlignCenter, label.left(1));
    return QIcon(pm);
}
}  // namespace

QColor WinColor(long value) { return theme::FromWinColor(value); }

int TwipsToPixels(double twips)
{
    // A value from the settings file may be anything: keep the pixels within what a screen can hold.
    const double px = twips * LogicalDpi() / 1440.0;
    if (!std::isfinite(px)) return 0;
    return qRound(qBound(-1.0e6, px, 1.0e6));
}
double PixelsToTwips(int pixels) { return pixels * 1440.0 / LogicalDpi(); }

const QList<frmMain::BackColor>& frmMain::BackColors()
{
    // Steel Blue and Purple are the same colour, and the entries' names don't follow their
    // captions: both as the system has them.
    static const QList<BackColor> colors = {
        {"itmColorGreen", "Green", RGB(51, 153, 153)},
        {"itmColorBlue", "Blue", 10841658},
        {"itmColorGrey", "Dark Grey", 8421504},
        {"itmColLightGrey", "Dark Blue", 0x80000001L},
        {"itmColBurgundy", "Steel Blue", RGB(78, 79, 132)},
        {"itmColBabyBlue", "Baby Blue", RGB(27, 137, 178)},
        {"itmColPurple", "Purple", RGB(78, 79, 132)},
        {"itmBurgundy", "Burgundy", RGB(150, 3, 11)},
    };
    return colors;
}

void frmMain::RegisterMenuAction(const QString& entry, std::function<void()> action)
{
    MenuActions().insert(entry, std::move(action));
    if (auto* main = qobject_cast<frmMain*>(ui::MainWindow())) main->UpdateEntries();
}

bool frmMain::HasMenuAction(const QString& entry) { return MenuActions().contains(entry); }

frmMain::frmMain(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("frmMain"));
    Picture1 = addToolBar(QStringLiteral("Picture1"));
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setMovable(false);
    Picture1->setFloatable(false);
    Picture1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    Picture1->setIconSize(QSize(32, 32));
    Picture1->toggleViewAction()->setVisible(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    BuildButtonBar();
    Picture1->setVisible(false);
    BuildMenus();
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

    AppColor = theme::ColorFromSetting(ReadIni(Window, QStringLiteral("Color"), IniFile));

    // State 0 is a normal window; 1 (minimised), an empty value and anything else maximised.
    const QString stateText = ReadIni(Window, QStringLiteral("State"), IniFile);
    const double stateValue = Val(stateText);
    const int state = !stateText.isEmpty() && stateValue >= 0 && stateValue < 1 ? 0 : 2;

    if (state == 0) {
        // Geometry is kept as single-precision twips: the frame's position and the inner size.
        const double left = Val(ReadIni(Window, QStringLiteral("Left"), IniFile));
        const double top = Val(ReadIni(Window, QStringLiteral("Top"), IniFile));
        double height = Val(ReadIni(Window, QStringLiteral("Height"), IniFile));
        double width = Val(ReadIni(Window, QStringLiteral("Width"), IniFile));
        if (!(height >= 6000)) height = 6000;
        if (!(width >= 5000)) width = 5000;
        move(TwipsToPixels(left), TwipsToPixels(top));
        resize(TwipsToPixels(width), TwipsToPixels(height));
        setWindowState(Qt::WindowNoState);
        KeepOnScreen(this);
    } else {
        setWindowState(Qt::WindowMaximized);
    }
}

void frmMain::KeepOnScreen(QWidget* window)
{
    if (!window) return;
    QList<QRect> screens;
    for (QScreen* s : QGuiApplication::screens()) screens << s->availableGeometry();
    const QRect frame = window->frameGeometry();
    const QRect placed = OnScreenRect(frame, screens);
    if (placed == frame) return;
    const QSize border = frame.size() - window->size();
    window->move(placed.topLeft());
    if (placed.size() != frame.size()) window->resize(placed.size() - border);
}

void frmMain::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // Without a window manager a maximised state is never applied: fill the screen ourselves,
    // leaving the normal geometry to the window manager where there is one.
    QTimer::singleShot(300, this, [this] {
        if (!(windowState() & Qt::WindowMaximized)) return;
        QScreen* s = screen();
        if (!s) return;
        const QRect avail = s->availableGeometry();
        if (frameGeometry().width() < avail.width() * 9 / 10) setGeometry(avail);
    });
    // The frame is known once the window is on view: a normal window stays reachable.
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowMinimized))) KeepOnScreen(this);
}

QAction* frmMain::AddEntry(QMenu* menu, const QString& name, const QString& caption)
{
    QAction* a = menu->addAction(caption);
    a->setObjectName(name);
    m_items.insert(name, a);
    return a;
}

void frmMain::BuildMenus()
{
    QMenuBar* bar = menuBar();
    auto addMenu = [&](const QString& name, const QString& caption) {
        QMenu* m = bar->addMenu(caption);
        m->setObjectName(name);
        m_menus.insert(name, m);
        connect(m, &QMenu::aboutToShow, this, &frmMain::UpdateEntries);
        return m;
    };
    // An entry that opens a screen by name; `after` reloads the planner's day afterwards.
    auto screenEntry = [&](QMenu* m, const char* name, const QString& caption, const char* screen, int after = None,
                           const char* kind = "") {
        QAction* a = AddEntry(m, QString::fromLatin1(name), caption);
        m_screenOf.insert(a, QString::fromLatin1(screen));
        const QString entry = QString::fromLatin1(name), scr = QString::fromLatin1(screen), k = QString::fromLatin1(kind);
        connect(a, &QAction::triggered, this, [=, this] { OpenEntry(entry, scr, after, k); });
        return a;
    };
    // An entry whose work another subsystem registers.
    auto procEntry = [&](QMenu* m, const char* name, const QString& caption) {
        QAction* a = AddEntry(m, QString::fromLatin1(name), caption);
        m_procOf.insert(a, QString::fromLatin1(name));
        const QString entry = QString::fromLatin1(name);
        connect(a, &QAction::triggered, this, [=, this] { OpenEntry(entry, QString(), None, QString()); });
        return a;
    };

    // File
    QMenu* file = addMenu(QStringLiteral("mnuFile"), QStringLiteral("&File"));
    itemOpen = AddEntry(file, QStringLiteral("itemOpen"), QStringLiteral("&Open..."));
    connect(itemOpen, &QAction::triggered, this, [] { ShowModal(QStringLiteral("frmOpen")); });
    itemClose = AddEntry(file, QStringLiteral("itemClose"), QStringLiteral("&Sign out"));
    connect(itemClose, &QAction::triggered, this, &frmMain::itemClose_Click);
    itemClose->setEnabled(false);
    file->addSeparator();
    procEntry(file, "itmImportSchedule", QStringLiteral("Import Event Schedule..."));
    procEntry(file, "itmExportCalendar", QStringLiteral("Export Calendar..."));
    file->addSeparator();
    QAction* printSetup = AddEntry(file, QStringLiteral("itemPrintSetup"), QStringLiteral("Printer &Setup..."));
    connect(printSetup, &QAction::triggered, this, [] { PrintDialog(&ProgramPrinter()); });
    QMenu* util = file->addMenu(QStringLiteral("&Database Utilities"));
    util->setObjectName(QStringLiteral("itemDataUtil"));
    m_menus.insert(QStringLiteral("itemDataUtil"), util);
    m_items.insert(QStringLiteral("itemDataUtil"), util->menuAction());
    procEntry(util, "itmBackupDatabase", QStringLiteral("&Backup Database..."));
    QMenu* colors = file->addMenu(QStringLiteral("Back Color..."));
    colors->setObjectName(QStringLiteral("itmBackColor"));
    m_menus.insert(QStringLiteral("itmBackColor"), colors);
    m_items.insert(QStringLiteral("itmBackColor"), colors->menuAction());
    for (const BackColor& c : BackColors()) {
        QAction* a = AddEntry(colors, QString::fromLatin1(c.entry), QString::fromLatin1(c.caption));
        QPixmap swatch(14, 14);
        swatch.fill(theme::FromWinColor(c.color));
        a->setIcon(QIcon(swatch));
        const long value = c.color;
        connect(a, &QAction::triggered, this, [this, value] { SetBackColor(value); });
    }
    file->addSeparator();
    QAction* exit = AddEntry(file, QStringLiteral("itemExit"), QStringLiteral("E&xit"));
    connect(exit, &QAction::triggered, this, &QWidget::close);

    // Nutrition
    QMenu* diet = addMenu(QStringLiteral("mnuDiet"), QStringLiteral("&Nutrition"));
    screenEntry(diet, "itmDailyNutrition", QStringLiteral("&Daily Nutrition..."), "frmNutrition", DayItems | NetCalories);
    screenEntry(diet, "itmSchedule", QStringLiteral("&Meal Planner..."), "frmMealPlanner", NetCalories);
    screenEntry(diet, "itemFoods", QStringLiteral("F&oods Library..."), "frmFoods");
    screenEntry(diet, "mnuRecipeBook", QStringLiteral("&Recipe Library..."), "frmRecipes");
    screenEntry(diet, "itmMealLibrary", QStringLiteral("&Meal Library..."), "frmMealLibrary");
    screenEntry(diet, "mnuWebRecipes", QStringLiteral("Recipe &Exchange on the Internet..."), "frmBrowser", None, "recipe");
    screenEntry(diet, "mnuViewShoppingCart", QStringLiteral("Shopping &List..."), "frmShop");
    screenEntry(diet, "itmFoodCategories", QStringLiteral("&Manage Categories..."), "frmFoodCategories");

    // Strength Training
    QMenu* strength = addMenu(QStringLiteral("mnuWeightTraining"), QStringLiteral("&Strength Training"));
    screenEntry(strength, "itemStrengthGoals", QStringLiteral("&Goal Builder..."), "frmStrengthGoals");
    screenEntry(strength, "itemExcercises", QStringLiteral("&Exercise Library..."), "frmExercise");
    screenEntry(strength, "itemManageWorkout", QStringLiteral("&Workout Library..."), "frmStrengthWorkouts");
    screenEntry(strength, "mnuWebWorkout", QStringLiteral("Workout Exchange on the &Internet..."), "frmBrowser", None, "workout");

    // Exercise/Sports
    QMenu* aerobics = addMenu(QStringLiteral("mnuAerobics"), QStringLiteral("&Exercise/Sports"));
    screenEntry(aerobics, "itemAerobicList", QStringLiteral("&Exercise/Sports Library..."), "frmExerciseForms");
    screenEntry(aerobics, "itemManageFields", QStringLiteral("&Selections Library..."), "frmSelections");
    screenEntry(aerobics, "mnuWebAerobics", QStringLiteral("&Exercise/Sports Exchange on the Internet..."), "frmBrowser", None,
                "aerobic");

    // Data Link
    QMenu* link = addMenu(QStringLiteral("mnuDataLink"), QStringLiteral("&Data Link"));
    screenEntry(link, "itmDataExport", QStringLiteral("&Export.."), "frmExport");
    AddEntry(link, QStringLiteral("itmDataImport"), QStringLiteral("&Import..."));   // has no action

    // Athlete
    QMenu* athlete = addMenu(QStringLiteral("mnuAthlete"), QStringLiteral("A&thlete"));
    QAction* info = AddEntry(athlete, QStringLiteral("itemPreferences"), QStringLiteral("&Information..."));
    m_screenOf.insert(info, QStringLiteral("frmUserInfo"));
    connect(info, &QAction::triggered, this, [this] {
        if (!HasMenuAction(QStringLiteral("itemPreferences")) && !ui::HasScreen(QStringLiteral("frmUserInfo"))) {
            UpdateEntries();
            return;
        }
        NewAthlete = false;
        DialogCancelled = true;
        ShowModal(QStringLiteral("frmUserInfo"));
        DialogCancelled = false;
        PlannerCall(Planner().LoadMuscleGroups);
        PlannerCall(Planner().LoadDayItems);
    });
    screenEntry(athlete, "itemPassword", QStringLiteral("&Password..."), "ChangePass");
    screenEntry(athlete, "itemWeighIn", QStringLiteral("&Weigh In..."), "frmWeighIn", DayItems | NetCalories);
    screenEntry(athlete, "itemTotals", QStringLiteral("&Totals..."), "frmDailySummary");
    screenEntry(athlete, "itmTeams", QStringLiteral("&Setup Teams..."), "frmSetupTeams");
    screenEntry(athlete, "itemAssociateAthlete", QStringLiteral("&Manage Teams..."), "frmManageTeams");

    // Help
    QMenu* help = addMenu(QStringLiteral("mnuHelp"), QStringLiteral("&Help"));
    screenEntry(help, "itemhelpAbout", QStringLiteral("&About..."), "frmAboutBox");
    help->addSeparator();
    const struct { const char* name; const char* caption; const char* file; } pages[] = {
        {"itemHelpContents", "&Contents...", "helpfile.htm"},
        {"itmhelpglos", "&Glossary...", "glossary.htm"},
        {"itmhelpMeasure", "&Measurements...", "measuring.htm"},
        {"itmhelpFormulas", "&Using Formulas...", "formulas.htm"},
    };
    for (const auto& p : pages) {
        QAction* a = AddEntry(help, QString::fromLatin1(p.name), QString::fromLatin1(p.caption));
        m_screenOf.insert(a, QStringLiteral("frmWebView"));
        const QString fileName = QString::fromLatin1(p.file);
        connect(a, &QAction::triggered, this, [this, fileName] { ShowHelpPage(fileName); });
    }
    UpdateEntries();
}

void frmMain::BuildButtonBar()
{
    bool separated = false;
    for (const Button& b : Buttons) {
        if (b.index >= 20 && !separated) {
            auto* spacer = new QWidget(Picture1);
            spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
            Picture1->addWidget(spacer);
            separated = true;
        }
        auto* button = new QToolButton(Picture1);
        const QString label = QString::fromLatin1(b.label);
        button->setObjectName(QStringLiteral("FB1_") + QString::number(b.index));
        button->setText(label);
        button->setToolTip(QString::fromLatin1(b.tip));
        button->setAccessibleName(QString::fromLatin1(b.tip));
        button->setIcon(ButtonIcon(QString::fromLatin1(b.picture), label));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setMinimumWidth(64);
        Picture1->addWidget(button);
        FB1.insert(b.index, button);
        if (*b.screen) m_buttonScreen.insert(b.index, QString::fromLatin1(b.screen));
        const int index = b.index;
        connect(button, &QToolButton::clicked, this, [this, index] { FB1_Click(index); });
    }
}

void frmMain::UpdateEntries()
{
    for (auto it = m_screenOf.constBegin(); it != m_screenOf.constEnd(); ++it)
        it.key()->setEnabled(HasMenuAction(it.key()->objectName()) || ui::HasScreen(it.value()));
    for (auto it = m_procOf.constBegin(); it != m_procOf.constEnd(); ++it) it.key()->setEnabled(HasMenuAction(it.value()));
    for (auto it = m_buttonScreen.constBegin(); it != m_buttonScreen.constEnd(); ++it)
        if (QToolButton* b = FB1.value(it.key())) b->setEnabled(ui::HasScreen(it.value()));
}

bool frmMain::OpenScreen(const QString& screen, int after)
{
    if (!ui::HasScreen(screen)) {
        UpdateEntries();
        return false;
    }
    ShowModal(screen);
    if (after & DayItems) PlannerCall(Planner().LoadDayItems);
    if (after & NetCalories) PlannerCall(Planner().LoadNetCalories);
    return true;
}

void frmMain::OpenEntry(const QString& entry, const QString& screen, int after, const QString& kind)
{
    Guard([&] {
        auto action = MenuActions().constFind(entry);
        if (action != MenuActions().constEnd()) {
            (*action)();
            return;
        }
        if (screen.isEmpty()) {
            UpdateEntries();
            return;
        }
        if (!kind.isEmpty()) SelectedItem = kind;   // which exchange the browser opens on
        OpenScreen(screen, after);
    });
}

void frmMain::ShowHelpPage(const QString& file)
{
    if (!ui::HasScreen(QStringLiteral("frmWebView"))) {
        UpdateEntries();
        return;
    }
    frmWebView::ShowHelp(file);
}

void frmMain::FB1_Click(int index)
{
    SelectedKey.clear();
    Guard([&] {
        switch (index) {
        case 0: OpenScreen(QStringLiteral("frmAppointment"), None); break;
        case 1: if (Planner().SelectTab) Planner().SelectTab(2); break;
        case 2: if (Planner().SelectTab) Planner().SelectTab(3); break;
        case 3: if (Planner().SelectTab) Planner().SelectTab(4); break;
        case 4: OpenScreen(QStringLiteral("frmNutrition"), NetCalories); break;
        case 5: OpenScreen(QStringLiteral("frmWellness"), DayItems); break;
        case 6: PlannerCall(Planner().ShowSportsList); break;
        case 7:
            if (CalendarQDate() > QDate::currentDate()) {
                MsgBox(QStringLiteral("Please select a Weigh In date in the past or today."), vbInformation,
                       QStringLiteral("Message"));
                break;
            }
            OpenScreen(QStringLiteral("frmWeighIn"), DayItems | NetCalories);
            break;
        case 9: OpenScreen(QStringLiteral("frmDailySummary"), None); break;
        case 12: OpenScreen(QStringLiteral("Calculator"), None); break;
        case 14: OpenScreen(QStringLiteral("frmShop"), None); break;
        case 20: if (Planner().SetMultiCalendar) Planner().SetMultiCalendar(false); break;
        case 21: if (Planner().SetMultiCalendar) Planner().SetMultiCalendar(true); break;
        default: break;
        }
    });
}

void frmMain::SetBackColor(long color)
{
    AppColor = color;
    WriteIni(Window, QStringLiteral("Color"), QString::number(AppColor), IniFile);
    PlannerCall(Planner().SetColor);
}

void frmMain::ShowButtonBar(bool visible) { Picture1->setVisible(visible); }

void frmMain::EnableAthleteMenus()
{
    for (const char* name : {"mnuWeightTraining", "mnuAerobics", "mnuDiet"})
        if (QMenu* m = m_menus.value(QString::fromLatin1(name))) m->menuAction()->setEnabled(true);
}

void frmMain::OpenPlanner()
{
    ClosePlanner();
    m_planner = ui::CreateScreen(QStringLiteral("frmSched2"), this);
    if (!m_planner) return;
    setCentralWidget(m_planner);
    m_planner->show();
    // The planner may need more room than a small window had: once the window has grown to
    // it, the window is moved back inside the screen where it grew past the edge.
    m_fitAfterPlanner = true;
    QTimer::singleShot(0, this, [this] { FitOnScreen(); });
    QTimer::singleShot(1000, this, [this] { m_fitAfterPlanner = false; });
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (m_fitAfterPlanner) QTimer::singleShot(0, this, [this] { FitOnScreen(); });
}

void frmMain::FitOnScreen()
{
    if (!isVisible() || (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen)))
        return;
    QScreen* s = screen();
    if (!s) return;
    const QRect area = s->availableGeometry();
    const QRect frame = frameGeometry();
    if (area.contains(frame)) return;
    const int x = std::max(area.left(), std::min(frame.left(), area.right() + 1 - frame.width()));
    const int y = std::max(area.top(), std::min(frame.top(), area.bottom() + 1 - frame.height()));
    move(x, y);
}

void frmMain::ClosePlanner()
{
    if (!m_planner) return;
    QWidget* planner = m_planner;
    m_planner = nullptr;
    if (centralWidget() == planner) takeCentralWidget();
    planner->close();   // the planner keeps its settings when it closes
    delete planner;
}

void frmMain::AfterSignIn()
{
    itemOpen->setEnabled(false);
    itemClose->setEnabled(true);
    Loading = false;
    m_loopRunning = true;
}

void frmMain::itemClose_Click()
{
    setWindowTitle(QStringLiteral("Orvantis"));
    DataChanged = false;
    ClosePlanner();
    Picture1->setVisible(false);
    itemOpen->setEnabled(true);
    itemClose->setEnabled(false);
    ShowModal(QStringLiteral("frmOpen"));
    if (ExitRequested) return;
    itemOpen->setEnabled(false);
    itemClose->setEnabled(true);
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
    // The frame's position and the inner size: what Form_Load applies with move() and resize().
    QRect g(pos(), size());
    if (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) {
        const QRect normal = normalGeometry();
        const QPoint border = geometry().topLeft() - pos();
        if (normal.isValid()) g = QRect(normal.topLeft() - border, normal.size());
    }
    WriteIni(Window, QStringLiteral("State"), QString::number(WindowStateValue()), IniFile);
    WriteIni(Window, QStringLiteral("Left"), QString::number(float(PixelsToTwips(g.left()))), IniFile);
    WriteIni(Window, QStringLiteral("Top"), QString::number(float(PixelsToTwips(g.top()))), IniFile);
    WriteIni(Window, QStringLiteral("Height"), QString::number(float(PixelsToTwips(g.height()))), IniFile);
    WriteIni(Window, QStringLiteral("Width"), QString::number(float(PixelsToTwips(g.width()))), IniFile);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    SaveWindowPlacement();
    ClosePlanner();
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
