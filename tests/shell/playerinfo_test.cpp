#include "tests/shell/newgametest.h"

#include <QAction>
#include <QFrame>

namespace umbrith {
namespace {

using PlayerInfoTest = NewGameTest;

TEST_F(PlayerInfoTest, pOpensTheStatsPanelWithEveryFigureAndCClosesIt) {
    startRealmGame();
    game.PlayerWeaponName = "Blade";
    game.PlayerWeaponPower = 5;
    game.PlayerWeaponDurability = 7;
    game.PlayerWeaponMaxDurability = 10;
    game.PlayerHP = 1;
    game.ItemsCarried = QString::fromUtf8("/PotionÖ2");
    press(Qt::Key_P);
    EXPECT_TRUE(visible("PlayerInfoFrame"));
    EXPECT_TRUE(isTrue(game.ScreenPanelOpen));
    EXPECT_EQ(text("plabels(0)"), "Wren");
    EXPECT_EQ(text("plabels(1)"), "Elf");
    EXPECT_EQ(text("plabels(2)"), "6");
    EXPECT_EQ(text("plabels(4)"), "Blade Damage: 5");
    EXPECT_EQ(text("plabels(6)"), "None");
    EXPECT_EQ(text("plabels(10)"), "1 / 3");
    EXPECT_EQ(text("plabels(15)"), "7/10");
    EXPECT_EQ(text("plabels(25)"), "5 To 17"); // base 11, spread 5.6, no level bonus yet
    EXPECT_EQ(text("plabels(26)"), "4");       // defence 2, armour 1, boots 1
    EXPECT_EQ(text("plabels(27)"), "1.00 %");
    EXPECT_FLOAT_EQ(main->state().ShopLevelFactor, 1.0f);
    EXPECT_TRUE(control<QLabel>("plabels(2)")->styleSheet().contains("rgb(192, 0, 0)"));
    EXPECT_TRUE(control<QLabel>("plabels(26)")->styleSheet().contains("rgb(0, 0, 192)"));
    EXPECT_EQ(text("lblPStats(2)"), "200");
    EXPECT_EQ(control("HPInd")->width(), 2880 / 3 / 15);
    EXPECT_EQ(control("ExpInd")->width(), 2880 / 15);
    ASSERT_EQ(control<QListWidget>("lstPItems")->count(), 1);
    EXPECT_EQ(control<QListWidget>("lstPItems")->item(0)->text(), "Potion(2)");

    press(Qt::Key_C);
    EXPECT_FALSE(visible("PlayerInfoFrame"));
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(PlayerInfoTest, theStatsUpdateRedrawsThePaperDollFromTheSheetsInForce) {
    startRealmGame();
    testmaps::writeNpcSheet("\\images\\heads\\red.bmp", qRgb(255, 0, 0));
    Textures& textures = const_cast<WorldState&>(main->state().world).textures;
    textures.grosshead = Surface::load(AppPath() + "\\images\\heads\\red.bmp");
    for (int direction = 0; direction < 4; ++direction)
        EXPECT_NE(GetPixel(textures.picdirorig[direction], 5, 30), toColorRef(qRgb(255, 0, 0)));
    main->UpdateStats();
    for (int direction = 0; direction < 4; ++direction)
        EXPECT_EQ(GetPixel(textures.picdirorig[direction], 5, 30), toColorRef(qRgb(255, 0, 0))) << direction;
}

TEST_F(PlayerInfoTest, aPopupOverTheStatsPanelLeavesTheScreenCoveredWhenClosed) {
    startRealmGame();
    press(Qt::Key_P);
    main->ShowPopup("A note", "Umbrith");
    control("PopupBox")->hide();
    scripted.advance(1);
    EXPECT_TRUE(isTrue(game.ScreenPanelOpen));
    press(Qt::Key_C);
    EXPECT_FALSE(visible("PlayerInfoFrame"));
}

TEST_F(PlayerInfoTest, deathSendsThePlayerBackToTheIntroWithTheCharacterKept) {
    startRealmGame();
    game.PlayerLevel = 3;
    game.PlayerHP = 0.5;
    game.SkillsKnown = "/Fire:2:1:Dam:3";
    control<QAction>("mnuMainSave")->setEnabled(true);
    scripted.queueDraw(0.1f); // the intro's piece
    main->CheckForDeath();

    EXPECT_EQ(scripted.boxes.last().title, "Grim Reaper");
    EXPECT_EQ(scripted.boxes.last().text, "You have died!");
    EXPECT_TRUE(visible("introframe"));
    EXPECT_FALSE(isTrue(game.GameRunning));
    EXPECT_FALSE(main->state().GameLoaded);
    EXPECT_FALSE(control<QAction>("mnuMainSave")->isEnabled());
    EXPECT_FALSE(visible("lblPStats(0)"));
    EXPECT_EQ(game.PlayerHP.num(), 3);
    EXPECT_EQ(game.PlayerGold.num(), 0);
    EXPECT_EQ(game.PlayerLevel.num(), 3);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 3000);
    EXPECT_EQ(game.PlayerStrength.num(), 6);
    EXPECT_EQ(game.SkillsKnown.text(), "/Fire:2:1:Dam:3");

    // The same realm is offered again, and a new character starts on its map.
    ASSERT_TRUE(welcome()->isVisible());
    EXPECT_TRUE(isTrue(game.CharacterCreationActive));
    EXPECT_EQ(on<QComboBox>("Welcome", "race")->currentText(), "Elf");
    setBox(1, "5");
    create();
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_EQ(game.PlayerLevel.num(), 1);
    EXPECT_FALSE(visible("introframe"));
}

TEST_F(PlayerInfoTest, aLivingPlayerIsLeftAlone) {
    startRealmGame();
    game.PlayerHP = 1;
    main->CheckForDeath();
    EXPECT_TRUE(scripted.boxes.isEmpty());
    EXPECT_TRUE(isTrue(game.GameRunning));
}

TEST_F(PlayerInfoTest, levelsAreGainedOneUpgradeAtATimeWithTheRealmsPoints) {
    startRealmGame();
    game.PlayerHP = 1;
    game.PlayerNextLevelExp = -2500;
    main->CheckForLevelUp();
    EXPECT_EQ(scripted.boxes.last().title, "Level Gained");
    EXPECT_EQ(scripted.boxes.last().text, "You gained a level! You are now at level 2!");
    QWidget* upgrade = control("UpdateCharacter");
    ASSERT_TRUE(upgrade->isVisible());
    EXPECT_TRUE(isTrue(game.LevelUpActive));
    EXPECT_EQ(on<QLineEdit>("UpdateCharacter", "txtName")->text(), "Wren");
    EXPECT_EQ(on<QLabel>("UpdateCharacter", "prevelements(0)")->text(), "6");
    EXPECT_EQ(on<QLabel>("UpdateCharacter", "lblpointsleft")->text(), "2");

    main->CheckForLevelUp(); // while the upgrade is up nothing more is gained
    EXPECT_EQ(game.PlayerLevel.num(), 2);

    auto* upgradeButton = on<QAbstractButton>("UpdateCharacter", "cmdcreate");
    on<QLineEdit>("UpdateCharacter", "elements(0)")->setText("1");
    upgradeButton->click();
    EXPECT_EQ(scripted.boxes.last().text, "Please use all available points!");
    EXPECT_TRUE(upgrade->isVisible());
    on<QLineEdit>("UpdateCharacter", "elements(2)")->setText("4"); // overspending passes
    upgradeButton->click();
    EXPECT_FALSE(upgrade->isVisible());
    EXPECT_FALSE(isTrue(game.LevelUpActive));
    EXPECT_EQ(game.PlayerStrength.num(), 7);
    EXPECT_EQ(game.PlayerMaxHP.num(), 7);
    EXPECT_EQ(game.PlayerHP.num(), 7);

    main->CheckForLevelUp(); // the overflow gives the next level at the next check
    EXPECT_EQ(scripted.boxes.last().text, "You gained a level! You are now at level 3!");
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 2500);
}

TEST_F(PlayerInfoTest, anUpgradeInBattleRepaintsTheBattleInstead) {
    startRealmGame();
    int battleRepaints = 0;
    main->UpdatePlayerStats = [&] { ++battleRepaints; };
    game.PlayerNextLevelExp = 0;
    game.BattleActive = true;
    main->CheckForLevelUp();
    on<QLineEdit>("UpdateCharacter", "elements(6)")->setText("2");
    on<QAbstractButton>("UpdateCharacter", "cmdcreate")->click();
    EXPECT_EQ(battleRepaints, 1);
    EXPECT_EQ(game.PlayerSpellpower.num(), 7);
}

} // namespace
} // namespace umbrith
