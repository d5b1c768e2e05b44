#pragma once
// Heart-rate readings as a device records them (at their own times, with pauses), and the
// turning of them into a list of readings at one fixed sample rate.
#include <QString>
#include <QStringList>
#include <QVector>

namespace hrm {

// One heart-rate reading at its time (seconds, any fixed origin).
struct TimedReading {
    double time = 0;
    int bpm = 0;
    bool pauseBefore = false;   // the timer was stopped between the reading before and this one
};

// What a device file gave: its readings in file order, or why it could not be read.
struct Track {
    QVector<TimedReading> readings;
    QString error;   // not empty: the file is unreadable and nothing is taken from it
};

// A list of readings at one sample rate, as the screen keeps them.
struct Resampled {
    QVector<int> readings;
    int rate = 1;    // seconds between readings
};

// Two readings further apart than this many sample rates (and at least MinGapSeconds) are
// taken as a pause: the time between them is not filled.
constexpr int GapSamples = 5;
constexpr double MinGapSeconds = 10;

// The file's usual spacing in whole seconds: the most frequent distance between readings
// (the smaller one on a tie), outside pauses; 1 at least, 1 when there is nothing to measure.
int UsualSpacing(const QVector<TimedReading>& readings);

// Resamples to the usual spacing (1 second unless the device recorded more coarsely). Within a
// stretch of recording each time on the grid takes the latest reading at or before it, so a
// stretch from t0 to t1 gives floor((t1 - t0) / rate) + 1 readings: readings x rate is the time
// recorded. A pause, a gap longer than the threshold above, or a time going backwards starts a
// new stretch; nothing is invented across it.
Resampled Resample(const QVector<TimedReading>& readings);

// The readings as the list shows them.
QStringList ToList(const QVector<int>& readings);

}  // namespace hrm
