#pragma once
// What a session's heart-rate readings come to: the time in each of the athlete's five zones,
// the average, and the points and minute labels of the chart.
#include <QString>
#include <QStringList>
#include <QVector>

namespace hrm {

// The ten bounds of hrm_info: zone n runs from lower[n] to upper[n], both included.
struct ZoneBounds {
    double lower[5] = {0, 0, 0, 0, 0};
    double upper[5] = {0, 0, 0, 0, 0};
};

struct ZoneCounts {
    long count[5] = {0, 0, 0, 0, 0};   // readings in each zone
    double average = 0;                // rounded to 1 decimal
    double largest = 0;
};

// Each reading (by its value) counts in every zone whose bounds hold it: zones are tested
// one by one, so a reading on a shared bound counts twice and one outside all in none.
ZoneCounts CountZones(const QStringList& readings, const ZoneBounds& bounds);

// A number of samples as "hh:mm:ss" at `interval` seconds a sample.
QString ConvertMin(double interval, double samples);

// The chart of the readings: one point a reading, or, for more than `maxPoints`, the average
// of each run of consecutive readings, at the run's last reading. The label of a point at
// reading i (from 1) is the elapsed minutes, i x interval / 60 rounded to 1 decimal.
struct GraphPoints {
    QStringList labels;
    QVector<double> values;
};
constexpr int MaxGraphPoints = 200;
GraphPoints GraphHRMPoints(const QStringList& readings, double interval, int maxPoints = MaxGraphPoints);

}  // namespace hrm
