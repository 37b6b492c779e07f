#pragma once

#include "core/gamerecord.h"
#include "platform/surface.h"
#include "world/textures.h"

#include <QString>
#include <array>

namespace umbrith {

// The six kinds of part pictures an NPC is dressed in, in the order of the
// creator's list: head, body, hands, boots, weapon, shield.
enum NPCArea { AreaHead, AreaBody, AreaGloves, AreaBoots, AreaWeapon, AreaShield };
inline constexpr int NPCAreaCount = 6;
using NPCAreaPaths = std::array<QString, NPCAreaCount>;

// A part sheet: four rows of 48 (down, up, left, right), three frames of 48
// across, each frame's mask 24 pixels to the right of its picture. The NPC
// sheet the creator saves has the same layout.
inline constexpr int PartSheetWidth = 144;
inline constexpr int PartSheetHeight = 192;

// What the NPC image creator keeps beside its controls.
struct NPCImageState {
    NPCAreaPaths AreaPaths;   // relative paths of the parts worn
    QString ChosenPicture;    // browsed for the selected part, not yet applied
    int PreviewDirection = 0; // 0 down, 1 up, 2 left, 3 right
    int PreviewFrame = 0;     // 0 to 2 while animating
    QString PreviewWay;       // "U" while the frame rises, else falling
};

// A new NPC wears the player's default clothes.
NPCAreaPaths DefaultAreaPaths();

// The creator dresses the player's own doll: the six paths become the
// picture paths of the player's six slots.
void CopyAreasToPlayer(const NPCAreaPaths& paths, GameRecord& game);

// Loads the six part sheets into the doll's sheets, head, body, gloves,
// boots, weapon, shield in turn. An empty path loads the part's stand-by
// picture and keeps that picture's path; for the shield it keeps
// "\images\heads\defaultshield.bmp", which is not the picture it loaded.
// Raises a RuntimeError at the first picture that is missing, isn't one or
// is smaller than a part sheet; the sheets loaded before it stay loaded.
void LoadNPCParts(NPCAreaPaths& paths, Textures& textures);

// The doll cell the preview shows: the direction, and its frame while the
// preview animates.
int PreviewSlot(const NPCImageState& state, bool animate);

// Draws a doll cell over the preview's background, mask then picture.
void DrawPreview(Surface& preview, const Textures& textures, int slot);

// The NPC sheet of the composed doll: a row per direction, a frame each 48
// pixels, the mask 24 pixels to the right of its picture.
Surface NPCSheet(const Textures& textures);

} // namespace umbrith
