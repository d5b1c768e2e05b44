#include "core/shared.h"

Connection LibraryConn;
Connection UserConn;
Recordset UserRS, UserRS2, UserRS3, UserRS4;
Recordset LibraryRS, LibraryRS2, LibraryRS3;
QString SqlText;

QString LibraryDbPath;
QString UserDbPath;

QString CurrentUserID;
QString CurrentUserName;
QString CurrentUserSex;
QString CurrentUserPassword;
QString WorkoutIn;

bool DataChanged = false;
bool Loading = false;
bool DialogCancelled = false;
bool NewAthlete = false;
bool ExitRequested = false;
bool PreviewOpen = false;

long AppColor = DefaultAppColor;

QString SelectedKey;
QString SelectedName;
QString SelectedItem;
QString ReportFile;

const QString StorePassword = QStringLiteral("quillbar");

QString ConnectionString(const QString& path)
{
    return QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;data source=") + path
        + QStringLiteral(";Jet OLEDB:Database Password=") + StorePassword + QStringLiteral(";");
}

void ResetSharedState()
{
    for (Recordset* rs : {&UserRS, &UserRS2, &UserRS3, &UserRS4, &LibraryRS, &LibraryRS2, &LibraryRS3})
        rs->Close();
    LibraryConn.Close();
    UserConn.Close();
    SqlText.clear();
    LibraryDbPath.clear();
    UserDbPath.clear();
    CurrentUserID.clear();
    CurrentUserName.clear();
    CurrentUserSex.clear();
    CurrentUserPassword.clear();
    WorkoutIn.clear();
    DataChanged = Loading = DialogCancelled = NewAthlete = ExitRequested = PreviewOpen = false;
    AppColor = DefaultAppColor;
    SelectedKey.clear();
    SelectedName.clear();
    SelectedItem.clear();
    ReportFile.clear();
}
