#include "world/changemap.h"

#include "core/misc.h"
#include "core/record.h"
#include "core/resolvecode.h"
#include "events/eventrecord.h"
#include "platform/files.h"

#include <QPoint>
#include <optional>

namespace umbrith {

namespace {

QString FieldAt(const QStringList& fields, int index) {
    if (index >= fields.size())
        err::raise(err::SubscriptOutOfRange);
    return fields[index];
}

// Loads an NPC sheet into the next picture slot; false when the file is missing.
bool LoadNpcPicture(WorldState& world, const QString& imagePath) {
    const QString path = AppPath() + imagePath.trimmed();
    if (!fileExists(path))
        return false;
    auto cached = world.textures.npcSheetsByPath.constFind(path);
    Surface picture = cached != world.textures.npcSheetsByPath.cend() ? *cached : Surface::load(path);
    world.textures.npcSheetsByPath.insert(path, picture);
    auto& sheets = world.textures.picNPCs;
    if (sheets.size() <= size_t(world.NPCPictureCount))
        sheets.resize(world.NPCPictureCount + 1);
    sheets[world.NPCPictureCount] = std::move(picture);
    return true;
}

} // namespace

QString LevelName(const QString& mapPath) {
    const QStringList parts = mapPath.split(u'\\', Qt::SkipEmptyParts);
    return parts.isEmpty() ? QString() : parts.last().trimmed();
}

QString HeldEntries(const WorldState& world) {
    QString held;
    for (const QString& record : NonEmptyParts(world.MovableNPCs, u';')) {
        const QStringList a = record.split(u':');
        if (a.value(8) == u"1")
            held += u'\u00A3' + world.NPCAt.at(CellIndex(a.value(1)), CellIndex(a.value(0)));
    }
    return held;
}

QString CollectFollowers(WorldState& world) {
    const QString followers = HeldEntries(world) + world.PendingFollowers + world.HoldTileEntries;
    world.PendingFollowers.clear();
    world.HoldTileEntries.clear();
    world.FollowerNPCs = followers;
    return followers;
}

void TakeMapScalars(WorldState& world, const MapFile& map) {
    world.LevelWidth = map.width.num();
    world.LevelHeight = map.height.num();
    world.LevelMusicPath = map.music;
    world.TilesetName = map.tileset;
    world.NightLevel = map.night;
}

void LoadMapGrid(WorldState& world, const MapFile& map) {
    const MapGrid grid = SplitMapGrid(map.tiles, map.passabilities, map.width, map.height);
    for (int y = 0; y < grid.rows; ++y)
        for (int x = 0; x < grid.columns; ++x) {
            const QString tile = grid.tile(x, y);
            if (tile.isEmpty())
                continue;
            world.MapTiles.cell(x, y) = tile;
            world.MapPass.cell(x, y) = grid.passability(x, y);
        }
}

QString FilterFollowerDuplicates(const QString& npcs, const QString& followers) {
    const QStringList mapNpcs = NonEmptyParts(npcs, NpcSeparator);
    QStringList duplicates;
    for (const QString& follower : NonEmptyParts(followers, u'\u00A3')) {
        const QStringList f = follower.split(u':');
        for (const QString& npc : mapNpcs) {
            const QStringList m = npc.split(u':');
            if (m.value(NpcName) == f.value(NpcName) && m.value(NpcWarpFollow) == u"1" && f.value(NpcWarpFollow) == u"1")
                duplicates.append(npc);
        }
    }
    QString kept;
    for (const QString& npc : mapNpcs)
        for (const QString& duplicate : duplicates)
            if (npc != duplicate)
                kept = NpcSeparator + npc;
    return kept;
}

QString RuntimeNpcRecord(const QStringList& m, const QString& x, const QString& y, int slot) {
    if (m.size() < NpcFieldCount)
        err::raise(err::SubscriptOutOfRange);
    return QStringList{y, x, m[NpcImagePath], m[NpcSprite], QString::number(slot), m[NpcVisible], m[NpcWanders],
                       m[NpcName], m[NpcFollowsPlayer], m[NpcWarpFollow], m[NpcEvadesPlayer], m[NpcAnimated],
                       m[NpcAnimation]}
        .join(u':');
}

void LoadMapNPCs(WorldState& world, const QString& npcs) {
    world.NPCPictureCount = 0;
    world.PastedNPCs.clear();
    world.MovableNPCs.clear();
    for (const QString& record : NonEmptyParts(npcs, NpcSeparator)) {
        // An NPC that can't be read is left out; the others still come.
        try {
            const QStringList m = record.split(u':');
            const QStringList place = FieldAt(m, NpcLocation).split(u';');
            const QString x = place[0], y = FieldAt(place, 1);
            if (!LoadNpcPicture(world, FieldAt(m, NpcImagePath)))
                continue;
            if (m[NpcDirectPaste] == u"True")
                world.PastedNPCs += u';' + QStringList{y, x, m[NpcImagePath], FieldAt(m, NpcSprite), FieldAt(m, NpcAnimation)}.join(u':');
            else
                world.MovableNPCs += u';' + RuntimeNpcRecord(m, x, y, world.NPCPictureCount);
            ++world.NPCPictureCount;
            world.NPCAt.cell(CellIndex(x), CellIndex(y)) = record;
        } catch (const RuntimeError&) {
        }
    }
}

void LoadTileEvents(WorldState& world, const QString& events) {
    for (const QString& event : NonEmptyParts(events, EventSeparator)) {
        const TextPosition place = EventPlaceCell(FieldAt(event.split(EventFieldSeparator), 1));
        QString& cell = world.TileEvents.cell(place.x, place.y);
        cell += EventSeparator + event;
    }
}

void LoadMapEnemies(WorldState& world, const QString& enemies) {
    const MapEnemies parts = SplitMapEnemies(enemies);
    world.EncounterRate = parts.rate;
    world.LevelEnemies = parts.list;
}

void LoadNightPicture(Textures& textures) {
    if (textures.nightoriginal.isNull())
        textures.nightoriginal = Surface::load(AppPath() + QStringLiteral("\\images\\night1.bmp"));
}

void LoadGroundPiles(GameRecord& game, WorldState& world, const QString& groundItems) {
    world.GroundItemsText = groundItems;
    for (const QString& record : NonEmptyParts(groundItems, GroundPileSeparator)) {
        const QStringList pile = record.split(GroundPileFieldSeparator);
        const QString name = pile[GroundPileVariable];
        const Value taken = ResolveCode(game, Value(u'&' + name));
        if (taken.text().isEmpty())
            game.Variables = game.Variables.text() + u'|' + name + QStringLiteral("=0");
        else if (!(taken.isNumber() && taken.num() == 0))
            continue;
        const QStringList place = FieldAt(pile, GroundPileLocation).split(u';');
        game.PlayerX = Val(place[0]);
        game.PlayerY = Val(FieldAt(place, 1));
        world.GroundPileAt.cell(toInt32(game.PlayerX), toInt32(game.PlayerY)) = FieldAt(pile, GroundPileContents);
    }
    if (!world.GroundItemsText.isEmpty() && world.textures.grounditems.isNull()) {
        const QString icon = AppPath() + QStringLiteral("\\images\\grounditems.bmp");
        if (fileExists(icon))
            world.textures.grounditems = Surface::load(icon);
    }
}

void PlacePlayer(GameRecord& game, WorldState& world, bool useLocation, const QString& location) {
    TextPosition place;
    const QStringList parts = location.split(u';');
    if (useLocation && FieldAt(parts, 0) != StartLocationWord && FieldAt(parts, 1) != StartLocationWord)
        place = SplitPosition(location, u';');
    else
        place = SplitPosition(world.StartLocation, u'|');
    world.PlayerTwipX = place.x * TileTwips;
    world.PlayerTwipY = place.y * TileTwips;
    game.PlayerX = Int(world.PlayerTwipX / TileTwips);
    game.PlayerY = Int(world.PlayerTwipY / TileTwips);
}

void PlaceFollowers(GameRecord& game, WorldState& world, double width, double height) {
    const int px = toInt32(game.PlayerX), py = toInt32(game.PlayerY);
    for (const QString& record : NonEmptyParts(world.FollowerNPCs, u'\u00A3')) {
        try {
            QStringList m = record.split(u':');
            if (m.size() < NpcFieldCount)
                err::raise(err::SubscriptOutOfRange);
            std::optional<QPoint> free;
            for (int dy = -2; dy <= 2 && !free; ++dy)
                for (int dx = -2; dx <= 2 && !free; ++dx) {
                    const int x = px + dx, y = py + dy;
                    if (x <= width && x >= 0 && y <= height && py + dx >= 0 && world.NPCAt.at(x, y).isEmpty())
                        free = QPoint(x, y);
                }
            if (!free)
                continue;
            const QString x = QString::number(free->x()), y = QString::number(free->y());
            m[NpcLocation] = x + u';' + y;
            world.NPCAt.cell(free->x(), free->y()) = m.join(u':');
            if (LoadNpcPicture(world, m[NpcImagePath])) {
                world.MovableNPCs += u';' + RuntimeNpcRecord(m, x, y, world.NPCPictureCount);
                ++world.NPCPictureCount;
            }
        } catch (const RuntimeError&) {
        }
    }
}

void LoadScreenWarps(WorldState& world, const QString& screenWarps) {
    if (screenWarps.isEmpty())
        return;
    const std::array<QString, 4> warps = SplitScreenWarps(screenWarps);
    world.ScreenWarpTop = warps[0];
    world.ScreenWarpBottom = warps[1];
    world.ScreenWarpLeft = warps[2];
    world.ScreenWarpRight = warps[3];
}

void LoadSpecials(WorldState& world, const QString& specials) {
    for (const MapSpecial& special : SplitSpecials(specials)) {
        const QStringList place = FieldAt(special.fields, 0).split(u';');
        const double x = Val(place[0]), y = Val(FieldAt(place, 1));
        if (special.kind == u"1") {
            world.MessageLocation.cell(x, y) = special.fields[MessageLocationField];
            world.MessageSource.cell(x, y) = FieldAt(special.fields, MessageSourceField);
            world.MessageActivation.cell(x, y) = FieldAt(special.fields, MessageActivationField);
            world.MessageText.cell(x, y) = FieldAt(special.fields, MessageTextField);
            if (special.fields[MessageActivationField] == u"2")
                world.EnterMessagePending = 1;
            world.SpecialKind.cell(x, y) = QStringLiteral("1");
        } else if (special.kind == u"2") {
            world.WarpSource.cell(x, y) = special.fields[WarpLocationField];
            world.WarpTargetMap.cell(x, y) = FieldAt(special.fields, WarpTargetMapField);
            world.WarpTargetLocation.cell(x, y) = FieldAt(special.fields, WarpTargetLocationField);
            world.SpecialKind.cell(x, y) = QStringLiteral("2");
        }
    }
}

QString MapLoadErrorText(const QString& mapPath, const RuntimeError& error) {
    return QStringLiteral("There was an error loading the Map File:\n") + mapPath + QStringLiteral("\nThis is the Error:\n(") +
           error.text() + u')';
}

} // namespace umbrith
