#pragma once

#include "core/gamerecord.h"
#include "world/worldstate.h"

namespace umbrith {

// One AniTimer tick: the walk frame of every animated figure runs
// 0, 1, 2, 1, 0, 1, ... A direction other than "U" counts as falling.
void StepWalkFrame(WorldState& world);

// One daynight tick, a minute of play: eleven ticks make a phase of day or
// night, and a day has passed each time night turns to day.
void TickDayClock(GameRecord& game, WorldState& world);

} // namespace umbrith
