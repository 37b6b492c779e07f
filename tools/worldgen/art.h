#pragma once
// Drawing kit shared by tiles, figures and monsters: shapes as masks, a
// fixed light from the top left, dithered shading and dark outlines.
#include "image.h"

#include <array>
#include <cstdint>
#include <vector>

namespace worldgen {

// Five shades of one material, darkest first.
using Ramp = std::array<Rgb, 5>;

// Deterministic hash noise: the same arguments give the same value on every run.
std::uint32_t hash(int x, int y, int seed);
double noise01(int x, int y, int seed); // white noise in [0, 1)
// Smooth value noise in [0, 1) whose lattice repeats every `period` pixels, so tiles wrap.
double smoothNoise(double x, double y, int cell, int period, int seed);
// Ordered 4 x 4 dither threshold in (0, 1).
double bayer(int x, int y);

// Picks a ramp entry for a continuous level in [0, 4], dithering between neighbours.
Rgb shade(const Ramp& ramp, double level, int x, int y);

class Mask {
public:
    Mask(int width, int height);
    int width() const { return width_; }
    int height() const { return height_; }
    bool at(int x, int y) const;
    void set(int x, int y, bool on = true);
    bool empty() const;

    Mask& rect(int x, int y, int w, int h, bool on = true);
    Mask& ellipse(double cx, double cy, double rx, double ry, bool on = true);
    Mask& polygon(const std::vector<std::array<double, 2>>& points, bool on = true);
    Mask& line(double x0, double y0, double x1, double y1, double thickness, bool on = true);
    Mask& add(const Mask& other);
    Mask& cut(const Mask& other);
    Mask shifted(int dx, int dy) const;
    Mask mirrored() const;

private:
    int width_, height_;
    std::vector<std::uint8_t> bits_;
};

// Edge light: faces towards the top left get lighter shades, the others darker.
void paintLit(Image& img, const Mask& m, const Ramp& ramp, int base = 2);
// Round light: shaded like a ball lit from the top left, centred on the mask's bounds.
void paintRound(Image& img, const Mask& m, const Ramp& ramp, double bias = 0.0);
void paintFlat(Image& img, const Mask& m, Rgb colour);
// A one-pixel outline on the outside of the shape.
void outline(Image& img, const Mask& m, Rgb colour);
// Outline, then round shading: the usual way to draw a solid object.
void drawSolid(Image& img, const Mask& m, const Ramp& ramp, Rgb line, double bias = 0.0);
// Outline, then edge light: the usual way to draw something flat-sided.
void drawBlock(Image& img, const Mask& m, const Ramp& ramp, Rgb line, int base = 2);
// Shadow on the ground, then drawBlock: a flat-sided thing standing up.
void drawStanding(Image& img, const Mask& m, const Ramp& ramp, Rgb line, int base = 2);
// A soft dark patch under an object, standing on the ground to the lower right.
void dropShadow(Image& img, const Mask& m, int dx = 1, int dy = 1, double strength = 0.45);

} // namespace worldgen
