#pragma once

#include <QString>

namespace umbrith {

// The intro's lines, shown one per tick of the intro timer.
constexpr int IntroLineCount = 11; // the 11th is empty: its tick clears the caption

// The line at `index`, 1 to 11.
QString IntroLine(int index);

// The intro piece for a draw r in [0, 1), as a stored path.
QString IntroPiece(float r);

// One tick of the intro timer: the caption to show, and whether the timer
// goes on. `index` is the next line to show.
struct IntroTick {
    QString caption;
    bool goesOn;
};
IntroTick NextIntroLine(int& index);

} // namespace umbrith
