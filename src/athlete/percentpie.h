#pragma once
// The pie of the calorie percentages on the athlete screen: three slices, Carbs, Protein, Fat.
#include <QWidget>

class QChart;
class QChartView;
class QPieSeries;

class PercentPie : public QWidget {
    Q_OBJECT
public:
    explicit PercentPie(QWidget* parent = nullptr);
    void SetTitle(const QString& title);
    void SetValues(double carbs, double protein, double fat);
    // What the slices show now, in the order Carbs, Protein, Fat.
    QList<double> Values() const;

private:
    QChart* m_chart = nullptr;
    QChartView* m_view = nullptr;
    QPieSeries* m_series = nullptr;
};
