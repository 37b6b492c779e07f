#include "core/realm.h"
#include "shell/rules/intro.h"
#include "shell/rules/startup.h"
#include "tests/support/scriptedtest.h"

namespace umbrith {
namespace {

TEST(IntroTest, theIntroPieceFollowsTheDrawAtItsThresholds) {
    EXPECT_EQ(IntroPiece(0.0f), "\\sfx\\intro.mid");
    EXPECT_EQ(IntroPiece(0.3f), "\\sfx\\intro.mid");
    EXPECT_EQ(IntroPiece(0.31f), "\\sfx\\intro1.mid");
    EXPECT_EQ(IntroPiece(0.6f), "\\sfx\\intro1.mid");
    EXPECT_EQ(IntroPiece(0.61f), "\\sfx\\intro2.mid");
}

TEST(IntroTest, tenLinesAreShownThenTheEleventhTickClearsAndStops) {
    int index = 1;
    for (int i = 1; i <= 10; ++i) {
        IntroTick tick = NextIntroLine(index);
        EXPECT_FALSE(tick.caption.isEmpty()) << i;
        EXPECT_TRUE(tick.goesOn);
    }
    IntroTick last = NextIntroLine(index);
    EXPECT_EQ(last.caption, QString());
    EXPECT_FALSE(last.goesOn);
    EXPECT_EQ(IntroLine(10), "I wish you luck, and bid you safe journey in the Umbrith");
}

class StartupTest : public ScriptedTest {
protected:
    MainState state;
};

TEST_F(StartupTest, aStartIn800By600At16BitsChangesAndRestoresNothing) {
    scripted.setDisplayMode({800, 600, 16});
    EnterGameDisplay(state);
    EXPECT_FALSE(state.DisplayModeChanged);
    EXPECT_EQ(state.SavedScreenDepth, 0);
}

TEST_F(StartupTest, anotherModeIsSavedForTheExit) {
    scripted.setDisplayMode({1920, 1080, 32});
    EnterGameDisplay(state);
    EXPECT_TRUE(state.DisplayModeChanged);
    EXPECT_EQ(state.SavedScreenWidth, 1920);
    EXPECT_EQ(state.SavedScreenDepth, 32);
}

TEST_F(StartupTest, aCancelledMapChoiceEndsPlayWithTheDefaultListsSet) {
    scripted.queueFile("");
    EXPECT_EQ(PlayGameStartMap(1), QString());
    EXPECT_EQ(ListFiles[EnemyListFile], "\\config\\enemy lists\\enemylist.ubc");
    EXPECT_TRUE(scripted.boxes.last().title == "Play Custom Level");
}

TEST_F(StartupTest, aMissingStartMapIsAMapErrorNamingThePath) {
    ListFiles[StartMapFile] = "\\maps\\gone.ubm";
    EXPECT_EQ(PlayGameStartMap(2), QString());
    ASSERT_EQ(scripted.boxes.size(), 1);
    EXPECT_EQ(scripted.boxes[0].title, "Map Error");
    EXPECT_TRUE(scripted.boxes[0].text.endsWith("misplaced: \\maps\\gone.ubm"));
}

TEST_F(StartupTest, leavingAGameHealsTheCharacterAndDropsItsItemsJournalAndMap) {
    GameRecord game;
    game.PlayerHP = 2;
    game.PlayerMaxHP = 30;
    game.PlayerLevel = 3;
    game.ItemsCarried = "/Potion";
    game.Journal = "a;b;c";
    game.GameRunning = true;
    state.world.CurrentMapPath = "\\maps\\a.ubm";
    state.world.MapTiles.cell(0, 0) = "24|0";
    LeaveGame(game, state);
    EXPECT_EQ(game.PlayerHP.num(), 30);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 3000);
    EXPECT_EQ(game.ItemsCarried.text(), "");
    EXPECT_EQ(game.Journal.text(), "");
    EXPECT_FALSE(isTrue(game.GameRunning));
    EXPECT_TRUE(isTrue(game.ScreenPanelOpen));
    EXPECT_EQ(state.world.CurrentMapPath, "");
    EXPECT_TRUE(state.world.MapTiles.isEmpty());
}

} // namespace
} // namespace umbrith
