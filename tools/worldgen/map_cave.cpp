// The Ember Cave under the Ashwood: rock carved into chambers joined by
// tunnels. From the ladder a tunnel leads to a great hall around a lava
// pool; side tunnels reach the spiders' chamber in the west and the mine in
// the east, and the way north ends in the lair of the Ember Wyrm.
#include "starter_maps.h"

#include <vector>

namespace worldgen {

MapCanvas caveMap(const TilePass& pass, const StarterLists& lists)
{
    MapCanvas m(48, 44, pass);
    m.fill(0, 0, 49, 45, kCaveWallTop);
    std::vector<bool> open(std::size_t(49) * 45, false);
    auto carve = [&](int x, int y, int w, int h) {
        m.ground(x, y, w, h, kCaveFloor, 3);
        for (int cy = y; cy < y + h; ++cy)
            for (int cx = x; cx < x + w; ++cx) open[std::size_t(cy) * 49 + cx] = true;
    };
    carve(19, 33, 11, 9);  // the ladder's chamber
    carve(23, 26, 3, 7);   // up to the hall
    carve(14, 15, 21, 11); // the great hall
    carve(5, 19, 9, 3);    // west tunnel
    carve(3, 6, 10, 14);   // the spiders' chamber
    carve(35, 19, 4, 3);   // east tunnel
    carve(37, 8, 9, 22);   // the old mine
    carve(26, 10, 3, 5);   // north to the lair
    carve(18, 2, 18, 8);   // the lair
    carve(7, 3, 11, 3);    // the spiders' back way into the lair

    // Rock that has open floor below it shows its face.
    for (int y = 0; y < 44; ++y)
        for (int x = 0; x <= 48; ++x)
            if (!open[std::size_t(y) * 49 + x] && open[std::size_t(y + 1) * 49 + x]) m.put(x, y, kCaveWall);

    // The hall: the lava pool and stalagmites.
    m.patch(21, 18, 7, 5, kCaveLava);
    for (auto [x, y] : {std::pair{15, 16}, {33, 16}, {16, 24}, {32, 24}, {18, 20}}) m.put(x, y, kStalagmite);
    // The spiders' chamber: webs, rubble, a pit, crystals.
    m.patch(6, 12, 5, 4, kCaveChasm);
    for (auto [x, y] : {std::pair{3, 7}, {4, 8}, {11, 17}, {12, 18}, {5, 18}}) m.put(x, y, kWeb);
    for (auto [x, y] : {std::pair{9, 8}, {4, 16}}) m.put(x, y, kRubble);
    for (auto [x, y] : {std::pair{12, 7}, {3, 11}}) m.put(x, y, kCrystal);
    // The mine: ore, rubble, mushrooms.
    for (auto [x, y] : {std::pair{45, 10}, {45, 16}, {37, 25}, {45, 27}}) m.put(x, y, kOreVein);
    for (auto [x, y] : {std::pair{38, 9}, {40, 28}}) m.put(x, y, kRubble);
    for (auto [x, y] : {std::pair{42, 12}, {39, 18}, {43, 23}}) m.put(x, y, kCaveMushroom);
    m.put(41, 20, kCaveRock);
    // The ladder's chamber.
    m.put(kCaveLadderX, kCaveLadderY, kCaveLadderUp);
    m.put(20, 34, kCaveRock);
    m.put(28, 40, kCrystal);
    // The lair: the hoard at the back, rubble before it.
    m.patch(30, 3, 5, 4, kCaveLava);
    m.put(26, 3, kDungeonChest);
    m.put(24, 3, kCrystal);
    m.put(28, 3, kCrystal);
    for (auto [x, y] : {std::pair{22, 6}, {25, 8}, {29, 7}}) m.put(x, y, kRubble);

    m.enterMessage("Ember Cave", "Hot air rises from below and the rock glows faintly red.&"
                                 "The ladder behind you leads back up to the Ashwood.");
    m.sign(26, 3, "Hoard", "Gold and bones lie heaped around the chest. Whatever guards it is never far away.");
    m.warp(kCaveLadderX, kCaveLadderY, kForestMap, kCaveMouthX, kCaveMouthY + 1);

    m.npc({"Scholar Edda", QStringLiteral("\\images\\npcs\\mage.bmp"),
           "I came to study the crystals. Something enormous breathes in the north.",
           "\\events\\cave scholar.ube", 20, 21, 0, true});

    m.pile("&CaveSpiderHelm", pileEquipment(lists.equipment, "Iron Helm-Helmet"), 10, 18);
    m.pile("&CaveMinePotion", pileItem(lists.items, "Greater Healing Potion"), 44, 12);
    m.pile("&CaveHoardShield", pileEquipment(lists.equipment, "Kite Shield-Shield"), 25, 4);
    m.pile("&CaveHoardScroll", pileItem(lists.items, "Scroll of Return"), 27, 4);

    m.enemies({"Cave Bat-Warrior:1:All", "Giant Spider-Both:2:All", "Restless Skeleton-Warrior:3:All",
               "Orc Raider-Both:3:All", "Wailing Ghost-Mage:4:All", "Cave Troll-Warrior:5:All",
               "Ember Wyrm-Both:8:All"}, 10);
    m.setStart(kCaveLadderX, kCaveLadderY - 1);
    m.setNight(false);
    m.setMusic("\\sfx\\dungeon.mid");
    return m;
}

} // namespace worldgen
