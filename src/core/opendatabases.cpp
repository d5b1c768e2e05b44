#include "core/opendatabases.h"
#include "core/ini.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/storefiles.h"

#include <QDir>
#include <QFileInfo>

void OpenDatabases()
{
    const QString path = ReadIni(QStringLiteral("Program"), QStringLiteral("Path"), IniFile);
    if (path.isEmpty()) {
        const QString folder = ProgramFolder();
        LibraryDbPath = QDir(folder).filePath(QStringLiteral("orvantis.mdb"));
        UserDbPath = QDir(folder).filePath(QStringLiteral("orvantisuser.mdb"));
        // The program is delivered with its stores: a missing one in its own folder is made
        // from the embedded schema and seed. Elsewhere (Program/Path) nothing is created.
        if (!QFileInfo::exists(LibraryDbPath)) CreateStoreFile(LibraryDbPath, StoreKind::Library);
        if (!QFileInfo::exists(UserDbPath)) CreateStoreFile(UserDbPath, StoreKind::User);
    } else {
        // Path ends in the folder separator; the system writes "\", either is accepted.
        QString folder = path;
        if (!folder.endsWith('/') && !folder.endsWith('\\')) folder += '/';
        folder.replace('\\', '/');
        LibraryDbPath = folder + QStringLiteral("orvantis.mdb");
        UserDbPath = folder + QStringLiteral("orvantisuser.mdb");
    }

    LibraryConn.Close();
    UserConn.Close();
    LibraryConn.Open(ConnectionString(LibraryDbPath));
    UserConn.Open(ConnectionString(UserDbPath));

    for (Recordset* rs : {&UserRS, &UserRS2, &UserRS3, &UserRS4}) {
        rs->Close();
        rs->SetActiveConnection(&UserConn);
    }
    for (Recordset* rs : {&LibraryRS, &LibraryRS2, &LibraryRS3}) {
        rs->Close();
        rs->SetActiveConnection(&LibraryConn);
    }

    // The schema adjustments, run on every start whatever the file's state; a store that is open
    // read-only (an installed program's folder, a read-only share) is read as it is.
    if (!LibraryConn.IsReadOnly())
        LibraryConn.Execute(QStringLiteral("ALTER TABLE Workout_exercises ALTER COLUMN weight Double"));
    if (!UserConn.IsReadOnly()) {
        UserConn.Execute(QStringLiteral("ALTER TABLE strength_goals ALTER COLUMN weight Double"));
        UserConn.Execute(QStringLiteral("ALTER TABLE User_Info ALTER COLUMN height Double"));
        UserConn.Execute(QStringLiteral("ALTER TABLE User_Info ALTER COLUMN currentWeight Double"));
        UserConn.Execute(QStringLiteral("ALTER TABLE Wellness ALTER COLUMN sleep Double"));
    }
}
