// Roofs and house fronts.
#include "art.h"
#include "palette.h"
#include "tilesheet.h"
#include "walls.h"
#include "ground.h"

#include <cmath>

namespace worldgen {
namespace {

enum class RoofKind { Tiles, Slate, Thatch };

// One pixel of a roof block of 72 x 72, x and y within the block.
Rgb roofPixel(RoofKind kind, const Ramp& r, int x, int y)
{
    const int u = x % 24;
    // Gable trims at the outer sides, a ridge cap at the top, the eave's shadow at the bottom.
    if (x < 3) return x == 0 ? pal::kInk : pal::kWood[x == 1 ? 3 : 1];
    if (x >= 69) return x == 71 ? pal::kInk : pal::kWood[x == 69 ? 2 : 0];
    if (y < 6) {
        if (y == 0 || y == 5) return pal::kInk;
        const int cap = (x + 2) % 6;
        return shade(r, (y == 1 ? 3.6 : 2.4 - y * 0.2) - (cap == 0 ? 1.2 : 0), x, y);
    }
    if (y >= 66) return y >= 70 ? pal::kInk : shade(r, y == 66 ? 3.2 : 0.6, x, y);
    if (kind == RoofKind::Thatch) {
        const int band = (y - 6) / 10;
        const double streak = noise01(u + band * 24, 0, 5) * 1.4;
        const int v = (y - 6) % 10;
        if (v == 9) return r[0];
        return shade(r, 1.3 + streak + (9 - v) * 0.12, x, y);
    }
    const int h = kind == RoofKind::Slate ? 5 : 6, w = kind == RoofKind::Slate ? 6 : 8;
    const int row = (y - 6) / h, v = (y - 6) % h;
    const int s = (u + (row % 2) * (w / 2)) % w;
    if (v == h - 1) return r[0];
    if (s == 0) return r[1];
    double level = 2.0 + (h - 1 - v) * 0.28 + (noise01((u + (row % 2) * (w / 2)) / w, row, 3) - 0.5) * 0.5;
    if (kind == RoofKind::Tiles && s == w - 1) level -= 0.7; // the round of each pantile
    return shade(r, level, x, y);
}

void paintRoof(TileSheet& sheet, RoofSet set, RoofKind kind, const Ramp& ramp)
{
    Image block(72, 72);
    for (int y = 0; y < 72; ++y)
        for (int x = 0; x < 72; ++x) block.set(x, y, roofPixel(kind, ramp, x, y));
    sheet.putBlock(set.origin, block, kBlocked);
    Image chimney = block.crop(24, 24, 24, 24);
    Mask stack(24, 24), top(24, 24);
    stack.rect(8, 2, 9, 16);
    top.rect(7, 0, 11, 4);
    outline(chimney, Mask(stack).add(top), pal::kInk);
    for (int y = 2; y < 18; ++y)
        for (int x = 8; x < 17; ++x) {
            const bool joint = y % 4 == 1 || (x + (y / 4 % 2) * 2) % 5 == 0;
            chimney.set(x, y, joint ? pal::kBrick[0] : pal::kBrick[x < 10 ? 3 : x > 14 ? 1 : 2]);
        }
    paintLit(chimney, top, pal::kStone);
    chimney.fill(9, 1, 7, 1, pal::kInkSoft);
    sheet.put(set.chimney(), chimney, kBlocked);
}

Rgb wallPixel(WallKind kind, int x, int y)
{
    switch (kind) {
    case WallKind::Stone:
        return masonry(pal::kStone, x, y, 12, 6, 6, 8);
    case WallKind::Dungeon:
        return masonry(pal::kDungeon, x, y, 12, 8, 6, 9);
    case WallKind::Cave: {
        const double n = smoothNoise(x, y, 6, 24, 14), crack = std::abs(smoothNoise(x, y, 8, 24, 15) - 0.5);
        if (crack < 0.03) return pal::kCave[0];
        return shade(pal::kCave, 1.4 + n * 1.8 - (y > 18) * 0.6, x, y);
    }
    case WallKind::Plaster:
        if (y < 2 || y == 12) return pal::kWood[y == 0 ? 1 : 2];
        return shade(pal::kPlaster, 2.3 + smoothNoise(x, y, 4, 24, 9) * 0.8 - (y == 2 || y == 13) * 1.0, x, y);
    case WallKind::Wood: {
        const int u = x % 6;
        if (u == 5) return pal::kWood[0];
        return shade(pal::kWood, 2.3 + (u == 0) * 0.8 + (noise01(x / 6, 0, 4) - 0.5) * 0.7 + std::sin(y * 0.8 + x) * 0.15, x, y);
    }
    case WallKind::Brick: {
        const int row = y / 4, u = (x + (row % 2) * 4) % 8, v = y % 4;
        if (v == 3 || u == 7) return pal::kPlaster[0];
        return shade(pal::kBrick, 2.0 + (v == 0) * 0.8 + (noise01((x + (row % 2) * 4) / 8, row, 6) - 0.5) * 0.9, x, y);
    }
    }
    return kBlack;
}

} // namespace

Image wallFace(WallKind kind, int corner)
{
    Image img(24, 24);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) img.set(x, y, wallPixel(kind, x, y));
    img.fill(0, 21, 24, 3, pal::kStone[1]); // the footing
    img.fill(0, 21, 24, 1, pal::kStone[3]);
    img.fill(0, 23, 24, 1, pal::kInk);
    if (corner != 0) { // a corner post
        const int x0 = corner < 0 ? 0 : 20;
        Mask post(24, 24);
        post.rect(x0, 0, 4, 24);
        paintLit(img, post, kind == WallKind::Stone ? pal::kCobble : pal::kWood);
        img.fill(corner < 0 ? 0 : 23, 0, 1, 24, pal::kInk);
    }
    return img;
}

void drawWindow(Image& img)
{
    Mask frame(24, 24), glass(24, 24);
    frame.rect(5, 4, 14, 13);
    glass.rect(7, 6, 10, 9);
    outline(img, frame, pal::kInk);
    paintLit(img, frame, pal::kWood, 3);
    for (int y = 6; y < 15; ++y)
        for (int x = 7; x < 17; ++x) img.set(x, y, shade(pal::kWater, 1.0 + (x + y < 17 ? 2.5 : 0.3) + (y - 6) * 0.05, x, y));
    img.fill(11, 6, 2, 9, pal::kWood[1]);
    img.fill(7, 10, 10, 1, pal::kWood[1]);
    img.fill(4, 17, 16, 2, pal::kWood[3]);
    img.fill(4, 19, 16, 1, pal::kInk);
}

void drawDoor(Image& img, bool open)
{
    Mask frame(24, 24), leaf(24, 24);
    frame.rect(4, 2, 16, 21);
    leaf.rect(6, 4, 12, 19);
    outline(img, frame, pal::kInk);
    paintLit(img, frame, pal::kStone, 3);
    if (open) {
        for (int y = 4; y < 23; ++y)
            for (int x = 6; x < 18; ++x) img.set(x, y, mix(pal::kInk, pal::kWood[0], (y - 4) / 40.0));
        img.fill(6, 4, 2, 19, pal::kWood[2]);
        return;
    }
    for (int y = 4; y < 23; ++y)
        for (int x = 6; x < 18; ++x) img.set(x, y, (x - 6) % 4 == 3 ? pal::kWood[0] : shade(pal::kWood, 2.4 - (x - 6) * 0.07, x, y));
    img.fill(6, 8, 12, 1, pal::kIron[1]);
    img.fill(6, 17, 12, 1, pal::kIron[1]);
    img.set(15, 13, pal::kGold[4]);
    img.set(15, 14, pal::kGold[1]);
}

namespace {

void paintWalls(TileSheet& sheet, WallSet set, WallKind kind)
{
    sheet.put(set.left(), wallFace(kind, -1), kBlocked);
    sheet.put(set.middle(), wallFace(kind, 0), kBlocked);
    sheet.put(set.right(), wallFace(kind, 1), kBlocked);
    Image win = wallFace(kind, 0);
    drawWindow(win);
    sheet.put(set.window(), win, kBlocked);
    Image closed = wallFace(kind, 0), open = wallFace(kind, 0);
    drawDoor(closed, false);
    drawDoor(open, true);
    sheet.put(set.door(), closed, kBlocked);
    sheet.put(set.doorOpen(), open, kPassable);
}

// A plaster wall with a board on an iron arm, and a little picture of the trade on it.
Image shopSign(int trade)
{
    Image img = wallFace(WallKind::Plaster, 0);
    img.fill(3, 3, 18, 2, pal::kIron[0]);
    img.fill(5, 5, 1, 3, pal::kIron[1]);
    img.fill(18, 5, 1, 3, pal::kIron[1]);
    Mask board(24, 24);
    board.rect(3, 8, 18, 12);
    outline(img, board, pal::kInk);
    paintLit(img, board, pal::kPlank);
    Mask icon(24, 24);
    const Ramp* colour = &pal::kIron;
    switch (trade) {
    case 0: // inn: a mug
        icon.rect(8, 11, 6, 7).rect(14, 12, 2, 1).rect(15, 12, 1, 4).rect(14, 15, 2, 1);
        colour = &pal::kGold;
        break;
    case 1: // weapons: a sword
        icon.line(7, 18, 16, 10, 1.6).line(8, 14, 12, 18, 1.2);
        break;
    case 2: // items: a potion
        icon.ellipse(12, 15.5, 4, 3.5).rect(11, 10, 3, 3);
        colour = &pal::kFlowerRed;
        break;
    default: // magic: a star
        icon.polygon({{12, 9}, {13.5, 13}, {17, 13.5}, {14, 15.5}, {15, 19}, {12, 17}, {9, 19}, {10, 15.5}, {7, 13.5}, {10.5, 13}});
        colour = &pal::kPurple;
    }
    outline(img, icon, pal::kInkSoft);
    paintRound(img, icon, *colour, 0.3);
    return img;
}

} // namespace

void paintBuildings(TileSheet& sheet)
{
    paintRoof(sheet, kRoofRed, RoofKind::Tiles, pal::kRoofRed);
    paintRoof(sheet, kRoofBlue, RoofKind::Slate, pal::kRoofBlue);
    paintRoof(sheet, kRoofThatch, RoofKind::Thatch, pal::kThatch);
    paintWalls(sheet, kWallStone, WallKind::Stone);
    paintWalls(sheet, kWallPlaster, WallKind::Plaster);
    paintWalls(sheet, kWallWood, WallKind::Wood);
    paintWalls(sheet, kWallBrick, WallKind::Brick);
    const Tile signs[] = {kShopSignInn, kShopSignWeapons, kShopSignItems, kShopSignMagic};
    for (int i = 0; i < 4; ++i) sheet.put(signs[i], shopSign(i), kBlocked);
}

} // namespace worldgen
