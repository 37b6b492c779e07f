#pragma once

#include "core/gamerecord.h"
#include "core/realm.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

namespace umbrith {

// Seven statistics everywhere a realm or the New Character form names them:
// strength, defence, hit points, skill points, skill power, speed, agility.
inline constexpr int StatCount = 7;
using StatTexts = std::array<QString, StatCount>;
// Their captions on the forms, "Strength:" to "Agility:".
extern const char* const StatCaptions[StatCount];

// What the New Character form shows for a realm.
struct CharacterSetup {
    QStringList races{QStringLiteral("Human")}; // never empty: "Human" when the realm names none
    bool statsEditable = false; // the points label shows and the boxes are open
    StatTexts base;             // the race's or realm's base, beside each box
    StatTexts editable;         // the start values put into the boxes
    int16_t pointsAtStart = 0;
    double pointsPerLevel = 0;
    bool nameEditable = true;
    QString defaultName;
};

// The setup of a realm record's fields 3 to 9. A statistics field of fewer
// than seven numbers in a group raises "Subscript out of range", and points
// at start beyond a 16-bit integer "Overflow".
CharacterSetup RealmCharacterSetup(const Realm& realm);

// The points still to spend: the realm's points less the sum of the boxes, by Val.
double CreationPointsLeft(int pointsAtStart, const StatTexts& boxes);

// The refusal of Create for the points left, or "" when it may go on; with
// the points label hidden (fixed statistics) anything passes.
QString CreationPointsProblem(bool pointsShown, double pointsLeft);

// The New Character form as Create reads it.
struct CharacterForm {
    QString name;
    QString race;
    QStringList races;
    QString defaultName;
    StatTexts base;
    StatTexts boxes;
};

// The defaults of an incomplete form: the default name for an empty name,
// the first race for an empty race, "0" for an empty box.
void FillCreationDefaults(CharacterForm& form);

// A new character from the form: name, race, base plus points for each
// statistic, and the fixed new-game values (level 1, 200 gold, the default
// equipment, empty lists). Leaves character creation.
void CreateCharacter(GameRecord& game, const CharacterForm& form);

// The record fields behind the boxes of the Upgrade Character form, in its own
// order: strength, defence, max HP, max SP, speed, agility, skill power.
const std::array<Value GameRecord::*, StatCount>& UpgradeFields();

// The points of a level still to spend, as a 16-bit integer; beyond one it
// raises "Overflow".
int16_t UpgradePointsLeft(double pointsPerLevel, const StatTexts& boxes);

// Adds the boxes to the statistics, drops the one-hit bonuses and heals fully.
void ApplyUpgrade(GameRecord& game, const StatTexts& boxes);

} // namespace umbrith
