#include "tilesheet.h"
namespace worldgen {
void paintNature(TileSheet&) {}
void paintBuildings(TileSheet&) {}
void paintOutdoorThings(TileSheet&) {}
void paintInterior(TileSheet&) {}
void paintDungeon(TileSheet&) {}
}
