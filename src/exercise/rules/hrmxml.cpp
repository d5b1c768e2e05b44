#include "exercise/rules/hrmxml.h"

#include <QDateTime>
#include <QXmlStreamReader>
#include <cmath>

namespace hrm {

namespace {

Track Failed(const QXmlStreamReader& xml)
{
    Track t;
    t.error = QStringLiteral("The file could not be read (line %1: %2); nothing was imported.")
                  .arg(xml.lineNumber())
                  .arg(xml.errorString());
    return t;
}

Track WrongKind()
{
    Track t;
    t.error = NotTrackMessage();
    return t;
}

// Reads a point's content up to its end element: the time and the heart rate (a Value under
// HeartRateBpm in TCX, an hr or heartrate element in GPX).
void ReadPoint(QXmlStreamReader& xml, double* time, int* bpm)
{
    const QStringView end = xml.name();
    const QString endName = end.toString();
    bool inHeartRate = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement()) {
            if (xml.name() == endName)
                return;
            if (xml.name() == QLatin1String("HeartRateBpm"))
                inHeartRate = false;
            continue;
        }
        if (!xml.isStartElement())
            continue;
        const QStringView name = xml.name();
        if (name == QLatin1String("Time") || name == QLatin1String("time")) {
            *time = IsoSeconds(xml.readElementText().trimmed());
        } else if (name == QLatin1String("HeartRateBpm")) {
            inHeartRate = true;
        } else if ((inHeartRate && name == QLatin1String("Value")) || name == QLatin1String("hr") ||
                   name == QLatin1String("heartrate")) {
            *bpm = qRound(xml.readElementText().trimmed().toDouble());
        }
    }
}

Track ReadTrack(const QByteArray& bytes, const QString& root, const QString& point,
                const QStringList& pauseElements, const QString& groupElement)
{
    QXmlStreamReader xml(bytes);
    Track track;
    bool rootSeen = false;
    bool pending = false;     // a pause before the next reading
    bool first = true;        // the first track (segment) of its group
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const QStringView name = xml.name();
        if (!rootSeen) {
            if (name != root)
                return WrongKind();
            rootSeen = true;
            continue;
        }
        if (!groupElement.isEmpty() && name == groupElement) {
            first = true;
        } else if (pauseElements.contains(name.toString())) {
            if (!first && !track.readings.isEmpty())
                pending = true;
            first = false;
        } else if (name == point) {
            double time = NAN;
            int bpm = 0;
            ReadPoint(xml, &time, &bpm);
            if (std::isfinite(time) && bpm > 0) {
                track.readings.append(TimedReading{time, bpm, pending});
                pending = false;
            }
        }
    }
    if (xml.hasError())
        return Failed(xml);
    if (!rootSeen)
        return WrongKind();
    return track;
}

}  // namespace

QString XmlRoot(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement())
            return xml.name().toString();
    }
    return QString();
}

Track ReadTcx(const QByteArray& bytes)
{
    return ReadTrack(bytes, QStringLiteral("TrainingCenterDatabase"), QStringLiteral("Trackpoint"),
                     {QStringLiteral("Track")}, QStringLiteral("Lap"));
}

Track ReadGpx(const QByteArray& bytes)
{
    return ReadTrack(bytes, QStringLiteral("gpx"), QStringLiteral("trkpt"),
                     {QStringLiteral("trkseg"), QStringLiteral("trk")}, QString());
}

double IsoSeconds(const QString& text)
{
    QDateTime t = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!t.isValid())
        t = QDateTime::fromString(text, Qt::ISODate);
    if (!t.isValid())
        return NAN;
    if (t.timeSpec() == Qt::LocalTime)
        t.setTimeSpec(Qt::UTC);   // a time without a zone is read as UTC, never shifted
    return double(t.toMSecsSinceEpoch()) / 1000.0;
}

QString NotTrackMessage()
{
    return QStringLiteral("The file is not a FIT, TCX or GPX file; nothing was imported.");
}

}  // namespace hrm
