#include "mapcanvas.h"

#include <stdexcept>

namespace worldgen {

using namespace umbrith;

int cellRoll(int x, int y)
{
    const unsigned hash = (unsigned(x) * 73856093u) ^ (unsigned(y) * 19349663u);
    return int((hash ^ (hash >> 13)) % 100);
}

QString place(int x, int y) { return QString::number(x) + u';' + QString::number(y); }

MapCanvas::MapCanvas(int width, int height, const TilePass& pass)
    : width_(width), height_(height), pass_(pass), cells_(std::size_t(width + 1) * (height + 1), kGrass[0])
{
    map_.width = width;
    map_.height = height;
    map_.tileset = QStringLiteral("default.ubt");
    map_.music = DefaultMapMusic.toString();
    map_.screenWarps = JoinScreenWarps({});
    map_.enemies = JoinMapEnemies(QString(), QString());
    setStart(width / 2, height / 2);
}

QString MapCanvas::passability(int x, int y) const
{
    const Tile t = tile(x, y);
    return pass_.at(t.col + t.row * 50);
}

void MapCanvas::put(int x, int y, Tile tile)
{
    if (inside(x, y)) cells_[index(x, y)] = tile;
}

void MapCanvas::fill(int x, int y, int w, int h, Tile tile)
{
    for (int dy = 0; dy < h; ++dy)
        for (int dx = 0; dx < w; ++dx) put(x + dx, y + dy, tile);
}

void MapCanvas::ground(int x, int y, int w, int h, const Tile* variants, int count)
{
    for (int cy = y; cy < y + h; ++cy)
        for (int cx = x; cx < x + w; ++cx) {
            const int roll = cellRoll(cx, cy);
            put(cx, cy, roll < 70 || count == 1 ? variants[0] : variants[1 + roll % (count - 1)]);
        }
}

void MapCanvas::patch(int x, int y, int w, int h, const EdgeSet& edges)
{
    for (int cy = y; cy < y + h; ++cy)
        for (int cx = x; cx < x + w; ++cx) {
            const bool top = cy == y, bottom = cy == y + h - 1, left = cx == x, right = cx == x + w - 1;
            Tile t = edges.c();
            if (top) t = left ? edges.nw() : right ? edges.ne() : edges.n();
            else if (bottom) t = left ? edges.sw() : right ? edges.se() : edges.s();
            else if (left) t = edges.w();
            else if (right) t = edges.e();
            put(cx, cy, t);
        }
}

void MapCanvas::bandDown(int x, int y, int w, int length, const EdgeSet& edges)
{
    for (int cy = y; cy < y + length; ++cy)
        for (int cx = x; cx < x + w; ++cx) put(cx, cy, cx == x ? edges.w() : cx == x + w - 1 ? edges.e() : edges.c());
}

void MapCanvas::bandAcross(int x, int y, int length, int h, const EdgeSet& edges)
{
    for (int cy = y; cy < y + h; ++cy)
        for (int cx = x; cx < x + length; ++cx) put(cx, cy, cy == y ? edges.n() : cy == y + h - 1 ? edges.s() : edges.c());
}

void MapCanvas::house(int x, int y, int w, const RoofSet& roof, const WallSet& wall, int door)
{
    if (w < 3) throw std::invalid_argument("a house is at least three tiles wide");
    for (int row = 0; row < 3; ++row)
        for (int dx = 0; dx < w; ++dx) put(x + dx, y + row, roof.part(dx == 0 ? 0 : dx == w - 1 ? 2 : 1, row));
    if (w >= 5) put(x + w - 2, y + 1, roof.chimney());
    for (int dx = 0; dx < w; ++dx) {
        Tile t = dx % 2 == 1 ? wall.window() : wall.middle();
        if (dx == 0) t = wall.left();
        else if (dx == w - 1) t = wall.right();
        if (dx == door) t = wall.doorOpen();
        put(x + dx, y + 3, t);
    }
}

void MapCanvas::object(int x, int y, Tile topLeft, int w, int h)
{
    for (int dy = 0; dy < h; ++dy)
        for (int dx = 0; dx < w; ++dx) put(x + dx, y + dy, topLeft.at(dx, dy));
}

void MapCanvas::trees(int x, int y, int w, int h)
{
    for (int cy = y; cy < y + h; cy += 2)
        for (int cx = x; cx < x + w; cx += 2) {
            const bool fullWidth = cx + 1 < x + w, fullHeight = cy + 1 < y + h;
            if (fullWidth && fullHeight) object(cx, cy, cellRoll(cx, cy) < 55 ? kOak : kBigPine, 2, 2);
            else if (fullHeight) object(cx, cy, kPine, 1, 2);
            else for (int dx = 0; dx < (fullWidth ? 2 : 1); ++dx) put(cx + dx, cy, kBush);
        }
}

void MapCanvas::fence(int x, int y, int w, int h, const FenceSet& fence, int gateX)
{
    for (int dx = 1; dx < w - 1; ++dx) {
        put(x + dx, y, fence.horizontal());
        put(x + dx, y + h - 1, x + dx == gateX ? kFenceGate : fence.horizontal());
    }
    for (int dy = 1; dy < h - 1; ++dy) {
        put(x, y + dy, fence.vertical());
        put(x + w - 1, y + dy, fence.vertical());
    }
    put(x, y, fence.nw());
    put(x + w - 1, y, fence.ne());
    put(x, y + h - 1, fence.sw());
    put(x + w - 1, y + h - 1, fence.se());
}

void MapCanvas::sign(int x, int y, const QString& source, const QString& text)
{
    specials_[{y, x}] = MessageSpecial(place(x, y), source, QStringLiteral("1"), text);
}

void MapCanvas::enterMessage(const QString& source, const QString& text)
{
    specials_[{-1, -1}] = MessageSpecial(EnterMessageLocation.toString(), source, QStringLiteral("2"), text);
}

void MapCanvas::warp(int x, int y, const QString& targetMap, int tx, int ty)
{
    specials_[{y, x}] = WarpSpecial(place(x, y), targetMap, place(tx, ty));
}

void MapCanvas::screenWarps(const QString& top, const QString& bottom, const QString& left, const QString& right)
{
    map_.screenWarps = JoinScreenWarps({top, bottom, left, right});
}

void MapCanvas::npc(const Npc& npc)
{
    QStringList fields(NpcFieldCount);
    fields[NpcName] = npc.name;
    fields[NpcImagePath] = npc.image;
    fields[NpcEventPath] = npc.talkFile;
    fields[NpcDirectPaste] = QStringLiteral("False");
    fields[NpcManipPaste] = QStringLiteral("True");
    fields[NpcLocation] = place(npc.x, npc.y);
    fields[NpcSprite] = QString::number(npc.facing);
    fields[NpcVisible] = QStringLiteral("1");
    fields[NpcWanders] = npc.wanders ? QStringLiteral("1") : QStringLiteral("0");
    fields[NpcFollowsPlayer] = npc.follows ? QStringLiteral("1") : QStringLiteral("0");
    fields[NpcWarpFollow] = QStringLiteral("0");
    fields[NpcEvadesPlayer] = QStringLiteral("0");
    fields[NpcAnimated] = QStringLiteral("0");
    fields[NpcAnimation] = QStringLiteral("0");
    map_.npcs += NpcSeparator + fields.join(u':');
    if (!npc.talkFile.isEmpty()) talks_.push_back({npc.talkFile, callEvent(npc.name, showMessage(npc.name, npc.says))});
}

void MapCanvas::pile(const QString& variable, const QString& contents, int x, int y)
{
    QStringList fields(3);
    fields[GroundPileVariable] = variable;
    fields[GroundPileContents] = contents;
    fields[GroundPileLocation] = place(x, y);
    map_.groundItems += GroundPileSeparator + fields.join(GroundPileFieldSeparator);
}

void MapCanvas::enemies(const QStringList& entries, int rate)
{
    QString list;
    for (const QString& entry : entries) list += u'/' + entry;
    map_.enemies = JoinMapEnemies(list, QString::number(rate));
}

void MapCanvas::setStart(int x, int y) { map_.startLocation = QString::number(x) + u'|' + QString::number(y); }

MapFile MapCanvas::file() const
{
    MapFile map = map_;
    MapGrid grid;
    grid.columns = width_ + 1;
    grid.rows = height_ + 1;
    for (int y = 0; y <= height_; ++y)
        for (int x = 0; x <= width_; ++x) {
            const Tile t = tile(x, y);
            grid.tiles.append(QString::number(t.sx()) + u'|' + QString::number(t.sy()));
            grid.pass.append(passability(x, y));
        }
    JoinMapGrid(grid, map.tiles, map.passabilities);
    map.specials.clear();
    for (const auto& [at, record] : specials_) map.specials += record;
    return map;
}

} // namespace worldgen
