#pragma once
// The pictures of the calendar: an 18 by 18 icon per exercise number and per appointment
// type, strips of them for a date's cell, and the icons of the day's items. All drawn here.
#include <QColor>
#include <QList>
#include <QPixmap>
#include <QString>

constexpr int CalendarIconSize = 18;

// The exercise icon numbered `image` (above 0).
QPixmap ExerciseIcon(int image);
// An appointment's icon by its type: 0 Appointment, 1 Competition, 2 Testing.
QPixmap AppointmentIcon(int type = 0);
// Icons side by side, the n-th at x = (n - 1) * 18.
QPixmap IconStrip(const QList<QPixmap>& icons);
// Icons of the day's items: "Weigh In", "Wellness", "Meal".
QPixmap ItemIcon(const QString& kind);
