#pragma once
// The picture files of the paper doll and of the NPCs: where each goes and what it shows.
#include "doll.h"

#include <string>
#include <vector>

namespace worldgen {

struct PictureFile {
    std::string path; // relative to the program folder, "/"-separated
    std::string shows;
    Image picture;
};

std::vector<PictureFile> dollPartFiles();
// The look of the player with nothing chosen: the six default parts stacked.
Outfit defaultOutfit();
std::vector<PictureFile> npcFiles();

} // namespace worldgen
