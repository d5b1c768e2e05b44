#!/usr/bin/env python3
"""Writes the heart-rate sample files of the import tests into tests/exercise/hrm_samples/.

Usage:  python3 tools/make_hrm_samples.py [output folder]

The files are committed; run this again only to change them. Each sample is built from blocks
of known length at one heart rate, so that the tests know its readings and zone times without
reading it back. Zones of the tests: 115-140, 141-160, 161-170, 171-180, 181-190.

Shapes written:
  Polar .hrm     interval before / on the line ending the data, CR-only line ends, tab columns,
                 a "0" reading, a line of letters ending the import, no HRData section, and
                 a binary file named .hrm
  fixed columns  lines of 17 and 18 characters, SESSION lines, a reading that is no number
  FIT            an old 5-second watch export converted (12-byte header), a bike computer
                 (laps, a short pause told only by timer events, hours between two laps, big-
                 endian records, compressed timestamps, developer fields, positions), smart
                 recording at varying intervals (1 s usual, and 4 s usual), a watch whose strap
                 connects late (invalid readings first, big-endian everywhere), an indoor-cycling
                 application (no position, power and cadence, developer fields, header check),
                 no heart rate, cut short, a bad check, a data message with no definition
  TCX            laps with a pause between two tracks, a treadmill at 2 s (no position), no heart
                 rate, an XML file of another kind, a cut-short file
  GPX            TrackPointExtension v1 with two segments, v2 without elevation, no heart rate
"""
import os
import random
import struct
import sys
from datetime import datetime, timedelta, timezone

OUT = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
    os.path.dirname(os.path.abspath(__file__)), '..', 'tests', 'exercise', 'hrm_samples')

# ---- FIT -----------------------------------------------------------------------------------

CRC_TABLE = [0x0000, 0xCC01, 0xD801, 0x1400, 0xF001, 0x3C00, 0x2800, 0xE401,
             0xA001, 0x6C00, 0x7800, 0xB401, 0x5000, 0x9C01, 0x8801, 0x4400]


def crc16(data, crc=0):
    for byte in data:
        tmp = CRC_TABLE[crc & 0xF]
        crc = (crc >> 4) & 0x0FFF
        crc = crc ^ tmp ^ CRC_TABLE[byte & 0xF]
        tmp = CRC_TABLE[crc & 0xF]
        crc = (crc >> 4) & 0x0FFF
        crc = crc ^ tmp ^ CRC_TABLE[(byte >> 4) & 0xF]
    return crc


# base types: (code, struct letter)
ENUM, UINT8, UINT16, SINT32, UINT32 = (0x00, 'B'), (0x02, 'B'), (0x84, 'H'), (0x85, 'i'), (0x86, 'I')

FIT_EPOCH = datetime(1989, 12, 31, tzinfo=timezone.utc)
T0 = 1_100_000_000   # 2024-11-08 in FIT seconds


class Fit:
    def __init__(self):
        self.data = bytearray()
        self.defs = {}

    def define(self, local, glob, fields, big=False, dev=()):
        """fields: [(number, basetype)], dev: [(number, size, index)]"""
        head = 0x40 | local | (0x20 if dev else 0)
        order = '>' if big else '<'
        self.data += bytes([head, 0, 1 if big else 0]) + struct.pack(order + 'H', glob) + bytes([len(fields)])
        for num, (code, letter) in fields:
            self.data += bytes([num, struct.calcsize(letter), code])
        if dev:
            self.data += bytes([len(dev)])
            for num, size, idx in dev:
                self.data += bytes([num, size, idx])
        self.defs[local] = (order, fields, sum(d[1] for d in dev))

    def message(self, local, values, compressed=None, dev_bytes=None):
        assert compressed is None or local < 4
        order, fields, dev_size = self.defs[local]
        if compressed is None:
            self.data += bytes([local])
        else:
            self.data += bytes([0x80 | (local << 5) | (compressed & 0x1F)])
        for (num, (code, letter)), v in zip(fields, values):
            self.data += struct.pack(order + letter, v)
        self.data += dev_bytes if dev_bytes is not None else bytes(dev_size)

    def bytes(self, header=14, header_crc=True):
        if header == 14:
            h = struct.pack('<BBHI4s', 14, 0x20, 2132, len(self.data), b'.FIT')
            h += struct.pack('<H', crc16(h) if header_crc else 0)
        else:
            h = struct.pack('<BBHI4s', 12, 0x10, 100, len(self.data), b'.FIT')
        body = h + self.data
        return body + struct.pack('<H', crc16(body))


def file_id(f, manufacturer, product):
    f.define(0, 0, [(0, ENUM), (1, UINT16), (2, UINT16), (4, UINT32)])
    f.message(0, [4, manufacturer, product, T0])


def timer_event(f, local, t, event_type):
    f.message(local, [t, 0, event_type])   # event 0 = timer; 0 start, 4 stop_all


def fit_s_series():
    # An old 5-second watch export converted: 10 min at 120, 150 and 165.
    f = Fit()
    file_id(f, 1, 1)
    f.define(1, 20, [(253, UINT32), (3, UINT8)])
    t = T0
    for hr in (120, 150, 165):
        for _ in range(120):
            f.message(1, [t, hr])
            t += 5
    return f.bytes(header=12)


def fit_edge_bike():
    # 20 min at 130; the timer stopped for 8 s (only the events tell it); 15 min at 155; a lap;
    # two hours later 5 min at 175. Records are big-endian with positions, power and a developer
    # field; the last block uses compressed timestamps.
    f = Fit()
    file_id(f, 1, 2713)
    f.define(2, 21, [(253, UINT32), (0, ENUM), (1, ENUM)])
    f.define(5, 19, [(253, UINT32), (2, UINT32), (7, UINT32)])   # lap: start time, elapsed
    f.define(1, 20, [(253, UINT32), (0, SINT32), (1, SINT32), (3, UINT8), (7, UINT16)], big=True,
             dev=[(0, 2, 0)])
    t = T0
    timer_event(f, 2, t, 0)
    for _ in range(1200):
        f.message(1, [t, 500000000, 100000000, 130, 210], dev_bytes=b'\x01\x02')
        t += 1
    timer_event(f, 2, t - 1, 4)
    t += 8
    timer_event(f, 2, t, 0)
    for _ in range(900):
        f.message(1, [t, 500000000, 100000000, 155, 250], dev_bytes=b'\x03\x04')
        t += 1
    f.message(5, [t - 1, T0, 2108000])
    t += 7200
    # compressed headers (local types 0 to 3 only) need a full timestamp first: the first
    # record after the gap gives it
    f.define(3, 20, [(3, UINT8), (7, UINT16)])
    f.message(1, [t, 500000000, 100000000, 175, 300], dev_bytes=b'\x00\x00')
    for i in range(1, 300):
        f.message(3, [175, 300], compressed=(t + i) & 0x1F)
    f.message(5, [t + 299, t, 300000])
    return f.bytes()


def smart_times(end, pattern):
    times, t, i = [], 0, 0
    while t < end:
        times.append(t)
        t += pattern[i % len(pattern)]
        i += 1
    return times


def fit_smart_1s():
    # Smart recording, mostly each second, sometimes 2 to 7 s apart: 10 min at 125 from 0, 10 min
    # at 145 from 600, the last reading at 1199; one record in the middle has no heart rate.
    f = Fit()
    file_id(f, 1, 2697)
    f.define(1, 20, [(253, UINT32), (3, UINT8), (5, UINT32)])
    times = sorted(set(smart_times(1199, [1, 1, 1, 2, 1, 3, 1, 1, 5, 1, 7, 1]) + [600, 1199]))
    dropped = [t for t in times if t > 300][2]
    for t in times:
        hr = 125 if t < 600 else 145
        if t == dropped:
            hr = 0xFF
        f.message(1, [T0 + t, hr, t * 3])
    return f.bytes()


def fit_smart_4s():
    # A watch recording every 4 s, twice missing one: 8 min at 135, then 8 min at 158; the last
    # reading at 956.
    f = Fit()
    file_id(f, 1, 3113)
    f.define(1, 20, [(253, UINT32), (3, UINT8)])
    for t in range(0, 957, 4):
        if t in (200, 700):
            continue
        f.message(1, [T0 + t, 135 if t < 480 else 158])
    return f.bytes()


def fit_watch_big_endian():
    # Big-endian everywhere; the strap connects after 10 s (0xFF before); 5 min at 172 and 5 min
    # at 185, each second; distance and speed beside the heart rate.
    f = Fit()
    f.define(0, 0, [(0, ENUM), (1, UINT16), (2, UINT16), (4, UINT32)], big=True)
    f.message(0, [4, 23, 40, T0])
    f.define(1, 20, [(253, UINT32), (3, UINT8), (5, UINT32), (6, UINT16)], big=True)
    for t in range(600):
        hr = 0xFF if t < 10 else (172 if t < 300 else 185)
        f.message(1, [T0 + t, hr, t * 300, 3000])
    return f.bytes()


def fit_indoor():
    # An indoor-cycling application: no position; heart rate, cadence, power and a developer
    # field (its description messages included) each second for 15 min at 150.
    f = Fit()
    file_id(f, 255, 0)
    f.define(5, 207, [(3, UINT8)])                       # developer_data_id: index
    f.message(5, [0])
    f.define(6, 206, [(0, UINT8), (1, UINT8), (2, UINT8)])  # field_description
    f.message(6, [0, 0, 0x84])
    f.define(1, 20, [(253, UINT32), (3, UINT8), (4, UINT8), (7, UINT16)], dev=[(0, 2, 0)])
    for t in range(900):
        f.message(1, [T0 + t, 150, 90, 200], dev_bytes=struct.pack('<H', 40 + t % 3))
    return f.bytes()


def fit_no_hr():
    f = Fit()
    file_id(f, 1, 2713)
    f.define(1, 20, [(253, UINT32), (0, SINT32), (1, SINT32), (5, UINT32)])
    for t in range(300):
        f.message(1, [T0 + t, 500000000, 100000000, t * 400])
    return f.bytes()


def fit_no_definition():
    f = Fit()
    file_id(f, 1, 2713)
    f.define(1, 20, [(253, UINT32), (3, UINT8)])
    for t in range(30):
        f.message(1, [T0 + t, 140])
    f.data += bytes([0x07]) + bytes(5)   # local type 7 was never defined
    for t in range(30, 60):
        f.message(1, [T0 + t, 140])
    return f.bytes()


# ---- TCX and GPX ---------------------------------------------------------------------------

START = datetime(2024, 11, 8, 6, 0, 0, tzinfo=timezone.utc)


def iso(sec, ms=False):
    d = START + timedelta(seconds=sec)
    return d.strftime('%Y-%m-%dT%H:%M:%S') + ('.000Z' if ms else 'Z')


def tcx_point(sec, hr, position=True):
    s = '          <Trackpoint>\n            <Time>%s</Time>\n' % iso(sec, ms=True)
    if position:
        s += ('            <Position><LatitudeDegrees>47.1</LatitudeDegrees>'
              '<LongitudeDegrees>8.5</LongitudeDegrees></Position>\n')
    s += '            <DistanceMeters>%d</DistanceMeters>\n' % (sec * 3)
    if hr:
        s += '            <HeartRateBpm><Value>%d</Value></HeartRateBpm>\n' % hr
    s += '          </Trackpoint>\n'
    return s


def tcx(laps):
    """laps: [[track, ...]], track: [(sec, hr, position)]"""
    s = ('<?xml version="1.0" encoding="UTF-8"?>\n'
         '<TrainingCenterDatabase xmlns="http://www.garmin.com/xmlschemas/TrainingCenterDatabase/v2">\n'
         '  <Activities>\n    <Activity Sport="Running">\n      <Id>%s</Id>\n' % iso(0))
    for lap in laps:
        s += '      <Lap StartTime="%s">\n        <TotalTimeSeconds>300</TotalTimeSeconds>\n' % iso(lap[0][0][0])
        for track in lap:
            s += '        <Track>\n' + ''.join(tcx_point(*p) for p in track) + '        </Track>\n'
        s += '      </Lap>\n'
    return s + '    </Activity>\n  </Activities>\n</TrainingCenterDatabase>\n'


def tcx_laps_pause():
    # Lap 1: 2 min at 128, a pause of 6 s (a new track), 2 min at 150; lap 2: 2 min at 165, every
    # other point without position.
    a = [(t, 128, True) for t in range(0, 120)]
    b = [(t, 150, True) for t in range(126, 246)]
    c = [(t, 165, t % 2 == 0) for t in range(246, 366)]
    return tcx([[a, b], [c]])


def tcx_treadmill():
    return tcx([[[(t, 172, False) for t in range(0, 240, 2)]]])


def tcx_no_hr():
    return tcx([[[(t, 0, True) for t in range(0, 60)]]])


def gpx(segments, version):
    ns = ('http://www.garmin.com/xmlschemas/TrackPointExtension/v%d' % version)
    s = ('<?xml version="1.0" encoding="UTF-8"?>\n'
         '<gpx version="1.1" creator="sample" xmlns="http://www.topografix.com/GPX/1/1" '
         'xmlns:gpxtpx="%s">\n  <trk>\n    <name>Run</name>\n' % ns)
    for seg in segments:
        s += '    <trkseg>\n'
        for sec, hr in seg:
            s += '      <trkpt lat="47.1" lon="8.5">'
            if version == 1:
                s += '<ele>400</ele>'
            s += '<time>%s</time>' % iso(sec)
            if hr:
                s += ('<extensions><gpxtpx:TrackPointExtension><gpxtpx:hr>%d</gpxtpx:hr>'
                      '<gpxtpx:cad>80</gpxtpx:cad></gpxtpx:TrackPointExtension></extensions>' % hr)
            s += '</trkpt>\n'
        s += '    </trkseg>\n'
    return s + '  </trk>\n</gpx>\n'


# ---- Polar and fixed columns -----------------------------------------------------------------

def polar(header_interval, data_lines, trailer='', eol='\r\n'):
    head = ['[Params]', 'Version=106', 'Monitor=12', 'SMode=111000000']
    if header_interval is not None:
        head.append('Interval=%s' % header_interval)
    head += ['StartTime=06:00:00.0', '', '[Note]', 'Morning run', '', '[HRData]']
    return eol.join(head + data_lines) + eol + trailer


def write(name, content):
    path = os.path.join(OUT, name)
    mode = 'wb' if isinstance(content, (bytes, bytearray)) else 'w'
    with open(path, mode, **({} if mode == 'wb' else {'newline': ''})) as f:
        f.write(content)


def main():
    os.makedirs(OUT, exist_ok=True)
    # Polar: three tab columns (heart rate, speed, cadence); ended by a blank line and a section.
    rows = ['%d\t%d\t%d' % (hr, 120 + i, 80) for i, hr in enumerate([118, 122, 125, 131, 140, 141, 150, 160])]
    write('polar_basic.hrm', polar(5, rows, '\r\n[IntTimes]\r\n00:05:00.0\t150\r\n'))
    # The interval only on the line that ends the data; before it a "0" reading.
    write('polar_interval_end.hrm', polar(None, ['130', '0', '135', 'Interval=15', '140']))
    write('polar_cr_only.hrm', polar(2, ['100', '110', ' 120 ', '130'], eol='\r'))
    write('polar_letters.hrm', polar(1, ['150', '0', '155', 'dropout', '160', '165']))
    write('polar_no_hrdata.hrm', '[Params]\r\nVersion=106\r\nInterval=60\r\n[Note]\r\n120\r\n130\r\n')
    rnd = random.Random(7)
    binary = bytes(rnd.randrange(256) for _ in range(4096)).replace(b'\n', b'\x00').replace(b'\r', b'\x01')
    write('polar_binary.hrm', b'\x89PNG\r\n\x1a\n' + binary)
    # Fixed columns: the reading from column 18 on.
    fixed = ['MIO HEART MONITOR',            # 17 characters: nothing
             '00:00:05         ',            # 17 with blanks: nothing
             '00:00:05        9',            # 17: nothing
             '00:00:10         7',           # 18: "7"
             'SESSION 1 - 2024-11-08 06:00', # dropped; the next line is read in its place
             'SESSION HEADER LINE XYZ 142',  # read as data though it holds SESSION
             '00:00:15         131  ',
             '00:00:20         n/a',
             '00:00:25',
             '00:00:30         128']
    write('fixed_columns.txt', '\r\n'.join(fixed) + '\r\n')

    write('fit_s_series.fit', fit_s_series())
    write('fit_edge_bike.fit', fit_edge_bike())
    write('fit_smart_1s.fit', fit_smart_1s())
    write('fit_smart_4s.fit', fit_smart_4s())
    write('fit_watch_big_endian.fit', fit_watch_big_endian())
    write('fit_indoor.fit', fit_indoor())
    write('fit_no_hr.fit', fit_no_hr())
    whole = fit_watch_big_endian()
    write('fit_truncated.fit', whole[:len(whole) * 3 // 5])
    bad = bytearray(fit_s_series())
    bad[400] ^= 0x10
    write('fit_bad_crc.fit', bytes(bad))
    write('fit_no_definition.fit', fit_no_definition())

    write('tcx_laps_pause.tcx', tcx_laps_pause())
    write('tcx_treadmill.tcx', tcx_treadmill())
    write('tcx_no_hr.tcx', tcx_no_hr())
    write('not_tcx.tcx', '<?xml version="1.0"?>\n<kml xmlns="http://www.opengis.net/kml/2.2">'
                         '<Document><name>Route</name></Document></kml>\n')
    text = tcx_treadmill()
    write('tcx_truncated.tcx', text[:len(text) // 2])
    seg1 = [(t, 138) for t in range(0, 120)]
    seg2 = [(t, 168) for t in range(125, 245)]
    write('gpx_tpx_v1.gpx', gpx([seg1, seg2], 1))
    write('gpx_tpx_v2.gpx', gpx([[(t, 178 if t < 90 else 188) for t in range(0, 180)]], 2))
    write('gpx_no_hr.gpx', gpx([[(t, 0) for t in range(0, 30)]], 1))


if __name__ == '__main__':
    main()
