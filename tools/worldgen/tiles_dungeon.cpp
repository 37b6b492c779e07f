// Dungeon halls and natural caves.
#include "art.h"
#include "ground.h"
#include "palette.h"
#include "props.h"
#include "tilesheet.h"
#include "walls.h"

#include <cmath>

namespace worldgen {
namespace {

Image floorTile(int variant = 0) { return groundTile(Ground::DungeonFloor, variant); }

Image wallTopOf(const Ramp& ramp)
{
    Image img(24, 24);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) img.set(x, y, shade(ramp, 0.3 + noise01(x / 2, y / 2, 81) * 0.6, x, y));
    img.fill(0, 22, 24, 2, ramp[3]);
    return img;
}

Image torch(bool banner)
{
    Image img = wallFace(WallKind::Dungeon);
    if (banner) {
        Mask cloth(24, 24);
        cloth.polygon({{6, 1}, {18, 1}, {18, 19}, {12, 15}, {6, 19}});
        drawBlock(img, cloth, pal::kRed, pal::kInk);
        img.fill(5, 1, 14, 1, pal::kGold[3]);
        Mask emblem(24, 24);
        emblem.ellipse(12, 8, 3, 3);
        paintRound(img, emblem, pal::kGold);
        return img;
    }
    // Warm light on the stones around the flame.
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            const double d = std::hypot(x - 12, y - 7) / 11.0;
            if (d < 1) img.set(x, y, mix(img.at(x, y), pal::kLava[3], 0.35 * (1 - d)));
        }
    Mask holder(24, 24), flame(24, 24);
    holder.rect(11, 9, 3, 8).rect(9, 9, 7, 2);
    flame.polygon({{12.5, 1}, {15, 6}, {14, 9}, {11, 9}, {10, 6}});
    drawBlock(img, holder, pal::kIron, pal::kInk);
    paintRound(img, flame, pal::kLava, 1.0);
    return img;
}

Image pillar()
{
    Image img = floorTile(1);
    Mask shaft(24, 24), cap(24, 24);
    shaft.rect(6, 3, 12, 18);
    cap.rect(4, 0, 16, 4).rect(4, 19, 16, 4);
    drawStanding(img, shaft, pal::kDungeon, pal::kInk, 3);
    for (int y = 3; y < 21; ++y)
        for (int x = 6; x < 18; ++x) img.set(x, y, shade(pal::kDungeon, 3.6 - std::abs(x - 9.5) * 0.35, x, y));
    drawBlock(img, cap, pal::kDungeon, pal::kInk, 3);
    return img;
}

void skull(Image& img, double x, double y, double size)
{
    Mask head(24, 24);
    head.ellipse(x, y, 3 * size, 2.6 * size).rect(int(x - 1.5 * size), int(y + size), int(3 * size) + 1, int(2 * size));
    dropShadow(img, head, 1, 1);
    drawSolid(img, head, pal::kBone, pal::kInk);
    img.set(int(x - size), int(y), pal::kInk);
    img.set(int(x + size), int(y), pal::kInk);
}

Image bones(bool pile, Ground ground)
{
    Image img = groundTile(ground, 2);
    for (int i = 0; i < (pile ? 2 : 3); ++i) {
        Mask bone(24, 24);
        const double x = 4 + noise01(i, 0, 91) * 14, y = 5 + noise01(i, 1, 91) * 14;
        bone.line(x, y, x + 7, y + (i % 2 ? 3 : -3), 1.6).ellipse(x, y, 1.4, 1.4).ellipse(x + 7, y + (i % 2 ? 3 : -3), 1.4, 1.4);
        drawSolid(img, bone, pal::kBone, pal::kInk);
    }
    if (pile) {
        skull(img, 8, 15, 1.0);
        skull(img, 16, 16, 1.0);
        skull(img, 12, 10, 1.1);
    } else {
        skull(img, 15, 14, 1.0);
    }
    return img;
}

Image spikes()
{
    Image img = floorTile();
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 3; ++col) {
            const double x = 4 + col * 8 + (row % 2) * 2, y = 7 + row * 7;
            img.fill(int(x) - 2, int(y) + 1, 5, 1, pal::kInk);
            Mask spike(24, 24);
            spike.polygon({{x, y - 5}, {x + 2, y + 1}, {x - 2, y + 1}});
            drawBlock(img, spike, pal::kIron, pal::kInk, 3);
        }
    return img;
}

Image stairs(bool down)
{
    Image img = floorTile(1);
    for (int i = 0; i < 5; ++i) {
        const int y = 2 + i * 4;
        const int inset = down ? i : 4 - i;
        Mask tread(24, 24);
        tread.rect(2 + inset, y, 20 - 2 * inset, 4);
        drawBlock(img, tread, pal::kDungeon, pal::kInk, down ? 3 - i / 2 : 1 + i / 2);
        if (down)
            for (int x = 2; x < 22; ++x) img.set(x, y + 3, mix(img.at(x, y + 3), pal::kInk, 0.18 * i));
    }
    return img;
}

Image ironDoorOrBars(bool bars)
{
    Image img = wallFace(WallKind::Dungeon);
    Mask frame(24, 24);
    frame.rect(3, 2, 18, 22);
    if (bars) {
        paintFlat(img, frame, Rgb{10, 8, 16});
        for (int x = 5; x < 21; x += 4) {
            Mask bar(24, 24);
            bar.rect(x, 2, 2, 22);
            drawBlock(img, bar, pal::kIron, pal::kInk);
        }
        img.fill(3, 8, 18, 2, pal::kIron[1]);
        return img;
    }
    drawBlock(img, frame, pal::kIron, pal::kInk);
    for (int y = 5; y < 24; y += 6) img.fill(4, y, 16, 1, pal::kIron[0]);
    for (int y = 3; y < 24; y += 6)
        for (int x : {5, 18}) img.set(x, y, pal::kIron[4]);
    img.fill(15, 12, 2, 3, pal::kGold[3]);
    return img;
}

Image altarOrCoffin(bool coffin)
{
    Image img = floorTile(2);
    Mask shape(24, 24);
    if (coffin) shape.polygon({{9, 1}, {15, 1}, {19, 6}, {17, 22}, {7, 22}, {5, 6}});
    else shape.rect(2, 8, 20, 13);
    drawStanding(img, shape, coffin ? pal::kWood : pal::kStone, pal::kInk, 3);
    if (coffin) {
        img.fill(11, 6, 2, 10, pal::kGold[3]);
        img.fill(8, 9, 8, 2, pal::kGold[3]);
        return img;
    }
    img.fill(2, 8, 20, 3, pal::kPurple[2]);
    img.fill(9, 11, 6, 8, pal::kPurple[1]);
    Mask orb(24, 24);
    orb.ellipse(12, 5, 3, 3);
    drawSolid(img, orb, pal::kFlowerBlue, pal::kInk, 0.6);
    return img;
}

Image grate()
{
    Image img = floorTile();
    Mask frame(24, 24);
    frame.rect(4, 4, 16, 16);
    outline(img, frame, pal::kInk);
    for (int y = 4; y < 20; ++y)
        for (int x = 4; x < 20; ++x) img.set(x, y, (x % 4 == 1 || y % 4 == 1) ? pal::kIron[2 + (x + y < 20)] : Rgb{8, 6, 12});
    return img;
}

Image onCave(int variant) { return groundTile(Ground::CaveFloor, variant); }

Image stalagmite()
{
    Image img = onCave(1);
    Mask big(24, 24), small(24, 24);
    big.polygon({{11, 1}, {15, 21}, {6, 21}});
    small.polygon({{18, 10}, {21, 21}, {15, 21}});
    drawStanding(img, big, pal::kCave, pal::kInk, 3);
    drawStanding(img, small, pal::kCave, pal::kInk, 3);
    return img;
}

Image crystal()
{
    Image img = onCave(2);
    const double shards[3][4] = {{12, 2, 4, 20}, {7, 9, 3, 20}, {17, 8, 3, 20}};
    for (const auto& s : shards) {
        Mask m(24, 24);
        m.polygon({{s[0], s[1]}, {s[0] + s[2], s[1] + 4}, {s[0] + s[2] * 0.7, s[3]}, {s[0] - s[2] * 0.7, s[3]}, {s[0] - s[2], s[1] + 4}});
        dropShadow(img, m, 2, 1);
        drawBlock(img, m, pal::kPurple, pal::kInk, 3);
        img.set(int(s[0]) - 1, int(s[1]) + 3, pal::kFlowerWhite[4]);
    }
    return img;
}

Image caveMushroom()
{
    Image img = onCave(0);
    const int spots[3][2] = {{7, 10}, {16, 14}, {10, 18}};
    for (const auto& s : spots) {
        for (int y = -4; y <= 4; ++y) // a faint glow
            for (int x = -4; x <= 4; ++x)
                if (x * x + y * y < 16) img.set(s[0] + x, s[1] + y, mix(img.at(s[0] + x, s[1] + y), pal::kWater[3], 0.25));
        Mask stem(24, 24), cap(24, 24);
        stem.rect(s[0] - 1, s[1], 2, 3);
        cap.ellipse(s[0], s[1], 3.2, 2);
        drawSolid(img, stem, pal::kBone, pal::kInk);
        drawSolid(img, cap, pal::kWater, pal::kInk, 0.5);
    }
    return img;
}

Image web()
{
    Image img = onCave(1);
    Mask threads(24, 24);
    for (int i = 0; i < 8; ++i) threads.line(12, 12, 12 + 13 * std::cos(i * 0.785), 12 + 13 * std::sin(i * 0.785), 0.9);
    for (double r : {3.5, 7.0, 10.5})
        for (int i = 0; i < 8; ++i)
            threads.line(12 + r * std::cos(i * 0.785), 12 + r * std::sin(i * 0.785), 12 + r * std::cos((i + 1) * 0.785),
                         12 + r * std::sin((i + 1) * 0.785), 0.9);
    paintFlat(img, threads, pal::kFlowerWhite[2]);
    return img;
}

Image rubble()
{
    Image img = onCave(0);
    for (int i = 0; i < 6; ++i) {
        Mask stone(24, 24);
        stone.ellipse(4 + noise01(i, 0, 93) * 16, 5 + noise01(i, 1, 93) * 14, 2.5 + noise01(i, 2, 93) * 2.5, 2 + noise01(i, 3, 93) * 2);
        dropShadow(img, stone, 1, 1);
        drawSolid(img, stone, pal::kCave, pal::kInk, 0.4);
    }
    return img;
}

Image ladderUp()
{
    Image img = onCave(2);
    Mask rails(24, 24);
    rails.rect(6, 0, 2, 22).rect(16, 0, 2, 22);
    for (int y = 2; y < 22; y += 4) rails.rect(8, y, 8, 2);
    drawStanding(img, rails, pal::kWood, pal::kInk, 3);
    for (int y = 0; y < 6; ++y) img.fill(0, y, 24, 1, mix(img.at(0, y), pal::kInk, 0.5 - y * 0.08));
    return img;
}

Image caveRock()
{
    Image img = onCave(1);
    Mask rock(24, 24);
    rock.ellipse(12, 13, 9, 7).ellipse(9, 10, 5, 5);
    dropShadow(img, rock, 2, 2);
    drawSolid(img, rock, pal::kCave, pal::kInk);
    return img;
}

Image oreVein()
{
    Image img = wallFace(WallKind::Cave);
    for (int i = 0; i < 7; ++i) {
        const int x = 3 + static_cast<int>(noise01(i, 0, 95) * 18), y = 3 + static_cast<int>(noise01(i, 1, 95) * 15);
        img.set(x, y, pal::kGold[4]);
        img.set(x + 1, y, pal::kGold[2]);
        img.set(x, y + 1, pal::kGold[1]);
    }
    return img;
}

} // namespace

void paintDungeon(TileSheet& sheet)
{
    sheet.put(kDungeonWallTop, wallTopOf(pal::kDungeon), kBlocked);
    sheet.put(kDungeonWall, wallFace(WallKind::Dungeon), kBlocked);
    sheet.put(kDungeonTorch, torch(false), kBlocked);
    sheet.put(kDungeonBanner, torch(true), kBlocked);
    sheet.put(kPillar, pillar(), kBlocked);
    sheet.put(kBones, bones(false, Ground::DungeonFloor), kPassable);
    sheet.put(kSkulls, bones(true, Ground::DungeonFloor), kBlocked);
    sheet.put(kSpikes, spikes(), kPassable);
    sheet.put(kDungeonStairsDown, stairs(true), kPassable);
    sheet.put(kDungeonStairsUp, stairs(false), kPassable);
    sheet.put(kIronDoor, ironDoorOrBars(false), kBlocked);
    sheet.put(kBars, ironDoorOrBars(true), kBlocked);
    Image chest = floorTile(1);
    drawChest(chest, false);
    sheet.put(kDungeonChest, chest, kBlocked);
    sheet.put(kAltar, altarOrCoffin(false), kBlocked);
    sheet.put(kGrate, grate(), kPassable);
    sheet.put(kCoffin, altarOrCoffin(true), kBlocked);

    sheet.put(kCaveWall, wallFace(WallKind::Cave), kBlocked);
    sheet.put(kCaveWallTop, wallTopOf(pal::kCave), kBlocked);
    sheet.put(kStalagmite, stalagmite(), kBlocked);
    sheet.put(kCrystal, crystal(), kBlocked);
    sheet.put(kCaveMushroom, caveMushroom(), kPassable);
    sheet.put(kCaveRock, caveRock(), kBlocked);
    sheet.put(kWeb, web(), kPassable);
    sheet.put(kOreVein, oreVein(), kBlocked);
    sheet.put(kRubble, rubble(), kBlocked);
    sheet.put(kCaveLadderUp, ladderUp(), kPassable);
}

} // namespace worldgen
