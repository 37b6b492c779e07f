// Emberton Fields: the farmland south of the village. The road comes down
// from the town gate to a crossroads, runs west to the farm and east over
// the river bridge to the edge of the Ashwood. Wolves and slimes roam here.
#include "starter_maps.h"

namespace worldgen {

MapCanvas fieldsMap(const TilePass& pass, const StarterLists& lists)
{
    constexpr int kRiverX = 46;
    MapCanvas m(72, 64, pass);
    m.ground(0, 0, 73, 65, kGrass, 4);

    // Woods on every side; the north opens for the road from town, the
    // east for the road into the Ashwood.
    m.trees(0, 0, kTownGateX, 4);
    m.trees(kTownGateX + 3, 0, 73 - kTownGateX - 3, 4);
    m.trees(0, 4, 4, 61);
    m.trees(4, 60, 69, 5);
    m.trees(68, 4, 5, kEastRoadY - 4);
    m.trees(68, kEastRoadY + 4, 5, 56 - kEastRoadY);

    // The river from north to south, with a bridge for the east road.
    m.bandDown(kRiverX, 0, 5, 65, kGrassPond);
    m.put(kRiverX + 2, 12, kWaterRocks);
    m.put(kRiverX + 1, 48, kWaterRocks);
    m.put(kRiverX + 3, 53, kReeds);

    // The roads and the crossroads.
    m.bandDown(kTownGateX, 0, 3, kEastRoadY, kGrassDirt);
    m.bandAcross(8, kEastRoadY, 64, 3, kGrassDirt);
    m.fill(kTownGateX, kEastRoadY, 3, 1, kGrassDirt.c());
    m.fill(8, kEastRoadY, 3, 1, kGrassDirt.c());
    for (int y = kEastRoadY; y < kEastRoadY + 3; ++y) {
        m.put(kRiverX - 1, y, kBridgeH[0]);
        for (int x = kRiverX; x < kRiverX + 5; ++x) m.put(x, y, kBridgeH[1]);
        m.put(kRiverX + 5, y, kBridgeH[2]);
    }
    m.put(kTownGateX + 3, kEastRoadY - 1, kSignpost);

    // The farm west of the crossroads: house, barn yard, two fenced fields.
    m.house(6, 18, 7, kRoofThatch, kWallWood, 3);
    m.house(14, 19, 5, kRoofRed, kWallWood, 2);
    m.bandDown(8, 22, 3, 8, kGrassDirt);
    m.fence(5, 34, 12, 10, kWoodFence, 10);
    m.bandAcross(6, 35, 10, 8, kGrassDirt);
    for (int y = 36; y < 42; y += 2) m.fill(7, y, 8, 1, kTallGrass);
    m.fence(20, 35, 10, 9, kWoodFence, 24);
    m.ground(21, 36, 8, 7, kDirt, 3);
    for (int y = 37; y < 42; y += 2)
        for (int x = 22; x < 28; x += 2) m.put(x, y, kHaystack);
    m.put(5, 24, kHaystack);
    m.put(12, 24, kBarrelOutside);
    m.put(13, 24, kCrateOutside);
    m.put(4, 26, kFirewood);

    // Meadows, a pond and rocks east of the road and beyond the river.
    m.patch(27, 8, 10, 7, kGrassPond);
    m.put(31, 11, kLilyPads);
    m.put(28, 13, kReeds);
    for (auto [x, y] : {std::pair{25, 18}, {26, 19}, {38, 6}, {39, 7}, {30, 20}, {31, 21}, {36, 24}, {55, 12},
                        {56, 13}, {60, 20}, {54, 42}, {58, 46}, {35, 48}, {40, 52}, {14, 52}, {20, 50}})
        m.put(x, y, (x + y) % 3 ? kFlowersMixed : kFlowersRed);
    m.object(33, 40, kBoulder, 2, 2);
    m.object(58, 8, kBoulder, 2, 2);
    m.trees(54, 48, 8, 6);
    m.trees(28, 44, 6, 4);
    m.trees(56, 22, 6, 4);
    for (auto [x, y] : {std::pair{24, 26}, {38, 36}, {62, 40}, {52, 34}, {13, 46}, {42, 14}})
        m.put(x, y, kBush);
    for (auto [x, y] : {std::pair{36, 34}, {63, 36}, {24, 54}}) m.put(x, y, kRock);

    m.enterMessage("Emberton Fields", "Wind moves over the wheat. Keep to the road after dark.");
    m.sign(kTownGateX + 3, kEastRoadY - 1, "Signpost", "North: Emberton. West: Fenwick Farm. East: the Ashwood.");
    m.sign(kRiverX - 1, kEastRoadY + 1, "Bridge", "Old Ember Bridge, built by the first settlers of the vale.");

    const QString npcs = QStringLiteral("\\images\\npcs\\");
    m.npc({"Farmer Fenwick", npcs + "villager_man.bmp", "The wolves took two of my sheep. Keep your blade sharp.",
           "\\events\\fields farmer.ube", 9, 24, 0, true});
    m.npc({"Wren", npcs + "villager_woman.bmp", "Patch will follow you anywhere. He likes you already!",
           "\\events\\fields wren.ube", 17, 26, 0, true});
    m.npc({"Patch", npcs + "dog.bmp", "Woof!", "\\events\\fields patch.ube", 15, 27, 0, false, true});

    m.pile("&FieldsBridgePotion", pileItem(lists.items, "Healing Potion"), kRiverX + 7, kEastRoadY + 4);
    m.pile("&FieldsHaystackCap", pileEquipment(lists.equipment, "Leather Cap-Helmet"), 28, 42);
    m.pile("&FieldsPondRoot", pileItem(lists.items, "Swiftroot"), 26, 12);

    m.enemies({"Green Slime-Warrior:1:4", "Grey Wolf-Warrior:1:6", "Goblin Cutthroat-Warrior:2:All",
               "Dire Wolf-Warrior:4:All"}, 6);
    m.setStart(kTownGateX + 1, 2);
    m.setNight(true);
    m.setMusic("\\sfx\\field.mid");
    m.screenWarps(kTownMap, QString(), QString(), kForestMap);
    return m;
}

} // namespace worldgen
