#include "core/character.h"

#include "core/record.h"
#include "platform/error.h"

namespace umbrith {

const char* const StatCaptions[StatCount] = {"Strength:",    "Defence:", "Hit Points:", "Skill Points:",
                                             "Skill Power:", "Speed:",   "Agility:"};

namespace {

// Elements 1 to 7 of a ":"-led group of numbers.
StatTexts statGroup(const QString& group) {
    const QStringList parts = group.split(u':');
    if (parts.size() < StatCount + 1)
        err::raise(err::SubscriptOutOfRange);
    StatTexts texts;
    for (int i = 0; i < StatCount; ++i)
        texts[i] = parts[i + 1];
    return texts;
}

double sum(const StatTexts& boxes) {
    double total = 0;
    for (const QString& box : boxes)
        total += Val(box);
    return total;
}

} // namespace

CharacterSetup RealmCharacterSetup(const Realm& realm) {
    CharacterSetup setup;
    setup.races = NonEmptyParts(realm.races, u':');
    if (setup.races.isEmpty())
        setup.races = {QStringLiteral("Human")};
    const QStringList groups = realm.statistics.split(u'\u00A3');
    if (groups.size() < 2)
        err::raise(err::SubscriptOutOfRange);
    setup.base = statGroup(groups[0]);
    setup.editable = statGroup(groups[1]);
    setup.pointsAtStart = toInt16(Value(Val(realm.pointsAtStart)));
    setup.statsEditable = realm.statsEditable == u"1";
    setup.pointsPerLevel = Val(realm.pointsPerLevel);
    setup.nameEditable = realm.nameEditable != u"0";
    setup.defaultName = realm.defaultName;
    return setup;
}

double CreationPointsLeft(int pointsAtStart, const StatTexts& boxes) { return pointsAtStart - sum(boxes); }

QString CreationPointsProblem(bool pointsShown, double pointsLeft) {
    if (!pointsShown || pointsLeft == 0)
        return QString();
    return pointsLeft < 0 ? QStringLiteral("You are using too many points!")
                          : QStringLiteral("Please use all your available points!");
}

void FillCreationDefaults(CharacterForm& form) {
    if (form.name.isEmpty())
        form.name = form.defaultName;
    if (form.race.isEmpty() && !form.races.isEmpty())
        form.race = form.races.first();
    for (QString& box : form.boxes)
        if (box.isEmpty())
            box = QStringLiteral("0");
}

void CreateCharacter(GameRecord& game, const CharacterForm& form) {
    game.PlayerName = form.name;
    game.PlayerRace = form.race;
    auto stat = [&](int i) { return Value(Val(form.base[i]) + Val(form.boxes[i])); };
    game.PlayerStrength = stat(0);
    game.PlayerDefence = stat(1);
    game.PlayerHP = game.PlayerMaxHP = stat(2);
    game.PlayerSP = game.PlayerMaxSP = stat(3);
    game.PlayerSpellpower = stat(4);
    game.PlayerSpeed = stat(5);
    game.PlayerAgility = stat(6);
    SetNewGameValues(game);
    game.CharacterCreationActive = false;
}

const std::array<Value GameRecord::*, StatCount>& UpgradeFields() {
    static const std::array<Value GameRecord::*, StatCount> fields = {
        &GameRecord::PlayerStrength, &GameRecord::PlayerDefence, &GameRecord::PlayerMaxHP, &GameRecord::PlayerMaxSP,
        &GameRecord::PlayerSpeed,    &GameRecord::PlayerAgility, &GameRecord::PlayerSpellpower,
    };
    return fields;
}

int16_t UpgradePointsLeft(double pointsPerLevel, const StatTexts& boxes) {
    return toInt16(Value(pointsPerLevel - sum(boxes)));
}

void ApplyUpgrade(GameRecord& game, const StatTexts& boxes) {
    for (int i = 0; i < StatCount; ++i) {
        Value& field = game.*UpgradeFields()[i];
        field = field.num() + Val(boxes[i]);
    }
    game.TempAttackBonus = 0;
    game.TempDefenceBonus = 0;
    game.PlayerHP = game.PlayerMaxHP;
    game.PlayerSP = game.PlayerMaxSP;
    game.LevelUpActive = false;
}

} // namespace umbrith
