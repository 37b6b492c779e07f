// Saved games through Main: the S and L keys, the dialogs, the file on disk
// and the game that comes back.
#include "tests/shell/mainformtest.h"

#include "core/savegame.h"

#include <QAction>
#include <QDir>

namespace umbrith {
namespace {

const QString kDog = testmaps::npcRecord("Dog", "3;3", "\\images\\npcs\\one.bmp", "1", "1");

class SavesTest : public MainFormTest {
protected:
    // A custom game on a map with a dog that follows the player, a part
    // sheet for the armour, and the saves folder.
    void startGame() {
        testmaps::writeTestTileset();
        testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
        testmaps::writeNpcSheet("\\images\\bodies\\blue.bmp", qRgb(0, 0, 255));
        // A load needs the worn pieces' pictures.
        for (const char* part : {"bodies\\defaultbody", "heads\\defaulthead", "boots\\defaultboots",
                                 "gloves\\defaultgloves", "weapons\\defaultweapon"})
            testmaps::writeNpcSheet("\\images\\" + QString(part) + ".bmp", qRgb(90, 90, 90));
        testmaps::TestMap map(18, 17);
        map.file.npcs = QString(u'ƒ') + kDog;
        map.write("\\maps\\field.ubm");
        testmaps::makeFolder("\\saves\\x.ubs");
        start();
        scripted.queueFile(AppPath() + "\\maps\\field.ubm");
        press(Qt::Key_P);
        ASSERT_TRUE(isTrue(game.GameRunning));
    }

    void save(const QString& name) {
        scripted.queueFile(AppPath() + "\\saves\\" + name);
        press(Qt::Key_S);
    }
    void load(const QString& name) {
        scripted.queueFile(AppPath() + "\\saves\\" + name);
        press(Qt::Key_L);
    }
    QStringList popups() const {
        QStringList shown;
        for (const ScriptedPlatform::Box& box : scripted.boxes)
            if (box.kind == "popup")
                shown << box.title + ": " + box.text;
        return shown;
    }
    QStringList fieldTexts() const {
        QStringList texts;
        for (const GameField& field : gameFields())
            texts << QString(field.name) + "=" + (game.*field.member).text();
        return texts;
    }
    const WorldState& world() const { return main->state().world; }
};

TEST_F(SavesTest, aSavedGameComesBackWithEveryFieldThePlaceThePicturesAndTheClock) {
    startGame();
    game.PlayerName = "Wren";
    game.PlayerGold = 321;
    game.PlayerShieldName = "Buckler";
    game.PlayerArmourPicturePath = "\\images\\bodies\\blue.bmp";
    game.PlayerWeaponBonuses = "Fire:2";
    game.Variables = "|Door=1";
    game.EquipmentPack = "*Dagger/3^1";
    game.Journal = QString::fromUtf8("£Find the well;Ask;&Well");
    game.IsDay = false;
    game.DaysPassed = 4;
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    const QStringList saved = fieldTexts();
    save("hero.ubs");
    EXPECT_EQ(scripted.lastFileDialog.title, "Save Character File");
    EXPECT_EQ(scripted.lastFileDialog.fileName, "");
    EXPECT_EQ(scripted.lastFileDialog.initialFolder, AppPath() + "\\saves");
    EXPECT_EQ(scripted.lastFileDialog.filter, "Umbrith Save (*.ubs)|*.ubs");

    // Another game entirely, somewhere else.
    SetNewGameValues(game);
    game.PlayerName = "Other";
    game.PlayerMaxHP = 5;
    game.PlayerHP = 5;
    press(Qt::Key_Right);
    load("hero.ubs");
    EXPECT_EQ(scripted.lastFileDialog.title, "Open Character File");
    EXPECT_EQ(scripted.lastFileDialog.initialFolder, AppPath() + "\\saves");
    EXPECT_TRUE(popups().isEmpty()) << popups().join('\n').toStdString();

    // The facing is not part of a save.
    game.PlayerFacing = 0;
    EXPECT_EQ(fieldTexts(), saved);
    EXPECT_EQ(game.PlayerX.num(), 2);
    EXPECT_EQ(game.PlayerY.num(), 2);
    EXPECT_EQ(world().PlayerTwipX, 720);
    EXPECT_EQ(world().CurrentMapPath, "\\maps\\field.ubm");
    EXPECT_FALSE(isTrue(game.IsDay));
    EXPECT_EQ(game.DaysPassed.num(), 4);
    EXPECT_EQ(GetPixel(world().textures.grossbody, 5, 30), toColorRef(qRgb(0, 0, 255)));
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_TRUE(main->state().GameLoaded);
    EXPECT_TRUE(control<QAction>("mnuMainSave")->isEnabled());
    EXPECT_TRUE(visible("lblPStats(0)"));
    EXPECT_EQ(text("lblPStats(2)"), "321");
    // The dog that followed comes along once; a follower entering a map
    // clears the map's own NPCs that it doesn't duplicate.
    EXPECT_EQ(world().FollowerNPCs, QString(u'£') + kDog);
    EXPECT_EQ(world().HoldTileEntries, "");
    EXPECT_EQ(world().MovableNPCs.count("Dog"), 1);

    // Saved again unchanged, the file differs only in where the dog stands.
    const QByteArray first = readFile("\\saves\\hero.ubs");
    save("again.ubs");
    const QByteArray again = readFile("\\saves\\again.ubs");
    EXPECT_EQ(again.size(), first.size());
    EXPECT_EQ(again.left(again.indexOf("\xA3")), first.left(first.indexOf("\xA3")));
}

TEST_F(SavesTest, aSaveHasExactlyTheLayoutOfTheRecordFieldByField) {
    startGame();
    const QList<std::pair<Value GameRecord::*, Value>> figures = {
        {&GameRecord::PlayerHP, 11}, {&GameRecord::PlayerMaxHP, 12}, {&GameRecord::PlayerSP, 13},
        {&GameRecord::PlayerMaxSP, 14}, {&GameRecord::PlayerGold, 15}, {&GameRecord::PlayerExperience, 16},
        {&GameRecord::PlayerLevel, 17}, {&GameRecord::PlayerStrength, 18}, {&GameRecord::PlayerDefence, 19},
        {&GameRecord::PlayerArmourPower, 20}, {&GameRecord::PlayerWeaponPower, 21}, {&GameRecord::PlayerWeaponName, "Axe"},
        {&GameRecord::PlayerArmourName, "Mail"}, {&GameRecord::PlayerAgility, 22}, {&GameRecord::PlayerSpeed, 23},
        {&GameRecord::PlayerSpellpower, 24}, {&GameRecord::PlayerShieldPower, 25}, {&GameRecord::PlayerHelmetPower, 26},
        {&GameRecord::PlayerBootsPower, 27}, {&GameRecord::PlayerGlovesPower, 28},
        {&GameRecord::PlayerWeaponDurability, 31}, {&GameRecord::PlayerArmourDurability, 32},
        {&GameRecord::PlayerShieldDurability, 33}, {&GameRecord::PlayerBootsDurability, 34},
        {&GameRecord::PlayerGlovesDurability, 35}, {&GameRecord::PlayerHelmetDurability, 36},
        {&GameRecord::PlayerWeaponMaxDurability, 41}, {&GameRecord::PlayerArmourMaxDurability, 42},
        {&GameRecord::PlayerShieldMaxDurability, 43}, {&GameRecord::PlayerHelmetMaxDurability, 44},
        {&GameRecord::PlayerBootsMaxDurability, 45}, {&GameRecord::PlayerGlovesMaxDurability, 46},
        {&GameRecord::PlayerShieldName, "Buckler"}, {&GameRecord::PlayerHelmetName, "Cap"},
        {&GameRecord::PlayerGlovesName, "Mitts"}, {&GameRecord::PlayerBootsName, "Clogs"},
        {&GameRecord::PlayerNextLevelExp, 900}, {&GameRecord::PlayerArmourPicturePath, "\\a.bmp"},
        {&GameRecord::PlayerHelmetPicturePath, "\\h.bmp"}, {&GameRecord::PlayerBootsPicturePath, "\\b.bmp"},
        {&GameRecord::PlayerGlovesPicturePath, "\\g.bmp"}, {&GameRecord::PlayerShieldPicturePath, ""},
        {&GameRecord::PlayerWeaponPicturePath, "\\w.bmp"}, {&GameRecord::PlayerWeaponBonuses, "wb"},
        {&GameRecord::PlayerArmourBonuses, "ab"}, {&GameRecord::PlayerShieldBonuses, "sb"},
        {&GameRecord::PlayerHelmetBonuses, "hb"}, {&GameRecord::PlayerGlovesBonuses, "gb"},
        {&GameRecord::PlayerBootsBonuses, "bb"}, {&GameRecord::Variables, "|Door=1"},
        {&GameRecord::WeaponIsSword, true}, {&GameRecord::WeaponIsFists, false}, {&GameRecord::IsDay, false},
        {&GameRecord::DaysPassed, 4}, {&GameRecord::ItemsCarried, QString::fromUtf8("/PotionÖ2")},
        {&GameRecord::PlayerSprite, 2}, {&GameRecord::Journal, "j"}};
    for (const auto& [member, value] : figures)
        game.*member = value;
    save("hero.ubs");
    const QString expected =
        QString::fromUtf8("\"11¥12¥13¥14¥15¥16¥17¥18¥19¥20¥21¥Axe¥Mail¥Tester¥¥¥Human¥22¥23¥24¥25¥26¥27¥28¥"
                          "31¥32¥33¥34¥35¥36¥41¥42¥43¥44¥45¥46¥Buckler¥Cap¥Mitts¥Clogs\",\"|Door=1\",#TRUE#,#FALSE#,"
                          "#FALSE#,\"\",\"\",\"wb*ab*sb*hb*gb*bb\",#FALSE#,4,\"/PotionÖ2\",#FALSE#,\"\",2,"
                          "\"¥900¥\\a.bmp¥\\h.bmp¥\\b.bmp¥\\g.bmp¥¥\\w.bmp¥£") +
        kDog + QString::fromUtf8("¥1;1¥\\maps\\field.ubm\",#FALSE#,\"j\"\r\n");
    EXPECT_EQ(QString::fromLatin1(readFile("\\saves\\hero.ubs")), expected);
}

TEST_F(SavesTest, aSaveWrittenByHandLoadsFromTheIntro) {
    testmaps::writeTestTileset();
    testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
    testmaps::TestMap(18, 17).write("\\maps\\field.ubm");
    // Windows-1252: 0xA5 is the block's separator, 0xA3 a held entry's lead.
    QByteArray block = "9\xA5" "10\xA5" "1\xA5" "2\xA5" "50\xA5" "7\xA5" "2\xA5" "3\xA5" "4\xA5" "1\xA5" "1\xA5"
                       "Fists\xA5Light Clothes\xA5Hand\xA5old\xA5text\xA5" "Dwarf\xA5" "1\xA5" "1\xA5" "1\xA5"
                       "0\xA5" "0\xA5" "1\xA5" "0\xA5" "99\xA5" "99\xA5" "0\xA5" "99\xA5" "0\xA5" "0\xA5"
                       "99\xA5" "99\xA5" "0\xA5" "0\xA5" "99\xA5" "0\xA5None\xA5None\xA5None\xA5" "Boots";
    const QByteArray worn = "\\images\\npcs\\one.bmp\xA5";
    QByteArray second = "\xA5" "1500\xA5" + worn + worn + worn + worn + "\xA5\xA5\xA3" + kDog.toLatin1() + "\xA5" "4;5\xA5\\maps\\field.ubm";
    writeFile("\\saves\\hand.ubs", "\"" + block + "\",\"|Seen=1\",#FALSE#,#TRUE#,#FALSE#,\"\",\"\",\"*****\",#TRUE#,2,"
                                   "\"\",#TRUE#,\"\\images\\npcs\\one.bmp\",1,\"" + second + "\",#TRUE#,\"\"\r\n");
    start();
    load("hand.ubs");
    EXPECT_TRUE(popups().isEmpty()) << popups().join('\n').toStdString();
    EXPECT_EQ(game.PlayerName.text(), "Hand");
    EXPECT_EQ(game.PlayerRace.text(), "Dwarf");
    EXPECT_EQ(game.PlayerGold.text(), "50");
    EXPECT_EQ(game.PlayerNextLevelExp.text(), "1500");
    EXPECT_EQ(game.Variables.text(), "|Seen=1");
    EXPECT_EQ(game.DaysPassed.num(), 2);
    EXPECT_EQ(game.PlayerX.num(), 4);
    EXPECT_EQ(game.PlayerY.num(), 5);
    EXPECT_EQ(world().CurrentMapPath, "\\maps\\field.ubm");
    EXPECT_EQ(game.CurrentLevel.text(), "field.ubm");
    EXPECT_TRUE(world().AnimationRunning);
    EXPECT_EQ(world().textures.picPNPC.width(), 144);
    EXPECT_FALSE(visible("introframe"));
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_TRUE(main->worldTimers().AniTimer->enabled());
    // The follower of the save stands in the square around the player.
    ASSERT_EQ(world().NPCAt.cells().size(), 1);
    const MapTable::Cell dog = world().NPCAt.cells().first();
    EXPECT_LE(std::abs(dog.x - 4), 2);
    EXPECT_LE(std::abs(dog.y - 5), 2);
}

TEST_F(SavesTest, aBadSaveShowsThePopupWithItsTitleAndTheGameGoesOn) {
    startGame();
    game.PlayerName = "Wren";
    save("good.ubs");
    const QByteArray good = readFile("\\saves\\good.ubs");
    const qsizetype lastComma = good.lastIndexOf(',');

    // Sixteen fields: the straight fields read so far are in force, the rest not.
    QByteArray sixteen = good.left(lastComma) + "\r\n";
    writeFile("\\saves\\short.ubs", sixteen);
    game.PlayerName = "Still";
    game.DaysPassed = 9;
    load("short.ubs");
    EXPECT_EQ(popups().last(), "Umbrith: There was an error loading the Character File:\nshort.ubs\nThis is the Error:\n"
                               "(Input past end of file)");
    EXPECT_EQ(game.PlayerName.text(), "Still");
    EXPECT_EQ(game.DaysPassed.num(), 0);
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_EQ(world().CurrentMapPath, "\\maps\\field.ubm");

    // Text where the position's numbers stand.
    QByteArray textual = good;
    textual.replace("\xA5" "1;1\xA5", "\xA5here;there\xA5");
    writeFile("\\saves\\textual.ubs", textual);
    control("PopupBox")->hide();
    scripted.advance(1);
    load("textual.ubs");
    EXPECT_TRUE(popups().last().endsWith("textual.ubs\nThis is the Error:\n(Type mismatch)"));
    EXPECT_EQ(game.PlayerName.text(), "Wren");

    // A map that is gone, and a file that is no save.
    QByteArray gone = good;
    gone.replace("\\maps\\field.ubm", "\\maps\\gone.ubm");
    writeFile("\\saves\\gone.ubs", gone);
    control("PopupBox")->hide();
    scripted.advance(1);
    load("gone.ubs");
    EXPECT_EQ(popups().last(), "Map Missing: The map file: \\maps\\gone.ubm is not in its proper folder or it is missing!");
    writeFile("\\saves\\map.ubs", readFile("\\maps\\field.ubm"));
    writeFile("\\saves\\noise.ubs", QByteArray("\x89PNG\r\n\x1A\n\0\0\"", 12));
    for (const char* name : {"map.ubs", "noise.ubs"}) {
        control("PopupBox")->hide();
        scripted.advance(1);
        load(name);
        EXPECT_TRUE(popups().last().startsWith("Umbrith: There was an error loading the Character File:\n" + QString(name)));
    }
    EXPECT_TRUE(isTrue(game.GameRunning));
}

TEST_F(SavesTest, aWornPieceWhosePictureIsGoneFailsTheLoadButAnUnnamedShieldKeepsItsPicture) {
    startGame();
    game.PlayerArmourPicturePath = "\\images\\bodies\\blue.bmp";
    // An empty shield path keeps the picture of the former game.
    game.PlayerShieldPicturePath = "";
    const_cast<WorldState&>(world()).textures.grossshield = Surface::load(AppPath() + "\\images\\npcs\\one.bmp");
    save("shield.ubs");
    load("shield.ubs");
    EXPECT_TRUE(popups().isEmpty()) << popups().join('\n').toStdString();
    EXPECT_EQ(GetPixel(world().textures.grossshield, 5, 30), toColorRef(qRgb(255, 0, 0)));

    game.PlayerArmourPicturePath = "\\images\\bodies\\defaultbody.bmp";
    game.PlayerHelmetPicturePath = "\\images\\heads\\gone.bmp";
    save("helmet.ubs");
    load("helmet.ubs");
    EXPECT_EQ(popups().last(), "Umbrith: There was an error loading the Character File:\nhelmet.ubs\nThis is the Error:\n"
                               "(File not found)");
    // The pieces before it were loaded: there is no going back.
    EXPECT_EQ(GetPixel(world().textures.grossbody, 5, 30), toColorRef(qRgb(90, 90, 90)));
}

TEST_F(SavesTest, aLoadAfterDeathPutsTheNewCharacterFormAwayAndPlaysAgain) {
    startGame();
    save("hero.ubs");
    game.PlayerHP = 0;
    scripted.queueDraw(0.5f); // the intro's piece
    main->CheckForDeath();
    EXPECT_FALSE(control<QAction>("mnuMainSave")->isEnabled());
    ASSERT_TRUE(visible("Welcome"));
    control("PopupBox")->hide();
    scripted.advance(1);
    load("hero.ubs");
    EXPECT_FALSE(visible("Welcome"));
    EXPECT_FALSE(isTrue(game.CharacterCreationActive));
    EXPECT_FALSE(visible("introframe"));
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_EQ(game.PlayerHP.num(), 1);
    EXPECT_TRUE(control<QAction>("mnuMainSave")->isEnabled());
}

TEST_F(SavesTest, pathsShorterThanTheProgramFolderAreRefusedWithTheirOwnTexts) {
    startGame();
    scripted.queueFile("\\x.ubs");
    press(Qt::Key_S);
    EXPECT_EQ(popups().last(), "Umbrith: Only Character Files in Umbrith 'saves' folder are allowed to be played with this "
                               "program, please save in that directory!");
    control("PopupBox")->hide();
    scripted.advance(1);
    scripted.queueFile("\\x.ubs");
    press(Qt::Key_L);
    EXPECT_EQ(popups().last(),
              "Umbrith: Only Character Files in Umbrith 'saves' folder are allowed to be played with this program!");
    EXPECT_TRUE(QDir(nativePath(AppPath() + "\\saves")).entryList(QDir::Files).isEmpty());
}

TEST_F(SavesTest, aSaveThatFailsLeavesThePreviousSaveWholeAndNoOtherFile) {
    startGame();
    game.PlayerName = "Wren";
    save("hero.ubs");
    const QByteArray before = readFile("\\saves\\hero.ubs");
    game.PlayerName = "Changed";
    QFile::remove(nativePath(AppPath() + "\\maps\\field.ubm"));
    scripted.queueAnswer(Answer::Ok);
    save("hero.ubs");
    EXPECT_EQ(scripted.boxes.last().text, "The character could not be saved.\n(File not found)");
    EXPECT_EQ(readFile("\\saves\\hero.ubs"), before);
    EXPECT_EQ(QDir(nativePath(AppPath() + "\\saves")).entryList(QDir::Files), QStringList{"hero.ubs"});
}

TEST_F(SavesTest, sSavesOnlyWhileAGameRunsWithNoPanelAndTheItemEnabled) {
    start();
    EXPECT_FALSE(control<QAction>("mnuMainSave")->isEnabled());
    press(Qt::Key_S); // the intro: no dialog
    startGame();
    press(Qt::Key_J);
    press(Qt::Key_S); // the journal is up: no dialog
    press(Qt::Key_C);
    control<QAction>("mnuMainSave")->setEnabled(false);
    press(Qt::Key_S);
    for (const ScriptedPlatform::Box& box : scripted.boxes)
        EXPECT_NE(box.kind, "save");
    // A load while a panel is up is refused too.
    press(Qt::Key_J);
    press(Qt::Key_L);
    for (const ScriptedPlatform::Box& box : scripted.boxes)
        EXPECT_NE(box.title, "Open Character File");
}

} // namespace
} // namespace umbrith
