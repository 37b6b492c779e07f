#pragma once

#include "platform/surface.h"

#include <array>
#include <vector>

namespace umbrith {

// The off-screen store of the pictures the world is drawn from: the six
// paper-doll sheets, the player's twelve composed cells with their masks, the
// NPC sheets and the tileset.
struct Textures {
    Surface grossbody, grosshead, grossshield, grossboots, grossgloves, grossweapon;
    // Indexed direction + 4 x frame; each 24 x 48.
    std::array<Surface, 12> picdirorig, picdirneg;
    Surface picPNPC;
    std::vector<Surface> picNPCs;
    Surface picTilesT;
};

// Composes the player's figure from the six sheets for every direction and
// frame, and makes each mask from the composite: black is transparent.
void UpdateCharacterPic(Textures& textures);

// Lays one part's mask and picture over the composites of one direction.
void DrawPart(Textures& textures, const Surface& sheet, int direction);

} // namespace umbrith
