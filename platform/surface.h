#pragma once

#include <QImage>
#include <QString>
#include <cstdint>

namespace umbrith {

// The three raster operations the game draws with. A transparent figure is
// always its mask by SrcAnd, then its picture by SrcInvert at the same place.
enum class RasterOp { SrcCopy, SrcAnd, SrcInvert };

// A picture surface, always 32-bit RGB: loaded pictures are converted once so
// that every blit is a plain loop over rows.
class Surface {
public:
    Surface() = default;
    Surface(int width, int height); // black
    explicit Surface(QImage image);

    // Loads any picture format Qt reads; a missing file raises 53, one that is
    // not a picture raises 481 ("Invalid picture").
    static Surface load(const QString& path);
    // Saves as a Windows bitmap (24-bit), whole or not at all (writeWholeFile).
    void saveBitmap(const QString& path) const;

    bool isNull() const { return image_.isNull(); }
    int width() const { return image_.width(); }
    int height() const { return image_.height(); }
    void fill(QRgb color);
    const QImage& image() const { return image_; }

private:
    friend void blit(Surface&, int, int, int, int, const Surface&, int, int, RasterOp);
    friend int32_t GetPixel(const Surface&, int, int);
    friend void SetPixel(Surface&, int, int, int32_t);
    QImage image_;
};

// Copies a w x h block from (sx, sy) of src to (dx, dy) of dst, clipped to both.
void blit(Surface& dst, int dx, int dy, int w, int h, const Surface& src, int sx, int sy, RasterOp op);

// Colours as the old drawing calls saw them: 0x00BBGGRR; -1 outside the surface.
int32_t GetPixel(const Surface& surface, int x, int y);
void SetPixel(Surface& surface, int x, int y, int32_t colorRef);
int32_t toColorRef(QRgb rgb);
QRgb fromColorRef(int32_t colorRef);

} // namespace umbrith
