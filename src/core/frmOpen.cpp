#include "core/frmOpen.h"
#include "core/frmMain.h"
#include "core/widgets/Theme.h"
#include "core/ini.h"
#include "core/opendatabases.h"
#include "core/plannerlink.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/storeerror.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/ui.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cstdlib>
#include <optional>

namespace {
const QString Message = QStringLiteral("Message");
const QString Action = QStringLiteral("Action");
const QString ProductName = QStringLiteral("Orvantis");
const QString DatabaseMessage = QStringLiteral("Unable to open database, please check your installation.");

frmMain* Main() { return qobject_cast<frmMain*>(ui::MainWindow()); }

// The statements that remove an athlete's rows, in their order; true where the id is quoted.
struct RemoveStatement {
    const char* sql;
    bool quoted;
    bool library;
};
const RemoveStatement RemoveStatements[] = {
    {"delete * from User_Info where User_ID=", false, false},
    {"delete * from daily_nutrition where User_ID='", true, false},
    {"delete * from daily_exercise where User_ID='", true, false},
    {"delete * from daily_log where User_ID='", true, false},
    {"delete * from daily_weights where User_ID='", true, false},
    {"delete * from setup_meals where User_ID=", false, false},
    {"delete * from strength_goals where User_ID=", false, false},
    {"delete * from strength_progression where User_ID='", true, false},
    {"delete * from user_muscle_groups where User_ID='", true, false},
    {"delete * from user_nutrients where User_ID='", true, false},
    {"delete * from WeighIn where User_ID='", true, false},
    {"delete * from WeighIn_goals where User_ID='", true, false},
    {"delete * from calendar where User_ID='", true, false},
    {"delete * from web where User_ID='", true, true},
    {"delete * from daily_psych where User_ID='", true, false},
    {"delete * from Daily_Intervals where User_ID='", true, false},
    {"delete * from daily_templates where User_ID='", true, false},
    {"delete * from HRM where User_ID='", true, false},
    {"delete * from HRM_info where User_ID='", true, false},
    {"delete * from nutrient_goals where User_ID='", true, false},
    {"delete * from shopping_cart where User_ID='", true, false},
    {"delete * from wellness where User_ID='", true, false},
    {"delete * from Intensity where User_ID=", false, false},
    {"delete * from daily_water where User_ID=", false, false},
    {"delete * from wellness_readings where User_ID=", false, false},
    {"delete * from daily_totals where User_ID=", false, false},
    {"delete * from user_associations where User_ID=", false, false},
};

class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { Restore(); }
    void Restore()
    {
        if (m_on) QApplication::restoreOverrideCursor();
        m_on = false;
    }
private:
    bool m_on = true;
};
}  // namespace

QString frmOpen::VersionText(const QString& gap) { return QStringLiteral("Version 5") + gap + QStringLiteral("April 8, 2003"); }

frmOpen::frmOpen(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmOpen"));
    setWindowTitle(QStringLiteral("Sign In"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* title = new QLabel(ProductName, this);
    QFont big = title->font();
    big.setPointSize(big.pointSize() + 10);
    big.setBold(true);
    title->setFont(big);
    title->setAlignment(Qt::AlignCenter);

    Combo1 = new QComboBox(this);
    Combo1->setObjectName(QStringLiteral("Combo1"));
    Combo1->setMinimumWidth(240);
    auto* lblSelect = new QLabel(QStringLiteral("&Select Athlete"), this);
    lblSelect->setBuddy(Combo1);

    auto makeButton = [this](const char* name, const QString& caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        return b;
    };
    Command1 = makeButton("Command1", QStringLiteral("Sign &In"));
    Command1->setDefault(true);
    command3 = makeButton("command3", QStringLiteral("&Remove Athlete"));
    command4 = makeButton("command4", QStringLiteral("&Add Athlete"));
    Command5 = makeButton("Command5", QStringLiteral("&Locate Database"));
    Command5->setToolTip(QStringLiteral("(Optional) Select your database location if you are on a lan."));
    Command1->setToolTip(QStringLiteral("Sign in as the selected athlete"));
    command3->setToolTip(QStringLiteral("Remove the selected athlete and all of the athlete's records"));
    command4->setToolTip(QStringLiteral("Add a new athlete"));

    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblVersion->setAlignment(Qt::AlignRight);

    auto* grid = new QGridLayout;
    grid->addWidget(lblSelect, 0, 0);
    grid->addWidget(Combo1, 1, 0);
    grid->addWidget(Command1, 1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(command4);
    buttons->addWidget(command3);
    buttons->addStretch();
    buttons->addWidget(Command5);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 12);
    layout->setSpacing(12);
    layout->addWidget(title);
    layout->addLayout(grid);
    layout->addSpacing(6);
    layout->addLayout(buttons);
    layout->addWidget(lblVersion);

    // Light text on the window's blue.
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, theme::FromWinColor(DefaultAppColor));
    pal.setColor(QPalette::WindowText, Qt::white);
    setPalette(pal);
    for (QPushButton* b : {Command1, command3, command4, Command5}) b->setPalette(QApplication::palette());
    Combo1->setPalette(QApplication::palette());

    QMetaObject::connectSlotsByName(this);
    // A little wider than the least it needs, so that it can also be made narrower.
    resize(sizeHint().width() + 60, sizeHint().height());
    Form_Load();
}

// Opens the stores and lists the athletes; each step that fails says so once and the next
// step still runs, so a failed open leaves the window with an empty list.
void frmOpen::OpenAndLoadUsers()
{
    try {
        if (OpenStores) OpenStores();
        else OpenDatabases();
        if (UserConn.IsReadOnly() || LibraryConn.IsReadOnly())
            MsgBox(QStringLiteral("The database is read-only: your records can be read, but changes cannot be saved."),
                   vbInformation, Message);
    } catch (const std::exception&) {
        MsgBox(DatabaseMessage, vbInformation, Message);
    }
    try {
        LoadUsers();
    } catch (const std::exception&) {
        MsgBox(DatabaseMessage, vbInformation, Message);
    }
}

void frmOpen::Form_Load()
{
    CenterForm(this);
    ExitRequested = false;
    lblVersion->setText(VersionText(QStringLiteral("    ")));
    OpenAndLoadUsers();
}

void frmOpen::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    CenterForm(this);
    // A maximised main window may not have its full size yet when this window first shows:
    // centre on the screen that it fills.
    QWidget* main = ui::MainWindow();
    if (main && main != this && (main->windowState() & Qt::WindowMaximized)) {
        if (QScreen* s = main->screen()) {
            const QRect ref = s->availableGeometry();
            move(qMax(ref.left(), ref.left() + (ref.width() - frameGeometry().width()) / 2),
                 qMax(ref.top(), ref.top() + (ref.height() - frameGeometry().height()) / 2));
        }
    }
    // Centred on a main window that is off the screens, it would be off them too.
    frmMain::KeepOnScreen(this);
}

void frmOpen::LoadUsers()
{
    Combo1->clear();
    on_Combo1_currentIndexChanged(-1);
    UserRS.Close();
    if (AddAthletes(QStringLiteral("select name,User_ID from User_Info order by name")) == 0) Command1->setEnabled(false);
    if (Combo1->count() > 0) Combo1->setCurrentIndex(0);
}

long frmOpen::AddAthletes(const QString& sql)
{
    return ForEachRow(UserRS, sql, [this](Recordset& rs) {
        Combo1->addItem(Str(rs.Field(QStringLiteral("Name"))), Str(rs.Field(QStringLiteral("User_ID"))));
    });
}

void frmOpen::on_Combo1_currentIndexChanged(int index)
{
    const bool selected = index >= 0;
    Command1->setEnabled(selected);
    command3->setEnabled(selected);
}

template <class F> void frmOpen::Step(F&& f)
{
    if (m_ended) return;
    try {
        f();
    } catch (const StoreError& e) {
        if (e.Number() == StoreError::FileNotFound) Fatal(e.Description());
        else m_lastError = e.Description();
    } catch (const std::exception& e) {
        m_lastError = QString::fromUtf8(e.what());
    }
}

void frmOpen::Fatal(const QString& description)
{
    while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
    if (m_guard == Guard::Add)
        MsgBox(QStringLiteral("A Critical Error has occured! Terminating Application.Error:") + description, vbCritical, Message);
    else
        MsgBox(QStringLiteral("An Error has occured:") + description + QStringLiteral(" Terminating Application."), vbCritical, Message);
    m_ended = true;
    ExitRequested = true;
    if (Terminate) Terminate();
    else std::exit(0);
}

void frmOpen::Unload()
{
    m_unloading = true;
    accept();
}

void frmOpen::reject()
{
    // The close box: the user leaves the program from here.
    if (!m_unloading) {
        ExitRequested = true;
        if (frmMain* main = Main()) {
            main->SaveWindowPlacement();
            if (main->MessageLoopRunning()) QCoreApplication::exit(0);
        }
    }
    QDialog::reject();
}

void frmOpen::keyPressEvent(QKeyEvent* event)
{
    // Escape does not close the sign-in window.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmOpen::on_Command1_clicked()
{
    m_guard = Guard::SignIn;
    m_lastError.clear();
    WaitCursor cursor;
    if (Combo1->currentIndex() < 0) {
        MsgBox(QStringLiteral("Please select an athlete."), vbInformation, Message);
        return;
    }
    const QString id = Combo1->currentData().toString();
    Step([] { UserRS.Close(); });
    Step([&] { UserRS.Open(QStringLiteral("select * from User_Info where User_ID=") + id); });
    if (m_ended) return;
    if (UserRS.Eof()) {
        MsgBox(QStringLiteral("Problem opening athlete file:") + m_lastError, vbInformation, Message);
        UserRS.Close();
        return;
    }
    Step([] { CurrentUserID = QString::number(static_cast<qlonglong>(Val(UserRS.Field(QStringLiteral("User_ID"))))); });
    Step([] {
        const QVariant pw = UserRS.Field(QStringLiteral("Password"));
        CurrentUserPassword = IsNull(pw) ? QString() : Str(pw);
    });
    if (m_ended) return;
    if (!CurrentUserPassword.isEmpty()) {
        cursor.Restore();
        ShowModal(QStringLiteral("frmPassword"));
        if (DialogCancelled) {
            UserRS.Close();
            return;
        }
    }
    Unload();
    QCoreApplication::processEvents();
    Step([] { CurrentUserName = Str(UserRS.Field(QStringLiteral("Name"))); });
    Step([] { CurrentUserSex = Str(UserRS.Field(QStringLiteral("sex"))); });
    Step([] { WorkoutIn = Str(UserRS.Field(QStringLiteral("Workout_In"))); });
    Step([] {
        // Read here and not kept: the athlete screen and the strength log read them again.
        (void)UserRS.Field(QStringLiteral("Purpose"));
        (void)UserRS.Field(QStringLiteral("AutoGoals"));
        (void)UserRS.Field(QStringLiteral("Prefill"));
    });
    frmMain* main = Main();
    Step([&] {
        if (main) main->ShowButtonBar(true);
    });
    Step([&] {
        if (main) main->setWindowTitle(CurrentUserName + QStringLiteral(" - ") + ProductName);
    });
    Step([] { UserRS.Close(); });
    Step([&] {
        if (main) main->OpenPlanner();
    });
    Loading = false;
}

void frmOpen::on_command4_clicked()
{
    m_guard = Guard::Add;
    m_lastError.clear();
    if (MsgBox(QStringLiteral("Do you want to add a new athlete?"), vbYesNo | vbQuestion, Action) != vbYes) return;
    NewAthlete = true;
    Step([] { ShowModal(QStringLiteral("frmCreateAthelete1")); });
    if (m_ended) return;
    if (DialogCancelled) {
        NewAthlete = false;
        return;
    }
    Step([] { ShowModal(QStringLiteral("frmUserInfo")); });
    frmMain* main = Main();
    // The day's figures bring the day planner up.
    Step([&] {
        if (main) main->OpenPlanner();
    });
    Step([] {
        if (Planner().LoadNetCalories) Planner().LoadNetCalories();
    });
    NewAthlete = false;
    if (m_ended || DialogCancelled) return;
    Step([&] {
        if (main) main->EnableAthleteMenus();
    });
    Step([&] {
        if (main) main->ShowButtonBar(true);
    });
    Step([&] {
        if (main) main->setWindowTitle(CurrentUserName + QStringLiteral(" - ") + ProductName);
    });
    Unload();
    QCoreApplication::processEvents();
    Step([&] {
        if (main) main->AfterSignIn();
    });
    MsgBox(QStringLiteral("Welcome to the ") + ProductName + QStringLiteral(" ") + CurrentUserName
               + QStringLiteral(".  We hope that this software will help you achieve and maintain your fitness goals."),
           vbInformation, QStringLiteral("Welcome"));
    Loading = false;
}

void frmOpen::on_command3_clicked()
{
    m_guard = Guard::SignIn;
    m_lastError.clear();
    if (Combo1->currentIndex() < 0) return;
    const QString name = Combo1->currentText();
    // The row of the entry chosen: an older store may hold two athletes of one name.
    const QString id = QString::number(qlonglong(Val(Combo1->currentData().toString())));
    const QString select = QStringLiteral("select * from User_Info where User_ID=") + id;

    Step([] { UserRS.Close(); });
    Step([&] { UserRS.Open(select); });
    if (m_ended) return;
    if (UserRS.Eof()) {
        UserRS.Close();
        MsgBox(QStringLiteral("Problem opening athlete file:"), vbInformation, Message);
        return;
    }
    Step([] {
        const QVariant pw = UserRS.Field(QStringLiteral("Password"));
        CurrentUserPassword = IsNull(pw) ? QString() : Str(pw);
    });
    Step([] { UserRS.Close(); });
    if (m_ended) return;
    if (!CurrentUserPassword.isEmpty()) {
        ShowModal(QStringLiteral("frmPassword"));
        if (DialogCancelled) return;
    }
    if (MsgBox(QStringLiteral("Do you want to permanently remove ") + name + QStringLiteral(" from your system?"),
               vbYesNo | vbQuestion, Action) != vbYes)
        return;
    if (MsgBox(QStringLiteral("Last chance: Are you sure that you want to permanently remove ") + name
                   + QStringLiteral(" from your system?"),
               vbYesNo | vbQuestion, Action) != vbYes)
        return;

    WaitCursor cursor;
    // The athlete's rows go together or not at all; a statement that fails is passed over as
    // before, and the rest still go.
    std::optional<StoreTransaction> userRows, libraryRows;
    Step([&] { userRows.emplace(UserConn); });
    Step([&] { libraryRows.emplace(LibraryConn); });
    Step([&] { UserRS.Open(select); });
    Step([] {
        if (UserRS.Eof()) return;
        CurrentUserID = QString::number(static_cast<qlonglong>(Val(UserRS.Field(QStringLiteral("User_ID")))));
        UserRS.Delete();
    });
    Step([] { UserRS.Close(); });

    for (const RemoveStatement& s : RemoveStatements) {
        const QString sql = QString::fromLatin1(s.sql) + CurrentUserID + (s.quoted ? QStringLiteral("'") : QString());
        Step([&] {
            if (s.library) LibraryConn.Execute(sql);
            else UserConn.Execute(sql);
        });
    }
    if (m_ended) return;
    Step([&] {
        if (userRows) userRows->Commit();
    });
    Step([&] {
        if (libraryRows) libraryRows->Commit();
    });

    Step([this] { RefillAfterRemove(); });
    cursor.Restore();
    MsgBox(QStringLiteral("User has been removed and all data has been deleted."), vbInformation, Message);
}

void frmOpen::RefillAfterRemove()
{
    Combo1->clear();
    on_Combo1_currentIndexChanged(-1);
    UserRS.Close();
    if (AddAthletes(QStringLiteral("select * from User_Info")) == 0) {
        Command1->setEnabled(false);
        command3->setEnabled(false);
    }
    // Nothing is selected after a removal: the user picks the next athlete.
    Combo1->setCurrentIndex(-1);
}

void frmOpen::on_Command5_clicked()
{
    m_guard = Guard::SignIn;
    FileDialogOptions o;
    o.title = QStringLiteral("Locate Database");
    o.folder = ProgramFolder();
    o.defaultExt = QStringLiteral("hrm");
    o.filter = QStringLiteral("Orvantis Database| orvantis.mdb");
    o.filterIndex = 3;
    o.mustExist = true;
    const QString file = FileDialog(o);
    if (file.isEmpty()) return;
    if (!FileExists(file)) return;
    const QString folder = QDir::toNativeSeparators(QFileInfo(file).absolutePath()) + QDir::separator();
    WriteIni(QStringLiteral("Program"), QStringLiteral("Path"), folder, IniFile);
    for (Recordset* rs : {&UserRS, &UserRS2, &UserRS3, &UserRS4, &LibraryRS, &LibraryRS2, &LibraryRS3}) rs->Close();
    LibraryConn.Close();
    UserConn.Close();
    MsgBox(QStringLiteral("Database Located."), vbInformation, Message);
    OpenAndLoadUsers();
}
