#pragma once

#include "core/gamerecord.h"
#include "world/movement.h"
#include "world/worldstate.h"

namespace umbrith {

// A direction of a step; its number is the sprite row that faces it.
enum class Facing { Down = 0, Up = 1, Left = 2, Right = 3 };

// Whether an NPCWander tick moves anyone: NPCs stand still while there are
// none, while an event waits for its dialogue, in a battle and under a panel.
bool NPCsMayWalk(const GameRecord& game, const WorldState& world, bool eventPaused);

// One NPCWander tick past its guard. Every movable NPC may take one step,
// staged in NPCRebuild, which then becomes MovableNPCs, and the level is
// redrawn. A visible wanderer steps on half of the ticks, in any of the four
// directions alike. A visible follower closes the longer distance to the
// player first, an evader opens the shorter one first; when a step fails the
// next tick tries the other axis. Everyone else stands. A record that can't
// be read stands too.
void NPCWanderTick(const GameRecord& game, WorldState& world, WorldScreen& screen);

// One step of a movable NPC's run-time record: its next record goes to
// NPCRebuild and NPCAt keeps in step. The cell ahead must lie on the map, be
// passable ("1" only, never a bump cell) and hold no NPC; when it is the
// player's, the NPC bumps him and its events fire. A step that fails turns
// the NPC that way and marks its axis blocked. A record of too few fields
// raises "Subscript out of range".
void MoveNPCDir(const GameRecord& game, WorldState& world, WorldScreen& screen, const QString& record, Facing direction);

// What an event action makes of an NPC: its place and every field it may
// change, as texts.
struct NpcChange {
    QString x, y, spriteRow, visible, wanders, imagePath, follows, warpFollow, evades, animated, animation;
};
// The fields of a run-time record as they stand, to change some and pass on.
NpcChange NpcChangeOf(const QString& record);

// Moves or changes the NPC of a run-time record for an event action and
// returns the record's new text ("" for ""); NPCAt keeps in step. The NPC
// moves when the target is free or its own cell; when another NPC stands
// there, every change but the place goes through. A place outside NPCAt's
// 0 to 500 raises "Subscript out of range" before anything changes.
QString MoveNPC(WorldState& world, const QString& record, const NpcChange& change);

} // namespace umbrith
