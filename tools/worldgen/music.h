#pragma once
// The game's music, composed in code: chord progressions in sections, a
// melody built from a repeated two-bar motif, harmony, bass and drums.
#include "midi.h"

#include <string>
#include <vector>

namespace worldgen {

struct MusicFile {
    std::string path; // relative to the program folder
    Song song;
};

std::vector<MusicFile> composeAll();

} // namespace worldgen
