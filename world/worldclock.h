#pragma once

#include "core/gamerecord.h"
#include "world/worldstate.h"

namespace umbrith {

// One tick of an animation: the frame runs 0, 1, 2, 1, 0, 1, ... while `way`
// says whether it rises ("U") or falls; any other way counts as falling.
void StepAnimationFrame(int& frame, QString& way);

// One AniTimer tick: the walk frame of every animated figure takes a step.
void StepWalkFrame(WorldState& world);

// One daynight tick, a minute of play: eleven ticks make a phase of day or
// night, and a day has passed each time night turns to day.
void TickDayClock(GameRecord& game, WorldState& world);

} // namespace umbrith
