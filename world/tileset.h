#pragma once

#include "platform/surface.h"

#include <QString>
#include <QStringList>

namespace umbrith {

// The tile grid of a tileset sheet: 50 x 50 tiles of 24 x 24 pixels.
inline constexpr int TileSize = 24;          // pixels
inline constexpr int TileTwips = 360;        // 15 twips to the pixel
inline constexpr int SheetTiles = 50;        // tiles across and down a sheet
inline constexpr int SheetPixels = 1200;
inline constexpr int SheetTwips = 18000;
inline constexpr int TileCount = 2500;
inline constexpr int TilesetPassStorage = 2502; // TilesetPass, indexed 0 to 2,501

// The tile index of a "sx|sy" pixel origin: sx/24 + (sy/24) x 50, both halves by
// numeric-prefix parse, converted to an integer as an array index is (halves to
// even). A text without "|" raises "Subscript out of range"; a result beyond 32
// bits raises "Overflow". The index is not checked against the sheet.
int TileIndex(const QString& position);
// The "sx|sy" of a tile index: column and row of the sheet times 24.
QString TilePosition(int index);

// The .ubt record split: the passabilities, one per tile in index order (the
// elements 1 onwards of the ":"-split of what stands before the "/"), and the
// picture's file name relative to the tilesets folder.
struct TilesetRecordParts {
    QStringList pass;
    QString picture;
};
// Splits the record on "/" and its element 0 on ":". A record without "/"
// raises "Subscript out of range".
TilesetRecordParts SplitTilesetRecord(const QString& record);
// The record as the tileset creator builds it: ":" and a value for each tile,
// then "/" and the picture's name.
QString TilesetRecord(const QStringList& pass, const QString& picture);

// The one field of a .ubt file; a file without it raises "Input past end of file".
QString ReadTilesetFile(const QString& path);
// Writes the record as the file's one field, replacing the file.
void WriteTilesetFile(const QString& path, const QString& record);

// What a form holds of its loaded tileset: Main and LevelMaker each keep one.
struct TilesetState {
    QString loadedTileset;     // LoadedTileset: the name last loaded
    Surface sheet;             // the tile sheet, 1,200 x 1,200 pixels
    QStringList pass = QStringList(TilesetPassStorage); // TilesetPass by tile index
};

// The core of UpdateTileset(name, mode) that Main and LevelMaker share: the
// four-character extension of `name` is cut off and ".ubt" put back; the record
// of "\tilesets\" + base + ".ubt" under the program folder is read; its picture
// is loaded from "\tilesets\" + the part behind "/" into the sheet; TilesetPass
// is filled from the passabilities in order, tile 0 first; the name is
// remembered as the loaded tileset. The state changes only when all of it
// succeeded, so a failed load leaves the previous tileset in place. A name
// shorter than four characters raises "Invalid procedure call or argument";
// more passabilities than TilesetPass holds raise "Subscript out of range";
// read and picture errors are those of the record reader and of the picture.
void UpdateTilesetCore(TilesetState& state, const QString& name);

// TilesetPass at the tile of a "sx|sy" position: the passability a tile brings
// into a map cell. An index outside the table raises "Subscript out of range".
QString TilesetPassAt(const TilesetState& state, const QString& position);

} // namespace umbrith
