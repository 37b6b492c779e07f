#include "core/savegame.h"
#include "platform/error.h"
#include "tests/support/errorof.h"
#include "tests/support/qtprint.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace umbrith;

namespace {

GameRecord hero() {
    GameRecord g;
    SetNewGameValues(g);
    g.PlayerName = "Aria";
    g.PlayerRace = "Elf";
    g.PlayerHP = 31;
    g.PlayerMaxHP = 40;
    g.PlayerSP = 5;
    g.PlayerMaxSP = 12;
    g.PlayerStrength = 7;
    g.PlayerDefence = 6;
    g.PlayerSpellpower = 9;
    g.PlayerSpeed = 8;
    g.PlayerAgility = 4;
    g.PlayerShieldName = "Buckler";
    g.PlayerShieldDurability = "17";
    g.PlayerHelmetMaxDurability = "30";
    g.PlayerBootsDurability = "12";
    g.PlayerWeaponBonuses = "Fire:2";
    g.PlayerGlovesBonuses = "Grip";
    g.Variables = "|Door Open=1";
    g.WeaponIsSword = true;
    g.WeaponIsFists = false;
    g.EquipmentPack = "*Dagger/3^Weapon";
    g.ItemsCarried = "/PotionÖ2";
    g.Journal = "£Find the well;Ask around;&Well Found";
    g.IsDay = false;
    g.DaysPassed = 3;
    return g;
}

const SaveExtras kExtras{"£1|2", "4;7", "\\maps\\town.ubm", true};

} // namespace

TEST(SaveGameTest, theRecordHasSeventeenFieldsWithTheBlockSplitBeforePosition40) {
    QList<Value> fields = SaveGameFields(hero(), kExtras);
    ASSERT_EQ(fields.size(), SaveFieldCount);
    const QStringList first = fields[0].text().split(QString::fromUtf8("¥"));
    ASSERT_EQ(first.size(), 40);
    EXPECT_EQ(first[0], "31");
    EXPECT_EQ(first[13], "Aria");
    EXPECT_EQ(first[14], "");
    EXPECT_EQ(first[26], "17");  // shield durability
    EXPECT_EQ(first[27], "12");  // boots durability
    EXPECT_EQ(first[33], "30");  // helmet max durability
    EXPECT_EQ(first[36], "Buckler");
    const QString second = fields[14].text();
    EXPECT_TRUE(second.startsWith(QString::fromUtf8("¥1000¥")));
    EXPECT_TRUE(second.endsWith(QString::fromUtf8("¥£1|2¥4;7¥\\maps\\town.ubm")));
    EXPECT_EQ(fields[7], Value("Fire:2****Grip*"));
    const QString text = writeRecord(fields);
    EXPECT_TRUE(text.contains(",#TRUE#,#FALSE#,#FALSE#,")) << text.toStdString();
    EXPECT_TRUE(text.contains(",#FALSE#,3,\"/PotionÖ2\","));
}

TEST(SaveGameTest, aSaveReadBackRestoresEveryFieldAndTheExtras) {
    const GameRecord saved = hero();
    RecordReader reader(writeRecord(SaveGameFields(saved, kExtras)));
    GameRecord loaded;
    SavedParts parts = ReadSaveGame(reader, loaded);
    SaveExtras extras = ApplyPlayerBlock(loaded, parts);
    loaded.Variables = parts.variables;
    EXPECT_TRUE(reader.atEnd());
    // The place, the screen and the battle's one-hit figures are not part of a save.
    const QSet<QString> notSaved = {"PlayerX", "PlayerY", "PlayerFacing", "SpriteRow", "SpriteColumn",
                                    "TempAttackBonus", "TempDefenceBonus", "CurrentLevel", "GameRunning",
                                    "BattleActive", "LevelUpActive", "CharacterCreationActive", "ScreenPanelOpen",
                                    "PopupOpen"};
    for (const GameField& field : gameFields()) {
        if (!notSaved.contains(field.name)) {
            EXPECT_EQ((loaded.*field.member).text(), (saved.*field.member).text()) << field.name;
        }
    }
    EXPECT_EQ(extras.heldEntries, "£1|2");
    EXPECT_EQ(extras.position, "4;7");
    EXPECT_EQ(extras.mapPath, "\\maps\\town.ubm");
    EXPECT_EQ(extras.animationRunning, Value(true));
    EXPECT_EQ(loaded.IsDay, Value(false));
}

TEST(SaveGameTest, aShortSaveFailsAtTheReadAfterTheStraightFieldsWentIn) {
    QList<Value> fields = SaveGameFields(hero(), kExtras);
    fields.removeLast();
    RecordReader reader(writeRecord(fields));
    GameRecord loaded;
    loaded.Journal = "old";
    EXPECT_EQ(errorOf([&] { ReadSaveGame(reader, loaded); }), err::InputPastEnd);
    EXPECT_EQ(loaded.ItemsCarried, Value("/PotionÖ2"));  // already read
    EXPECT_EQ(loaded.PlayerName, Value());                 // the block was never applied
}

TEST(SaveGameTest, reservedPositionsAreDroppedAndTextStaysText) {
    QList<Value> fields = SaveGameFields(hero(), kExtras);
    QStringList first = fields[0].text().split(QString::fromUtf8("¥"));
    first[14] = "old junk";
    first[0] = "abc";
    fields[0] = first.join(QString::fromUtf8("¥"));
    RecordReader reader(writeRecord(fields));
    GameRecord loaded;
    ApplyPlayerBlock(loaded, ReadSaveGame(reader, loaded));
    EXPECT_EQ(loaded.PlayerHP, Value("abc"));
    EXPECT_EQ(loaded.PlayerHP.num(), 0);
}

TEST(SaveGameTest, aBrokenBlockOrBonusListIsASubscriptError) {
    SavedParts parts{"1¥2¥3", "a*b*c*d*e*f", "", false};
    GameRecord loaded;
    EXPECT_EQ(errorOf([&] { ApplyPlayerBlock(loaded, parts); }), err::SubscriptOutOfRange);
    RecordReader reader(writeRecord(SaveGameFields(hero(), kExtras)));
    SavedParts good = ReadSaveGame(reader, loaded);
    good.bonuses = "only*two";
    EXPECT_EQ(errorOf([&] { ApplyPlayerBlock(loaded, good); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] {
                  RecordReader bad(writeRecord({"a", "b", true, true, true, "", "", "", true, 0, "", false, "", 0, "",
                                                "not a flag", ""}));
                  ReadSaveGame(bad, loaded);
              }),
              err::TypeMismatch);
}
