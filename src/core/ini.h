#pragma once
#include <QString>

// The settings file, read and written as the system's profile files are: sections in
// [brackets], key=value lines, names without regard to case, garbage lines ignored, the
// file created on the first write. A file name without a folder is taken from the
// program's folder.
QString ReadIni(const QString& section, const QString& key, const QString& file);
bool WriteIni(const QString& section, const QString& key, const QString& value, const QString& file);

// The settings file of the program.
inline const QString IniFile = QStringLiteral("orvantis.ini");
