#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTableView>

#include "core/widgets/MonthCalendar.h"

// Clicks with and without ctrl and shift make the selection of several days.
TEST(MonthCalendar, SelectionOfSeveralDays)
{
    MonthCalendar cal;
    QSignalSpy changed(&cal, &MonthCalendar::SelectionChanged);
    const QDate d(2024, 3, 5);
    cal.SetValue(d);
    EXPECT_EQ(cal.Value(), d);
    EXPECT_EQ(cal.SelectedDates(), QList<QDate>{d});
    EXPECT_EQ(cal.Year(), 2024);
    EXPECT_EQ(cal.Month(), 3);

    cal.SelectDate(d.addDays(2), Qt::ControlModifier);
    cal.SelectDate(d.addDays(9), Qt::ControlModifier);
    EXPECT_EQ(cal.SelectedDates(), (QList<QDate>{d, d.addDays(2), d.addDays(9)}));
    EXPECT_EQ(cal.Value(), d.addDays(9));
    cal.SelectDate(d.addDays(9), Qt::ControlModifier);   // off again; the current day moves to the latest left
    EXPECT_EQ(cal.SelectedDates(), (QList<QDate>{d, d.addDays(2)}));
    EXPECT_EQ(cal.Value(), d.addDays(2));
    cal.SelectDate(d.addDays(1), Qt::NoModifier);
    cal.SelectDate(d.addDays(4), Qt::ShiftModifier);      // range from the last clicked day
    EXPECT_EQ(cal.SelectedDates().size(), 4);
    EXPECT_EQ(cal.SelectedDates().first(), d.addDays(1));
    EXPECT_EQ(cal.Value(), d.addDays(4));
    cal.SelectDate(d, Qt::NoModifier);
    EXPECT_EQ(cal.SelectedDates(), QList<QDate>{d});
    cal.SelectDate(d, Qt::ControlModifier);               // the last day can't be taken away
    EXPECT_EQ(cal.SelectedDates(), QList<QDate>{d});
    EXPECT_GE(changed.size(), 5);

    // A day in another month brings that month into view.
    cal.SetValue(QDate(2024, 7, 1));
    EXPECT_EQ(cal.Month(), 7);
    cal.SetMonths(3);
    EXPECT_EQ(cal.Months(), 3);
    cal.SetValue(QDate(2024, 9, 30));   // third page: no shift
    EXPECT_EQ(cal.Month(), 7);
    EXPECT_EQ(cal.Page(2)->monthShown(), 9);
}

// Pictures per date are drawn in their cells, and a point of a cell gives back its date.
TEST(MonthCalendar, PicturesAndCells)
{
    MonthCalendar cal;
    cal.resize(320, 260);
    cal.SetValue(QDate(2024, 3, 5));
    QPixmap pm(36, 18);
    pm.fill(Qt::red);
    cal.SetPicture(QDate(2024, 3, 12), pm);
    EXPECT_TRUE(cal.HasPicture(QDate(2024, 3, 12)));
    EXPECT_FALSE(cal.HasPicture(QDate(2024, 3, 13)));
    cal.SetFirstDayOfWeek(Qt::Monday);
    EXPECT_EQ(cal.Page(0)->firstDayOfWeek(), Qt::Monday);

    const QImage shot = cal.grab().toImage();
    ASSERT_FALSE(shot.isNull());
    auto* view = cal.Page(0)->findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    ASSERT_NE(view, nullptr);
    // The points of the 12th's cell give its date back, and the picture's red lies among them.
    QRect cell;
    for (int y = 0; y < view->viewport()->height(); y += 2)
        for (int x = 0; x < view->viewport()->width(); x += 2)
            if (cal.Page(0)->DateAt(QPoint(x, y)) == QDate(2024, 3, 12)) cell |= QRect(x, y, 1, 1);
    ASSERT_FALSE(cell.isEmpty());
    EXPECT_EQ(cal.Page(0)->DateAt(cell.center() + QPoint(0, cell.height())), QDate(2024, 3, 19));
    const QRect inShot(view->viewport()->mapTo(&cal, cell.topLeft()), cell.size());
    bool red = false;
    for (int y = inShot.top(); y <= inShot.bottom() && !red; ++y)
        for (int x = inShot.left(); x <= inShot.right() && !red; ++x)
            red = shot.pixelColor(x, y) == QColor(Qt::red);
    EXPECT_TRUE(red);
    cal.ClearPicture(QDate(2024, 3, 12));
    EXPECT_EQ(cal.PictureCount(), 0);
}
