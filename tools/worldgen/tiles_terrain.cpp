// Plain ground tiles, ground with small plants, and the borders between grounds.
#include "art.h"
#include "ground.h"
#include "palette.h"
#include "tilesheet.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace worldgen {
namespace {

// Small flowers on grass at fixed scattered spots, each a cross of petals.
Image flowers(const std::vector<const Ramp*>& kinds, int count, int seed)
{
    Image img = groundTile(Ground::Grass, seed % 4);
    for (int i = 0; i < count; ++i) {
        const int x = 2 + static_cast<int>(noise01(i, 1, seed) * 20);
        const int y = 2 + static_cast<int>(noise01(i, 2, seed) * 20);
        const Ramp& petals = *kinds[i % kinds.size()];
        img.set(x, y + 2, pal::kGrass[0]);
        img.set(x + 1, y + 1, pal::kGrass[1]);
        img.set(x - 1, y, petals[3]);
        img.set(x, y - 1, petals[4]);
        img.set(x + 1, y, petals[2]);
        img.set(x, y + 1, petals[1]);
        img.set(x, y, pal::kFlowerYellow[3]);
    }
    return img;
}

Image tallGrass()
{
    Image img = groundTile(Ground::Grass, 2);
    for (int i = 0; i < 16; ++i) {
        const int x = 1 + (i % 4) * 6 + static_cast<int>(noise01(i, 0, 7) * 3);
        const int y = 6 + (i / 4) * 5 + static_cast<int>(noise01(i, 1, 7) * 2);
        for (int h = 0; h < 5; ++h) {
            const int lean = h >= 3 ? (i % 2 ? 1 : -1) : 0;
            img.set(x + lean, y - h, h > 2 ? pal::kGrass[4] : pal::kGrass[3 - (h == 0)]);
            img.set(x + 1 + lean, y - h, pal::kGrass[1]);
        }
    }
    return img;
}

Image mushrooms()
{
    Image img = groundTile(Ground::Grass, 1);
    const int spots[3][2] = {{6, 8}, {15, 13}, {9, 18}};
    for (const auto& s : spots) {
        Mask cap(24, 24), stem(24, 24);
        stem.rect(s[0] - 1, s[1], 2, 3);
        cap.ellipse(s[0], s[1], 3.2, 2.2);
        dropShadow(img, Mask(stem).add(cap), 1, 1);
        drawSolid(img, stem, pal::kBone, pal::kInk);
        drawSolid(img, cap, pal::kFlowerRed, pal::kInk);
        img.set(s[0] - 1, s[1] - 1, pal::kFlowerWhite[4]);
    }
    return img;
}

// Water with something in it: floating leaves, reeds or stones.
Image waterWith(int kind)
{
    Image img = groundTile(Ground::Water, kind);
    for (int i = 0; i < (kind == 1 ? 7 : 3); ++i) {
        const double x = 5 + noise01(i, kind, 3) * 14, y = 5 + noise01(i, kind, 4) * 14;
        Mask m(24, 24);
        if (kind == 0) {
            m.ellipse(x, y, 3.4, 2.4).polygon({{x, y}, {x + 4, y - 1}, {x + 4, y + 1}}, false);
            drawSolid(img, m, pal::kLeaf, pal::kInk);
            if (i == 0) img.set(int(x) - 1, int(y) - 1, pal::kFlowerWhite[4]);
        } else if (kind == 1) {
            m.line(x, y + 4, x + (i % 2 ? 1 : -1), y - 5, 1.4);
            paintLit(img, m, pal::kThatch);
            img.set(int(x), int(y) - 5, pal::kWood[1]);
            img.set(int(x), int(y) - 4, pal::kWood[1]);
            img.set(int(x) - 1, int(y) + 4, pal::kWater[4]);
            img.set(int(x) + 1, int(y) + 4, pal::kWater[4]);
        } else {
            m.ellipse(x, y, 3.6, 2.8);
            Mask ring(24, 24);
            ring.ellipse(x + 0.5, y + 1.5, 4.6, 3.2);
            paintFlat(img, ring, pal::kWater[4]);
            drawSolid(img, m, pal::kStone, pal::kInk);
        }
    }
    return img;
}

// Signed distance of a rounded box: positive inside.
double insideBox(double x, double y, double x0, double y0, double x1, double y1, double radius)
{
    const double cx = (x0 + x1) / 2, cy = (y0 + y1) / 2;
    const double hx = (x1 - x0) / 2 - radius, hy = (y1 - y0) / 2 - radius;
    const double qx = std::abs(x - cx) - hx, qy = std::abs(y - cy) - hy;
    const double out = std::hypot(std::max(qx, 0.0), std::max(qy, 0.0)) + std::min(std::max(qx, qy), 0.0);
    return radius - out;
}

// Depth into the inner ground for a pixel of one tile of an edge set.
double edgeDepth(int col, int row, int x, int y)
{
    const double px = x + 0.5, py = y + 0.5;
    if (col < 3) // the 3 x 3 frame: one rounded patch across the block
        return insideBox(col * 24 + px, row * 24 + py, 12, 12, 60, 60, 12);
    if (row == 2) return 24;
    // Inner corners: the outer ground fills one rounded quarter.
    const bool east = col == 4, south = row == 1;
    const double ex = (east ? 24 - px : px) - 12 + 6, ey = (south ? 24 - py : py) - 12 + 6;
    if (ex > 0 && ey > 0) return std::hypot(ex, ey) - 6;
    return std::max(ex, ey) - 6;
}

struct Border {
    Ground inner, outer;
    Rgb bank;    // the rim on the outer side
    Rgb shine;   // the rim on the inner side
};

void paintEdgeSet(TileSheet& sheet, EdgeSet set, const Border& b)
{
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 5; ++col) {
            Image img(24, 24);
            int innerPixels = 0;
            for (int y = 0; y < 24; ++y)
                for (int x = 0; x < 24; ++x) {
                    // A gentle wobble, periodic in the tile, keeps the line from looking ruled.
                    const double wobble = 0.9 * std::sin(x * 3.14159 / 6) * std::sin(y * 3.14159 / 12 + 1);
                    const double d = edgeDepth(col, row, x, y) + wobble;
                    const int variant = (col == 3 && row == 2) ? 1 : (col == 4 && row == 2) ? 2 : 0;
                    Rgb c;
                    if (d >= 0) {
                        ++innerPixels;
                        c = groundPixel(b.inner, x, y, variant);
                        if (d < 1.4) c = b.shine;
                        else if (d < 2.6) c = mix(c, b.shine, 0.35);
                    } else {
                        c = groundPixel(b.outer, x, y);
                        if (d > -1.3) c = b.bank;
                    }
                    img.set(x, y, c);
                }
            const bool blocks = groundBlocks(b.inner) && innerPixels >= 24 * 24 * 45 / 100;
            sheet.put(set.origin.at(col, row), img, blocks ? kBlocked : kPassable);
        }
}

} // namespace

void paintTerrain(TileSheet& sheet)
{
    for (int i = 0; i < 4; ++i) sheet.put(kGrass[i], groundTile(Ground::Grass, i), kPassable);
    sheet.put(kFlowersRed, flowers({&pal::kFlowerRed}, 6, 11), kPassable);
    sheet.put(kFlowersYellow, flowers({&pal::kFlowerYellow}, 7, 12), kPassable);
    sheet.put(kFlowersWhite, flowers({&pal::kFlowerWhite}, 8, 13), kPassable);
    sheet.put(kFlowersBlue, flowers({&pal::kFlowerBlue}, 6, 14), kPassable);
    sheet.put(kFlowersMixed,
              flowers({&pal::kFlowerRed, &pal::kFlowerYellow, &pal::kFlowerWhite, &pal::kFlowerBlue}, 9, 15),
              kPassable);
    sheet.put(kClover, flowers({&pal::kFlowerWhite, &pal::kGrass}, 12, 16), kPassable);
    sheet.put(kTallGrass, tallGrass(), kPassable);
    sheet.put(kMushrooms, mushrooms(), kPassable);
    for (int i = 0; i < 3; ++i) {
        sheet.put(kDirt[i], groundTile(Ground::Dirt, i), kPassable);
        sheet.put(kSand[i], groundTile(Ground::Sand, i), kPassable);
        sheet.put(kCobble[i], groundTile(Ground::Cobble, i), kPassable);
        sheet.put(kWater[i], groundTile(Ground::Water, i), kBlocked);
        sheet.put(kCaveFloor[i], groundTile(Ground::CaveFloor, i), kPassable);
        sheet.put(kDungeonFloor[i], groundTile(Ground::DungeonFloor, i), kPassable);
    }
    sheet.put(kGravel, groundTile(Ground::Gravel), kPassable);
    sheet.put(kMud, groundTile(Ground::Mud), kPassable);
    for (int i = 0; i < 2; ++i) {
        sheet.put(kSnow[i], groundTile(Ground::Snow, i), kPassable);
        sheet.put(kPavement[i], groundTile(Ground::Pavement, i), kPassable);
    }
    sheet.put(kDeepWater, groundTile(Ground::DeepWater), kBlocked);
    sheet.put(kLilyPads, waterWith(0), kBlocked);
    sheet.put(kReeds, waterWith(1), kBlocked);
    sheet.put(kWaterRocks, waterWith(2), kBlocked);
    sheet.put(kIce, groundTile(Ground::Ice), kPassable);
    sheet.put(kLava, groundTile(Ground::Lava), kBlocked);
    sheet.put(kChasm, groundTile(Ground::Chasm), kBlocked);

    paintEdgeSet(sheet, kGrassPond, {Ground::Water, Ground::Grass, pal::kDirt[1], pal::kWater[4]});
    paintEdgeSet(sheet, kBeach, {Ground::Water, Ground::Sand, pal::kSand[1], pal::kWater[4]});
    paintEdgeSet(sheet, kGrassSand, {Ground::Sand, Ground::Grass, pal::kGrass[0], pal::kSand[3]});
    paintEdgeSet(sheet, kGrassDirt, {Ground::Dirt, Ground::Grass, pal::kGrass[1], pal::kDirt[1]});
    paintEdgeSet(sheet, kGrassCobble, {Ground::Cobble, Ground::Grass, pal::kGrass[0], pal::kCobble[0]});
    paintEdgeSet(sheet, kSnowGrass, {Ground::Grass, Ground::Snow, pal::kSnow[1], pal::kGrass[1]});
    paintEdgeSet(sheet, kCaveChasm, {Ground::Chasm, Ground::CaveFloor, pal::kCave[3], pal::kCave[0]});
    paintEdgeSet(sheet, kCaveLava, {Ground::Lava, Ground::CaveFloor, pal::kCave[0], pal::kLava[4]});
    paintEdgeSet(sheet, kDungeonWater, {Ground::Water, Ground::DungeonFloor, pal::kDungeon[0], pal::kWater[4]});
    paintEdgeSet(sheet, kDirtWater, {Ground::Water, Ground::Dirt, pal::kDirt[0], pal::kWater[4]});
}

} // namespace worldgen
