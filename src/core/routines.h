#pragma once
// The small routines every screen calls.
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

class QObject;

// The program's folder (the executable's); tests point it at a temporary folder.
QString ProgramFolder();
void SetProgramFolder(const QString& folder);
// A file name without a folder made absolute in the program's folder.
QString ProgramFile(const QString& name);

// A key of the system's regional settings ("sDecimal", "sCurrency", "sThousand", "sShortDate", ...).
QString GetProfile(const QString& key);

QString GetTabField(const QString& text, int n);
QString GetField(const QString& text, int n, const QString& delimiter);
// Returns what stands before the first delimiter and removes it and the delimiter from text.
QString NextToken(QString& text, const QString& delimiter);
bool FileExists(const QString& path);

// "HH:MM" or "HH:MM:SS" to hours; the seconds are divided by 360, as stored durations expect.
double TimeToHours(const QString& text);
// Factor of a unit from `units`; 1.0 when unknown. Uses LibraryRS2.
double GetConversion(const QString& unitName);
// Through `units`; 0 from an unknown unit. Uses LibraryRS.
double ConvertSpeed(double value, const QString& fromUnit, const QString& toUnit);
// Field `index` of the comment tag `name` in SelectedItem ("<!--name~value~-->" gives value at 2).
QString GetCommentTag(const QString& name, int index);

// A date as the system pastes it into SQL: "YYYY-MM-DD".
class QDate;
QString SqlDate(const QDate& d);

// Where a window's frame belongs on the screens (each screen's available area): a frame that
// lies on a screen (a reachable part of it) is returned as it is; one that lies on none, or
// only a sliver of it, is moved onto the nearest screen and made no larger than that screen.
QRect OnScreenRect(const QRect& frame, const QList<QRect>& screens);

// Whether another athlete (one whose User_ID is not `exceptId`) already has this name,
// compared without regard to case for any letter. Uses UserRS.
bool AthleteNameTaken(const QString& name, const QString& exceptId = QString());
