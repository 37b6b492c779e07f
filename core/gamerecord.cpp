#include "core/gamerecord.h"

namespace umbrith {

const QList<GameField>& gameFields() {
    static const QList<GameField> fields = {
        {"PlayerName", "&Player Name", &GameRecord::PlayerName},
        {"PlayerRace", "&Player Race", &GameRecord::PlayerRace},
        {"PlayerLevel", "&Player Level", &GameRecord::PlayerLevel},
        {"PlayerExperience", "&Player Experience", &GameRecord::PlayerExperience},
        {"PlayerNextLevelExp", nullptr, &GameRecord::PlayerNextLevelExp},
        {"PlayerStrength", "&Player Strength", &GameRecord::PlayerStrength},
        {"PlayerDefence", "&Player Defence", &GameRecord::PlayerDefence},
        {"PlayerHP", "&Player HP", &GameRecord::PlayerHP},
        {"PlayerMaxHP", "&Player Max HP", &GameRecord::PlayerMaxHP},
        {"PlayerSP", "&Player SP", &GameRecord::PlayerSP},
        {"PlayerMaxSP", "&Player Max SP", &GameRecord::PlayerMaxSP},
        {"PlayerSpellpower", "&Player Spellpower", &GameRecord::PlayerSpellpower},
        {"PlayerSpeed", "&Player Speed", &GameRecord::PlayerSpeed},
        {"PlayerAgility", "&Player Agility", &GameRecord::PlayerAgility},
        {"PlayerGold", "&Player Gold", &GameRecord::PlayerGold},
        {"PlayerX", "&Player X", &GameRecord::PlayerX},
        {"PlayerY", "&Player Y", &GameRecord::PlayerY},
        {"PlayerImage", "&Player Image", &GameRecord::PlayerImage},
        {"PlayerSprite", "&Player Sprite", &GameRecord::PlayerSprite},
        {"PlayerUsesImage", nullptr, &GameRecord::PlayerUsesImage},
        {"PlayerFacing", nullptr, &GameRecord::PlayerFacing},
        {"SpriteRow", nullptr, &GameRecord::SpriteRow},
        {"SpriteColumn", nullptr, &GameRecord::SpriteColumn},
        {"TempAttackBonus", nullptr, &GameRecord::TempAttackBonus},
        {"TempDefenceBonus", nullptr, &GameRecord::TempDefenceBonus},
        {"PlayerWeaponName", "&Player Weapon Name", &GameRecord::PlayerWeaponName},
        {"PlayerWeaponPower", "&Player Weapon Power", &GameRecord::PlayerWeaponPower},
        {"PlayerWeaponDurability", "&Player Weapon Durability", &GameRecord::PlayerWeaponDurability},
        {"PlayerWeaponMaxDurability", "&Player Weapon Max Durability", &GameRecord::PlayerWeaponMaxDurability},
        {"PlayerWeaponPicturePath", "&Player Weapon Picture Path", &GameRecord::PlayerWeaponPicturePath},
        {"PlayerWeaponBonuses", nullptr, &GameRecord::PlayerWeaponBonuses},
        {"PlayerArmourName", "&Player Armour Name", &GameRecord::PlayerArmourName},
        {"PlayerArmourPower", "&Player Armour Power", &GameRecord::PlayerArmourPower},
        {"PlayerArmourDurability", "&Player Armour Durability", &GameRecord::PlayerArmourDurability},
        {"PlayerArmourMaxDurability", "&Player Armour Max Durability", &GameRecord::PlayerArmourMaxDurability},
        {"PlayerArmourPicturePath", "&Player Armour Picture Path", &GameRecord::PlayerArmourPicturePath},
        {"PlayerArmourBonuses", nullptr, &GameRecord::PlayerArmourBonuses},
        {"PlayerShieldName", "&Player Shield Name", &GameRecord::PlayerShieldName},
        {"PlayerShieldPower", "&Player Shield Power", &GameRecord::PlayerShieldPower},
        {"PlayerShieldDurability", "&Player Shield Durability", &GameRecord::PlayerShieldDurability},
        {"PlayerShieldMaxDurability", "&Player Shield Max Durability", &GameRecord::PlayerShieldMaxDurability},
        {"PlayerShieldPicturePath", "&Player Shield Picture Path", &GameRecord::PlayerShieldPicturePath},
        {"PlayerShieldBonuses", nullptr, &GameRecord::PlayerShieldBonuses},
        {"PlayerHelmetName", "&Player Helmet Name", &GameRecord::PlayerHelmetName},
        {"PlayerHelmetPower", "&Player Helmet Power", &GameRecord::PlayerHelmetPower},
        {"PlayerHelmetDurability", "&Player Helmet Durability", &GameRecord::PlayerHelmetDurability},
        {"PlayerHelmetMaxDurability", "&Player Helmet Max Durability", &GameRecord::PlayerHelmetMaxDurability},
        {"PlayerHelmetPicturePath", "&Player Helmet Picture Path", &GameRecord::PlayerHelmetPicturePath},
        {"PlayerHelmetBonuses", nullptr, &GameRecord::PlayerHelmetBonuses},
        {"PlayerBootsName", "&Player Boots Name", &GameRecord::PlayerBootsName},
        {"PlayerBootsPower", "&Player Boots Power", &GameRecord::PlayerBootsPower},
        {"PlayerBootsDurability", "&Player Boots Durability", &GameRecord::PlayerBootsDurability},
        {"PlayerBootsMaxDurability", "&Player Boots Max Durability", &GameRecord::PlayerBootsMaxDurability},
        {"PlayerBootsPicturePath", "&Player Boots Picture Path", &GameRecord::PlayerBootsPicturePath},
        {"PlayerBootsBonuses", nullptr, &GameRecord::PlayerBootsBonuses},
        {"PlayerGlovesName", "&Player Gloves Name", &GameRecord::PlayerGlovesName},
        {"PlayerGlovesPower", "&Player Gloves Power", &GameRecord::PlayerGlovesPower},
        {"PlayerGlovesDurability", "&Player Gloves Durability", &GameRecord::PlayerGlovesDurability},
        {"PlayerGlovesMaxDurability", "&Player Gloves Max Durability", &GameRecord::PlayerGlovesMaxDurability},
        {"PlayerGlovesPicturePath", "&Player Gloves Picture Path", &GameRecord::PlayerGlovesPicturePath},
        {"PlayerGlovesBonuses", nullptr, &GameRecord::PlayerGlovesBonuses},
        {"WeaponIsFists", nullptr, &GameRecord::WeaponIsFists},
        {"WeaponIsSword", nullptr, &GameRecord::WeaponIsSword},
        {"WeaponIsBow", nullptr, &GameRecord::WeaponIsBow},
        {"EquipmentPack", nullptr, &GameRecord::EquipmentPack},
        {"ItemsCarried", nullptr, &GameRecord::ItemsCarried},
        {"SkillsKnown", nullptr, &GameRecord::SkillsKnown},
        {"Journal", nullptr, &GameRecord::Journal},
        {"Variables", nullptr, &GameRecord::Variables},
        {"IsDay", nullptr, &GameRecord::IsDay},
        {"DaysPassed", nullptr, &GameRecord::DaysPassed},
        {"CurrentLevel", "&Current Level", &GameRecord::CurrentLevel},
        {"GameRunning", nullptr, &GameRecord::GameRunning},
        {"BattleActive", nullptr, &GameRecord::BattleActive},
        {"LevelUpActive", nullptr, &GameRecord::LevelUpActive},
        {"CharacterCreationActive", nullptr, &GameRecord::CharacterCreationActive},
        {"ScreenPanelOpen", nullptr, &GameRecord::ScreenPanelOpen},
        {"PopupOpen", nullptr, &GameRecord::PopupOpen},
    };
    return fields;
}

namespace {

void setSlot(Value& name, Value& power, Value& durability, Value& maxDurability, Value& picture, Value& bonuses,
             const char* newName, int newPower, const char* newDurability, const char* newPicture) {
    name = newName;
    power = newPower;
    durability = newDurability;
    maxDurability = newDurability;
    picture = newPicture;
    bonuses = "";
}

} // namespace

void SetNewGameValues(GameRecord& g) {
    g.PlayerLevel = 1;
    g.PlayerExperience = 0;
    g.PlayerNextLevelExp = 1000;
    g.PlayerGold = 200;
    g.PlayerImage = "";
    g.PlayerSprite = 0;
    g.PlayerUsesImage = false;
    g.PlayerFacing = 0;
    g.SpriteRow = 0;
    g.SpriteColumn = 0;
    g.TempAttackBonus = 0;
    g.TempDefenceBonus = 0;
    setSlot(g.PlayerWeaponName, g.PlayerWeaponPower, g.PlayerWeaponDurability, g.PlayerWeaponMaxDurability,
            g.PlayerWeaponPicturePath, g.PlayerWeaponBonuses, "Fists", 1, "99", "\\images\\weapons\\defaultweapon.bmp");
    setSlot(g.PlayerArmourName, g.PlayerArmourPower, g.PlayerArmourDurability, g.PlayerArmourMaxDurability,
            g.PlayerArmourPicturePath, g.PlayerArmourBonuses, "Light Clothes", 1, "99", "\\images\\bodies\\defaultbody.bmp");
    setSlot(g.PlayerShieldName, g.PlayerShieldPower, g.PlayerShieldDurability, g.PlayerShieldMaxDurability,
            g.PlayerShieldPicturePath, g.PlayerShieldBonuses, "None", 0, "0", "");
    setSlot(g.PlayerHelmetName, g.PlayerHelmetPower, g.PlayerHelmetDurability, g.PlayerHelmetMaxDurability,
            g.PlayerHelmetPicturePath, g.PlayerHelmetBonuses, "None", 0, "0", "\\images\\heads\\defaulthead.bmp");
    setSlot(g.PlayerBootsName, g.PlayerBootsPower, g.PlayerBootsDurability, g.PlayerBootsMaxDurability,
            g.PlayerBootsPicturePath, g.PlayerBootsBonuses, "Boots", 1, "99", "\\images\\boots\\defaultboots.bmp");
    setSlot(g.PlayerGlovesName, g.PlayerGlovesPower, g.PlayerGlovesDurability, g.PlayerGlovesMaxDurability,
            g.PlayerGlovesPicturePath, g.PlayerGlovesBonuses, "None", 0, "0", "\\images\\gloves\\defaultgloves.bmp");
    g.WeaponIsFists = true;
    g.WeaponIsSword = false;
    g.WeaponIsBow = false;
    g.EquipmentPack = "";
    g.ItemsCarried = "";
    g.SkillsKnown = "";
    g.Journal = "";
    g.Variables = "";
}

} // namespace umbrith
