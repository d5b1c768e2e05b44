#pragma once
// Chart: the charts of the logs, the nutrition screens and the totals, on Qt Charts.
//
// Two kinds:
//   - Pie: named slices (SetPieSlices({"Carbs", "Fat", "Protein"})) whose values are set by
//     their number, counted from 1 as the screens count their series (SetPieValue(1, 55)).
//   - Bar or Line by day: up to two series (more are allowed), one value per point, each
//     point with a label on the X axis (the day, "DD-MM-YY"). Fill with Clear(),
//     SetSeriesNames() and AddPoint(label, {v1, v2}), or SetData(). Labels may repeat (two
//     sessions on one day are two points); the axis shows as many labels as fit its width.
//   - Points at real times (AddPoint(when, {v}), SetTimedData(times, series)): a line stands on a
//     date axis spaced by time, so weigh-ins five and sixteen days apart are drawn so; their
//     labels are the days in the short date form. Bars stay one category a point.
//
// The value axis of a line is fitted to the data: from a tenth of the data's span below its
// lowest value to a tenth above its highest, on round numbers (a line of equal values gets a
// band around them; data that never goes below 0 gets no axis below 0). Bars start at 0.
//
// Zoom and pan (bar and line): a left-button drag draws a rectangle and zooms to it (the
// points under it and the value range it spans); the right button zooms out; the scroll bar
// under the chart pans a zoomed view (SetView/FirstVisible/VisibleCount do the same in code).
// The value under the pointer shows as a tooltip ("label: series value", from PointText).
// Print() asks for a printer through PrintDialog (core/ui) and prints the chart on one page.
//
// Everything the chart shows is kept in the object, so screens and tests read it back:
// Title(), PieValue(n), PointCount(), Label(i), SeriesValue(s, i), FirstVisible().
#include <QDateTime>
#include <QStringList>
#include <QVector>
#include <QWidget>
#include <cmath>

class QChart;
class QFont;
class QChartView;
class QPrinter;
class QScrollBar;
class QPaintDevice;
class ChartView;

class Chart : public QWidget {
    Q_OBJECT
public:
    enum Style { Pie, Bar, Line };

    explicit Chart(QWidget* parent = nullptr);
    ~Chart() override;

    void SetTitle(const QString& title);
    QString Title() const;
    void SetStyle(Style style);
    Style GetStyle() const { return m_style; }
    void SetLegendVisible(bool visible);
    void SetAxisTitles(const QString& x, const QString& y);

    // ---- pie ----
    void SetPieSlices(const QStringList& names);          // all values 0
    QStringList PieSlices() const { return m_pieNames; }
    void SetPieValue(int slice, double value);            // slice from 1
    double PieValue(int slice) const;
    void ClearPie();                                       // every value to 0

    // ---- series by day ----
    void Clear();                                          // points gone, names stay
    void SetSeriesNames(const QStringList& names);
    QStringList SeriesNames() const { return m_seriesNames; }
    int SeriesCount() const { return m_seriesNames.size(); }
    // A point: its label and one value per series (missing values count as 0).
    void AddPoint(const QString& label, const QVector<double>& values);
    void SetData(const QStringList& labels, const QVector<QVector<double>>& series);
    // Points at real times; a label left empty is the short date of the time.
    void AddPoint(const QDateTime& when, const QVector<double>& values, const QString& label = QString());
    void SetTimedData(const QVector<QDateTime>& times, const QVector<QVector<double>>& series,
                      const QStringList& labels = QStringList());
    bool HasTimes() const;                                 // every point has a valid time
    QDateTime Time(int point) const;
    int PointCount() const { return m_labels.size(); }
    QString Label(int point) const;                        // point from 0
    double SeriesValue(int series, int point) const;       // series from 0
    // "12-05-26: Calories 2100" for the tooltip.
    QString PointText(int series, int point) const;

    // ---- zoom and pan ----
    // Shows the points first .. first + count - 1 and the value range low .. high (NaN: the
    // data's own range). Clamped to the data.
    void SetView(int first, int count, double low = NAN, double high = NAN);
    void ZoomOut();                                        // everything again
    bool IsZoomed() const;
    int FirstVisible() const { return m_first; }
    int VisibleCount() const { return m_count; }
    double ViewLow() const { return m_low; }
    double ViewHigh() const { return m_high; }
    // Zooms to the points and values under a rectangle of the plot, in widget coordinates.
    void ZoomToRect(const QRectF& rect);
    // The point under a position of the chart view (-1 when none), for tooltips.
    int PointAt(const QPointF& viewPos, int* series = nullptr) const;

    // ---- printing and pictures ----
    bool Print();                                          // through PrintDialog
    bool Print(QPrinter* printer);                         // through PrintDialog, given printer
    void Render(QPaintDevice* device);                     // draws the chart filling the device

    // A pie's title as shown in a width: one line, or two broken at the middle blank.
    static QStringList TitleLines(const QString& title, const QFont& font, int width);
    // The fitted value range of a line over data from lo to hi, and the ticks that fall on
    // its round numbers.
    static void FitRange(double lo, double hi, double* min, double* max, int* ticks);

    QChartView* View() const;
    QChart* GetChart() const;

protected:
    void resizeEvent(QResizeEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    friend class ChartView;
    void rebuild();
    void setPoints(const QStringList& labels, const QVector<QVector<double>>& series);
    void fitPie();
    void updateScrollBar();
    double dataMin() const;   // of the visible points; NaN when none
    double dataMax() const;
    bool timeAxis() const { return m_style == Line && HasTimes(); }
    int nearestVisible(double x) const;   // a visible point by the X axis' value, -1 when none

    ChartView* m_view = nullptr;
    QScrollBar* m_scroll = nullptr;
    Style m_style = Bar;
    QString m_title;
    QString m_xTitle, m_yTitle;
    bool m_legend = true;
    QStringList m_pieNames;
    QVector<double> m_pieValues;
    QStringList m_seriesNames;
    QStringList m_labels;
    QVector<QDateTime> m_times;         // one a point, or empty for points by label only
    QVector<QVector<double>> m_values;  // [series][point]
    int m_first = 0;
    int m_count = 0;
    double m_low = NAN;
    double m_high = NAN;
    bool m_zoomed = false;
};
