#include "inventory/carried.h"

#include "tests/support/qtprint.h"

#include <gtest/gtest.h>

using namespace umbrith;

TEST(CarriedRowsTest, itemsShowTheirUsesLeft) {
    const QString items = QString::fromUtf8("/PotionÖ3Ö\\events\\p.ubeÖ1Ö1/KeyÖ1");
    EXPECT_EQ(ItemRows(items), QStringList({"Potion(3)", "Key(1)"}));
    EXPECT_TRUE(ItemRows("").isEmpty());
}

TEST(CarriedRowsTest, equipmentShowsNameKindAndWearAndSkipsOtherEntries) {
    const QString pack = "*Sword:Blade:5:7/|Sharp:0:2/\\images\\w.bmp#10^1*Helmet:Cap:1:3//#4^1*odd^2*short^1";
    EXPECT_EQ(EquipmentRows(pack), QStringList({"Blade-Sword (7/10)", "Cap-Helmet (3/4)"}));
}

TEST(CarriedRowsTest, skillsShowNameAndKind) {
    EXPECT_EQ(SkillRows("/Fire:2:1:Dam:3/Mend:1:1:HP:2"), QStringList({"Fire-Dam", "Mend-HP"}));
}
