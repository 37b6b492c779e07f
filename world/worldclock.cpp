#include "world/worldclock.h"

namespace umbrith {

void StepAnimationFrame(int& frame, QString& way) {
    if (way == u"U") {
        if (frame == 2) {
            way = QStringLiteral("B");
            frame = 1;
        } else {
            ++frame;
        }
    } else if (frame == 0) {
        way = QStringLiteral("U");
        frame = 1;
    } else {
        --frame;
    }
}

void StepWalkFrame(WorldState& world) { StepAnimationFrame(world.WalkFrame, world.WalkDirection); }

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
