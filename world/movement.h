#pragma once

#include "core/gamerecord.h"
#include "world/worldstate.h"

namespace umbrith {

// What the world's rules ask of the game screen: the redraw, the map change,
// the event engine, messages and popups. Main is the one screen.
class WorldScreen {
public:
    virtual ~WorldScreen() = default;
    virtual void UpdateLevel(double dx, double dy) = 0;
    // Takes its texts by value: they often come from the tables it rebuilds.
    virtual void Changemap(QString mapPath, bool useLocation, QString location) = 0;
    virtual void CheckEvents(const Value& entering, const Value& x, const Value& y, const QString& events) = 0;
    virtual void StartMessage(const QString& source, const QString& text) = 0;
    // The running event list waits for the message to close.
    virtual void PauseEvents() = 0;
    virtual void ShowPopup(const QString& text, const QString& title) = 0;
};

// The key codes of a step.
inline constexpr int KeyLeft = 37;
inline constexpr int KeyUp = 38;
inline constexpr int KeyRight = 39;
inline constexpr int KeyDown = 40;

// The facing (and sprite row) an arrow gives: Down 0, Up 1, Left 2, Right 3.
int FacingOfKey(int keyCode);

// One step of the player for a key code: the move, a bump, what the touched
// cell fires, or the screen warp at an edge. Another code only recomputes
// PlayerX and PlayerY.
void MoveChar(GameRecord& game, WorldState& world, WorldScreen& screen, int keyCode);

// A message or a tile warp on the cell.
void CheckSpecialTiles(WorldState& world, WorldScreen& screen, int x, int y);

// The events of the NPC standing on the cell: its references found first among
// the map's own Call Activation events, then as event files.
void CheckNPCs(WorldState& world, WorldScreen& screen, int x, int y);

// The encounter roll of an arrow key: true when a battle comes, that is, when
// the map has enemies for the player's level and a draw of 0 to 99 is at most
// the encounter rate.
bool CheckFight(const GameRecord& game, const WorldState& world);

// The G key: every pile on the player's tile is marked as seen, so that its
// variable says it was taken when the map is entered again.
void MarkGroundPilesSeen(GameRecord& game, const WorldState& world);

} // namespace umbrith
