// The map reader and the splits that Changemap and the editor make of its items.
#include "bench/fuzz/fuzzinput.h"
#include "world/mapfile.h"

using namespace umbrith;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString input = fuzz::text(data, size);
    fuzz::trapped([&] { ParseMapText(input, MapHeadItemCount); });
    MapFile map;
    if (!fuzz::trapped([&] { map = ParseMapText(input); })) {
        // Whatever the file, its items go through the splits too: the input as item text.
        map.tiles = map.passabilities = map.specials = map.screenWarps = map.enemies = map.npcs = input;
        map.width = Value(input.left(8));
        map.height = Value(input.mid(8, 8));
    }
    fuzz::trapped([&] {
        const MapGrid grid = SplitMapGrid(map.tiles, map.passabilities, map.width, map.height);
        QString tiles, pass;
        JoinMapGrid(grid, tiles, pass);
    });
    fuzz::trapped([&] { SplitSpecials(map.specials); });
    fuzz::trapped([&] { SplitScreenWarps(map.screenWarps); });
    fuzz::trapped([&] { SplitMapEnemies(map.enemies); });
    fuzz::trapped([&] { SplitPosition(map.startLocation, u'|'); });
    for (const QString& npc : NonEmptyParts(map.npcs, NpcSeparator))
        fuzz::trapped([&] { SplitPosition(npc.section(u':', NpcLocation, NpcLocation), u';'); });
    for (const QString& pile : NonEmptyParts(map.groundItems, GroundPileSeparator))
        fuzz::trapped([&] { SplitPosition(pile.section(GroundPileFieldSeparator, 2, 2), u';'); });

    // What the writer makes of a map reads back as the same map, as long as no
    // text item holds a quote (which the format cannot carry).
    bool quoteFree = true;
    for (const QString* item : {&map.specials, &map.tiles, &map.passabilities, &map.startLocation, &map.music,
                                &map.screenWarps, &map.enemies, &map.events, &map.tileset, &map.groundItems,
                                &map.npcs})
        quoteFree = quoteFree && !item->contains(u'"');
    for (const Value* item : {&map.width, &map.height, &map.night})
        quoteFree = quoteFree && !item->text().contains(u'"');
    if (quoteFree) {
        const MapFile back = ParseMapText(MapText(map));
        if (back.specials != map.specials || back.tiles != map.tiles || back.passabilities != map.passabilities ||
            back.npcs != map.npcs || back.events != map.events || back.groundItems != map.groundItems ||
            back.width.text() != map.width.text() || back.night.text() != map.night.text())
            __builtin_trap();
    }
    return 0;
}
