#pragma once

#include "core/gamerecord.h"
#include "platform/surface.h"

#include <QHash>
#include <QString>

#include <array>
#include <vector>

namespace umbrith {

// The off-screen store of the pictures the world is drawn from: the six
// paper-doll sheets, the player's twelve composed cells with their masks, the
// NPC sheets, the night and the ground item icon. The tileset's sheet is kept
// with its passabilities (TilesetState).
struct Textures {
    Surface grossbody, grosshead, grossshield, grossboots, grossgloves, grossweapon;
    // Indexed direction + 4 x frame; each 24 x 48.
    std::array<Surface, 12> picdirorig, picdirneg;
    Surface picPNPC;
    std::vector<Surface> picNPCs = std::vector<Surface>(1); // slot 0 always exists
    // The running map's NPC sheets by path: NPCs that share a picture read it
    // once, and share its pixels.
    QHash<QString, Surface> npcSheetsByPath;
    Surface nightoriginal; // the night's picture, its mask at x = 434
    Surface grounditems;   // the pile icon, its mask at x = 24
};

// Composes the player's figure from the six sheets for every direction and
// frame, and makes each mask from the composite: black is transparent.
void UpdateCharacterPic(Textures& textures);

// Loads the six part sheets from the record's picture paths. A slot without
// a picture (an empty path, a missing file) is drawn as nothing.
void LoadPaperDoll(Textures& textures, const GameRecord& game);

// Lays one part's mask and picture over the composites of one direction.
void DrawPart(Textures& textures, const Surface& sheet, int direction);

} // namespace umbrith
