#include "core/misc.h"
#include "events/eventfile.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"
#include "tests/world/recordingscreen.h"
#include "world/movement.h"

namespace umbrith {
namespace {

class MovementTest : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        world.LevelWidth = 19;
        world.LevelHeight = 16;
        standAt(5, 5);
    }
    void standAt(int x, int y) {
        world.PlayerTwipX = x * 360;
        world.PlayerTwipY = y * 360;
    }
    void step(int key) {
        screen.calls.clear();
        MoveChar(game, world, screen, key);
    }

    GameRecord game;
    WorldState world;
    RecordingScreen screen{world};
};

TEST_F(MovementTest, aPassableCellIsEnteredAndTouchedAndAnImpassableOneIsBumpedAndTouched) {
    world.MapPass.cell(6, 5) = "1";
    world.TileEvents.cell(6, 5) = "ÜE";
    step(KeyRight);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 360 0", "CheckEvents False 6 5 ÜE"}));
    EXPECT_EQ(game.PlayerX.num(), 6);

    world.MapPass.cell(6, 4) = "2";
    world.SpecialKind.cell(6, 4) = "1";
    world.MessageSource.cell(6, 4) = "Sign";
    world.MessageText.cell(6, 4) = "Closed";
    step(KeyUp);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 0 0", "StartMessage Sign Closed", "PauseEvents", "CheckEvents False 6 4 "}));
    EXPECT_EQ(game.PlayerY.num(), 5);

    // A hand-edited cell is read by its numeric prefix.
    world.MapPass.cell(5, 5) = "1a";
    step(KeyLeft);
    EXPECT_EQ(game.PlayerX.num(), 5);
    step(KeyRight);

    // Any other passability blocks without a redraw or a touch.
    world.MapPass.cell(6, 6) = "0";
    world.SpecialKind.cell(6, 6) = "1";
    step(KeyDown);
    EXPECT_TRUE(screen.calls.isEmpty());
}

TEST_F(MovementTest, aVisibleNpcBlocksAndTalksAfterTheCellAHiddenOneIsWalkedThrough) {
    world.MapPass.cell(4, 5) = "1";
    world.NPCAt.cell(4, 5) = testmaps::npcRecord("Guard", "4;5", "x", "1", "0", "0", "\\events\\guard.ube");
    testmaps::makeFolder("\\events\\guard.ube");
    SaveEventFile(AppPath() + "\\events\\guard.ube", "Talk£-2;-2££*Hi^2");
    step(KeyLeft);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 0 0", "CheckEvents False 4 5 ", "CheckEvents False Item Item ÜTalk£-2;-2££*Hi^2"}));
    EXPECT_EQ(game.PlayerX.num(), 5);

    world.NPCAt.cell(4, 5) = testmaps::npcRecord("Ghost", "4;5", "x", "0");
    step(KeyLeft);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel -360 0", "CheckEvents False 4 5 "}));
}

TEST_F(MovementTest, aTileWarpEndsTheStepBeforeTheOldMapsEventsRun) {
    world.MapPass.cell(5, 6) = "1";
    world.SpecialKind.cell(5, 6) = "2";
    world.WarpTargetMap.cell(5, 6) = "\\maps\\b.ubm";
    world.WarpTargetLocation.cell(5, 6) = "SL;SL";
    world.TileEvents.cell(5, 6) = "ÜE";
    step(KeyDown);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 0 360", "Changemap \\maps\\b.ubm SL;SL"}));
    EXPECT_FALSE(world.MapChanged);
}

TEST_F(MovementTest, specialWalkGoesThroughEverythingAndNeverWarpsAtAnEdge) {
    world.SpecialWalk = true;
    world.MapPass.cell(6, 5) = "0";
    step(KeyRight);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 360 0"}));
    standAt(19, 5);
    world.ScreenWarpRight = "\\maps\\east.ubm";
    step(KeyRight);
    EXPECT_TRUE(screen.calls.isEmpty());
}

TEST_F(MovementTest, anEdgeWithoutWarpRedrawsAndScreenWarpsKeepTheCoordinateAlongTheEdge) {
    standAt(19, 7);
    step(KeyRight);
    EXPECT_EQ(screen.calls, QStringList({"UpdateLevel 0 0"}));

    world.ScreenWarpRight = "\\maps\\east.ubm";
    step(KeyRight);
    EXPECT_EQ(screen.calls, QStringList({"Changemap \\maps\\east.ubm 0;7"}));

    // Going up or left, the target's size is read first.
    testmaps::TestMap north(30, 40);
    north.file.music = "\\sfx\\north.mid";
    north.write("\\maps\\north.ubm");
    world.ScreenWarpTop = "\\maps\\north.ubm";
    standAt(3, 0);
    step(KeyUp);
    EXPECT_EQ(screen.calls, QStringList({"Changemap \\maps\\north.ubm 3;39"}));
    EXPECT_EQ(world.LevelMusicPath, "\\sfx\\north.mid");

    world.ScreenWarpLeft = "\\maps\\north.ubm";
    standAt(0, 4);
    step(KeyLeft);
    EXPECT_EQ(screen.calls, QStringList({"Changemap \\maps\\north.ubm 29;4"}));

    world.ScreenWarpBottom = "\\maps\\south.ubm";
    standAt(2, 16);
    step(KeyDown);
    EXPECT_EQ(screen.calls, QStringList({"Changemap \\maps\\south.ubm 2;0"}));
}

TEST_F(MovementTest, npcEventsComeFromTheMapsOwnEventsFirstAndAMissingFileIsReported) {
    world.TileEvents.cell(-2, -2) = "Ü \\events\\talk.ube £-2;-2££*From the map^2";
    world.NPCAt.cell(1, 1) = testmaps::npcRecord("Elder", "1;1", "x", "1", "0", "0", "\\events\\talk.ube ,\\events\\gone.ube");
    CheckNPCs(world, screen, 1, 1);
    EXPECT_EQ(screen.calls, QStringList({"Popup NPC Error: The path: \\events\\gone.ube is missing!"}));

    screen.calls.clear();
    world.NPCAt.cell(1, 1) = testmaps::npcRecord("Elder", "1;1", "x", "1", "0", "0", "\\events\\talk.ube ");
    CheckNPCs(world, screen, 1, 1);
    EXPECT_EQ(screen.calls, QStringList({"CheckEvents False Item Item Ü \\events\\talk.ube £-2;-2££*From the map^2"}));

    screen.calls.clear();
    writeFile("\\events\\broken.ube", "");
    world.NPCAt.cell(1, 1) = testmaps::npcRecord("Elder", "1;1", "x", "1", "0", "0", "\\events\\broken.ube");
    CheckNPCs(world, screen, 1, 1);
    EXPECT_EQ(screen.calls, QStringList({"Popup NPC Error: There was an error calling the event: \\events\\broken.ube"}));
}

TEST_F(MovementTest, anEncounterComesWhenTheRollIsAtMostTheRateAndAnEnemyFitsTheLevel) {
    game.PlayerLevel = 3;
    world.LevelEnemies = "/Rat:1:2/Wolf:4:All";
    world.EncounterRate = "0";
    scripted.queueDraw(0.0f); // roll 0: a rate of 0 still fights
    EXPECT_TRUE(CheckFight(game, world));
    scripted.queueDraw(0.015f); // roll 1
    EXPECT_FALSE(CheckFight(game, world));

    world.LevelEnemies = "/Rat:1:2/Bat:5:9";
    world.EncounterRate = "99";
    scripted.queueDraw(0.995f);
    EXPECT_FALSE(CheckFight(game, world)); // nothing for level 3
    world.LevelEnemies = "0";
    EXPECT_FALSE(CheckFight(game, world)); // no enemies: no draw at all
}

TEST_F(MovementTest, gMarksEveryPileOnThePlayersTileAsTaken) {
    game.PlayerX = 2;
    game.PlayerY = 3;
    game.Variables = "|chest=0";
    world.GroundItemsText = QString(u'Ä') + "chest¥gold¥2;3" + u'Ä' + "bag¥apple¥2;3" + u'Ä' + "far¥rope¥9;9";
    MarkGroundPilesSeen(game, world);
    EXPECT_EQ(game.Variables.text(), "|chest=1|bag=1");
}

} // namespace
} // namespace umbrith
