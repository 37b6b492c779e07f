#pragma once

#include "core/gamerecord.h"
#include "core/savegame.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "world/worldstate.h"

namespace umbrith {

// The steps of saving and loading a character that touch only the game
// record and the world; Main's SaveGame and OpenGame wrap them in the dialog,
// the timers and the screen.

// The file dialog of a save or a load under `title`: the "\saves" folder and
// the save files' filter.
FileDialogSettings SaveFileDialog(const QString& title);

// The name of the chosen file without its folder, as the error texts show it.
QString FileTitle(const QString& path);

// What the save of the running map holds beside the record: the followers,
// the player's tile from his drawing position, the map's path.
SaveExtras SaveExtrasOf(const WorldState& world);

// Writes the save of `game` on the running map to `path`. The map's file is
// read first, so a map that has gone ends the save before anything is
// written; the file is replaced whole, never left half-written.
void WriteSavedGame(const QString& path, const GameRecord& game, const WorldState& world);

// Reads a save's 17 fields (those that go straight into the record are set as
// read) and, for a player drawn from a picture of his own, loads it.
SavedParts ReadSavedGame(const QString& path, GameRecord& game, Textures& textures);

// Forgets the running map, so that the next Changemap loads the save's map
// from its file even when it is the same one.
void ForgetMapForLoad(GameRecord& game, WorldState& world);

// Puts the rest of a save in force: the bonuses and the player block, the
// followers to place, the player's tile and drawing position, the paper
// doll (a shield or weapon with no picture path keeps the picture it had),
// and the variables last. Returns the map and place to enter.
SaveExtras ApplySavedGame(GameRecord& game, WorldState& world, const SavedParts& parts);

// The popup text of a load that failed.
QString OpenGameErrorText(const QString& fileTitle, const RuntimeError& error);

} // namespace umbrith
