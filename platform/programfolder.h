#pragma once

#include <QString>

namespace umbrith {

// Where the program folder is, found before the application starts.
struct ProgramFolder {
    QString path;    // the folder to play from; empty when none can be used
    QString problem; // why none can be used
};

// The folder given on the command line, or else the program's own: a build
// keeps the tree beside the executable; an installed program finds it in
// ../share/umbrith, keeps that shipped copy read-only and plays from a copy
// of its own in the user's data folder (XDG_DATA_HOME, or ~/.local/share),
// filled on first start and completed with anything new after an upgrade,
// never overwriting what the user has changed.
ProgramFolder FindProgramFolder(const QString& chosen, const QString& executableFolder);

} // namespace umbrith
