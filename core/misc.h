#pragma once

#include <QString>

namespace umbrith {

// The program folder in its stored form (backslashes, no trailing one). Every
// stored path is relative to it and begins with a backslash.
const QString& AppPath();
void setAppPath(const QString& folder);

// Whether sound effects play (the options' "Play Sounds").
extern bool SoundsOn;

// The gate for browsed paths: false only for a path shorter than AppPath.
// Paths outside the tree pass on purpose; callers store path.mid(AppPath().size()).
bool IsInsideProgramFolder(const QString& path);

// File dialogs with the overwrite prompt: "full path^file title", or "" when
// cancelled or when the dialog failed (after errorMessage and the system's text).
QString DialogOpenFile(const QString& title, const QString& fileName, const QString& initialFolder,
                       const QString& filter, const QString& errorMessage);
QString DialogSaveFile(const QString& title, const QString& fileName, const QString& initialFolder,
                       const QString& filter, const QString& errorMessage);

// True when text holds none of the delimiters a name may not carry: : / \ * ^ |
bool HasNoReservedCharacters(const QString& text);

// Plays AppPath\sfx\fileName without waiting, while sounds are on; never fails.
void PlaySoundEffect(const QString& fileName);

} // namespace umbrith
