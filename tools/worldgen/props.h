#pragma once
// Small objects drawn on more than one ground: inside a house, in a dungeon, outdoors.
#include "image.h"

namespace worldgen {

void drawBarrel(Image& img);
void drawCrate(Image& img);
void drawChest(Image& img, bool open);

} // namespace worldgen
