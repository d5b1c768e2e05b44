#pragma once
// The wellness page: a day's journal (the two questions with their reasons, sleep and
// wake-up) read from the store, and the day's readings and medications as the wellness view
// lists them.
#include <QDate>
#include <QList>
#include <QString>

namespace reportpages {

// One line of the readings or medications list: the name, the time of day, and the value or
// the dose, as shown.
struct WellnessLine {
    QString name;
    QString time;
    QString amount;
};

// Writes "Wellness.htm" for `date` in the program's folder and returns its file name. The
// journal row comes from the store (a day without one gets the questions without answers);
// the tables hold the lines as given. Uses UserRS.
QString WellnessPage(const QDate& date, const QList<WellnessLine>& readings, const QList<WellnessLine>& medications);

}  // namespace reportpages
