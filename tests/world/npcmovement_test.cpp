#include "core/misc.h"
#include "events/eventfile.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"
#include "tests/world/recordingscreen.h"
#include "world/changemap.h"
#include "world/npcmovement.h"

namespace umbrith {
namespace {

// A 10 x 10 open field with the player at (5, 5). Draws are fed per test;
// one drawn and not fed, or fed and not drawn, fails it.
class NpcMovementTest : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        world.LevelWidth = 9;
        world.LevelHeight = 9;
        for (int y = 0; y <= 9; ++y)
            for (int x = 0; x <= 9; ++x)
                world.MapPass.cell(x, y) = "1";
        game.PlayerX = 5;
        game.PlayerY = 5;
    }

    struct Flags {
        QString wanders = "0", follows = "0", evades = "0", visible = "1", events = "";
    };
    // Places an NPC in NPCAt and, as Changemap does, in MovableNPCs.
    void place(const QString& name, int x, int y, const Flags& flags) {
        const QString location = QString::number(x) + ';' + QString::number(y);
        const QStringList m{name,          "img",         flags.events, "False", "True", location, "0", flags.visible,
                            flags.wanders, flags.follows, "0",          flags.evades, "0", "0"};
        world.NPCAt.cell(x, y) = m.join(':');
        world.MovableNPCs += ';' + RuntimeNpcRecord(m, QString::number(x), QString::number(y), count++);
    }
    void draws(std::initializer_list<float> values) {
        for (float value : values)
            scripted.queueDraw(value);
    }
    void tick() {
        screen.calls.clear();
        NPCWanderTick(game, world, screen);
    }
    // The NPC's place and sprite row in MovableNPCs, as "x;y row", checked
    // against NPCAt, which must hold it at that place and nowhere else.
    QString where(const QString& name) const {
        for (const QString& record : world.MovableNPCs.split(';', Qt::SkipEmptyParts)) {
            const QStringList a = record.split(':');
            if (a[RunName] != name)
                continue;
            const QString at = a[RunX] + ';' + a[RunY];
            int held = 0;
            for (const MapTable::Cell& cell : world.NPCAt.cells())
                if (cell.text.startsWith(name + ':'))
                    held += cell.text.split(':')[NpcLocation] == at && QString::number(cell.x) + ';' + QString::number(cell.y) == at;
            return held == 1 ? at + ' ' + a[RunSprite] : at + " not in NPCAt";
        }
        return "gone";
    }

    GameRecord game;
    WorldState world;
    RecordingScreen screen{world};
    int count = 0;
};

TEST_F(NpcMovementTest, aWandererStandsOnHalfTheTicksAndOtherwiseStepsWhereTheSecondDrawPoints) {
    place("Pip", 2, 2, {.wanders = "1"});
    draws({0.6f});
    tick();
    EXPECT_EQ(where("Pip"), "2;2 0");
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 0 0"}));

    draws({0.5f, 0.25f, 0.1f, 0.5f, 0.1f, 0.75f, 0.1f, 0.9f, 0.4f, 0.76f});
    const char* const after[] = {"2;1 1", "2;2 0", "1;2 2", "2;2 3", "3;2 3"};
    for (const char* expected : after) {
        tick();
        EXPECT_EQ(where("Pip"), expected);
    }
    // The map record moves along with the new place and row, its other fields kept.
    EXPECT_EQ(world.NPCAt.at(3, 2), "Pip:img::False:True:3;2:3:1:1:0:0:0:0:0");
    EXPECT_TRUE(world.NPCRebuild == world.MovableNPCs);
}

TEST_F(NpcMovementTest, npcsNeverLeaveTheMapNorEnterWallsBumpCellsOrOtherNpcsButTurnThere) {
    place("Pip", 5, 2, {.wanders = "1"});
    place("Post", 5, 1, {});
    world.MapPass.cell(6, 2) = "2";
    world.MapPass.cell(4, 2) = "0";
    place("Edge", 9, 9, {.wanders = "1"});
    draws({0.1f, 0.9f, 0.1f, 0.9f,   // Pip right into the bump cell, Edge right off the map
           0.1f, 0.6f, 0.1f, 0.4f,   // Pip left into the wall, Edge down off the map
           0.1f, 0.2f, 0.6f});       // Pip up into the post, Edge stands
    tick();
    EXPECT_EQ(where("Pip"), "5;2 3");
    EXPECT_EQ(where("Edge"), "9;9 3");
    EXPECT_TRUE(world.BlockedX);
    EXPECT_FALSE(world.BlockedY);
    tick();
    EXPECT_EQ(where("Pip"), "5;2 2");
    EXPECT_EQ(where("Edge"), "9;9 0");
    EXPECT_TRUE(world.BlockedY);
    tick();
    EXPECT_EQ(where("Pip"), "5;2 1");
    EXPECT_EQ(where("Post"), "5;1 0");

    world.MapPass.cell(0, 0) = "1";
    world.MovableNPCs.clear();
    world.NPCAt.clear();
    place("Corner", 0, 0, {.wanders = "1"});
    draws({0.1f, 0.2f, 0.1f, 0.7f});
    tick();
    tick();
    EXPECT_EQ(where("Corner"), "0;0 2");
}

TEST_F(NpcMovementTest, aFollowerClosesTheLongerDistanceFirstAndAnEvaderOpensTheShorterOne) {
    place("Dog", 1, 3, {.follows = "1"});
    tick();
    EXPECT_EQ(where("Dog"), "2;3 3");
    tick();
    EXPECT_EQ(where("Dog"), "3;3 3");
    // Two and two: a coin above one half takes the column.
    draws({0.7f});
    tick();
    EXPECT_EQ(where("Dog"), "3;4 0");

    world.MovableNPCs.clear();
    world.NPCAt.clear();
    place("Hare", 7, 4, {.evades = "1"});
    tick(); // one row off and two columns: it opens the row distance
    EXPECT_EQ(where("Hare"), "7;3 1");
    draws({0.2f}); // two and two: the coin takes the row
    tick();
    EXPECT_EQ(where("Hare"), "8;3 3");
}

TEST_F(NpcMovementTest, levelWithThePlayerACoinPicksTheSideAndOnHisOwnCellTheAxisToo) {
    place("Dog", 5, 5, {.follows = "1"});
    draws({0.4f, 0.6f}); // the axis: across; the side: left
    tick();
    EXPECT_EQ(where("Dog"), "4;5 2");

    world.MovableNPCs.clear();
    world.NPCAt.clear();
    place("Hare", 8, 5, {.evades = "1"});
    draws({0.3f}); // on the player's row an evader goes up or down by the coin
    tick();
    EXPECT_EQ(where("Hare"), "8;6 0");
}

TEST_F(NpcMovementTest, aFailedStepSendsTheNextTickAlongTheOtherAxisAndBothFlagsFavourTheColumns) {
    game.PlayerY = 7;
    place("Dog", 1, 5, {.follows = "1"});
    world.MapPass.cell(2, 5) = "2";
    tick();
    EXPECT_EQ(where("Dog"), "1;5 3");
    EXPECT_TRUE(world.BlockedX);
    tick();
    EXPECT_EQ(where("Dog"), "1;6 0");
    EXPECT_FALSE(world.BlockedX);

    world.BlockedX = world.BlockedY = true;
    game.PlayerX = 1;
    game.PlayerY = 9; // three rows away in the same column: the row would win
    draws({0.9f});
    tick();
    EXPECT_EQ(where("Dog"), "0;6 2");
    EXPECT_FALSE(world.BlockedY);
    EXPECT_TRUE(world.BlockedX);
}

TEST_F(NpcMovementTest, aFollowerNextToThePlayerBumpsHimAndFiresItsEventsFromItsOwnCell) {
    testmaps::makeFolder("\\events\\dog.ube");
    SaveEventFile(AppPath() + "\\events\\dog.ube", "Woof£-2;-2££*Woof^2");
    place("Dog", 4, 5, {.follows = "1", .events = "\\events\\dog.ube"});
    tick();
    EXPECT_EQ(screen.calls, QStringList({"CheckEvents False Item Item ÜWoof£-2;-2££*Woof^2", "UpdateLevel 0 0"}));
    EXPECT_EQ(where("Dog"), "4;5 3");
    EXPECT_TRUE(world.BlockedX);
}

TEST_F(NpcMovementTest, hiddenAndPlainNpcsStandAndAWanderingFollowerOnlyWanders) {
    place("Ghost", 1, 1, {.wanders = "1", .follows = "1", .visible = "0"});
    place("Stone", 2, 1, {});
    place("Pip", 8, 8, {.wanders = "1", .follows = "1"});
    const QString before = world.MovableNPCs;
    draws({0.9f});
    tick();
    EXPECT_EQ(world.MovableNPCs, before);

    // A record that can't be read stands as it is.
    world.MovableNPCs += ";broken:record";
    draws({0.9f});
    tick();
    EXPECT_EQ(world.MovableNPCs, before + ";broken:record");
}

TEST_F(NpcMovementTest, npcsStandWhileThereAreNoneOrAnEventWaitsOrABattleOrAPanelIsUp) {
    EXPECT_FALSE(NPCsMayWalk(game, world, false));
    place("Pip", 2, 2, {.wanders = "1"});
    EXPECT_TRUE(NPCsMayWalk(game, world, false));
    EXPECT_FALSE(NPCsMayWalk(game, world, true));
    game.BattleActive = true;
    EXPECT_FALSE(NPCsMayWalk(game, world, false));
    game.BattleActive = false;
    game.ScreenPanelOpen = true;
    EXPECT_FALSE(NPCsMayWalk(game, world, false));
}

TEST_F(NpcMovementTest, moveNpcTakesAFreeCellWithEveryChangeAndKeepsThePictureSlotAndName) {
    place("Stone", 0, 0, {});
    place("Pip", 2, 2, {});
    const QString record = world.MovableNPCs.split(';').last();
    NpcChange change = NpcChangeOf(record);
    EXPECT_EQ(change.x, "2");
    change.x = "3";
    change.spriteRow = "3";
    change.imagePath = "\\images\\npcs\\two.bmp";
    change.wanders = "1";
    EXPECT_EQ(MoveNPC(world, record, change), "2:3:\\images\\npcs\\two.bmp:3:1:1:1:Pip:0:0:0:0:0");
    EXPECT_EQ(world.NPCAt.at(3, 2), "Pip:\\images\\npcs\\two.bmp::False:True:3;2:3:1:1:0:0:0:0:0");
    EXPECT_TRUE(world.NPCAt.at(2, 2).isEmpty());

    // Its own cell is free to it: a change in place.
    const QString moved = "2:3:\\images\\npcs\\two.bmp:3:1:1:1:Pip:0:0:0:0:0";
    change = NpcChangeOf(moved);
    change.visible = "0";
    EXPECT_EQ(MoveNPC(world, moved, change), "2:3:\\images\\npcs\\two.bmp:3:1:0:1:Pip:0:0:0:0:0");
    EXPECT_EQ(world.NPCAt.at(3, 2).split(':')[NpcVisible], "0");
    EXPECT_EQ(MoveNPC(world, "", change), "");
}

TEST_F(NpcMovementTest, onACellTakenByAnotherNpcMoveNpcChangesEverythingButThePlace) {
    place("Stone", 3, 2, {});
    place("Pip", 2, 2, {});
    const QString record = world.MovableNPCs.split(';').last();
    NpcChange change = NpcChangeOf(record);
    change.x = "3";
    change.spriteRow = "3";
    change.follows = "1";
    EXPECT_EQ(MoveNPC(world, record, change), "2:2:img:3:1:1:0:Pip:1:0:0:0:0");
    EXPECT_EQ(world.NPCAt.at(2, 2), "Pip:img::False:True:2;2:3:1:0:1:0:0:0:0");
    EXPECT_TRUE(world.NPCAt.at(3, 2).startsWith("Stone:"));

    change.x = "501";
    EXPECT_THROW(MoveNPC(world, record, change), RuntimeError);
    EXPECT_EQ(world.NPCAt.at(2, 2), "Pip:img::False:True:2;2:3:1:0:1:0:0:0:0");
}

} // namespace
} // namespace umbrith
