// The Wellness view and its page against real stores.
#include "fixtures/fixture.h"

#include "body/frmWellness.h"
#include "core/pagewriter.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Chart.h"
#include "reports/pages/wellnesspage.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTimeEdit>
#include <QTreeWidget>

#include <memory>

namespace {

class WellnessScreen : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Robin");
        SetCalendarDateProvider([] { return QDate(2026, 11, 20); });
    }
    void TearDown() override
    {
        SetCalendarDateProvider(nullptr);
        StoreTest::TearDown();
    }
    void AddDay(const QString& date, bool feel, bool accomplish, double sleep, const QString& reason = QString())
    {
        UserConn.Execute(QString("insert into wellness (User_ID, [Date], FeelWell, txtFeelWell, Accomplish, sleep, "
                                 "wakeup) values ('%1', #%2#, %3, '%4', %5, %6, '6:30')")
                             .arg(id, date, feel ? "true" : "false", reason, accomplish ? "true" : "false")
                             .arg(sleep));
    }
    void AddLine(const QString& date, const QString& name, const QString& time, double value, const QString& dose,
                 int type)
    {
        UserConn.Execute(QString("insert into wellness_readings (User_ID, [Date], Reading, [time], [Value], dose, "
                                 "[Type]) values (%1, #%2#, '%3', '%4', %5, '%6', %7)")
                             .arg(id, date, name, time)
                             .arg(value)
                             .arg(dose)
                             .arg(type));
    }
    static QStringList Lines(const QTreeWidget* list)
    {
        QStringList lines;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* item = list->topLevelItem(i);
            lines << item->text(0) + "|" + item->text(1) + "|" + item->text(2);
        }
        return lines;
    }
    static void EnterReading(frmWellness& f, const QString& name, const QTime& time, const QString& value)
    {
        f.cboReading->setEditText(name);
        f.txtTime->setTime(time);
        f.txtReading->setText(value);
        f.cmdAddReading->click();
    }
    static void EnterMed(frmWellness& f, const QString& name, const QTime& time, const QString& dose)
    {
        f.txtMed->setText(name);
        f.txtMedTime->setTime(time);
        f.txtDose->setText(dose);
        f.cmdAddMed->click();
    }
    static void Select(QTreeWidget* list, int row)
    {
        list->setCurrentItem(list->topLevelItem(row));
        emit list->itemClicked(list->topLevelItem(row), 0);
    }
    QString id;
};

}  // namespace

TEST_F(WellnessScreen, ReadingsAndMedicationsWriteThroughWithTheirOwnDeleteRules)
{
    {
        frmWellness f;
        EXPECT_EQ(f.cboDate->date(), QDate(2026, 11, 20));
        EXPECT_FALSE(f.cmdDelete->isEnabled());
        // No wellness row on this day: the reading is stored all the same.
        EnterReading(f, "Glucose - mmol/l", QTime(7, 5), "5.4");
        EXPECT_EQ(CountUser("wellness"), 0);
        EXPECT_EQ(CountUser("wellness_readings where User_ID=" + id + " and [Date]=#2026-11-20# and "
                            "Reading='Glucose - mmol/l' and [time]='7:05 AM' and [Value]=5.4 and [Type]=0"),
                  1);
        EXPECT_EQ(Lines(f.lstReadings), QStringList{"Glucose - mmol/l|7:05 AM|5.4"});
        EXPECT_EQ(f.txtReading->text(), "");   // the entry is cleared
        // A second reading at the same time with no line selected is a second row.
        EnterReading(f, "Blood Pressure - systolic", QTime(7, 5), "120");
        EnterMed(f, "Aspirin", QTime(7, 5), "100 mg");
        EnterMed(f, "Ibuprofen", QTime(21, 0), "200 mg");
        EXPECT_EQ(CountUser("wellness_readings where [time]='7:05 AM'"), 3);
        // The same medication at the same time again replaces its row and its line.
        EnterMed(f, "Ibuprofen", QTime(21, 0), "400 mg");
        EXPECT_EQ(CountUser("wellness_readings where Reading='Ibuprofen'"), 1);
        EXPECT_EQ(Lines(f.lstMeds), (QStringList{"Aspirin|7:05 AM|100 mg", "Ibuprofen|9:00 PM|400 mg"}));
    }
    {
        // Opened again, the day shows what was written, in name order; nothing waits for Save.
        frmWellness f;
        EXPECT_EQ(Lines(f.lstReadings),
                  (QStringList{"Blood Pressure - systolic|7:05 AM|120", "Glucose - mmol/l|7:05 AM|5.4"}));
        EXPECT_EQ(Lines(f.lstMeds), (QStringList{"Aspirin|7:05 AM|100 mg", "Ibuprofen|9:00 PM|400 mg"}));
        EXPECT_FALSE(f.cmdSave->isEnabled());

        // Editing a selected reading removes every row of that line's time, the 7:05
        // medication and the other 7:05 reading included.
        Select(f.lstReadings, 1);
        EXPECT_EQ(f.cboReading->currentText(), "Glucose - mmol/l");
        EXPECT_EQ(f.txtTime->time(), QTime(7, 5));
        f.txtReading->setText("6.1");
        f.txtTime->setTime(QTime(7, 30));
        f.cmdAddReading->click();
        EXPECT_EQ(CountUser("wellness_readings where [time]='7:05 AM'"), 0);
        EXPECT_EQ(CountUser("wellness_readings where Reading='Glucose - mmol/l' and [time]='7:30 AM' and [Value]=6.1"), 1);
        EXPECT_EQ(Lines(f.lstMeds), QStringList{"Ibuprofen|9:00 PM|400 mg"});
        EXPECT_EQ(Lines(f.lstReadings), QStringList{"Glucose - mmol/l|7:30 AM|6.1"});

        // Removing a line removes its row only.
        Select(f.lstMeds, 0);
        f.cmdDelMed->click();
        EXPECT_EQ(CountUser("wellness_readings where [Type]=1"), 0);
        EXPECT_EQ(f.lstMeds->topLevelItemCount(), 0);
        // Removing with nothing selected does nothing.
        f.cmdDelReading->click();
        EXPECT_EQ(CountUser("wellness_readings where [Type]=0"), 1);
    }
}

TEST_F(WellnessScreen, JournalSaveAnswersAndDeleteKeepingTheReadings)
{
    AddDay("2026-11-20", true, false, 6.5, "Rested");
    AddLine("2026-11-20", "Uric Acid", "8:00 AM", 5.5, "", 0);
    frmWellness f;
    EXPECT_TRUE(f.opt1[0]->isChecked());
    EXPECT_TRUE(f.opt2[1]->isChecked());
    EXPECT_EQ(f.txtFeelWell->text(), "Rested");
    EXPECT_EQ(f.txtSleep->text(), "6.5");
    EXPECT_EQ(f.TxtWakeup->text(), "6:30");
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    EXPECT_FALSE(f.cmdSave->isEnabled());

    // A journal field enables Save; loading another day disables it again.
    f.txtSleep->setText("7");
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cboDate->setDate(QDate(2026, 11, 21));
    EXPECT_FALSE(f.cmdSave->isEnabled());
    EXPECT_EQ(f.txtSleep->text(), "");
    EXPECT_FALSE(f.opt1[0]->isChecked() || f.opt1[1]->isChecked());
    EXPECT_FALSE(f.cmdDelete->isEnabled());

    // A new day with neither answer chosen gets the table's No; texts are trimmed.
    f.txtAccomplish->setText("  rain  ");
    f.txtSleep->setText("8.25");
    f.TxtWakeup->setText(" 7:15 ");
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().text, "Record Saved.");
    EXPECT_EQ(CountUser("wellness where User_ID='" + id + "' and [Date]=#2026-11-21# and FeelWell=false and "
                        "Accomplish=false and txtAccomplish='rain' and sleep=8.25 and wakeup='7:15'"),
              1);
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    EXPECT_FALSE(f.cmdSave->isEnabled());

    // Back on the first day: changing one answer leaves the other as stored.
    f.cboDate->setDate(QDate(2026, 11, 20));
    f.opt2[0]->setChecked(true);
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cmdSave->click();
    EXPECT_EQ(CountUser("wellness where [Date]=#2026-11-20# and FeelWell=true and Accomplish=true"), 1);
    // Clear empties the view and writes nothing.
    f.cmdNew->click();
    EXPECT_EQ(f.txtFeelWell->text(), "");
    EXPECT_EQ(f.lstReadings->topLevelItemCount(), 0);
    EXPECT_EQ(CountUser("wellness"), 2);

    // Delete asks; No keeps the row, Yes removes it and the day's readings stay and show.
    Ui().Answer(vbNo);
    f.cmdDelete->click();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this Wellness record?");
    EXPECT_EQ(CountUser("wellness where [Date]=#2026-11-20#"), 1);
    Ui().Answer(vbYes);
    f.cmdDelete->click();
    EXPECT_EQ(CountUser("wellness where [Date]=#2026-11-20#"), 0);
    EXPECT_EQ(CountUser("wellness_readings where [Date]=#2026-11-20#"), 1);
    EXPECT_EQ(Lines(f.lstReadings), QStringList{"Uric Acid|8:00 AM|5.5"});
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    EXPECT_EQ(f.txtSleep->text(), "");
}

TEST_F(WellnessScreen, RestingHeartRateReachesTheProfileOnlyWhereItExists)
{
    {
        // No heart-rate profile: the reading is stored and nothing else is made.
        frmWellness f;
        EnterReading(f, "Resting Heart Rate - bpm", QTime(6, 0), "52");
        EXPECT_EQ(CountUser("wellness_readings where [Value]=52"), 1);
        EXPECT_EQ(CountUser("hrm_info"), 0);
    }
    UserConn.Execute("insert into hrm_info (User_ID, RESTING_HR, MAXIMUM_HR, Z1Lower) values ('" + id + "', 60, 190, 115)");
    UserConn.Execute("insert into hrm_info (User_ID, RESTING_HR) values ('999', 70)");
    frmWellness f;
    EnterReading(f, "Resting Heart Rate - bpm", QTime(6, 30), "48");
    EXPECT_EQ(CountUser("hrm_info where User_ID='" + id + "' and RESTING_HR=48 and MAXIMUM_HR=190 and Z1Lower=115"), 1);
    EXPECT_EQ(CountUser("hrm_info where User_ID='999' and RESTING_HR=70"), 1);
    // Another reading leaves the profile alone.
    EnterReading(f, "Weight - kg", QTime(6, 30), "71");
    EXPECT_EQ(CountUser("hrm_info where RESTING_HR=48"), 1);
}

TEST_F(WellnessScreen, GetLastWellnessRecordStartsTheChosenDayFromTheLastOne)
{
    {
        // No record at all: nothing happens.
        frmWellness f;
        f.cmdLastWellness->click();
        EXPECT_TRUE(Ui().Messages().isEmpty());
        EXPECT_EQ(CountUser("wellness"), 0);
    }
    AddDay("2026-11-10", false, true, 5, "old");
    AddDay("2026-11-15", true, false, 7.5, "Fine & dandy");
    AddLine("2026-11-15", "Glucose - mmol/l", "8:00 AM", 5.2, "", 0);
    AddLine("2026-11-15", "Vitamin D", "9:00 AM", 0, "1000 IU", 1);
    AddLine("2026-11-10", "PSA", "8:00 AM", 1.1, "", 0);

    frmWellness f;
    f.cboDate->setDate(QDate(2026, 11, 25));
    f.cmdLastWellness->click();
    EXPECT_EQ(f.cboDate->date(), QDate(2026, 11, 25));
    EXPECT_EQ(Ui().LastMessage().text, "Record Saved.");
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    EXPECT_EQ(f.txtFeelWell->text(), "Fine & dandy");
    EXPECT_EQ(CountUser("wellness where [Date]=#2026-11-25# and FeelWell=true and Accomplish=false and sleep=7.5 and "
                        "txtFeelWell='Fine & dandy'"),
              1);
    EXPECT_EQ(CountUser("wellness_readings where User_ID=" + id + " and [Date]=#2026-11-25# and Reading='Glucose - mmol/l' "
                        "and [time]='8:00 AM' and [Value]=5.2 and [Type]=0"),
              1);
    EXPECT_EQ(CountUser("wellness_readings where [Date]=#2026-11-25# and Reading='Vitamin D' and dose='1000 IU' and "
                        "[time]='9:00 AM' and [Type]=1"),
              1);
    EXPECT_EQ(CountUser("wellness_readings where [Date]=#2026-11-25#"), 2);
    EXPECT_EQ(CountUser("wellness_readings where [Date]=#2026-11-15#"), 2);   // the source stays

    // The chosen day is now the last record: asking again copies nothing onto itself.
    f.cmdLastWellness->click();
    EXPECT_EQ(CountUser("wellness_readings where [Date]=#2026-11-25#"), 2);
    EXPECT_EQ(CountUser("wellness where [Date]=#2026-11-25#"), 1);
}

TEST_F(WellnessScreen, PageHoldsTheJournalAndTheListedLinesEscaped)
{
    AddDay("2026-11-15", true, false, 7.5, "Fine & dandy");
    UserConn.Execute("update wellness set txtAccomplish='Rain', notes='Deload week'");
    const QList<reportpages::WellnessLine> readings = {{"Glucose - mmol/l", "8:00 AM", "5.2"}, {"PSA", "9:00 AM", ""}};
    const QList<reportpages::WellnessLine> meds = {{"Salve <B> & rub", "9:00 PM", "2 x 5mg"}};
    const QString file = reportpages::WellnessPage(QDate(2026, 11, 15), readings, meds);
    EXPECT_EQ(file, "Wellness.htm");
    EXPECT_EQ(ReportFile, "Wellness.htm");
    QFile f(page::Path(file));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(f.readAll()).split(QRegularExpression("\r?\n"));
    const QStringList expected = {
        "<html><head>",
        "<body bgcolor=\"#ffffff\">",
        "<font color=\"#000000\" size=\"3\" face=\"Arial\">",
        "<div align=center> <img src=\"wellness.jpg\">",
        "<table border=0 width=400 cellpadding=0>",
        "<tr><td align=left width=150><b>Wellness for: </td><td align=left width=250>Robin</b></td></tr>",
        "<tr><td align=left><b>Date: </td><td align=left>Sunday, November 15, 2026</b></td></tr>",
        "<tr><td align=left><b>Description: </td><td align=left>Deload week</b></td></tr></table>",
        "<br>",
        "<p align=left>",
        "Did you feel well today? &nbsp; Yes<br>",
        "Reason: &nbsp;Fine &amp; dandy<br>",
        "Did you accomplish your goals? &nbsp; No<br>",
        "if no, why not?&nbsp;Rain<br>",
        "Hours of Sleep? &nbsp;7.5<br>",
        "When did you wake up? &nbsp;6:30</p>",
        "<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >",
        "<tr><td align=left colspan=3><b>Readings</b></td></tr>",
        "<tr bgcolor=\"#CCCCCC\"><td><font size=\"1\">Reading</font></td><td><font size=\"1\">Time</font></td>"
        "<td><center><font size=\"1\">Value</font></center></td></tr>",
        "<tr><td align=left width=\"120\"><font size=\"1\">Glucose - mmol/l</font></td><td align=left width=\"120\">"
        "<font size=\"1\">8:00 AM</font></td><td align=right width=\"40\"><font size=\"1\">5.2</font></td></tr>",
        "<tr><td align=left width=\"120\"><font size=\"1\">PSA</font></td><td align=left width=\"120\">"
        "<font size=\"1\">9:00 AM</font></td><td align=right width=\"40\"><font size=\"1\">&nbsp;</font></td></tr>",
        "</table>",
        "<br>",
        "<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >",
        "</tr><td align=left colspan=3><b>Medicatons</b></td></tr>",
        "<tr bgcolor=\"#CCCCCC\"><td><font size=\"1\">Medication</font></td><td><font size=\"1\">Time</font></td>"
        "<td><font size=\"1\">Dose</font></td></tr>",
        "<tr><td align=left width=\"120\"><font size=\"1\">Salve &lt;B&gt; &amp; rub</font></td><td align=left "
        "width=\"120\"><font size=\"1\">9:00 PM</font></td><td align=left width=\"120\"><font size=\"1\">2 x 5mg"
        "</font></td></tr>",
        "</table>",
        "</body></html>",
        ""};
    EXPECT_EQ(lines, expected);

    // A day without a journal row: the questions stand without answers.
    reportpages::WellnessPage(QDate(2026, 11, 16), {}, {});
    QFile g(page::Path("Wellness.htm"));
    ASSERT_TRUE(g.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(g.readAll());
    EXPECT_TRUE(text.contains("Did you feel well today? &nbsp;<br>"));
    EXPECT_TRUE(text.contains("Medicatons"));
    EXPECT_FALSE(text.contains(" Yes<br>"));

    // The view prints its date with the lines it lists, in the preview.
    AddLine("2026-11-15", "Uric Acid", "7:00 AM", 6.2, "", 0);
    SetCalendarDateProvider([] { return QDate(2026, 11, 15); });
    frmWellness w;
    w.cmdPrint->click();
    EXPECT_EQ(Ui().DialogsShown().value(0), "frmWebView");
    QFile h(page::Path("Wellness.htm"));
    ASSERT_TRUE(h.open(QIODevice::ReadOnly));
    const QString printed = QString::fromUtf8(h.readAll());
    EXPECT_TRUE(printed.contains("Uric Acid</font></td><td align=left width=\"120\"><font size=\"1\">7:00 AM"));
    EXPECT_TRUE(printed.contains("Reason: &nbsp;Fine &amp; dandy<br>"));
}

TEST_F(WellnessScreen, GraphShowsSleepOrOneReadingWithinTheRange)
{
    AddDay("2026-10-31", true, true, 9);     // before the range
    AddDay("2026-11-02", true, true, 7.5);
    AddDay("2026-11-09", true, true, 6);
    AddLine("2026-11-03", "Weight - kg", "7:00 AM", 71.5, "", 0);
    AddLine("2026-11-08", "Weight - kg", "7:00 AM", 70.8, "", 0);
    AddLine("2026-11-08", "Weight - lbs", "7:00 AM", 156, "", 0);
    AddLine("2026-11-30", "Weight - kg", "7:00 AM", 69, "", 0);   // after the range

    frmWellness f;
    ASSERT_EQ(f.cboGraph->count(), 18);
    EXPECT_EQ(f.cboGraph->itemText(0), "Hours of Sleep");
    EXPECT_EQ(f.cboGraph->itemText(17), "Testosterone");
    f.txtStartDate->setDate(QDate(2026, 11, 1));
    f.txtEndDate->setDate(QDate(2026, 11, 29));
    f.cboGraph->setCurrentIndex(0);
    f.cmdGraph->click();
    ASSERT_EQ(f.Chart1->PointCount(), 2);
    EXPECT_EQ(f.Chart1->Time(0).date(), QDate(2026, 11, 2));
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 7.5);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 1), 6);
    EXPECT_EQ(f.Chart1->Label(1), "11/9/2026");

    f.cboGraph->setCurrentText("Weight - kg");   // draws at once
    ASSERT_EQ(f.Chart1->PointCount(), 2);
    EXPECT_EQ(f.Chart1->Time(1).date(), QDate(2026, 11, 8));
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 71.5);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 1), 70.8);
    EXPECT_TRUE(f.Chart1->Title().startsWith("Weight - kg - "));
}
