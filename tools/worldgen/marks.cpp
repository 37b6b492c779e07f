#include "marks.h"

#include "art.h"
#include "palette.h"

#include <cmath>

namespace worldgen {
namespace {

// Writes a drawn icon (black around it) and its mask side by side at x.
void putMasked(Image& sheet, const Image& icon, int x)
{
    for (int j = 0; j < 24; ++j)
        for (int i = 0; i < 24; ++i) {
            const Rgb c = icon.at(i, j);
            sheet.set(x + i, j, c);
            sheet.set(x + 24 + i, j, c == kBlack ? kWhite : kBlack);
        }
}

Image messageMark()
{
    Image img(24, 24);
    Mask bubble(24, 24);
    bubble.ellipse(12, 10, 10, 7.5).polygon({{6, 14}, {10, 15}, {4, 21}});
    drawSolid(img, bubble, pal::kFlowerWhite, pal::kInk, 0.5);
    for (int x : {7, 11, 15}) img.fill(x, 9, 2, 2, pal::kInkSoft);
    return img;
}

Image warpMark()
{
    Image img(24, 24);
    for (int ring = 0; ring < 3; ++ring) {
        Mask m(24, 24);
        m.ellipse(12, 12, 10.5 - ring * 3.2, 10.5 - ring * 3.2).ellipse(12, 12, 9 - ring * 3.2, 9 - ring * 3.2, false);
        paintFlat(img, m, ring == 1 ? pal::kPurple[4] : pal::kWater[3 + (ring == 2)]);
    }
    Mask core(24, 24);
    core.ellipse(12, 12, 2.5, 2.5);
    paintFlat(img, core, pal::kFlowerWhite[4]);
    Mask rim(24, 24);
    rim.ellipse(12, 12, 10.5, 10.5);
    outline(img, rim, pal::kInk);
    return img;
}

Image bag(double size)
{
    Image img(24, 24);
    Mask sack(24, 24), neck(24, 24);
    sack.ellipse(12, 15, 7.5 * size, 6.5 * size);
    neck.polygon({{12 - 3 * size, 15 - 8 * size}, {12 + 3 * size, 15 - 8 * size}, {12 + 1.5 * size, 15 - 5 * size}, {12 - 1.5 * size, 15 - 5 * size}});
    outline(img, Mask(sack).add(neck), pal::kInk);
    paintRound(img, sack, pal::kLeather);
    paintLit(img, neck, pal::kLeather);
    img.fill(int(12 - 3 * size), int(15 - 5 * size), int(6 * size) + 1, 1, pal::kGold[3]);
    img.set(13, 16, pal::kGold[4]);
    img.set(11, 18, pal::kGold[3]);
    return img;
}

Image eventMark()
{
    Image img(24, 24);
    Mask star(24, 24);
    std::vector<std::array<double, 2>> points;
    for (int i = 0; i < 10; ++i) {
        const double a = -3.14159 / 2 + i * 3.14159 / 5, r = i % 2 ? 4.5 : 11;
        points.push_back({12 + std::cos(a) * r, 12.5 + std::sin(a) * r});
    }
    star.polygon(points);
    drawSolid(img, star, pal::kFlowerYellow, pal::kInk, 0.4);
    img.fill(11, 8, 2, 5, pal::kInkSoft); // "!"
    img.fill(11, 14, 2, 2, pal::kInkSoft);
    return img;
}

Image startMark()
{
    Image img(24, 24);
    Mask pole(24, 24), flag(24, 24), base(24, 24);
    pole.rect(6, 2, 2, 20);
    base.ellipse(7, 21, 5, 2);
    flag.polygon({{8, 2}, {21, 6}, {8, 11}});
    drawBlock(img, base, pal::kStone, pal::kInk);
    drawBlock(img, pole, pal::kWood, pal::kInk, 3);
    drawBlock(img, flag, pal::kRed, pal::kInk, 3);
    return img;
}

} // namespace

Image specialMarks()
{
    Image sheet(5 * 48, 24);
    const Image marks[] = {messageMark(), warpMark(), bag(0.8), eventMark(), startMark()};
    for (int i = 0; i < 5; ++i) putMasked(sheet, marks[i], 48 * i);
    return sheet;
}

Image groundItemIcon()
{
    Image sheet(48, 24);
    putMasked(sheet, bag(1.0), 0);
    return sheet;
}

Image nightOverlay()
{
    Image img(kNightMaskX + kNightW, kNightH);
    for (int y = 0; y < kNightH; ++y)
        for (int x = 0; x < kNightW; ++x) {
            const bool covered = (x + y) % 2 == 0;
            img.set(x, y, covered ? pal::kNight : kBlack);
            img.set(kNightMaskX + x, y, covered ? kBlack : kWhite);
        }
    return img;
}

} // namespace worldgen
