// Pictures of the battle screen's enemies: drawn at 64 x 64 and shown
// three times enlarged, 192 x 192 on black.
#include "enemies.h"

#include "art.h"
#include "palette.h"

#include <cmath>

namespace worldgen {
namespace {

constexpr int kSize = 64;
using Points = std::vector<std::array<double, 2>>;

Mask shape() { return Mask(kSize, kSize); }

void part(Image& img, const Mask& m, const Ramp& ramp, double bias = 0.0) { drawSolid(img, m, ramp, pal::kInk, bias); }

void eyes(Image& img, double x0, double x1, double y, Rgb colour, int size = 2)
{
    for (double x : {x0, x1}) {
        img.fill(int(x), int(y), size, size, colour);
        img.set(int(x), int(y), pal::kFlowerWhite[4]);
    }
}

void groundShadow(Image& img, double cx, double cy, double rx)
{
    Mask m = shape();
    m.ellipse(cx, cy, rx, rx * 0.22);
    paintFlat(img, m, Rgb{26, 24, 34});
}

Image slime()
{
    Image img(kSize, kSize);
    groundShadow(img, 32, 54, 22);
    Mask body = shape();
    body.ellipse(32, 40, 21, 15).ellipse(32, 30, 13, 12).ellipse(31, 20, 4, 5);
    part(img, body, pal::kGreenCloth, 0.3);
    Mask shine = shape();
    shine.ellipse(24, 28, 4, 3);
    paintFlat(img, shine, pal::kGrass[4]);
    eyes(img, 25, 36, 34, pal::kInk, 3);
    img.fill(29, 42, 6, 1, pal::kInk);
    return img;
}

// Four-legged beasts in profile, facing left.
Image wolf()
{
    Image img(kSize, kSize);
    groundShadow(img, 34, 56, 24);
    for (double x : {20.0, 26.0, 42.0, 48.0}) part(img, shape().line(x, 38, x - 2, 55, 4), pal::kStone);
    part(img, shape().line(50, 32, 60, 20, 5), pal::kStone, 0.3);
    part(img, shape().ellipse(36, 36, 17, 9), pal::kStone);
    Mask head = shape();
    head.ellipse(16, 28, 9, 8).polygon({{10, 26}, {2, 31}, {4, 35}, {14, 34}});
    part(img, head, pal::kStone, 0.2);
    part(img, shape().polygon({{14, 22}, {19, 12}, {21, 23}}), pal::kStone);
    eyes(img, 12, 12, 26, pal::kFlowerYellow[3]);
    img.fill(4, 33, 8, 1, pal::kInk);
    for (int i = 0; i < 3; ++i) img.set(5 + 2 * i, 34, pal::kFlowerWhite[4]); // teeth
    return img;
}

Image bat()
{
    Image img(kSize, kSize);
    for (double side : {-1.0, 1.0}) {
        Points wing{{32, 28}, {32 + side * 10, 14}, {32 + side * 30, 18}, {32 + side * 24, 26}, {32 + side * 26, 34},
                    {32 + side * 18, 32}, {32 + side * 14, 38}, {32 + side * 6, 34}};
        part(img, shape().polygon(wing), pal::kPurple, -0.3);
    }
    part(img, shape().ellipse(32, 32, 7, 9), pal::kPurple, 0.2);
    part(img, shape().polygon({{26, 26}, {27, 17}, {30, 24}}).polygon({{38, 26}, {37, 17}, {34, 24}}), pal::kPurple);
    eyes(img, 28, 34, 29, pal::kRed[3]);
    img.set(30, 35, pal::kFlowerWhite[4]);
    img.set(33, 35, pal::kFlowerWhite[4]);
    return img;
}

// Upright creatures: legs, body, arms, head, in one frame of mind.
struct Humanoid {
    const Ramp& skin;
    const Ramp& cloth;
    double scale;
};

Image biped(const Humanoid& h, bool bones)
{
    Image img(kSize, kSize);
    const double s = h.scale, top = 58 - 50 * s;
    groundShadow(img, 32, 58, 16 * s);
    for (int side : {-1, 1}) part(img, shape().line(32 + side * 5 * s, top + 30 * s, 32 + side * 7 * s, 57, bones ? 2.5 : 6 * s), bones ? pal::kBone : h.skin);
    Mask torso = shape();
    if (bones)
        for (int i = 0; i < 4; ++i) torso.ellipse(32, top + 17 * s + i * 4 * s, 8 * s - i, 1.6);
    else
        torso.ellipse(32, top + 22 * s, 11 * s, 12 * s);
    part(img, torso, bones ? pal::kBone : h.cloth, 0.2);
    if (bones) part(img, shape().rect(31, int(top + 14 * s), 2, int(18 * s)), pal::kBone);
    for (int side : {-1, 1}) part(img, shape().line(32 + side * 10 * s, top + 14 * s, 32 + side * 14 * s, top + 32 * s, bones ? 2.5 : 5 * s), bones ? pal::kBone : h.skin);
    Mask head = shape();
    head.ellipse(32, top + 7 * s, 8 * s, 8 * s);
    part(img, head, bones ? pal::kBone : h.skin, 0.3);
    return img;
}

Image goblin()
{
    Image img = biped({pal::kGreenCloth, pal::kLeather, 0.85}, false);
    const double top = 58 - 50 * 0.85;
    part(img, shape().polygon({{25, top + 5}, {12, top + 1}, {24, top + 9}}).polygon({{39, top + 5}, {52, top + 1}, {40, top + 9}}), pal::kGreenCloth);
    eyes(img, 28, 34, top + 5, pal::kFlowerYellow[4]);
    part(img, shape().line(45, 34, 52, 24, 2.5), pal::kIron, 0.4); // dagger
    return img;
}

Image skeleton()
{
    Image img = biped({pal::kBone, pal::kBone, 1.0}, true);
    img.fill(28, 14, 3, 3, pal::kInk);
    img.fill(34, 14, 3, 3, pal::kInk);
    img.fill(29, 19, 7, 1, pal::kInk);
    part(img, shape().line(46, 40, 58, 14, 3), pal::kIron, 0.4);
    part(img, shape().line(43, 38, 50, 36, 2), pal::kGold);
    return img;
}

Image orc()
{
    Image img = biped({pal::kPine, pal::kIron, 1.0}, false);
    eyes(img, 28, 34, 12, pal::kRed[3]);
    for (int x : {29, 35}) img.fill(x, 17, 1, 3, pal::kBone[4]); // tusks
    part(img, shape().line(47, 44, 52, 8, 3), pal::kWood);
    part(img, shape().polygon({{50, 6}, {62, 10}, {60, 22}, {51, 18}}), pal::kIron, 0.3); // axe
    return img;
}

Image troll()
{
    Image img = biped({pal::kRoofBlue, pal::kLeather, 1.1}, false);
    eyes(img, 27, 35, 8, pal::kFlowerYellow[3]);
    img.fill(28, 13, 9, 2, pal::kInk);
    part(img, shape().line(16, 30, 8, 56, 6).ellipse(9, 55, 6, 5), pal::kWood); // club
    return img;
}

Image spider()
{
    Image img(kSize, kSize);
    groundShadow(img, 32, 54, 24);
    for (int side : {-1, 1})
        for (int i = 0; i < 4; ++i) {
            const double y = 32 + i * 4;
            Mask leg = shape();
            leg.line(32, y, 32 + side * (16 + i * 3), y - 12 + i * 2, 2.5).line(32 + side * (16 + i * 3), y - 12 + i * 2, 32 + side * (22 + i * 3), 54, 2.2);
            part(img, leg, pal::kCave);
        }
    part(img, shape().ellipse(32, 44, 13, 10), pal::kCave, 0.2);
    part(img, shape().ellipse(32, 30, 8, 7), pal::kCave, 0.2);
    for (int i = 0; i < 4; ++i) img.fill(27 + i * 3, 28 + (i % 3 == 0), 2, 2, pal::kRed[3]);
    img.fill(30, 42, 4, 6, pal::kRed[2]); // the mark on its back
    return img;
}

Image ghost()
{
    Image img(kSize, kSize);
    Mask m = shape();
    m.ellipse(32, 22, 17, 16).rect(15, 22, 35, 24);
    for (int i = 0; i < 5; ++i) m.ellipse(18 + i * 7, 46, 3.6, 4, i % 2 == 0); // a wavy hem
    part(img, m, pal::kFlowerWhite, 0.2);
    Mask eye = shape();
    eye.ellipse(26, 22, 3, 4).ellipse(38, 22, 3, 4).ellipse(32, 32, 3, 4);
    paintFlat(img, eye, pal::kInkSoft);
    return img;
}

Image dragon()
{
    Image img(kSize, kSize);
    groundShadow(img, 34, 58, 26);
    for (double side : {-1.0, 1.0}) {
        Points wing{{32 + side * 6, 26}, {32 + side * 28, 6}, {32 + side * 30, 28}, {32 + side * 20, 24}, {32 + side * 16, 34}};
        part(img, shape().polygon(wing), pal::kRed, -0.4);
    }
    part(img, shape().line(42, 50, 60, 54, 5).polygon({{58, 50}, {63, 54}, {58, 58}}), pal::kRed);
    for (int side : {-1, 1}) part(img, shape().line(32 + side * 9, 46, 32 + side * 11, 57, 6), pal::kRed);
    part(img, shape().ellipse(32, 42, 14, 12), pal::kRed, 0.2);
    part(img, shape().ellipse(32, 44, 7, 9), pal::kFlowerYellow);
    part(img, shape().line(32, 34, 30, 20, 8), pal::kRed, 0.2);
    Mask head = shape();
    head.ellipse(30, 16, 8, 6).rect(22, 17, 10, 5);
    part(img, head, pal::kRed, 0.3);
    part(img, shape().polygon({{33, 11}, {40, 3}, {37, 13}}).polygon({{27, 11}, {26, 2}, {30, 11}}), pal::kBone);
    eyes(img, 27, 33, 14, pal::kFlowerYellow[4]);
    Mask fire = shape();
    fire.polygon({{22, 20}, {8, 16}, {2, 22}, {8, 26}});
    paintRound(img, fire, pal::kLava, 0.8);
    return img;
}

} // namespace

std::vector<PictureFile> enemyFiles()
{
    struct Enemy {
        const char* name;
        const char* shows;
        Image (*draw)();
    };
    const Enemy enemies[] = {
        {"slime", "green slime", slime},   {"wolf", "grey wolf", wolf},          {"bat", "purple cave bat", bat},
        {"goblin", "goblin with a dagger", goblin}, {"skeleton", "skeleton with a sword", skeleton},
        {"orc", "orc with an axe", orc},   {"spider", "giant cave spider", spider}, {"ghost", "white ghost", ghost},
        {"troll", "blue troll with a club", troll}, {"dragon", "red dragon breathing fire", dragon},
    };
    std::vector<PictureFile> files;
    for (const Enemy& e : enemies)
        files.push_back({std::string("images/enemypics/") + e.name + ".bmp", e.shows, e.draw().scaled(kEnemyScale)});
    return files;
}

} // namespace worldgen
