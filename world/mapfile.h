#pragma once

#include "core/record.h"
#include "core/value.h"

#include <QString>
#include <QStringList>
#include <array>

namespace umbrith {

// A map file (.ubm): one record of 17 items, read and written as they
// stand. The delimited items stay text; the helpers below split them for the
// game (Changemap), the editor (load and saveg) and the tools when they use them.
struct MapFile {
    QString specials;                      // 1: tile warps and messages, records each ended by "/"
    Value reserved2 = 0;                   // 2: read and ignored, always written 0
    QString tiles;                         // 3: "sx|sy" of each cell, each followed by ":"
    QString passabilities;                 // 4: one value per cell, each followed by ":"
    QString startLocation;                 // 5: "x|y"
    QString music;                         // 6: "\sfx\..." under the program folder
    QString screenWarps;                   // 7: top|bottom|left|right map paths
    QString enemies;                       // 8: "/name:min:max..." "^" rate
    QString events;                        // 9: the event list of the map
    QString tileset;                       // 10: "default.ubt", relative to "\tilesets"
    Value width = 18;                      // 11: as typed, number or text; cells are width + 1
    Value height = 17;                     // 12: as typed, number or text; cells are height + 1
    QString reserved13 = QStringLiteral("||"); // 13: read and ignored, always written "||"
    Value night = 0;                       // 14: 1 darkened by night, 0 not
    QString groundItems;                   // 15: pile records, each led by "Ä"
    QString npcs;                          // 16: NPC records, each led by "ƒ"
    QString reserved17;                    // 17: read and ignored, always written ""
};

inline constexpr int MapItemCount = 17;
// The screen warp step of MoveChar reads only this many items of another map.
inline constexpr int MapHeadItemCount = 12;
// What the editor writes for a map without music.
inline constexpr QStringView DefaultMapMusic = u"\\sfx\\default.mid";

// Reads the first `items` items (17 or 12) of a record into a map; the items
// not read keep their defaults. A record of fewer items raises "Input past end
// of file"; a quote that ended a text early shifts every later item, as in the
// game. Text items take the text of whatever stands there.
MapFile ParseMapItems(RecordReader& reader, int items = MapItemCount);
MapFile ParseMapText(const QString& text, int items = MapItemCount);
// The whole map from a file, and the first 12 items only (for a screen warp's
// target size). The path is the full stored path (program folder included).
MapFile ReadMapFile(const QString& path);
MapFile ReadMapHead(const QString& path);

// The 17 items as one record: texts quoted, width, height and night flag as
// they stand (a number bare, a text quoted), and items 2, 13 and 17 at their
// fixed values 0, "||" and "".
QList<Value> MapItems(const MapFile& map);
QString MapText(const MapFile& map);
void WriteMapFile(const QString& path, const MapFile& map);

// The grid of items 3 and 4, cell by cell: for y from 0 to Val(height), for x
// from 0 to Val(width), a cell whose tile element (at the running counter) is
// not empty takes that tile and the passability at the same position, and the
// counter advances; an empty element leaves the cell empty and holds the
// counter still, so every later cell stays empty too. Running out of elements
// raises "Subscript out of range", as does a filled cell past the 501 x 501
// storage of the game. Cells the loop never reached stay empty.
struct MapGrid {
    int columns = 0; // Val(width) + 1, at most 501
    int rows = 0;    // Val(height) + 1, at most 501
    QStringList tiles; // [y * columns + x], "" for a cell left empty
    QStringList pass;

    QString tile(int x, int y) const { return tiles[qsizetype(y) * columns + x]; }
    QString passability(int x, int y) const { return pass[qsizetype(y) * columns + x]; }
};
MapGrid SplitMapGrid(const QString& tiles, const QString& passabilities, const Value& width, const Value& height);
// Items 3 and 4 as saveg writes them: each cell's tile and passability followed
// by ":", row by row, an empty passability written as "1".
void JoinMapGrid(const MapGrid& grid, QString& tiles, QString& passabilities);

// Item 1, the specials: records split on "/" (empty ones skipped), each split
// on "^" into body and kind, the body on "|". A record without "^" raises
// "Subscript out of range".
struct MapSpecial {
    QStringList fields; // kind 1: location, source, activation, text; kind 2: location, target map, target location
    QString kind;       // "1" message, "2" tile warp
};
QList<MapSpecial> SplitSpecials(const QString& specials);
// One record of item 1 as saveg appends it, ended by "/".
QString MessageSpecial(const QString& location, const QString& source, const QString& activation, const QString& text);
QString WarpSpecial(const QString& location, const QString& targetMap, const QString& targetLocation);

// Fields of a message and of a tile warp record.
enum MessageField { MessageLocationField = 0, MessageSourceField, MessageActivationField, MessageTextField };
enum WarpField { WarpLocationField = 0, WarpTargetMapField, WarpTargetLocationField };
// "-1;-1": the slot of a "Player Enters Level" message.
inline constexpr QStringView EnterMessageLocation = u"-1;-1";
// The word that stands for the target's default start location.
inline constexpr QStringView StartLocationWord = u"SL";

// Item 7: the four screen warps, top, bottom, left, right. Fewer than four
// parts raise "Subscript out of range".
std::array<QString, 4> SplitScreenWarps(const QString& screenWarps);
QString JoinScreenWarps(const std::array<QString, 4>& warps);

// Item 8: the enemy list and the encounter rate around the "^". Without "^"
// the rate is missing: "Subscript out of range".
struct MapEnemies {
    QString list; // "/name:min:max" entries; also the text of an enemy set (.ubl)
    QString rate;
};
MapEnemies SplitMapEnemies(const QString& enemies);
// list "^" rate, an empty rate written as "0".
QString JoinMapEnemies(const QString& list, const QString& rate);
// One entry of the list, "name:min:max"; "All" in place of a level matches all.
enum MapEnemyField { MapEnemyName = 0, MapEnemyMinLevel, MapEnemyMaxLevel };

// Item 15: ground piles, records led by "Ä" of three "¥"-joined fields.
inline constexpr char16_t GroundPileSeparator = u'\u00C4'; // "Ä"
inline constexpr char16_t GroundPileFieldSeparator = u'\u00A5'; // "¥"
enum GroundPileField { GroundPileVariable = 0, GroundPileContents, GroundPileLocation };

// Item 16: NPC records led by "ƒ", 14 ":"-joined fields each.
inline constexpr char16_t NpcSeparator = u'\u0192'; // "ƒ"
enum NpcField {
    NpcName = 0,
    NpcImagePath,
    NpcEventPath,
    NpcDirectPaste,
    NpcManipPaste,
    NpcLocation,
    NpcSprite,
    NpcVisible,
    NpcWanders,
    NpcFollowsPlayer,
    NpcWarpFollow,
    NpcEvadesPlayer,
    NpcAnimated,
    NpcAnimation,
};
inline constexpr int NpcFieldCount = 14;

} // namespace umbrith
