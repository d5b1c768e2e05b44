// The heart-rate import's speed: a 24-hour FIT file recorded each second (86,400 records),
// imported with its zone times, against the raw work of reading its bytes and of decoding it.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "core/opendatabases.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/ui.h"
#include "exercise/frmHRM.h"
#include "exercise/rules/fitfile.h"
#include "exercise/rules/hrmdevice.h"
#include "exercise/rules/hrmzones.h"

#include <QComboBox>
#include <QListWidget>

namespace {

constexpr int kRecords = 86400;

void Put16(QByteArray& b, quint16 v)
{
    b.append(char(v & 0xFF));
    b.append(char(v >> 8));
}

void Put32(QByteArray& b, quint32 v)
{
    Put16(b, quint16(v & 0xFFFF));
    Put16(b, quint16(v >> 16));
}

// A day at the heart rates of every zone: records of timestamp, heart rate and power.
QByteArray DayFit()
{
    QByteArray data;
    data.append(char(0x40));                   // definition, local type 0
    data.append(char(0));
    data.append(char(0));                      // little-endian
    Put16(data, fit::MesgRecord);
    data.append(char(3));
    const char fields[] = "\xFD\x04\x86\x03\x01\x02\x07\x02\x84";   // timestamp, heart rate, power
    data.append(fields, 9);
    const quint32 t0 = 1100000000;
    for (int i = 0; i < kRecords; ++i) {
        data.append(char(0));
        Put32(data, t0 + quint32(i));
        data.append(char(100 + (i / 300) % 95));
        Put16(data, quint16(200 + i % 50));
    }
    QByteArray file;
    file.append(char(14));
    file.append(char(0x20));
    Put16(file, 2132);
    Put32(file, quint32(data.size()));
    file.append(".FIT", 4);
    Put16(file, fit::Crc(file.constData(), 12));
    file += data;
    Put16(file, fit::Crc(file.constData(), file.size()));
    return file;
}

struct Stores {
    QTemporaryDir dir;
    QString fitPath;
    Stores()
    {
        SetProgramFolder(dir.path());
        OpenDatabases();
        Recordset rs(&UserConn);
        rs.Open(QStringLiteral("User_Info"));
        rs.AddNew();
        rs.SetField(QStringLiteral("Name"), QStringLiteral("Day long"));
        rs.Update();
        CurrentUserID = Str(rs.Field(QStringLiteral("User_ID")));
        rs.Close();
        UserConn.Execute(QStringLiteral("insert into hrm_info (User_ID, Z1Lower, Z1Upper, Z2Lower, Z2Upper, Z3Lower, "
                                        "Z3Upper, Z4Lower, Z4Upper, Z5Lower, Z5Upper) values ('") +
                         CurrentUserID + QStringLiteral("', 115, 140, 141, 160, 161, 170, 171, 180, 181, 190)"));
        fitPath = dir.filePath(QStringLiteral("day.fit"));
        QFile f(fitPath);
        f.open(QIODevice::WriteOnly);
        f.write(DayFit());
    }
};
Stores* g_stores = nullptr;

QByteArray ReadAll()
{
    QFile f(g_stores->fitPath);
    f.open(QIODevice::ReadOnly);
    return f.readAll();
}

// Raw work: the file's bytes read and summed.
void BM_ReadAndSumBytes(benchmark::State& state)
{
    for (auto _ : state) {
        const QByteArray b = ReadAll();
        quint64 sum = 0;
        for (char c : b)
            sum += quint8(c);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_ReadAndSumBytes)->Unit(benchmark::kMillisecond);

// The bare decode: every message walked, the check sum computed.
void BM_FitDecode(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(fit::CountMessages(ReadAll()));
}
BENCHMARK(BM_FitDecode)->Unit(benchmark::kMillisecond);

// The import's rules: read, decode, resample, the list's text, zone counts and times.
void BM_ImportWithZones(benchmark::State& state)
{
    hrm::ZoneBounds bounds;
    const double v[10] = {115, 140, 141, 160, 161, 170, 171, 180, 181, 190};
    for (int z = 0; z < 5; ++z) {
        bounds.lower[z] = v[2 * z];
        bounds.upper[z] = v[2 * z + 1];
    }
    for (auto _ : state) {
        const hrm::DeviceImport in = hrm::ReadDeviceFile(g_stores->fitPath);
        const QStringList list = hrm::ToList(in.resampled.readings);
        const hrm::ZoneCounts c = hrm::CountZones(list, bounds);
        QStringList times;
        for (long n : c.count)
            times << hrm::ConvertMin(in.resampled.rate, double(n));
        if (list.size() != kRecords)
            state.SkipWithError("wrong number of readings");
        benchmark::DoNotOptimize(times);
    }
}
BENCHMARK(BM_ImportWithZones)->Unit(benchmark::kMillisecond);

// The screen's whole import: the list filled, the row stored, the zone times sent, the chart.
void BM_ScreenImport(benchmark::State& state)
{
    HrmSession session;
    session.date = QDate(2026, 11, 20);
    session.name = QStringLiteral("Ultra");
    session.key = QStringLiteral("1");
    QStringList zones;
    session.zonesChanged = [&zones](const QStringList& times, double) { zones = times; };
    frmHRM f(session);
    f.cboHRM->setCurrentIndex(f.cboHRM->findText(QStringLiteral("FIT")));
    for (auto _ : state) {
        f.ImportFile(g_stores->fitPath);
        if (f.lstHRM->count() != kRecords)
            state.SkipWithError("wrong number of readings");
    }
    f.lstHRM->clear();
    f.reject();
}
BENCHMARK(BM_ScreenImport)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    regional::SetLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    // The import's messages are answered at once.
    ui::CurrentHooks().msgBox = [](const QString&, int, const QString&) { return int(vbOK); };
    Stores stores;
    g_stores = &stores;
    // The monitor type the screen keeps goes to the run's own folder, not the user's settings.
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, stores.dir.path());
    ::benchmark::Initialize(&argc, argv);
    ::benchmark::RunSpecifiedBenchmarks();
    ::benchmark::Shutdown();
    ResetSharedState();
    return 0;
}
