// The starter equipment: a few pieces of every kind, from a farmhand's first
// gear to what a hero wears against the dragon, each with its paper-doll picture.
#include "starter_lists.h"

#include "inventory/listfiles.h"

namespace worldgen {
namespace {

using namespace umbrith;

struct Bonus {
    const char* name;
    int operation; // 0 +Strength, 1 +Defence, 2 -Strength, 3 -Defence, 4 +Agility, 5 +Speed, 6 -Agility, 7 -Speed
    int amount;
};

struct Piece {
    const char* kind;
    const char* name;
    int power;
    int durability;
    std::vector<Bonus> bonuses;
    const char* picture;
};

QString record(const Piece& p)
{
    QStringList stats(4);
    stats[EquipKind] = p.kind;
    stats[EquipName] = p.name;
    stats[EquipPower] = QString::number(p.power);
    stats[EquipDurability] = QString::number(p.durability);
    QString bonuses;
    for (const Bonus& b : p.bonuses) bonuses += barRecord(b.name, b.operation, b.amount);
    QStringList parts(3);
    parts[EquipStats] = stats.join(u':');
    parts[EquipBonuses] = bonuses;
    parts[EquipPicture] = p.picture;
    return parts.join(u'/');
}

} // namespace

QString starterEquipment()
{
    const Piece pieces[] = {
        {"Fists", "Iron Knuckles", 3, 80, {}, "\\images\\weapons\\defaultweapon.bmp"},
        {"Sword", "Short Sword", 5, 80, {}, "\\images\\weapons\\shortsword.bmp"},
        {"Sword", "Long Sword", 9, 120, {{"Heavy Blade", 7, 1}}, "\\images\\weapons\\longsword.bmp"},
        {"Sword", "Ember Blade", 15, 160, {{"Burning Edge", 0, 3}, {"Light Grip", 5, 1}}, "\\images\\weapons\\embersword.bmp"},
        {"Bow", "Short Bow", 5, 70, {{"Quick Draw", 5, 1}}, "\\images\\weapons\\shortbow.bmp"},
        {"Bow", "Longbow", 11, 110, {{"Steady Aim", 4, 2}}, "\\images\\weapons\\longbow.bmp"},
        {"Armour", "Leather Armour", 3, 90, {}, "\\images\\bodies\\leatherarmour.bmp"},
        {"Armour", "Chain Mail", 6, 130, {{"Heavy Links", 7, 1}}, "\\images\\bodies\\chainmail.bmp"},
        {"Armour", "Plate Armour", 10, 200, {{"Steel Plates", 1, 2}, {"Weight", 7, 2}}, "\\images\\bodies\\platearmour.bmp"},
        {"Armour", "Mage Robe", 2, 60, {{"Woven Runes", 4, 2}}, "\\images\\bodies\\magerobe.bmp"},
        {"Armour", "Ranger Coat", 4, 90, {{"Light Step", 5, 2}}, "\\images\\bodies\\rangercloak.bmp"},
        {"Helmet", "Leather Cap", 1, 60, {}, "\\images\\heads\\leathercap.bmp"},
        {"Helmet", "Iron Helm", 3, 110, {}, "\\images\\heads\\ironhelm.bmp"},
        {"Helmet", "Horned Helm", 4, 120, {{"War Cry", 0, 1}}, "\\images\\heads\\hornedhelm.bmp"},
        {"Helmet", "Wizard Hat", 1, 50, {{"Clear Mind", 4, 1}}, "\\images\\heads\\wizardhat.bmp"},
        {"Helmet", "Green Hood", 1, 50, {{"Shadowed", 4, 1}}, "\\images\\heads\\greenhood.bmp"},
        {"Shield", "Wooden Buckler", 2, 70, {}, "\\images\\shields\\woodenbuckler.bmp"},
        {"Shield", "Round Shield", 3, 100, {}, "\\images\\shields\\roundshield.bmp"},
        {"Shield", "Kite Shield", 5, 140, {{"Long Guard", 1, 1}}, "\\images\\shields\\kiteshield.bmp"},
        {"Shield", "Tower Shield", 8, 200, {{"Bulk", 7, 2}}, "\\images\\shields\\towershield.bmp"},
        {"Boots", "Leather Boots", 2, 80, {}, "\\images\\boots\\leatherboots.bmp"},
        {"Boots", "Iron Greaves", 4, 140, {{"Heavy Tread", 7, 1}}, "\\images\\boots\\ironboots.bmp"},
        {"Boots", "Fur Boots", 2, 90, {{"Warm Feet", 4, 1}}, "\\images\\boots\\furboots.bmp"},
        {"Boots", "Sandals", 1, 40, {{"Barefoot Speed", 5, 2}}, "\\images\\boots\\sandals.bmp"},
        {"Gloves", "Leather Gloves", 1, 70, {}, "\\images\\gloves\\leathergloves.bmp"},
        {"Gloves", "Iron Gauntlets", 3, 130, {{"Iron Grip", 0, 1}}, "\\images\\gloves\\irongauntlets.bmp"},
        {"Gloves", "Cloth Wraps", 1, 40, {{"Nimble Fingers", 4, 1}}, "\\images\\gloves\\clothwraps.bmp"},
        {"Gloves", "Mage Gloves", 1, 50, {{"Spark", 5, 1}}, "\\images\\gloves\\magegloves.bmp"},
    };
    QString list;
    for (const Piece& p : pieces) list += ListRecordSeparator(ListKind::Equipment) + record(p);
    return list;
}

QString pileEquipment(const QString& equipment, const QString& key)
{
    // A piece on the ground is carried as the inventory holds it: the record,
    // its maximum durability, and the flag behind "^".
    const QString found = FindEquipment(equipment, key);
    const QString durability = found.split(u'/')[EquipStats].split(u':')[EquipDurability];
    return kGroundEntrySeparator + found + u'#' + durability + QStringLiteral("^1") + kGroundTagSeparator + u'1';
}

} // namespace worldgen
