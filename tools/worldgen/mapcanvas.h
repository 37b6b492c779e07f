#pragma once
// A map being composed from named tiles: ground, borders, houses, trees,
// roads and water, then its signs, warps, people, piles and enemies, handed
// to the game's own map writer as one MapFile.
#include "starter_lists.h"
#include "tile_names.h"

#include "world/mapfile.h"

#include <QString>
#include <QStringList>

#include <map>
#include <utility>

namespace worldgen {

// The passability of every tile of the sheet, by tile index, as the
// tileset's record gives it.
using TilePass = QStringList;

// A person of the map, with the switches makers use most.
struct Npc {
    QString name;
    QString image; // "\images\npcs\..."
    QString says;     // what the person says when talked to
    QString talkFile; // the ".ube" under "\\events" that holds it
    int x = 0;
    int y = 0;
    int facing = 0; // Down 0, Up 1, Left 2, Right 3
    bool wanders = false;
    bool follows = false;
};

class MapCanvas {
public:
    // `width` x `height` playable cells; the map file stores one more of each.
    MapCanvas(int width, int height, const TilePass& pass);

    int width() const { return width_; }
    int height() const { return height_; }
    Tile tile(int x, int y) const { return cells_[index(x, y)]; }
    QString passability(int x, int y) const;

    // Painting. Cells outside the stored grid are left alone, so shapes may
    // run over the edges.
    void put(int x, int y, Tile tile);
    void fill(int x, int y, int w, int h, Tile tile);
    // Ground with a little variety: mostly the first tile, now and then one
    // of the others, always the same for the same cell.
    void ground(int x, int y, int w, int h, const Tile* variants, int count);
    // A patch of the inner ground of a border, framed by its edges.
    void patch(int x, int y, int w, int h, const EdgeSet& edges);
    // A straight band of the inner ground with edges on its two long sides
    // only, for roads and rivers that run on into other ground or off the map.
    void bandDown(int x, int y, int w, int length, const EdgeSet& edges);
    void bandAcross(int x, int y, int length, int h, const EdgeSet& edges);
    // A house `w` wide (at least 3): ridge, slope and eaves of the roof over
    // one row of wall with windows and an open door at column `door`.
    void house(int x, int y, int w, const RoofSet& roof, const WallSet& wall, int door);
    // Several-tile objects named by their top-left tile.
    void object(int x, int y, Tile topLeft, int w, int h);
    // A wood of 2 x 2 oaks and pines, a tall pine or a bush where a column
    // or row is left over.
    void trees(int x, int y, int w, int h);
    // A fence around a rectangle, with a gate in the bottom side at `gateX`.
    void fence(int x, int y, int w, int h, const FenceSet& fence, int gateX);

    // What lies on the map.
    void sign(int x, int y, const QString& source, const QString& text);
    void enterMessage(const QString& source, const QString& text);
    void warp(int x, int y, const QString& targetMap, int tx, int ty);
    void screenWarps(const QString& top, const QString& bottom, const QString& left, const QString& right);
    void npc(const Npc& npc);
    void pile(const QString& variable, const QString& contents, int x, int y);
    // Entries "key:min:max", the key being the enemy's "name-class".
    void enemies(const QStringList& entries, int rate);
    void setStart(int x, int y);
    void setNight(bool night) { map_.night = night ? 1 : 0; }
    void setMusic(const QString& music) { map_.music = music; }

    umbrith::MapFile file() const;
    // The talk events of the map's people.
    const std::vector<EventFile>& talks() const { return talks_; }

private:
    int index(int x, int y) const { return y * (width_ + 1) + x; }
    bool inside(int x, int y) const { return x >= 0 && y >= 0 && x <= width_ && y <= height_; }

    int width_;
    int height_;
    const TilePass& pass_;
    std::vector<Tile> cells_;
    // Specials in the map's scan order: row, then column.
    std::map<std::pair<int, int>, QString> specials_;
    umbrith::MapFile map_;
    std::vector<EventFile> talks_;
};

// A fixed hash of a cell, 0 to 99, for variety that is the same on every run.
int cellRoll(int x, int y);

// A cell's place as the records write it, "x;y".
QString place(int x, int y);

} // namespace worldgen
