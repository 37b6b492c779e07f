#pragma once
// House walls seen from the front, used outside and (darker) inside.
#include "image.h"

namespace worldgen {

enum class WallKind { Stone, Plaster, Wood, Brick, Dungeon, Cave };

// corner: -1 a post at the left, 1 at the right, 0 none.
Image wallFace(WallKind kind, int corner = 0);
void drawWindow(Image& img);
void drawDoor(Image& img, bool open);

} // namespace worldgen
