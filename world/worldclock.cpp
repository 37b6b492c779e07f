#include "world/worldclock.h"

namespace umbrith {

void StepWalkFrame(WorldState& world) {
    if (world.WalkDirection == u"U") {
        if (world.WalkFrame == 2) {
            world.WalkDirection = QStringLiteral("B");
            world.WalkFrame = 1;
        } else {
            ++world.WalkFrame;
        }
    } else if (world.WalkFrame == 0) {
        world.WalkDirection = QStringLiteral("U");
        world.WalkFrame = 1;
    } else {
        --world.WalkFrame;
    }
}

void TickDayClock(GameRecord& game, WorldState& world) {
    if (world.DayTicks < 10) {
        ++world.DayTicks;
        return;
    }
    world.DayTicks = 0;
    game.IsDay = !isTrue(game.IsDay);
    if (isTrue(game.IsDay))
        game.DaysPassed = game.DaysPassed.num() + 1;
}

} // namespace umbrith
