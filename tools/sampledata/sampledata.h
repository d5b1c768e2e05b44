#pragma once
// Sample records: fills an athlete with a realistic run of days — the food diary (five meals
// a day from the foods library), water, exercise sessions and strength workouts on the
// calendar with their logs, weekly weigh-ins, the wellness journal with readings and
// medications, and day logs — for the benchmarks, the screenshots and for anyone who wants
// to look around the program before entering their own records. Works on the open stores
// (LibraryConn, UserConn) through the program's own store layer.
#include <QDate>
#include <QString>

namespace sampledata {

struct Options {
    QString userId;          // an athlete of the user store
    QDate from, to;          // both included
    quint32 seed = 20261125; // the same seed gives the same records
};

struct Counts {
    int diaryRows = 0, waterDays = 0, sessions = 0, workouts = 0, weighIns = 0, wellnessDays = 0, readings = 0,
        logs = 0;
};

// Adds an athlete with a profile (User_Info and the rows the athlete wizard writes) and
// returns the new User_ID. The profile starts on `start` (its first weigh-in is dated so).
// A name already taken is not added twice: the existing athlete's User_ID comes back.
QString CreateAthlete(const QString& name, const QDate& start = QDate::currentDate());

// The User_ID of the athlete of that name, "" when there is none.
QString FindAthlete(const QString& name);

// Writes the records of every day from options.from to options.to for options.userId, in
// one transaction per store. Existing records of those days are left alone: a day that
// already has rows of a kind (diary, water, calendar, weigh-in, wellness, readings, log)
// gets none of that kind.
Counts Fill(const Options& options);

}  // namespace sampledata
