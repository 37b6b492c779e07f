// Main's world on screen: the picture of the map, the world's timers, and
// the keys that walk the player.
#include "core/misc.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/mainform.h"
#include "world/changemap.h"
#include "world/leveldraw.h"
#include "world/movement.h"
#include "world/npcmovement.h"
#include "world/worldclock.h"

#include <QLabel>
#include <QPixmap>

namespace umbrith {

void Main::buildWorld() {
    // Covers the map with its last picture while a map change works behind it.
    framecapture_ = new QLabel(centralWidget());
    framecapture_->setObjectName(QStringLiteral("framecapture"));
    framecapture_->setGeometry(background_->geometry());
    framecapture_->hide();
    scene_ = Surface(ViewWidth, ViewHeight);

    Clock& clock = platform().clock;
    // Battles and panels freeze the animation where it stands.
    worldTimers_.AniTimer = clock.createTimer(QStringLiteral("AniTimer"), 200, [this] {
        if (isTrue(game_.BattleActive) || isTrue(game_.ScreenPanelOpen))
            return;
        StepWalkFrame(state_.world);
        UpdateLevel(0, 0);
    });
    worldTimers_.NPCWander = clock.createTimer(QStringLiteral("NPCWander"), 300, [this] {
        platform().clock.yield();
        if (NPCsMayWalk(game_, state_.world, state_.message.EventPaused))
            NPCWanderTick(game_, state_.world, *this);
    });
    // The clock of the realm runs on through messages and panels; the next
    // redraw shows the night.
    worldTimers_.daynight = clock.createTimer(QStringLiteral("daynight"), 60000, [this] { TickDayClock(game_, state_.world); });
}

void Main::setWorldTimers(bool on) {
    worldTimers_.AniTimer->setEnabled(on);
    worldTimers_.NPCWander->setEnabled(on);
    worldTimers_.daynight->setEnabled(on);
}

// The start of a game forgets the map that ran before, so the start map
// always loads from its file, and the game's first day is a whole one.
void Main::prepareWorldForGame() {
    worldTimers_.NPCWander->setEnabled(false);
    worldTimers_.daynight->setEnabled(false);
    state_.world.CurrentMapPath.clear();
    state_.world.DayTicks = 0;
    ResetMap(state_.world);
}

void Main::UpdateLevel(double dx, double dy) {
    if (!ComposeLevel(scene_, game_, state_.world, dx, dy))
        return;
    background_->setPixmap(QPixmap::fromImage(scene_.image()));
    platform().clock.yield();
}

// The event engine's entrance. Until events run, a call only records its
// circumstances, as every call does first.
void Main::CheckEvents(const Value& entering, const Value& x, const Value& y, const QString&) {
    state_.world.LastCheckEntering = entering;
    state_.world.LastCheckX = x;
    state_.world.LastCheckY = y;
}

void Main::PauseEvents() { state_.message.EventPaused = true; }

// An arrow rolls for an encounter first, on every press, then turns the
// player and steps. A roll that brings a battle ends the press.
bool Main::arrowKey(int key) {
    if (!isTrue(game_.GameRunning) || isTrue(game_.ScreenPanelOpen) || state_.world.ControlsDisabled ||
        isTrue(game_.BattleActive))
        return false;
    if (CheckFight(game_, state_.world))
        return true;
    const int code = key == Qt::Key_Left ? KeyLeft : key == Qt::Key_Up ? KeyUp : key == Qt::Key_Right ? KeyRight : umbrith::KeyDown;
    game_.PlayerFacing = FacingOfKey(code);
    game_.PlayerSprite = FacingOfKey(code);
    MoveChar(game_, state_.world, *this, code);
    return true;
}

void Main::groundKey() {
    if (!isTrue(game_.GameRunning) || isTrue(game_.ScreenPanelOpen))
        return;
    MarkGroundPilesSeen(game_, state_.world);
    UpdateLevel(0, 0);
}

} // namespace umbrith
