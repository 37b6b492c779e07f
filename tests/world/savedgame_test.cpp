#include "world/savedgame.h"

#include "core/record.h"
#include "tests/support/errorof.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"
#include "world/changemap.h"

#include <QDir>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace umbrith {
namespace {

class SavedGameTest : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        testmaps::TestMap(18, 17).write("\\maps\\field.ubm");
        testmaps::makeFolder("\\saves\\x.ubs");
        SetNewGameValues(game);
        world.CurrentMapPath = "\\maps\\field.ubm";
        world.PlayerTwipX = 360 * 3;
        world.PlayerTwipY = 360 * 4;
    }
    QStringList savesFolder() const { return QDir(nativePath(AppPath() + "\\saves")).entryList(QDir::Files); }

    GameRecord game;
    WorldState world;
};

TEST_F(SavedGameTest, theHeldEntriesAreTheFollowersAndTheNextMapChangeTakesThemOnce) {
    world.MovableNPCs = ";3:2:\\a.bmp:0:0:1:0:Dog:1:0:0:0:0;5:6:\\b.bmp:0:1:1:0:Cat:0:0:0:0:0";
    world.NPCAt.cell(2, 3) = "Dog record";
    world.NPCAt.cell(6, 5) = "Cat record";
    EXPECT_EQ(HeldEntries(world), QString::fromUtf8("£Dog record"));
    EXPECT_EQ(SaveExtrasOf(world).position, "3;4");

    world.PendingFollowers = QString::fromUtf8("£Owl record");
    world.HoldTileEntries = QString::fromUtf8("£Fox record");
    EXPECT_EQ(CollectFollowers(world), QString::fromUtf8("£Dog record£Owl record£Fox record"));
    EXPECT_EQ(world.HoldTileEntries, "");
    EXPECT_EQ(CollectFollowers(world), QString::fromUtf8("£Dog record"));

    world.MovableNPCs = ";1:501:\\a.bmp:0:0:1:0:Far:1:0:0:0:0";
    EXPECT_EQ(errorOf([&] { HeldEntries(world); }), err::SubscriptOutOfRange);
}

TEST_F(SavedGameTest, aLoadKeepsTheShieldAndWeaponPicturesWhenTheSaveNamesNone) {
    testmaps::writeNpcSheet("\\images\\body.bmp", qRgb(0, 0, 255));
    world.textures.grossshield = Surface(144, 190);
    world.textures.grossweapon = Surface(144, 191);
    game.PlayerArmourPicturePath = "\\images\\body.bmp";
    game.PlayerShieldPicturePath = "";
    game.PlayerWeaponPicturePath = "";
    game.PlayerHelmetPicturePath = "\\images\\body.bmp";
    game.PlayerBootsPicturePath = "\\images\\body.bmp";
    game.PlayerGlovesPicturePath = "\\images\\body.bmp";
    RecordReader reader(writeRecord(SaveGameFields(game, SaveExtrasOf(world))));
    GameRecord loaded;
    const SavedParts parts = ReadSaveGame(reader, loaded);
    const SaveExtras extras = ApplySavedGame(loaded, world, parts);
    EXPECT_EQ(world.textures.grossshield.height(), 190);
    EXPECT_EQ(world.textures.grossweapon.height(), 191);
    EXPECT_EQ(world.textures.grosshead.width(), 144);
    EXPECT_EQ(world.textures.grossbody.width(), 144);
    EXPECT_EQ(loaded.PlayerX.text(), "3");
    EXPECT_EQ(extras.mapPath, "\\maps\\field.ubm");
}

// The child writes a save far too large to finish at once and is killed as
// soon as its temporary file shows: the save it was replacing must survive.
TEST_F(SavedGameTest, killingTheProgramDuringASaveNeverCostsThePreviousSave) {
    const QString path = AppPath() + "\\saves\\hero.ubs";
    WriteSavedGame(path, game, world);
    const QByteArray old = readFile("\\saves\\hero.ubs");
    game.Variables = QString(16 * 1024 * 1024, u'x');

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        WriteSavedGame(path, game, world);
        _exit(0);
    }
    int status = 0;
    bool exited = false;
    while (!exited) {
        if (savesFolder().size() > 1) {
            kill(child, SIGKILL);
            break;
        }
        exited = waitpid(child, &status, WNOHANG) == child;
    }
    if (!exited)
        waitpid(child, &status, 0);

    const QByteArray after = readFile("\\saves\\hero.ubs");
    WriteSavedGame(AppPath() + "\\saves\\whole.ubs", game, world);
    EXPECT_TRUE(after == old || after == readFile("\\saves\\whole.ubs")) << after.size();
}

TEST_F(SavedGameTest, aSaveOnAMapThatHasGoneWritesNothing) {
    const QString path = AppPath() + "\\saves\\hero.ubs";
    WriteSavedGame(path, game, world);
    const QByteArray old = readFile("\\saves\\hero.ubs");
    world.CurrentMapPath = "\\maps\\gone.ubm";
    EXPECT_EQ(errorOf([&] { WriteSavedGame(path, game, world); }), err::FileNotFound);
    EXPECT_EQ(readFile("\\saves\\hero.ubs"), old);
    EXPECT_EQ(savesFolder(), QStringList{"hero.ubs"});
}

} // namespace
} // namespace umbrith
