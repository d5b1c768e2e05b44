#include "core/widgets/Chart.h"

#include <QCursor>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPrinter>
#include <QResizeEvent>
#include <QRubberBand>
#include <QHash>
#include <QSet>
#include <QScrollBar>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QDateTimeAxis>
#include <QtCharts/QLegend>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QPieSeries>
#include <QtCharts/QPieSlice>
#include <QtCharts/QValueAxis>
#include <algorithm>

#include "core/regional.h"
#include "core/ui.h"

// The chart's view: rectangle zoom with the left button, zoom out with the right one, and the
// value under the pointer as a tooltip.
class ChartView : public QChartView {
public:
    explicit ChartView(Chart* owner) : QChartView(owner), m_owner(owner)
    {
        setRenderHint(QPainter::Antialiasing);
        setMouseTracking(true);
    }

    QPointF valueAt(const QPointF& viewPos) const
    {
        return chart()->mapToValue(chart()->mapFromScene(mapToScene(viewPos.toPoint())));
    }

protected:
    void mousePressEvent(QMouseEvent* e) override
    {
        if (m_owner->m_style == Chart::Pie)
            return QChartView::mousePressEvent(e);
        if (e->button() == Qt::RightButton) {
            m_owner->ZoomOut();
            return;
        }
        if (e->button() == Qt::LeftButton) {
            m_origin = e->position().toPoint();
            if (!m_band)
                m_band = new QRubberBand(QRubberBand::Rectangle, viewport());
            m_band->setGeometry(QRect(m_origin, QSize()));
            m_band->show();
        }
    }
    void mouseMoveEvent(QMouseEvent* e) override
    {
        if (m_band && m_band->isVisible()) {
            m_band->setGeometry(QRect(m_origin, e->position().toPoint()).normalized());
            return;
        }
        if (m_owner->m_style != Chart::Pie) {
            int series = 0;
            const int p = m_owner->PointAt(e->position(), &series);
            if (p >= 0)
                QToolTip::showText(e->globalPosition().toPoint(), m_owner->PointText(series, p), this);
            else
                QToolTip::hideText();
        }
        QChartView::mouseMoveEvent(e);
    }
    void mouseReleaseEvent(QMouseEvent* e) override
    {
        if (m_band && m_band->isVisible() && e->button() == Qt::LeftButton) {
            m_band->hide();
            const QRect r = QRect(m_origin, e->position().toPoint()).normalized();
            if (r.width() > 4 && r.height() > 4)
                m_owner->ZoomToRect(r);
            return;
        }
        QChartView::mouseReleaseEvent(e);
    }

private:
    Chart* m_owner;
    QRubberBand* m_band = nullptr;
    QPoint m_origin;
};

Chart::Chart(QWidget* parent) : QWidget(parent)
{
    m_view = new ChartView(this);
    m_view->setChart(new QChart);
    m_scroll = new QScrollBar(Qt::Horizontal, this);
    m_scroll->setVisible(false);
    auto* lay = new QVBoxLayout(this);
    lay->setContentsMargins(0, 0, 0, 0);
    lay->setSpacing(0);
    lay->addWidget(m_view, 1);
    lay->addWidget(m_scroll);
    connect(m_scroll, &QScrollBar::valueChanged, this, [this](int v) {
        if (v != m_first && m_zoomed)
            SetView(v, m_count, m_low, m_high);
    });
    rebuild();
}

Chart::~Chart() = default;

void Chart::resizeEvent(QResizeEvent* e)
{
    QWidget::resizeEvent(e);
    if (m_style == Pie)
        fitPie();    // the title's lines and the fonts depend on the width
    else if (m_count > 0)
        rebuild();   // the labels that fit depend on the width
}

void Chart::showEvent(QShowEvent* e)
{
    QWidget::showEvent(e);
    if (m_style == Pie)
        fitPie();
}

QStringList Chart::TitleLines(const QString& title, const QFont& font, int width)
{
    const QFontMetrics fm(font);
    if (width <= 0 || fm.horizontalAdvance(title) <= width || !title.contains(QLatin1Char(' ')))
        return {title};
    // Two lines, broken at the blank nearest the middle.
    int best = -1;
    for (int i = title.indexOf(QLatin1Char(' ')); i >= 0; i = title.indexOf(QLatin1Char(' '), i + 1))
        if (best < 0 || std::abs(i - title.size() / 2) < std::abs(best - title.size() / 2))
            best = i;
    return {title.left(best), title.mid(best + 1)};
}

void Chart::fitPie()
{
    // A pie beside others is narrow: a smaller title, broken into two lines where one doesn't
    // fit, and a small legend, so that neither is cut.
    QChart* c = GetChart();
    // The title's room: the view less the chart's margins and the frame around its plot.
    const int width = m_view->isVisible() && m_view->width() > 80 ? m_view->width() - 48 : 0;
    QFont title = font();
    title.setBold(true);
    title.setPointSizeF(std::max(7.0, title.pointSizeF() - (width > 0 && width < 260 ? 1.0 : 0.0)));
    c->setTitleFont(title);
    const QStringList lines = TitleLines(m_title, title, width);
    c->setTitle(lines.size() > 1
                    ? QStringLiteral("<p align=\"center\">") + lines.join(QStringLiteral("<br>")) + QStringLiteral("</p>")
                    : m_title);
    QFont small = font();
    small.setPointSizeF(std::max(7.0, small.pointSizeF() - (width > 0 && width < 260 ? 2.0 : 1.0)));
    c->legend()->setFont(small);
    c->legend()->setMarkerShape(QLegend::MarkerShapeRectangle);
    c->legend()->setContentsMargins(0, 0, 0, 0);
    c->setMargins(QMargins(0, 2, 0, 2));
    for (QAbstractSeries* s : c->series())
        if (auto* pie = qobject_cast<QPieSeries*>(s))
            for (QPieSlice* sl : pie->slices())
                sl->setLabelFont(small);
}

QChartView* Chart::View() const { return m_view; }
QChart* Chart::GetChart() const { return m_view->chart(); }

void Chart::SetTitle(const QString& title)
{
    m_title = title;
    GetChart()->setTitle(title);
    if (m_style == Pie)
        fitPie();
}

QString Chart::Title() const { return m_title; }

void Chart::SetStyle(Style style)
{
    if (m_style == style)
        return;
    m_style = style;
    rebuild();
}

void Chart::SetLegendVisible(bool visible)
{
    m_legend = visible;
    GetChart()->legend()->setVisible(visible);
}

void Chart::SetAxisTitles(const QString& x, const QString& y)
{
    m_xTitle = x;
    m_yTitle = y;
    rebuild();
}

// ---- pie ----------------------------------------------------------------------------------

void Chart::SetPieSlices(const QStringList& names)
{
    m_style = Pie;
    m_pieNames = names;
    m_pieValues = QVector<double>(names.size(), 0.0);
    rebuild();
}

void Chart::SetPieValue(int slice, double value)
{
    if (slice < 1 || slice > m_pieValues.size())
        return;
    m_pieValues[slice - 1] = value;
    rebuild();
}

double Chart::PieValue(int slice) const
{
    return (slice < 1 || slice > m_pieValues.size()) ? 0.0 : m_pieValues[slice - 1];
}

void Chart::ClearPie()
{
    m_pieValues.fill(0.0);
    rebuild();
}

// ---- series -------------------------------------------------------------------------------

void Chart::Clear()
{
    m_labels.clear();
    m_times.clear();
    for (auto& s : m_values)
        s.clear();
    m_first = m_count = 0;
    m_low = m_high = NAN;
    m_zoomed = false;
    rebuild();
}

void Chart::SetSeriesNames(const QStringList& names)
{
    m_seriesNames = names;
    m_values.resize(names.size());
    for (auto& s : m_values)
        s.resize(m_labels.size());
    rebuild();
}

void Chart::AddPoint(const QString& label, const QVector<double>& values)
{
    if (m_values.size() < values.size()) {
        while (m_seriesNames.size() < values.size())
            m_seriesNames << QStringLiteral("Series %1").arg(m_seriesNames.size() + 1);
        m_values.resize(m_seriesNames.size());
        for (auto& s : m_values)
            s.resize(m_labels.size());
    }
    m_labels << label;
    if (!m_times.isEmpty())
        m_times.resize(m_labels.size());   // a point without a time: placed by its label again
    for (int s = 0; s < m_values.size(); ++s)
        m_values[s] << (s < values.size() && std::isfinite(values[s]) ? values[s] : 0.0);
    if (!m_zoomed)
        m_count = m_labels.size();
    rebuild();
}

void Chart::AddPoint(const QDateTime& when, const QVector<double>& values, const QString& label)
{
    m_times.resize(m_labels.size());
    m_times << when;
    AddPoint(label.isEmpty() ? regional::ShortDate(when.date()) : label, values);
}

void Chart::SetTimedData(const QVector<QDateTime>& times, const QVector<QVector<double>>& series,
                         const QStringList& labels)
{
    QStringList names;
    for (int i = 0; i < times.size(); ++i)
        names << (labels.value(i).isEmpty() ? regional::ShortDate(times[i].date()) : labels[i]);
    m_times = times;
    setPoints(names, series);
}

bool Chart::HasTimes() const
{
    if (m_times.isEmpty() || m_times.size() != m_labels.size())
        return false;
    return std::all_of(m_times.cbegin(), m_times.cend(), [](const QDateTime& t) { return t.isValid(); });
}

QDateTime Chart::Time(int point) const { return m_times.value(point); }

void Chart::SetData(const QStringList& labels, const QVector<QVector<double>>& series)
{
    m_times.clear();
    setPoints(labels, series);
}

void Chart::setPoints(const QStringList& labels, const QVector<QVector<double>>& series)
{
    m_labels = labels;
    while (m_seriesNames.size() < series.size())
        m_seriesNames << QStringLiteral("Series %1").arg(m_seriesNames.size() + 1);
    m_values = QVector<QVector<double>>(m_seriesNames.size());
    for (int s = 0; s < m_values.size(); ++s) {
        m_values[s] = s < series.size() ? series[s] : QVector<double>();
        m_values[s].resize(labels.size());
    }
    m_first = 0;
    m_count = labels.size();
    m_low = m_high = NAN;
    m_zoomed = false;
    rebuild();
}

QString Chart::Label(int point) const { return point >= 0 && point < m_labels.size() ? m_labels[point] : QString(); }

double Chart::SeriesValue(int series, int point) const
{
    if (series < 0 || series >= m_values.size() || point < 0 || point >= m_values[series].size())
        return 0.0;
    return m_values[series][point];
}

QString Chart::PointText(int series, int point) const
{
    if (point < 0 || point >= m_labels.size())
        return QString();
    QString name = series >= 0 && series < m_seriesNames.size() ? m_seriesNames[series] : QString();
    QString v = QString::number(SeriesValue(series, point), 'f', 2);
    while (v.contains('.') && (v.endsWith('0') || v.endsWith('.')))
        v.chop(1);
    return m_labels[point] + QStringLiteral(": ") + (name.isEmpty() ? v : name + ' ' + v);
}

double Chart::dataMin() const
{
    double lo = NAN;
    for (const auto& s : m_values)
        for (int i = m_first; i < m_first + m_count && i < s.size(); ++i)
            if (!(s[i] >= lo))
                lo = s[i];
    return lo;
}

double Chart::dataMax() const
{
    double hi = NAN;
    for (const auto& s : m_values)
        for (int i = m_first; i < m_first + m_count && i < s.size(); ++i)
            if (!(s[i] <= hi))
                hi = s[i];
    return hi;
}

void Chart::FitRange(double lo, double hi, double* min, double* max, int* ticks)
{
    if (!std::isfinite(lo) || !std::isfinite(hi)) {
        *min = 0;
        *max = 1;
        *ticks = 2;
        return;
    }
    if (hi < lo)
        std::swap(lo, hi);
    const bool positive = lo >= 0;
    const double span = hi - lo;
    double a, b;
    if (span <= std::abs(hi) * 1e-9) {
        // Equal values: a band of a tenth of the value around them (at least 1 each side).
        const double pad = std::max(std::abs(lo) * 0.05, 1.0);
        a = lo - pad;
        b = hi + pad;
    } else {
        a = lo - span * 0.1;
        b = hi + span * 0.1;
    }
    // Round numbers: a step of 1, 2, 2.5 or 5 times a power of ten, about six steps.
    const double raw = (b - a) / 6.0;
    const double unit = std::pow(10.0, std::floor(std::log10(raw)));
    double step = 10 * unit;
    for (double m : {1.0, 2.0, 2.5, 5.0})
        if (m * unit >= raw) {
            step = m * unit;
            break;
        }
    a = std::floor(a / step + 1e-9) * step;
    b = std::ceil(b / step - 1e-9) * step;
    if (positive && a < 0)
        a = 0;
    *min = a;
    *max = b;
    *ticks = int(std::lround((b - a) / step)) + 1;
}

int Chart::nearestVisible(double x) const
{
    if (m_count <= 0)
        return -1;
    if (!timeAxis()) {
        const int local = int(std::floor(x + 0.5));
        return local >= 0 && local < m_count ? local : -1;
    }
    int best = -1;
    double bestDistance = 0;
    for (int i = 0; i < m_count; ++i) {
        const double d = std::abs(double(m_times[m_first + i].toMSecsSinceEpoch()) - x);
        if (best < 0 || d < bestDistance) {
            best = i;
            bestDistance = d;
        }
    }
    return best;
}

// ---- zoom and pan -------------------------------------------------------------------------

void Chart::SetView(int first, int count, double low, double high)
{
    const int n = m_labels.size();
    count = std::clamp(count, n ? 1 : 0, n);
    first = std::clamp(first, 0, std::max(0, n - count));
    m_first = first;
    m_count = count;
    m_low = low;
    m_high = high;
    m_zoomed = count < n || std::isfinite(low) || std::isfinite(high);
    rebuild();
}

void Chart::ZoomOut()
{
    m_first = 0;
    m_count = m_labels.size();
    m_low = m_high = NAN;
    m_zoomed = false;
    rebuild();
}

bool Chart::IsZoomed() const { return m_zoomed; }

void Chart::ZoomToRect(const QRectF& rect)
{
    if (m_style == Pie || m_labels.isEmpty())
        return;
    const QPointF a = m_view->valueAt(rect.topLeft());
    const QPointF b = m_view->valueAt(rect.bottomRight());
    int i1, i2;
    if (timeAxis()) {
        // x is a time: the points inside the rectangle's times.
        const double x1 = std::min(a.x(), b.x());
        const double x2 = std::max(a.x(), b.x());
        i1 = m_count;
        i2 = -1;
        for (int i = 0; i < m_count; ++i) {
            const double t = double(m_times[m_first + i].toMSecsSinceEpoch());
            if (t >= x1 && t <= x2) {
                i1 = std::min(i1, i);
                i2 = std::max(i2, i);
            }
        }
    } else {
        // x is the index among the visible points (bars centred on their index).
        i1 = int(std::ceil(std::min(a.x(), b.x()) - 0.5));
        i2 = int(std::floor(std::max(a.x(), b.x()) + 0.5));
        i1 = std::max(i1, 0);
        i2 = std::min(i2, m_count - 1);
    }
    if (i2 < i1)
        return;
    const double lo = std::min(a.y(), b.y());
    const double hi = std::max(a.y(), b.y());
    SetView(m_first + i1, i2 - i1 + 1, lo, hi);
}

int Chart::PointAt(const QPointF& viewPos, int* series) const
{
    if (m_style == Pie || m_count == 0)
        return -1;
    const QRectF plot = GetChart()->plotArea();
    const QPointF scenePos = m_view->mapToScene(viewPos.toPoint());
    const QPointF chartPos = GetChart()->mapFromScene(scenePos);
    if (!plot.contains(chartPos))
        return -1;
    const QPointF v = m_view->valueAt(viewPos);
    const int local = nearestVisible(v.x());
    if (local < 0)
        return -1;
    const int point = m_first + local;
    int s = 0;
    const int ns = m_values.size();
    if (ns > 1) {
        if (m_style == Bar) {
            const double frac = v.x() - local + 0.5;   // 0..1 across the category
            s = std::clamp(int(frac * ns), 0, ns - 1);
        } else {
            double best = 1e300;
            for (int i = 0; i < ns; ++i) {
                const double d = std::abs(SeriesValue(i, point) - v.y());
                if (d < best) {
                    best = d;
                    s = i;
                }
            }
        }
    }
    if (series)
        *series = s;
    return point;
}

void Chart::updateScrollBar()
{
    const int n = m_labels.size();
    const bool show = m_style != Pie && m_count < n;
    m_scroll->blockSignals(true);
    m_scroll->setRange(0, std::max(0, n - m_count));
    m_scroll->setPageStep(std::max(1, m_count));
    m_scroll->setValue(m_first);
    m_scroll->blockSignals(false);
    m_scroll->setVisible(show);
}

// ---- drawing ------------------------------------------------------------------------------

void Chart::rebuild()
{
    QChart* c = GetChart();
    c->removeAllSeries();
    // Qt Charts 6.4 keeps drawing a removed axis that had no series: hide it first.
    for (QAbstractAxis* ax : c->axes()) {
        ax->setVisible(false);
        c->removeAxis(ax);
        delete ax;
    }
    c->setTitle(m_title);
    c->legend()->setVisible(m_legend);
    c->setAnimationOptions(QChart::NoAnimation);

    if (m_style == Pie) {
        auto* pie = new QPieSeries;
        double total = 0;
        for (double v : m_pieValues)
            total += std::max(0.0, v);
        for (int i = 0; i < m_pieNames.size(); ++i) {
            const double v = std::max(0.0, m_pieValues.value(i));
            QPieSlice* sl = pie->append(m_pieNames[i], v);
            if (total > 0 && v > 0) {
                const QString share = QStringLiteral("%1 %2%").arg(m_pieNames[i]).arg(qRound(100.0 * v / total));
                sl->setLabel(share);
                // Small slices are told by their tooltip, so that labels don't overlap.
                sl->setLabelVisible(v / total >= 0.08);
                connect(sl, &QPieSlice::hovered, m_view, [share](bool on) {
                    if (on)
                        QToolTip::showText(QCursor::pos(), share);
                    else
                        QToolTip::hideText();
                });
            }
        }
        c->addSeries(pie);
        c->legend()->setAlignment(Qt::AlignBottom);
        // The legend names the parts; the shares stand inside the slices, where no width can
        // cut them, in black or white after the slice's colour.
        const auto markers = c->legend()->markers(pie);
        for (int i = 0; i < markers.size() && i < m_pieNames.size(); ++i)
            markers[i]->setLabel(m_pieNames[i]);
        for (QPieSlice* sl : pie->slices()) {
            if (!sl->isLabelVisible())
                continue;
            sl->setLabel(QStringLiteral("%1%").arg(qRound(100.0 * sl->percentage())));
            sl->setLabelPosition(QPieSlice::LabelInsideHorizontal);
            sl->setLabelColor(sl->brush().color().lightness() < 128 ? Qt::white : Qt::black);
        }
        fitPie();
        updateScrollBar();
        return;
    }

    if (!m_zoomed) {
        m_first = 0;
        m_count = m_labels.size();
    }
    const int width = m_view->width() > 100 ? m_view->width() : 640;
    QAbstractAxis* axX = nullptr;
    if (timeAxis()) {
        // Real times: the points stand as far apart as their days.
        auto* ax = new QDateTimeAxis;
        QDateTime from = m_times.value(m_first);
        QDateTime to = m_times.value(m_first + m_count - 1);
        if (!(from < to)) {
            from = from.addSecs(-12 * 3600);
            to = to.addSecs(12 * 3600);
        }
        int ticks = std::clamp(width / 90, 2, 12);
        if (from.time() == QTime(0, 0) && to.time() == QTime(0, 0) && from < to) {
            // Days: the marks fall on whole days, a whole number of days apart, so that each
            // label names the day under it; the axis ends on the mark after the last point.
            const qint64 days = from.daysTo(to);
            const qint64 step = (days + ticks - 2) / (ticks - 1);
            const qint64 marks = (days + step - 1) / step;
            to = from.addDays(step * marks);
            ticks = int(marks) + 1;
        }
        ax->setRange(from, to);
        ax->setFormat(regional::Locale().dateFormat(QLocale::ShortFormat));
        ax->setTickCount(ticks);
        axX = ax;
    } else {
        // The axis wants distinct categories: a day that repeats (two sessions) gets invisible
        // marks to stay apart, and labels are thinned to what the width can show.
        const int maxLabels = std::max(2, width / 70);
        const int step = std::max(1, (m_count + maxLabels - 1) / maxLabels);
        // The n-th repeat of a text (an empty one included: the axis takes no empty category)
        // carries n marks.
        QStringList cats;
        QHash<QString, int> repeats;
        for (int i = 0; i < m_count; ++i) {
            const QString t = i % step == 0 ? m_labels.value(m_first + i) : QString();
            const int n = repeats[t]++;
            cats << t + QString(t.isEmpty() ? n + 1 : n, QChar(0x200B));
        }
        auto* ax = new QBarCategoryAxis;
        ax->append(cats.isEmpty() ? QStringList{QString()} : cats);
        // Thinned labels are never cut to an ellipsis, and a crowd of points draws no line each.
        ax->setTruncateLabels(false);
        ax->setGridLineVisible(m_count <= 60);
        axX = ax;
    }
    if (!m_xTitle.isEmpty())
        axX->setTitleText(m_xTitle);
    auto* axY = new QValueAxis;
    if (!m_yTitle.isEmpty())
        axY->setTitleText(m_yTitle);
    const bool fixed = std::isfinite(m_low) || std::isfinite(m_high);
    if (m_style == Line && !fixed) {
        double lo = 0, hi = 1;
        int ticks = 2;
        FitRange(dataMin(), dataMax(), &lo, &hi, &ticks);
        axY->setRange(lo, hi);
        axY->setTickCount(ticks);
    } else {
        // Bars stand on 0; a zoomed view shows the values it was given.
        const double dmin = std::isfinite(dataMin()) ? dataMin() : 0.0;
        const double dmax = std::isfinite(dataMax()) ? dataMax() : 0.0;
        double lo = std::isfinite(m_low) ? m_low : (m_style == Line ? dmin : std::min(0.0, dmin));
        double hi = std::isfinite(m_high) ? m_high : (m_style == Line ? dmax : std::max(0.0, dmax));
        if (!(hi > lo))
            hi = lo + 1;
        axY->setRange(lo, hi);
        if (!fixed)
            axY->applyNiceNumbers();
    }
    c->addAxis(axX, Qt::AlignBottom);
    c->addAxis(axY, Qt::AlignLeft);
    c->legend()->setAlignment(Qt::AlignTop);

    if (m_style == Bar) {
        auto* bars = new QBarSeries;
        for (int s = 0; s < m_values.size(); ++s) {
            auto* set = new QBarSet(m_seriesNames.value(s));
            for (int i = m_first; i < m_first + m_count; ++i)
                *set << m_values[s].value(i);
            bars->append(set);
        }
        c->addSeries(bars);
        bars->attachAxis(axX);
        bars->attachAxis(axY);
    } else {
        for (int s = 0; s < m_values.size(); ++s) {
            auto* line = new QLineSeries;
            line->setName(m_seriesNames.value(s));
            line->setPointsVisible(m_count <= 60);
            const bool byTime = timeAxis();
            for (int i = m_first; i < m_first + m_count; ++i)
                line->append(byTime ? double(m_times[i].toMSecsSinceEpoch()) : double(i - m_first),
                             m_values[s].value(i));
            c->addSeries(line);
            line->attachAxis(axX);
            line->attachAxis(axY);
        }
    }
    updateScrollBar();
}

// ---- printing -----------------------------------------------------------------------------

void Chart::Render(QPaintDevice* device)
{
    QPainter p(device);
    p.setRenderHint(QPainter::Antialiasing);
    const QRect target(0, 0, device->width(), device->height());
    // Keep the on-screen proportions inside the target.
    if (m_view->width() < 100 || m_view->height() < 100)
        m_view->resize(640, 480);   // a chart that was never shown
    QSize s = m_view->size();
    s.scale(target.size(), Qt::KeepAspectRatio);
    m_view->render(&p, QRectF(QPointF(0, 0), s), m_view->viewport()->rect());
}

bool Chart::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    return Print(&printer);
}

bool Chart::Print(QPrinter* printer)
{
    if (!PrintDialog(printer))
        return false;
    Render(printer);
    return true;
}
