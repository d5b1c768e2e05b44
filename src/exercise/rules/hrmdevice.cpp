#include "exercise/rules/hrmdevice.h"

#include "exercise/rules/fitfile.h"
#include "exercise/rules/hrmxml.h"

#include <QFile>

namespace hrm {

bool IsDeviceType(const QString& type)
{
    return type == QLatin1String("FIT") || type == QLatin1String("TCX") || type == QLatin1String("GPX");
}

DeviceImport ReadDeviceBytes(const QByteArray& bytes)
{
    Track track;
    if (fit::LooksLikeFit(bytes)) {
        track = fit::Read(bytes);
    } else {
        const QString root = XmlRoot(bytes);
        if (root == QLatin1String("TrainingCenterDatabase"))
            track = ReadTcx(bytes);
        else if (root == QLatin1String("gpx"))
            track = ReadGpx(bytes);
        else
            track.error = NotTrackMessage();
    }
    DeviceImport out;
    out.error = track.error;
    if (out.error.isEmpty())
        out.resampled = Resample(track.readings);
    return out;
}

DeviceImport ReadDeviceFile(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return DeviceImport();
    return ReadDeviceBytes(f.readAll());
}

}  // namespace hrm
