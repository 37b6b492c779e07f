// Trees, bushes and rocks, each drawn onto the ground it stands on.
#include "art.h"
#include "ground.h"
#include "palette.h"
#include "tilesheet.h"

#include <cmath>

namespace worldgen {
namespace {

void trunk(Image& img, double x, double top, double bottom, double width, const Ramp& bark = pal::kWood)
{
    Mask m(img.width(), img.height());
    m.rect(static_cast<int>(x - width / 2), static_cast<int>(top), static_cast<int>(width),
           static_cast<int>(bottom - top));
    m.ellipse(x, bottom - 0.5, width / 2 + 1.5, 1.5); // roots
    dropShadow(img, m, 2, 1);
    outline(img, m, pal::kInk);
    paintLit(img, m, bark);
}

// A crown of leaf clumps, drawn back to front so each bump catches the light.
void crown(Image& img, double cx, double cy, double rx, double ry, int clumps, const Ramp& leaves, int seed)
{
    Mask whole(img.width(), img.height());
    whole.ellipse(cx, cy, rx, ry);
    dropShadow(img, whole, 2, 2, 0.5);
    outline(img, whole, pal::kInk);
    paintRound(img, whole, leaves, -0.5);
    for (int i = 0; i < clumps; ++i) {
        const double a = noise01(i, 0, seed) * 6.283, d = 0.25 + noise01(i, 1, seed) * 0.45;
        const double x = cx + std::cos(a) * rx * d, y = cy + std::sin(a) * ry * d - ry * 0.1;
        const double r = std::min(rx, ry) * (0.32 + noise01(i, 2, seed) * 0.18);
        Mask clump(img.width(), img.height());
        clump.ellipse(x, y, r, r * 0.85);
        Mask rim = clump.shifted(1, 1);
        rim.cut(clump);
        paintFlat(img, rim, leaves[0]);
        paintRound(img, clump, leaves, 0.2);
    }
}

void fruit(Image& img, int count, const Ramp& colour, int seed)
{
    for (int i = 0; i < count; ++i) {
        const int x = 6 + static_cast<int>(noise01(i, 0, seed) * 12), y = 4 + static_cast<int>(noise01(i, 1, seed) * 10);
        img.set(x, y, colour[2]);
        img.set(x + 1, y, colour[1]);
        img.set(x, y - 1, colour[4]);
    }
}

void pineTiers(Image& img, double cx, double top, double bottom, double halfWidth, int tiers, const Ramp& needles,
               bool snowy = false)
{
    const double step = (bottom - top) / tiers;
    for (int i = 0; i < tiers; ++i) {
        const double y0 = top + i * step * 0.85, y1 = y0 + step * 1.5;
        const double w = halfWidth * (0.45 + 0.55 * (i + 1) / tiers);
        Mask m(img.width(), img.height());
        m.polygon({{cx, y0}, {cx + w, y1}, {cx + w * 0.3, y1 - 1.5}, {cx - w * 0.3, y1 - 1.5}, {cx - w, y1}});
        if (i == tiers - 1) dropShadow(img, m, 2, 1);
        outline(img, m, pal::kInk);
        paintLit(img, m, needles);
        // The lit left half is a shade lighter, as the light comes from the top left.
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < cx; ++x)
                if (m.at(x, y) && m.at(x - 1, y) && m.at(x, y - 1)) img.set(x, y, shade(needles, 2.6, x, y));
        if (snowy)
            for (int x = 0; x < img.width(); ++x)
                for (int y = 0; y < img.height(); ++y)
                    if (m.at(x, y) && !m.at(x, y - 2)) img.set(x, y, pal::kSnow[3 + (x < cx)]);
    }
}

Image rock(Ground ground, double rx, double ry, int seed, const Ramp& stone = pal::kStone, int w = 24, int h = 24)
{
    Image img = groundArea(ground, w, h, seed % 3);
    Mask m(w, h);
    const double cx = w / 2.0, cy = h / 2.0 + ry * 0.3;
    std::vector<std::array<double, 2>> pts;
    for (int i = 0; i < 9; ++i) {
        const double a = i * 6.283 / 9, k = 0.82 + noise01(i, 0, seed) * 0.25;
        pts.push_back({cx + std::cos(a) * rx * k, cy + std::sin(a) * ry * k * (std::sin(a) < 0 ? 1.15 : 0.9)});
    }
    m.polygon(pts);
    dropShadow(img, m, 2, 2, 0.5);
    outline(img, m, pal::kInk);
    paintRound(img, m, stone);
    // A crack and a flat lit facet give it a chiselled look.
    for (int i = 0; i < static_cast<int>(rx); ++i) {
        const int x = static_cast<int>(cx + rx * 0.2) + i / 2, y = static_cast<int>(cy - ry * 0.1) + i / 2 + (i % 3 == 0);
        if (m.at(x, y) && m.at(x + 1, y + 1)) img.set(x, y, stone[0]);
    }
    return img;
}

Image bush(Ground ground, const Ramp& leaves, const Ramp* berries, int seed)
{
    Image img = groundArea(ground, 24, 24, seed % 3);
    crown(img, 12, 13, 10, 8, 5, leaves, seed);
    if (berries) fruit(img, 6, *berries, seed);
    return img;
}

Image palm()
{
    Image img = groundArea(Ground::Sand, 24, 48, 1);
    Mask stem(24, 48);
    for (int y = 14; y < 46; ++y) stem.rect(static_cast<int>(11 + std::sin(y * 0.12) * 2), y, 3, 1);
    dropShadow(img, stem, 3, 1);
    outline(img, stem, pal::kInk);
    paintLit(img, stem, pal::kThatch);
    for (int y = 16; y < 46; y += 3)
        for (int x = 8; x < 18; ++x)
            if (stem.at(x, y)) img.set(x, y, pal::kThatch[0]);
    for (int i = 0; i < 6; ++i) {
        const double a = -0.3 + i * 0.7 + (i > 2) * 0.9;
        Mask frond(24, 48);
        frond.line(12, 13, 12 + std::cos(a) * 11, 13 + std::sin(a) * 5 + 4, 3.2);
        outline(img, frond, pal::kInk);
        paintLit(img, frond, pal::kLeaf, 3);
    }
    Mask nut(24, 48);
    nut.ellipse(12, 15, 2.5, 2);
    drawSolid(img, nut, pal::kWood, pal::kInk);
    return img;
}

Image deadTree()
{
    Image img = groundArea(Ground::Grass, 24, 24, 3);
    Mask m(24, 24);
    m.line(12, 22, 12, 6, 3).line(12, 13, 5, 6, 2).line(12, 10, 19, 4, 2).line(6, 7, 4, 3, 1.2).line(17, 5, 20, 1, 1.2);
    m.ellipse(12, 21.5, 4, 1.5);
    dropShadow(img, m, 2, 1);
    outline(img, m, pal::kInk);
    paintLit(img, m, pal::kCave);
    return img;
}

Image stumpOrLog(bool log)
{
    Image img = groundArea(Ground::Grass, 24, 24, 1);
    Mask bark(24, 24), cut(24, 24);
    if (log) {
        bark.rect(3, 10, 16, 8).ellipse(3, 14, 2, 4);
        cut.ellipse(19, 14, 2.5, 4);
    } else {
        bark.rect(6, 10, 12, 9).ellipse(12, 18.5, 8, 2);
        cut.ellipse(12, 10, 6, 2.6);
    }
    Mask both = bark;
    both.add(cut);
    dropShadow(img, both, 2, 1);
    outline(img, both, pal::kInk);
    paintLit(img, bark, pal::kWood);
    paintRound(img, cut, pal::kPlank, 0.4);
    const int rx = log ? 19 : 12, ry = log ? 14 : 10;
    img.set(rx, ry, pal::kPlank[1]);
    img.set(rx + (log ? 0 : 2), ry + (log ? 2 : 0), pal::kPlank[2]);
    return img;
}

Image cactus()
{
    Image img = groundArea(Ground::Sand, 24, 24, 2);
    Mask m(24, 24);
    m.rect(10, 3, 5, 19).rect(5, 9, 3, 6).rect(5, 13, 6, 3).rect(17, 7, 3, 6).rect(14, 11, 6, 3);
    m.ellipse(12.5, 3.5, 2.5, 1.5).ellipse(6.5, 9, 1.5, 1.2).ellipse(18.5, 7, 1.5, 1.2);
    dropShadow(img, m, 2, 1);
    outline(img, m, pal::kInk);
    paintLit(img, m, pal::kPine, 3);
    for (int y = 5; y < 21; y += 3) img.set(12, y, pal::kPine[1]);
    return img;
}

Image hedge()
{
    Image img = groundArea(Ground::Grass, 24, 24, 0);
    Mask m(24, 24);
    m.rect(0, 5, 24, 15);
    outline(img, m, pal::kInk);
    paintLit(img, m, pal::kLeaf);
    for (int i = 0; i < 14; ++i) {
        const int x = static_cast<int>(noise01(i, 0, 41) * 22), y = 6 + static_cast<int>(noise01(i, 1, 41) * 12);
        img.set(x, y, pal::kLeaf[4]);
        img.set(x + 1, y + 1, pal::kLeaf[1]);
    }
    img.fill(0, 20, 24, 2, pal::kGrass[0]);
    return img;
}

// A one-tile tree with a round crown, on grass.
Image roundTree(int variant, const Ramp& leaves, int seed, const Ramp* fruitColour = nullptr)
{
    Image img = groundArea(Ground::Grass, 24, 24, variant);
    trunk(img, 12, 14, 22, 4);
    crown(img, 12, 9, 10, 8, 4, leaves, seed);
    if (fruitColour) fruit(img, 5, *fruitColour, seed);
    return img;
}

// A one-tile fir on the given ground.
Image smallFir(Ground ground, bool snowy)
{
    Image img = groundArea(ground, 24, 24, 0);
    trunk(img, 12, 18, 22, 3);
    pineTiers(img, 12, 1, 19, 8, 3, pal::kPine, snowy);
    return img;
}

} // namespace

void paintNature(TileSheet& sheet)
{
    Image oak = groundArea(Ground::Grass, 48, 48);
    trunk(oak, 24, 30, 46, 7);
    crown(oak, 24, 20, 21, 17, 9, pal::kLeaf, 3);
    sheet.putBlock(kOak, oak, kBlocked);

    Image bigPine = groundArea(Ground::Grass, 48, 48, 2);
    trunk(bigPine, 24, 36, 46, 5);
    pineTiers(bigPine, 24, 1, 38, 20, 4, pal::kPine);
    sheet.putBlock(kBigPine, bigPine, kBlocked);

    Image pine = groundArea(Ground::Grass, 24, 48, 1);
    trunk(pine, 12, 36, 46, 4);
    pineTiers(pine, 12, 4, 38, 10.5, 3, pal::kPine);
    sheet.putBlock(kPine, pine, kBlocked);

    sheet.putBlock(kPalm, palm(), kBlocked);
    sheet.putBlock(kBoulder, rock(Ground::Grass, 20, 16, 8, pal::kStone, 48, 48), kBlocked);

    sheet.put(kRoundTree, roundTree(2, pal::kLeaf, 5), kBlocked);
    sheet.put(kFruitTree, roundTree(3, pal::kGreenCloth, 6, &pal::kFlowerRed), kBlocked);
    sheet.put(kSmallPine, smallFir(Ground::Grass, false), kBlocked);
    sheet.put(kDeadTree, deadTree(), kBlocked);
    sheet.put(kStump, stumpOrLog(false), kBlocked);
    sheet.put(kBush, bush(Ground::Grass, pal::kLeaf, nullptr, 21), kBlocked);
    sheet.put(kBerryBush, bush(Ground::Grass, pal::kLeaf, &pal::kFlowerBlue, 22), kBlocked);
    sheet.put(kFlowerBush, bush(Ground::Grass, pal::kGreenCloth, &pal::kFlowerRed, 23), kBlocked);
    sheet.put(kRock, rock(Ground::Grass, 6, 4.5, 31), kBlocked);
    sheet.put(kBigRock, rock(Ground::Grass, 10, 8, 32), kBlocked);
    sheet.put(kSandRock, rock(Ground::Sand, 9, 6.5, 33, pal::kCobble), kBlocked);
    sheet.put(kLog, stumpOrLog(true), kBlocked);
    sheet.put(kHedge, hedge(), kBlocked);

    sheet.put(kSnowPine, smallFir(Ground::Snow, true), kBlocked);
    sheet.put(kSnowRock, rock(Ground::Snow, 9, 7, 34), kBlocked);
    sheet.put(kCactus, cactus(), kBlocked);

    sheet.put(kAutumnTree, roundTree(1, pal::kThatch, 7), kBlocked);
    sheet.put(kSnowBush, bush(Ground::Snow, pal::kPine, &pal::kFlowerRed, 24), kBlocked);
    sheet.put(kDirtRock, rock(Ground::Dirt, 8, 6, 35, pal::kCobble), kBlocked);
    sheet.put(kShrubDirt, bush(Ground::Dirt, pal::kGreenCloth, nullptr, 25), kBlocked);
}

} // namespace worldgen
