// The heart-rate file readers, resampling, zones and times, driven by the sample folder: one
// row a file with what it must give.
#include <gtest/gtest.h>

#include "exercise/rules/fitfile.h"
#include "exercise/rules/hrmdevice.h"
#include "exercise/rules/hrmtext.h"
#include "exercise/rules/hrmtrack.h"
#include "exercise/rules/hrmxml.h"
#include "exercise/rules/hrmzones.h"
#include "fixtures/fixture.h"

#include <QFile>
#include <optional>

using namespace hrm;

namespace {

QByteArray Sample(const QString& name)
{
    QFile f(SourceFile(QStringLiteral("tests/exercise/hrm_samples/") + name));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << name.toStdString();
    return f.readAll();
}

// The zones of the samples: 115-140, 141-160, 161-170, 171-180, 181-190.
ZoneBounds TestZones()
{
    ZoneBounds b;
    const double v[10] = {115, 140, 141, 160, 161, 170, 171, 180, 181, 190};
    for (int z = 0; z < 5; ++z) {
        b.lower[z] = v[2 * z];
        b.upper[z] = v[2 * z + 1];
    }
    return b;
}

QStringList ZoneTimes(const QStringList& readings, double rate)
{
    const ZoneCounts c = CountZones(readings, TestZones());
    QStringList times;
    for (long n : c.count)
        times << ConvertMin(rate, double(n));
    return times;
}

}  // namespace

TEST(HrmTextFiles, PolarAndFixedColumnSamples)
{
    struct Row {
        const char* file;
        bool polar;
        QStringList readings;
        std::optional<double> interval;
    };
    const Row rows[] = {
        // Three tab columns give the first; a blank line ends the data before [IntTimes].
        {"polar_basic.hrm", true, {"118", "122", "125", "131", "140", "141", "150", "160"}, 5},
        // "0" is a reading; the interval only on the line that ends the data; nothing after it.
        {"polar_interval_end.hrm", true, {"130", "0", "135"}, 15},
        {"polar_cr_only.hrm", true, {"100", "110", "120", "130"}, 2},
        // A line of letters ends the import; the readings before it stay.
        {"polar_letters.hrm", true, {"150", "0", "155"}, 1},
        // No data section: nothing, but the interval is still read.
        {"polar_no_hrdata.hrm", true, {}, 60},
        {"polar_binary.hrm", true, {}, std::nullopt},
        // 17 characters give nothing, 18 give the last one; a SESSION line is replaced by the next
        // line, which is read as data whatever it holds; readings are taken as they stand.
        {"fixed_columns.txt", false, {"7", "NE XYZ 142", "131", "n/a", "128"}, std::nullopt},
        {"fixed_columns.txt", true, {}, std::nullopt},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.file) + (r.polar ? " as Polar" : " as fixed columns"));
        const QByteArray bytes = Sample(QString::fromLatin1(r.file));
        const TextImport in = r.polar ? ReadPolar(bytes) : ReadFixedColumns(bytes);
        EXPECT_EQ(in.readings, r.readings);
        EXPECT_EQ(in.interval, r.interval);
    }
}

TEST(HrmTextFiles, LineEndsAndPolarLineRules)
{
    EXPECT_EQ(SplitLines("a\r\nb\rc\nd"), (QStringList{"a", "b", "c", "d"}));
    EXPECT_EQ(SplitLines("a\r\n\r\nb\r\n"), (QStringList{"a", "", "b"}));
    EXPECT_EQ(SplitLines(""), QStringList());
    // The interval test is case-blind and takes the text after the first "=".
    EXPECT_EQ(ReadPolar("iNtErVaL = 4 = 9\n[hrdata]\n 90 \t1\n").interval, 4);
    EXPECT_EQ(ReadPolar("[HRDATA]\n120\t130\t140\n").readings, QStringList{"120"});
    // A negative value ends the data like letters do; " 0 " is a reading.
    EXPECT_EQ(ReadPolar("[HRData]\n100\n 0 \n-5\n110\n").readings, (QStringList{"100", "0"}));
    // A SESSION line at the very end gives nothing.
    EXPECT_TRUE(ReadFixedColumns("00:00:10         99\nsession").readings == QStringList{"99"});
}

TEST(HrmDeviceFiles, SamplesGiveKnownReadingsRatesAndZoneTimes)
{
    struct Row {
        const char* file;
        int count;
        QVector<int> first;
        int rate;
        QStringList zones;
        QString error;
    };
    const QString none = QStringLiteral("00:00:00");
    const Row rows[] = {
        // An old 5-second export: three blocks of 10 minutes.
        {"fit_s_series.fit", 360, {120, 120, 120}, 5, {"00:10:00", "00:10:00", "00:10:00", none, none}, ""},
        // Laps, an 8 s pause told only by timer events (not filled), two hours between two laps.
        {"fit_edge_bike.fit", 2400, {130, 130, 130}, 1, {"00:20:00", "00:15:00", none, "00:05:00", none}, ""},
        // Smart recording at 1 to 7 s with one record without heart rate.
        {"fit_smart_1s.fit", 1200, {125, 125, 125}, 1, {"00:10:00", "00:10:00", none, none, none}, ""},
        {"fit_smart_4s.fit", 240, {135, 135, 135}, 4, {"00:08:00", "00:08:00", none, none, none}, ""},
        // Big-endian throughout; the strap's invalid readings of the first 10 s give nothing.
        {"fit_watch_big_endian.fit", 590, {172, 172, 172}, 1, {none, none, none, "00:04:50", "00:05:00"}, ""},
        // No position, developer fields.
        {"fit_indoor.fit", 900, {150, 150, 150}, 1, {none, "00:15:00", none, none, none}, ""},
        {"fit_no_hr.fit", 0, {}, 1, {none, none, none, none, none}, ""},
        {"fit_truncated.fit", 0, {}, 1, {none, none, none, none, none}, fit::CutShortMessage()},
        {"fit_bad_crc.fit", 0, {}, 1, {none, none, none, none, none}, fit::DamagedMessage()},
        {"fit_no_definition.fit", 0, {}, 1, {none, none, none, none, none}, fit::NoDefinitionMessage()},
        // Two laps, a pause between two tracks of the first, points with and without position.
        {"tcx_laps_pause.tcx", 360, {128, 128, 128}, 1, {"00:02:00", "00:02:00", "00:02:00", none, none}, ""},
        {"tcx_treadmill.tcx", 120, {172, 172, 172}, 2, {none, none, none, "00:04:00", none}, ""},
        {"tcx_no_hr.tcx", 0, {}, 1, {none, none, none, none, none}, ""},
        {"not_tcx.tcx", 0, {}, 1, {none, none, none, none, none}, NotTrackMessage()},
        {"tcx_truncated.tcx", 0, {}, 1, {none, none, none, none, none}, "The file could not be read"},
        {"gpx_tpx_v1.gpx", 240, {138, 138, 138}, 1, {"00:02:00", none, "00:02:00", none, none}, ""},
        {"gpx_tpx_v2.gpx", 180, {178, 178, 178}, 1, {none, none, none, "00:01:30", "00:01:30"}, ""},
        {"gpx_no_hr.gpx", 0, {}, 1, {none, none, none, none, none}, ""},
        // A Polar file chosen as a device file.
        {"polar_basic.hrm", 0, {}, 1, {none, none, none, none, none}, NotTrackMessage()},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.file);
        const DeviceImport in = ReadDeviceBytes(Sample(QString::fromLatin1(r.file)));
        if (r.error.isEmpty())
            EXPECT_EQ(in.error, QString());
        else
            EXPECT_TRUE(in.error.startsWith(r.error)) << in.error.toStdString();
        EXPECT_EQ(in.resampled.readings.size(), r.count);
        EXPECT_EQ(in.resampled.readings.mid(0, 3), r.first);
        if (r.count > 0) {
            EXPECT_EQ(in.resampled.rate, r.rate);
            EXPECT_EQ(ZoneTimes(ToList(in.resampled.readings), in.resampled.rate), r.zones);
        }
    }
}

TEST(HrmDeviceFiles, FitProtocolDetails)
{
    // The protocol's check of "123456789" (CRC-16/ARC).
    EXPECT_EQ(fit::Crc("123456789", 9), 0xBB3D);
    // A header cut inside, an empty file, a text file: not FIT, nothing read, no crash.
    EXPECT_EQ(fit::Read(Sample("fit_s_series.fit").left(10)).error, fit::NotFitMessage());
    EXPECT_EQ(fit::Read(QByteArray()).error, fit::NotFitMessage());
    EXPECT_FALSE(fit::LooksLikeFit("<?xml version=\"1.0\"?><gpx/>"));
    // Two files one after the other read as one; the second's readings follow the first's.
    const QByteArray one = Sample("fit_s_series.fit");
    const Track two = fit::Read(one + one);
    EXPECT_EQ(two.error, QString());
    EXPECT_EQ(two.readings.size(), 720);
    // Every cut of a good file is refused cleanly, none crashes.
    const QByteArray bike = Sample("fit_edge_bike.fit");
    for (int cut = 0; cut < bike.size(); cut += 97)
        EXPECT_FALSE(fit::Read(bike.left(cut)).error.isEmpty()) << cut;
}

TEST(HrmResampling, GapsPausesAndUsualSpacing)
{
    // 1 s readings with a 30 s gap: two stretches, the gap not filled.
    QVector<TimedReading> r;
    for (int t = 0; t < 10; ++t)
        r.append({double(t), 100});
    for (int t = 40; t < 45; ++t)
        r.append({double(t), 150});
    Resampled out = Resample(r);
    EXPECT_EQ(out.rate, 1);
    EXPECT_EQ(out.readings.size(), 15);
    // A short gap is held at the reading before it; a marked pause is not.
    QVector<TimedReading> s{{0, 100}, {1, 100}, {4, 120}, {5, 120}};
    EXPECT_EQ(Resample(s).readings, (QVector<int>{100, 100, 100, 100, 120, 120}));
    s[2].pauseBefore = true;
    EXPECT_EQ(Resample(s).readings, (QVector<int>{100, 100, 120, 120}));
    // Fractions of seconds land on their own sample; a time going back starts a new stretch.
    QVector<TimedReading> f{{0.5, 90}, {1.5, 91}, {2.5, 92}, {1.0, 93}};
    EXPECT_EQ(Resample(f).readings, (QVector<int>{90, 91, 92, 93}));
    // A coarse recorder keeps its own spacing: 15 s apart gives 15 s samples.
    QVector<TimedReading> c;
    for (int t = 0; t <= 150; t += 15)
        c.append({double(t), 130});
    out = Resample(c);
    EXPECT_EQ(out.rate, 15);
    EXPECT_EQ(out.readings.size(), 11);
    EXPECT_TRUE(Resample({}).readings.isEmpty());
}

TEST(HrmZones, CountsAverageAndTimes)
{
    ZoneBounds b = TestZones();
    b.upper[1] = 160;
    b.lower[2] = 160;   // a shared bound: a reading of 160 counts in zones 2 and 3
    const ZoneCounts c = CountZones({"100", "120", "160", "185", "200", "abc"}, b);
    EXPECT_EQ(c.count[0], 1);
    EXPECT_EQ(c.count[1], 1);
    EXPECT_EQ(c.count[2], 1);
    EXPECT_EQ(c.count[3], 0);
    EXPECT_EQ(c.count[4], 1);
    EXPECT_DOUBLE_EQ(c.average, 127.5);   // 765 / 6; "abc" reads 0
    EXPECT_DOUBLE_EQ(c.largest, 200);
    EXPECT_DOUBLE_EQ(CountZones({"100", "101"}, b).average, 100.5);
    EXPECT_DOUBLE_EQ(CountZones({"1", "1", "2"}, b).average, 1.3);
    // Without bounds (all 0) only readings of 0 count, in every zone.
    EXPECT_EQ(CountZones({"0", "120"}, ZoneBounds()).count[3], 1);

    EXPECT_EQ(ConvertMin(5, 1000), "01:23:20");
    EXPECT_EQ(ConvertMin(1, 0), "00:00:00");
    EXPECT_EQ(ConvertMin(1, 3600), "01:00:00");
    EXPECT_EQ(ConvertMin(1, 59), "00:00:59");
    EXPECT_EQ(ConvertMin(15, 1000), "04:10:00");
    EXPECT_EQ(ConvertMin(1, 86400 * 2), "48:00:00");
}

TEST(HrmZones, GraphPointsAndMinuteLabels)
{
    QStringList r;
    for (int i = 1; i <= 12; ++i)
        r << QString::number(100 + i);
    GraphPoints g = GraphHRMPoints(r, 5);
    ASSERT_EQ(g.values.size(), 12);
    EXPECT_EQ(g.values[0], 101);
    EXPECT_EQ(g.labels[0], "0.1");    // 1 x 5 / 60 = 0.083
    EXPECT_EQ(g.labels[11], "1");     // 12 x 5 / 60
    // Many readings: runs averaged, labelled at each run's last reading.
    QStringList many;
    for (int i = 0; i < 1000; ++i)
        many << (i % 2 ? "100" : "200");
    g = GraphHRMPoints(many, 2, 400);
    EXPECT_EQ(g.values.size(), 334);   // runs of 3
    EXPECT_NEAR(g.values[0], 166.667, 1e-3);
    EXPECT_EQ(g.labels[0], "0.1");       // 6 s
    EXPECT_EQ(g.labels.last(), "33.3");  // 2000 s
    EXPECT_TRUE(GraphHRMPoints({}, 1).labels.isEmpty());
}
