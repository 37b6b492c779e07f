// Main's map change: the steps around the world's table building that touch
// the screen, the timers, the music and the messages.
#include "core/misc.h"
#include "platform/error.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "shell/mainform.h"
#include "world/changemap.h"
#include "world/leveldraw.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>

namespace umbrith {

void Main::Changemap(QString mapPath, bool useLocation, QString location) {
    WorldState& world = state_.world;
    const QString path = mapPath.trimmed();
    if (path == world.CurrentMapPath) {
        // The same map: the player only moves, and the NPCs keep their places.
        try {
            PlacePlayer(game_, world, useLocation, location);
        } catch (const RuntimeError& error) {
            ShowPopup(MapLoadErrorText(path, error), QStringLiteral("Umbrith"));
        }
        UpdateLevel(0, 0);
        worldTimers_.AniTimer->setEnabled(true);
        worldTimers_.NPCWander->setEnabled(true);
        framecapture_->hide();
        return;
    }
    if (!fileExists(AppPath() + path)) {
        ShowPopup(QStringLiteral("The map file: ") + path +
                      QStringLiteral(" is not in its proper folder or it is missing!"),
                  QStringLiteral("Map Missing"));
        return;
    }
    try {
        loadMap(path, useLocation, location);
    } catch (const RuntimeError& error) {
        framecapture_->hide();
        ShowPopup(MapLoadErrorText(path, error), QStringLiteral("Umbrith"));
    }
}

// Another map, step by step; a failing step leaves the tables as far as they got.
void Main::loadMap(const QString& path, bool useLocation, const QString& location) {
    WorldState& world = state_.world;
    framecapture_->setPixmap(background_->pixmap());
    framecapture_->show();
    framecapture_->raise();
    scene_.fill(qRgb(0, 0, 0));

    CollectFollowers(world);
    worldTimers_.NPCWander->setEnabled(false);
    clearPendingMessage();
    state_.message.EventPaused = false;
    world.NPCRebuild.clear();
    world.MovableNPCs.clear();
    world.GroundItemsText.clear();
    world.LevelMusicPath.clear();

    game_.CurrentLevel = LevelName(path);
    world.CurrentMapPath = path;
    ResetMap(world);
    if (!fileExists(AppPath() + path)) {
        framecapture_->hide();
        ShowPopup(QStringLiteral("The map file: ") + game_.CurrentLevel.text() + QStringLiteral(" is not in its proper folder!"),
                  QStringLiteral("Map Missing"));
        return;
    }

    const MapFile map = ReadMapFile(AppPath() + path);
    TakeMapScalars(world, map);
    LoadMapGrid(world, map);
    LoadMapNPCs(world, world.FollowerNPCs.isEmpty() ? map.npcs : FilterFollowerDuplicates(map.npcs, world.FollowerNPCs));
    LoadTileEvents(world, map.events);
    LoadMapEnemies(world, map.enemies);
    // The sheet is read at every map change, even when the tileset stays.
    UpdateTilesetCore(world.tileset, world.TilesetName.trimmed());
    worldTimers_.daynight->setEnabled(true);
    LoadNightPicture(world.textures);
    LoadGroundPiles(game_, world, map.groundItems);
    world.StartLocation = map.startLocation;
    PlacePlayer(game_, world, useLocation, location);
    PlaceFollowers(game_, world, world.LevelWidth, world.LevelHeight);

    introframe_->hide();
    world.EnterMessagePending = 0;
    LoadScreenWarps(world, map.screenWarps);
    action("mnuMainSave")->setEnabled(true);
    LoadSpecials(world, map.specials);
    if (!isTrue(game_.PlayerUsesImage))
        UpdateCharacterPic(world.textures);
    playLevelMusic();
    UpdateStats();
    worldTimers_.AniTimer->setEnabled(true);
    worldTimers_.NPCWander->setEnabled(true);
    world.LevelWidth -= 1;
    world.LevelHeight -= 1;
    framecapture_->hide();

    if (world.EnterMessagePending == 1) {
        StartMessage(world.MessageSource.at(-1, -1), world.MessageText.at(-1, -1));
        PauseEvents();
    } else {
        clearPendingMessage();
    }
    CheckEvents(true, game_.PlayerX, game_.PlayerY, world.TileEvents.at(-1, -1));
}

void Main::clearPendingMessage() {
    state_.message.MessageSetup.clear();
    state_.message.MessageBuffer.clear();
    state_.message.MessagePos = 0;
}

// The level's piece starts only when it differs from the one playing; a
// piece that can't be played is skipped in silence.
void Main::playLevelMusic() {
    const QString piece = state_.world.LevelMusicPath;
    if (piece.isEmpty() || piece == state_.CurrentMusic)
        return;
    Sequencer& ubmid = platform().audio.sequencer(QStringLiteral("ubmid"));
    try {
        ubmid.command(QStringLiteral("Close"));
        ubmid.fileName = AppPath() + piece;
        if (chkMusic_->isChecked()) {
            ubmid.command(QStringLiteral("Open"));
            ubmid.command(QStringLiteral("Play"));
        }
    } catch (const RuntimeError&) {
    }
    state_.CurrentMusic = piece;
}

} // namespace umbrith
