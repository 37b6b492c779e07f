#include "art.h"

#include <algorithm>
#include <cmath>

namespace worldgen {

std::uint32_t hash(int x, int y, int seed)
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8da6b343u ^ static_cast<std::uint32_t>(y) * 0xd8163841u ^
                      static_cast<std::uint32_t>(seed) * 0xcb1ab31fu;
    h ^= h >> 15;
    h *= 0x2c1b3c6du;
    h ^= h >> 12;
    h *= 0x297a2d39u;
    h ^= h >> 15;
    return h;
}

double noise01(int x, int y, int seed) { return (hash(x, y, seed) & 0xFFFFFF) / double(0x1000000); }

double smoothNoise(double x, double y, int cell, int period, int seed)
{
    const int cells = std::max(1, period / cell);
    const double fx = x / cell, fy = y / cell;
    const int x0 = static_cast<int>(std::floor(fx)), y0 = static_cast<int>(std::floor(fy));
    auto corner = [&](int cx, int cy) {
        return noise01(((cx % cells) + cells) % cells, ((cy % cells) + cells) % cells, seed);
    };
    auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double tx = ease(fx - x0), ty = ease(fy - y0);
    const double top = corner(x0, y0) + (corner(x0 + 1, y0) - corner(x0, y0)) * tx;
    const double bottom = corner(x0, y0 + 1) + (corner(x0 + 1, y0 + 1) - corner(x0, y0 + 1)) * tx;
    return top + (bottom - top) * ty;
}

double bayer(int x, int y)
{
    static constexpr int kMatrix[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (kMatrix[y & 3][x & 3] + 0.5) / 16.0;
}

Rgb shade(const Ramp& ramp, double level, int x, int y)
{
    level = std::clamp(level, 0.0, 4.0);
    int lower = static_cast<int>(std::floor(level));
    if (lower >= 4) return ramp[4];
    return ramp[(level - lower) > bayer(x, y) ? lower + 1 : lower];
}

Mask::Mask(int width, int height) : width_(width), height_(height), bits_(static_cast<std::size_t>(width) * height) {}

bool Mask::at(int x, int y) const
{
    return x >= 0 && y >= 0 && x < width_ && y < height_ && bits_[static_cast<std::size_t>(y) * width_ + x];
}

void Mask::set(int x, int y, bool on)
{
    if (x >= 0 && y >= 0 && x < width_ && y < height_) bits_[static_cast<std::size_t>(y) * width_ + x] = on;
}

bool Mask::empty() const { return std::none_of(bits_.begin(), bits_.end(), [](auto b) { return b != 0; }); }

Mask& Mask::rect(int x, int y, int w, int h, bool on)
{
    for (int j = y; j < y + h; ++j)
        for (int i = x; i < x + w; ++i) set(i, j, on);
    return *this;
}

Mask& Mask::ellipse(double cx, double cy, double rx, double ry, bool on)
{
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) {
            const double dx = (x + 0.5 - cx) / rx, dy = (y + 0.5 - cy) / ry;
            if (dx * dx + dy * dy <= 1.0) set(x, y, on);
        }
    return *this;
}

Mask& Mask::polygon(const std::vector<std::array<double, 2>>& points, bool on)
{
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) {
            const double px = x + 0.5, py = y + 0.5;
            bool inside = false;
            for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
                const auto& a = points[i];
                const auto& b = points[j];
                if ((a[1] > py) != (b[1] > py) && px < (b[0] - a[0]) * (py - a[1]) / (b[1] - a[1]) + a[0])
                    inside = !inside;
            }
            if (inside) set(x, y, on);
        }
    return *this;
}

Mask& Mask::line(double x0, double y0, double x1, double y1, double thickness, bool on)
{
    const double dx = x1 - x0, dy = y1 - y0, len2 = std::max(1e-9, dx * dx + dy * dy);
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) {
            const double px = x + 0.5, py = y + 0.5;
            const double t = std::clamp(((px - x0) * dx + (py - y0) * dy) / len2, 0.0, 1.0);
            const double ex = px - (x0 + t * dx), ey = py - (y0 + t * dy);
            if (ex * ex + ey * ey <= thickness * thickness / 4.0) set(x, y, on);
        }
    return *this;
}

Mask& Mask::add(const Mask& other)
{
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            if (other.at(x, y)) set(x, y);
    return *this;
}

Mask& Mask::cut(const Mask& other)
{
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            if (other.at(x, y)) set(x, y, false);
    return *this;
}

Mask Mask::shifted(int dx, int dy) const
{
    Mask out(width_, height_);
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) out.set(x + dx, y + dy, at(x, y));
    return out;
}

Mask Mask::mirrored() const
{
    Mask out(width_, height_);
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) out.set(width_ - 1 - x, y, at(x, y));
    return out;
}

void paintLit(Image& img, const Mask& m, const Ramp& ramp, int base)
{
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x) {
            if (!m.at(x, y)) continue;
            int level = base;
            const bool litEdge = !m.at(x - 1, y) || !m.at(x, y - 1);
            const bool darkEdge = !m.at(x + 1, y) || !m.at(x, y + 1);
            if (litEdge && !darkEdge) level = std::min(4, base + 1);
            if (darkEdge && !litEdge) level = std::max(0, base - 1);
            img.set(x, y, ramp[level]);
        }
}

void paintRound(Image& img, const Mask& m, const Ramp& ramp, double bias)
{
    int x0 = m.width(), y0 = m.height(), x1 = -1, y1 = -1;
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x)
            if (m.at(x, y)) {
                x0 = std::min(x0, x), x1 = std::max(x1, x);
                y0 = std::min(y0, y), y1 = std::max(y1, y);
            }
    if (x1 < 0) return;
    const double cx = (x0 + x1 + 1) / 2.0, cy = (y0 + y1 + 1) / 2.0;
    const double rx = std::max(1.0, (x1 - x0 + 1) / 2.0), ry = std::max(1.0, (y1 - y0 + 1) / 2.0);
    // The light sits up and left of the centre; shading falls off with distance from it.
    const double lx = cx - rx * 0.45, ly = cy - ry * 0.5;
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) {
            if (!m.at(x, y)) continue;
            const double dx = (x + 0.5 - lx) / rx, dy = (y + 0.5 - ly) / ry;
            double level = 3.6 - 1.9 * std::sqrt(dx * dx + dy * dy) + bias;
            if (!m.at(x + 1, y) || !m.at(x, y + 1)) level -= 0.6; // rim in shadow
            img.set(x, y, shade(ramp, level, x, y));
        }
}

void paintFlat(Image& img, const Mask& m, Rgb colour)
{
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x)
            if (m.at(x, y)) img.set(x, y, colour);
}

void outline(Image& img, const Mask& m, Rgb colour)
{
    for (int y = -1; y <= m.height(); ++y)
        for (int x = -1; x <= m.width(); ++x)
            if (!m.at(x, y) && (m.at(x - 1, y) || m.at(x + 1, y) || m.at(x, y - 1) || m.at(x, y + 1)))
                img.set(x, y, colour);
}

void drawSolid(Image& img, const Mask& m, const Ramp& ramp, Rgb line, double bias)
{
    outline(img, m, line);
    paintRound(img, m, ramp, bias);
}

void drawBlock(Image& img, const Mask& m, const Ramp& ramp, Rgb line, int base)
{
    outline(img, m, line);
    paintLit(img, m, ramp, base);
}

void drawStanding(Image& img, const Mask& m, const Ramp& ramp, Rgb line, int base)
{
    dropShadow(img, m, 2, 1);
    drawBlock(img, m, ramp, line, base);
}

void dropShadow(Image& img, const Mask& m, int dx, int dy, double strength)
{
    const Mask moved = m.shifted(dx, dy);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (moved.at(x, y) && !m.at(x, y)) img.set(x, y, mix(img.at(x, y), Rgb{16, 20, 32}, strength));
}

} // namespace worldgen
