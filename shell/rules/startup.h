#pragma once

#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"

#include <functional>

namespace umbrith {

// The display mode. Switching modes is not this platform's business: the
// steps keep their flags and saved fields, and the mode stays as it is.
void ChangeDisplay(MainState& state, int width, int height, int depth);
void EnterGameDisplay(MainState& state);
void RestoreDisplay(MainState& state);

// Loads a map into play and places the player, at `location` when
// `useLocation`, else at the map's start. The world runtime provides it.
using ChangemapFunction =
    std::function<void(GameRecord& game, MainState& state, const QString& mapPath, bool useLocation, const QString& location)>;
// Until maps are loaded for real, a map counts as loaded where it stands.
void ChangemapTakesMapAsLoaded(GameRecord& game, MainState& state, const QString& mapPath, bool useLocation,
                               const QString& location);

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
