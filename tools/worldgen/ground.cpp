#include "ground.h"

#include "art.h"
#include "palette.h"

#include <algorithm>
#include <cmath>

namespace worldgen {
namespace {

int wrap(int v) { return ((v % 24) + 24) % 24; }

} // namespace

Rgb masonry(const Ramp& ramp, int x, int y, int w, int h, int rowShift, int seed)
{
    const int row = y / h;
    const int sx = wrap(x + (row % 2) * rowShift);
    const int u = sx % w, v = y % h;
    const int slabId = (sx / w) + row * 7;
    if (u == w - 1 || v == h - 1) return ramp[0];
    double level = 2.1 + (noise01(slabId, seed, 77) - 0.5) * 0.8 + (smoothNoise(x, y, 4, 24, seed) - 0.5) * 0.6;
    if (u == 0 || v == 0) level += 1.0;
    if (u == w - 2 || v == h - 2) level -= 0.8;
    return shade(ramp, level, x, y);
}

namespace {

// Stones around jittered points, a 3 x 3 lattice that repeats with the tile.
Rgb cobble(const Ramp& ramp, int x, int y, int seed)
{
    double best = 1e9, second = 1e9, bx = 0, by = 0;
    for (int gy = -1; gy <= 3; ++gy)
        for (int gx = -1; gx <= 3; ++gx) {
            const int cx = (gx + 3) % 3, cy = (gy + 3) % 3;
            const double px = gx * 8 + 2 + noise01(cx, cy, seed) * 4, py = gy * 8 + 2 + noise01(cx, cy, seed + 1) * 4;
            const double d = std::hypot(x + 0.5 - px, y + 0.5 - py);
            if (d < best) second = best, best = d, bx = px, by = py;
            else if (d < second) second = d;
        }
    if (second - best < 1.2) return ramp[0];
    const double level = 2.3 - ((x - bx) + (y - by)) * 0.16 + (noise01(int(bx), int(by), seed) - 0.5) * 0.6;
    return shade(ramp, level, x, y);
}

Rgb grass(int x, int y, int seed)
{
    const Ramp& r = pal::kGrass;
    const double n = smoothNoise(x, y, 6, 24, seed);
    // Blade tufts: a light tip with a dark root below it.
    if (noise01(x, y, seed + 5) < 0.06) return r[3 + (noise01(x, y, seed + 6) < 0.3)];
    if (noise01(x, wrap(y - 1), seed + 5) < 0.06) return r[1];
    return shade(r, 1.6 + n * 1.0, x, y);
}

Rgb water(int x, int y, int seed, double depth)
{
    const Ramp& r = pal::kWater;
    const double n = smoothNoise(x, y, 8, 24, seed);
    const int group = x / 6;
    const int phase = static_cast<int>(noise01(group, 0, seed + 3) * 8);
    const int u = x % 6;
    if ((y + phase) % 8 == 0 && u >= 1 && u <= 4) return depth > 0.5 ? r[3] : r[4];
    if ((y + phase) % 8 == 1 && u >= 2 && u <= 3) return r[depth > 0.5 ? 2 : 3];
    return shade(r, 2.2 - depth + n * 0.8, x, y);
}

} // namespace

Rgb groundPixel(Ground ground, int x, int y, int variant)
{
    x = wrap(x), y = wrap(y);
    const int seed = 101 + variant * 31 + static_cast<int>(ground) * 1000;
    switch (ground) {
    case Ground::Grass:
        return grass(x, y, seed);
    case Ground::Dirt: {
        if (noise01(x, y, seed) < 0.035) return pal::kDirt[4];
        if (noise01(wrap(x - 1), wrap(y - 1), seed) < 0.035) return pal::kDirt[0];
        return shade(pal::kDirt, 1.7 + smoothNoise(x, y, 6, 24, seed) * 0.9, x, y);
    }
    case Ground::Sand: {
        if (noise01(x, y, seed) < 0.03) return pal::kSand[1];
        const double ripple = std::sin((x + y * 2 + smoothNoise(x, y, 8, 24, seed) * 8) * 3.14159 / 6);
        return shade(pal::kSand, 2.2 + smoothNoise(x, y, 6, 24, seed + 1) * 0.6 + ripple * 0.3, x, y);
    }
    case Ground::Water:
        return water(x, y, seed, 0.0);
    case Ground::DeepWater:
        return water(x, y, seed, 0.9);
    case Ground::Cobble:
        return cobble(pal::kCobble, x, y, seed);
    case Ground::Gravel: {
        const double n = noise01(x / 2, y / 2, seed);
        return shade(pal::kCobble, 1.0 + n * 2.6, x, y);
    }
    case Ground::Mud: {
        const double n = smoothNoise(x, y, 6, 24, seed);
        if (n > 0.68) return shade(pal::kWater, 1.2 + (n - 0.68) * 4, x, y);
        return shade(pal::kDirt, 0.8 + n * 1.0, x, y);
    }
    case Ground::Snow: {
        const double n = smoothNoise(x, y, 6, 24, seed);
        if (noise01(x, y, seed + 2) < 0.025) return pal::kSnow[1];
        return shade(pal::kSnow, 2.4 + n * 1.4, x, y);
    }
    case Ground::Pavement:
        return masonry(pal::kStone, x, y, 12, 12, 6 * (variant % 2), seed);
    case Ground::Ice: {
        const double streak = std::sin((x - y + smoothNoise(x, y, 8, 24, seed) * 6) * 3.14159 / 12);
        return shade(pal::kSnow, 1.4 + streak * 0.8 + noise01(x, y, seed) * 0.3, x, y);
    }
    case Ground::CaveFloor: {
        const double n = smoothNoise(x, y, 6, 24, seed);
        if (std::abs(smoothNoise(x, y, 8, 24, seed + 4) - 0.5) < 0.025) return pal::kCave[0];
        if (noise01(x, y, seed + 1) < 0.03) return pal::kCave[3];
        return shade(pal::kCave, 1.5 + n * 1.0, x, y);
    }
    case Ground::DungeonFloor:
        if (variant == 2 && std::abs(x - y - 3 + smoothNoise(x, y, 3, 24, seed) * 4) < 0.7) return pal::kDungeon[0];
        return masonry(pal::kDungeon, x, y, 12, 8, 6, seed);
    case Ground::Lava: {
        const double n = smoothNoise(x, y, 6, 24, seed);
        if (n < 0.3) return shade(pal::kCave, 0.4 + n * 3, x, y);
        return shade(pal::kLava, 1.0 + (n - 0.3) * 5, x, y);
    }
    case Ground::Chasm: {
        const double n = smoothNoise(x, y, 8, 24, seed);
        return mix(pal::kInk, Rgb{8, 6, 12}, 0.5 + n * 0.5);
    }
    case Ground::Checker: {
        const bool dark = ((x / 6) + (y / 6)) % 2;
        const int u = x % 6, v = y % 6;
        const double level = (dark ? 1.2 : 3.0) + (u == 0 || v == 0) * 0.6 - (u == 5 || v == 5) * 0.6;
        return shade(dark ? pal::kDungeon : pal::kPlaster, level, x, y);
    }
    case Ground::Terracotta:
        return masonry(pal::kBrick, x, y, 8, 8, 0, seed);
    case Ground::WoodFloor: {
        const int row = y / 6;
        const int shift = static_cast<int>(noise01(row, variant, 9) * 24);
        const int u = wrap(x + shift);
        if (y % 6 == 5) return pal::kPlank[0];
        if (u % 12 == 0) return pal::kPlank[1];
        double level = 2.2 + (noise01(row, u / 12, seed) - 0.5) * 0.7 + std::sin(u * 0.9 + row) * 0.2;
        if (y % 6 == 0) level += 0.7;
        return shade(pal::kPlank, level, x, y);
    }
    }
    return kBlack;
}

Image groundArea(Ground ground, int width, int height, int variant)
{
    Image img(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) img.set(x, y, groundPixel(ground, x, y, variant));
    return img;
}

Image groundTile(Ground ground, int variant) { return groundArea(ground, 24, 24, variant); }

bool groundBlocks(Ground ground)
{
    return ground == Ground::Water || ground == Ground::DeepWater || ground == Ground::Lava || ground == Ground::Chasm;
}

} // namespace worldgen
