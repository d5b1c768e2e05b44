#pragma once
// A reader of the FIT protocol, the binary file of current watches and bike computers, for
// the heart rate: the file header and its checks, definition and data messages in either
// byte order, compressed timestamp headers, developer fields (skipped), and of the messages
// the `record` (global number 20: timestamp 253, heart_rate 3) and the timer's `event`
// (global number 21: event 0 = timer, event_type 1, 4, 8, 9 = stop, 0 = start). Several
// FIT files written one after the other are read as one.
#include <QByteArray>
#include <QString>
#include "exercise/rules/hrmtrack.h"

namespace fit {

// Messages and fields read.
constexpr int MesgRecord = 20;
constexpr int MesgEvent = 21;
constexpr int FieldTimestamp = 253;
constexpr int FieldHeartRate = 3;

// The check sum of the protocol (CRC-16, polynomial 0xA001 reflected, start 0) over bytes,
// continuing from `crc`.
quint16 Crc(const char* data, qsizetype size, quint16 crc = 0);
bool LooksLikeFit(const QByteArray& bytes);   // a header with ".FIT" in its place

// Messages shown when a file cannot be read; nothing is taken from such a file.
QString NotFitMessage();
QString DamagedMessage();      // a check sum that does not match
QString CutShortMessage();     // the file ends inside its data
QString NoDefinitionMessage(); // a data message with no definition before it

// The readings with heart rate, in file order, at their timestamps (seconds since the FIT
// epoch); a stop of the timer marks the next reading with pauseBefore. Records without a
// heart rate (or with the invalid 0xFF or 0) give nothing.
hrm::Track Read(const QByteArray& bytes);

// Counts the data messages of a file, decoding each (for measuring the bare decode).
long CountMessages(const QByteArray& bytes);

}  // namespace fit
