// The main shell: menus and button bar, screens by name, back colours, sign out and in,
// help pages in the page viewer, and the page viewer's printing.
#include "fixtures/fixture.h"

#include "core/frmAboutBox.h"
#include "core/frmMain.h"
#include "core/frmOpen.h"
#include "core/frmWebView.h"
#include "core/ini.h"
#include "core/plannerlink.h"
#include "core/screens.h"
#include "core/shared.h"
#include "core/widgets/PageView.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QToolBar>
#include <QToolButton>

namespace {

// Restores the planner link when a test ends, also on a failed assertion.
struct PlannerGuard {
    PlannerLink saved = Planner();
    ~PlannerGuard() { Planner() = saved; }
};

QStringList Names(const QMenu* menu)
{
    QStringList out;
    for (QAction* a : menu->actions())
        if (!a->isSeparator()) out << (a->menu() ? a->menu()->objectName() : a->objectName());
    return out;
}

class MainShellTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        static bool registered = false;
        if (!registered) {
            RegisterCoreScreens();
            // Stand-ins for screens of other subsystems.
            ui::RegisterScreen(QStringLiteral("frmSched2"), [](QWidget* p) { return new QWidget(p); });
            ui::RegisterScreen(QStringLiteral("frmShop"), [](QWidget* p) { return new QDialog(p); });
        }
        registered = true;
    }
};

TEST_F(MainShellTest, MenusAndEntriesInOrder)
{
    frmMain m;
    QStringList captions;
    for (QAction* a : m.menuBar()->actions()) captions << a->text();
    EXPECT_EQ(captions, (QStringList{"&File", "&Nutrition", "&Strength Training", "&Exercise/Sports", "&Data Link",
                                     "A&thlete", "&Help"}));
    EXPECT_EQ(Names(m.Menu("mnuFile")), (QStringList{"itemOpen", "itemClose", "itmImportSchedule", "itmExportCalendar",
                                                     "itemPrintSetup", "itemDataUtil", "itmBackColor", "itemExit"}));
    EXPECT_EQ(Names(m.Menu("itemDataUtil")), QStringList{"itmBackupDatabase"});
    EXPECT_EQ(Names(m.Menu("itmBackColor")), (QStringList{"itmColorGreen", "itmColorBlue", "itmColorGrey", "itmColLightGrey",
                                                          "itmColBurgundy", "itmColBabyBlue", "itmColPurple", "itmBurgundy"}));
    EXPECT_EQ(Names(m.Menu("mnuDiet")), (QStringList{"itmDailyNutrition", "itmSchedule", "itemFoods", "mnuRecipeBook",
                                                     "itmMealLibrary", "mnuWebRecipes", "mnuViewShoppingCart", "itmFoodCategories"}));
    EXPECT_EQ(Names(m.Menu("mnuWeightTraining")),
              (QStringList{"itemStrengthGoals", "itemExcercises", "itemManageWorkout", "mnuWebWorkout"}));
    EXPECT_EQ(Names(m.Menu("mnuAerobics")), (QStringList{"itemAerobicList", "itemManageFields", "mnuWebAerobics"}));
    EXPECT_EQ(Names(m.Menu("mnuDataLink")), (QStringList{"itmDataExport", "itmDataImport"}));
    EXPECT_EQ(Names(m.Menu("mnuAthlete")), (QStringList{"itemPreferences", "itemPassword", "itemWeighIn", "itemTotals",
                                                        "itmTeams", "itemAssociateAthlete"}));
    EXPECT_EQ(Names(m.Menu("mnuHelp")),
              (QStringList{"itemhelpAbout", "itemHelpContents", "itmhelpglos", "itmhelpMeasure", "itmhelpFormulas"}));

    const QHash<QString, QString> captionOf = {
        {"itemOpen", "&Open..."}, {"itemClose", "&Sign out"}, {"itmImportSchedule", "Import Event Schedule..."},
        {"itemPrintSetup", "Printer &Setup..."}, {"itmBackupDatabase", "&Backup Database..."}, {"itemExit", "E&xit"},
        {"itmColLightGrey", "Dark Blue"}, {"itmColBurgundy", "Steel Blue"}, {"itmDataExport", "&Export.."},
        {"mnuWebAerobics", "&Exercise/Sports Exchange on the Internet..."}, {"itmhelpFormulas", "&Using Formulas..."},
        {"itemAssociateAthlete", "&Manage Teams..."}};
    for (auto it = captionOf.begin(); it != captionOf.end(); ++it) {
        ASSERT_NE(m.Item(it.key()), nullptr) << it.key().toStdString();
        EXPECT_EQ(m.Item(it.key())->text(), it.value()) << it.key().toStdString();
    }
    EXPECT_EQ(m.Menu("itemDataUtil")->title(), QStringLiteral("&Database Utilities"));
    EXPECT_EQ(m.Menu("itmBackColor")->title(), QStringLiteral("Back Color..."));
}

TEST_F(MainShellTest, EntriesOfMissingScreensAreDisabledUntilTheyExist)
{
    frmMain m;
    // Screens of this subsystem are there.
    for (const char* e : {"itemPassword", "itemhelpAbout", "itemHelpContents", "itemOpen", "itemPrintSetup", "itmDataImport"})
        EXPECT_TRUE(m.Item(e)->isEnabled()) << e;
    // Screens and procedures nobody has registered here.
    for (const char* e : {"itmDailyNutrition", "itemFoods", "itemTotals", "itmBackupDatabase", "itmImportSchedule"})
        EXPECT_FALSE(m.Item(e)->isEnabled()) << e;
    EXPECT_TRUE(m.Item("mnuViewShoppingCart")->isEnabled());
    EXPECT_TRUE(m.FB1[14]->isEnabled());
    EXPECT_FALSE(m.FB1[4]->isEnabled());
    EXPECT_TRUE(m.FB1[1]->isEnabled());   // the planner's tabs need no screen

    m.Item("mnuViewShoppingCart")->trigger();
    m.FB1[14]->click();
    EXPECT_EQ(Ui().DialogsShown().count(QStringLiteral("frmShop")), 2);

    // A procedure registered later enables its entry and runs on a click.
    int runs = 0;
    frmMain::RegisterMenuAction(QStringLiteral("itmImportSchedule"), [&] { ++runs; });
    EXPECT_TRUE(m.Item("itmImportSchedule")->isEnabled());
    m.Item("itmImportSchedule")->trigger();
    EXPECT_EQ(runs, 1);
    frmMain::RegisterMenuAction(QStringLiteral("itmImportSchedule"), [] {});
}

TEST_F(MainShellTest, ButtonBarDrivesThePlannerAndChecksTheWeighInDate)
{
    PlannerGuard guard;
    QStringList calls;
    Planner().SelectTab = [&](int tab) { calls << QStringLiteral("tab%1").arg(tab); };
    Planner().SetMultiCalendar = [&](bool multi) { calls << (multi ? "multi" : "single"); };
    Planner().ShowSportsList = [&] { calls << QStringLiteral("sports"); };
    frmMain m;
    const QList<int> indexes = m.FB1.keys();
    EXPECT_EQ(indexes, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 9, 12, 14, 20, 21}));
    EXPECT_EQ(m.FB1[9]->text(), QStringLiteral("Totals"));
    EXPECT_EQ(m.FB1[9]->toolTip(), QStringLiteral("Daily Summary"));
    EXPECT_EQ(m.FB1[12]->toolTip(), QStringLiteral("Calculator"));

    SelectedKey = QStringLiteral("42");
    for (int i : {1, 2, 3, 6, 20, 21}) m.FB1_Click(i);
    EXPECT_EQ(calls, (QStringList{"tab2", "tab3", "tab4", "sports", "single", "multi"}));
    EXPECT_TRUE(SelectedKey.isEmpty());

    SetCalendarDateProvider([] { return QDate::currentDate().addDays(1); });
    m.FB1_Click(7);
    SetCalendarDateProvider(nullptr);
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Please select a Weigh In date in the past or today."));
    Ui().ClearMessages();
    m.FB1_Click(7);   // today: no message (the weigh-in screen is not here)
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

TEST_F(MainShellTest, BackColoursAreSavedAndApplied)
{
    PlannerGuard guard;
    int applied = 0;
    Planner().SetColor = [&] { ++applied; };
    frmMain m;
    const QList<std::pair<const char*, long>> expected = {
        {"itmColorGreen", 10066227}, {"itmColorBlue", 10841658},  {"itmColorGrey", 8421504},
        {"itmColLightGrey", 0x80000001L}, {"itmColBurgundy", 8671054}, {"itmColBabyBlue", 11700507},
        {"itmColPurple", 8671054},   {"itmBurgundy", 721814}};
    for (const auto& [entry, color] : expected) {
        m.Item(entry)->trigger();
        EXPECT_EQ(AppColor, color) << entry;
        EXPECT_EQ(ReadIni(QStringLiteral("Window"), QStringLiteral("Color"), IniFile), QString::number(color)) << entry;
    }
    EXPECT_EQ(applied, 8);
    EXPECT_EQ(WinColor(RGB(51, 153, 153)), QColor(51, 153, 153));
    EXPECT_EQ(WinColor(10841658), QColor(58, 110, 165));
}

TEST_F(MainShellTest, SignOutAndBackIn)
{
    const QString id = AddAthlete(QStringLiteral("Runner"));
    frmMain m;
    m.AfterSignIn();
    EXPECT_FALSE(m.itemOpen->isEnabled());
    EXPECT_TRUE(m.itemClose->isEnabled());
    EXPECT_FALSE(Loading);
    m.ShowButtonBar(true);
    m.OpenPlanner();
    ASSERT_NE(m.PlannerWidget(), nullptr);
    EXPECT_EQ(m.centralWidget()->objectName(), QStringLiteral("frmSched2"));
    DataChanged = true;

    // Signing out shows the sign-in window with the bar hidden and no planner; the user
    // signs in again from it.
    bool checked = false;
    Ui().OnDialog(QStringLiteral("frmOpen"), [&](QDialog* d) {
        checked = true;
        EXPECT_EQ(m.windowTitle(), QStringLiteral("Orvantis"));
        EXPECT_FALSE(DataChanged);
        EXPECT_EQ(m.PlannerWidget(), nullptr);
        EXPECT_FALSE(m.Picture1->isVisibleTo(&m));
        EXPECT_TRUE(m.itemOpen->isEnabled());
        EXPECT_FALSE(m.itemClose->isEnabled());
        auto* w = static_cast<frmOpen*>(d);
        w->Combo1->setCurrentIndex(w->Combo1->findText(QStringLiteral("Runner")));
        w->Command1->click();
        return d->result();
    });
    m.itemClose_Click();
    EXPECT_TRUE(checked);
    EXPECT_EQ(m.windowTitle(), QStringLiteral("Runner - Orvantis"));
    EXPECT_TRUE(m.Picture1->isVisibleTo(&m));
    ASSERT_NE(m.PlannerWidget(), nullptr);
    EXPECT_EQ(CurrentUserID, id);
    EXPECT_FALSE(m.itemOpen->isEnabled());
    EXPECT_TRUE(m.itemClose->isEnabled());
}

TEST_F(MainShellTest, ClosingTheSignInWindowLeavesTheProgram)
{
    WriteIni(QStringLiteral("Window"), QStringLiteral("State"), QStringLiteral("0"), IniFile);
    frmMain m;
    m.resize(900, 700);
    Ui().OnDialog(QStringLiteral("frmOpen"), [](QDialog* d) {
        d->reject();   // the close box
        return d->result();
    });
    m.itemClose_Click();
    EXPECT_TRUE(ExitRequested);
    EXPECT_EQ(ReadIni(QStringLiteral("Window"), QStringLiteral("State"), IniFile), QStringLiteral("0"));
    EXPECT_FALSE(ReadIni(QStringLiteral("Window"), QStringLiteral("Width"), IniFile).isEmpty());
    EXPECT_TRUE(m.itemOpen->isEnabled());   // nothing more happens after the close box
}

TEST_F(MainShellTest, HelpPagesAboutAndTheNote)
{
    for (const char* page : {"helpfile.htm", "glossary.htm", "measuring.htm", "formulas.htm"})
        QFile::copy(SourceFile(QStringLiteral("data/help/") + page), FilePath(QString::fromLatin1(page)));
    frmMain m;
    QStringList shown;
    Ui().OnDialog(QStringLiteral("frmWebView"), [&](QDialog* d) {
        auto* v = static_cast<frmWebView*>(d);
        EXPECT_TRUE(v->HelpOpen());
        EXPECT_FALSE(v->cmdSend->isVisibleTo(v));
        shown << QFileInfo(v->browser->FilePath()).fileName();
        EXPECT_TRUE(v->windowTitle().startsWith(QStringLiteral("Orvantis Help - "))) << shown.last().toStdString();
        EXPECT_GT(v->browser->toPlainText().size(), 2000) << shown.last().toStdString();
        return int(QDialog::Accepted);
    });
    ReportFile = QStringLiteral("DailyNutrition.htm");
    for (const char* e : {"itemHelpContents", "itmhelpglos", "itmhelpMeasure", "itmhelpFormulas"}) m.Item(e)->trigger();
    EXPECT_EQ(shown, (QStringList{"helpfile.htm", "glossary.htm", "measuring.htm", "formulas.htm"}));
    EXPECT_EQ(ReportFile, QStringLiteral("DailyNutrition.htm"));

    // The note to first time users reads the help contents.
    shown.clear();
    auto* note = ui::CreateScreen(QStringLiteral("frmNewUser"), nullptr);
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->windowTitle(), QStringLiteral("Note to First time Users"));
    note->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    EXPECT_EQ(shown, QStringList{"helpfile.htm"});
    delete note;

    frmAboutBox about;
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About Orvantis"));
    EXPECT_EQ(about.lblVersion->text(), QStringLiteral("Version 5 April 8, 2003"));
}

TEST_F(MainShellTest, PageBreaksAndPagedPrinting)
{
    const QString page = QStringLiteral(
        "<html><head><title>Days</title></head><body><font face=\"Arial\">\n"
        "<p>Day one</p><table border=1><tr><td>a</td></tr></table>\n<WxPrinter PageBreak>\n"
        "<p align=left style=\"color:red\">Day two</p>\n<WxPrinter PageBreak>\n"
        "<table width=400><tr><td>Day three</td></tr></table>\n</font></body></html>\n");

    // On screen the directive shows nothing.
    PageView view;
    QFile f(FilePath(QStringLiteral("days.htm")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(page.toUtf8());
    f.close();
    ASSERT_TRUE(view.LoadFile(FilePath(QStringLiteral("days.htm"))));
    EXPECT_FALSE(view.toPlainText().contains(QStringLiteral("WxPrinter"), Qt::CaseInsensitive));
    EXPECT_TRUE(view.toPlainText().contains(QStringLiteral("Day three")));
    EXPECT_EQ(view.PageTitle(), QStringLiteral("Days"));

    // On paper it moves onto the next block.
    const QString print = PageView::PrintHtml(page);
    EXPECT_FALSE(print.contains(QStringLiteral("WxPrinter"), Qt::CaseInsensitive));
    EXPECT_TRUE(print.contains(QStringLiteral("<p align=left style=\"page-break-before:always;color:red\">Day two")));
    EXPECT_TRUE(print.contains(QStringLiteral("<table width=400 style=\"page-break-before:always\">")));

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    const QString pdf = FilePath(QStringLiteral("days.pdf"));
    printer.setOutputFileName(pdf);
    QString error;
    EXPECT_EQ(PageView::PrintPages(&printer, page, Folder(), &error), 3) << error.toStdString();
    ASSERT_TRUE(QFile::exists(pdf));

    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (!pdftotext.isEmpty()) {
        QProcess p;
        p.start(pdftotext, {pdf, QStringLiteral("-")});
        ASSERT_TRUE(p.waitForFinished(10000));
        const QStringList sheets = QString::fromUtf8(p.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
        ASSERT_GE(sheets.size(), 3);
        EXPECT_TRUE(sheets[0].contains(QStringLiteral("Day one")));
        EXPECT_TRUE(sheets[0].contains(QStringLiteral("Page 1 of 3")));
        EXPECT_TRUE(sheets[1].contains(QStringLiteral("Day two")));
        EXPECT_TRUE(sheets[1].contains(QStringLiteral("Page 2 of 3")));
        EXPECT_TRUE(sheets[2].contains(QStringLiteral("Day three")));
        EXPECT_TRUE(sheets[2].contains(QStringLiteral("Page 3 of 3")));
    }

    // The preview prints through the printer dialog and says so.
    ReportFile = QStringLiteral("days.htm");
    frmWebView preview;
    EXPECT_EQ(preview.windowTitle(), QStringLiteral("Print Preview"));
    preview.cmdPrint->click();   // the dialog is cancelled: nothing is said
    EXPECT_TRUE(Ui().Messages().isEmpty());
    QPrinter& shared = ProgramPrinter();
    shared.setOutputFormat(QPrinter::PdfFormat);
    shared.setOutputFileName(FilePath(QStringLiteral("preview.pdf")));
    Ui().AnswerPrint(true);
    preview.cmdPrint->click();
    shared.setOutputFormat(QPrinter::NativeFormat);
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Report printed."));
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Message"));
    EXPECT_TRUE(QFile::exists(FilePath(QStringLiteral("preview.pdf"))));
}

TEST_F(MainShellTest, PreviewFontSizesLeaveTheSourceAlone)
{
    QFile f(FilePath(QStringLiteral("sizes.htm")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("<html><body><font size=\"3\">Three</font><font size=\"7\">Seven</font><font size=\"1\">One caf\xc3\xa9</font></body></html>");
    f.close();
    ASSERT_TRUE(frmWebView::HtmlEdit(FilePath("sizes.htm"), FilePath("tempfile.htm"), 2));
    QFile t(FilePath(QStringLiteral("tempfile.htm")));
    ASSERT_TRUE(t.open(QIODevice::ReadOnly));
    const QByteArray edited = t.readAll();
    EXPECT_TRUE(edited.contains("size=\"5\">Three"));
    EXPECT_TRUE(edited.contains("size=\"7\">Seven"));
    EXPECT_TRUE(edited.contains("size=\"3\">One caf\xc3\xa9"));   // bytes kept as they were

    ReportFile = QStringLiteral("sizes.htm");
    frmWebView v;
    v.cboFontSize->setCurrentIndex(0);
    EXPECT_TRUE(v.browser->FilePath().endsWith(QStringLiteral("tempfile.htm")));
    QFile src(FilePath(QStringLiteral("sizes.htm")));
    ASSERT_TRUE(src.open(QIODevice::ReadOnly));
    EXPECT_TRUE(src.readAll().contains("size=\"3\">Three"));
}

TEST_F(MainShellTest, WindowsOpenWithinTheScreenAndCanBeMadeSmaller)
{
    WriteIni(QStringLiteral("Window"), QStringLiteral("State"), QStringLiteral("0"), IniFile);
    AddAthlete(QStringLiteral("Sizer"));
    frmMain m;
    QList<QWidget*> windows{&m};
    for (const char* name : {"frmOpen", "frmCreateAthelete1", "ChangePass", "frmPassword", "frmAboutBox", "frmNewUser",
                             "frmWebView"})
        windows << ui::CreateScreen(QString::fromLatin1(name), &m);
    for (QWidget* w : windows) {
        ASSERT_NE(w, nullptr);
        const std::string name = w->objectName().toStdString();
        w->show();
        QCoreApplication::processEvents();
        EXPECT_LE(w->frameGeometry().width(), 1280) << name;
        EXPECT_LE(w->frameGeometry().height(), 720) << name;
        const QSize least = w->minimumSizeHint().expandedTo(w->minimumSize());
        EXPECT_LE(least.width(), w->width()) << name;
        EXPECT_LE(least.height(), w->height()) << name;
        w->hide();
    }
    // The large ones can be made smaller than they open.
    for (QWidget* w : {windows[0], windows[1], windows[2], windows[7]}) {
        const QSize least = w->minimumSizeHint().expandedTo(w->minimumSize());
        EXPECT_TRUE(least.width() < w->width() || least.height() < w->height()) << w->objectName().toStdString();
    }
}

}  // namespace
