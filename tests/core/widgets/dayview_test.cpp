#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QScrollBar>
#include <QTest>

#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"

namespace {
const QDate kDay(2024, 3, 5);
QDateTime At(int h, int m, const QDate& d = kDay) { return QDateTime(d, QTime(h, m)); }
int Minutes(int h, int m) { return h * 60 + m; }
}  // namespace

// Placing entries: identifiers grow, never take a key the day already holds (in a hidden text
// or below the floor the store gives), and entries outside the day or ending before they
// start are refused.
TEST(DayViewModel, PlacingEntriesAndTheirIdentifiers)
{
    DayViewModel m;
    m.SetDate(kDay);
    m.SetDayStart(QTime(0, 1));
    m.SetDayEnd(QTime(0, 0));   // midnight closes the day
    EXPECT_EQ(m.DayStartMinute(), 0);
    EXPECT_EQ(m.DayEndMinute(), 24 * 60);

    EXPECT_EQ(m.Add(At(9, 0), At(9, 0), "zero", "", Qt::blue), 0);
    EXPECT_EQ(m.Add(At(10, 0), At(9, 0), "backwards", "", Qt::blue), 0);
    EXPECT_EQ(m.Add(At(23, 0), At(1, 0, kDay.addDays(1)), "past midnight", "", Qt::blue), 0);
    EXPECT_EQ(m.Add(QDateTime(), At(9, 0), "invalid", "", Qt::blue), 0);
    EXPECT_EQ(m.Add(At(23, 30), QDateTime(kDay.addDays(1), QTime(0, 0)), "to midnight", "", Qt::blue), 1);

    // Entries loaded from the store carry their keys in the hidden text: a new one goes above.
    EXPECT_EQ(m.Add(At(6, 0), At(7, 0), "Run", "Exercise\t7", Qt::blue), 2);
    EXPECT_EQ(m.Add(At(8, 0), At(9, 0), "Appt", "12\tAppointment", Qt::blue), 8);
    EXPECT_EQ(m.Add(At(10, 0), At(11, 0), "new", "", Qt::blue), 13);
    // Keys of another day don't count, the store's floor does.
    m.SetKeyFloor([](const QDate& d) { return d == kDay.addDays(1) ? 40 : 0; });
    EXPECT_EQ(m.Add(At(10, 0), At(11, 0, kDay.addDays(1)), "tomorrow", "", Qt::blue), 0);   // spans two days
    EXPECT_EQ(m.Add(At(10, 0, kDay.addDays(1)), At(11, 0, kDay.addDays(1)), "tomorrow", "", Qt::blue), 41);

    EXPECT_EQ(m.DayEntries().size(), 4);   // the one of tomorrow is held, not shown
    EXPECT_EQ(m.Entries().size(), 5);
    EXPECT_EQ(m.DayEntries().first()->text, QStringLiteral("Run"));
    EXPECT_TRUE(m.Remove(13));
    EXPECT_FALSE(m.Remove(13));
    m.Clear();
    EXPECT_TRUE(m.Entries().isEmpty());
    EXPECT_EQ(m.Add(At(6, 0), At(7, 0), "again", "", Qt::blue), 1);

    // A day that starts later refuses what lies before.
    DayViewModel late;
    late.SetDate(kDay);
    late.SetDayStart(QTime(6, 0));
    late.SetDayEnd(QTime(20, 0));
    EXPECT_EQ(late.Add(At(5, 0), At(7, 0), "early", "", Qt::blue), 0);
    EXPECT_EQ(late.Add(At(19, 0), At(21, 0), "late", "", Qt::blue), 0);
    EXPECT_GT(late.Add(At(6, 0), At(20, 0), "whole day", "", Qt::blue), 0);
}

// Moving keeps the length and stays in the day on the scale; resizing keeps the start, is at
// least one row and stops at the day's end; a drag over free time gives whole rows.
TEST(DayViewModel, MovingResizingAndDraggingOverFreeTime)
{
    DayViewModel m;
    m.SetDate(kDay);
    m.SetScale(30);
    const int id = m.Add(At(9, 0), At(10, 15), "Run", "Exercise\t1", Qt::blue);
    ASSERT_GT(id, 0);

    EXPECT_EQ(m.MovedSpan(id, Minutes(13, 40)), qMakePair(Minutes(13, 30), Minutes(14, 45)));
    EXPECT_EQ(m.MovedSpan(id, -50), qMakePair(0, 75));
    EXPECT_EQ(m.MovedSpan(id, Minutes(23, 50)), qMakePair(24 * 60 - 75, 24 * 60));   // clamped into the day
    m.SetScale(15);
    EXPECT_EQ(m.MovedSpan(id, Minutes(13, 40)), qMakePair(Minutes(13, 45), Minutes(15, 0)));
    // By whole rows: an entry at a quarter past stays at a quarter past on the hourly scale.
    const int quarter = m.Add(At(6, 15), At(7, 0), "Quarter", "", Qt::blue);
    m.SetScale(60);
    EXPECT_EQ(m.MovedSpan(quarter, Minutes(8, 5)), qMakePair(Minutes(8, 15), Minutes(9, 0)));
    m.Remove(quarter);
    m.SetScale(15);
    EXPECT_EQ(m.MovedSpan(999, 0), qMakePair(-1, -1));

    EXPECT_EQ(m.ResizedSpan(id, Minutes(11, 8)), qMakePair(Minutes(9, 0), Minutes(11, 15)));
    EXPECT_EQ(m.ResizedSpan(id, Minutes(8, 0)), qMakePair(Minutes(9, 0), Minutes(9, 15)));   // at least one row
    EXPECT_EQ(m.ResizedSpan(id, 30 * 60), qMakePair(Minutes(9, 0), 24 * 60));

    EXPECT_TRUE(m.ApplySpan(id, Minutes(13, 30), Minutes(14, 45)));
    EXPECT_EQ(m.Find(id)->start, At(13, 30));
    EXPECT_EQ(m.Find(id)->end, At(14, 45));
    EXPECT_FALSE(m.ApplySpan(id, Minutes(13, 30), Minutes(14, 45)));   // nothing changed
    EXPECT_FALSE(m.ApplySpan(id, Minutes(14, 0), Minutes(14, 0)));

    m.SetScale(30);
    EXPECT_EQ(m.FreeSpan(Minutes(9, 10), Minutes(9, 10)), qMakePair(Minutes(9, 0), Minutes(9, 30)));
    EXPECT_EQ(m.FreeSpan(Minutes(11, 40), Minutes(9, 10)), qMakePair(Minutes(9, 0), Minutes(12, 0)));   // upwards
    EXPECT_EQ(m.FreeSpan(Minutes(23, 50), Minutes(23, 59)), qMakePair(Minutes(23, 30), 24 * 60));

    // Overlapping entries stand side by side; one apart takes the whole width.
    m.Clear();
    m.Add(At(9, 0), At(10, 0), "a", "", Qt::blue);
    m.Add(At(9, 30), At(11, 0), "b", "", Qt::blue);
    m.Add(At(10, 0), At(10, 30), "c", "", Qt::blue);
    m.Add(At(12, 0), At(13, 0), "d", "", Qt::blue);
    const auto placed = m.Layout();
    ASSERT_EQ(placed.size(), 4);
    EXPECT_EQ(placed[0].column, 0);
    EXPECT_EQ(placed[1].column, 1);
    EXPECT_EQ(placed[2].column, 0);   // "a" has ended when "c" starts
    EXPECT_EQ(placed[0].columns, 2);
    EXPECT_EQ(placed[3].column, 0);
    EXPECT_EQ(placed[3].columns, 1);
}

// The mouse on the widget: dragging an entry's body moves it, its lower edge resizes it, a
// drag over free time selects a span; each tells its signal.
TEST(DayViewWidget, MouseMovesResizesAndSelectsFreeTime)
{
    DayView view;
    view.resize(400, 600);
    view.SetDate(kDay);
    view.SetScale(30);
    view.show();
    const int id = view.AddEntry(At(2, 0), At(3, 0), "Swim", "Exercise\t1", Qt::darkGreen);
    ASSERT_GT(id, 0);
    QWidget* canvas = view.Canvas();
    QSignalSpy changed(&view, &DayView::EntryChanged);
    QSignalSpy selected(&view, &DayView::EntrySelected);
    QSignalSpy free(&view, &DayView::FreeTimeSelected);
    const int x = 200;
    auto y = [&](int minute) { return view.YOfMinute(minute); };

    // Move down by two rows.
    QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(x, y(130)));
    QTest::mouseMove(canvas, QPoint(x, y(190)));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, QPoint(x, y(190)));
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(view.SelectedId(), id);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(view.Entry(id)->start, At(3, 0));
    EXPECT_EQ(view.Entry(id)->end, At(4, 0));

    // Pull the lower edge down an hour.
    QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(x, y(240) - 2));
    QTest::mouseMove(canvas, QPoint(x, y(300)));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, QPoint(x, y(300)));
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(view.Entry(id)->start, At(3, 0));
    EXPECT_EQ(view.Entry(id)->end, At(5, 0));

    // A click on an entry without a drag changes nothing.
    QTest::mouseClick(canvas, Qt::LeftButton, {}, QPoint(x, y(200)));
    EXPECT_EQ(changed.size(), 2);

    // Drag over free time.
    QTest::mousePress(canvas, Qt::LeftButton, {}, QPoint(x, y(600) + 3));
    QTest::mouseMove(canvas, QPoint(x, y(660) + 3));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, QPoint(x, y(660) + 3));
    ASSERT_EQ(free.size(), 1);
    EXPECT_EQ(view.FreeStart(), At(10, 0));
    EXPECT_EQ(view.FreeEnd(), At(11, 30));
    EXPECT_EQ(view.SelectedId(), 0);

    QSignalSpy dbl(&view, &DayView::EntryDoubleClicked);
    QTest::mouseDClick(canvas, Qt::LeftButton, {}, QPoint(x, y(200)));
    ASSERT_EQ(dbl.size(), 1);
    EXPECT_EQ(dbl.first().first().toInt(), id);

    // The keyboard alone: down and up walk the entries, Enter opens the selected one.
    const int second = view.AddEntry(At(7, 0), At(8, 0), "Bike", "Exercise\t2", Qt::darkGreen);
    view.SelectEntry(0);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.SelectedId(), id);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.SelectedId(), second);
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(view.SelectedId(), id);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(dbl.size(), 2);
}

// The scroll time asked for while the view is still unshown and unsized (as a screen does while
// it loads) is reached once the view is laid out; a day that fits whole stays at its top.
TEST(DayViewWidget, ScrollTimeSetBeforeTheViewIsShown)
{
    DayView view;
    view.SetDate(kDay);
    view.SetScale(15);
    view.SetScrollTime(QTime(6, 0));
    view.resize(400, 500);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    EXPECT_EQ(view.MinuteAtY(view.verticalScrollBar()->value()), Minutes(6, 0));

    // A later change of scale keeps the time at the top.
    view.SetScale(5);
    QCoreApplication::processEvents();
    EXPECT_EQ(view.MinuteAtY(view.verticalScrollBar()->value()), Minutes(6, 0));

    DayView whole;
    whole.SetDate(kDay);
    whole.SetScale(60);
    whole.SetScrollTime(QTime(6, 0));
    whole.resize(400, 2000);
    whole.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(whole.verticalScrollBar()->value(), 0);
}

// A scale or a first day of the week out of range (a damaged settings file) changes nothing.
TEST(DayViewWidget, ValuesOutOfRangeAreIgnored)
{
    DayView view;
    view.SetDate(kDay);
    view.SetScale(15);
    view.SetScrollTime(QTime(6, 0));
    for (int bad : {99, 0, -30, 7}) view.SetScale(bad);
    EXPECT_EQ(view.Model().Scale(), 15);
    view.resize(400, 500);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    // The scroll time set before still holds.
    EXPECT_EQ(view.MinuteAtY(view.verticalScrollBar()->value()), Minutes(6, 0));

    MonthCalendar cal;
    cal.SetFirstDayOfWeek(Qt::Monday);
    for (int bad : {12, 0, -1, 8}) cal.SetFirstDayOfWeek(Qt::DayOfWeek(bad));
    EXPECT_EQ(cal.FirstDayOfWeek(), Qt::Monday);
    for (int i = 0; i < cal.Months(); ++i) EXPECT_EQ(cal.Page(i)->firstDayOfWeek(), Qt::Monday);
    cal.SetFirstDayOfWeek(Qt::Sunday);
    EXPECT_EQ(cal.Page(0)->firstDayOfWeek(), Qt::Sunday);
}
