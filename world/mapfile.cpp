#include "world/mapfile.h"

#include "platform/error.h"

#include <algorithm>
#include <cmath>

namespace umbrith {

namespace {

// The game keeps every grid in 501 x 501 (or 502 x 502 from -1) cells.
constexpr int GridStorage = 501;

int storedCells(double size) {
    if (!(size >= 0))
        return 0;
    return int(std::min(std::floor(size), double(GridStorage - 1))) + 1;
}

} // namespace

MapFile ParseMapItems(RecordReader& reader, int items) {
    MapFile map;
    QString* texts[] = {&map.specials, nullptr, &map.tiles, &map.passabilities, &map.startLocation, &map.music,
                        &map.screenWarps, &map.enemies, &map.events, &map.tileset, nullptr, nullptr,
                        &map.reserved13, nullptr, &map.groundItems, &map.npcs, &map.reserved17};
    Value* values[] = {nullptr, &map.reserved2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       nullptr, &map.width, &map.height, nullptr, &map.night, nullptr, nullptr, nullptr};
    for (int i = 0; i < std::min(items, MapItemCount); ++i) {
        Value item = reader.next();
        if (texts[i])
            *texts[i] = item.text();
        else
            *values[i] = std::move(item);
    }
    return map;
}

MapFile ParseMapText(const QString& text, int items) {
    RecordReader reader(text);
    return ParseMapItems(reader, items);
}

MapFile ReadMapFile(const QString& path) {
    RecordReader reader = RecordReader::fromFile(path);
    return ParseMapItems(reader, MapItemCount);
}

MapFile ReadMapHead(const QString& path) {
    RecordReader reader = RecordReader::fromFile(path);
    return ParseMapItems(reader, MapHeadItemCount);
}

QList<Value> MapItems(const MapFile& map) {
    return {Value(map.specials),     Value(0),          Value(map.tiles),       Value(map.passabilities),
            Value(map.startLocation), Value(map.music),  Value(map.screenWarps), Value(map.enemies),
            Value(map.events),        Value(map.tileset), map.width,             map.height,
            Value(QStringLiteral("||")), map.night,     Value(map.groundItems), Value(map.npcs),
            Value(QString(""))};
}

QString MapText(const MapFile& map) { return writeRecord(MapItems(map)); }

void WriteMapFile(const QString& path, const MapFile& map) { writeRecordFile(path, MapItems(map)); }

MapGrid SplitMapGrid(const QString& tiles, const QString& passabilities, const Value& width, const Value& height) {
    const double w = width.num();
    const double h = height.num();
    MapGrid grid;
    grid.columns = storedCells(w);
    grid.rows = storedCells(h);
    grid.tiles = QStringList(qsizetype(grid.columns) * grid.rows);
    grid.pass = grid.tiles;
    if (grid.columns == 0)
        return grid; // the inner loop never runs

    const QStringList t = tiles.split(u':');
    const QStringList p = passabilities.split(u':');
    qsizetype counter = 0;
    for (double y = 0; y <= h; ++y) {
        for (double x = 0; x <= w; ++x) {
            if (counter >= t.size())
                err::raise(err::SubscriptOutOfRange);
            // The counter stands still on an empty element, so no later cell
            // can take anything: the rest of the loop changes nothing.
            if (t[counter].isEmpty())
                return grid;
            if (x >= GridStorage || y >= GridStorage || counter >= p.size())
                err::raise(err::SubscriptOutOfRange);
            const qsizetype cell = qsizetype(y) * grid.columns + qsizetype(x);
            grid.tiles[cell] = t[counter];
            grid.pass[cell] = p[counter];
            ++counter;
        }
    }
    return grid;
}

void JoinMapGrid(const MapGrid& grid, QString& tiles, QString& passabilities) {
    tiles.clear();
    passabilities.clear();
    for (qsizetype cell = 0; cell < grid.tiles.size(); ++cell) {
        tiles += grid.tiles[cell] + u':';
        const QString& pass = grid.pass[cell];
        passabilities += (pass.isEmpty() ? QStringLiteral("1") : pass) + u':';
    }
}

QList<MapSpecial> SplitSpecials(const QString& specials) {
    QList<MapSpecial> result;
    for (const QString& record : NonEmptyParts(specials, u'/')) {
        const QStringList parts = record.split(u'^');
        if (parts.size() < 2)
            err::raise(err::SubscriptOutOfRange);
        result.append({parts[0].split(u'|'), parts[1]});
    }
    return result;
}

QString MessageSpecial(const QString& location, const QString& source, const QString& activation, const QString& text) {
    return location + u'|' + source + u'|' + activation + u'|' + text + QStringLiteral("^1/");
}

QString WarpSpecial(const QString& location, const QString& targetMap, const QString& targetLocation) {
    return location + u'|' + targetMap + u'|' + targetLocation + QStringLiteral("^2/");
}

std::array<QString, 4> SplitScreenWarps(const QString& screenWarps) {
    const QStringList parts = screenWarps.split(u'|');
    if (parts.size() < 4)
        err::raise(err::SubscriptOutOfRange);
    return {parts[0], parts[1], parts[2], parts[3]};
}

QString JoinScreenWarps(const std::array<QString, 4>& warps) {
    return warps[0] + u'|' + warps[1] + u'|' + warps[2] + u'|' + warps[3];
}

MapEnemies SplitMapEnemies(const QString& enemies) {
    const QStringList parts = enemies.split(u'^');
    if (parts.size() < 2)
        err::raise(err::SubscriptOutOfRange);
    return {parts[0], parts[1]};
}

QString JoinMapEnemies(const QString& list, const QString& rate) {
    return list + u'^' + (rate.isEmpty() ? QStringLiteral("0") : rate);
}

} // namespace umbrith
