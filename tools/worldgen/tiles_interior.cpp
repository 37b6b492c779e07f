// Floors, inner walls and furniture of houses and shops.
#include "art.h"
#include "ground.h"
#include "palette.h"
#include "props.h"
#include "tilesheet.h"
#include "walls.h"

namespace worldgen {
namespace {

Image floorTile(int variant = 0) { return groundTile(Ground::WoodFloor, variant); }

// Inside, walls are in the shade: a darker face with a wooden skirting.
Image innerWall(WallKind kind)
{
    Image img = wallFace(kind);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) img.set(x, y, mix(img.at(x, y), pal::kInk, 0.22));
    img.fill(0, 19, 24, 4, pal::kWood[1]);
    img.fill(0, 19, 24, 1, pal::kWood[3]);
    img.fill(0, 23, 24, 1, pal::kInk);
    return img;
}

Image wallTop()
{
    Image img(24, 24, pal::kInkSoft);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x)
            if (noise01(x, y, 71) < 0.08) img.set(x, y, mix(pal::kInkSoft, pal::kWood[0], 0.5));
    img.fill(0, 21, 24, 3, pal::kWood[2]);
    img.fill(0, 21, 24, 1, pal::kWood[4]);
    return img;
}

Image rug()
{
    Image img = groundArea(Ground::WoodFloor, 72, 72);
    for (int y = 3; y < 69; ++y)
        for (int x = 3; x < 69; ++x) {
            const int edge = std::min(std::min(x - 3, 68 - x), std::min(y - 3, 68 - y));
            Rgb c;
            if (edge == 0) c = pal::kInk;
            else if (edge < 4) c = pal::kGold[edge == 1 ? 3 : 2];
            else if (edge == 4) c = pal::kRed[0];
            else {
                // A diamond pattern repeating every 12 pixels.
                const int u = std::abs((x % 12) - 6) + std::abs((y % 12) - 6);
                c = u == 5 ? pal::kGold[1] : u < 2 ? pal::kFlowerBlue[1] : pal::kRed[2 + ((x + y) % 2 == 0 && u > 6)];
            }
            img.set(x, y, c);
        }
    return img;
}

Image table(int part)
{
    Image img = groundArea(Ground::WoodFloor, 48, 24);
    Mask top(48, 24), legs(48, 24);
    top.rect(2, 4, 44, 12);
    legs.rect(4, 16, 3, 6).rect(41, 16, 3, 6);
    drawStanding(img, legs, pal::kWood, pal::kInk);
    drawStanding(img, top, pal::kPlank, pal::kInk, 3);
    for (int x = 2; x < 46; x += 11) img.fill(x, 5, 1, 10, pal::kPlank[2]);
    img.fill(2, 15, 44, 1, pal::kWood[1]);
    return img.crop(part * 24, 0, 24, 24);
}

Image roundTable()
{
    Image img = floorTile();
    Mask top(24, 24), leg(24, 24);
    leg.rect(10, 14, 4, 8);
    top.ellipse(12, 10, 10, 7);
    drawStanding(img, leg, pal::kWood, pal::kInk);
    dropShadow(img, top, 2, 2);
    drawSolid(img, top, pal::kPlank, pal::kInk, 0.3);
    Mask cup(24, 24);
    cup.rect(14, 7, 3, 3);
    drawBlock(img, cup, pal::kFlowerWhite, pal::kInk);
    return img;
}

// direction 0 down, 1 up, 2 left, 3 right: where the sitter would face.
Image chair(int direction)
{
    Image img = floorTile(1);
    Mask seat(24, 24), back(24, 24), legs(24, 24);
    seat.rect(7, 10, 10, 7);
    legs.rect(7, 17, 2, 5).rect(15, 17, 2, 5);
    switch (direction) {
    case 0: back.rect(7, 2, 10, 8); break;
    case 1: back.rect(7, 14, 10, 5); break;
    case 2: back.rect(16, 3, 3, 14); break;
    default: back.rect(5, 3, 3, 14);
    }
    drawStanding(img, legs, pal::kWood, pal::kInk);
    if (direction != 1) drawStanding(img, back, pal::kWood, pal::kInk);
    drawStanding(img, seat, pal::kRed, pal::kInk, 3);
    if (direction == 1) drawStanding(img, back, pal::kWood, pal::kInk);
    return img;
}

Image stoolOrBench(bool bench)
{
    Image img = floorTile();
    Mask top(24, 24), legs(24, 24);
    if (bench) {
        top.rect(0, 9, 24, 6);
        legs.rect(3, 15, 2, 6).rect(19, 15, 2, 6);
    } else {
        top.ellipse(12, 11, 6, 4);
        legs.rect(8, 13, 2, 8).rect(14, 13, 2, 8);
    }
    drawStanding(img, legs, pal::kWood, pal::kInk);
    drawStanding(img, top, pal::kPlank, pal::kInk, 3);
    return img;
}

Image bed()
{
    Image img = groundArea(Ground::WoodFloor, 24, 48);
    Mask frame(24, 48), pillow(24, 48), blanket(24, 48), head(24, 48);
    frame.rect(2, 4, 20, 42);
    head.rect(2, 1, 20, 5);
    pillow.rect(5, 8, 14, 7);
    blanket.rect(3, 17, 18, 27);
    drawStanding(img, frame, pal::kWood, pal::kInk);
    drawStanding(img, head, pal::kWood, pal::kInk, 3);
    paintFlat(img, Mask(24, 48).rect(3, 6, 18, 11), pal::kFlowerWhite[2]);
    drawSolid(img, pillow, pal::kFlowerWhite, pal::kInkSoft, 0.3);
    drawBlock(img, blanket, pal::kCloth, pal::kInkSoft, 2);
    img.fill(3, 17, 18, 3, pal::kCloth[4]);
    for (int y = 24; y < 44; y += 6) img.fill(4, y, 16, 1, pal::kCloth[1]);
    return img;
}

Image bookshelf()
{
    Image img = floorTile();
    Mask frame(24, 24);
    frame.rect(1, 0, 22, 22);
    drawStanding(img, frame, pal::kWood, pal::kInk);
    const Ramp* colours[] = {&pal::kRed, &pal::kCloth, &pal::kGreenCloth, &pal::kPurple, &pal::kGold};
    for (int shelf = 0; shelf < 3; ++shelf) {
        const int y = 2 + shelf * 7;
        img.fill(3, y, 18, 6, pal::kWood[0]);
        for (int x = 3; x < 21;) {
            const int w = 1 + static_cast<int>(noise01(x, shelf, 3) * 2.5);
            const int h = 4 + static_cast<int>(noise01(x, shelf, 4) * 2);
            const Ramp& c = *colours[static_cast<int>(noise01(x, shelf, 5) * 5)];
            img.fill(x, y + 6 - h, w, h, c[2]);
            img.fill(x, y + 6 - h, 1, h, c[3]);
            x += w + (noise01(x, shelf, 6) < 0.2);
        }
        img.fill(2, y + 6, 20, 1, pal::kWood[3]);
    }
    return img;
}

Image cupboard()
{
    Image img = floorTile(1);
    Mask body(24, 24);
    body.rect(2, 1, 20, 21);
    drawStanding(img, body, pal::kWood, pal::kInk);
    for (int x : {4, 13}) {
        Mask doorLeaf(24, 24);
        doorLeaf.rect(x, 3, 7, 16);
        drawBlock(img, doorLeaf, pal::kPlank, pal::kWood[0]);
    }
    img.set(10, 11, pal::kGold[4]);
    img.set(13, 11, pal::kGold[4]);
    return img;
}

Image fireplace()
{
    Image img = floorTile();
    Mask stone(24, 24), mouth(24, 24), fire(24, 24);
    stone.rect(0, 0, 24, 22);
    mouth.rect(5, 8, 14, 14).ellipse(12, 8, 7, 4);
    fire.polygon({{12, 10}, {16, 16}, {16, 21}, {8, 21}, {8, 16}});
    drawStanding(img, stone, pal::kStone, pal::kInk);
    for (int y = 0; y < 22; ++y)
        for (int x = 0; x < 24; ++x)
            if (stone.at(x, y) && !mouth.at(x, y)) img.set(x, y, masonry(pal::kStone, x, y, 8, 5, 4, 4));
    paintFlat(img, mouth, pal::kInk);
    paintRound(img, fire, pal::kLava, 0.6);
    img.fill(7, 20, 10, 2, pal::kWood[1]);
    img.fill(0, 0, 24, 2, pal::kStone[3]);
    return img;
}

Image vaseOrCauldron(bool cauldron)
{
    Image img = cauldron ? groundTile(Ground::Pavement, 1) : floorTile();
    Mask pot(24, 24), neck(24, 24);
    if (cauldron) {
        pot.ellipse(12, 14, 9, 7);
        neck.ellipse(12, 9, 8, 2.5);
    } else {
        pot.ellipse(12, 15, 6, 6);
        neck.rect(10, 5, 4, 5).rect(9, 4, 6, 2);
    }
    dropShadow(img, Mask(pot).add(neck), 2, 1);
    drawSolid(img, pot, cauldron ? pal::kIron : pal::kFlowerBlue, pal::kInk);
    drawBlock(img, neck, cauldron ? pal::kIron : pal::kFlowerBlue, pal::kInk);
    if (cauldron) {
        paintFlat(img, Mask(24, 24).ellipse(12, 9, 6, 1.6), pal::kGreenCloth[3]);
        img.set(10, 8, pal::kGreenCloth[4]);
        img.set(14, 9, pal::kGreenCloth[4]);
    } else {
        img.fill(8, 14, 8, 1, pal::kFlowerWhite[3]);
    }
    return img;
}

Image candles()
{
    Image img = floorTile(1);
    Mask stand(24, 24);
    stand.rect(11, 8, 2, 13).rect(7, 20, 10, 2).rect(6, 8, 12, 2);
    drawStanding(img, stand, pal::kGold, pal::kInk);
    for (int x : {6, 11, 16}) {
        img.fill(x, 4, 2, 4, pal::kFlowerWhite[3]);
        img.set(x, 2, pal::kFlowerYellow[4]);
        img.set(x, 3, pal::kLava[3]);
    }
    return img;
}

Image counter(int part)
{
    Image img = floorTile();
    Mask body(24, 24), top(24, 24);
    const int x0 = part == 0 ? 2 : 0, x1 = part == 2 ? 22 : 24;
    body.rect(x0, 9, x1 - x0, 12);
    top.rect(x0, 4, x1 - x0, 5);
    drawStanding(img, body, pal::kWood, pal::kInk);
    drawBlock(img, top, pal::kPlank, pal::kInk, 3);
    for (int x = x0 + 4; x < x1; x += 8) img.fill(x, 11, 1, 8, pal::kWood[0]);
    return img;
}

Image pottedPlant()
{
    Image img = floorTile(1);
    Mask pot(24, 24), leaves(24, 24);
    pot.polygon({{7, 13}, {17, 13}, {15, 21}, {9, 21}});
    leaves.ellipse(12, 8, 7, 6).ellipse(7, 11, 3, 2).ellipse(17, 11, 3, 2);
    drawStanding(img, pot, pal::kBrick, pal::kInk);
    dropShadow(img, leaves, 1, 1);
    drawSolid(img, leaves, pal::kLeaf, pal::kInk);
    return img;
}

Image anvil()
{
    Image img = groundTile(Ground::Pavement);
    Mask block(24, 24), top(24, 24);
    block.rect(8, 12, 8, 9).rect(6, 19, 12, 3);
    top.polygon({{2, 7}, {19, 6}, {22, 8}, {19, 12}, {5, 12}});
    drawStanding(img, block, pal::kWood, pal::kInk);
    drawStanding(img, top, pal::kIron, pal::kInk, 3);
    return img;
}

Image rack(bool armour)
{
    Image img = floorTile();
    Mask frame(24, 24);
    if (armour) {
        frame.rect(11, 4, 2, 17).rect(7, 20, 10, 2);
        drawStanding(img, frame, pal::kWood, pal::kInk);
        Mask plate(24, 24), helm(24, 24);
        plate.rect(6, 7, 12, 9).ellipse(12, 15, 6, 3);
        helm.ellipse(12, 4, 3.5, 3.5);
        drawSolid(img, plate, pal::kIron, pal::kInk);
        drawSolid(img, helm, pal::kIron, pal::kInk);
        return img;
    }
    frame.rect(2, 5, 20, 2).rect(2, 15, 20, 2).rect(3, 5, 2, 17).rect(19, 5, 2, 17);
    drawStanding(img, frame, pal::kWood, pal::kInk);
    for (int i = 0; i < 3; ++i) {
        Mask blade(24, 24);
        blade.line(7 + i * 5, 2, 7 + i * 5, 19, 2);
        drawBlock(img, blade, pal::kIron, pal::kInk, 3);
        img.fill(5 + i * 5, 16, 5, 1, pal::kGold[2]);
    }
    return img;
}

Image sacks()
{
    Image img = floorTile(1);
    const double spots[3][2] = {{8, 14}, {16, 15}, {12, 9}};
    for (const auto& s : spots) {
        Mask sack(24, 24);
        sack.ellipse(s[0], s[1], 5, 5.5).rect(int(s[0]) - 1, int(s[1]) - 7, 3, 3);
        dropShadow(img, sack, 1, 1);
        drawSolid(img, sack, pal::kSand, pal::kInk);
        img.fill(int(s[0]) - 2, int(s[1]) - 4, 5, 1, pal::kWood[1]);
    }
    return img;
}

} // namespace

void paintInterior(TileSheet& sheet)
{
    sheet.put(kWoodFloor[0], floorTile(0), kPassable);
    sheet.put(kWoodFloor[1], floorTile(1), kPassable);
    sheet.put(kCheckerFloor, groundTile(Ground::Checker), kPassable);
    sheet.put(kTileFloor, groundTile(Ground::Terracotta), kPassable);
    sheet.put(kInnerWallTop, wallTop(), kBlocked);
    sheet.put(kInnerWallWood, innerWall(WallKind::Wood), kBlocked);
    sheet.put(kInnerWallPlaster, innerWall(WallKind::Plaster), kBlocked);
    sheet.put(kInnerWallStone, innerWall(WallKind::Stone), kBlocked);
    Image win = innerWall(WallKind::Plaster), doorway = innerWall(WallKind::Plaster);
    drawWindow(win);
    drawDoor(doorway, true);
    sheet.put(kInnerWindow, win, kBlocked);
    sheet.put(kInnerDoorway, doorway, kPassable);
    sheet.putBlock(kRug, rug(), kPassable);

    sheet.put(kTableLeft, table(0), kBlocked);
    sheet.put(kTableRight, table(1), kBlocked);
    sheet.put(kRoundTable, roundTable(), kBlocked);
    for (int d = 0; d < 4; ++d) sheet.put(kChair[d], chair(d), kBlocked);
    sheet.put(kStool, stoolOrBench(false), kBlocked);
    sheet.putBlock(kBed, bed(), kBlocked);
    Image chest = floorTile(), open = floorTile(1), barrel = floorTile(1), crate = floorTile();
    drawChest(chest, false);
    drawChest(open, true);
    drawBarrel(barrel);
    drawCrate(crate);
    sheet.put(kChest, chest, kBlocked);
    sheet.put(kChestOpen, open, kBlocked);
    sheet.put(kBarrel, barrel, kBlocked);
    sheet.put(kCrate, crate, kBlocked);
    sheet.put(kBookshelf, bookshelf(), kBlocked);
    sheet.put(kCupboard, cupboard(), kBlocked);
    sheet.put(kFireplace, fireplace(), kBlocked);
    sheet.put(kVase, vaseOrCauldron(false), kBlocked);
    sheet.put(kCandles, candles(), kBlocked);
    for (int part = 0; part < 3; ++part) sheet.put(kCounter[part], counter(part), kBlocked);
    sheet.put(kPottedPlant, pottedPlant(), kBlocked);
    sheet.put(kAnvil, anvil(), kBlocked);
    sheet.put(kCauldron, vaseOrCauldron(true), kBlocked);
    sheet.put(kWeaponRack, rack(false), kBlocked);
    sheet.put(kArmourStand, rack(true), kBlocked);
    sheet.put(kSacks, sacks(), kBlocked);
    sheet.put(kBench, stoolOrBench(true), kBlocked);
}

} // namespace worldgen
