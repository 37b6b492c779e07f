#pragma once

#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"


namespace umbrith {

// The display mode. Switching modes is not this platform's business: the
// steps keep their flags and saved fields, and the mode stays as it is.
void ChangeDisplay(MainState& state, int width, int height, int depth);
void EnterGameDisplay(MainState& state);
void RestoreDisplay(MainState& state);

// The throw-away character of "Play Custom Levels".
void SetTesterValues(GameRecord& game);

// The first steps of starting a map: mode 1 asks for a single map and plays
// it with the default lists; mode 2 plays the start map of the realm chosen,
// whose lists are already in ListFiles. Returns the start map's stored path, or "" when
// the player cancelled or the map is missing (after "Map Error").
QString PlayGameStartMap(int mode);

// Leaving a running game for the editor: the character is healed, its items
// and journal dropped, and the map forgotten.
void LeaveGame(GameRecord& game, MainState& state);

} // namespace umbrith
