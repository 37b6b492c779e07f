#pragma once

#include "core/value.h"
#include "world/textures.h"
#include "world/tileset.h"

#include <QHash>
#include <QString>

namespace umbrith {

// One per-map table. The game's grids have fixed bounds whatever the map's
// size (501 cells a side, 502 for those that give the location -1 a slot,
// 504 for the event table that reaches down to -3); a cell outside them is a
// subscript error. Only the cells written take room.
class MapTable {
public:
    // `offset` is added to a location to find its slot, `storage` is the
    // number of slots a side.
    MapTable(int offset, int storage) : offset_(offset), storage_(storage) {}

    // The cell at location (x, y); "" when never written. A fractional
    // location takes its slot by adding the offset first and then rounding
    // half to even, so "2.5" lands in slot 4 of a table offset by 1.
    const QString& at(double x, double y) const;
    QString& cell(double x, double y);
    void clear() { cells_.clear(); }
    // The cells written and not empty, row by row.
    struct Cell {
        int x, y;
        QString text;
    };
    QList<Cell> cells() const;
    bool isEmpty() const { return cells_.isEmpty(); }

private:
    int key(double x, double y) const;

    int offset_;
    int storage_;
    QHash<int, QString> cells_;
};

// The world of the running map, without widgets: the per-map tables, the
// level's scalars, the NPC lists, the player's place in twips and the
// pictures everything is drawn from. Changemap rebuilds it at each map change.
struct WorldState {
    // Per-map tables, addressed by the map location.
    MapTable MapTiles{1, 502};
    MapTable MapPass{0, 501};
    MapTable SpecialKind{1, 502};
    MapTable MessageLocation{1, 502}, MessageSource{1, 502}, MessageActivation{1, 502}, MessageText{1, 502};
    MapTable WarpSource{0, 501}, WarpTargetMap{0, 501}, WarpTargetLocation{0, 501};
    MapTable NPCAt{0, 501};
    MapTable GroundPileAt{0, 501};
    MapTable TileEvents{3, 504};

    // Level scalars. The sizes are the last valid column and row once a map
    // has loaded (one less than stored).
    QString CurrentMapPath;
    double LevelWidth = 1, LevelHeight = 1;
    QString StartLocation;
    QString ScreenWarpTop, ScreenWarpBottom, ScreenWarpLeft, ScreenWarpRight;
    QString LevelEnemies, EncounterRate;
    QString TilesetName, LevelMusicPath, PlayingMusicPath;
    QString GroundItemsText; // the map's ground pile records
    Value NightLevel = 0;
    int EnterMessagePending = 0;

    // NPC lists: ";"-led 13-field run-time records, pasted records, and the
    // "£"-led map records of the followers carried to the next map.
    QString MovableNPCs, PastedNPCs, FollowerNPCs, PendingFollowers, NPCRebuild;
    int NPCPictureCount = 0;
    // The followers a loaded save brought, placed by the next map change.
    QString HoldTileEntries;
    // The last horizontal or vertical step of a follower or evader failed;
    // one pair for all NPCs of the map.
    bool BlockedX = false, BlockedY = false;

    // The player on the map, beside PlayerX and PlayerY of the game record.
    double PlayerTwipX = 0, PlayerTwipY = 0;
    int WalkFrame = 0;
    QString WalkDirection = QStringLiteral("U"); // the frames rise ("U") or fall ("B")
    int DayTicks = 0; // minutes of the phase of day or night gone by
    int PlayerFrame = 0;
    bool PlayerAnimated = false;
    bool PlayerVisible = true;
    // Set and cleared by the events' "Start Animation" and "Stop Animation".
    bool AnimationRunning = false;

    // Flags of a step.
    bool MapChanged = false;
    bool SpecialWalk = false;
    bool ControlsDisabled = false;

    // The arguments of the latest CheckEvents.
    Value LastCheckEntering, LastCheckX, LastCheckY;

    // Pictures: the paper doll, the NPC sheets, the tileset and the night.
    Textures textures;
    TilesetState tileset;
};

// The fields of a run-time record of MovableNPCs.
enum RuntimeNpcField {
    RunY = 0,
    RunX,
    RunImagePath,
    RunSprite,
    RunPictureSlot,
    RunVisible,
    RunWanders,
    RunName,
    RunFollows,
    RunWarpFollow,
    RunEvades,
    RunAnimated,
    RunAnimation,
};
inline constexpr int RunFieldCount = 13;

// A location half as an index: numeric-prefix parse, halves to even.
int CellIndex(const QString& text);

// Tears the running map down: every table and NPC list emptied, the NPC
// pictures unloaded but for the first slot.
void ResetMap(WorldState& world);

// The number of a cell's passability, by numeric-prefix parse as every number
// inside a map's items ("1a" is 1): 1 passable, 2 impassable with a bump,
// anything else blocks silently.
double PassValue(const QString& cell);

} // namespace umbrith
