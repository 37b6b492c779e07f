#pragma once

#include "core/character.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

namespace umbrith {

// A realm as its maker fills the creation form. One row of seven boxes serves
// both sets of statistics: the option in force says which set it shows, and
// the other set waits in its array.
struct RealmDraft {
    QString name, description;
    std::array<QString, 5> lists; // equipment, items, skills, enemies, start map
    QStringList races;
    bool raceFrameOpen = false; // a race is half entered
    QString defaultName;
    bool nameEditable = true;
    StatTexts shown;          // the row of boxes
    bool showingBase = false; // the row shows the base statistics
    std::array<int16_t, StatCount> editable{};
    std::array<double, StatCount> base{};
    bool statsEditable = false;
    QString pointsAtStart, pointsPerLevel;
};

// Switches the row of boxes to the other set: the row is kept, by Val, in the
// array of the set it showed, and filled from the array of the set shown now.
// An editable statistic beyond a 16-bit integer raises "Overflow".
void ShowStatSet(RealmDraft& draft, bool base);

// The first check of Create, before a file is asked for: "" when it passes.
QString RealmDraftProblem(const RealmDraft& draft);

// The remaining checks, in order (lists, races, statistics), and the record
// when all pass. The row of boxes is kept in the array of its set first.
struct RealmBuild {
    QString problem;
    QString record;
};
RealmBuild BuildRealmRecord(RealmDraft& draft);

} // namespace umbrith
