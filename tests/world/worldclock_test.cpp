#include "world/worldclock.h"

#include <gtest/gtest.h>

namespace umbrith {
namespace {

TEST(WorldClockTest, theWalkFramesRunUpToTwoAndBackToZeroOverAndOver) {
    WorldState world;
    QList<int> frames;
    for (int i = 0; i < 9; ++i) {
        StepWalkFrame(world);
        frames << world.WalkFrame;
    }
    EXPECT_EQ(frames, QList<int>({1, 2, 1, 0, 1, 2, 1, 0, 1}));

    // Any direction but "U" falls.
    world.WalkDirection = "X";
    world.WalkFrame = 2;
    StepWalkFrame(world);
    EXPECT_EQ(world.WalkFrame, 1);
}

TEST(WorldClockTest, elevenMinutesMakeAPhaseAndADayPassesWhenNightTurnsToDay) {
    GameRecord game;
    WorldState world;
    for (int minute = 1; minute <= 10; ++minute)
        TickDayClock(game, world);
    EXPECT_TRUE(isTrue(game.IsDay));
    TickDayClock(game, world);
    EXPECT_FALSE(isTrue(game.IsDay));
    EXPECT_EQ(game.DaysPassed.num(), 0);
    for (int minute = 1; minute <= 11; ++minute)
        TickDayClock(game, world);
    EXPECT_TRUE(isTrue(game.IsDay));
    EXPECT_EQ(game.DaysPassed.num(), 1);
    EXPECT_EQ(world.DayTicks, 0);

    // A saved count in text form goes on counting.
    game.DaysPassed = "4";
    for (int minute = 1; minute <= 22; ++minute)
        TickDayClock(game, world);
    EXPECT_EQ(game.DaysPassed.num(), 5);
}

} // namespace
} // namespace umbrith
