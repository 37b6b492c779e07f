// The pictures: sizes and layouts the game relies on, masks that are exactly
// the complement of their pictures, a doll that stacks and walks, a night
// that darkens evenly, and a tileset of many distinct tiles.
#include "marks.h"
#include "tilesheet.h"
#include "worldgen_support.h"

#include <gtest/gtest.h>

#include <set>

namespace worldgen::test {
namespace {

std::vector<std::string> under(const std::string& folder)
{
    std::vector<std::string> out;
    for (const auto& [path, b] : generated())
        if (path.rfind(folder, 0) == 0 && path.size() > 4 && path.substr(path.size() - 4) == ".bmp") out.push_back(path);
    return out;
}

std::vector<std::string> spriteSheets()
{
    std::vector<std::string> out;
    for (const char* folder : {"images/bodies/", "images/heads/", "images/boots/", "images/gloves/", "images/weapons/",
                               "images/shields/", "images/npcs/"})
        for (const auto& p : under(folder)) out.push_back(p);
    return out;
}

// Checks that in the block the mask at maskX is pure black and white and is
// white exactly where the picture at picX is black.
void expectMaskMatches(const QImage& img, int picX, int maskX, int y0, int w, int h, const std::string& what)
{
    for (int y = y0; y < y0 + h; ++y)
        for (int x = 0; x < w; ++x) {
            const QRgb pic = img.pixel(picX + x, y), mask = img.pixel(maskX + x, y);
            ASSERT_TRUE(isBlack(mask) || isWhite(mask)) << what << " at " << x << "," << y;
            ASSERT_EQ(isWhite(mask), isBlack(pic)) << what << " at " << x << "," << y;
        }
}

TEST(WorldgenPictures, AllAreUncompressed24BitBitmaps)
{
    for (const auto& [path, b] : generated()) {
        if (path.substr(path.size() - 4) != ".bmp") continue;
        ASSERT_GE(b.size(), 54u) << path;
        EXPECT_EQ(b[0], 'B') << path;
        EXPECT_EQ(b[1], 'M') << path;
        EXPECT_EQ(le(b, 2, 4), b.size()) << path;
        EXPECT_EQ(le(b, 28, 2), 24u) << path;
        EXPECT_EQ(le(b, 30, 4), 0u) << path;
        EXPECT_FALSE(picture(path).isNull()) << path;
    }
}

TEST(WorldgenPictures, SizesAreThoseTheGameUses)
{
    EXPECT_EQ(picture("tilesets/default.bmp").size(), QSize(1200, 1200));
    for (const auto& p : spriteSheets()) EXPECT_EQ(picture(p).size(), QSize(144, 192)) << p;
    for (const auto& p : under("images/enemypics/")) EXPECT_EQ(picture(p).size(), QSize(192, 192)) << p;
    EXPECT_EQ(picture("images/specialpics.bmp").size(), QSize(240, 24));
    EXPECT_EQ(picture("images/grounditems.bmp").size(), QSize(48, 24));
    EXPECT_EQ(picture("images/night1.bmp").size(), QSize(kNightMaskX + kNightW, kNightH));
}

TEST(WorldgenPictures, MasksAreTheComplementOfTheirPictures)
{
    for (const auto& p : spriteSheets()) {
        const QImage img = picture(p);
        for (int dir = 0; dir < 4; ++dir)
            for (int frame = 0; frame < 3; ++frame) expectMaskMatches(img, 48 * frame, 48 * frame + 24, 48 * dir, 24, 48, p);
    }
    const QImage marks = picture("images/specialpics.bmp");
    for (int mark = 0; mark < 5; ++mark) expectMaskMatches(marks, 48 * mark, 48 * mark + 24, 0, 24, 24, "specialpics");
    expectMaskMatches(picture("images/grounditems.bmp"), 0, 24, 0, 24, 24, "grounditems");
    expectMaskMatches(picture("images/night1.bmp"), 0, kNightMaskX, 0, kNightW, kNightH, "night1");
}

// Stacks the six parts for one direction and frame as the game does.
QImage stack(const std::vector<std::string>& parts, int dir, int frame)
{
    // parts: body, head, boots, gloves, weapon, shield
    const bool backView = dir == 1 || dir == 3;
    const int order[6] = {backView ? 5 : 4, 0, 1, 2, backView ? 4 : 3, backView ? 3 : 5};
    QImage out(24, 48, QImage::Format_RGB32);
    out.fill(Qt::black);
    for (int i : order) {
        const QImage sheet = picture(parts[i]);
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 24; ++x)
                out.setPixel(x, y, ((out.pixel(x, y) & sheet.pixel(48 * frame + 24 + x, 48 * dir + y)) ^ sheet.pixel(48 * frame + x, 48 * dir + y)) | 0xFF000000);
    }
    return out;
}

TEST(WorldgenPictures, DefaultDollStandsAndWalksInEveryDirection)
{
    const std::vector<std::string> parts = {"images/bodies/defaultbody.bmp", "images/heads/defaulthead.bmp",
                                            "images/boots/defaultboots.bmp", "images/gloves/defaultgloves.bmp",
                                            "images/weapons/defaultweapon.bmp", "images/shields/defaultshield.bmp"};
    for (int dir = 0; dir < 4; ++dir) {
        const QImage standing = stack(parts, dir, 0);
        int figure = 0, top = 48, bottom = 0;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 24; ++x)
                if (!isBlack(standing.pixel(x, y))) ++figure, top = std::min(top, y), bottom = std::max(bottom, y);
        EXPECT_GT(figure, 150) << dir;
        EXPECT_GE(bottom, 44) << "feet on the lower tile, direction " << dir;
        EXPECT_LT(top, 24) << "head in the upper tile, direction " << dir;
        EXPECT_NE(stack(parts, dir, 1), standing) << dir;
        EXPECT_NE(stack(parts, dir, 2), stack(parts, dir, 1)) << dir;
    }
}

TEST(WorldgenPictures, BarePartsAreTransparentAndWornPartsAreNot)
{
    auto drawn = [](const std::string& p) {
        const QImage img = picture(p);
        for (int y = 0; y < 192; ++y)
            for (int x = 0; x < 144; ++x)
                if ((x / 24) % 2 == 0 && !isBlack(img.pixel(x, y))) return true;
        return false;
    };
    for (const char* p : {"images/weapons/defaultweapon.bmp", "images/shields/defaultshield.bmp", "images/gloves/defaultgloves.bmp"})
        EXPECT_FALSE(drawn(p)) << p;
    for (const auto& p : spriteSheets()) {
        if (p.find("default") == std::string::npos && p.find("empty") == std::string::npos) {
            EXPECT_TRUE(drawn(p)) << p;
        }
    }
    for (const char* p : {"images/bodies/defaultbody.bmp", "images/heads/defaulthead.bmp", "images/boots/defaultboots.bmp"})
        EXPECT_TRUE(drawn(p)) << p;
}

TEST(WorldgenPictures, NightDarkensAnySceneEvenly)
{
    const QImage night = picture("images/night1.bmp");
    for (QRgb scene : {qRgb(200, 180, 90), qRgb(40, 120, 60), qRgb(255, 255, 255)}) {
        int darkened = 0;
        for (int y = 0; y < kNightH; ++y)
            for (int x = 0; x < kNightW; ++x) {
                const QRgb result = ((scene & night.pixel(kNightMaskX + x, y)) ^ night.pixel(x, y)) & 0xFFFFFF;
                ASSERT_TRUE(result == (scene & 0xFFFFFF) || qGray(result) < 40) << x << "," << y;
                darkened += result != (scene & 0xFFFFFF);
                if (x > 0 && y > 0) { // no 2 x 2 patch is left all bright or all dark
                    const int dark = (result != (scene & 0xFFFFFF)) + (night.pixel(x - 1, y) != qRgb(0, 0, 0)) +
                                     (night.pixel(x, y - 1) != qRgb(0, 0, 0)) + (night.pixel(x - 1, y - 1) != qRgb(0, 0, 0));
                    ASSERT_EQ(dark, 2) << x << "," << y;
                }
            }
        EXPECT_NEAR(darkened, kNightW * kNightH / 2, 1);
    }
}

TEST(WorldgenPictures, TilesetHasManyDistinctNamedTiles)
{
    const TileSheet sheet = buildDefaultTileset();
    const QImage img = picture("tilesets/default.bmp");
    std::set<QByteArray> distinct;
    for (const Tile& t : sheet.placed()) {
        const QImage tile = img.copy(t.sx(), t.sy(), 24, 24);
        const QByteArray raw(reinterpret_cast<const char*>(tile.constBits()), static_cast<int>(tile.sizeInBytes()));
        bool blank = true;
        for (int y = 0; y < 24 && blank; ++y)
            for (int x = 0; x < 24 && blank; ++x) blank = isBlack(tile.pixel(x, y));
        EXPECT_FALSE(blank) << t.col << "," << t.row;
        distinct.insert(raw);
    }
    EXPECT_GE(distinct.size(), 250u);
}

TEST(WorldgenPictures, BorderTilesJoinPlainGroundWithoutSeams)
{
    // Where a border tile meets a plain tile, its edge row or column is that ground's own edge.
    const QImage img = picture("tilesets/default.bmp");
    auto row = [&](Tile t, int y) {
        std::vector<QRgb> r;
        for (int x = 0; x < 24; ++x) r.push_back(img.pixel(t.sx() + x, t.sy() + y));
        return r;
    };
    auto column = [&](Tile t, int x) {
        std::vector<QRgb> c;
        for (int y = 0; y < 24; ++y) c.push_back(img.pixel(t.sx() + x, t.sy() + y));
        return c;
    };
    const std::pair<EdgeSet, Tile> sets[] = {{kGrassPond, kGrass[0]}, {kGrassSand, kGrass[0]}, {kGrassDirt, kGrass[0]},
                                             {kCaveLava, kCaveFloor[0]}, {kDirtWater, kDirt[0]}};
    for (const auto& [set, outer] : sets) {
        EXPECT_EQ(row(set.n(), 0), row(outer, 0));
        EXPECT_EQ(row(set.s(), 23), row(outer, 23));
        EXPECT_EQ(column(set.w(), 0), column(outer, 0));
        EXPECT_EQ(column(set.e(), 23), column(outer, 23));
        EXPECT_EQ(row(set.n(), 23), row(set.c(), 23));
        EXPECT_EQ(column(set.w(), 23), column(set.c(), 23));
        EXPECT_EQ(row(set.innerNw(), 23), row(set.c(), 23));
        EXPECT_EQ(column(set.innerSe(), 0), column(set.c(), 0));
    }
}

} // namespace
} // namespace worldgen::test
