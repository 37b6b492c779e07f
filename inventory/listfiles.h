#pragma once

#include <QString>
#include <QStringList>

namespace umbrith {

// The four content lists, in the order of ListFiles 0 to 3.
enum class ListKind { Equipment = 0, Items = 1, Skills = 2, Enemies = 3 };

// The lists in force, each one delimited string as it stands in its file.
extern QString EquipList, ItemList, SkillList, EnemyList;
QString& SharedList(ListKind kind);

// The separator ahead of each record of a list: "," equipment, "×" items, "/"
// skills, "\" enemies.
QChar ListRecordSeparator(ListKind kind);

// A list file: one quoted value, the whole list. Full stored paths.
QString ReadListFile(const QString& path);
void WriteListFile(const QString& path, const QString& list);
// Load and save of a list through the shared slot: the file's one value into
// the shared variable of its kind, and back. A failed read leaves the variable.
void LoadList(ListKind kind, const QString& path);
void SaveList(ListKind kind, const QString& path);

// The records of a list, empty tokens skipped.
QStringList ListRecords(ListKind kind, const QString& list);

// The key of a record: "name-kind" for equipment and skills, the name for
// items, "name-class" for enemies. A record too short to hold the key's fields
// raises "Subscript out of range", as the lookups of the game did.
QString EquipmentKey(const QString& record);
QString ItemKey(const QString& record);
QString SkillKey(const QString& record);
QString EnemyKey(const QString& record);
QString RecordKey(ListKind kind, const QString& record);
// The first record of the list whose key is `key`, "" when there is none.
QString FindListRecord(ListKind kind, const QString& list, const QString& key);
QString FindEquipment(const QString& list, const QString& key);
QString FindItem(const QString& list, const QString& name);
QString FindSkill(const QString& list, const QString& key);
QString FindEnemy(const QString& list, const QString& key);

// Equipment: kind:name:power:durability "/" bonuses "/" picture.
enum EquipmentField { EquipKind = 0, EquipName, EquipPower, EquipDurability };
enum EquipmentPart { EquipStats = 0, EquipBonuses, EquipPicture };
// A bonus record, each led by "|": name:operation:amount.
enum BonusField { BonusName = 0, BonusOperation, BonusAmount };
// Items, fields joined by "Ö".
inline constexpr char16_t ItemSeparator = u'\u00D7';      // "×"
inline constexpr char16_t ItemFieldSeparator = u'\u00D6'; // "Ö"
enum ItemField { ItemName = 0, ItemUses, ItemRequirements, ItemEvents, ItemDroppable, ItemCombat };
// Skills: name:cost:requiredLevel:kind:power.
enum SkillField { SkillName = 0, SkillCost, SkillRequiredLevel, SkillKind, SkillPower };
// Enemies: stats "," skills "," rewards; the stats part of twenty ":" fields.
enum EnemyPart { EnemyStats = 0, EnemySkills, EnemyRewards };
enum EnemyField {
    EnemyName = 0, EnemyClass, EnemyHitPoints, EnemySkillPoints, EnemyWeaponClass, EnemyWeaponPower,
    EnemyAttack, EnemyDefence, EnemySpeed, EnemyAgility, EnemyExperience, EnemyGold, EnemySpellPower,
    EnemyArmour, EnemyHPPotions, EnemyMPPotions, EnemyHPPotionStrength, EnemyMPPotionStrength,
    EnemyPicture, EnemyCanFlee,
};
inline constexpr int EnemyFieldCount = 20;
// A reward of an enemy, each led by "|": key:chance:article (1 equipment, 2 skill, 3 item).
enum RewardField { RewardKey = 0, RewardChance, RewardArticle };

// An enemy's picture path as stored, with "`" for every "\", and back.
QString EnemyPicturePath(const QString& stored);
QString StoredEnemyPicturePath(const QString& path);
// The name shown in battle: the part before the first "&", trimmed of blanks.
QString EnemyShownName(const QString& name);

} // namespace umbrith
