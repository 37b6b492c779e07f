#include "core/stats.h"

#include "tests/support/errorof.h"
#include "tests/support/qtprint.h"

#include <gtest/gtest.h>

using namespace umbrith;

namespace {

GameRecord newCharacter() {
    GameRecord game;
    SetNewGameValues(game);
    game.PlayerName = "Wren";
    game.PlayerRace = "Elf";
    game.PlayerStrength = 10;
    game.PlayerDefence = 4;
    game.PlayerHP = 15;
    game.PlayerMaxHP = 20;
    game.PlayerSP = 0;
    game.PlayerMaxSP = 0;
    return game;
}

} // namespace

TEST(PlayerLabelsTest, gearShowsItsPowerUnlessItIsNone) {
    GameRecord game = newCharacter();
    game.PlayerShieldName = "Buckler";
    game.PlayerShieldPower = 3;
    const QStringList t = PlayerLabelTexts(game);
    ASSERT_EQ(t.size(), PlayerLabelCount);
    EXPECT_EQ(t[LabelWeapon], "Fists Damage: 1");
    EXPECT_EQ(t[LabelArmour], "Light Clothes Protection: 1");
    EXPECT_EQ(t[LabelShield], "Buckler Protection: 3");
    EXPECT_EQ(t[LabelHelmet], "None");
    EXPECT_EQ(t[LabelHP], "15 / 20");
    EXPECT_EQ(t[LabelWeaponDurability], "99/99");
    EXPECT_EQ(t[LabelGlovesDurability], "0/0");
    // Defence 4, armour 1, shield 3, boots 1.
    EXPECT_EQ(t[LabelTotalDefence], "9");
}

TEST(PlayerLabelsTest, theAttackRangeIsTheBattlesDamageSpreadWithTheLevelBonus) {
    GameRecord game = newCharacter();
    game.PlayerWeaponPower = 5;
    game.PlayerLevel = 20;
    // base 15, spread 5 + 1, level bonus Int(15 * 0.2) = 3.
    EXPECT_EQ(PlayerLabelTexts(game)[LabelAttackRange], "12 To 24");
    game.TempAttackBonus = 2;
    // base 17, spread 7 + 1, bonus Int(3.4) = 3.
    EXPECT_EQ(PlayerLabelTexts(game)[LabelAttackRange], "12 To 28");
}

TEST(PlayerLabelsTest, combatMasteryIsTheLevelAsAPercentAndTheShopReadsItBack) {
    GameRecord game = newCharacter();
    game.PlayerLevel = 3;
    EXPECT_EQ(PlayerLabelTexts(game)[LabelCombatMastery], "3.00 %");
    EXPECT_FLOAT_EQ(ShopLevelFactor(game.PlayerLevel), 3.0f);
    EXPECT_FLOAT_EQ(ShopLevelFactor(Value("abc")), 0.0f);
}

TEST(StatBarsTest, barsAreScaledTo2880AndTheExperienceBarShrinksTowardTheLevel) {
    GameRecord game = newCharacter();
    game.PlayerSP = 1;
    game.PlayerNextLevelExp = 250;
    const BarWidths bars = StatBarWidths(game);
    EXPECT_EQ(bars.hp, 2160);
    EXPECT_EQ(bars.sp, 2880); // no maximum: the scale is 2880 itself
    EXPECT_EQ(bars.exp, 720);
}

TEST(StatBarsTest, aZeroMaximumOrANegativeWidthStopsTheUpdate) {
    GameRecord game = newCharacter();
    game.PlayerMaxHP = "abc";
    EXPECT_EQ(errorOf([&] { StatBarWidths(game); }), err::DivisionByZero);
    game = newCharacter();
    game.PlayerNextLevelExp = -500;
    EXPECT_EQ(errorOf([&] { StatBarWidths(game); }), err::InvalidPropertyValue);
}

TEST(DeathTest, belowOneHitPointIsDeadTextIncluded) {
    GameRecord game;
    game.PlayerHP = 0.5;
    EXPECT_TRUE(IsDead(game));
    game.PlayerHP = 1;
    EXPECT_FALSE(IsDead(game));
    game.PlayerHP = "abc";
    EXPECT_TRUE(IsDead(game));
}

TEST(DeathTest, deathHealsAndEmptiesThePurseButKeepsLevelStatisticsAndLists) {
    GameRecord game = newCharacter();
    game.PlayerLevel = 4;
    game.PlayerHP = -3;
    game.PlayerMaxSP = 6;
    game.EquipmentPack = "*Sword:Blade:5:10//#10^1";
    game.SkillsKnown = "/Fire:2:1:Dam:3";
    game.Variables = "|Kills=3";
    ReviveAfterDeath(game);
    EXPECT_EQ(game.PlayerHP.num(), 20);
    EXPECT_EQ(game.PlayerSP.num(), 6);
    EXPECT_EQ(game.PlayerGold.num(), 0);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 4000);
    EXPECT_EQ(game.PlayerLevel.num(), 4);
    EXPECT_EQ(game.PlayerStrength.num(), 10);
    EXPECT_FALSE(game.EquipmentPack.text().isEmpty());
    EXPECT_FALSE(game.SkillsKnown.text().isEmpty());
    EXPECT_EQ(game.Variables.text(), "|Kills=3");
}

TEST(LevelUpTest, theOverflowCarriesByItsAbsoluteValueAndTheNextCheckGivesTheNextLevel) {
    GameRecord game = newCharacter();
    game.PlayerNextLevelExp = -2500;
    EXPECT_EQ(GainLevel(game), 2);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), -500); // 2000 - 2500
    EXPECT_TRUE(isTrue(game.LevelUpActive));
    // While the upgrade is up a further check gains nothing.
    EXPECT_EQ(GainLevel(game), 0);
    game.LevelUpActive = false;
    EXPECT_EQ(GainLevel(game), 3);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 2500); // 3000 - 500
    game.LevelUpActive = false;
    EXPECT_EQ(GainLevel(game), 0);
    EXPECT_EQ(game.PlayerLevel.num(), 3);
    EXPECT_EQ(LevelGainedText(3), "You gained a level! You are now at level 3!");
}

TEST(LevelUpTest, exactlyZeroPointsToGoIsALevel) {
    GameRecord game = newCharacter();
    game.PlayerNextLevelExp = 0;
    EXPECT_EQ(GainLevel(game), 2);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 2000);
}
