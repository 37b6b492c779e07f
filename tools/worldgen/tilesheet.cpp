#include "tilesheet.h"

#include <algorithm>
#include <stdexcept>

namespace worldgen {

TileSheet::TileSheet() : picture_(kSheetTiles * kTile, kSheetTiles * kTile) { pass_.fill(kPassable); }

void TileSheet::put(Tile at, const Image& tile, int pass)
{
    if (at.col < 0 || at.row < 0 || at.col >= kSheetTiles || at.row >= kSheetTiles)
        throw std::logic_error("tile outside the sheet");
    if (std::find(placed_.begin(), placed_.end(), at) != placed_.end())
        throw std::logic_error("tile placed twice at " + std::to_string(at.col) + "," + std::to_string(at.row));
    placed_.push_back(at);
    picture_.paste(tile.crop(0, 0, kTile, kTile), at.col * kTile, at.row * kTile);
    pass_[at.row * kSheetTiles + at.col] = pass;
}

void TileSheet::putBlock(Tile topLeft, const Image& picture, int pass)
{
    for (int r = 0; r < picture.height() / kTile; ++r)
        for (int c = 0; c < picture.width() / kTile; ++c)
            put({topLeft.col + c, topLeft.row + r}, picture.crop(c * kTile, r * kTile, kTile, kTile), pass);
}

TileSheet buildDefaultTileset()
{
    TileSheet sheet;
    paintTerrain(sheet);
    paintNature(sheet);
    paintBuildings(sheet);
    paintOutdoorThings(sheet);
    paintInterior(sheet);
    paintDungeon(sheet);
    return sheet;
}

} // namespace worldgen
