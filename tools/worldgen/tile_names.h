#pragma once
// Names of the tiles of "\tilesets\default.bmp", for composing maps.
// A Tile is a column and row of the 50 x 50 sheet; in a map cell it is
// written "sx|sy" with sx = 24 * col and sy = 24 * row.
// Passability: ground, floors, flowers, bridges, open doors and stairs are
// passable (1); water, walls, roofs, trees, rocks, fences and furniture are
// blocked (2). Objects are drawn onto the ground they usually stand on.

namespace worldgen {

struct Tile {
    int col = 0;
    int row = 0;
    constexpr int sx() const { return col * 24; }
    constexpr int sy() const { return row * 24; }
    constexpr Tile at(int dc, int dr) const { return {col + dc, row + dr}; }
    friend constexpr bool operator==(Tile, Tile) = default;
};

// A border between an outer ground and an inner one (a pond in grass, a
// sand patch, ...), a block of 5 x 3 tiles:
//   nw  n  ne  innerNw innerNe
//   w   c  e   innerSw innerSe
//   sw  s  se  c2      c3
// nw..se frame a patch of the inner ground (c, c2, c3 are all inner). An
// inner corner holds the outer ground in one corner only, for the bend of an
// L-shaped patch.
struct EdgeSet {
    Tile origin;
    constexpr Tile nw() const { return origin; }
    constexpr Tile n() const { return origin.at(1, 0); }
    constexpr Tile ne() const { return origin.at(2, 0); }
    constexpr Tile w() const { return origin.at(0, 1); }
    constexpr Tile c() const { return origin.at(1, 1); }
    constexpr Tile e() const { return origin.at(2, 1); }
    constexpr Tile sw() const { return origin.at(0, 2); }
    constexpr Tile s() const { return origin.at(1, 2); }
    constexpr Tile se() const { return origin.at(2, 2); }
    constexpr Tile innerNw() const { return origin.at(3, 0); }
    constexpr Tile innerNe() const { return origin.at(4, 0); }
    constexpr Tile innerSw() const { return origin.at(3, 1); }
    constexpr Tile innerSe() const { return origin.at(4, 1); }
    constexpr Tile c2() const { return origin.at(3, 2); }
    constexpr Tile c3() const { return origin.at(4, 2); }
};

// A gabled roof seen from the south, 3 x 3: top row ridge, middle row slope,
// bottom row eaves; left and right columns are the gable ends. chimney() is
// a slope tile with a chimney, beside the block.
struct RoofSet {
    Tile origin;
    constexpr Tile part(int col, int row) const { return origin.at(col, row); }
    constexpr Tile chimney() const { return origin.at(3, 1); }
};

// One style of house front, six tiles in a row.
struct WallSet {
    Tile origin;
    constexpr Tile left() const { return origin; }
    constexpr Tile middle() const { return origin.at(1, 0); }
    constexpr Tile right() const { return origin.at(2, 0); }
    constexpr Tile window() const { return origin.at(3, 0); }
    constexpr Tile door() const { return origin.at(4, 0); }     // closed, blocked
    constexpr Tile doorOpen() const { return origin.at(5, 0); } // passable
};

// A fence or low wall: straight pieces and corners.
struct FenceSet {
    Tile origin;
    constexpr Tile horizontal() const { return origin; }
    constexpr Tile vertical() const { return origin.at(1, 0); }
    constexpr Tile nw() const { return origin.at(2, 0); }
    constexpr Tile ne() const { return origin.at(3, 0); }
    constexpr Tile sw() const { return origin.at(4, 0); }
    constexpr Tile se() const { return origin.at(5, 0); }
};

// ---- Ground, row 0 --------------------------------------------------------
constexpr Tile kGrass[4] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}};
constexpr Tile kFlowersRed{4, 0};
constexpr Tile kFlowersYellow{5, 0};
constexpr Tile kFlowersWhite{6, 0};
constexpr Tile kFlowersBlue{7, 0};
constexpr Tile kFlowersMixed{8, 0};
constexpr Tile kClover{9, 0};
constexpr Tile kTallGrass{10, 0};
constexpr Tile kMushrooms{11, 0};
constexpr Tile kDirt[3] = {{12, 0}, {13, 0}, {14, 0}};
constexpr Tile kSand[3] = {{15, 0}, {16, 0}, {17, 0}};
constexpr Tile kCobble[3] = {{18, 0}, {19, 0}, {20, 0}};
constexpr Tile kGravel{21, 0};
constexpr Tile kMud{22, 0};
constexpr Tile kSnow[2] = {{23, 0}, {24, 0}};
constexpr Tile kPavement[2] = {{25, 0}, {26, 0}};
constexpr Tile kWater[3] = {{27, 0}, {28, 0}, {29, 0}}; // blocked
constexpr Tile kDeepWater{30, 0};                        // blocked
constexpr Tile kLilyPads{31, 0};                         // blocked
constexpr Tile kReeds{32, 0};                            // blocked
constexpr Tile kWaterRocks{33, 0};                       // blocked
constexpr Tile kIce{34, 0};
constexpr Tile kCaveFloor[3] = {{35, 0}, {36, 0}, {37, 0}};
constexpr Tile kDungeonFloor[3] = {{38, 0}, {39, 0}, {40, 0}};
constexpr Tile kLava{41, 0};  // blocked
constexpr Tile kChasm{42, 0}; // blocked

// ---- Borders, rows 3 to 8 --------------------------------------------------
constexpr EdgeSet kGrassPond{{0, 3}};     // water inside grass; water parts blocked
constexpr EdgeSet kBeach{{5, 3}};         // water inside sand; water parts blocked
constexpr EdgeSet kGrassSand{{10, 3}};    // sand inside grass
constexpr EdgeSet kGrassDirt{{15, 3}};    // dirt road or field inside grass
constexpr EdgeSet kGrassCobble{{20, 3}};  // cobbled square inside grass
constexpr EdgeSet kSnowGrass{{25, 3}};    // grass inside snow
constexpr EdgeSet kCaveChasm{{0, 6}};     // a pit inside cave floor; pit parts blocked
constexpr EdgeSet kCaveLava{{5, 6}};      // lava inside cave floor; lava parts blocked
constexpr EdgeSet kDungeonWater{{10, 6}}; // water inside dungeon floor; water parts blocked
constexpr EdgeSet kDirtWater{{15, 6}};    // water inside dirt; water parts blocked


// ---- Nature, rows 9 and 10 -------------------------------------------------
// Several-tile objects are named by their top-left tile; use .at(col, row).
constexpr Tile kOak{0, 9};        // 2 x 2 on grass
constexpr Tile kBigPine{2, 9};    // 2 x 2 on grass
constexpr Tile kPine{4, 9};       // 1 x 2 on grass
constexpr Tile kPalm{5, 9};       // 1 x 2 on sand
constexpr Tile kBoulder{6, 9};    // 2 x 2 on grass
constexpr Tile kRoundTree{8, 9};
constexpr Tile kFruitTree{9, 9};
constexpr Tile kSmallPine{10, 9};
constexpr Tile kDeadTree{11, 9};
constexpr Tile kStump{12, 9};
constexpr Tile kBush{13, 9};
constexpr Tile kBerryBush{14, 9};
constexpr Tile kFlowerBush{15, 9};
constexpr Tile kRock{16, 9};
constexpr Tile kBigRock{17, 9};
constexpr Tile kSandRock{18, 9};
constexpr Tile kLog{19, 9};
constexpr Tile kHedge{20, 9};
constexpr Tile kSnowPine{21, 9};  // on snow
constexpr Tile kSnowRock{22, 9};  // on snow
constexpr Tile kCactus{23, 9};    // on sand
constexpr Tile kAutumnTree{8, 10};
constexpr Tile kSnowBush{9, 10};  // on snow
constexpr Tile kDirtRock{10, 10}; // on dirt
constexpr Tile kShrubDirt{11, 10}; // on dirt


// ---- Houses, rows 12 to 15 -------------------------------------------------
constexpr RoofSet kRoofRed{{0, 12}};
constexpr RoofSet kRoofBlue{{4, 12}};
constexpr RoofSet kRoofThatch{{8, 12}};
constexpr WallSet kWallStone{{0, 15}};
constexpr WallSet kWallPlaster{{6, 15}};
constexpr WallSet kWallWood{{12, 15}};
constexpr WallSet kWallBrick{{18, 15}};
constexpr Tile kShopSignInn{24, 15};     // plaster wall with a hanging sign
constexpr Tile kShopSignWeapons{25, 15};
constexpr Tile kShopSignItems{26, 15};
constexpr Tile kShopSignMagic{27, 15};


// ---- Outdoor things, rows 17 to 20 -----------------------------------------
constexpr Tile kStairsUp{0, 17};       // stone steps on grass, passable
constexpr Tile kStairsDown{1, 17};     // steps into the dark, passable
constexpr Tile kWoodStairs{2, 17};     // passable
constexpr Tile kLadderDown{3, 17};     // passable
constexpr Tile kTrapdoor{4, 17};       // passable
constexpr Tile kCaveEntrance{5, 17};   // dark mouth in a rock face, passable
constexpr Tile kWell{6, 17};
constexpr Tile kSignpost{7, 17};
constexpr Tile kNoticeBoard{8, 17};
constexpr Tile kLampPost{9, 17};
constexpr Tile kGrave{10, 17};
constexpr Tile kCrossGrave{11, 17};
constexpr Tile kStatue{12, 17};
constexpr Tile kBarrelOutside{13, 17};
constexpr Tile kCrateOutside{14, 17};
constexpr Tile kHaystack{15, 17};
constexpr Tile kFirewood{16, 17};
constexpr Tile kCampfire{17, 17};
constexpr Tile kFountain{18, 17};      // 2 x 2 on cobbles
constexpr FenceSet kWoodFence{{0, 19}};
constexpr Tile kFencePost{6, 19};
constexpr Tile kFenceGate{7, 19};      // passable
constexpr FenceSet kStoneWall{{8, 19}};
constexpr Tile kBridgeH[3] = {{0, 20}, {1, 20}, {2, 20}}; // west end, middle, east end; passable
constexpr Tile kBridgeV[3] = {{3, 20}, {4, 20}, {5, 20}}; // north end, middle, south end; passable
constexpr Tile kStoneBridgeH{6, 20};
constexpr Tile kStoneBridgeV{7, 20};
constexpr Tile kPier{8, 20};           // planks over water, passable


// ---- Indoors, rows 21 to 25 ------------------------------------------------
constexpr Tile kWoodFloor[2] = {{0, 21}, {1, 21}};
constexpr Tile kCheckerFloor{2, 21};
constexpr Tile kTileFloor{3, 21};
constexpr Tile kInnerWallTop{4, 21};     // the dark top of a wall seen from above
constexpr Tile kInnerWallWood{5, 21};    // wall faces, seen from inside
constexpr Tile kInnerWallPlaster{6, 21};
constexpr Tile kInnerWallStone{7, 21};
constexpr Tile kInnerWindow{8, 21};
constexpr Tile kInnerDoorway{9, 21};     // passable
constexpr Tile kRug{10, 21};             // 3 x 3 on wood floor, passable: .at(col, row)
constexpr Tile kTableLeft{0, 24};
constexpr Tile kTableRight{1, 24};
constexpr Tile kRoundTable{2, 24};
constexpr Tile kChair[4] = {{3, 24}, {4, 24}, {5, 24}, {6, 24}}; // facing down, up, left, right
constexpr Tile kStool{7, 24};
constexpr Tile kBed{8, 24};              // 1 x 2: pillow end on top
constexpr Tile kChest{9, 24};
constexpr Tile kChestOpen{10, 24};
constexpr Tile kBarrel{11, 24};
constexpr Tile kCrate{12, 24};
constexpr Tile kBookshelf{13, 24};
constexpr Tile kCupboard{14, 24};
constexpr Tile kFireplace{15, 24};
constexpr Tile kVase{16, 24};
constexpr Tile kCandles{17, 24};
constexpr Tile kCounter[3] = {{18, 24}, {19, 24}, {20, 24}}; // shop counter: left, middle, right
constexpr Tile kPottedPlant{21, 24};
constexpr Tile kAnvil{22, 24};
constexpr Tile kCauldron{23, 24};
constexpr Tile kWeaponRack{24, 24};
constexpr Tile kArmourStand{25, 24};
constexpr Tile kSacks{26, 24};
constexpr Tile kBench{27, 24};

// ---- Dungeon and cave, rows 28 and 29 --------------------------------------
constexpr Tile kDungeonWallTop{0, 28};
constexpr Tile kDungeonWall{1, 28};
constexpr Tile kDungeonTorch{2, 28};
constexpr Tile kDungeonBanner{3, 28};
constexpr Tile kPillar{4, 28};
constexpr Tile kBones{5, 28};            // passable
constexpr Tile kSkulls{6, 28};
constexpr Tile kSpikes{7, 28};           // passable, for events to hurt
constexpr Tile kDungeonStairsDown{8, 28};
constexpr Tile kDungeonStairsUp{9, 28};
constexpr Tile kIronDoor{10, 28};
constexpr Tile kBars{11, 28};
constexpr Tile kDungeonChest{12, 28};
constexpr Tile kAltar{13, 28};
constexpr Tile kGrate{14, 28};           // passable
constexpr Tile kCoffin{15, 28};
constexpr Tile kCaveWall{0, 29};
constexpr Tile kCaveWallTop{1, 29};
constexpr Tile kStalagmite{2, 29};
constexpr Tile kCrystal{3, 29};
constexpr Tile kCaveMushroom{4, 29};
constexpr Tile kCaveRock{5, 29};
constexpr Tile kWeb{6, 29};              // passable
constexpr Tile kOreVein{7, 29};
constexpr Tile kRubble{8, 29};
constexpr Tile kCaveLadderUp{9, 29};     // passable

} // namespace worldgen
