// The shared chart at model level: pie values, series by day, zoom and pan, the value under
// the pointer, printing through the printer dialog.
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QFile>
#include <QFontMetrics>
#include <QPrinter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QDateTimeAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QPieSeries>
#include <QtCharts/QPieSlice>
#include <QtCharts/QValueAxis>
#include <cmath>

#include "core/regional.h"
#include "core/widgets/Chart.h"
#include "fixtures/fixture.h"

namespace {

// Ten days, calories and protein.
void FillDays(Chart& c, int days = 10)
{
    c.SetSeriesNames({"Calories", "Protein"});
    for (int i = 0; i < days; ++i)
        c.AddPoint(QStringLiteral("%1-01-26").arg(i + 1, 2, 10, QChar('0')), {1000.0 + 100 * i, 50.0 + i});
}

}  // namespace

TEST(ChartModel, PieSlicesAndSeriesByDay)
{
    Chart c;
    c.SetTitle("Percent of Total Calories");
    c.SetPieSlices({"Carbs", "Fat", "Protein"});
    EXPECT_EQ(c.GetStyle(), Chart::Pie);
    c.SetPieValue(1, 55);
    c.SetPieValue(2, 30);
    c.SetPieValue(3, 15);
    c.SetPieValue(4, 99);   // no such slice: ignored
    EXPECT_DOUBLE_EQ(c.PieValue(2), 30);
    EXPECT_DOUBLE_EQ(c.PieValue(4), 0);
    auto* pie = qobject_cast<QPieSeries*>(c.GetChart()->series().value(0));
    ASSERT_TRUE(pie);
    ASSERT_EQ(pie->count(), 3);
    EXPECT_DOUBLE_EQ(pie->slices()[0]->value(), 55);
    EXPECT_EQ(c.GetChart()->title(), "Percent of Total Calories");
    c.ClearPie();
    EXPECT_DOUBLE_EQ(c.PieValue(1), 0);

    Chart d;
    d.SetStyle(Chart::Bar);
    FillDays(d, 3);
    EXPECT_EQ(d.PointCount(), 3);
    EXPECT_EQ(d.SeriesCount(), 2);
    EXPECT_EQ(d.Label(2), "03-01-26");
    EXPECT_DOUBLE_EQ(d.SeriesValue(0, 2), 1200);
    EXPECT_DOUBLE_EQ(d.SeriesValue(1, 0), 50);
    EXPECT_DOUBLE_EQ(d.SeriesValue(5, 0), 0);
    EXPECT_EQ(d.PointText(0, 1), "02-01-26: Calories 1100");
    EXPECT_EQ(d.PointText(1, 2), "03-01-26: Protein 52");
    auto* bars = qobject_cast<QBarSeries*>(d.GetChart()->series().value(0));
    ASSERT_TRUE(bars);
    EXPECT_EQ(bars->count(), 2);

    // One day still draws one bar; a missing second value counts 0; Line draws one line a series.
    Chart e;
    e.SetSeriesNames({"Weight"});
    e.AddPoint("01-02-26", {180});
    EXPECT_EQ(e.PointCount(), 1);
    e.SetStyle(Chart::Line);
    EXPECT_EQ(e.GetChart()->series().size(), 1);
    EXPECT_TRUE(qobject_cast<QLineSeries*>(e.GetChart()->series().value(0)));
    // Two points of one day stay two points on the axis.
    e.SetData({"05-02-26", "05-02-26", "06-02-26"}, {{1, 2, 3}});
    auto* axis = qobject_cast<QBarCategoryAxis*>(e.GetChart()->axes(Qt::Horizontal).value(0));
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->count(), 3);
    // Many days: every point keeps its place, only some carry a label.
    QStringList days;
    QVector<double> values;
    for (int i = 0; i < 365; ++i) {
        days << QStringLiteral("day %1").arg(i);
        values << i;
    }
    e.SetData(days, {values});
    axis = qobject_cast<QBarCategoryAxis*>(e.GetChart()->axes(Qt::Horizontal).value(0));
    EXPECT_EQ(axis->count(), 365);
    EXPECT_EQ(axis->at(0), "day 0");
    EXPECT_LT(axis->at(1).trimmed().remove(QChar(0x200B)).size(), 1);
    e.SetData({"a", "b"}, {{1, 2}, {3}});
    EXPECT_EQ(e.SeriesCount(), 2);
    EXPECT_DOUBLE_EQ(e.SeriesValue(1, 1), 0);
    e.Clear();
    EXPECT_EQ(e.PointCount(), 0);
    EXPECT_EQ(e.SeriesNames().size(), 2);
}

TEST(ChartModel, NarrowPieKeepsItsTitleAndShares)
{
    QFont font;
    const QString title = "Selected Food Percentages";
    const int full = QFontMetrics(font).horizontalAdvance(title);
    EXPECT_EQ(Chart::TitleLines(title, font, full + 10), QStringList{title});
    EXPECT_EQ(Chart::TitleLines(title, font, full / 2), QStringList({"Selected Food", "Percentages"}));
    EXPECT_EQ(Chart::TitleLines("Percentages", font, 5), QStringList{"Percentages"});   // no blank to break at
    EXPECT_EQ(Chart::TitleLines(title, font, 0), QStringList{title});                   // not laid out yet

    // Shown narrow: two lines, and the shares stand inside their slices with the name left
    // to the legend.
    Chart c;
    c.SetTitle(title);
    c.SetPieSlices({"Carbs", "Fat", "Protein"});
    c.SetPieValue(1, 93);
    c.SetPieValue(2, 3);
    c.SetPieValue(3, 4);
    c.resize(170, 260);
    c.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(c.GetChart()->title().contains("<br>"));
    EXPECT_EQ(c.Title(), title);
    auto* pie = qobject_cast<QPieSeries*>(c.GetChart()->series().value(0));
    ASSERT_TRUE(pie);
    EXPECT_EQ(pie->slices()[0]->label(), "93%");
    EXPECT_EQ(pie->slices()[0]->labelPosition(), QPieSlice::LabelInsideHorizontal);
    EXPECT_FALSE(pie->slices()[1]->isLabelVisible());   // 3%: told by its tooltip
}

TEST(ChartModel, ZoomPanAndPointer)
{
    Chart c;
    c.resize(800, 500);
    c.SetStyle(Chart::Bar);
    FillDays(c);
    c.show();
    QCoreApplication::processEvents();

    EXPECT_FALSE(c.IsZoomed());
    c.SetView(2, 4);
    EXPECT_TRUE(c.IsZoomed());
    EXPECT_EQ(c.FirstVisible(), 2);
    EXPECT_EQ(c.VisibleCount(), 4);
    auto* scroll = c.findChild<QScrollBar*>();
    ASSERT_TRUE(scroll);
    EXPECT_TRUE(scroll->isVisible());
    EXPECT_EQ(scroll->maximum(), 6);
    scroll->setValue(5);                          // panning
    EXPECT_EQ(c.FirstVisible(), 5);
    c.SetView(9, 4);                              // clamped to the data
    EXPECT_EQ(c.FirstVisible(), 6);
    c.ZoomOut();
    EXPECT_FALSE(c.IsZoomed());
    EXPECT_EQ(c.VisibleCount(), 10);
    EXPECT_FALSE(scroll->isVisible());

    // The point under the pointer: the centre of the plot is among the middle days.
    QChart* chart = c.GetChart();
    const QRectF plot = chart->plotArea();
    auto toView = [&](const QPointF& chartPos) {
        return c.View()->mapFromScene(chart->mapToScene(chartPos));
    };
    const QPointF firstBar = chart->mapToPosition(QPointF(0, 500));
    int series = -1;
    EXPECT_EQ(c.PointAt(toView(firstBar), &series), 0);
    EXPECT_EQ(c.PointAt(toView(plot.topLeft() - QPointF(20, 20))), -1);   // outside the plot

    // Zoom by a rectangle over days 3 to 5 (0-based 2..4), values 0..800.
    const QPointF a = chart->mapToPosition(QPointF(1.7, 800));
    const QPointF b = chart->mapToPosition(QPointF(4.3, 0));
    c.ZoomToRect(QRectF(toView(a), toView(b)));
    EXPECT_EQ(c.FirstVisible(), 2);
    EXPECT_EQ(c.VisibleCount(), 3);
    EXPECT_NEAR(c.ViewHigh(), 800, 20);
    EXPECT_NEAR(c.ViewLow(), 0, 20);
}

TEST(ChartModel, PrintsThroughThePrinterDialog)
{
    QTemporaryDir dir;
    ScriptedUi ui;
    Chart c;
    c.SetTitle("Weight");
    FillDays(c, 5);

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("chart.pdf"));
    ui.AnswerPrint(false);
    EXPECT_FALSE(c.Print(&printer));                 // cancelled: nothing printed
    EXPECT_FALSE(QFile::exists(dir.filePath("chart.pdf")));
    ui.AnswerPrint(true);
    EXPECT_TRUE(c.Print(&printer));
    QFile pdf(dir.filePath("chart.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.read(4) == "%PDF");
    EXPECT_GT(pdf.size(), 1000);
}

TEST(ChartAxes, DatesSpacedByTimeValuesFittedToTheData)
{
    // Weigh-ins on the 9th, 14th and 30th: the gaps on the axis are 5 and 16 days.
    const QDate first(2026, 3, 9);
    const QVector<QDateTime> days{QDateTime(first, QTime(7, 0)), QDateTime(first.addDays(5), QTime(7, 0)),
                                  QDateTime(first.addDays(21), QTime(7, 0))};
    Chart c;
    c.resize(800, 500);
    c.SetStyle(Chart::Line);
    c.SetSeriesNames({"Weight"});
    c.SetTimedData(days, {{160, 163, 166}});
    c.show();
    QCoreApplication::processEvents();
    ASSERT_TRUE(c.HasTimes());
    EXPECT_EQ(c.Label(1), regional::ShortDate(first.addDays(5)));
    EXPECT_EQ(c.PointText(0, 2), regional::ShortDate(first.addDays(21)) + ": Weight 166");
    auto* axis = qobject_cast<QDateTimeAxis*>(c.GetChart()->axes(Qt::Horizontal).value(0));
    ASSERT_TRUE(axis);
    EXPECT_EQ(axis->min(), days[0]);
    EXPECT_EQ(axis->max(), days[2]);
    QChart* chart = c.GetChart();
    auto at = [&](int i) { return chart->mapToPosition(QPointF(days[i].toMSecsSinceEpoch(), 163)).x(); };
    EXPECT_NEAR((at(1) - at(0)) / (at(2) - at(1)), 5.0 / 16.0, 0.01);

    // Days without a time: every mark stands on a whole day, so its label names the day under
    // it (marks 11/7 of a day apart put "13 Nov" under the weigh-in of the 14th).
    Chart byDay;
    byDay.resize(800, 500);
    byDay.SetStyle(Chart::Line);
    const QVector<QDateTime> midnights{QDateTime(first, QTime(0, 0)), QDateTime(first.addDays(5), QTime(0, 0)),
                                       QDateTime(first.addDays(10), QTime(0, 0)),
                                       QDateTime(first.addDays(11), QTime(0, 0))};
    byDay.SetTimedData(midnights, {{166, 163.5, 162, 161}});
    byDay.show();
    QCoreApplication::processEvents();
    auto* dayAxis = qobject_cast<QDateTimeAxis*>(byDay.GetChart()->axes(Qt::Horizontal).value(0));
    ASSERT_TRUE(dayAxis);
    EXPECT_EQ(dayAxis->min(), midnights[0]);
    EXPECT_GE(dayAxis->max(), midnights[3]);
    const qint64 span = dayAxis->min().daysTo(dayAxis->max());
    ASSERT_GT(dayAxis->tickCount(), 1);
    EXPECT_EQ(span % (dayAxis->tickCount() - 1), 0) << span << " days, " << dayAxis->tickCount() << " marks";
    EXPECT_EQ(dayAxis->max().time(), QTime(0, 0));

    // A 6 lb change on 160 lb fills the plot: the range is the data and a tenth of it each
    // side, on round numbers, not from 0.
    auto* values = qobject_cast<QValueAxis*>(chart->axes(Qt::Vertical).value(0));
    ASSERT_TRUE(values);
    EXPECT_DOUBLE_EQ(values->min(), 158);
    EXPECT_DOUBLE_EQ(values->max(), 168);

    // The pointer finds the nearest day; a rectangle over the last two days zooms to them.
    const auto toView = [&](const QPointF& p) { return c.View()->mapFromScene(chart->mapToScene(p)); };
    EXPECT_EQ(c.PointAt(toView(QPointF(at(1) + 3, chart->plotArea().center().y()))), 1);
    c.ZoomToRect(QRectF(toView(QPointF(at(1) - 5, chart->plotArea().top() + 2)),
                        toView(QPointF(at(2) + 5, chart->plotArea().bottom() - 2))));
    EXPECT_EQ(c.FirstVisible(), 1);
    EXPECT_EQ(c.VisibleCount(), 2);
    c.ZoomOut();

    // Points added one at a time keep their times; one without a time goes back to labels.
    Chart d;
    d.SetStyle(Chart::Line);
    d.AddPoint(days[0], {150});
    d.AddPoint(days[1], {150}, "weigh-in");
    EXPECT_TRUE(d.HasTimes());
    EXPECT_EQ(d.Label(1), "weigh-in");
    values = qobject_cast<QValueAxis*>(d.GetChart()->axes(Qt::Vertical).value(0));
    ASSERT_TRUE(values);
    EXPECT_LT(values->min(), 150);                // equal values get a band around them
    EXPECT_GT(values->max(), 150);
    EXPECT_GT(values->min(), 100);
    d.AddPoint("later", {151});
    EXPECT_FALSE(d.HasTimes());
    EXPECT_TRUE(qobject_cast<QBarCategoryAxis*>(d.GetChart()->axes(Qt::Horizontal).value(0)));

    // A line by labels is fitted too; bars still stand on 0.
    Chart e;
    e.SetStyle(Chart::Line);
    e.SetData({"a", "b", "c"}, {{160, 163, 166}});
    values = qobject_cast<QValueAxis*>(e.GetChart()->axes(Qt::Vertical).value(0));
    ASSERT_TRUE(values);
    EXPECT_DOUBLE_EQ(values->min(), 158);
    e.SetStyle(Chart::Bar);
    values = qobject_cast<QValueAxis*>(e.GetChart()->axes(Qt::Vertical).value(0));
    ASSERT_TRUE(values);
    EXPECT_DOUBLE_EQ(values->min(), 0);

    // Round numbers, and no axis below 0 for data that never goes there.
    double lo = 0, hi = 0;
    int ticks = 0;
    Chart::FitRange(2100, 2600, &lo, &hi, &ticks);
    EXPECT_DOUBLE_EQ(lo, 2000);
    EXPECT_DOUBLE_EQ(hi, 2700);
    EXPECT_EQ(ticks, 8);
    Chart::FitRange(0.5, 10, &lo, &hi, &ticks);
    EXPECT_DOUBLE_EQ(lo, 0);
    Chart::FitRange(-3, -1, &lo, &hi, &ticks);
    EXPECT_LT(lo, -3);
    EXPECT_GT(hi, -1);
    EXPECT_LE(hi, 0);
    Chart::FitRange(0, 0, &lo, &hi, &ticks);
    EXPECT_DOUBLE_EQ(lo, 0);
    EXPECT_GT(hi, 0);
}
