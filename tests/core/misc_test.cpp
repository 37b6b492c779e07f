#include "core/misc.h"
#include "tests/support/scriptedtest.h"

using namespace umbrith;

class MiscTest : public ScriptedTest {};

TEST_F(MiscTest, theFolderGateRefusesOnlyPathsShorterThanTheProgramFolder) {
    const QString app = AppPath();
    EXPECT_FALSE(IsInsideProgramFolder(app.left(app.size() - 1)));
    EXPECT_TRUE(IsInsideProgramFolder(app));
    EXPECT_TRUE(IsInsideProgramFolder(app + "\\saves\\hero.ubs"));
    EXPECT_TRUE(IsInsideProgramFolder("D:\\" + QString(app.size(), u'x')));
    EXPECT_FALSE(AppPath().endsWith(u'\\'));
    EXPECT_FALSE(AppPath().contains(u'/'));
}

TEST_F(MiscTest, fileDialogsAnswerPathAndTitleOrNothing) {
    scripted.queueFile(AppPath() + "\\maps\\town.ubm");
    EXPECT_EQ(DialogOpenFile("Open", "", AppPath() + "\\maps", "Umbrith Maps (*.ubm)|*.ubm", "Oops"),
              AppPath() + "\\maps\\town.ubm^town.ubm");
    scripted.queueFile("");
    EXPECT_EQ(DialogSaveFile("Save", "", AppPath(), "*.ubm|*.ubm", "Oops"), "");
    ASSERT_EQ(scripted.boxes.size(), 2);
    EXPECT_EQ(scripted.boxes[0].kind, "open");
    EXPECT_EQ(scripted.boxes[1].kind, "save");
}

TEST_F(MiscTest, aFailingDialogShowsTheMessageAndTheSystemsText) {
    scripted.queueFileFailure();
    EXPECT_EQ(DialogOpenFile("Open", "", AppPath(), "*.ubm|*.ubm", "There was an error loading a map!"), "");
    ASSERT_EQ(scripted.boxes.size(), 3);
    EXPECT_EQ(scripted.boxes[1].title, "Umbrith");
    EXPECT_EQ(scripted.boxes[1].text, "There was an error loading a map!");
    EXPECT_EQ(scripted.boxes[2].title, "This was the error");
}

TEST_F(MiscTest, reservedCharactersAreTheListDelimiters) {
    EXPECT_TRUE(HasNoReservedCharacters("Old Sword+1 (rare)"));
    for (const char* bad : {"a:b", "a/b", "a\\b", "a*b", "a^b", "a|b"})
        EXPECT_FALSE(HasNoReservedCharacters(bad)) << bad;
}

TEST_F(MiscTest, soundEffectsPlayFromTheSfxFolderOnlyWhileSoundsAreOn) {
    PlaySoundEffect("click.wav");
    SoundsOn = false;
    PlaySoundEffect("shop.wav");
    ASSERT_EQ(scripted.sounds.size(), 1);
    EXPECT_EQ(scripted.sounds[0], "sound " + AppPath() + "\\sfx\\click.wav");
}
