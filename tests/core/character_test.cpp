#include "core/character.h"

#include "tests/support/errorof.h"
#include "tests/support/qtprint.h"

#include <gtest/gtest.h>

using namespace umbrith;

namespace {

Realm realmWith(const QString& races, const QString& statistics, const QString& statsEditable = "1") {
    Realm realm;
    realm.races = races;
    realm.statistics = statistics;
    realm.statsEditable = statsEditable;
    realm.pointsAtStart = "10";
    realm.pointsPerLevel = "2.5";
    realm.nameEditable = "0";
    realm.defaultName = "Wanderer";
    return realm;
}

const QString twoGroups = QString::fromUtf8(":1:2:3:4:5:6:7£:10:20:30:40:50:60:70");

StatTexts stats(std::initializer_list<const char*> texts) {
    StatTexts result;
    int i = 0;
    for (const char* text : texts)
        result[i++] = QString::fromUtf8(text);
    return result;
}

} // namespace

TEST(CharacterSetupTest, aRealmGivesItsRacesBaseAndStartValuesPointsAndName) {
    const CharacterSetup setup = RealmCharacterSetup(realmWith(":Human:Elf", twoGroups));
    EXPECT_EQ(setup.races, QStringList({"Human", "Elf"}));
    EXPECT_EQ(setup.base[0], "1");
    EXPECT_EQ(setup.base[6], "7");
    EXPECT_EQ(setup.editable[2], "30");
    EXPECT_TRUE(setup.statsEditable);
    EXPECT_EQ(setup.pointsAtStart, 10);
    EXPECT_EQ(setup.pointsPerLevel, 2.5);
    EXPECT_FALSE(setup.nameEditable);
    EXPECT_EQ(setup.defaultName, "Wanderer");
}

TEST(CharacterSetupTest, aRealmWithoutRacesOffersHumanAndAnyFlagButOneFixesTheStatistics) {
    const CharacterSetup setup = RealmCharacterSetup(realmWith("", twoGroups, "yes"));
    EXPECT_EQ(setup.races, QStringList({"Human"}));
    EXPECT_FALSE(setup.statsEditable);
    EXPECT_EQ(CharacterSetup().races, QStringList({"Human"}));
}

TEST(CharacterSetupTest, statisticsShortOfTwoGroupsOfSevenAreASubscriptError) {
    EXPECT_EQ(errorOf([] { RealmCharacterSetup(realmWith(":A", ":1:2:3:4:5:6:7")); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { RealmCharacterSetup(realmWith(":A", QString::fromUtf8(":1:2:3£:1:2:3:4:5:6:7"))); }),
              err::SubscriptOutOfRange);
    Realm huge = realmWith(":A", twoGroups);
    huge.pointsAtStart = "40000";
    EXPECT_EQ(errorOf([&] { RealmCharacterSetup(huge); }), err::Overflow);
}

TEST(CreationTest, thePointsLeftAreThePointsAtStartLessTheBoxesByVal) {
    EXPECT_EQ(CreationPointsLeft(10, stats({"3", "2", "", "1abc", "-2", "0", "0"})), 6);
    EXPECT_EQ(CreationPointsProblem(true, -1), "You are using too many points!");
    EXPECT_EQ(CreationPointsProblem(true, 0.5), "Please use all your available points!");
    EXPECT_EQ(CreationPointsProblem(true, 0), "");
    // Fixed statistics hide the count: any contents pass.
    EXPECT_EQ(CreationPointsProblem(false, -40), "");
}

TEST(CreationTest, anIncompleteFormTakesTheDefaultNameTheFirstRaceAndZeroes) {
    CharacterForm form{"", "", {"Dwarf", "Elf"}, "Wanderer", {}, stats({"1", "", "2", "", "", "", ""})};
    FillCreationDefaults(form);
    EXPECT_EQ(form.name, "Wanderer");
    EXPECT_EQ(form.race, "Dwarf");
    EXPECT_EQ(form.boxes[1], "0");
    EXPECT_EQ(form.boxes[2], "2");
}

TEST(CreationTest, aNewCharacterIsBasePlusPointsWithTheNewGameValues) {
    GameRecord game;
    game.PlayerLevel = 7;
    game.ItemsCarried = "/Potion";
    game.Variables = "|Kills=3";
    game.CharacterCreationActive = true;
    const CharacterForm form{"Wren", "Elf", {"Elf"}, "", stats({"1", "2", "3", "4", "5", "6", "7"}),
                             stats({"10", "0", "20", "-1", "0", "1", "2"})};
    CreateCharacter(game, form);
    EXPECT_EQ(game.PlayerName.text(), "Wren");
    EXPECT_EQ(game.PlayerRace.text(), "Elf");
    EXPECT_EQ(game.PlayerStrength.num(), 11);
    EXPECT_EQ(game.PlayerDefence.num(), 2);
    EXPECT_EQ(game.PlayerHP.num(), 23);
    EXPECT_EQ(game.PlayerMaxHP.num(), 23);
    EXPECT_EQ(game.PlayerSP.num(), 3);
    EXPECT_EQ(game.PlayerMaxSP.num(), 3);
    EXPECT_EQ(game.PlayerSpellpower.num(), 5);
    EXPECT_EQ(game.PlayerSpeed.num(), 7);
    EXPECT_EQ(game.PlayerAgility.num(), 9);
    EXPECT_EQ(game.PlayerLevel.num(), 1);
    EXPECT_EQ(game.PlayerNextLevelExp.num(), 1000);
    EXPECT_EQ(game.PlayerGold.num(), 200);
    EXPECT_EQ(game.PlayerWeaponName.text(), "Fists");
    EXPECT_EQ(game.ItemsCarried.text(), "");
    EXPECT_EQ(game.Variables.text(), "");
    EXPECT_FALSE(isTrue(game.CharacterCreationActive));
}

TEST(UpgradeTest, theUpgradeBoxesRunInTheirOwnOrder) {
    const auto& fields = UpgradeFields();
    EXPECT_EQ(fields[2], &GameRecord::PlayerMaxHP);
    EXPECT_EQ(fields[4], &GameRecord::PlayerSpeed);
    EXPECT_EQ(fields[6], &GameRecord::PlayerSpellpower);
}

TEST(UpgradeTest, thePointsLeftAreA16BitIntegerWithHalvesToEven) {
    EXPECT_EQ(UpgradePointsLeft(2.5, {}), 2);
    EXPECT_EQ(UpgradePointsLeft(2.5, stats({"1"})), 2); // 1.5
    EXPECT_EQ(UpgradePointsLeft(2.5, stats({"2"})), 0); // 0.5
    EXPECT_EQ(UpgradePointsLeft(3, stats({"-2"})), 5);  // a negative box gives points back
    EXPECT_EQ(errorOf([] { UpgradePointsLeft(40000, {}); }), err::Overflow);
}

TEST(UpgradeTest, anUpgradeAddsTheBoxesDropsTheOneHitBonusesAndHealsFully) {
    GameRecord game;
    game.PlayerStrength = 5;
    game.PlayerMaxHP = 20;
    game.PlayerHP = 3;
    game.PlayerMaxSP = "8";
    game.PlayerSP = 0;
    game.PlayerSpellpower = 1;
    game.TempAttackBonus = 4;
    game.LevelUpActive = true;
    ApplyUpgrade(game, stats({"2", "", "5", "", "", "", "1"}));
    EXPECT_EQ(game.PlayerStrength.num(), 7);
    EXPECT_EQ(game.PlayerMaxHP.num(), 25);
    EXPECT_EQ(game.PlayerHP.num(), 25);
    EXPECT_EQ(game.PlayerSP.num(), 8);
    EXPECT_EQ(game.PlayerSpellpower.num(), 2);
    EXPECT_EQ(game.TempAttackBonus.num(), 0);
    EXPECT_FALSE(isTrue(game.LevelUpActive));
}
