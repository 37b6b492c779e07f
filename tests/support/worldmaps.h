#pragma once

#include "core/misc.h"
#include "platform/files.h"
#include "platform/surface.h"
#include "world/mapfile.h"
#include "world/tileset.h"

#include <QDir>
#include <QFileInfo>

namespace umbrith::testmaps {

// The colour of the test sheet's tile at column c, row r: each tile differs,
// so a screenshot tells which tile stands where.
inline QRgb tileColor(int c, int r) { return qRgb(40 + 8 * c, 40 + 8 * r, 90); }

inline void makeFolder(const QString& stored) { QDir().mkpath(QFileInfo(nativePath(AppPath() + stored)).path()); }

// The night of the tests: its mask keeps the low seven bits of each colour
// channel, its picture adds nothing, so night turns c into c & 0x7F7F7F.
inline void writeNightPicture() {
    makeFolder("\\images\\night1.bmp");
    Surface night(867, 410);
    for (int y = 0; y < 410; ++y)
        for (int x = 434; x < 867; ++x)
            SetPixel(night, x, y, 0x7F7F7F);
    night.saveBitmap(AppPath() + "\\images\\night1.bmp");
}

// "\tilesets\test.ubt" over a 10 x 4 tile picture, all tiles passable, and
// the night picture every map load needs.
inline void writeTestTileset() {
    writeNightPicture();
    makeFolder("\\tilesets\\test.ubt");
    Surface picture(240, 96);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 10; ++c)
            for (int y = 0; y < 24; ++y)
                for (int x = 0; x < 24; ++x)
                    SetPixel(picture, 24 * c + x, 24 * r + y, toColorRef(tileColor(c, r)));
    picture.saveBitmap(AppPath() + "\\tilesets\\test.bmp");
    WriteTilesetFile(AppPath() + "\\tilesets\\test.ubt", TilesetRecord(QStringList(TileCount, "1"), "test.bmp"));
}

// A map of (width + 1) x (height + 1) stored cells of tile 0|0, all passable,
// on the test tileset, starting at 1|1.
struct TestMap {
    MapFile file;
    MapGrid grid;

    TestMap(int width, int height) {
        file.width = width;
        file.height = height;
        file.tileset = "test.ubt";
        file.startLocation = "1|1";
        file.music = "";
        file.screenWarps = "|||";
        file.enemies = "^0";
        grid.columns = width + 1;
        grid.rows = height + 1;
        grid.tiles = QStringList(grid.columns * grid.rows, "0|0");
        grid.pass = QStringList(grid.columns * grid.rows, "1");
    }
    void set(int x, int y, const QString& tile, const QString& pass) {
        grid.tiles[y * grid.columns + x] = tile;
        grid.pass[y * grid.columns + x] = pass;
    }
    void write(const QString& stored) {
        JoinMapGrid(grid, file.tiles, file.passabilities);
        makeFolder(stored);
        WriteMapFile(AppPath() + stored, file);
    }
};

// A map record of an NPC with the given location and flags; the rest plain.
inline QString npcRecord(const QString& name, const QString& location, const QString& image = "\\images\\npcs\\one.bmp",
                         const QString& visible = "1", const QString& follows = "0", const QString& warpFollow = "0",
                         const QString& events = "") {
    return QStringList{name, image, events, "False", "True", location, "0", visible, "0", follows, warpFollow, "0", "0", "0"}
        .join(':');
}

// An NPC sheet of 144 x 192 whose figure is a solid block of `color` over the
// lower tile of each cell, with its mask.
inline void writeNpcSheet(const QString& stored, QRgb color) {
    makeFolder(stored);
    Surface sheet(144, 192);
    for (int row = 0; row < 4; ++row)
        for (int frame = 0; frame < 3; ++frame)
            for (int y = 0; y < 48; ++y)
                for (int x = 0; x < 24; ++x) {
                    const bool inside = y >= 24;
                    SetPixel(sheet, 48 * frame + x, 48 * row + y, inside ? toColorRef(color) : 0);
                    SetPixel(sheet, 48 * frame + 24 + x, 48 * row + y, inside ? 0 : 0xFFFFFF);
                }
    sheet.saveBitmap(AppPath() + stored);
}

} // namespace umbrith::testmaps
