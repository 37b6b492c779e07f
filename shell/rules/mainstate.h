#pragma once

#include "shell/rules/messages.h"
#include "world/worldstate.h"

#include <QString>
#include <cstdint>

namespace umbrith {

// What Main keeps beside the shared game record, apart from its controls.
struct MainState {
    int introIndex = 1; // the next intro line to show
    QString CurrentMusic; // the map's piece, looped while set
    bool GameLoaded = false;
    // The new-game panel: the realm records listed, the one chosen, and the
    // points that realm gives at creation and at each level.
    QString realmCatalogue;
    QString SelectedRealm;
    int16_t PointsAtStart = 0;
    double PointsPerLevel = 0;
    // The level's share in the shop's prices, kept by the stats update.
    float ShopLevelFactor = 0;
    int SavedScreenWidth = 0, SavedScreenHeight = 0, SavedScreenDepth = 0;
    bool DisplayModeChanged = false;
    MessageState message;
    // The running map and the player on it.
    WorldState world;
};

} // namespace umbrith
