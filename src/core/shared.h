#pragma once
// The process-wide state, under the system's names. Nothing else is global.
#include <QString>
#include "core/store/connection.h"
#include "core/store/recordset.h"

extern Connection LibraryConn;
extern Connection UserConn;
extern Recordset UserRS, UserRS2, UserRS3, UserRS4;
extern Recordset LibraryRS, LibraryRS2, LibraryRS3;
extern QString SqlText;

extern QString LibraryDbPath;
extern QString UserDbPath;

extern QString CurrentUserID;       // decimal text; "" before sign-in
extern QString CurrentUserName;
extern QString CurrentUserSex;      // "M" or "F"
extern QString CurrentUserPassword; // "" where the column is Null
extern QString WorkoutIn;           // "lbs" or "kg"

extern bool DataChanged;
extern bool Loading;
extern bool DialogCancelled;
extern bool NewAthlete;
extern bool ExitRequested;
extern bool PreviewOpen;             // the print preview of a report page is showing

extern long AppColor;               // theme colour as a Windows colour value (0x00BBGGRR)
constexpr long DefaultAppColor = 10841658;

// The calendar selection of the day planner.
extern QString SelectedKey;
extern QString SelectedName;
extern QString SelectedItem;        // also the text of a downloaded exchange page
extern QString ReportFile;

// The password of both store files and the connection string built on a path.
extern const QString StorePassword;
QString ConnectionString(const QString& path);

// Closes the shared recordsets and connections and resets every value above. Tests call it
// between cases.
void ResetSharedState();
