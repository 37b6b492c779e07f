// umbrith-worldgen-preview PROGRAM_FOLDER OUT_FOLDER: enlarged PNGs of the
// generated art, with the paper doll stacked the way the game stacks it, and
// each starter map whole, to look at.
#include "content.h"

#include "world/mapfile.h"

#include <QDir>
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

// Stacks part sheets as the game does (mask ANDed, picture XORed, in its
// part order per direction), then lays each figure masked onto a grass-green
// backdrop: four directions down, three frames across, six times enlarged.
QImage dressed(const QString& in, const QStringList& parts)
{
    QImage sheets[6]; // body, head, boots, gloves, weapon, shield
    for (int i = 0; i < 6; ++i) sheets[i] = QImage(in + "/images/" + parts[i]).convertToFormat(QImage::Format_RGB32);
    QImage out(3 * 32, 4 * 56, QImage::Format_RGB32);
    out.fill(qRgb(78, 142, 58));
    for (int dir = 0; dir < 4; ++dir) {
        const bool backView = dir == 1 || dir == 3;
        const int order[6] = {backView ? 5 : 4, 0, 1, 2, backView ? 4 : 3, backView ? 3 : 5};
        for (int frame = 0; frame < 3; ++frame) {
            QImage figure(24, 48, QImage::Format_RGB32);
            figure.fill(Qt::black);
            for (int part : order)
                for (int y = 0; y < 48; ++y)
                    for (int x = 0; x < 24; ++x) {
                        const QRgb mask = sheets[part].pixel(48 * frame + 24 + x, 48 * dir + y);
                        const QRgb pic = sheets[part].pixel(48 * frame + x, 48 * dir + y);
                        figure.setPixel(x, y, ((figure.pixel(x, y) & mask) ^ pic) | 0xFF000000);
                    }
            for (int y = 0; y < 48; ++y)
                for (int x = 0; x < 24; ++x)
                    if ((figure.pixel(x, y) & 0xFFFFFF) != 0) out.setPixel(32 * frame + 4 + x, 56 * dir + 4 + y, figure.pixel(x, y));
        }
    }
    return out.scaled(out.width() * 6, out.height() * 6);
}

void saveDolls(const QString& in, const QString& out)
{
    const QStringList outfits[] = {
        {"bodies/defaultbody.bmp", "heads/defaulthead.bmp", "boots/defaultboots.bmp", "gloves/defaultgloves.bmp",
         "weapons/defaultweapon.bmp", "shields/defaultshield.bmp"},
        {"bodies/platearmour.bmp", "heads/ironhelm.bmp", "boots/ironboots.bmp", "gloves/irongauntlets.bmp",
         "weapons/longsword.bmp", "shields/kiteshield.bmp"},
        {"bodies/rangercloak.bmp", "heads/greenhood.bmp", "boots/leatherboots.bmp", "gloves/leathergloves.bmp",
         "weapons/longbow.bmp", "shields/defaultshield.bmp"},
        {"bodies/magerobe.bmp", "heads/wizardhat.bmp", "boots/sandals.bmp", "gloves/magegloves.bmp",
         "weapons/embersword.bmp", "shields/woodenbuckler.bmp"},
        {"bodies/chainmail.bmp", "heads/hornedhelm.bmp", "boots/furboots.bmp", "gloves/clothwraps.bmp",
         "weapons/shortsword.bmp", "shields/towershield.bmp"},
        {"bodies/leatherarmour.bmp", "heads/leathercap.bmp", "boots/leatherboots.bmp", "gloves/leathergloves.bmp",
         "weapons/shortbow.bmp", "shields/roundshield.bmp"},
    };
    QImage all(6 * 96 * 6, 224 * 6, QImage::Format_RGB32);
    QPainter painter(&all);
    for (int i = 0; i < 6; ++i) painter.drawImage(i * 96 * 6, 0, dressed(in, outfits[i]));
    painter.end();
    all.scaled(all.width() / 2, all.height() / 2).save(out + "/dolls.png");
    dressed(in, outfits[0]).save(out + "/doll_default.png");
}

// Every NPC sheet side by side, drawn masked onto green, enlarged.
void saveNpcs(const QString& in, const QString& out)
{
    const QStringList names = QDir(in + "/images/npcs").entryList({"*.bmp"}, QDir::Files, QDir::Name);
    QImage all(names.size() * 80, 200, QImage::Format_RGB32);
    all.fill(qRgb(78, 142, 58));
    for (int i = 0; i < names.size(); ++i) {
        const QImage sheet = QImage(in + "/images/npcs/" + names[i]).convertToFormat(QImage::Format_RGB32);
        for (int dir = 0; dir < 4; ++dir)
            for (int frame = 0; frame < 3; ++frame)
                for (int y = 0; y < 48; ++y)
                    for (int x = 0; x < 24; ++x)
                        if (sheet.pixel(48 * frame + 24 + x, 48 * dir + y) == qRgb(0, 0, 0))
                            all.setPixel(i * 80 + frame * 26 + x, dir * 50 + y, sheet.pixel(48 * frame + x, 48 * dir + y));
    }
    all.scaled(all.width() * 3, all.height() * 3).save(out + "/npcs.png");
}

void saveEnemies(const QString& in, const QString& out)
{
    const QStringList names = QDir(in + "/images/enemypics").entryList({"*.bmp"}, QDir::Files, QDir::Name);
    QImage all(5 * 196, 2 * 196, QImage::Format_RGB32);
    all.fill(qRgb(40, 40, 60));
    QPainter painter(&all);
    for (int i = 0; i < names.size(); ++i)
        painter.drawImage((i % 5) * 196, (i / 5) * 196, QImage(in + "/images/enemypics/" + names[i]));
    painter.end();
    all.save(out + "/enemies.png");
}

// The editor's marks and the pile icon over grass, and the night over a sunny green.
void saveMarks(const QString& in, const QString& out)
{
    QImage all(300, 120, QImage::Format_RGB32);
    all.fill(qRgb(78, 142, 58));
    auto masked = [&](const QImage& src, int sx, int dx, int dy) {
        for (int y = 0; y < 24; ++y)
            for (int x = 0; x < 24; ++x)
                all.setPixel(dx + x, dy + y, ((all.pixel(dx + x, dy + y) & src.pixel(sx + 24 + x, y)) ^ src.pixel(sx + x, y)) | 0xFF000000);
    };
    const QImage marks = QImage(in + "/images/specialpics.bmp").convertToFormat(QImage::Format_RGB32);
    for (int i = 0; i < 5; ++i) masked(marks, 48 * i, 4 + 30 * i, 4);
    masked(QImage(in + "/images/grounditems.bmp").convertToFormat(QImage::Format_RGB32), 0, 160, 4);
    const QImage night = QImage(in + "/images/night1.bmp").convertToFormat(QImage::Format_RGB32);
    for (int y = 40; y < 120; ++y)
        for (int x = 0; x < 300; ++x)
            all.setPixel(x, y, ((all.pixel(x, y) & night.pixel(434 + x, y)) ^ night.pixel(x, y)) | 0xFF000000);
    all.scaled(all.width() * 3, all.height() * 3).save(out + "/marks.png");
}

// Draws a 24 x 24 piece of a sheet whose mask stands 24 pixels to its right
// (black in the mask marks the picture), as the game blits it.
void drawMasked(QImage& onto, const QImage& sheet, int sx, int sy, int dx, int dy, int h)
{
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < 24; ++x) {
            if (dx + x < 0 || dy + y < 0 || dx + x >= onto.width() || dy + y >= onto.height()) continue;
            const QRgb mask = sheet.pixel(sx + 24 + x, sy + y);
            onto.setPixel(dx + x, dy + y, ((onto.pixel(dx + x, dy + y) & mask) ^ sheet.pixel(sx + x, sy + y)) | 0xFF000000);
        }
}

// Each map's playable cells from the tileset, the editor's marks on
// messages, warps and piles, and its people in frame 0 of their sheets.
void saveMaps(const QString& in, const QString& out)
{
    const QImage tiles = QImage(in + "/tilesets/default.bmp").convertToFormat(QImage::Format_RGB32);
    const QImage marks = QImage(in + "/images/specialpics.bmp").convertToFormat(QImage::Format_RGB32);
    for (const QString& path : worldgen::contentMaps()) {
        const umbrith::MapFile map = umbrith::ReadMapFile(in + path);
        const umbrith::MapGrid grid = umbrith::SplitMapGrid(map.tiles, map.passabilities, map.width, map.height);
        QImage img((grid.columns - 1) * 24, (grid.rows - 1) * 24, QImage::Format_RGB32);
        QPainter painter(&img);
        for (int y = 0; y + 1 < grid.rows; ++y)
            for (int x = 0; x + 1 < grid.columns; ++x) {
                const umbrith::TextPosition at = umbrith::SplitPosition(grid.tile(x, y), u'|');
                painter.drawImage(x * 24, y * 24, tiles, int(at.x), int(at.y), 24, 24);
            }
        painter.end();
        for (const umbrith::MapSpecial& special : umbrith::SplitSpecials(map.specials)) {
            const umbrith::TextPosition at = umbrith::SplitPosition(special.fields[0], u';');
            if (at.x >= 0) drawMasked(img, marks, special.kind == "1" ? 0 : 48, 0, int(at.x) * 24, int(at.y) * 24, 24);
        }
        for (const QString& pile : umbrith::NonEmptyParts(map.groundItems, umbrith::GroundPileSeparator)) {
            const QString location = pile.split(umbrith::GroundPileFieldSeparator)[umbrith::GroundPileLocation];
            const umbrith::TextPosition at = umbrith::SplitPosition(location, u';');
            drawMasked(img, marks, 96, 0, int(at.x) * 24, int(at.y) * 24, 24);
        }
        for (const QString& npc : umbrith::NonEmptyParts(map.npcs, umbrith::NpcSeparator)) {
            const QStringList f = npc.split(u':');
            const QImage sheet = QImage(in + QString(f[umbrith::NpcImagePath]).replace(u'\\', u'/')).convertToFormat(QImage::Format_RGB32);
            const umbrith::TextPosition at = umbrith::SplitPosition(f[umbrith::NpcLocation], u';');
            drawMasked(img, sheet, 0, 48 * f[umbrith::NpcSprite].toInt(), int(at.x) * 24, int(at.y - 1) * 24, 48);
        }
        img.save(out + "/map_" + QString(path).remove("\\maps\\").remove(".ubm").replace(u' ', u'_') + ".png");
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
    saveDolls(in, out);
    saveNpcs(in, out);
    saveEnemies(in, out);
    saveMarks(in, out);
    saveMaps(in, out);
    return 0;
}
