#include "core/main_flow.h"
#include "core/frmMain.h"
#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/ui.h"

#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QStyleFactory>

int Main(int argc, char** argv, const std::function<void()>& registerScreens)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvantis"));
    QApplication::setOrganizationName(QStringLiteral("Orvantis"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    SetProgramFolder(QCoreApplication::applicationDirPath());

    // One instance only: a second start ends at once, silently. A folder where the lock
    // cannot be made at all (read-only) does not keep the program from starting.
    QLockFile lock(QDir(ProgramFolder()).filePath(QStringLiteral("orvantis.lock")));
    lock.setStaleLockTime(0);
    if (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError) return 0;

    regional::SetLocale(QLocale::system());
    ui::InstallQtHooks();
    if (registerScreens) registerScreens();
    QApplication::setQuitOnLastWindowClosed(false);

    Loading = true;
    frmMain main;
    main.show();
    QObject::connect(&app, &QApplication::lastWindowClosed, &app, &QApplication::quit);

    if (ui::HasScreen(QStringLiteral("frmOpen"))) {
        ui::ShowModal(QStringLiteral("frmOpen"));
    } else {
        // Without a sign-in window the stores are still opened, so that the program can
        // show what it has.
        try {
            OpenDatabases();
        } catch (const std::exception&) {
            MsgBox(QStringLiteral("Unable to open database, please check your installation."), vbInformation,
                   QStringLiteral("Message"));
        }
    }
    if (ExitRequested) return 0;
    main.AfterSignIn();
    QApplication::setQuitOnLastWindowClosed(true);
    return app.exec();
}
