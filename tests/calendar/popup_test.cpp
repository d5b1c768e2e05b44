#include "calendar/calendar_fixture.h"

#include <QAction>
#include <QLineEdit>

#include "calendar/calendarpopup.h"
#include "calendar/calendarstore.h"
#include "calendar/frmSched2.h"
#include "calendar/screens.h"
#include "core/ini.h"
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"

namespace {
const QDate kA(2024, 3, 5), kB(2024, 3, 6), kC(2024, 3, 9);
}

class PopupTest : public CalendarTest {
protected:
    void SetUp() override
    {
        CalendarTest::SetUp();
        RegisterCalendarScreens();
        // Day A: an exercise session with its log, a strength workout with two sets, an
        // appointment. Day B: one session of its own.
        AddEntry(kA, 1, QStringLiteral("Run"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 2, 300);
        AddRow(QStringLiteral("Daily_Exercise"), {{"User_ID", id}, {"Date", kA}, {"Name", "Run"}, {"Key", "1"},
                                                  {"StartTime", QDateTime(kA, QTime(6, 0))}, {"Distance", 5.5}});
        AddEntry(kA, 2, QStringLiteral("Jo's Legs"), QStringLiteral("Strength"), "5:00 PM", "6:00 PM", 9, 200);
        for (int set = 1; set <= 2; ++set)
            AddRow(QStringLiteral("Daily_Weights"), {{"User_ID", id}, {"Date", kA}, {"Name", "Jo's Legs"}, {"Key", "2"},
                                                     {"exercise", "Squat"}, {"Sets", QString::number(set)}, {"Reps", 8}});
        AddEntry(kA, 3, QStringLiteral("Physio"), QStringLiteral("Appointment"), "12:00 PM", "12:30 PM", 0);
        AddRow(QStringLiteral("HRM"), {{"User_ID", id}, {"HRM_Date", kA}, {"sport", "Run"}, {"Key", "1"}});
        AddEntry(kB, 1, QStringLiteral("Swim"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 3, 100);
        AddRow(QStringLiteral("Daily_Exercise"), {{"User_ID", id}, {"Date", kB}, {"Name", "Swim"}, {"Key", "1"}});
        planner = std::make_unique<frmSched2>();
        planner->CalView->SetValue(kA);
    }
    void TearDown() override
    {
        planner.reset();
        CalendarTest::TearDown();
    }
    long Count(const QString& table, const QDate& d, const QString& dateColumn = QStringLiteral("date"))
    {
        return CountUser(table + QStringLiteral(" where ") + dateColumn + QStringLiteral("=#") + d.toString(Qt::ISODate)
                         + QStringLiteral("#"));
    }
    std::unique_ptr<frmSched2> planner;
};

// Copy is offered only on a day with something on it, paste only after a copy; a paste
// copies the calendar rows with their logs under new keys, also onto the same day.
TEST_F(PopupTest, CopyAndPasteOfADay)
{
    CalendarPopup& m = *planner->mnupopup;
    m.UpdateEntries(kC);
    EXPECT_FALSE(m.itmCopy->isEnabled());
    EXPECT_FALSE(m.itmDelete->isEnabled());
    EXPECT_FALSE(m.itmPaste->isEnabled());
    m.UpdateEntries(kA);
    EXPECT_TRUE(m.itmCopy->isEnabled());
    EXPECT_TRUE(m.itmDelete->isEnabled());
    m.itmCopy_Click();
    EXPECT_TRUE(m.CopyFlag());
    EXPECT_EQ(m.CopyDate(), kA);
    m.UpdateEntries(kC);
    EXPECT_TRUE(m.itmPaste->isEnabled());

    // Onto an empty day.
    planner->CalView->SetValue(kC);
    m.UpdateEntries(kC);
    m.itmPaste_Click();
    EXPECT_EQ(Count("calendar", kC), 3);
    EXPECT_EQ(Count("Daily_Weights", kC), 2);
    EXPECT_EQ(Count("Daily_Exercise", kC), 1);
    EXPECT_EQ(Val(UserValue("select Distance from Daily_Exercise where date=#2024-03-09#")), 5.5);
    EXPECT_EQ(Val(UserValue("select sum(Cals) from calendar where date=#2024-03-09#")), 500);
    EXPECT_EQ(EntryTime(UserValue("select StartTime from calendar where date=#2024-03-09# and Name='Run'")), QTime(6, 0));
    const QString runKey = Str(UserValue("select Key from calendar where date=#2024-03-09# and Name='Run'"));
    EXPECT_EQ(CountUser("Daily_Exercise where date=#2024-03-09# and Name='Run' and key='" + runKey + "'"), 1);
    EXPECT_TRUE(planner->CalView->HasPicture(kC));
    EXPECT_EQ(planner->DayView->Model().DayEntries().size(), 3);
    EXPECT_EQ(planner->txtCalsOut->text(), "500");

    // Onto the same day: the entries double, with keys the day didn't have.
    planner->CalView->SetValue(kA);
    m.UpdateEntries(kA);
    m.itmPaste_Click();
    EXPECT_EQ(Count("calendar", kA), 6);
    EXPECT_EQ(CountUser("calendar where date=#2024-03-05# and key in (1,2,3)"), 3);
    EXPECT_EQ(CountUser("(select distinct key from calendar where date=#2024-03-05#)"), 6);
    EXPECT_EQ(Count("Daily_Weights", kA), 4);
    EXPECT_EQ(Count("Daily_Exercise", kA), 2);
    EXPECT_EQ(CountUser("Daily_Weights where date=#2024-03-05# and Name='Jo''s Legs' and key<>'2'"), 2);
    EXPECT_EQ(planner->DayView->Model().DayEntries().size(), 6);
    EXPECT_EQ(Count("calendar", kB), 1);   // other days untouched
}

// Delete asks first, then takes every activity of the day with its logs, and leaves other
// days alone.
TEST_F(PopupTest, DeleteOfADayLeavesOtherDaysAlone)
{
    CalendarPopup& m = *planner->mnupopup;
    m.UpdateEntries(kA);
    Ui().Answer(vbNo);
    m.itmDelete_Click();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Delete all activities scheduled on this day?"));
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Action"));
    EXPECT_EQ(Count("calendar", kA), 3);

    m.itmDelete_Click();   // Yes
    EXPECT_EQ(Count("calendar", kA), 0);
    EXPECT_EQ(Count("Daily_Weights", kA), 0);
    EXPECT_EQ(Count("Daily_Exercise", kA), 0);
    EXPECT_EQ(Count("HRM", kA, "HRM_date"), 0);
    EXPECT_TRUE(planner->DayView->Model().DayEntries().isEmpty());
    EXPECT_FALSE(planner->CalView->HasPicture(kA));
    EXPECT_EQ(Count("calendar", kB), 1);
    EXPECT_EQ(Count("Daily_Exercise", kB), 1);
    EXPECT_TRUE(planner->CalView->HasPicture(kB));
    EXPECT_EQ(planner->txtCalsOut->text(), "0");

    // First day of the week: written and applied.
    m.itmDay_Click(1);
    EXPECT_EQ(ReadIni("Program", "FirstDay", IniFile), "1");
    EXPECT_EQ(planner->CalView->FirstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(m.itmDay[4]->text(), QStringLiteral("Thrusday"));
    planner.reset();
    planner = std::make_unique<frmSched2>();
    EXPECT_EQ(planner->CalView->FirstDayOfWeek(), Qt::Monday);
}
