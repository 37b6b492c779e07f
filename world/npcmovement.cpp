#include "world/npcmovement.h"

#include "core/record.h"
#include "platform/error.h"
#include "platform/platform.h"

#include <cmath>

namespace umbrith {

namespace {

QStringList SplitRuntimeRecord(const QString& record) {
    QStringList a = record.split(u':');
    if (a.size() < RunFieldCount)
        err::raise(err::SubscriptOutOfRange);
    return a;
}

// "Randomize, r = Rnd".
double Draw() { return double(platform().random.draw()); }

// An NPC that does not move keeps its record as it is.
void Stand(WorldState& world, const QString& record) { world.NPCRebuild += u';' + record; }

void Wander(const GameRecord& game, WorldState& world, WorldScreen& screen, const QString& record) {
    if (Draw() > 0.5) {
        Stand(world, record);
        return;
    }
    const double r = Draw();
    const Facing direction = r <= 0.25 ? Facing::Up : r <= 0.5 ? Facing::Down : r <= 0.75 ? Facing::Left : Facing::Right;
    MoveNPCDir(game, world, screen, record, direction);
}

// The step of a follower toward the player or of an evader away from him.
// On the axis chosen, a follower steps to the player's side and an evader to
// the other; level with him, a coin picks the side.
void Pursue(const GameRecord& game, WorldState& world, WorldScreen& screen, const QString& record, const QStringList& a) {
    const double x = Val(a[RunX]), y = Val(a[RunY]);
    const double px = game.PlayerX.num(), py = game.PlayerY.num();
    const bool follows = a[RunFollows] == u"1", evades = a[RunEvades] == u"1";
    // An evader has the axes exchanged: it opens the shorter distance first.
    const double across = std::abs(x - px), along = std::abs(y - py);
    const double first = evades ? along : across, second = evades ? across : along;
    int coin = -1;
    if (first == second)
        coin = Draw() <= 0.5 ? 0 : 1;
    auto pick = [&](double npc, double player, Facing plus, Facing minus) {
        if ((player > npc && follows) || (player < npc && evades))
            return plus;
        if ((player < npc && follows) || (player > npc && evades))
            return minus;
        return Draw() <= 0.5 ? plus : minus;
    };
    if (world.BlockedY || coin == 0 || (first > second && !world.BlockedX)) {
        world.BlockedY = false;
        MoveNPCDir(game, world, screen, record, pick(x, px, Facing::Right, Facing::Left));
    } else if (world.BlockedX || coin == 1 || (first < second && !world.BlockedY)) {
        world.BlockedX = false;
        MoveNPCDir(game, world, screen, record, pick(y, py, Facing::Down, Facing::Up));
    } else {
        Stand(world, record);
    }
}

} // namespace

bool NPCsMayWalk(const GameRecord& game, const WorldState& world, bool eventPaused) {
    return !world.MovableNPCs.isEmpty() && !eventPaused && !isTrue(game.BattleActive) && !isTrue(game.ScreenPanelOpen);
}

void NPCWanderTick(const GameRecord& game, WorldState& world, WorldScreen& screen) {
    world.NPCRebuild.clear();
    // The list is walked as it stood: a bump's events may rewrite it, and the
    // rebuilt list wins.
    for (const QString& record : NonEmptyParts(world.MovableNPCs, u';')) {
        try {
            const QStringList a = SplitRuntimeRecord(record);
            const bool visible = a[RunVisible] == u"1";
            if (visible && a[RunWanders] == u"1")
                Wander(game, world, screen, record);
            else if (visible && (a[RunFollows] == u"1" || a[RunEvades] == u"1"))
                Pursue(game, world, screen, record, a);
            else
                Stand(world, record);
        } catch (const RuntimeError&) {
            Stand(world, record);
        }
    }
    world.MovableNPCs = world.NPCRebuild;
    screen.UpdateLevel(0, 0);
}

void MoveNPCDir(const GameRecord& game, WorldState& world, WorldScreen& screen, const QString& record, Facing direction) {
    QStringList a = SplitRuntimeRecord(record);
    const bool horizontal = direction == Facing::Left || direction == Facing::Right;
    const int delta = direction == Facing::Right || direction == Facing::Down ? 1 : -1;
    const int field = horizontal ? RunX : RunY;
    const double to = Val(a[field]) + delta;
    const int x = CellIndex(a[RunX]), y = CellIndex(a[RunY]);
    const int tx = horizontal ? x + delta : x, ty = horizontal ? y : y + delta;
    const QString row = QString::number(int(direction));

    const bool onMap = to >= 0 && to <= (horizontal ? world.LevelWidth : world.LevelHeight);
    const bool open = onMap && world.MapPass.at(tx, ty) == u"1" && world.NPCAt.at(tx, ty).isEmpty();
    if (open && tx == game.PlayerX.num() && ty == game.PlayerY.num()) {
        CheckNPCs(world, screen, x, y);
    } else if (open) {
        a[field] = numberText(to);
        a[RunSprite] = row;
        world.NPCRebuild += u';' + a.join(u':');
        const QStringList m = world.NPCAt.at(x, y).split(u':');
        world.NPCAt.cell(tx, ty) = QStringList{m.value(0), m.value(1), m.value(2), m.value(3), m.value(4),
                                               QString::number(tx) + u';' + QString::number(ty), row, a[RunVisible],
                                               a[RunWanders], a[RunFollows], a[RunWarpFollow], a[RunEvades],
                                               a[RunAnimated], a[RunAnimation]}
                                       .join(u':');
        world.NPCAt.cell(x, y).clear();
        return;
    }
    // Blocked: the NPC turns toward where it wanted to go.
    (horizontal ? world.BlockedX : world.BlockedY) = true;
    a[RunSprite] = row;
    world.NPCRebuild += u';' + a.join(u':');
}

NpcChange NpcChangeOf(const QString& record) {
    const QStringList a = SplitRuntimeRecord(record);
    return {a[RunX],      a[RunY],       a[RunSprite],   a[RunVisible], a[RunWanders], a[RunImagePath],
            a[RunFollows], a[RunWarpFollow], a[RunEvades], a[RunAnimated], a[RunAnimation]};
}

QString MoveNPC(WorldState& world, const QString& record, const NpcChange& change) {
    if (record.isEmpty())
        return {};
    const QStringList a = SplitRuntimeRecord(record);
    const int x = CellIndex(a[RunX]), y = CellIndex(a[RunY]);
    const int tx = CellIndex(change.x), ty = CellIndex(change.y);
    const bool stays = Val(change.x) == Val(a[RunX]) && Val(change.y) == Val(a[RunY]);
    const bool free = world.NPCAt.at(tx, ty).isEmpty() || stays;
    const QString& newX = free ? change.x : a[RunX];
    const QString& newY = free ? change.y : a[RunY];

    const QStringList m = world.NPCAt.at(x, y).split(u':');
    const QString placed = QStringList{m.value(0), change.imagePath, m.value(2), m.value(3), m.value(4),
                                       newX + u';' + newY, change.spriteRow, change.visible, change.wanders,
                                       change.follows, change.warpFollow, change.evades, change.animated,
                                       change.animation}
                               .join(u':');
    if (free && !stays)
        world.NPCAt.cell(x, y).clear();
    world.NPCAt.cell(free ? tx : x, free ? ty : y) = placed;
    return QStringList{newY, newX, change.imagePath, change.spriteRow, a[RunPictureSlot], change.visible, change.wanders,
                       a[RunName], change.follows, change.warpFollow, change.evades, change.animated, change.animation}
        .join(u':');
}

} // namespace umbrith
