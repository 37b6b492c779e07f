#pragma once

#include <QString>
#include <QStringList>

namespace umbrith {

// The number of items a data file must hold, by the last three letters of its
// name: 17 for a map (.ubm) and a saved game (.ubs), 1 for everything else
// (tilesets, events, lists, realms, enemy sets, the notes file).
int RequiredItems(const QString& path);

// The items of a data file as the record reader reads them, as text: at least
// RequiredItems of them, then whatever further items stand in the file. A file
// with fewer raises the reader's error ("Input past end of file").
QStringList ReadDataItems(const QString& path);

// `umbrith --dump FILE`: prints ReadDataItems as a JSON array of strings on
// standard output and returns 0; on a read error prints the path and the
// reader's error on standard error and returns 1.
int DumpDataFile(const QString& path);

} // namespace umbrith
