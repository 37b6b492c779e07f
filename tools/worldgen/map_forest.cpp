// The Ashwood: a dense wood east of the fields. A path runs in from the
// west to a hunters' camp; from there one path climbs north to the mouth of
// the Ember Cave, one leads east to a hermit's pond, one south to a hollow.
// Clearings sit on the even grid of the trees, so no tree is cut in half.
#include "starter_maps.h"

namespace worldgen {

MapCanvas forestMap(const TilePass& pass, const StarterLists& lists)
{
    MapCanvas m(56, 48, pass);
    m.ground(0, 0, 57, 49, kGrass, 4);
    m.trees(0, 0, 57, 49);

    // Clearings: the path in, the camp, the way north, the cave's rock face,
    // the glade and the hollow.
    m.ground(0, kEastRoadY, 44, 4, kGrass, 4);
    m.ground(18, 22, 12, 16, kGrass, 4);
    m.ground(26, 10, 4, 12, kGrass, 4);
    m.ground(20, 2, 18, 8, kGrass, 4);
    m.ground(40, 24, 14, 16, kGrass, 4);
    m.ground(14, 38, 14, 6, kGrass, 4);

    m.bandAcross(0, kEastRoadY, 44, 3, kGrassDirt);
    m.bandDown(26, 8, 3, 22, kGrassDirt);
    m.fill(26, kEastRoadY, 3, 1, kGrassDirt.c());
    m.bandDown(20, kEastRoadY + 3, 3, 6, kGrassDirt);
    m.fill(20, kEastRoadY + 2, 3, 1, kGrassDirt.c());

    // The rock face with the cave's mouth.
    for (int x = 20; x < 38; x += 2) {
        m.object(x, 2, kBoulder, 2, 2);
        m.object(x, 4, kBoulder, 2, 2);
    }
    for (int x = 20; x < 38; ++x) m.put(x, kCaveMouthY, kBigRock);
    m.put(kCaveMouthX, kCaveMouthY, kCaveEntrance);
    m.put(kCaveMouthX, kCaveMouthY + 1, kDirt[0]);
    m.put(23, 8, kDeadTree);
    m.put(35, 8, kRock);
    m.put(33, 7, kStump);

    // The hunters' camp.
    m.put(24, 26, kCampfire);
    m.put(22, 26, kLog);
    m.put(26, 25, kLog);
    m.put(20, 24, kStump);
    m.put(28, 23, kFirewood);
    m.put(25, kEastRoadY - 1, kSignpost);
    // The glade and its pond, the hollow with its mushrooms.
    m.patch(46, 33, 6, 5, kGrassPond);
    m.put(48, 35, kLilyPads);
    for (auto [x, y] : {std::pair{42, 26}, {51, 26}, {41, 38}, {44, 38}, {52, 30}}) m.put(x, y, kFlowersBlue);
    for (auto [x, y] : {std::pair{15, 39}, {18, 42}, {23, 39}, {26, 41}, {16, 41}}) m.put(x, y, kMushrooms);
    m.put(17, 39, kLog);
    m.put(25, 42, kStump);

    m.enterMessage("The Ashwood", "The trees close in overhead. Somewhere a wolf howls.");
    m.sign(25, kEastRoadY - 1, "Signpost", "North: the Ember Cave. East: the hermit's pond. West: the fields.");
    m.warp(kCaveMouthX, kCaveMouthY, kCaveMap, kCaveLadderX, kCaveLadderY - 1);

    const QString npcs = QStringLiteral("\\images\\npcs\\");
    m.npc({"Hunter Cole", npcs + "villager_man.bmp", "Goblins have been raiding from the cave. Watch your back.",
           "\\events\\ashwood hunter.ube", 21, 27, 0, true});
    m.npc({"Ysolde", npcs + "mage.bmp", "Fire sleeps under the Ashwood. Take water, and courage, if you go down.",
           "\\events\\ashwood hermit.ube", 44, 28, 0});

    m.pile("&AshwoodCampBow", pileEquipment(lists.equipment, "Short Bow-Bow"), 28, 36);
    m.pile("&AshwoodGladePotion", pileItem(lists.items, "Mana Potion"), 52, 38);
    m.pile("&AshwoodHollowTonic", pileItem(lists.items, "Strength Tonic"), 26, 42);

    m.enemies({"Grey Wolf-Warrior:1:All", "Dire Wolf-Warrior:2:All", "Goblin Cutthroat-Warrior:1:All",
               "Goblin Hexer-Mage:2:All", "Giant Spider-Both:3:All"}, 8);
    m.setStart(1, kEastRoadY + 1);
    m.setNight(true);
    m.setMusic("\\sfx\\default.mid");
    m.screenWarps(QString(), QString(), kFieldsMap, QString());
    return m;
}

} // namespace worldgen
