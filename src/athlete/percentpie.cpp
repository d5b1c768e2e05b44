#include "athlete/percentpie.h"

#include <QChart>
#include <QChartView>
#include <QPieSeries>
#include <QPieSlice>
#include <QVBoxLayout>

PercentPie::PercentPie(QWidget* parent) : QWidget(parent)
{
    m_series = new QPieSeries;
    m_chart = new QChart;
    m_chart->addSeries(m_series);
    m_chart->legend()->setAlignment(Qt::AlignBottom);
    m_chart->setMargins(QMargins(2, 2, 2, 2));
    m_chart->setBackgroundRoundness(0);
    m_view = new QChartView(m_chart, this);
    m_view->setRenderHint(QPainter::Antialiasing);
    auto* lay = new QVBoxLayout(this);
    lay->setContentsMargins(0, 0, 0, 0);
    lay->addWidget(m_view);
    setMinimumSize(240, 200);
    SetValues(0, 0, 0);
}

void PercentPie::SetTitle(const QString& title) { m_chart->setTitle(title); }

void PercentPie::SetValues(double carbs, double protein, double fat)
{
    m_series->clear();
    const struct { const char* name; double value; QColor color; } slices[] = {
        {"Carbs", carbs, QColor(0x4e, 0x79, 0xa7)},
        {"Protein", protein, QColor(0xe1, 0x57, 0x59)},
        {"Fat", fat, QColor(0xf2, 0x8e, 0x2b)}};
    for (const auto& s : slices) {
        auto* slice = m_series->append(QString::fromLatin1(s.name), qMax(0.0, s.value));
        slice->setColor(s.color);
        slice->setLabel(QStringLiteral("%1 %2%").arg(QString::fromLatin1(s.name)).arg(s.value));
        slice->setLabelVisible(false);   // the legend carries the names and figures
    }
}

QList<double> PercentPie::Values() const
{
    QList<double> v;
    for (QPieSlice* s : m_series->slices()) v << s->value();
    return v;
}
