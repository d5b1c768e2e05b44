#include "calendar/calendar_fixture.h"

#include "calendar/calendarstore.h"
#include "core/widgets/Theme.h"
#include "calendar/icons.h"
#include "calendar/screens.h"
#include "core/ui.h"
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"

namespace {
const QDate kDay(2024, 3, 5);

struct FixedDate {
    explicit FixedDate(const QDate& d) { SetCalendarDateProvider([d] { return d; }); }
    ~FixedDate() { RegisterCalendarScreens(); }   // back to the planner's own day
};

bool SameImage(const QPixmap& a, const QPixmap& b) { return a.toImage() == b.toImage(); }
}  // namespace

// Saving is delete and insert by key and type: twice the same leaves one row with the
// second's values; another type under the same key is another row.
TEST_F(CalendarTest, SaveCalendarEntryReplacesTheRowOfItsKeyAndType)
{
    SelectedKey = QStringLiteral("4");
    SaveCalendarEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay, QStringLiteral("9:00 AM"),
                      QStringLiteral("9:30 AM"), 3);
    SaveCalendarEntry(QStringLiteral("Long Run"), QStringLiteral("Exercise"), kDay, QStringLiteral("10:00 AM"),
                      QStringLiteral("11:30 AM"), 5);
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 1);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select Name from calendar where key=4"))), QStringLiteral("Long Run"));
    EXPECT_EQ(Val(UserValue(QStringLiteral("select Image from calendar where key=4"))), 5);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select StartTime from calendar"))), QStringLiteral("10:00 AM"));
    EXPECT_EQ(FieldDate(UserValue(QStringLiteral("select date from calendar"))), kDay);

    SaveCalendarEntry(QStringLiteral("Coach's talk"), QStringLiteral("Appointment"), kDay, QStringLiteral("1:00 PM"),
                      QStringLiteral("2:00 PM"), 0);
    EXPECT_EQ(CountUser(QStringLiteral("calendar where key=4")), 2);
    // Another day and another athlete are other rows.
    SaveCalendarEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay.addDays(1), QStringLiteral("9:00 AM"),
                      QStringLiteral("9:30 AM"), 3);
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 3);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select Name from calendar where WorkoutType='Appointment'"))),
              QStringLiteral("Coach's talk"));

    // Without a key the statement fails and says so; nothing is written.
    SelectedKey.clear();
    EXPECT_FALSE(Guard([] {
        SaveCalendarEntry(QStringLiteral("x"), QStringLiteral("Exercise"), kDay, QStringLiteral("9:00 AM"),
                          QStringLiteral("9:30 AM"), 1);
    }));
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Error"));
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 3);
}

// A log scheduling its item with no planner open: each new entry takes the day's next key
// (above keys other entries of the day hold), gets its calendar row, and a span that ends
// before it starts is refused with nothing written.
TEST_F(CalendarTest, ScheduleEntryTakesTheDaysNextKeyOrRefusesTheTimes)
{
    AddEntry(kDay, 7, QStringLiteral("Swim"), QStringLiteral("Exercise"), QStringLiteral("7:00 AM"),
             QStringLiteral("8:00 AM"));
    ASSERT_TRUE(ScheduleEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay, QTime(9, 0), QTime(9, 30), 1));
    EXPECT_EQ(SelectedKey, QStringLiteral("8"));
    ASSERT_TRUE(ScheduleEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay, QTime(10, 0), QTime(10, 30), 1));
    EXPECT_EQ(SelectedKey, QStringLiteral("9"));
    ASSERT_TRUE(ScheduleEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay.addDays(1), QTime(9, 0),
                              QTime(9, 30), 1));
    EXPECT_EQ(SelectedKey, QStringLiteral("1"));
    EXPECT_EQ(CountUser(QStringLiteral("calendar where name='Run' and workouttype='Exercise'")), 3);
    EXPECT_EQ(CountUser(QStringLiteral("calendar where key=9 and starttime like '%10:00:00 AM'")), 1);

    EXPECT_FALSE(ScheduleEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay, QTime(11, 0), QTime(10, 0), 1));
    EXPECT_FALSE(ScheduleEntry(QStringLiteral("Run"), QStringLiteral("Exercise"), kDay, QTime(11, 0), QTime(11, 0), 1));
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 4);
}

// Which picture each date gets: none for an entry without icon, an appointment's icon, a
// strip of icons in row order, and a day with more icons than its cell shows keeps them all.
TEST_F(CalendarTest, IconsOfTheMonthView)
{
    AddEntry(kDay, 1, QStringLiteral("Stretch"), QStringLiteral("Exercise"), "9:00 AM", "9:30 AM", 0);
    AddEntry(kDay.addDays(1), 1, QStringLiteral("Dentist"), QStringLiteral("Appointment"), "9:00 AM", "9:30 AM", 0);
    AddEntry(kDay.addDays(2), 1, QStringLiteral("Run"), QStringLiteral("Exercise"), "9:00 AM", "9:30 AM", 2);
    AddEntry(kDay.addDays(2), 2, QStringLiteral("Legs"), QStringLiteral("Strength"), "10:00 AM", "11:00 AM", 0);
    AddEntry(kDay.addDays(2), 3, QStringLiteral("Race"), QStringLiteral("Appointment"), "1:00 PM", "2:00 PM", 1);
    AddEntry(kDay.addDays(2), 4, QStringLiteral("Swim"), QStringLiteral("Exercise"), "3:00 PM", "4:00 PM", 7);
    for (int k = 1; k <= 12; ++k)
        AddEntry(kDay.addDays(3), k, QStringLiteral("Drill %1").arg(k), QStringLiteral("Exercise"), "6:00 AM", "6:30 AM", k);
    // Another athlete's day stays bare.
    AddRow(QStringLiteral("calendar"), {{"User_ID", QStringLiteral("999")}, {"Date", kDay.addDays(4)}, {"Key", 1},
                                        {"Name", "x"}, {"WorkoutType", "Exercise"}, {"Image", 3}});

    MonthCalendar cal;
    cal.SetPicture(kDay.addDays(20), ExerciseIcon(1));   // left from another athlete: cleared
    LoadCalendarIcons(&cal, kDay, 0);
    EXPECT_FALSE(cal.HasPicture(kDay));
    EXPECT_FALSE(cal.HasPicture(kDay.addDays(4)));
    EXPECT_FALSE(cal.HasPicture(kDay.addDays(20)));
    ASSERT_TRUE(cal.HasPicture(kDay.addDays(1)));
    EXPECT_TRUE(SameImage(cal.Picture(kDay.addDays(1)), AppointmentIcon(0)));

    const QPixmap strip = cal.Picture(kDay.addDays(2));
    ASSERT_EQ(strip.size(), QSize(3 * CalendarIconSize, CalendarIconSize));
    EXPECT_TRUE(SameImage(strip.copy(0, 0, 18, 18), ExerciseIcon(2)));
    EXPECT_TRUE(SameImage(strip.copy(18, 0, 18, 18), AppointmentIcon(1)));
    EXPECT_TRUE(SameImage(strip.copy(36, 0, 18, 18), ExerciseIcon(7)));

    EXPECT_EQ(cal.Picture(kDay.addDays(3)).width(), 12 * CalendarIconSize);
    EXPECT_EQ(CountUser(QStringLiteral("calendar where key>0 and Name like 'Drill%'")), 12);
    cal.resize(300, 240);
    EXPECT_FALSE(cal.grab().isNull());   // the strip is cut at the cell's edge, not the rows

    // Mode 1 redraws only the date given.
    UserConn.Execute(QStringLiteral("delete * from calendar where key=1 and User_ID='") + id + "'");
    LoadCalendarIcons(&cal, kDay.addDays(2), 1);
    EXPECT_EQ(cal.Picture(kDay.addDays(2)).width(), 2 * CalendarIconSize);
    EXPECT_TRUE(cal.HasPicture(kDay.addDays(1)));   // not redrawn, so still there
    LoadCalendarIcons(&cal, kDay.addDays(1), 1);
    EXPECT_FALSE(cal.HasPicture(kDay.addDays(1)));
}

// The day's entries in the day view and the calories they burn, whatever form the times were
// written in.
TEST_F(CalendarTest, DayViewEntriesAndDayCalories)
{
    FixedDate fixed(kDay);
    AddEntry(kDay, 3, QStringLiteral("Run"), QStringLiteral("Exercise"), "6:00 AM", "7:15 AM", 2, 412.5);
    AddEntry(kDay, 5, QStringLiteral("Legs"), QStringLiteral("Strength"), "2024-03-05 17:30:00", "2024-03-05 18:00:00", 0, 200);
    AddEntry(kDay, 6, QStringLiteral("Late"), QStringLiteral("Appointment"), "3/5/2024 11:00:00 PM", "12:00 AM", 0);
    AddEntry(kDay.addDays(1), 1, QStringLiteral("Tomorrow"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 1, 999);

    EXPECT_EQ(DayCalories(), 612);   // 612.5 rounds to even

    DayView view;
    view.SetDate(kDay);
    view.AddEntry(QDateTime(kDay, QTime(1, 0)), QDateTime(kDay, QTime(2, 0)), "stale", "", Qt::red);
    LoadDayView(&view);
    const auto entries = view.Model().DayEntries();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0]->text, QStringLiteral("Run"));
    EXPECT_EQ(entries[0]->start.time(), QTime(6, 0));
    EXPECT_EQ(entries[0]->end.time(), QTime(7, 15));
    EXPECT_EQ(entries[0]->hiddenText, QStringLiteral("Exercise\t3"));
    EXPECT_EQ(entries[1]->start.time(), QTime(17, 30));
    EXPECT_EQ(entries[1]->hiddenText, QStringLiteral("Strength\t5"));
    EXPECT_EQ(entries[2]->end, QDateTime(kDay.addDays(1), QTime(0, 0)));
    EXPECT_EQ(entries[0]->colour, theme::Color());
    // A new entry takes a key the day doesn't have.
    EXPECT_GT(view.AddEntry(QDateTime(kDay, QTime(9, 0)), QDateTime(kDay, QTime(9, 30)), "new", "", Qt::red), 6);

    EXPECT_EQ(EntryTime(QStringLiteral("12:15 AM")), QTime(0, 15));
    EXPECT_EQ(EntryTime(QStringLiteral("12:15 PM")), QTime(12, 15));
    EXPECT_EQ(EntryTime(QVariant(QDateTime(kDay, QTime(8, 5)))), QTime(8, 5));
    EXPECT_FALSE(EntryTime(QStringLiteral("soon")).isValid());
    EXPECT_FALSE(EntryTime(QVariant()).isValid());
}
