#pragma once
// The shared pictures of "\images": the editor's marks, the ground-pile icon and the night.
#include "image.h"

namespace worldgen {

// Marks 0 message, 1 warp, 2 ground pile, 3 event, 4 start location: each
// picture 24 x 24 at x = 48 * mark, its mask 24 pixels to the right.
Image specialMarks();
// The pile icon at column 0, its mask at column 24.
Image groundItemIcon();
// The night: picture 433 x 410 at x = 0, mask at x = 434. Drawn as SRCAND of
// the mask then SRCINVERT of the picture, every other pixel in a checkerboard
// becomes deep blue and the rest keeps its colour, so the scene darkens evenly.
Image nightOverlay();

constexpr int kNightW = 433, kNightH = 410, kNightMaskX = 434;

} // namespace worldgen
