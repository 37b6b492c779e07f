#include "inventory/listfiles.h"

#include "core/misc.h"
#include "core/realm.h"
#include "core/record.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/testdata.h"
#include "tests/support/errorof.h"

using namespace umbrith;

namespace {

QString list(const char* name) { return ReadListFile(testdata::path(QString("inventory/") + name)); }

} // namespace

TEST(ListFilesTest, eachListBeginsWithItsSeparatorAndTheEmptyFirstTokenIsSkipped) {
    const struct {
        ListKind kind;
        const char* file;
        int records;
    } lists[] = {{ListKind::Equipment, "equiplist.ubc", 3},
                 {ListKind::Items, "itemlist.ubc", 2},
                 {ListKind::Skills, "skilllist.ubc", 3},
                 {ListKind::Enemies, "enemylist.ubc", 2}};
    for (const auto& l : lists) {
        const QString text = list(l.file);
        EXPECT_TRUE(text.startsWith(ListRecordSeparator(l.kind))) << l.file;
        EXPECT_EQ(ListRecords(l.kind, text).size(), l.records) << l.file;
    }
    EXPECT_TRUE(ListRecords(ListKind::Items, "").isEmpty());
}

TEST(ListFilesTest, equipmentIsFoundByNameDashKind) {
    const QString equip = list("equiplist.ubc");
    EXPECT_EQ(FindEquipment(equip, "Leather-Armour"), "Armour:Leather:3:40/|Nimble:4:2|Heavy:7:1/");
    EXPECT_EQ(FindEquipment(equip, "Leather-Sword"), "Sword:Leather:9:9//");
    EXPECT_EQ(FindEquipment(equip, "Leather"), "");
    const QStringList parts = FindEquipment(equip, "Rusty Sword-Sword").split(u'/');
    EXPECT_EQ(parts[EquipPicture], "\\images\\weapons\\rusty.bmp");
    const QStringList bonuses = NonEmptyParts(FindEquipment(equip, "Leather-Armour").split(u'/')[EquipBonuses], u'|');
    ASSERT_EQ(bonuses.size(), 2);
    EXPECT_EQ(bonuses[1].split(u':')[BonusOperation], "7");
}

TEST(ListFilesTest, itemsAreFoundByName) {
    const QString items = list("itemlist.ubc");
    const QStringList key = FindItem(items, "Old Key").split(ItemFieldSeparator);
    ASSERT_EQ(key.size(), 6);
    EXPECT_EQ(key[ItemRequirements], "&PlayerLevel:3");
    EXPECT_EQ(key[ItemEvents], "\\events\\key.ube, \\events\\key2.ube");
    EXPECT_EQ(key[ItemDroppable], "0");
    EXPECT_EQ(FindItem(items, "Apple").split(ItemFieldSeparator)[ItemCombat], "1");
    EXPECT_EQ(FindItem(items, "Pear"), "");
}

TEST(ListFilesTest, skillsAreFoundByNameDashKind) {
    const QString skills = list("skilllist.ubc");
    EXPECT_EQ(FindSkill(skills, "Fire-Dam"), "Fire:5:1:Dam:3");
    EXPECT_EQ(FindSkill(skills, "Fire-HP"), "Fire:9:5:HP:1");
    EXPECT_EQ(FindSkill(skills, "Fire"), "");
}

TEST(ListFilesTest, enemiesAreFoundByNameDashClassAndKeepTheirWholeName) {
    const QString enemies = list("enemylist.ubc");
    const QString rat = FindEnemy(enemies, "Rat & Co-Warrior");
    ASSERT_FALSE(rat.isEmpty());
    const QStringList parts = rat.split(u',');
    ASSERT_EQ(parts.size(), 3);
    const QStringList stats = parts[EnemyStats].split(u':');
    ASSERT_EQ(stats.size(), EnemyFieldCount);
    EXPECT_EQ(EnemyShownName(stats[EnemyName]), "Rat");
    EXPECT_EQ(EnemyPicturePath(stats[EnemyPicture]), "\\images\\enemypics\\rat.bmp");
    EXPECT_EQ(stats[EnemyCanFlee], "1");
    EXPECT_EQ(NonEmptyParts(parts[EnemyRewards], u'|')[0].split(u':')[RewardKey], "Rusty Sword-Sword");

    const QStringList wraith = FindEnemy(enemies, "Bog Wraith-Mage").split(u',');
    EXPECT_EQ(NonEmptyParts(wraith[EnemySkills], u'/').size(), 2);
    EXPECT_EQ(wraith[EnemyStats].split(u':')[EnemyPicture], "");
    EXPECT_EQ(FindEnemy(enemies, "Bog Wraith-Warrior"), "");
}

TEST(ListFilesTest, picturePathsStoreABackQuoteForEachBackslash) {
    EXPECT_EQ(StoredEnemyPicturePath("\\images\\enemypics\\rat.bmp"), "`images`enemypics`rat.bmp");
    EXPECT_EQ(EnemyPicturePath(StoredEnemyPicturePath("\\a\\b.bmp")), "\\a\\b.bmp");
    EXPECT_EQ(EnemyShownName("  & Nobody"), "");
}

TEST(ListFilesTest, aRecordTooShortForItsKeyIsASubscriptError) {
    EXPECT_EQ(errorOf([] { FindEquipment(",Sword", "x-Sword"); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { FindSkill("/Fire:5:1", "Fire-Dam"); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { FindEnemy("\\Rat", "Rat-Warrior"); }), err::SubscriptOutOfRange);
    EXPECT_EQ(FindItem(QString(QChar(ItemSeparator)) + "Apple", "Apple"), "Apple");
}

class ListFileTest : public ScriptedTest {};

TEST_F(ListFileTest, aListIsLoadedIntoItsSharedVariableAndSavedByteForByte) {
    const char* files[] = {"equiplist.ubc", "itemlist.ubc", "skilllist.ubc", "enemylist.ubc"};
    for (int i = 0; i < 4; ++i) {
        const ListKind kind = ListKind(i);
        const QString path = AppPath() + DefaultListFiles()[i];
        writeFile(DefaultListFiles()[i], testdata::bytes(QString("inventory/") + files[i]));
        LoadList(kind, path);
        EXPECT_EQ(SharedList(kind), list(files[i]));
        writeFile(DefaultListFiles()[i], "");
        SaveList(kind, path);
        EXPECT_EQ(readFile(DefaultListFiles()[i]), testdata::bytes(QString("inventory/") + files[i])) << files[i];
    }
    EXPECT_EQ(&SharedList(ListKind::Enemies), &EnemyList);
}

TEST_F(ListFileTest, aMissingListIsAReadErrorAndTheVariableStays) {
    ItemList = "kept";
    EXPECT_EQ(errorOf([&] { LoadList(ListKind::Items, AppPath() + "\\config\\item lists\\none.ubc"); }),
              err::PathNotFound);
    EXPECT_EQ(ItemList, "kept");
}
