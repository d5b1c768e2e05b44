#pragma once
// The XML files of training devices and sites: TCX (Trackpoint's Time and HeartRateBpm/Value)
// and GPX (trkpt's time and the hr of a TrackPointExtension, version 1 or 2). A point without
// a time or a heart rate gives nothing; a point without position counts like any other.
#include <QByteArray>
#include <QString>
#include "exercise/rules/hrmtrack.h"

namespace hrm {

// "TrainingCenterDatabase", "gpx", or "" when the text is no XML with a root element.
QString XmlRoot(const QByteArray& bytes);

// A TCX file: each Track after the first one of a Lap is a pause of the timer (the time
// between laps is told by the gap rule). Times in seconds since 1970.
Track ReadTcx(const QByteArray& bytes);
// A GPX file: each track segment or track after the first is a pause.
Track ReadGpx(const QByteArray& bytes);

// Seconds since 1970 of an ISO 8601 time ("2024-05-01T06:00:00Z", with fractions or an
// offset); NaN when unreadable.
double IsoSeconds(const QString& text);

// Why an XML file gave nothing: not of the kind asked, or not well formed.
QString NotTrackMessage();

}  // namespace hrm
