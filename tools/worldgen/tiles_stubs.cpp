#include "tilesheet.h"
namespace worldgen {
void paintOutdoorThings(TileSheet&) {}
void paintInterior(TileSheet&) {}
void paintDungeon(TileSheet&) {}
}
