#pragma once
// A device file of any kind the import takes beside the monitors' text files (FIT, TCX, GPX),
// known by its content, read and resampled to one sample rate.
#include <QString>
#include "exercise/rules/hrmtrack.h"

namespace hrm {

struct DeviceImport {
    Resampled resampled;   // empty when the file had no heart rate
    QString error;         // not empty: the file could not be read, nothing was taken
};

// The device types of the monitor list.
bool IsDeviceType(const QString& type);   // "FIT", "TCX", "GPX"

DeviceImport ReadDeviceBytes(const QByteArray& bytes);
// A file that cannot be opened gives nothing and no error (as a missing monitor file does).
DeviceImport ReadDeviceFile(const QString& path);

}  // namespace hrm
