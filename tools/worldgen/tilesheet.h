#pragma once
// The default tileset under construction: a 50 x 50 sheet of 24-pixel tiles
// and the passability of each, filled in by the tile painters.
#include "image.h"
#include "tile_names.h"

#include <array>
#include <string>
#include <vector>

namespace worldgen {

constexpr int kTile = 24;
constexpr int kSheetTiles = 50;
constexpr int kPassable = 1;
constexpr int kBlocked = 2;

class TileSheet {
public:
    TileSheet();
    // Throws if the place is taken, so two painters can't overwrite each other.
    void put(Tile at, const Image& tile, int pass);
    // A picture several tiles large, cut into tiles row by row with one passability.
    void putBlock(Tile topLeft, const Image& picture, int pass);

    const Image& picture() const { return picture_; }
    const std::array<int, kSheetTiles * kSheetTiles>& passability() const { return pass_; }
    const std::vector<Tile>& placed() const { return placed_; }

private:
    Image picture_;
    std::array<int, kSheetTiles * kSheetTiles> pass_{};
    std::vector<Tile> placed_;
};

// The painters, one per family of tiles.
void paintTerrain(TileSheet& sheet);
void paintNature(TileSheet& sheet);
void paintBuildings(TileSheet& sheet);
void paintOutdoorThings(TileSheet& sheet);
void paintInterior(TileSheet& sheet);
void paintDungeon(TileSheet& sheet);

TileSheet buildDefaultTileset();

} // namespace worldgen
