#pragma once
// The pictures of the calendar: an 18 by 18 icon per exercise number and per appointment
// type, strips of them for a date's cell, and the icons of the day's items. All drawn here.
#include <QColor>
#include <QList>
#include <QPixmap>
#include <QString>

constexpr int CalendarIconSize = 18;

// The exercise icons of the shared image list, numbered 1 to ExerciseIconCount(): a pictogram
// of a sport each (1 running, 2 cycling, 3 swimming, 4 rowing, 5 walking, 6 hiking,
// 7 cross-country skiing, 8 intervals, 9 football, 10 basketball, 11 racket sports,
// 12 volleyball, 13 skating, 14 cardio machines, 15 team sports, 16 golf, 17 strength
// training). A number above the list, from older data, draws the number in a disc.
int ExerciseIconCount();
// The icon strength workouts put on their days.
constexpr int StrengthIcon = 17;
QPixmap ExerciseIcon(int image);
// An appointment's icon by its type: 0 Appointment, 1 Competition, 2 Testing.
QPixmap AppointmentIcon(int type = 0);
// Icons side by side, the n-th at x = (n - 1) * 18.
QPixmap IconStrip(const QList<QPixmap>& icons);
// Icons of the day's items: "Weigh In", "Wellness", "Meal".
QPixmap ItemIcon(const QString& kind);
