// Emberton: a walled village around a cobbled square with a fountain. The
// elder's house stands north of the square, the inn and the general store
// face it, the smithy and the cottages lie along side roads, and the road
// leaves through the south gate into the fields.
#include "starter_maps.h"

namespace worldgen {

MapCanvas townMap(const TilePass& pass, const StarterLists& lists)
{
    MapCanvas m(40, 32, pass);
    m.ground(0, 0, 41, 33, kGrass, 4);

    // The wood around the village, the wall along the south with its gate.
    m.trees(0, 0, 41, 2);
    m.trees(0, 2, 2, 31);
    m.trees(38, 2, 3, 31);
    for (int x = 2; x < 38; ++x) m.put(x, 31, kStoneWall.horizontal());

    // The square, its fountain and lamps.
    m.patch(12, 13, 16, 9, kGrassCobble);
    m.object(19, 16, kFountain, 2, 2);
    for (auto [x, y] : {std::pair{13, 14}, {26, 14}, {13, 20}, {26, 20}}) m.put(x, y, kLampPost);
    m.put(23, 19, kNoticeBoard);

    // Roads: north to the elder, south to the gate, west to the smithy, east to the cottages.
    m.bandDown(19, 6, 2, 8, kGrassCobble);
    m.bandDown(kTownGateX, 21, 3, 11, kGrassDirt);
    m.fill(kTownGateX, 21, 3, 1, kGrassCobble.c());
    m.bandAcross(4, 18, 9, 3, kGrassDirt);
    m.fill(12, 18, 1, 3, kGrassCobble.c());
    m.bandAcross(27, 17, 9, 3, kGrassDirt);
    m.fill(27, 17, 1, 3, kGrassCobble.c());
    m.fill(19, 13, 2, 1, kGrassCobble.c());

    // The houses: elder, inn, store, smithy, two cottages.
    m.house(16, 2, 7, kRoofRed, kWallBrick, 3);
    m.house(12, 9, 7, kRoofRed, kWallPlaster, 3);
    m.put(17, 12, kShopSignInn);
    m.house(21, 9, 7, kRoofBlue, kWallWood, 3);
    m.put(22, 12, kShopSignItems);
    m.house(3, 14, 7, kRoofBlue, kWallStone, 3);
    m.put(8, 17, kShopSignWeapons);
    m.put(10, 17, kAnvil);
    m.put(11, 17, kFirewood);
    m.house(29, 13, 6, kRoofThatch, kWallWood, 2);
    m.house(3, 23, 6, kRoofThatch, kWallPlaster, 2);

    // The pond with reeds, the gardens, the graveyard.
    m.patch(30, 3, 7, 6, kGrassPond);
    m.put(33, 5, kLilyPads);
    m.put(29, 8, kFlowerBush);
    m.fence(10, 23, 7, 6, kWoodFence, 13);
    m.ground(11, 24, 5, 4, kDirt, 3);
    for (int x = 11; x < 16; x += 2) m.fill(x, 24, 1, 3, kFlowersYellow);
    m.fence(27, 23, 9, 7, kStoneWall, 31);
    for (int x = 29; x < 35; x += 2) m.put(x, 25, kGrave);
    for (int x = 29; x < 35; x += 2) m.put(x, 27, kCrossGrave);
    m.put(5, 8, kWell);
    for (auto [x, y] : {std::pair{3, 4}, {4, 4}, {9, 6}, {24, 3}, {25, 7}, {36, 21}, {23, 28}, {16, 29}})
        m.put(x, y, kFlowersMixed);
    m.put(11, 12, kBarrelOutside);
    m.put(28, 12, kCrateOutside);
    m.put(kTownGateX - 1, 29, kLampPost);
    m.put(kTownGateX + 3, 29, kLampPost);
    m.put(kTownGateX + 4, 30, kSignpost);

    m.enterMessage("Emberton", "Welcome to Emberton, the last village before the Ashwood.&"
                               "The elder lives in the brick house north of the square.");
    m.sign(23, 19, "Notice Board", "REWARD. Wolves have been seen in the fields and something stirs "
                                   "in the old cave of the Ashwood. Brave souls, see the elder.");
    m.sign(kTownGateX + 4, 30, "Signpost", "South: Emberton Fields, the farms and the road east to the Ashwood.");
    m.sign(15, 12, "The Red Lantern Inn", "The inn is full of traders waiting out the wolves. No rooms tonight.");
    m.sign(24, 12, "Osric's Goods", "Closed while Osric minds his stall on the square.");
    m.sign(6, 17, "Hild's Smithy", "The forge is hot. Hild is out at the anvil.");
    m.sign(19, 5, "Elder's House", "The door is locked. The elder is out in the lane.");
    m.sign(5, 8, "Well", "The water is cold and clear.");

    const QString npcs = QStringLiteral("\\images\\npcs\\");
    m.npc({"Elder Maren", npcs + "elder.bmp", "Darkness gathers in the Ember Cave beyond the Ashwood. "
                                              "Take the road south, then east over the river bridge.",
           "\\events\\emberton elder.ube", 21, 8, 0});
    m.npc({"Guard Tomas", npcs + "guard.bmp", "Mind the wolves out in the fields. They come at night.",
           "\\events\\emberton guard.ube", kTownGateX - 1, 28, 0});
    m.npc({"Osric", npcs + "merchant.bmp", "Potions, bread, charms! The best in the vale, friend.",
           "\\events\\emberton merchant.ube", 25, 14, 0});
    m.npc({"Hild", npcs + "blacksmith.bmp", "A blade from my forge will see you through the Ashwood.",
           "\\events\\emberton smith.ube", 9, 19, 0});
    m.npc({"Hanna", npcs + "villager_woman.bmp", "Lovely day for the market, isn't it?",
           "\\events\\emberton hanna.ube", 15, 19, 0, true});
    m.npc({"Brom", npcs + "villager_man.bmp", "My sheep went missing last night. Wolves, I tell you.",
           "\\events\\emberton brom.ube", 24, 17, 0, true});
    m.npc({"Pip", npcs + "child.bmp", "I found a loaf in the garden! Don't tell mum.",
           "\\events\\emberton pip.ube", 14, 22, 0, true});
    m.npc({"Brother Aldo", npcs + "monk.bmp", "Rest easy, all who sleep here.",
           "\\events\\emberton monk.ube", 31, 26, 0, true});

    m.pile("&EmbertonGardenBread", pileItem(lists.items, "Loaf of Bread"), 12, 26);
    m.pile("&EmbertonWellPotion", pileItem(lists.items, "Healing Potion"), 6, 9);
    m.setStart(19, 19);
    m.setNight(true);
    m.setMusic("\\sfx\\town.mid");
    m.screenWarps(QString(), kFieldsMap, QString(), QString());
    return m;
}

} // namespace worldgen
