#include "tilesheet.h"
namespace worldgen {
void paintDungeon(TileSheet&) {}
}
