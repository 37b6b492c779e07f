#pragma once

#include "shell/rules/messages.h"
#include "world/worldstate.h"

#include <QString>
#include <array>

namespace umbrith {

// What Main keeps beside the shared game record, apart from its controls.
struct MainState {
    int introIndex = 1; // the next intro line to show
    QString CurrentMusic; // the map's piece, looped while set
    bool GameLoaded = false;
    // Equipment, item, skill and enemy lists in force, and the start map.
    std::array<QString, 5> ListFiles;
    int SavedScreenWidth = 0, SavedScreenHeight = 0, SavedScreenDepth = 0;
    bool DisplayModeChanged = false;
    MessageState message;
    // The running map and the player on it.
    WorldState world;
};

} // namespace umbrith
