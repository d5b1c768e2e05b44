#include "exercise/rules/fitfile.h"

#include <array>
#include <cstring>
#include <functional>

namespace fit {

namespace {

constexpr quint16 CrcTable[16] = {0x0000, 0xCC01, 0xD801, 0x1400, 0xF001, 0x3C00, 0x2800, 0xE401,
                                  0xA001, 0x6C00, 0x7800, 0xB401, 0x5000, 0x9C01, 0x8801, 0x4400};

struct FieldDef {
    quint8 number = 0;
    quint8 size = 0;
};

struct Definition {
    bool defined = false;
    bool bigEndian = false;
    quint16 global = 0;
    QVector<FieldDef> fields;
    int size = 0;   // bytes of a data message, developer fields included
};

quint32 Read32(const uchar* p, bool big)
{
    return big ? (quint32(p[0]) << 24) | (quint32(p[1]) << 16) | (quint32(p[2]) << 8) | p[3]
               : (quint32(p[3]) << 24) | (quint32(p[2]) << 16) | (quint32(p[1]) << 8) | p[0];
}

quint16 Read16(const uchar* p, bool big)
{
    return big ? quint16((p[0] << 8) | p[1]) : quint16((p[1] << 8) | p[0]);
}

// One data message as the walk hands it over: its global number, the timestamp it carries
// (its own field 253, or the one of a compressed header; 0 when none is known) and its bytes.
struct Message {
    quint16 global;
    quint32 timestamp;
    bool ownTimestamp;
    const Definition* def;
    const uchar* data;
};

// Reads the value of field `number` of a message as an unsigned number of its size (the
// first element of an array); false when the message has no such field.
bool FieldValue(const Message& m, int number, quint32* value)
{
    const uchar* p = m.data;
    for (const FieldDef& f : m.def->fields) {
        if (f.number == number) {
            if (f.size >= 4)
                *value = Read32(p, m.def->bigEndian);
            else if (f.size >= 2)
                *value = Read16(p, m.def->bigEndian);
            else if (f.size == 1)
                *value = *p;
            else
                return false;
            return true;
        }
        p += f.size;
    }
    return false;
}

// Walks every data message of every file in `bytes`; returns "" or the message that says why
// the file is unreadable (then `onMessage` may have seen part of it).
QString Walk(const QByteArray& bytes, const std::function<void(const Message&)>& onMessage)
{
    const auto* b = reinterpret_cast<const uchar*>(bytes.constData());
    const qsizetype n = bytes.size();
    qsizetype pos = 0;
    bool any = false;
    while (pos < n) {
        if (n - pos < 12)
            return any ? CutShortMessage() : NotFitMessage();
        const int headerSize = b[pos];
        if ((headerSize != 12 && headerSize != 14) || memcmp(b + pos + 8, ".FIT", 4) != 0)
            return any ? DamagedMessage() : NotFitMessage();
        if (n - pos < headerSize)
            return CutShortMessage();
        if (headerSize == 14) {
            const quint16 hcrc = Read16(b + pos + 12, false);
            if (hcrc != 0 && hcrc != Crc(bytes.constData() + pos, 12))
                return DamagedMessage();
        }
        const quint32 dataSize = Read32(b + pos + 4, false);
        const qsizetype end = pos + headerSize + qsizetype(dataSize);
        if (end + 2 > n)
            return CutShortMessage();
        if (Crc(bytes.constData() + pos, end + 2 - pos) != 0)
            return DamagedMessage();
        any = true;

        std::array<Definition, 16> defs;
        quint32 last = 0;   // the last timestamp seen, for compressed headers
        qsizetype p = pos + headerSize;
        while (p < end) {
            const uchar h = b[p++];
            int local;
            bool compressed = false;
            quint32 compressedTime = 0;
            if (h & 0x80) {
                local = (h >> 5) & 0x03;
                const quint32 offset = h & 0x1F;
                compressedTime = (last & ~quint32(0x1F)) + offset;
                if (offset < (last & 0x1F))
                    compressedTime += 0x20;
                last = compressedTime;
                compressed = true;
            } else if (h & 0x40) {
                // Definition message.
                local = h & 0x0F;
                const bool developer = h & 0x20;
                if (end - p < 5)
                    return DamagedMessage();
                Definition d;
                d.defined = true;
                d.bigEndian = b[p + 1] == 1;
                d.global = Read16(b + p + 2, d.bigEndian);
                const int count = b[p + 4];
                p += 5;
                if (end - p < qsizetype(count) * 3)
                    return DamagedMessage();
                for (int i = 0; i < count; ++i, p += 3) {
                    d.fields.append(FieldDef{b[p], b[p + 1]});
                    d.size += b[p + 1];
                }
                if (developer) {
                    if (end - p < 1)
                        return DamagedMessage();
                    const int devCount = b[p++];
                    if (end - p < qsizetype(devCount) * 3)
                        return DamagedMessage();
                    for (int i = 0; i < devCount; ++i, p += 3)
                        d.size += b[p + 1];   // developer fields are skipped by their size
                }
                defs[local] = std::move(d);
                continue;
            } else {
                local = h & 0x0F;
            }
            const Definition& d = defs[local];
            if (!d.defined)
                return NoDefinitionMessage();
            if (end - p < d.size)
                return DamagedMessage();
            Message m{d.global, compressed ? compressedTime : last, false, &d, b + p};
            quint32 ts = 0;
            if (!compressed && FieldValue(m, FieldTimestamp, &ts) && ts != 0xFFFFFFFFu) {
                last = ts;
                m.timestamp = ts;
                m.ownTimestamp = true;
            }
            onMessage(m);
            p += d.size;
        }
        pos = end + 2;
    }
    return any ? QString() : NotFitMessage();
}

}  // namespace

quint16 Crc(const char* data, qsizetype size, quint16 crc)
{
    for (qsizetype i = 0; i < size; ++i) {
        const quint8 byte = quint8(data[i]);
        quint16 tmp = CrcTable[crc & 0xF];
        crc = (crc >> 4) & 0x0FFF;
        crc = crc ^ tmp ^ CrcTable[byte & 0xF];
        tmp = CrcTable[crc & 0xF];
        crc = (crc >> 4) & 0x0FFF;
        crc = crc ^ tmp ^ CrcTable[(byte >> 4) & 0xF];
    }
    return crc;
}

bool LooksLikeFit(const QByteArray& bytes)
{
    return bytes.size() >= 12 && (bytes[0] == 12 || bytes[0] == 14) && bytes.mid(8, 4) == ".FIT";
}

QString NotFitMessage()
{
    return QStringLiteral("The file is not a FIT file; nothing was imported.");
}

QString DamagedMessage()
{
    return QStringLiteral("The FIT file is damaged (its check does not match its data); nothing was imported.");
}

QString CutShortMessage()
{
    return QStringLiteral("The FIT file is cut short (it ends inside its data); nothing was imported.");
}

QString NoDefinitionMessage()
{
    return QStringLiteral("The FIT file is damaged (a message has no definition); nothing was imported.");
}

hrm::Track Read(const QByteArray& bytes)
{
    hrm::Track track;
    bool paused = false;
    track.error = Walk(bytes, [&](const Message& m) {
        if (m.global == MesgEvent) {
            quint32 event = 0xFF, type = 0xFF;
            if (FieldValue(m, 0, &event) && event == 0 && FieldValue(m, 1, &type)) {
                if (type == 1 || type == 4 || type == 8 || type == 9)
                    paused = true;
            }
            return;
        }
        if (m.global != MesgRecord)
            return;
        quint32 hr = 0;
        if (!FieldValue(m, FieldHeartRate, &hr) || hr == 0 || hr == 0xFF)
            return;
        if (!m.ownTimestamp && m.timestamp == 0)
            return;   // a reading at no known time
        track.readings.append(hrm::TimedReading{double(m.timestamp), int(hr), paused});
        paused = false;
    });
    if (!track.error.isEmpty())
        track.readings.clear();
    return track;
}

long CountMessages(const QByteArray& bytes)
{
    long count = 0;
    Walk(bytes, [&count](const Message&) { ++count; });
    return count;
}

}  // namespace fit
