// The starter skills and enemies. Enemies carry copies of the skills they
// cast, and drop pieces of the starter lists as rewards, weaker foes near
// the town and stronger ones deeper in the forest and the cave.
#include "starter_lists.h"

#include "inventory/listfiles.h"

namespace worldgen {
namespace {

using namespace umbrith;

struct Reward {
    const char* key;
    int chance;
    int article; // 1 equipment, 2 skill, 3 item
};

struct Enemy {
    const char* name;
    const char* cls; // "Warrior", "Mage" or "Both"
    int hp, sp, weaponClass, weaponPower, attack, defence, speed, agility, experience, gold, spellPower, armour;
    int hpPotions, mpPotions, hpPotionStrength, mpPotionStrength;
    const char* picture; // under "\images\enemypics"
    bool canFlee;
    std::vector<const char*> skills; // keys in the skill list
    std::vector<Reward> rewards;
};

QString record(const Enemy& e, const QString& skillList)
{
    const int numbers[] = {e.hp, e.sp, e.weaponClass, e.weaponPower, e.attack, e.defence, e.speed, e.agility,
                           e.experience, e.gold, e.spellPower, e.armour, e.hpPotions, e.mpPotions,
                           e.hpPotionStrength, e.mpPotionStrength};
    QStringList stats(EnemyFieldCount);
    stats[EnemyName] = e.name;
    stats[EnemyClass] = e.cls;
    for (int i = 0; i < 16; ++i) stats[EnemyHitPoints + i] = QString::number(numbers[i]);
    stats[EnemyPicture] = StoredEnemyPicturePath(QStringLiteral("\\images\\enemypics\\") + e.picture);
    stats[EnemyCanFlee] = e.canFlee ? QStringLiteral("1") : QStringLiteral("0");

    QString skills;
    for (const char* key : e.skills) skills += u'/' + FindSkill(skillList, key);
    QString rewards;
    for (const Reward& r : e.rewards) rewards += barRecord(r.key, r.chance, r.article);
    QStringList parts(3);
    parts[EnemyStats] = stats.join(u':');
    parts[EnemySkills] = skills;
    parts[EnemyRewards] = rewards;
    return parts.join(u',');
}

} // namespace

QString starterSkills()
{
    struct Skill {
        const char* name;
        int cost, requiredLevel;
        const char* kind; // "Dam", "HP", "MP"
        int power;
    };
    const Skill skills[] = {
        {"Fire Bolt", 4, 1, "Dam", 4},   {"Power Strike", 5, 1, "Dam", 5}, {"Ice Shard", 7, 2, "Dam", 6},
        {"Venom Bite", 6, 2, "Dam", 5},  {"Lightning", 12, 4, "Dam", 9},   {"Ember Storm", 20, 7, "Dam", 14},
        {"Mend", 5, 1, "HP", 4},         {"Greater Mend", 12, 4, "HP", 9}, {"Meditate", 0, 1, "MP", 3},
        {"Focus", 0, 4, "MP", 6},
    };
    QString list;
    for (const Skill& s : skills) {
        QStringList fields(5);
        fields[SkillName] = s.name;
        fields[SkillCost] = QString::number(s.cost);
        fields[SkillRequiredLevel] = QString::number(s.requiredLevel);
        fields[SkillKind] = s.kind;
        fields[SkillPower] = QString::number(s.power);
        list += ListRecordSeparator(ListKind::Skills) + fields.join(u':');
    }
    return list;
}

QString starterEnemies(const QString& skills)
{
    // name, class, hp, sp, weapon class, weapon power, attack, defence, speed, agility,
    // experience, gold, spell power, armour, HP and MP potions and their strengths.
    const Enemy enemies[] = {
        {"Green Slime", "Warrior", 14, 0, 1, 1, 2, 1, 2, 2, 6, 3, 1, 0, 0, 0, 0, 0, "slime.bmp", true, {},
         {{"Loaf of Bread", 40, 3}}},
        {"Grey Wolf", "Warrior", 22, 0, 1, 3, 4, 2, 6, 5, 12, 4, 1, 1, 0, 0, 0, 0, "wolf.bmp", true, {},
         {{"Healing Potion", 25, 3}}},
        {"Cave Bat", "Warrior", 16, 0, 1, 2, 3, 1, 8, 8, 10, 2, 1, 0, 0, 0, 0, 0, "bat.bmp", true, {},
         {{"Swiftroot", 15, 3}}},
        {"Goblin Cutthroat", "Warrior", 28, 0, 2, 4, 5, 3, 5, 4, 18, 12, 1, 2, 1, 0, 15, 0, "goblin.bmp", true,
         {}, {{"Short Sword-Sword", 20, 1}, {"Purse of Coins", 10, 3}}},
        {"Goblin Hexer", "Mage", 22, 20, 1, 2, 3, 2, 5, 5, 20, 14, 2, 1, 0, 1, 0, 10, "goblin.bmp", true,
         {"Fire Bolt-Dam", "Meditate-MP"}, {{"Mana Potion", 40, 3}, {"Fire Bolt-Dam", 15, 2}}},
        {"Dire Wolf", "Warrior", 34, 0, 1, 5, 6, 3, 6, 4, 24, 6, 1, 2, 0, 0, 0, 0, "wolf.bmp", true, {},
         {{"Leather Boots-Boots", 20, 1}}},
        {"Restless Skeleton", "Warrior", 40, 0, 2, 6, 7, 5, 4, 3, 32, 15, 1, 4, 0, 0, 0, 0, "skeleton.bmp", true,
         {}, {{"Iron Helm-Helmet", 15, 1}, {"Long Sword-Sword", 10, 1}}},
        {"Orc Raider", "Both", 55, 10, 2, 8, 9, 6, 5, 4, 45, 25, 1, 5, 2, 0, 25, 0, "orc.bmp", true,
         {"Power Strike-Dam"}, {{"Chain Mail-Armour", 15, 1}, {"Healing Potion", 50, 3}}},
        {"Giant Spider", "Both", 48, 18, 1, 6, 8, 5, 7, 7, 42, 10, 2, 4, 0, 1, 0, 12, "spider.bmp", true,
         {"Venom Bite-Dam", "Meditate-MP"}, {{"Cloth Wraps-Gloves", 20, 1}, {"Swiftroot", 30, 3}}},
        {"Wailing Ghost", "Mage", 45, 40, 1, 2, 4, 8, 6, 9, 50, 20, 3, 2, 0, 2, 0, 15, "ghost.bmp", true,
         {"Ice Shard-Dam", "Lightning-Dam", "Focus-MP"}, {{"Mana Potion", 50, 3}, {"Ice Shard-Dam", 15, 2}}},
        {"Cave Troll", "Warrior", 90, 0, 1, 12, 12, 9, 3, 2, 80, 40, 1, 8, 2, 0, 40, 0, "troll.bmp", true,
         {}, {{"Iron Gauntlets-Gloves", 25, 1}, {"Greater Healing Potion", 40, 3}}},
        {"Ember Wyrm", "Both", 220, 80, 1, 18, 18, 14, 8, 6, 400, 300, 4, 14, 3, 2, 60, 30, "dragon.bmp", false,
         {"Ember Storm-Dam", "Greater Mend-HP", "Focus-MP"},
         {{"Ember Blade-Sword", 100, 1}, {"Ember Elixir", 100, 3}, {"Ember Storm-Dam", 50, 2}}},
    };
    QString list;
    for (const Enemy& e : enemies) list += ListRecordSeparator(ListKind::Enemies) + record(e, skills);
    return list;
}

} // namespace worldgen
