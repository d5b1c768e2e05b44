#pragma once
// The athlete's colour (AppColor) and how every screen wears it: the calendar's header, the
// selected tab, entries in the day view. One place converts the stored value to a colour and
// picks a readable text colour on it.
#include <QColor>
#include <QString>

class QTabBar;
class QTabWidget;
class MonthCalendar;

namespace theme {

// A stored colour value (0x00BBGGRR, or 0x800000nn for a system colour) as a colour.
QColor FromWinColor(long value);
// The value read from the settings file: a number that is no colour (negative, too large,
// not a number, 0) gives the default colour's value.
long ColorFromSetting(const QString& text);
// The colour of AppColor; the default colour while AppColor holds no colour.
QColor Color();
// Black or white, whichever reads better on `background`.
QColor TextOn(const QColor& background);
// A pale tint of a colour, for large areas behind dark text.
QColor Tint(const QColor& c);

// The selected tab in the athlete's colour with readable text on it.
void ApplyToTabs(QTabBar* tabs);
void ApplyToTabs(QTabWidget* tabs);
// The calendar's header and day names in the athlete's colour.
void ApplyToCalendar(MonthCalendar* calendar);

}  // namespace theme
