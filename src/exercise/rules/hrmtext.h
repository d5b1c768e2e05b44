#pragma once
// The text files of heart-rate monitors: the Polar format (sections in square brackets, a
// header of key=value lines, readings under [HRData]) and the fixed-column text of the other
// makes (the reading from column 18 on).
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace hrm {

struct TextImport {
    QStringList readings;              // in file order, as the list shows them
    std::optional<double> interval;    // the last "interval=" value of a Polar file
};

// The lines of a text: a line ends at CR LF, at CR alone or at LF alone.
QStringList SplitLines(const QByteArray& bytes);

// A Polar file: every line read that holds "INTERVAL" and "=" sets the interval (before the
// data, or on the line that ends it); a line holding "HRDATA" starts the data; in the data a line whose value is above 0
// gives its first tab-separated column, a line of exactly "0" gives 0, and any other line (a
// section header, a blank line, letters) ends the reading.
TextImport ReadPolar(const QByteArray& bytes);

// Fixed columns: a line holding "SESSION" is dropped and the next line read in its place;
// the text from column 18 to the end, trimmed, is a reading when it is not empty.
TextImport ReadFixedColumns(const QByteArray& bytes);

}  // namespace hrm
