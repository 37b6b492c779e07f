// Things that stand about in towns and fields: stairs, signs, fences, bridges.
#include "art.h"
#include "ground.h"
#include "palette.h"
#include "props.h"
#include "tilesheet.h"

#include <cmath>

namespace worldgen {
namespace {

void standing(Image& img, const Mask& m, const Ramp& ramp, int base = 2)
{
    drawStanding(img, m, ramp, pal::kInk, base);
}

Image steps(Ground ground, const Ramp& ramp, bool down)
{
    Image img = groundTile(ground);
    for (int i = 0; i < 5; ++i) {
        const int y = 2 + i * 4;
        Mask tread(24, 24);
        tread.rect(3, y, 18, 4);
        outline(img, tread, pal::kInk);
        paintLit(img, tread, ramp, down ? 2 - i / 2 : 1 + i / 2);
        if (down)
            for (int x = 3; x < 21; ++x) img.set(x, y + 3, mix(img.at(x, y + 3), pal::kInk, 0.15 * i + 0.2));
    }
    return img;
}

Image ladderDown()
{
    Image img = groundTile(Ground::WoodFloor);
    Mask hole(24, 24);
    hole.rect(4, 3, 16, 18);
    outline(img, hole, pal::kPlank[0]);
    paintFlat(img, hole, pal::kInk);
    for (int y = 3; y < 21; ++y) {
        img.set(7, y, pal::kWood[3]);
        img.set(16, y, pal::kWood[2]);
        if (y % 4 == 1) img.fill(8, y, 8, 1, mix(pal::kWood[3], pal::kInk, (y - 3) / 20.0));
    }
    return img;
}

Image trapdoor()
{
    Image img = groundTile(Ground::WoodFloor, 1);
    Mask lid(24, 24);
    lid.rect(4, 4, 16, 16);
    drawBlock(img, lid, pal::kWood, pal::kInk);
    for (int x = 8; x < 20; x += 4) img.fill(x, 5, 1, 14, pal::kWood[0]);
    Mask ring(24, 24);
    ring.ellipse(12, 12, 2.5, 2.5).ellipse(12, 12, 1.2, 1.2, false);
    paintFlat(img, ring, pal::kIron[3]);
    return img;
}

Image caveEntrance()
{
    Image img = groundTile(Ground::Grass, 1);
    Mask face(24, 24), mouth(24, 24);
    face.polygon({{0, 0}, {24, 0}, {24, 23}, {0, 23}});
    mouth.ellipse(12, 20, 7, 13);
    paintRound(img, face, pal::kCave, 0.4);
    for (int i = 0; i < 20; ++i)
        img.set(static_cast<int>(noise01(i, 0, 51) * 24), static_cast<int>(noise01(i, 1, 51) * 24), pal::kCave[0]);
    outline(img, mouth, pal::kCave[4]);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x)
            if (mouth.at(x, y)) img.set(x, y, mix(pal::kInk, Rgb{6, 4, 10}, y / 24.0));
    img.fill(0, 22, 24, 2, pal::kGrass[1]);
    img.fill(5, 22, 14, 2, pal::kDirt[1]);
    return img;
}

Image well()
{
    Image img = groundTile(Ground::Cobble, 1);
    Mask wall(24, 24), water(24, 24), roof(24, 24), posts(24, 24);
    wall.ellipse(12, 15, 9, 7);
    water.ellipse(12, 14, 6, 4);
    posts.rect(3, 3, 2, 12).rect(19, 3, 2, 12);
    roof.polygon({{1, 5}, {12, 0}, {23, 5}, {21, 6}, {3, 6}});
    standing(img, wall, pal::kStone, 3);
    paintFlat(img, water, pal::kWater[1]);
    img.fill(10, 13, 3, 1, pal::kWater[3]);
    standing(img, posts, pal::kWood);
    standing(img, roof, pal::kRoofRed);
    img.fill(5, 3, 14, 1, pal::kWood[1]);
    return img;
}

Image board(bool notice)
{
    Image img = groundTile(Ground::Grass, 2);
    Mask post(24, 24), plank(24, 24);
    if (notice) post.rect(4, 8, 2, 14).rect(18, 8, 2, 14);
    else post.rect(11, 8, 2, 14);
    if (notice) plank.rect(2, 3, 20, 13);
    else plank.polygon({{3, 5}, {18, 5}, {21, 8.5}, {18, 12}, {3, 12}});
    standing(img, post, pal::kWood);
    standing(img, plank, pal::kPlank, 3);
    if (!notice) {
        img.fill(6, 8, 10, 1, pal::kWood[1]); // a carved arrow
        img.fill(14, 7, 1, 3, pal::kWood[1]);
        return img;
    }
    const int papers[3][2] = {{5, 5}, {11, 6}, {16, 8}};
    for (const auto& p : papers) {
        img.fill(p[0], p[1], 4, 5, pal::kFlowerWhite[3]);
        img.fill(p[0] + 1, p[1] + 1, 2, 1, pal::kInkSoft);
        img.fill(p[0] + 1, p[1] + 3, 2, 1, pal::kInkSoft);
    }
    return img;
}

Image lampPost()
{
    Image img = groundTile(Ground::Cobble, 2);
    Mask pole(24, 24), lamp(24, 24);
    pole.rect(11, 8, 2, 14).rect(9, 20, 6, 2);
    lamp.polygon({{8, 2}, {16, 2}, {15, 9}, {9, 9}});
    standing(img, pole, pal::kIron);
    drawBlock(img, lamp, pal::kIron, pal::kInk);
    img.fill(10, 4, 4, 4, pal::kFlowerYellow[4]);
    img.fill(10, 7, 4, 1, pal::kFlowerYellow[2]);
    return img;
}

Image grave(bool cross)
{
    Image img = groundTile(Ground::Grass, 3);
    Mask stone(24, 24), mound(24, 24);
    mound.ellipse(12, 19, 8, 3);
    paintRound(img, mound, pal::kDirt);
    if (cross) stone.rect(11, 3, 3, 16).rect(6, 7, 13, 3);
    else stone.rect(6, 6, 12, 13).ellipse(12, 6.5, 6, 4);
    standing(img, stone, pal::kStone, 3);
    if (!cross) {
        img.fill(9, 9, 6, 1, pal::kStone[0]);
        img.fill(9, 12, 6, 1, pal::kStone[0]);
    }
    return img;
}

Image statue()
{
    Image img = groundTile(Ground::Pavement);
    Mask base(24, 24), figure(24, 24);
    base.rect(5, 17, 14, 5);
    figure.ellipse(12, 4, 3, 3).rect(9, 7, 6, 10).rect(7, 8, 2, 6).rect(15, 8, 2, 6).line(17, 3, 17, 14, 1.2);
    standing(img, base, pal::kStone, 3);
    dropShadow(img, figure, 2, 1);
    drawSolid(img, figure, pal::kBone, pal::kInk);
    return img;
}

Image haystack()
{
    Image img = groundTile(Ground::Dirt, 1);
    Mask hay(24, 24);
    hay.ellipse(12, 14, 10, 8).ellipse(12, 8, 6, 5);
    dropShadow(img, hay, 2, 1);
    drawSolid(img, hay, pal::kThatch, pal::kInk);
    for (int i = 0; i < 24; ++i) {
        const int x = 4 + static_cast<int>(noise01(i, 0, 61) * 16), y = 5 + static_cast<int>(noise01(i, 1, 61) * 14);
        if (hay.at(x, y) && hay.at(x, y + 1)) img.set(x, y, pal::kThatch[i % 2 ? 0 : 4]);
    }
    return img;
}

Image firewood(bool burning)
{
    Image img = groundTile(Ground::Dirt, 2);
    if (burning) {
        Mask ring(24, 24);
        for (int i = 0; i < 8; ++i) ring.ellipse(12 + 7 * std::cos(i * 0.785), 15 + 5 * std::sin(i * 0.785), 2, 1.6);
        drawSolid(img, ring, pal::kStone, pal::kInk);
    }
    for (int i = 0; i < (burning ? 3 : 5); ++i) {
        Mask log(24, 24);
        if (burning) log.line(6 + i * 4, 19, 18 - i * 4, 11, 2.6);
        else log.line(4, 18 - i * 3, 20, 18 - i * 3 - (i % 2), 3);
        standing(img, log, pal::kWood);
        if (!burning) img.set(20, 18 - i * 3 - (i % 2), pal::kPlank[3]);
    }
    if (burning) {
        Mask flame(24, 24), core(24, 24);
        flame.polygon({{12, 2}, {16, 9}, {17, 14}, {12, 16}, {7, 14}, {8, 9}, {10, 8}});
        core.polygon({{12, 7}, {14, 12}, {12, 15}, {10, 12}});
        paintRound(img, flame, pal::kLava, 0.8);
        paintFlat(img, core, pal::kFlowerYellow[4]);
    }
    return img;
}

Image fountain()
{
    Image img = groundArea(Ground::Cobble, 48, 48);
    Mask rim(48, 48), pool(48, 48), pillar(48, 48), bowl(48, 48);
    rim.ellipse(24, 27, 21, 16);
    pool.ellipse(24, 26, 17, 12);
    pillar.rect(21, 10, 6, 16);
    bowl.ellipse(24, 11, 8, 3.5);
    dropShadow(img, rim, 2, 2);
    drawSolid(img, rim, pal::kStone, pal::kInk, 0.4);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x)
            if (pool.at(x, y)) img.set(x, y, groundPixel(Ground::Water, x, y + 3));
    outline(img, pool, pal::kStone[1]);
    drawBlock(img, pillar, pal::kStone, pal::kInk, 3);
    drawSolid(img, bowl, pal::kStone, pal::kInk, 0.4);
    for (int i = 0; i < 5; ++i) { // falling water
        img.set(17 + i * 3 / 2, 13 + i * 2, pal::kWater[4]);
        img.set(31 - i * 3 / 2, 13 + i * 2, pal::kWater[4]);
    }
    img.fill(22, 8, 4, 2, pal::kWater[4]);
    return img;
}

// Fence pieces: rails between posts, the rails meeting in the middle of the tile.
Image fence(bool stone, bool north, bool south, bool west, bool east, bool gate = false)
{
    Image img = groundTile(Ground::Grass, stone ? 1 : 0);
    const Ramp& ramp = stone ? pal::kStone : pal::kWood;
    Mask rails(24, 24), posts(24, 24);
    const int w = stone ? 6 : 2;
    auto rail = [&](int x0, int x1) {
        if (stone) rails.rect(x0, 9, x1 - x0, 9);
        else rails.rect(x0, 9, x1 - x0, 2).rect(x0, 15, x1 - x0, 2);
    };
    if (west) rail(0, 12);
    if (east) rail(12, 24);
    if (north) rails.rect(12 - w / 2, 0, w, 14);
    if (south) rails.rect(12 - w / 2, 10, w, 14);
    if (!stone) posts.rect(10, 6, 4, 14);
    if (gate) {
        rails = Mask(24, 24);
        rails.rect(0, 9, 4, 2).rect(0, 15, 4, 2).rect(20, 9, 4, 2).rect(20, 15, 4, 2);
        posts.rect(1, 5, 3, 15).rect(20, 5, 3, 15).cut(Mask(24, 24).rect(10, 6, 4, 14));
    }
    standing(img, rails, ramp, stone ? 3 : 2);
    if (stone)
        for (int y = 9; y < 18; y += 3)
            for (int x = 0; x < 24; ++x)
                if (rails.at(x, y) && (y % 2 || (x + y) % 6 == 0)) img.set(x, y, ramp[1]);
    standing(img, posts, ramp, 3);
    return img;
}

Image bridge(bool vertical, int part, bool stone)
{
    Image img = groundTile(Ground::Water, part);
    Mask deck(24, 24);
    deck.rect(vertical ? 3 : 0, vertical ? 0 : 3, vertical ? 18 : 24, vertical ? 24 : 18);
    dropShadow(img, deck, 0, 2, 0.55);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            if (!deck.at(x, y)) continue;
            const int along = vertical ? y : x, across = vertical ? x : y;
            Rgb c;
            if (stone) c = groundPixel(Ground::Pavement, x, y);
            else c = along % 6 == 5 ? pal::kPlank[0] : shade(pal::kPlank, 2.3 + noise01(along / 6, part, 2) * 0.8 - (along % 6 == 4) * 0.8, x, y);
            if (across == 3 || across == 20) c = stone ? pal::kStone[4] : pal::kWood[3]; // rails
            if (across == 4 || across == 19) c = stone ? pal::kStone[1] : pal::kWood[0];
            img.set(x, y, c);
        }
    outline(img, deck, pal::kInk);
    // The ends rest on the bank: a post on each side.
    if (!stone && part != 1) {
        const int end = part == 0 ? 1 : 22;
        Mask posts(24, 24);
        if (vertical) posts.rect(3, end - 1, 3, 3).rect(18, end - 1, 3, 3);
        else posts.rect(end - 1, 3, 3, 3).rect(end - 1, 18, 3, 3);
        drawBlock(img, posts, pal::kWood, pal::kInk, 3);
    }
    return img;
}

Image pier()
{
    Image img = groundTile(Ground::Water, 2);
    Mask deck(24, 24);
    deck.rect(2, 0, 20, 24);
    dropShadow(img, deck, 1, 0, 0.55);
    for (int y = 0; y < 24; ++y)
        for (int x = 2; x < 22; ++x)
            img.set(x, y, y % 4 == 3 ? pal::kPlank[0] : shade(pal::kPlank, 2.2 + noise01(y / 4, 0, 12), x, y));
    img.fill(2, 0, 1, 24, pal::kInk);
    img.fill(21, 0, 1, 24, pal::kInk);
    return img;
}

} // namespace

void paintOutdoorThings(TileSheet& sheet)
{
    sheet.put(kStairsUp, steps(Ground::Grass, pal::kStone, false), kPassable);
    sheet.put(kStairsDown, steps(Ground::Grass, pal::kStone, true), kPassable);
    sheet.put(kWoodStairs, steps(Ground::WoodFloor, pal::kPlank, false), kPassable);
    sheet.put(kLadderDown, ladderDown(), kPassable);
    sheet.put(kTrapdoor, trapdoor(), kPassable);
    sheet.put(kCaveEntrance, caveEntrance(), kPassable);
    sheet.put(kWell, well(), kBlocked);
    sheet.put(kSignpost, board(false), kBlocked);
    sheet.put(kNoticeBoard, board(true), kBlocked);
    sheet.put(kLampPost, lampPost(), kBlocked);
    sheet.put(kGrave, grave(false), kBlocked);
    sheet.put(kCrossGrave, grave(true), kBlocked);
    sheet.put(kStatue, statue(), kBlocked);
    Image barrel = groundTile(Ground::Dirt), crate = groundTile(Ground::Dirt, 1);
    drawBarrel(barrel);
    drawCrate(crate);
    sheet.put(kBarrelOutside, barrel, kBlocked);
    sheet.put(kCrateOutside, crate, kBlocked);
    sheet.put(kHaystack, haystack(), kBlocked);
    sheet.put(kFirewood, firewood(false), kBlocked);
    sheet.put(kCampfire, firewood(true), kBlocked);
    sheet.putBlock(kFountain, fountain(), kBlocked);

    for (bool stone : {false, true}) {
        const FenceSet set = stone ? kStoneWall : kWoodFence;
        sheet.put(set.horizontal(), fence(stone, false, false, true, true), kBlocked);
        sheet.put(set.vertical(), fence(stone, true, true, false, false), kBlocked);
        sheet.put(set.nw(), fence(stone, false, true, false, true), kBlocked);
        sheet.put(set.ne(), fence(stone, false, true, true, false), kBlocked);
        sheet.put(set.sw(), fence(stone, true, false, false, true), kBlocked);
        sheet.put(set.se(), fence(stone, true, false, true, false), kBlocked);
    }
    sheet.put(kFencePost, fence(false, false, false, false, false), kBlocked);
    sheet.put(kFenceGate, fence(false, false, false, true, true, true), kPassable);

    for (int part = 0; part < 3; ++part) {
        sheet.put(kBridgeH[part], bridge(false, part, false), kPassable);
        sheet.put(kBridgeV[part], bridge(true, part, false), kPassable);
    }
    sheet.put(kStoneBridgeH, bridge(false, 1, true), kPassable);
    sheet.put(kStoneBridgeV, bridge(true, 1, true), kPassable);
    sheet.put(kPier, pier(), kPassable);
}

} // namespace worldgen
