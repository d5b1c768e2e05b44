// The Heart Rate Monitor screen against real stores: typing and deleting readings, importing
// monitor and device files through the file dialog, the stored row, the zone times sent to the
// log, the chart, the monitor type kept in the application settings, and bad files.
#include "fixtures/fixture.h"

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Chart.h"
#include "exercise/frmHRM.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

namespace {

QString Sample(const QString& name)
{
    return SourceFile(QStringLiteral("tests/exercise/hrm_samples/") + name);
}

class HrmScreenTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        // The monitor type goes to the test's own settings, never the user's.
        QStandardPaths::setTestModeEnabled(true);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Folder());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Folder());
        QSettings().remove(QStringLiteral("ID/HRM"));
        id = AddAthlete(QStringLiteral("Hanna"));
        UserConn.Execute(QStringLiteral("insert into hrm_info (User_ID, Z1Lower, Z1Upper, Z2Lower, Z2Upper, Z3Lower, "
                                        "Z3Upper, Z4Lower, Z4Upper, Z5Lower, Z5Upper) values ('") +
                         id + QStringLiteral("', 115, 140, 141, 160, 161, 170, 171, 180, 181, 190)"));
        session.date = QDate(2026, 11, 20);
        session.name = QStringLiteral("Running");
        session.key = QStringLiteral("K17");
        session.zonesChanged = [this](const QStringList& times, double average) {
            zoneTimes = times;
            averageHR = average;
            ++zoneCalls;
        };
    }

    QString StoredReadings(const QString& key = QStringLiteral("K17"))
    {
        QString text;
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("select * from HRM where User_ID='") + id + QStringLiteral("' and key='") + key +
                QStringLiteral("'"));
        if (!rs.Eof())
            text = Str(rs.Field(QStringLiteral("HRM")));
        rs.Close();
        return text;
    }

    QString StoredInterval()
    {
        QString text;
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("select * from HRM where User_ID='") + id + QStringLiteral("'"));
        if (!rs.Eof())
            text = Str(rs.Field(QStringLiteral("Length_Interval")));
        rs.Close();
        return text;
    }

    void Import(frmHRM& f, const QString& type, const QString& file)
    {
        f.cboHRM->setCurrentIndex(f.cboHRM->findText(type));
        Ui().AnswerFile(file.isEmpty() ? QString() : Sample(file));
        f.Command2->click();
    }

    QString id;
    HrmSession session;
    QStringList zoneTimes;
    double averageHR = -1;
    int zoneCalls = 0;
};

QStringList Items(const QListWidget* list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

}  // namespace

TEST_F(HrmScreenTest, OpensWithItsCaptionTypesAndTheStoredMonitorType)
{
    QSettings().setValue(QStringLiteral("ID/HRM"), QStringLiteral("Polar"));
    frmHRM f(session);
    EXPECT_EQ(f.windowTitle(), "Heart Rate Monitor Info for Running on Friday, November 20, 2026");
    EXPECT_EQ(frmHRM::MonitorTypes(),
              (QStringList{"", "Mio", "Polar", "Acumen", "Timex", "Other", "FIT", "TCX", "GPX"}));
    EXPECT_EQ(f.cboHRM->currentText(), "Polar");
    EXPECT_FALSE(f.cmdAdd->isEnabled());
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    EXPECT_EQ(f.lstHRM->count(), 0);
    // A change is kept at once.
    f.cboHRM->setCurrentIndex(f.cboHRM->findText("FIT"));
    EXPECT_EQ(frmHRM::StoredMonitorType(), "FIT");
    EXPECT_LE(f.width(), 1280);
    EXPECT_LE(f.height(), 720);
    f.reject();
}

TEST_F(HrmScreenTest, TypedReadingsAreStoredFromTheSecondAndSendTheirZones)
{
    frmHRM f(session);
    f.txtInterval->setText("5");
    f.txtBPM->setText("abc");
    EXPECT_FALSE(f.cmdAdd->isEnabled());
    f.txtBPM->setText("150");
    EXPECT_TRUE(f.cmdAdd->isEnabled());
    f.cmdAdd->click();
    EXPECT_EQ(f.txtBPM->text(), "");
    EXPECT_FALSE(f.cmdAdd->isEnabled());
    // One reading is shown, never stored; the zones stay as they were.
    EXPECT_EQ(Items(f.lstHRM), QStringList{"150"});
    EXPECT_EQ(CountUser("HRM"), 0);
    EXPECT_EQ(zoneCalls, 0);

    f.txtBPM->setText("165");
    f.cmdAdd->click();
    EXPECT_EQ(StoredReadings(), "150\t165\t");
    EXPECT_EQ(StoredInterval(), "5");
    EXPECT_EQ(zoneTimes, (QStringList{"00:00:00", "00:00:05", "00:00:05", "00:00:00", "00:00:00"}));
    EXPECT_DOUBLE_EQ(averageHR, 157.5);
    EXPECT_EQ(f.Graph1->PointCount(), 2);
    EXPECT_EQ(f.Graph1->Title(), "Running - Heart Rate for Friday, November 20, 2026");

    // Delete: the selected reading goes and the rest is stored again.
    f.txtBPM->setText("170");
    f.cmdAdd->click();
    f.lstHRM->setCurrentRow(0);
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    f.cmdDelete->click();
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    EXPECT_EQ(StoredReadings(), "165\t170\t");
    EXPECT_EQ(CountUser("HRM"), 1);

    // Clear asks, and leaves the stored row until the next save.
    Ui().Answer(vbNo);
    f.Command1->click();
    EXPECT_EQ(f.lstHRM->count(), 2);
    Ui().Answer(vbYes);
    f.Command1->click();
    EXPECT_EQ(Ui().LastMessage().text, "Clear the HRM List?");
    EXPECT_EQ(Ui().LastMessage().title, "Action");
    EXPECT_EQ(f.lstHRM->count(), 0);
    EXPECT_EQ(f.Graph1->PointCount(), 0);
    EXPECT_EQ(StoredReadings(), "165\t170\t");

    // A sample rate of 0 becomes 1 when the field is left.
    f.txtInterval->setText("0");
    QFocusEvent leave(QEvent::FocusOut);
    QApplication::sendEvent(f.txtInterval, &leave);
    EXPECT_EQ(f.txtInterval->text(), "1");
    f.reject();
}

TEST_F(HrmScreenTest, ImportsMonitorFilesByTheirRules)
{
    frmHRM f(session);
    // No type: nothing asked for.
    f.cboHRM->setCurrentIndex(0);
    f.Command2->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please Select a Heart Rate Monitor before importing data.");
    EXPECT_TRUE(Ui().FileDialogsShown().isEmpty());

    Import(f, "Polar", "polar_basic.hrm");
    ASSERT_EQ(Ui().FileDialogsShown().size(), 1);
    EXPECT_EQ(Ui().FileDialogsShown()[0].defaultExt, "hrm");
    EXPECT_TRUE(Ui().FileDialogsShown()[0].filter.startsWith("Heart Rate File|*.hrm|Text File|*.txt|"));
    EXPECT_TRUE(Ui().FileDialogsShown()[0].filter.contains("*.fit"));
    EXPECT_EQ(Ui().LastMessage().text, "Heart Rate Monitor Information Imported.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
    EXPECT_EQ(f.txtInterval->text(), "5");
    EXPECT_EQ(Items(f.lstHRM), (QStringList{"118", "122", "125", "131", "140", "141", "150", "160"}));
    EXPECT_EQ(StoredReadings(), "118\t122\t125\t131\t140\t141\t150\t160\t");
    EXPECT_EQ(zoneTimes, (QStringList{"00:00:25", "00:00:15", "00:00:00", "00:00:00", "00:00:00"}));
    EXPECT_DOUBLE_EQ(averageHR, 135.9);

    // A cancelled dialog changes nothing.
    Import(f, "Polar", "");
    EXPECT_EQ(f.lstHRM->count(), 8);

    // No data section: nothing found, but the interval was read; the stored row stays.
    Import(f, "Polar", "polar_no_hrdata.hrm");
    EXPECT_EQ(Ui().LastMessage().text, "No Heart Rate Monitor Information Found.");
    EXPECT_EQ(f.txtInterval->text(), "60");
    EXPECT_EQ(f.lstHRM->count(), 0);
    EXPECT_EQ(StoredReadings(), "118\t122\t125\t131\t140\t141\t150\t160\t");

    // A binary file chosen as Polar, and a file that is not there.
    Import(f, "Polar", "polar_binary.hrm");
    EXPECT_EQ(Ui().LastMessage().text, "No Heart Rate Monitor Information Found.");
    Import(f, "Mio", "no_such_file.hrm");
    EXPECT_EQ(Ui().LastMessage().text, "No Heart Rate Monitor Information Found.");
    EXPECT_EQ(StoredReadings(), "118\t122\t125\t131\t140\t141\t150\t160\t");

    // Fixed columns keep the sample rate and take readings as they stand.
    f.txtInterval->setText("2");
    Import(f, "Timex", "fixed_columns.txt");
    EXPECT_EQ(Items(f.lstHRM), (QStringList{"7", "NE XYZ 142", "131", "n/a", "128"}));
    EXPECT_EQ(f.txtInterval->text(), "2");
    EXPECT_EQ(StoredReadings(), "7\tNE XYZ 142\t131\tn/a\t128\t");
    f.reject();
}

TEST_F(HrmScreenTest, ImportsDeviceFilesAtTheirRateAndRefusesBadOnes)
{
    frmHRM f(session);
    Import(f, "FIT", "fit_s_series.fit");
    EXPECT_EQ(Ui().FileDialogsShown().last().defaultExt, "fit");
    EXPECT_EQ(Ui().FileDialogsShown().last().filterIndex, 3);
    EXPECT_EQ(Ui().LastMessage().text, "Heart Rate Monitor Information Imported.");
    EXPECT_EQ(f.txtInterval->text(), "5");
    EXPECT_EQ(f.lstHRM->count(), 360);
    EXPECT_EQ(zoneTimes, (QStringList{"00:10:00", "00:10:00", "00:10:00", "00:00:00", "00:00:00"}));
    EXPECT_DOUBLE_EQ(averageHR, 145);
    EXPECT_EQ(StoredInterval(), "5");
    const QString stored = StoredReadings();
    // The chart: minutes under the points, at most a few hundred points drawn.
    EXPECT_EQ(f.Graph1->PointCount(), 180);
    EXPECT_EQ(f.Graph1->Label(179), "30");

    // Bad files: a clear message; the list, the stored row and the log's zones untouched.
    const int calls = zoneCalls;
    for (const char* bad : {"fit_bad_crc.fit", "fit_truncated.fit", "fit_no_definition.fit", "not_tcx.tcx",
                            "tcx_truncated.tcx", "polar_basic.hrm"}) {
        SCOPED_TRACE(bad);
        Import(f, "FIT", QString::fromLatin1(bad));
        EXPECT_TRUE(Ui().LastMessage().text.endsWith("nothing was imported.")) << Ui().LastMessage().text.toStdString();
        EXPECT_EQ(f.lstHRM->count(), 360);
        EXPECT_EQ(f.txtInterval->text(), "5");
    }
    for (const char* none : {"fit_no_hr.fit", "tcx_no_hr.tcx", "gpx_no_hr.gpx"}) {
        Import(f, "GPX", QString::fromLatin1(none));
        EXPECT_EQ(Ui().LastMessage().text, "No Heart Rate Monitor Information Found.");
    }
    EXPECT_EQ(zoneCalls, calls);
    EXPECT_EQ(StoredReadings(), stored);

    // A TCX file with laps and a pause, and a GPX file.
    Import(f, "TCX", "tcx_laps_pause.tcx");
    EXPECT_EQ(f.txtInterval->text(), "1");
    EXPECT_EQ(f.lstHRM->count(), 360);
    EXPECT_EQ(zoneTimes, (QStringList{"00:02:00", "00:02:00", "00:02:00", "00:00:00", "00:00:00"}));
    Import(f, "GPX", "gpx_tpx_v2.gpx");
    EXPECT_EQ(zoneTimes, (QStringList{"00:00:00", "00:00:00", "00:00:00", "00:01:30", "00:01:30"}));
    EXPECT_DOUBLE_EQ(averageHR, 183);
    Import(f, "FIT", "fit_edge_bike.fit");
    EXPECT_EQ(f.lstHRM->count(), 2400);
    EXPECT_EQ(f.Graph1->PointCount(), 200);
    f.show();
    QTest::qWait(100);
    f.grab().save(QStringLiteral("/tmp/hrm_screen.png"));
    f.reject();
}

TEST_F(HrmScreenTest, ShowsTheStoredRowByDayAndSportAndSavesOnClosing)
{
    {
        frmHRM f(session);
        Import(f, "Polar", "polar_cr_only.hrm");
        f.accept();
    }
    // Another session of the same sport on that day shows the same readings (no key asked);
    // closing stores them under its own key as well.
    HrmSession other = session;
    other.key = QStringLiteral("K18");
    zoneCalls = 0;
    {
        frmHRM f(other);
        EXPECT_EQ(Items(f.lstHRM), (QStringList{"100", "110", "120", "130"}));
        EXPECT_EQ(f.txtInterval->text(), "2");
        EXPECT_EQ(f.Graph1->PointCount(), 4);
        f.accept();
    }
    EXPECT_EQ(zoneCalls, 1);
    EXPECT_EQ(StoredReadings("K18"), "100\t110\t120\t130\t");
    EXPECT_EQ(CountUser("HRM"), 2);
    // Another day shows nothing.
    HrmSession later = session;
    later.date = session.date.addDays(1);
    frmHRM f(later);
    EXPECT_EQ(f.lstHRM->count(), 0);
    f.reject();
}

TEST_F(HrmScreenTest, AFailingAddKeepsTheStoredReadings)
{
    frmHRM f(session);
    f.txtBPM->setText("150");
    f.cmdAdd->click();
    f.txtBPM->setText("151");
    f.cmdAdd->click();
    ASSERT_EQ(StoredReadings(), "150\t151\t");
    RawSql(UserConn, "ALTER TABLE HRM RENAME COLUMN HRM TO HRM_gone");
    f.txtBPM->setText("152");
    f.cmdAdd->click();
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(UserConn, "ALTER TABLE HRM RENAME COLUMN HRM_gone TO HRM");
    EXPECT_EQ(StoredReadings(), "150\t151\t");
    // The screen goes on working.
    f.txtBPM->setText("153");
    f.cmdAdd->click();
    EXPECT_EQ(StoredReadings(), "150\t151\t152\t153\t");
    f.reject();
}
