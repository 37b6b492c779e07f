#pragma once
// Ground textures. Each repeats every 24 pixels, so equal tiles join without seams.
#include "art.h"

namespace worldgen {

enum class Ground {
    Grass, Dirt, Sand, Water, DeepWater, Cobble, Gravel, Mud, Snow, Pavement, Ice,
    CaveFloor, DungeonFloor, Lava, Chasm, WoodFloor, Checker, Terracotta
};

Rgb groundPixel(Ground ground, int x, int y, int variant = 0);
Image groundTile(Ground ground, int variant = 0);
Image groundArea(Ground ground, int width, int height, int variant = 0);
bool groundBlocks(Ground ground);
// Blocks of w x h with a dark joint, bevelled towards the light; every other row shifted.
Rgb masonry(const Ramp& ramp, int x, int y, int w, int h, int rowShift, int seed);

} // namespace worldgen
