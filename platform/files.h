#pragma once

#include <QString>
#include <QStringList>

namespace umbrith {

// Stored paths keep their backslashes; they become native paths only here, at
// the moment a file is opened. A file whose name differs only in case is found
// too, since realms are made on systems that ignore case.
QString nativePath(const QString& path);
bool fileExists(const QString& path);
bool folderExists(const QString& path);

// Whole-file text in Windows-1252. Failures are RuntimeErrors: 53 for a missing
// file, 76 for a missing folder, 75 for any other access failure.
QString readTextFile(const QString& path);
// Writes the whole text or nothing: a reader sees the old file or the new one.
void writeTextFile(const QString& path, const QString& text);
// Every write of the program comes here: the bytes go to a temporary file
// beside the target, which is renamed over it only when all were written.
// Failures are RuntimeErrors as for reading.
void writeWholeFile(const QString& path, const QByteArray& bytes);

// Names of the files in a folder matching a wildcard pattern, sorted.
QStringList listFiles(const QString& folder, const QString& pattern);

} // namespace umbrith
