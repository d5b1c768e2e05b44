// The preview on paper and the print buttons of the logs and libraries: a two-day page
// printed to a PDF file sheet by sheet with its footer, and each screen's "&Print" writing its
// page and showing it in the preview.
#include "fixtures/fixture.h"
#include "core/pagewriter.h"
#include <QPrinter>

#include "body/frmWeighIn.h"
#include "calendar/planner.h"
#include "core/frmWebView.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/ui.h"
#include "core/widgets/PageView.h"
#include "exercise/frmExerciseLog.h"
#include "reports/pages/dailynutrition.h"
#include "reports/preview.h"
#include "strength/frmStrengthLog.h"
#include "strength/frmStrengthWorkouts.h"

#include <QDateEdit>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

namespace {

const QDate kDay(2026, 3, 10);

class PreviewTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Lee & Co");
        InstallReportLinks();
        SetCalendarDateProvider([] { return kDay; });
        // The preview is answered by remembering what it shows.
        Ui().OnDialog("frmWebView", [this](QDialog* d) {
            auto* view = qobject_cast<frmWebView*>(d);
            shown << ReportFile;
            html = view ? view->browser->PageHtml() : QString();
            previewFlag = PreviewOpen;
            if (view) {
                view->resize(900, 700);
                view->grab().save("/tmp/orvantis_preview_" + QString::number(shown.size()) + ".png");
            }
            return 0;
        });
    }
    void TearDown() override
    {
        ReportExerciseLink() = nullptr;
        ReportStrengthLink() = nullptr;
        ReportWorkoutLink() = nullptr;
        ReportWeighInLink() = nullptr;
        SetPlannerAdding(false);
        SetCalendarDateProvider(nullptr);
        StoreTest::TearDown();
    }
    void OpenEntry(const QString& name, const QString& key)
    {
        SelectedKey = key;
        SelectedName = QString(name).replace("'", "''");
        SetPlannerAdding(false);
    }

    QString id;
    QStringList shown;
    QString html;
    bool previewFlag = false;
};

}  // namespace

// Two days of food print on two sheets or more, each with "Page N of M", the second day on a
// sheet of its own; the printer's messages are those of the preview.
TEST_F(PreviewTest, TwoDayNutritionPagePrintsToPdf)
{
    UserConn.Execute("insert into setup_meals (User_ID, Meal_ID, meal) values (" + id + ", 1, 'Breakfast')");
    for (const char* date : {"2026-03-10", "2026-03-11"})
        UserConn.Execute("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, amount, Measure, calories) values ('" +
                         id + "', #" + date + "#, 1, 'Oats', 50, 'g', 190)");
    reportpages::ReportDailyNutrition(kDay, kDay.addDays(1));
    frmWebView preview;
    ASSERT_NE(preview.cmdPdf, nullptr);
    const QString pdf = FilePath("days.pdf");

    preview.cmdPdf->click();   // the file dialog is cancelled: nothing printed, nothing said
    EXPECT_FALSE(QFile::exists(pdf));
    EXPECT_TRUE(Ui().Messages().isEmpty());

    Ui().AnswerFile(pdf);
    preview.cmdPdf->click();
    EXPECT_EQ(Ui().LastMessage().text, "Report printed.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    ASSERT_TRUE(QFile::exists(pdf));
    QFile::remove("/tmp/orvantis_days.pdf");
    QFile::copy(pdf, "/tmp/orvantis_days.pdf");

    // A file that cannot be written is an error of printing.
    Ui().AnswerFile(FilePath("no such folder/days.pdf"));
    preview.cmdPdf->click();
    EXPECT_TRUE(Ui().LastMessage().text.startsWith("Error trying to print.Error:"));

    const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
    if (pdftotext.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    QProcess p;
    p.start(pdftotext, {"-layout", pdf, "-"});
    ASSERT_TRUE(p.waitForFinished(10000));
    const QStringList sheets = QString::fromUtf8(p.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
    ASSERT_GE(sheets.size(), 2);
    const QString n = QString::number(sheets.size());
    EXPECT_TRUE(sheets[0].contains("Breakfast for Tuesday, March 10, 2026"));
    EXPECT_FALSE(sheets[0].contains("Wednesday, March 11"));
    EXPECT_TRUE(sheets[0].contains("Page 1 of " + n));
    EXPECT_TRUE(sheets[1].contains("Breakfast for Wednesday, March 11, 2026"));
    EXPECT_TRUE(sheets[1].contains("Page 2 of " + n));
    EXPECT_FALSE(sheets.join("").contains("WxPrinter"));
}

// A table wider than the sheet is printed smaller, so its last column is on the paper.
TEST_F(PreviewTest, WideTablePrintsWhole)
{
    const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
    if (pdftotext.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    {
        page::PageWriter out("wide.htm");
        out.Line("<html><head><body><table border=1 cellspacing=0><tr>");
        for (int c = 0; c < 12; ++c)
            out.Line(QString("<td width=\"120\">cell%1</td>").arg(c));
        out.Line("<td width=\"120\">lastcolumn</td></tr></table>");
        out.Close();
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    const QString pdf = FilePath("wide.pdf");
    printer.setOutputFileName(pdf);
    QFile f(FilePath("wide.htm"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    ASSERT_EQ(PageView::PrintPages(&printer, QString::fromUtf8(f.readAll()), FilePath("")), 1);
    QProcess p;
    p.start(pdftotext, {pdf, "-"});
    ASSERT_TRUE(p.waitForFinished(10000));
    const QString text = QString::fromUtf8(p.readAllStandardOutput());
    EXPECT_TRUE(text.contains("cell0"));
    EXPECT_TRUE(text.contains("lastcolumn"));
}

// Each of the four buttons is enabled once the links are in and shows its own page.
TEST_F(PreviewTest, FourPrintButtonsShowTheirPages)
{
    // The exercise log, on a saved session whose name holds a slash.
    UserConn.Execute("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType) values ('" + id +
                     "', #2026-03-10#, 3, 'Run/Walk', 'Exercise')");
    UserConn.Execute("insert into Daily_Exercise (User_ID, [Date], Name, [Key], EventName, duration) values ('" + id +
                     "', #2026-03-10#, 'Run/Walk', '3', 'Spring 5K', '00:25:00')");
    OpenEntry("Run/Walk", "3");
    {
        frmExerciseLog f;
        ASSERT_TRUE(f.cmdPreviewExercise->isEnabled());
        f.cmdPreviewExercise->click();
    }
    ASSERT_EQ(shown, QStringList{"RunWalk.htm"});
    EXPECT_TRUE(previewFlag);
    EXPECT_FALSE(PreviewOpen);
    EXPECT_TRUE(html.contains("Spring 5K"));
    EXPECT_TRUE(html.contains("<b>Exercise/Sports for: </td><td align=left width=250>Lee &amp; Co</b>"));

    // The strength log, as its grid stands.
    UserConn.Execute("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType) values ('" + id +
                     "', #2026-03-10#, 4, 'Legs', 'Strength')");
    UserConn.Execute("insert into Daily_Weights (User_ID, [Date], Name, [Key], muscle_group, exercise, Sets, Reps, weight, "
                     "Intensity, worder) values ('" + id + "', #2026-03-10#, 'Legs', '4', 'Legs', 'Squat', '1', 5, 225, '8', 1)");
    OpenEntry("Legs", "4");
    {
        frmStrengthLog f;
        ASSERT_TRUE(f.cmdPreviewWeights->isEnabled());
        f.cmdPreviewWeights->click();
    }
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[1], "Legs.htm");
    EXPECT_TRUE(html.contains("gymsheets.jpg"));
    EXPECT_TRUE(html.contains("<!--exercise~Squat~-->"));
    EXPECT_TRUE(html.contains("<!--weight~225~-->"));

    // The workout library, on its first sample workout.
    {
        frmStrengthWorkouts f;
        ASSERT_TRUE(f.cmdPrint->isEnabled());
        ASSERT_GT(f.lstWorkouts->count(), 0);
        f.lstWorkouts->setCurrentRow(0);
        const QString name = f.txtWorkout->text().trimmed();
        f.cmdPrint->click();
        ASSERT_EQ(shown.size(), 3);
        EXPECT_EQ(shown[2], workoutpage::PageFileName(name));
        EXPECT_TRUE(html.contains("workouts.jpg"));
        EXPECT_EQ(workoutpage::ReadTags(html).name, name);
        EXPECT_GT(workoutpage::ReadTags(html).rows.size(), 0);
    }

    // The weigh-in of the day on the view.
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-03-10#, 181.5)");
    {
        frmWeighIn f;
        f.cboDate->setDate(kDay);
        f.cmdPreviewExercise->click();
    }
    ASSERT_EQ(shown.size(), 4);
    EXPECT_EQ(shown[3], "WeighIn.htm");
    EXPECT_TRUE(html.contains("181.5"));
    EXPECT_TRUE(html.contains("Conditionning"));
    EXPECT_TRUE(Ui().Messages().isEmpty()) << Ui().MessageTexts().join("|").toStdString();
}
