// umbrith-worldgen-preview PROGRAM_FOLDER OUT_FOLDER: enlarged PNGs of the
// generated art, with the paper doll stacked the way the game stacks it, to look at.
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <iterator>

namespace {

bool allBlack(const QImage& img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (img.pixel(x, y) != qRgb(0, 0, 0)) return false;
    return true;
}

// The sheet in bands of rows that follow the families of tiles, 25 columns
// at a time, enlarged, empty parts left out.
void saveTilesetParts(const QImage& sheet, const QString& out)
{
    const int bands[] = {0, 3, 9, 12, 21, 28, 34, 50};
    for (int b = 0; b + 1 < int(std::size(bands)); ++b)
        for (int col = 0; col < 50; col += 25) {
            const QImage part = sheet.copy(col * 24, bands[b] * 24, 25 * 24, (bands[b + 1] - bands[b]) * 24);
            if (allBlack(part)) continue;
            part.scaled(part.width() * 2, part.height() * 2)
                .save(QString("%1/tiles_r%2_c%3.png").arg(out).arg(bands[b]).arg(col));
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
