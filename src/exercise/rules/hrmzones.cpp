#include "exercise/rules/hrmzones.h"

#include "core/regional.h"
#include "core/store/value.h"

#include <algorithm>
#include <cmath>

namespace hrm {

ZoneCounts CountZones(const QStringList& readings, const ZoneBounds& bounds)
{
    ZoneCounts out;
    double sum = 0;
    bool first = true;
    for (const QString& text : readings) {
        const double r = Val(text);
        if (first || r > out.largest)
            out.largest = r;
        first = false;
        sum += r;
        for (int z = 0; z < 5; ++z)
            if (r >= bounds.lower[z] && r <= bounds.upper[z])
                ++out.count[z];
    }
    if (!readings.isEmpty())
        out.average = regional::Round(sum / double(readings.size()), 1);
    return out;
}

QString ConvertMin(double interval, double samples)
{
    double seconds = regional::Round(interval * samples, 2);
    double hours = 0, minutes = 0;
    if (seconds >= 3600) {
        hours = std::floor(seconds / 3600);
        seconds = std::floor(std::fmod(seconds, 3600));
    }
    if (seconds > 0) {
        minutes = std::floor(seconds / 60);
        seconds = std::fmod(seconds, 60);
    }
    const QString picture = QStringLiteral("00");
    return regional::FormatNumber(hours, picture) + QLatin1Char(':') + regional::FormatNumber(minutes, picture) +
           QLatin1Char(':') + regional::FormatNumber(seconds, picture);
}

GraphPoints GraphHRMPoints(const QStringList& readings, double interval, int maxPoints)
{
    GraphPoints g;
    const qsizetype n = readings.size();
    if (n == 0)
        return g;
    const qsizetype run = std::max<qsizetype>(1, (n + maxPoints - 1) / std::max(1, maxPoints));
    g.labels.reserve(n / run + 1);
    g.values.reserve(n / run + 1);
    for (qsizetype start = 0; start < n; start += run) {
        const qsizetype end = std::min(n, start + run);
        double sum = 0;
        for (qsizetype i = start; i < end; ++i)
            sum += Val(readings[i]);
        g.values.append(sum / double(end - start));
        g.labels.append(NumberText(regional::Round(double(end) * interval / 60.0, 1)));
    }
    return g;
}

}  // namespace hrm
