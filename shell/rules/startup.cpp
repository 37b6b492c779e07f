#include "shell/rules/startup.h"

#include "core/misc.h"
#include "core/realm.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace umbrith {

void ChangeDisplay(MainState& state, int, int, int) {
    const DisplayMode mode = platform().display.current();
    if (state.SavedScreenDepth == 0) {
        state.SavedScreenWidth = mode.width;
        state.SavedScreenHeight = mode.height;
        state.SavedScreenDepth = mode.depth;
    }
}

void EnterGameDisplay(MainState& state) {
    state.SavedScreenDepth = 0;
    const DisplayMode mode = platform().display.current();
    if (mode.width == 800 && mode.height == 600 && mode.depth == 16) {
        state.DisplayModeChanged = false;
        return;
    }
    ChangeDisplay(state, 800, 600, 16);
    state.DisplayModeChanged = true;
}

void RestoreDisplay(MainState& state) {
    if (state.DisplayModeChanged)
        ChangeDisplay(state, state.SavedScreenWidth, state.SavedScreenHeight, state.SavedScreenDepth);
}

void SetTesterValues(GameRecord& game) {
    SetNewGameValues(game);
    game.PlayerName = "Tester";
    game.PlayerRace = "Human";
    for (Value GameRecord::*stat : {&GameRecord::PlayerStrength, &GameRecord::PlayerDefence, &GameRecord::PlayerHP,
                                    &GameRecord::PlayerMaxHP, &GameRecord::PlayerSP, &GameRecord::PlayerMaxSP,
                                    &GameRecord::PlayerSpellpower, &GameRecord::PlayerSpeed, &GameRecord::PlayerAgility})
        game.*stat = 1;
    game.PlayerGold = 0;
    game.PlayerNextLevelExp = 1000;
    game.PlayerLevel = 1;
    game.PlayerExperience = 0;
}

QString PlayGameStartMap(int mode) {
    if (mode == 1) {
        SetDefaultListFiles();
        const QString chosen = DialogOpenFile(QStringLiteral("Play Custom Level"), QString(), AppPath() + QStringLiteral("\\maps"),
                                              QStringLiteral("Umbrith Maps (*.ubm)|*.ubm"),
                                              QStringLiteral("There was an error loading a map!"));
        if (chosen.isEmpty())
            return QString();
        ListFiles[StartMapFile] = chosen.section(u'^', 0, 0).mid(AppPath().size());
    }
    const QString map = ListFiles[StartMapFile];
    if (map.isEmpty() || !fileExists(AppPath() + map)) {
        platform().dialogs.message(QStringLiteral("Have you downloaded all the map files required for this realm? This one "
                                                  "is missing or misplaced: ") + map,
                                   QStringLiteral("Map Error"), Buttons::Ok, Icon::None);
        return QString();
    }
    return map;
}

void LeaveGame(GameRecord& game, MainState& state) {
    state.GameLoaded = false;
    game.PlayerHP = game.PlayerMaxHP;
    game.PlayerSP = game.PlayerMaxSP;
    game.PlayerNextLevelExp = 1000 * game.PlayerLevel.num();
    game.ItemsCarried = "";
    game.Journal = "";
    game.GameRunning = false;
    state.CurrentMusic.clear();
    ResetMap(state.world);
    state.world.CurrentMapPath.clear();
    game.CurrentLevel = "";
    game.ScreenPanelOpen = true;
}

} // namespace umbrith
