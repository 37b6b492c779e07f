#include "platform/surface.h"

#include "platform/error.h"
#include "platform/files.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <cstring>

namespace umbrith {

Surface::Surface(int width, int height) : image_(width, height, QImage::Format_RGB32) { image_.fill(Qt::black); }

Surface::Surface(QImage image) : image_(image.convertToFormat(QImage::Format_RGB32)) {}

Surface Surface::load(const QString& path) {
    QString native = nativePath(path);
    if (!QFile::exists(native))
        err::raise(err::FileNotFound);
    QImageReader reader(native);
    QImage image = reader.read();
    if (image.isNull())
        err::raise(err::InvalidPicture);
    return Surface(std::move(image));
}

void Surface::saveBitmap(const QString& path) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image_.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
        err::raise(err::PathFileAccess);
    writeWholeFile(path, bytes);
}

void Surface::fill(QRgb color) { image_.fill(color); }

void blit(Surface& dst, int dx, int dy, int w, int h, const Surface& src, int sx, int sy, RasterOp op) {
    if (dst.isNull() || src.isNull())
        return;
    // Clip the block against both surfaces.
    if (sx < 0) { dx -= sx; w += sx; sx = 0; }
    if (sy < 0) { dy -= sy; h += sy; sy = 0; }
    if (dx < 0) { sx -= dx; w += dx; dx = 0; }
    if (dy < 0) { sy -= dy; h += dy; dy = 0; }
    w = std::min({w, src.width() - sx, dst.width() - dx});
    h = std::min({h, src.height() - sy, dst.height() - dy});
    if (w <= 0 || h <= 0)
        return;
    for (int row = 0; row < h; ++row) {
        auto* out = reinterpret_cast<uint32_t*>(dst.image_.scanLine(dy + row)) + dx;
        auto* in = reinterpret_cast<const uint32_t*>(src.image_.constScanLine(sy + row)) + sx;
        switch (op) {
        case RasterOp::SrcCopy: std::memcpy(out, in, size_t(w) * 4); break;
        case RasterOp::SrcAnd:
            for (int i = 0; i < w; ++i) out[i] &= in[i];
            break;
        case RasterOp::SrcInvert:
            for (int i = 0; i < w; ++i) out[i] = (out[i] ^ in[i]) | 0xFF000000u;
            break;
        }
    }
}

int32_t toColorRef(QRgb rgb) { return qRed(rgb) | (qGreen(rgb) << 8) | (qBlue(rgb) << 16); }

QRgb fromColorRef(int32_t colorRef) { return qRgb(colorRef & 0xFF, (colorRef >> 8) & 0xFF, (colorRef >> 16) & 0xFF); }

int32_t GetPixel(const Surface& surface, int x, int y) {
    if (surface.isNull() || x < 0 || y < 0 || x >= surface.width() || y >= surface.height())
        return -1;
    return toColorRef(surface.image_.pixel(x, y));
}

void SetPixel(Surface& surface, int x, int y, int32_t colorRef) {
    if (surface.isNull() || x < 0 || y < 0 || x >= surface.width() || y >= surface.height())
        return;
    surface.image_.setPixel(x, y, fromColorRef(colorRef));
}

} // namespace umbrith
