#include "image.h"

#include "bytes.h"

#include <cmath>

namespace worldgen {

Rgb mix(Rgb a, Rgb b, double t)
{
    auto lerp = [t](int u, int v) { return static_cast<std::uint8_t>(std::lround(u + (v - u) * t)); };
    return {lerp(a.r, b.r), lerp(a.g, b.g), lerp(a.b, b.b)};
}

Image::Image(int width, int height, Rgb fill)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * height, fill)
{
}

void Image::fill(int x, int y, int w, int h, Rgb c)
{
    for (int j = y; j < y + h; ++j)
        for (int i = x; i < x + w; ++i) set(i, j, c);
}

void Image::paste(const Image& src, int dx, int dy)
{
    for (int y = 0; y < src.height(); ++y)
        for (int x = 0; x < src.width(); ++x) set(dx + x, dy + y, src.at(x, y));
}

Image Image::crop(int x, int y, int w, int h) const
{
    Image out(w, h);
    for (int j = 0; j < h; ++j)
        for (int i = 0; i < w; ++i)
            if (contains(x + i, y + j)) out.set(i, j, at(x + i, y + j));
    return out;
}

Image Image::scaled(int factor) const
{
    Image out(width_ * factor, height_ * factor);
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x) out.set(x, y, at(x / factor, y / factor));
    return out;
}

Image Image::mirrored() const
{
    Image out(width_, height_);
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) out.set(width_ - 1 - x, y, at(x, y));
    return out;
}

namespace {
} // namespace

// BITMAPFILEHEADER + BITMAPINFOHEADER, uncompressed, rows bottom-up padded to 4 bytes.
std::vector<std::uint8_t> encodeBmp(const Image& image)
{
    const unsigned rowBytes = (image.width() * 3 + 3) & ~3u;
    const unsigned dataBytes = rowBytes * image.height();
    std::vector<std::uint8_t> out;
    out.reserve(54 + dataBytes);
    out.push_back('B');
    out.push_back('M');
    put32le(out, 54 + dataBytes);
    put32le(out, 0);
    put32le(out, 54);
    put32le(out, 40);
    put32le(out, image.width());
    put32le(out, image.height());
    put16le(out, 1);
    put16le(out, 24);
    put32le(out, 0);
    put32le(out, dataBytes);
    put32le(out, 2835); // 72 dpi
    put32le(out, 2835);
    put32le(out, 0);
    put32le(out, 0);
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            const Rgb c = image.at(x, y);
            out.push_back(c.b);
            out.push_back(c.g);
            out.push_back(c.r);
        }
        for (unsigned pad = image.width() * 3; pad < rowBytes; ++pad) out.push_back(0);
    }
    return out;
}

} // namespace worldgen
