// umbrith-worldgen-preview PROGRAM_FOLDER OUT_FOLDER: enlarged PNGs of the
// generated art, with the paper doll stacked the way the game stacks it, to look at.
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

bool allBlack(const QImage& img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (img.pixel(x, y) != qRgb(0, 0, 0)) return false;
    return true;
}

// The sheet in parts of 16 x 10 tiles, three times enlarged, empty parts left out.
void saveTilesetParts(const QImage& sheet, const QString& out)
{
    for (int row = 0; row < 50; row += 10)
        for (int col = 0; col < 50; col += 16) {
            const QImage part = sheet.copy(col * 24, row * 24, 16 * 24, 10 * 24);
            if (allBlack(part)) continue;
            part.scaled(part.width() * 3, part.height() * 3)
                .save(QString("%1/tiles_r%2_c%3.png").arg(out).arg(row).arg(col));
        }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: umbrith-worldgen-preview PROGRAM_FOLDER OUT_FOLDER\n");
        return 2;
    }
    const QString in = QString::fromLocal8Bit(argv[1]), out = QString::fromLocal8Bit(argv[2]);
    saveTilesetParts(QImage(in + "/tilesets/default.bmp"), out);
    return 0;
}
