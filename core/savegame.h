#pragma once

#include "core/gamerecord.h"
#include "core/record.h"

#include <QList>
#include <QString>

namespace umbrith {

// A saved game (.ubs): one record of 17 fields. The player's fifty figures
// travel in one "¥"-joined block split over fields 1 and 15, because one text
// of all fifty grew too long for a single concatenation.
inline constexpr int SaveFieldCount = 17;
inline constexpr int PlayerBlockSize = 50;

// What the save holds beside the record: the map's remembered tiles, where
// the player stands ("x;y") and which map he is on.
struct SaveExtras {
    QString heldEntries;
    QString position;
    QString mapPath;
    Value animationRunning = false;
};

// The 17 fields of a save of `game`.
QList<Value> SaveGameFields(const GameRecord& game, const SaveExtras& extras);

// The parts of a save that are not set as they are read.
struct SavedParts {
    QString playerBlock;   // fields 1 and 15 joined
    QString bonuses;       // field 8
    QString variables;     // field 2, set last of all
    Value animationRunning;
};

// Reads the 17 fields. The fields that go straight into the state are set as
// they are read, so a save that breaks off halfway leaves a mix of the old
// game and the new one; a read error is raised to the caller.
SavedParts ReadSaveGame(RecordReader& reader, GameRecord& game);

// Sets the player's figures, names, pictures and the six bonus strings from
// the block; fills the extras from positions 47 to 49. A block of fewer than
// fifty positions raises "Subscript out of range".
SaveExtras ApplyPlayerBlock(GameRecord& game, const SavedParts& parts);

} // namespace umbrith
