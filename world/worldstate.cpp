#include "world/worldstate.h"

#include "platform/error.h"

#include <algorithm>
#include <cmath>

namespace umbrith {

int MapTable::key(double x, double y) const {
    const double sx = std::nearbyint(x + offset_), sy = std::nearbyint(y + offset_);
    if (!(sx >= 0 && sy >= 0 && sx < storage_ && sy < storage_))
        err::raise(err::SubscriptOutOfRange);
    return int(sy) * storage_ + int(sx);
}

const QString& MapTable::at(double x, double y) const {
    static const QString empty;
    const auto found = cells_.constFind(key(x, y));
    return found == cells_.constEnd() ? empty : *found;
}

QString& MapTable::cell(double x, double y) { return cells_[key(x, y)]; }

QList<MapTable::Cell> MapTable::cells() const {
    QList<int> keys = cells_.keys();
    std::sort(keys.begin(), keys.end());
    QList<Cell> result;
    for (int k : keys)
        if (!cells_[k].isEmpty())
            result.append({k % storage_ - offset_, k / storage_ - offset_, cells_[k]});
    return result;
}

int CellIndex(const QString& text) { return toInt32(Value(Val(text))); }

void ResetMap(WorldState& world) {
    for (MapTable* table : {&world.MapTiles, &world.MapPass, &world.SpecialKind, &world.MessageLocation,
                            &world.MessageSource, &world.MessageActivation, &world.MessageText, &world.WarpSource,
                            &world.WarpTargetMap, &world.WarpTargetLocation, &world.NPCAt, &world.GroundPileAt,
                            &world.TileEvents})
        table->clear();
    world.GroundItemsText.clear();
    if (world.textures.picNPCs.size() > 1)
        world.textures.picNPCs.resize(1);
    world.textures.npcSheetsByPath.clear();
    world.MovableNPCs.clear();
    world.PastedNPCs.clear();
    world.NPCPictureCount = 0;
}

double PassValue(const QString& cell) { return Val(cell); }

} // namespace umbrith
