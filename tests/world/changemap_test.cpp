#include "core/misc.h"
#include "platform/error.h"
#include "tests/support/errorof.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"
#include "world/changemap.h"

namespace umbrith {
namespace {

using testmaps::npcRecord;

class ChangemapTest : public ScriptedTest {
protected:
    GameRecord game;
    WorldState world;
};

TEST_F(ChangemapTest, aFollowerEnteringAMapLeavesAtMostOneOfTheMapsOwnNpcs) {
    const QString a = npcRecord("A", "1;1"), twin = npcRecord("Rex", "2;2", "x", "1", "1", "1"), b = npcRecord("B", "3;3");
    const QString follower = npcRecord("Rex", "9;9", "x", "1", "1", "1");
    const QString npcs = QString(u'ƒ') + a + u'ƒ' + twin + u'ƒ' + b;
    // The last map NPC that is not the duplicate stays, alone.
    EXPECT_EQ(FilterFollowerDuplicates(npcs, QString(u'£') + follower), QString(u'ƒ') + b);
    // Without a duplicate the whole list goes.
    EXPECT_EQ(FilterFollowerDuplicates(npcs, QString(u'£') + npcRecord("Other", "0;0", "x", "1", "1", "1")), "");
    // A duplicate needs Warp Follow on both sides.
    const QString stayer = npcRecord("Rex", "9;9", "x", "1", "1", "0");
    EXPECT_EQ(FilterFollowerDuplicates(npcs, QString(u'£') + stayer), "");
}

TEST_F(ChangemapTest, followersTakeTheFirstFreeCellOfTheSquareRowsFirstWithinTheStoredSize) {
    testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
    game.PlayerX = 5;
    game.PlayerY = 5;
    world.NPCAt.cell(3, 3) = npcRecord("Post", "3;3");
    world.FollowerNPCs = QString(u'£') + npcRecord("Dog", "0;0", "\\images\\npcs\\one.bmp", "1", "1") + u'£' +
                         npcRecord("Cat", "0;0", "\\images\\npcs\\gone.bmp", "1", "1");
    PlaceFollowers(game, world, 20, 20);
    // (3,3) is taken, so the dog takes (4,3); the cat without a picture stands at (5,3) but never moves.
    EXPECT_TRUE(world.NPCAt.at(4, 3).startsWith("Dog:"));
    EXPECT_TRUE(world.NPCAt.at(4, 3).contains(":4;3:"));
    EXPECT_TRUE(world.NPCAt.at(5, 3).startsWith("Cat:"));
    EXPECT_EQ(world.MovableNPCs, ";3:4:\\images\\npcs\\one.bmp:0:0:1:0:Dog:1:0:0:0:0");
    EXPECT_EQ(world.NPCPictureCount, 1);
}

TEST_F(ChangemapTest, theSquareTestsTheColumnOffsetAgainstThePlayersRowSoNearTheTopAFollowerStaysBehind) {
    testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
    world.FollowerNPCs = QString(u'£') + npcRecord("Dog", "0;0", "\\images\\npcs\\one.bmp", "1", "1");
    // At row 0 the cell (x, -2) passes the tests for a column offset of 0 and
    // is no cell: the follower is left behind.
    game.PlayerX = 5;
    game.PlayerY = 0;
    PlaceFollowers(game, world, 20, 20);
    EXPECT_TRUE(world.NPCAt.cells().isEmpty());
    EXPECT_EQ(world.MovableNPCs, "");
    // At row 2 the square starts at row 0, and the player's own cell counts too.
    game.PlayerY = 2;
    world.FollowerNPCs = QString(u'£') + npcRecord("Dog", "0;0", "\\images\\npcs\\one.bmp", "1", "1");
    game.PlayerX = 0;
    for (int x = 0; x <= 2; ++x)
        for (int y = 0; y <= 1; ++y)
            world.NPCAt.cell(x, y) = "taken";
    PlaceFollowers(game, world, 0, 20);
    EXPECT_TRUE(world.NPCAt.at(0, 2).startsWith("Dog:"));
}

TEST_F(ChangemapTest, followersAreCollectedFromMovableNpcsThatFollowThenThePendingOnes) {
    world.NPCAt.cell(4, 2) = "Dog record";
    world.NPCAt.cell(6, 6) = "Statue record";
    world.MovableNPCs = ";2:4:p:0:0:1:0:Dog:1:0:0:0:0;6:6:p:0:1:1:0:Statue:0:0:0:0:0";
    world.PendingFollowers = QString(u'£') + "Cat record";
    EXPECT_EQ(CollectFollowers(world), QString(u'£') + "Dog record" + u'£' + "Cat record");
    EXPECT_EQ(world.PendingFollowers, "");
}

TEST_F(ChangemapTest, theLandingPlaceIsTheLocationUnlessItOrItsUseSaysStartLocation) {
    world.StartLocation = "3|4";
    PlacePlayer(game, world, true, "7;8");
    EXPECT_EQ(game.PlayerX.num(), 7);
    EXPECT_EQ(world.PlayerTwipY, 8 * 360);
    PlacePlayer(game, world, true, "SL;2");
    EXPECT_EQ(game.PlayerX.num(), 3);
    EXPECT_EQ(game.PlayerY.num(), 4);
    PlacePlayer(game, world, false, "7;8");
    EXPECT_EQ(game.PlayerX.num(), 3);
    EXPECT_EQ(errorOf([&] { PlacePlayer(game, world, true, "7"); }), err::SubscriptOutOfRange);
}

TEST_F(ChangemapTest, groundPilesShowUntilTheirVariableSaysTheyWereTaken) {
    game.Variables = "|taken=1|left=0";
    const QString piles = QString(u'Ä') + "taken¥gold¥1;1" + u'Ä' + "left¥sword¥2;2" + u'Ä' + "new¥shield¥3;3" + u'Ä' +
                          "¥apple¥4;4";
    LoadGroundPiles(game, world, piles);
    EXPECT_EQ(world.GroundPileAt.at(1, 1), "");
    EXPECT_EQ(world.GroundPileAt.at(2, 2), "sword");
    EXPECT_EQ(world.GroundPileAt.at(3, 3), "shield");
    // An unnamed pile creates a variable with an empty name.
    EXPECT_EQ(world.GroundPileAt.at(4, 4), "apple");
    EXPECT_EQ(game.Variables.text(), "|taken=1|left=0|new=0|=0");
}

TEST_F(ChangemapTest, eventsGoToTheCellOfTheirPlaceAndSpecialsToTheirLocation) {
    LoadTileEvents(world, QString(u'Ü') + "Door£2;3££*x^2" + u'Ü' + "Hello£-1;-1££" + u'Ü' + "Bell£2;3££");
    EXPECT_EQ(world.TileEvents.at(2, 3), QString(u'Ü') + "Door£2;3££*x^2" + u'Ü' + "Bell£2;3££");
    EXPECT_EQ(world.TileEvents.at(-1, -1), QString(u'Ü') + "Hello£-1;-1££");

    LoadSpecials(world, MessageSpecial("-1;-1", "Sign", "2", "Welcome") + WarpSpecial("4;5", "\\maps\\b.ubm", "SL;SL"));
    EXPECT_EQ(world.EnterMessagePending, 1);
    EXPECT_EQ(world.SpecialKind.at(-1, -1), "1");
    EXPECT_EQ(world.MessageText.at(-1, -1), "Welcome");
    EXPECT_EQ(world.SpecialKind.at(4, 5), "2");
    EXPECT_EQ(world.WarpTargetMap.at(4, 5), "\\maps\\b.ubm");
    // A fractional place takes its slot after the table's offset is added:
    // message and event tables are offset, the warp table is not.
    LoadTileEvents(world, QString(u'Ü') + "Half£2.5;3££");
    EXPECT_EQ(world.TileEvents.at(3, 3), QString(u'Ü') + "Half£2.5;3££");
    LoadSpecials(world, MessageSpecial("2.5;3", "Sign", "1", "Half") + WarpSpecial("2.5;4", "\\maps\\b.ubm", "SL;SL"));
    EXPECT_EQ(world.MessageText.at(3, 3), "Half");
    EXPECT_EQ(world.WarpTargetMap.at(2, 4), "\\maps\\b.ubm");
    // A tile warp has no slot at -1.
    EXPECT_EQ(errorOf([&] { LoadSpecials(world, WarpSpecial("-1;0", "\\maps\\b.ubm", "SL;SL")); }), err::SubscriptOutOfRange);
}

TEST_F(ChangemapTest, theTablesEndAt500AndALocationBeyondIsASubscriptError) {
    world.NPCAt.cell(500, 500) = "far";
    EXPECT_EQ(errorOf([&] { world.NPCAt.cell(501, 0); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { world.GroundPileAt.at(0, 501); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { world.MapTiles.at(-2, 0); }), err::SubscriptOutOfRange);
    world.TileEvents.cell(-3, -3) = "lowest";
    ResetMap(world);
    EXPECT_TRUE(world.NPCAt.cells().isEmpty());
    EXPECT_TRUE(world.TileEvents.cells().isEmpty());
}

TEST_F(ChangemapTest, npcsWithoutTheirPictureAreLeftOutAndPastedOnesOnlyBlock) {
    testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
    QString pasted = npcRecord("Statue", "2;2");
    pasted.replace(":False:True:", ":True:False:");
    LoadMapNPCs(world, QString(u'ƒ') + npcRecord("Ghost", "1;1", "\\images\\npcs\\gone.bmp") + u'ƒ' + pasted + u'ƒ' +
                           npcRecord("Guard", "3;4"));
    EXPECT_EQ(world.NPCAt.at(1, 1), "");
    EXPECT_EQ(world.NPCAt.at(2, 2), pasted);
    EXPECT_EQ(world.PastedNPCs, ";2:2:\\images\\npcs\\one.bmp:0:0");
    EXPECT_EQ(world.MovableNPCs, ";4:3:\\images\\npcs\\one.bmp:0:1:1:0:Guard:0:0:0:0:0");
    EXPECT_EQ(world.NPCPictureCount, 2);
}

} // namespace
} // namespace umbrith
