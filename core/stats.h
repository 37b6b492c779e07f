#pragma once

#include "core/gamerecord.h"

#include <QString>
#include <QStringList>

namespace umbrith {

// The figures of the player-info panel, one text per label of `plabels`.
// Strength and defence stand at 2 and 3, and the figures they drive, the
// attack range and the total defence, at 25 and 26: the four labels that
// equipment bonuses tint.
enum PlayerLabel {
    LabelName = 0, LabelRace, LabelStrength, LabelDefence,
    LabelWeapon, LabelArmour, LabelShield, LabelHelmet, LabelBoots, LabelGloves,
    LabelHP, LabelSP, LabelLevel, LabelExperience, LabelNextLevel,
    LabelWeaponDurability, LabelArmourDurability, LabelShieldDurability, LabelHelmetDurability,
    LabelBootsDurability, LabelGlovesDurability,
    LabelSkillPower, LabelSpeed, LabelAgility, LabelGold,
    LabelAttackRange, LabelTotalDefence, LabelCombatMastery, LabelDaysPassed,
};
inline constexpr int PlayerLabelCount = LabelDaysPassed + 1;

QStringList PlayerLabelTexts(const GameRecord& game);

// The combat mastery figure: the level as a percentage, with two decimals.
QString CombatMastery(const Value& level);
// The same figure read back at single precision, as the shop uses it.
float ShopLevelFactor(const Value& level);

// The widths of the three bars, in units where 2880 is a full bar. A zero
// maximum of hit points or a level of 0 is a division error, and a width
// below 0 (the experience bar after a gain of several levels) is out of
// range: both raise, and the screen keeps what it showed.
inline constexpr int FullBar = 2880;
struct BarWidths {
    int hp = 0;
    int sp = 0;
    int exp = 0;
};
BarWidths StatBarWidths(const GameRecord& game);

// Hit points below 1, by Val: half a point is dead, and so is text.
bool IsDead(const GameRecord& game);
// The character that death sends back to the intro: healed, penniless, and
// with the points to its next level counted afresh; level, statistics,
// equipment, skills and variables stay.
void ReviveAfterDeath(GameRecord& game);

// Gains a level when the points to the next one are used up and no upgrade is
// in progress: the overflow, by its absolute value, counts toward the next
// level. Returns the new level, or 0 when none was gained.
int GainLevel(GameRecord& game);
QString LevelGainedText(int level);

} // namespace umbrith
