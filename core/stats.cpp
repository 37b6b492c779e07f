#include "core/stats.h"

#include "platform/error.h"

#include <cmath>
#include <limits>

namespace umbrith {

namespace {

// The six slots in the order of their labels: weapon, armour, shield, helmet, boots, gloves.
struct Slot {
    Value GameRecord::*name;
    Value GameRecord::*power;
    Value GameRecord::*durability;
    Value GameRecord::*maxDurability;
};
const Slot gearSlots[6] = {
    {&GameRecord::PlayerWeaponName, &GameRecord::PlayerWeaponPower, &GameRecord::PlayerWeaponDurability,
     &GameRecord::PlayerWeaponMaxDurability},
    {&GameRecord::PlayerArmourName, &GameRecord::PlayerArmourPower, &GameRecord::PlayerArmourDurability,
     &GameRecord::PlayerArmourMaxDurability},
    {&GameRecord::PlayerShieldName, &GameRecord::PlayerShieldPower, &GameRecord::PlayerShieldDurability,
     &GameRecord::PlayerShieldMaxDurability},
    {&GameRecord::PlayerHelmetName, &GameRecord::PlayerHelmetPower, &GameRecord::PlayerHelmetDurability,
     &GameRecord::PlayerHelmetMaxDurability},
    {&GameRecord::PlayerBootsName, &GameRecord::PlayerBootsPower, &GameRecord::PlayerBootsDurability,
     &GameRecord::PlayerBootsMaxDurability},
    {&GameRecord::PlayerGlovesName, &GameRecord::PlayerGlovesPower, &GameRecord::PlayerGlovesDurability,
     &GameRecord::PlayerGlovesMaxDurability},
};

QString gearText(const Value& name, const Value& power, const char* what) {
    if (name.text() == u"None")
        return name.text();
    return name.text() + QLatin1String(what) + power.text();
}

QString pair(const Value& current, const Value& maximum, const char* between) {
    return current.text() + QLatin1String(between) + maximum.text();
}

// The damage range of a hit by the player, as the battle rolls it, before the roll.
std::pair<double, double> attackRange(const GameRecord& g) {
    const double s = g.PlayerStrength.num(), w = g.PlayerWeaponPower.num(), t = g.TempAttackBonus.num();
    const double base = w + t + s;
    const double spread = (t + w) + s * 0.1;
    const double bonus = Int(base * (g.PlayerLevel.num() * 0.01));
    return {base - spread + bonus, base + spread + bonus};
}

int barWidth(double width) {
    if (!(width >= 0 && width <= std::numeric_limits<int>::max()))
        err::raise(err::InvalidPropertyValue);
    return int(width);
}

double divided(double numerator, double denominator) {
    if (denominator == 0)
        err::raise(err::DivisionByZero);
    return numerator / denominator;
}

} // namespace

QStringList PlayerLabelTexts(const GameRecord& g) {
    QStringList t(PlayerLabelCount);
    t[LabelName] = g.PlayerName.text();
    t[LabelRace] = g.PlayerRace.text();
    t[LabelStrength] = g.PlayerStrength.text();
    t[LabelDefence] = g.PlayerDefence.text();
    t[LabelHP] = pair(g.PlayerHP, g.PlayerMaxHP, " / ");
    t[LabelSP] = pair(g.PlayerSP, g.PlayerMaxSP, " / ");
    t[LabelLevel] = g.PlayerLevel.text();
    t[LabelExperience] = g.PlayerExperience.text();
    t[LabelNextLevel] = g.PlayerNextLevelExp.text();
    for (int i = 0; i < 6; ++i) {
        const Slot& slot = gearSlots[i];
        t[LabelWeapon + i] = gearText(g.*slot.name, g.*slot.power, i == 0 ? " Damage: " : " Protection: ");
        t[LabelWeaponDurability + i] = pair(g.*slot.durability, g.*slot.maxDurability, "/");
    }
    t[LabelSkillPower] = g.PlayerSpellpower.text();
    t[LabelSpeed] = g.PlayerSpeed.text();
    t[LabelAgility] = g.PlayerAgility.text();
    t[LabelGold] = g.PlayerGold.text();
    const auto [low, high] = attackRange(g);
    t[LabelAttackRange] = Format(low, QStringLiteral("0")) + QStringLiteral(" To ") + Format(high, QStringLiteral("0"));
    double protection = g.PlayerDefence.num();
    for (int i = 1; i < 6; ++i)
        protection += (g.*gearSlots[i].power).num();
    t[LabelTotalDefence] = Format(protection, QStringLiteral("0"));
    t[LabelCombatMastery] = CombatMastery(g.PlayerLevel) + QStringLiteral(" %");
    t[LabelDaysPassed] = g.DaysPassed.text();
    return t;
}

QString CombatMastery(const Value& level) { return Format(level.num() * 0.01 * 100, QStringLiteral("0.00")); }

float ShopLevelFactor(const Value& level) { return float(Val(CombatMastery(level))); }

BarWidths StatBarWidths(const GameRecord& g) {
    BarWidths bars;
    bars.hp = barWidth(Int(g.PlayerHP.num() * divided(FullBar, g.PlayerMaxHP.num())));
    const double maxSP = g.PlayerMaxSP.num();
    bars.sp = barWidth(Int(g.PlayerSP.num() * (maxSP == 0 ? FullBar : FullBar / maxSP)));
    bars.exp = barWidth(Int(g.PlayerNextLevelExp.num() * divided(FullBar, 1000 * g.PlayerLevel.num())));
    return bars;
}

bool IsDead(const GameRecord& game) { return game.PlayerHP.num() < 1; }

void ReviveAfterDeath(GameRecord& game) {
    game.PlayerHP = game.PlayerMaxHP;
    game.PlayerSP = game.PlayerMaxSP;
    game.PlayerGold = 0;
    game.PlayerNextLevelExp = 1000 * game.PlayerLevel.num();
}

int GainLevel(GameRecord& game) {
    if (game.PlayerNextLevelExp.num() > 0 || isTrue(game.LevelUpActive))
        return 0;
    const double overflow = std::fabs(game.PlayerNextLevelExp.num());
    const double level = game.PlayerLevel.num() + 1;
    game.PlayerNextLevelExp = 1000 * level - overflow;
    game.PlayerLevel = level;
    game.LevelUpActive = true;
    return int(level);
}

QString LevelGainedText(int level) {
    return QStringLiteral("You gained a level! You are now at level %1!").arg(level);
}

} // namespace umbrith
