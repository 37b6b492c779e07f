#pragma once
// Ground textures. Each repeats every 24 pixels, so equal tiles join without seams.
#include "image.h"

namespace worldgen {

enum class Ground {
    Grass, Dirt, Sand, Water, DeepWater, Cobble, Gravel, Mud, Snow, Pavement, Ice,
    CaveFloor, DungeonFloor, Lava, Chasm, WoodFloor
};

Rgb groundPixel(Ground ground, int x, int y, int variant = 0);
Image groundTile(Ground ground, int variant = 0);
bool groundBlocks(Ground ground);

} // namespace worldgen
