#pragma once
// 24-bit pictures held in memory and their Windows-bitmap encoding.
#include <cstdint>
#include <vector>

namespace worldgen {

struct Rgb {
    std::uint8_t r = 0, g = 0, b = 0;
    friend bool operator==(Rgb, Rgb) = default;
};

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};

// Linear blend, t = 0 gives a, t = 1 gives b.
Rgb mix(Rgb a, Rgb b, double t);

class Image {
public:
    Image() = default;
    Image(int width, int height, Rgb fill = kBlack);

    int width() const { return width_; }
    int height() const { return height_; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    Rgb at(int x, int y) const { return pixels_[index(x, y)]; }
    // Writes outside the picture are dropped, so shapes may overhang.
    void set(int x, int y, Rgb c)
    {
        if (contains(x, y)) pixels_[index(x, y)] = c;
    }
    void fill(int x, int y, int w, int h, Rgb c);
    void paste(const Image& src, int dx, int dy);
    Image crop(int x, int y, int w, int h) const;
    Image scaled(int factor) const;
    Image mirrored() const;

private:
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y) * width_ + x; }
    int width_ = 0, height_ = 0;
    std::vector<Rgb> pixels_;
};

std::vector<std::uint8_t> encodeBmp(const Image& image);

} // namespace worldgen
