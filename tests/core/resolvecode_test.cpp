#include "core/resolvecode.h"
#include "tests/support/scriptedtest.h"

using namespace umbrith;

class ResolveCodeTest : public ScriptedTest {
protected:
    GameRecord game;
};

TEST_F(ResolveCodeTest, fieldCodesReturnTheFieldAsItStands) {
    SetNewGameValues(game);
    game.PlayerHP = "abc";
    game.PlayerGold = 250;
    EXPECT_EQ(ResolveCode(game, "&Player HP"), Value("abc"));
    EXPECT_EQ(ResolveCode(game, "&Player Gold"), Value(250));
    EXPECT_EQ(ResolveCode(game, "&Player Weapon Name"), Value("Fists"));
    EXPECT_EQ(ResolveCode(game, "&Player Gloves Max Durability"), Value("0"));
    EXPECT_EQ(ResolveCode(game, "&Player Armour Picture Path"), Value("\\images\\bodies\\defaultbody.bmp"));
    game.CurrentLevel = "Town";
    EXPECT_EQ(ResolveCode(game, "&Current Level"), Value("Town"));
    EXPECT_EQ(game.Variables, Value(""));
}

TEST_F(ResolveCodeTest, theClockCodesReadDayNightAndDays) {
    game.IsDay = true;
    game.DaysPassed = 3;
    EXPECT_EQ(ResolveCode(game, "&Day"), Value(true));
    EXPECT_EQ(ResolveCode(game, "&Night"), Value(false));
    EXPECT_EQ(ResolveCode(game, "&Days Passed"), Value(3));
    scripted.queueDraw(0.25f);
    scripted.queueDraw(0.75f);
    EXPECT_EQ(ResolveCode(game, "&Random"), Value(0.25));
    EXPECT_EQ(ResolveCode(game, "&Random"), Value(0.75));
}

TEST_F(ResolveCodeTest, readingAnUnknownVariableCreatesItOnceWithZero) {
    EXPECT_EQ(ResolveCode(game, "&Kills"), Value(0));
    EXPECT_EQ(game.Variables, Value("|Kills=0"));
    EXPECT_EQ(ResolveCode(game, "&Kills"), Value(0));
    EXPECT_EQ(game.Variables, Value("|Kills=0"));
    // Codes are case-sensitive: this is a plain variable, not the hit points.
    game.PlayerHP = 30;
    EXPECT_EQ(ResolveCode(game, "&player hp"), Value(0));
    EXPECT_EQ(game.Variables, Value("|Kills=0|player hp=0"));
    // The setter's name for skill points reads as a plain variable.
    EXPECT_EQ(ResolveCode(game, "&Player MP"), Value(0));
}

TEST_F(ResolveCodeTest, variableValuesAreNumbersOnlyWhenTheyParseToNonZeroOrAreZero) {
    game.Variables = "|A=12|B=5abc|C=abc|D=0|E=0.0|F=|A=99|G=1=2";
    EXPECT_EQ(ResolveCode(game, "&A"), Value(12));  // the first of two entries wins
    EXPECT_EQ(ResolveCode(game, "&B"), Value(5));
    EXPECT_EQ(ResolveCode(game, "&C"), Value("abc"));
    EXPECT_EQ(ResolveCode(game, "&D"), Value(0));
    EXPECT_EQ(ResolveCode(game, "&E"), Value("0.0"));
    EXPECT_EQ(ResolveCode(game, "&F"), Value(""));
    EXPECT_EQ(ResolveCode(game, "&G"), Value(1));  // what stands behind a second "=" is lost
}

TEST_F(ResolveCodeTest, literalsResolveByTheSameNumberRule) {
    game.Variables = "|A=3";
    EXPECT_EQ(ResolveCode(game, "A"), Value("A"));
    EXPECT_EQ(ResolveCode(game, "&A"), Value(3));
    EXPECT_EQ(ResolveCode(game, "7up"), Value(7));
    EXPECT_EQ(ResolveCode(game, "0"), Value(0));
    EXPECT_EQ(ResolveCode(game, ""), Value(""));
    EXPECT_EQ(ResolveCode(game, Value(4.5)), Value(4.5));
    EXPECT_EQ(game.Variables, Value("|A=3"));
}

TEST_F(ResolveCodeTest, setVariableRewritesInPlaceOrAppends) {
    game.Variables = "|Kills=3|Door Open=1|Odd=a=b";
    SetVariable(game, "Kills", "4");
    EXPECT_EQ(game.Variables, Value("|Kills=4|Door Open=1|Odd=a=b"));
    SetVariable(game, "Custom Answer", "yes");
    EXPECT_EQ(game.Variables, Value("|Kills=4|Door Open=1|Odd=a=b|Custom Answer=yes"));
    SetVariable(game, "Door Open", "");
    EXPECT_EQ(game.Variables, Value("|Kills=4|Door Open=|Odd=a=b|Custom Answer=yes"));
    GameRecord fresh;
    SetVariable(fresh, "X", "1");
    EXPECT_EQ(fresh.Variables, Value("|X=1"));
}

TEST(GameRecordTest, newGameValuesFillTheFixedFields) {
    GameRecord game;
    SetNewGameValues(game);
    EXPECT_EQ(game.PlayerLevel, Value(1));
    EXPECT_EQ(game.PlayerNextLevelExp, Value(1000));
    EXPECT_EQ(game.PlayerGold, Value(200));
    EXPECT_EQ(game.PlayerWeaponPower, Value(1));
    EXPECT_EQ(game.PlayerWeaponDurability, Value("99"));
    EXPECT_EQ(game.PlayerShieldPicturePath, Value(""));
    EXPECT_EQ(game.PlayerBootsName, Value("Boots"));
    EXPECT_EQ(game.WeaponIsFists, Value(true));
    EXPECT_EQ(game.IsDay, Value(true));
    EXPECT_EQ(gameFields().size(), 25 + 36 + 3 + 5 + 3 + 6);
}
