#include "exercise/rules/hrmtrack.h"

#include <QMap>
#include <algorithm>
#include <cmath>

namespace hrm {

namespace {
bool IsBreak(const TimedReading& prev, const TimedReading& next, double gap)
{
    const double d = next.time - prev.time;
    return next.pauseBefore || d < 0 || d > gap;
}

double GapFor(int rate)
{
    return std::max(MinGapSeconds, double(GapSamples * rate));
}
}  // namespace

int UsualSpacing(const QVector<TimedReading>& readings)
{
    // Count whole-second spacings; pauses and long gaps (by a first guess of 1 s) say nothing
    // of the recording rate, except that a coarse recorder's every spacing is such a "gap":
    // so count them all and only leave out what follows a stopped timer or goes backwards.
    QMap<qint64, int> counts;
    for (int i = 1; i < readings.size(); ++i) {
        const double d = readings[i].time - readings[i - 1].time;
        if (readings[i].pauseBefore || d <= 0)
            continue;
        ++counts[qint64(std::llround(d))];
    }
    qint64 best = 1;
    int bestCount = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (it.value() > bestCount) {   // ascending keys: a tie keeps the smaller spacing
            best = it.key();
            bestCount = it.value();
        }
    return int(std::max<qint64>(1, best));
}

Resampled Resample(const QVector<TimedReading>& readings)
{
    Resampled out;
    if (readings.isEmpty())
        return out;
    out.rate = UsualSpacing(readings);
    const double rate = out.rate;
    const double gap = GapFor(out.rate);
    out.readings.reserve(readings.size());

    int start = 0;
    while (start < readings.size()) {
        // One stretch: readings start .. end - 1.
        int end = start + 1;
        while (end < readings.size() && !IsBreak(readings[end - 1], readings[end], gap))
            ++end;
        const double t0 = readings[start].time;
        const double span = readings[end - 1].time - t0;
        // A small allowance so that times written with fractions land on their own sample.
        const qint64 samples = qint64(std::floor(span / rate + 1e-6)) + 1;
        int j = start;
        for (qint64 k = 0; k < samples; ++k) {
            const double t = t0 + double(k) * rate;
            while (j + 1 < end && readings[j + 1].time <= t + 1e-6)
                ++j;
            out.readings.append(readings[j].bpm);
        }
        start = end;
    }
    return out;
}

QStringList ToList(const QVector<int>& readings)
{
    QStringList list;
    list.reserve(readings.size());
    for (int r : readings)
        list.append(QString::number(r));
    return list;
}

}  // namespace hrm
