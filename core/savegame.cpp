#include "core/savegame.h"

#include "platform/error.h"

#include <array>

namespace umbrith {

namespace {

constexpr QChar kBlockSeparator = u'\u00A5'; // "¥"

// The figures of the player block in their order; positions 14 and 15 are
// reserved and stay empty, 47 to 49 are the extras. The durabilities and the
// maximum durabilities run in two different slot orders, and stay so.
constexpr std::array<Value GameRecord::*, 47> kBlock = {
    &GameRecord::PlayerHP, // 0
    &GameRecord::PlayerMaxHP, // 1
    &GameRecord::PlayerSP, // 2
    &GameRecord::PlayerMaxSP, // 3
    &GameRecord::PlayerGold, // 4
    &GameRecord::PlayerExperience, // 5
    &GameRecord::PlayerLevel, // 6
    &GameRecord::PlayerStrength, // 7
    &GameRecord::PlayerDefence, // 8
    &GameRecord::PlayerArmourPower, // 9
    &GameRecord::PlayerWeaponPower, // 10
    &GameRecord::PlayerWeaponName, // 11
    &GameRecord::PlayerArmourName, // 12
    &GameRecord::PlayerName, // 13
    nullptr, // 14
    nullptr, // 15
    &GameRecord::PlayerRace, // 16
    &GameRecord::PlayerAgility, // 17
    &GameRecord::PlayerSpeed, // 18
    &GameRecord::PlayerSpellpower, // 19
    &GameRecord::PlayerShieldPower, // 20
    &GameRecord::PlayerHelmetPower, // 21
    &GameRecord::PlayerBootsPower, // 22
    &GameRecord::PlayerGlovesPower, // 23
    &GameRecord::PlayerWeaponDurability, // 24
    &GameRecord::PlayerArmourDurability, // 25
    &GameRecord::PlayerShieldDurability, // 26
    &GameRecord::PlayerBootsDurability, // 27
    &GameRecord::PlayerGlovesDurability, // 28
    &GameRecord::PlayerHelmetDurability, // 29
    &GameRecord::PlayerWeaponMaxDurability, // 30
    &GameRecord::PlayerArmourMaxDurability, // 31
    &GameRecord::PlayerShieldMaxDurability, // 32
    &GameRecord::PlayerHelmetMaxDurability, // 33
    &GameRecord::PlayerBootsMaxDurability, // 34
    &GameRecord::PlayerGlovesMaxDurability, // 35
    &GameRecord::PlayerShieldName, // 36
    &GameRecord::PlayerHelmetName, // 37
    &GameRecord::PlayerGlovesName, // 38
    &GameRecord::PlayerBootsName, // 39
    &GameRecord::PlayerNextLevelExp, // 40
    &GameRecord::PlayerArmourPicturePath, // 41
    &GameRecord::PlayerHelmetPicturePath, // 42
    &GameRecord::PlayerBootsPicturePath, // 43
    &GameRecord::PlayerGlovesPicturePath, // 44
    &GameRecord::PlayerShieldPicturePath, // 45
    &GameRecord::PlayerWeaponPicturePath, // 46
};

// The six bonus strings in the order a save keeps them.
constexpr std::array<Value GameRecord::*, 6> kBonuses = {
    &GameRecord::PlayerWeaponBonuses, &GameRecord::PlayerArmourBonuses, &GameRecord::PlayerShieldBonuses,
    &GameRecord::PlayerHelmetBonuses, &GameRecord::PlayerGlovesBonuses, &GameRecord::PlayerBootsBonuses};

constexpr int kFirstHalf = 40; // positions 0 to 39 go into field 1

} // namespace

QList<Value> SaveGameFields(const GameRecord& game, const SaveExtras& extras) {
    QStringList block;
    for (Value GameRecord::*member : kBlock)
        block << (member ? (game.*member).text() : QString());
    block << extras.heldEntries << extras.position << extras.mapPath;
    const QString first = block.mid(0, kFirstHalf).join(kBlockSeparator);
    const QString second = kBlockSeparator + block.mid(kFirstHalf).join(kBlockSeparator);
    QStringList bonuses;
    for (Value GameRecord::*member : kBonuses)
        bonuses << (game.*member).text();
    return {first,
            game.Variables.text(),
            game.WeaponIsSword,
            game.WeaponIsFists,
            game.WeaponIsBow,
            game.EquipmentPack.text(),
            game.SkillsKnown.text(),
            bonuses.join(u'*'),
            game.IsDay,
            game.DaysPassed,
            game.ItemsCarried.text(),
            game.PlayerUsesImage,
            game.PlayerImage.text(),
            game.PlayerSprite,
            second,
            extras.animationRunning,
            game.Journal.text()};
}

SavedParts ReadSaveGame(RecordReader& reader, GameRecord& game) {
    SavedParts parts;
    parts.playerBlock = reader.nextText();
    parts.variables = reader.nextText();
    game.WeaponIsSword = reader.next();
    game.WeaponIsFists = reader.next();
    game.WeaponIsBow = reader.next();
    game.EquipmentPack = reader.next();
    game.SkillsKnown = reader.next();
    parts.bonuses = reader.nextText();
    game.IsDay = reader.next();
    game.DaysPassed = reader.next();
    game.ItemsCarried = reader.next();
    game.PlayerUsesImage = reader.next();
    game.PlayerImage = reader.next();
    game.PlayerSprite = reader.next();
    parts.playerBlock += reader.nextText();
    // A 16-bit true/false slot: text that is no number cannot go there.
    parts.animationRunning = Value(isTrue(reader.next()));
    game.Journal = reader.next();
    return parts;
}

SaveExtras ApplyPlayerBlock(GameRecord& game, const SavedParts& parts) {
    const QStringList bonuses = parts.bonuses.split(u'*');
    const QStringList block = parts.playerBlock.split(kBlockSeparator);
    if (bonuses.size() < qsizetype(kBonuses.size()) || block.size() < PlayerBlockSize)
        err::raise(err::SubscriptOutOfRange);
    for (size_t i = 0; i < kBonuses.size(); ++i)
        game.*kBonuses[i] = bonuses[qsizetype(i)];
    for (size_t i = 0; i < kBlock.size(); ++i)
        if (kBlock[i])
            game.*kBlock[i] = block[qsizetype(i)];
    return {block[47], block[48], block[49], parts.animationRunning};
}

} // namespace umbrith
