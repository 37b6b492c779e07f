#pragma once

#include "core/value.h"

#include <QList>
#include <QString>

namespace umbrith {

// The game's one shared state. Every screen paints from it and writes to it;
// a save file is a dump of it. Fields are dynamically typed values, read by
// the rules with Val, so a field set to text by an event stays text.
struct GameRecord {
    // The player.
    Value PlayerName, PlayerRace, PlayerLevel, PlayerExperience, PlayerNextLevelExp;
    Value PlayerStrength, PlayerDefence, PlayerHP, PlayerMaxHP, PlayerSP, PlayerMaxSP;
    Value PlayerSpellpower, PlayerSpeed, PlayerAgility, PlayerGold;
    Value PlayerX, PlayerY, PlayerImage, PlayerSprite;
    Value PlayerUsesImage = false;
    Value PlayerFacing = 0, SpriteRow = 0, SpriteColumn = 0;
    Value TempAttackBonus = 0, TempDefenceBonus = 0;

    // The six equipment slots; a slot named "None" holds nothing.
    Value PlayerWeaponName, PlayerWeaponPower, PlayerWeaponDurability, PlayerWeaponMaxDurability,
        PlayerWeaponPicturePath, PlayerWeaponBonuses;
    Value PlayerArmourName, PlayerArmourPower, PlayerArmourDurability, PlayerArmourMaxDurability,
        PlayerArmourPicturePath, PlayerArmourBonuses;
    Value PlayerShieldName, PlayerShieldPower, PlayerShieldDurability, PlayerShieldMaxDurability,
        PlayerShieldPicturePath, PlayerShieldBonuses;
    Value PlayerHelmetName, PlayerHelmetPower, PlayerHelmetDurability, PlayerHelmetMaxDurability,
        PlayerHelmetPicturePath, PlayerHelmetBonuses;
    Value PlayerBootsName, PlayerBootsPower, PlayerBootsDurability, PlayerBootsMaxDurability,
        PlayerBootsPicturePath, PlayerBootsBonuses;
    Value PlayerGlovesName, PlayerGlovesPower, PlayerGlovesDurability, PlayerGlovesMaxDurability,
        PlayerGlovesPicturePath, PlayerGlovesBonuses;
    Value WeaponIsFists = true, WeaponIsSword = false, WeaponIsBow = false;

    // Carried lists, each one delimited string.
    Value EquipmentPack = "", ItemsCarried = "", SkillsKnown = "", Journal = "", Variables = "";

    // World clock and map.
    Value IsDay = true, DaysPassed = 0, CurrentLevel = "";

    // Screen flags: which keys and timers work.
    Value GameRunning = false, BattleActive = false, LevelUpActive = false;
    Value CharacterCreationActive = false, ScreenPanelOpen = false, PopupOpen = false;
};

// A field of the record by its name, and its resolver code where it has one.
struct GameField {
    const char* name;
    const char* code; // nullptr: not readable through a code
    Value GameRecord::*member;
};
const QList<GameField>& gameFields();

// Sets the fields whose new-game value is fixed (level 1, 1000 points to the
// next level, 200 gold, the default equipment and pictures, empty lists). The
// name, race and statistics are the caller's.
void SetNewGameValues(GameRecord& game);

} // namespace umbrith
