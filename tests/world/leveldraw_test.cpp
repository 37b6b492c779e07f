#include "tests/support/worldmaps.h"
#include "world/leveldraw.h"

#include <gtest/gtest.h>

namespace umbrith {
namespace {

using testmaps::tileColor;

// A sprite sheet whose figures are solid `color` from pixel row `from` of the
// cell down, with their masks.
Surface solidSheet(QRgb color, int from) {
    Surface sheet(144, 192);
    for (int y = 0; y < 192; ++y)
        for (int x = 0; x < 144; ++x) {
            const bool mask = x % 48 >= 24;
            const bool inside = y % 48 >= from;
            SetPixel(sheet, x, y, mask ? (inside ? 0 : 0xFFFFFF) : (inside ? toColorRef(color) : 0));
        }
    return sheet;
}

QRgb pixel(const Surface& s, int x, int y) { return fromColorRef(GetPixel(s, x, y)); }

TEST(ViewportTest, theScreenFollowsThePlayerBetweenTheEdgesAndStandsAtThem) {
    Viewport centred = ComputeViewport(20, 15, 39, 29);
    EXPECT_EQ(centred.fx, 12);
    EXPECT_EQ(centred.lx, 29);
    EXPECT_EQ(centred.fy, 6);
    EXPECT_EQ(centred.ly, 22);
    EXPECT_EQ(QPoint(centred.px, centred.py), QPoint(192, 192));

    Viewport topLeft = ComputeViewport(3, 0, 39, 29);
    EXPECT_EQ(QPoint(topLeft.fx, topLeft.fy), QPoint(0, 0));
    EXPECT_EQ(QPoint(topLeft.px, topLeft.py), QPoint(72, -24)); // his head is cut off at the top

    Viewport bottomRight = ComputeViewport(39, 29, 39, 29);
    EXPECT_EQ(QPoint(bottomRight.fx, bottomRight.lx), QPoint(22, 39));
    EXPECT_EQ(QPoint(bottomRight.fy, bottomRight.ly), QPoint(13, 29));
    EXPECT_EQ(QPoint(bottomRight.px, bottomRight.py), QPoint(408, 360));

    // Eight columns from the right edge and seven rows from the bottom he walks again.
    Viewport nearEdge = ComputeViewport(31, 22, 39, 29);
    EXPECT_EQ(QPoint(nearEdge.px, nearEdge.py), QPoint(216, 192));
    EXPECT_EQ(nearEdge.fx, 22);
}

TEST(ViewportTest, aOneScreenMapNeverScrolls) {
    for (int tx : {0, 9, 17})
        for (int ty : {0, 8, 16}) {
            Viewport v = ComputeViewport(tx, ty, 17, 16);
            EXPECT_EQ(QPoint(v.fx, v.fy), QPoint(0, 0));
            EXPECT_EQ(QPoint(v.px, v.py), QPoint(24 * tx, 24 * ty - 24));
        }
}

TEST(ViewportTest, npcsInRangeReachOneRowBelowTheScreen) {
    Viewport v = ComputeViewport(20, 15, 39, 29);
    EXPECT_TRUE(v.inRange(12, 6));
    EXPECT_TRUE(v.inRange(29, 23));
    EXPECT_FALSE(v.inRange(11, 10));
    EXPECT_FALSE(v.inRange(30, 10));
    EXPECT_FALSE(v.inRange(20, 24));
    EXPECT_EQ(v.figureAt(12, 6), QPoint(0, -24));
}

class LevelDrawTest : public ::testing::Test {
protected:
    void SetUp() override {
        game.GameRunning = true;
        world.LevelWidth = 39;
        world.LevelHeight = 29;
        Surface sheet(1200, 1200);
        for (int c = 0; c < 10; ++c)
            for (int y = 0; y < 24; ++y)
                for (int x = 0; x < 24; ++x)
                    SetPixel(sheet, 24 * c + x, y, toColorRef(tileColor(c, 0)));
        world.tileset.sheet = sheet;
        for (int y = 0; y <= 29; ++y)
            for (int x = 0; x <= 39; ++x)
                world.MapTiles.cell(x, y) = QString::number(24 * ((x + y) % 10)) + "|0";
        // The player as an NPC-compatible picture: blue over both tiles.
        game.PlayerUsesImage = true;
        world.textures.picPNPC = solidSheet(qRgb(0, 0, 255), 0);
        world.textures.picNPCs = {solidSheet(qRgb(255, 0, 0), 0)};
        stand(20, 15);
    }
    void stand(int x, int y) {
        world.PlayerTwipX = x * 360;
        world.PlayerTwipY = y * 360;
    }
    // A movable NPC record at (x, y), drawn from slot 0.
    static QString npc(int x, int y, const char* visible = "1") {
        return QStringLiteral(";%1:%2:p:0:0:%3:0:N:0:0:0:0:0").arg(y).arg(x).arg(visible);
    }
    void draw() { ASSERT_TRUE(ComposeLevel(scene, game, world, 0, 0)); }

    GameRecord game;
    WorldState world;
    Surface scene{432, 408};
};

TEST_F(LevelDrawTest, tilesFillTheViewportFromTheFirstColumnAndRowShown) {
    draw();
    // The screen starts at column 12, row 6: cell (12, 6) holds tile 8.
    EXPECT_EQ(pixel(scene, 5, 5), tileColor(8, 0));
    EXPECT_EQ(pixel(scene, 24 + 5, 5), tileColor(9, 0));
    EXPECT_EQ(pixel(scene, 431, 407), tileColor((29 + 22) % 10, 0));
}

TEST_F(LevelDrawTest, thePlayerStandsInFrontOfNpcsOnHisRowAndBehindThoseBelow) {
    world.MovableNPCs = npc(20, 15);
    draw();
    EXPECT_EQ(pixel(scene, 200, 220), qRgb(0, 0, 255));
    world.MovableNPCs = npc(20, 16);
    draw();
    // The NPC one row lower covers the player's feet.
    EXPECT_EQ(pixel(scene, 200, 220), qRgb(255, 0, 0));
    EXPECT_EQ(pixel(scene, 200, 200), qRgb(0, 0, 255));
}

TEST_F(LevelDrawTest, hiddenNpcsAreNotDrawnAndTheRowBelowTheScreenReachesIn) {
    world.MovableNPCs = npc(14, 10, "0") + npc(13, 23);
    draw();
    EXPECT_EQ(pixel(scene, 2 * 24 + 5, 4 * 24 + 5), tileColor((14 + 10) % 10, 0));
    // Row 23 is one below the last drawn row 22: its head fills the last row.
    EXPECT_EQ(pixel(scene, 24 + 5, 16 * 24 + 5), qRgb(255, 0, 0));
}

TEST_F(LevelDrawTest, theNightDarkensTheSceneButNotTheGroundPiles) {
    Surface night(867, 410);
    for (int y = 0; y < 410; ++y)
        for (int x = 434; x < 867; ++x)
            SetPixel(night, x, y, 0x7F7F7F);
    world.textures.nightoriginal = night;
    world.textures.grounditems = solidSheet(qRgb(255, 255, 0), 0);
    world.GroundPileAt.cell(13, 6) = "gold";
    world.NightLevel = 1;
    game.IsDay = true;
    draw();
    EXPECT_EQ(pixel(scene, 5, 5), tileColor(8, 0));
    game.IsDay = false;
    draw();
    EXPECT_EQ(pixel(scene, 5, 5), tileColor(8, 0) & 0xFF7F7F7F);
    EXPECT_EQ(pixel(scene, 24 + 5, 5), qRgb(255, 255, 0));
    world.NightLevel = 0;
    draw();
    EXPECT_EQ(pixel(scene, 5, 5), tileColor(8, 0));
}

TEST_F(LevelDrawTest, nothingMovesOrIsDrawnWhileAStepsMapChangeIsPending) {
    world.MapChanged = true;
    EXPECT_FALSE(ComposeLevel(scene, game, world, 360, 0));
    EXPECT_EQ(world.PlayerTwipX, 20 * 360);
    world.MapChanged = false;
    game.GameRunning = false;
    EXPECT_FALSE(ComposeLevel(scene, game, world, 360, 0));
}

TEST_F(LevelDrawTest, thePaperDollFacesTheWayThePlayerFaces) {
    game.PlayerUsesImage = false;
    for (int d = 0; d < 4; ++d) {
        world.textures.picdirorig[d] = Surface(24, 48);
        world.textures.picdirorig[d].fill(qRgb(10 * d + 10, 0, 0));
        world.textures.picdirneg[d] = Surface(24, 48);
    }
    for (int d = 0; d < 4; ++d) {
        game.PlayerFacing = d;
        draw();
        EXPECT_EQ(pixel(scene, 200, 200), qRgb(10 * d + 10, 0, 0)) << d;
    }
}

} // namespace
} // namespace umbrith
