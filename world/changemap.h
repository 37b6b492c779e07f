#pragma once

#include "core/gamerecord.h"
#include "platform/error.h"
#include "world/mapfile.h"
#include "world/worldstate.h"

namespace umbrith {

// The table-building steps of Changemap, in the order Main runs them. Each
// raises the run-time error of its step; Main's trap turns it into the map
// load popup (MapLoadErrorText).

// The map's name as CurrentLevel holds it: the last non-empty part of the
// path split on "\", trimmed.
QString LevelName(const QString& mapPath);

// The map record (from NPCAt) of every movable NPC that follows the player,
// each led by "£": what a save keeps of the running map. A place at 501 or
// beyond raises "Subscript out of range".
QString HeldEntries(const WorldState& world);

// Followers leaving the running map: the held entries, then the pending
// followers and the entries a loaded save holds, both emptied. Sets and
// returns FollowerNPCs.
QString CollectFollowers(WorldState& world);

// The scalars read with the file: sizes as stored (reduced later), music,
// tileset name and night flag.
void TakeMapScalars(WorldState& world, const MapFile& map);

// Items 3 and 4 into MapTiles and MapPass.
void LoadMapGrid(WorldState& world, const MapFile& map);

// The NPC list of a map entered with followers. A map NPC is a duplicate of a
// follower when both have its name and both Warp Follow. The list that comes
// out is "ƒ" and the last map NPC that differs from some duplicate, or empty
// when there is no duplicate: a follower entering a map leaves at most one of
// the map's own NPCs. Maps made for this know it.
QString FilterFollowerDuplicates(const QString& npcs, const QString& followers);

// The run-time record of MovableNPCs for a map record at (x, y) in picture slot
// `slot`; a record of fewer than 14 fields raises "Subscript out of range".
QString RuntimeNpcRecord(const QStringList& fields, const QString& x, const QString& y, int slot);

// Item 16 (after the filter) into the NPC pictures, PastedNPCs, MovableNPCs
// and NPCAt. An NPC whose picture is missing is left out altogether; one that
// can't be read is skipped.
void LoadMapNPCs(WorldState& world, const QString& npcs);

// Item 9 into TileEvents by each event's place.
void LoadTileEvents(WorldState& world, const QString& events);

// Item 8: LevelEnemies and EncounterRate.
void LoadMapEnemies(WorldState& world, const QString& enemies);

// The night's picture, "\images\night1.bmp", once.
void LoadNightPicture(Textures& textures);

// Item 15: the piles whose variable says they are still there go into
// GroundPileAt; a variable that resolves empty is created as 0. PlayerX and
// PlayerY pass through each pile's place on the way, as they always have.
void LoadGroundPiles(GameRecord& game, WorldState& world, const QString& groundItems);

// The landing place: the start location (as "x|y") when !useLocation or when
// either half of `location` is "SL", else `location` as "x;y". Sets the
// player's twips and tile.
void PlacePlayer(GameRecord& game, WorldState& world, bool useLocation, const QString& location);

// Places FollowerNPCs in the first free cell of the 5 x 5 square around the
// player (rows outer, columns inner, from -2 to 2), within the stored sizes.
// The column offset is tested against the player's row, as it always was, so
// near the top edge a follower can reach a row above the map: that is a
// subscript error, and the follower stays behind, as one does that finds no
// cell. A follower whose picture is missing stands in NPCAt but never moves.
void PlaceFollowers(GameRecord& game, WorldState& world, double width, double height);

// Item 7, when not empty, into the four screen warps.
void LoadScreenWarps(WorldState& world, const QString& screenWarps);

// Item 1: messages and tile warps by their location; a message shown when
// the player enters the level sets EnterMessagePending.
void LoadSpecials(WorldState& world, const QString& specials);

// The popup text of a failed map load.
QString MapLoadErrorText(const QString& mapPath, const RuntimeError& error);

} // namespace umbrith
