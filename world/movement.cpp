#include "world/movement.h"

#include "core/misc.h"
#include "core/record.h"
#include "core/resolvecode.h"
#include "events/eventfile.h"
#include "events/eventrecord.h"
#include "platform/error.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "world/changemap.h"
#include "world/mapfile.h"
#include "world/tileset.h"

namespace umbrith {

namespace {

void RecomputePlayerTile(GameRecord& game, const WorldState& world) {
    game.PlayerX = Int(world.PlayerTwipX / TileTwips);
    game.PlayerY = Int(world.PlayerTwipY / TileTwips);
}

// The special and the events of a touched cell. False when the touch changed
// the map, so that the rest of the step is left out.
bool Touch(WorldState& world, WorldScreen& screen, int x, int y) {
    CheckSpecialTiles(world, screen, x, y);
    if (!world.MapChanged)
        screen.CheckEvents(false, x, y, world.TileEvents.at(x, y));
    if (world.MapChanged) {
        world.MapChanged = false;
        return false;
    }
    return true;
}

// The step onto or against the cell ahead.
void StepInto(WorldState& world, WorldScreen& screen, int x, int y, double dx, double dy) {
    const double p = PassValue(world.MapPass.at(x, y));
    const QString& npc = world.NPCAt.at(x, y);
    const bool visibleNpc = !npc.isEmpty() && npc.split(u':').value(NpcVisible) == u"1";
    if (p == 1 && !visibleNpc)
        screen.UpdateLevel(dx, dy);
    else if (p == 1 || p == 2)
        screen.UpdateLevel(0, 0);
    else
        return;
    if (Touch(world, screen, x, y) && visibleNpc)
        CheckNPCs(world, screen, x, y);
}

// The warp at a screen edge, keeping the coordinate along the edge. For the
// top and left edges the target's size is read first.
void ScreenWarp(const GameRecord& game, WorldState& world, WorldScreen& screen, int keyCode, const QString& target) {
    QString location;
    try {
        const QString x = game.PlayerX.text(), y = game.PlayerY.text();
        if (keyCode == KeyDown) {
            location = x + QStringLiteral(";0");
        } else if (keyCode == KeyRight) {
            location = QStringLiteral("0;") + y;
        } else {
            const MapFile head = ReadMapHead(AppPath() + target.trimmed());
            world.TilesetName = head.tileset;
            world.LevelMusicPath = head.music;
            location = keyCode == KeyUp ? x + u';' + numberText(head.height.num() - 1)
                                        : numberText(head.width.num() - 1) + u';' + y;
        }
    } catch (const RuntimeError& error) {
        // A missing target gets Changemap's own words; a damaged one its load error.
        if (fileExists(AppPath() + target.trimmed()))
            screen.ShowPopup(MapLoadErrorText(target.trimmed(), error), QStringLiteral("Umbrith"));
        else
            screen.Changemap(target, true, QStringLiteral("0;0"));
        return;
    }
    screen.Changemap(target, true, location);
}

} // namespace

int FacingOfKey(int keyCode) {
    switch (keyCode) {
    case KeyUp: return 1;
    case KeyLeft: return 2;
    case KeyRight: return 3;
    default: return 0;
    }
}

void MoveChar(GameRecord& game, WorldState& world, WorldScreen& screen, int keyCode) {
    world.MapChanged = false;
    RecomputePlayerTile(game, world);
    const int x = int(game.PlayerX.num()), y = int(game.PlayerY.num());
    struct Step {
        int key;
        int dx, dy;
        bool open;
        const QString* edgeWarp;
    };
    const Step steps[] = {
        {KeyUp, 0, -1, y >= 1, &world.ScreenWarpTop},
        {KeyDown, 0, 1, y < world.LevelHeight, &world.ScreenWarpBottom},
        {KeyLeft, -1, 0, x >= 1, &world.ScreenWarpLeft},
        {KeyRight, 1, 0, x < world.LevelWidth, &world.ScreenWarpRight},
    };
    for (const Step& step : steps) {
        if (step.key != keyCode)
            continue;
        if (!step.open) {
            if (step.edgeWarp->isEmpty())
                screen.UpdateLevel(0, 0);
            else if (!world.SpecialWalk)
                ScreenWarp(game, world, screen, keyCode, *step.edgeWarp);
        } else if (world.SpecialWalk) {
            screen.UpdateLevel(step.dx * TileTwips, step.dy * TileTwips);
        } else {
            StepInto(world, screen, x + step.dx, y + step.dy, step.dx * TileTwips, step.dy * TileTwips);
        }
    }
    RecomputePlayerTile(game, world);
}

void CheckSpecialTiles(WorldState& world, WorldScreen& screen, int x, int y) {
    const QString& kind = world.SpecialKind.at(x, y);
    if (kind == u"1") {
        screen.StartMessage(world.MessageSource.at(x, y), world.MessageText.at(x, y));
        screen.PauseEvents();
    } else if (kind == u"2") {
        world.MapChanged = true;
        screen.Changemap(world.WarpTargetMap.at(x, y), true, world.WarpTargetLocation.at(x, y));
    }
}

void CheckNPCs(WorldState& world, WorldScreen& screen, int x, int y) {
    const QString npc = world.NPCAt.at(x, y);
    if (npc.isEmpty())
        return;
    QString path;
    try {
        const QStringList fields = npc.split(u':');
        if (fields.size() <= NpcEventPath)
            err::raise(err::SubscriptOutOfRange);
        if (fields[NpcEventPath].isEmpty())
            return;
        const QString& callEvents = world.TileEvents.at(-2, -2);
        QString events;
        for (const QString& reference : fields[NpcEventPath].split(u',')) {
            if (reference.isEmpty())
                continue;
            path = reference;
            std::optional<QString> event = FindCallEvent(callEvents, reference, NameMatch::Trimmed);
            if (!event) {
                const QString file = AppPath() + TrimBlanks(reference);
                if (!fileExists(file)) {
                    screen.ShowPopup(QStringLiteral("The path: ") + reference + QStringLiteral(" is missing!"),
                                     QStringLiteral("NPC Error"));
                    return;
                }
                event = LoadEventFile(file);
            }
            events = AppendEvent(events, *event);
        }
        screen.CheckEvents(false, QStringLiteral("Item"), QStringLiteral("Item"), events);
    } catch (const RuntimeError&) {
        screen.ShowPopup(QStringLiteral("There was an error calling the event: ") + path, QStringLiteral("NPC Error"));
    }
}

bool CheckFight(const GameRecord& game, const WorldState& world) {
    if (world.LevelEnemies.isEmpty() || world.LevelEnemies == u"0")
        return false;
    const double roll = Int(double(platform().random.draw()) * 100);
    if (Val(world.EncounterRate) < roll)
        return false;
    const double level = game.PlayerLevel.num();
    int eligible = 0;
    for (const QString& entry : world.LevelEnemies.split(u'/')) {
        if (entry.isEmpty() || entry == u"0")
            continue;
        const QStringList parts = entry.split(u':');
        const QString min = parts.value(MapEnemyMinLevel), max = parts.value(MapEnemyMaxLevel);
        if ((level >= Val(min) && level <= Val(max)) || min == u"All" || max == u"All")
            ++eligible;
    }
    return eligible > 0;
}

void MarkGroundPilesSeen(GameRecord& game, const WorldState& world) {
    for (const QString& record : NonEmptyParts(world.GroundItemsText, GroundPileSeparator)) {
        const QStringList pile = record.split(GroundPileFieldSeparator);
        const QStringList place = pile.value(GroundPileLocation).split(u';');
        if (place.size() > 1 && Val(place[0]) == game.PlayerX.num() && Val(place[1]) == game.PlayerY.num())
            SetVariable(game, pile[GroundPileVariable], QStringLiteral("1"));
    }
}

} // namespace umbrith
