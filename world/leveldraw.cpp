#include "world/leveldraw.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace umbrith {

namespace {

// Whether the screen follows the player on each axis, or stands at an edge.
bool centredX(const Viewport& v) { return v.tx - 8 > 0 && v.tx + 8 < v.w; }
bool centredY(const Viewport& v) { return v.ty - 9 > 0 && v.ty + 7 < v.h; }

// A figure waiting for its row: a 24 x 48 mask and picture, drawn with the
// top left at `at`.
struct Figure {
    int row;
    QPoint at;
    const Surface* mask;
    QPoint maskFrom;
    const Surface* picture;
    QPoint pictureFrom;
};

// A figure from a sprite sheet: the picture of a frame, its mask beside it.
Figure sheetFigure(int row, QPoint at, const Surface& sheet, int frame, int spriteRow) {
    return {row, at, &sheet, QPoint(48 * frame + 24, 48 * spriteRow), &sheet, QPoint(48 * frame, 48 * spriteRow)};
}

void drawFigure(Surface& scene, const Figure& f) {
    blit(scene, f.at.x(), f.at.y(), 24, 48, *f.mask, f.maskFrom.x(), f.maskFrom.y(), RasterOp::SrcAnd);
    blit(scene, f.at.x(), f.at.y(), 24, 48, *f.picture, f.pictureFrom.x(), f.pictureFrom.y(), RasterOp::SrcInvert);
}

// The NPCs that stand in range, each on the row of its feet.
void collectNpcs(std::vector<Figure>& figures, const WorldState& world, const Viewport& view) {
    const std::vector<Surface>& sheets = world.textures.picNPCs;
    for (QStringView record : QStringView(world.MovableNPCs).split(u';', Qt::SkipEmptyParts)) {
        const QList<QStringView> a = record.split(u':');
        if (a.size() < 13 || a[5] != u"1")
            continue;
        const double y = Val(a[0].toString()), x = Val(a[1].toString());
        const int slot = int(Val(a[4].toString()));
        if (!view.inRange(x, y) || slot < 0 || size_t(slot) >= sheets.size())
            continue;
        const int frame = a[11] == u"1" ? world.WalkFrame : int(Val(a[12].toString()));
        figures.push_back(sheetFigure(int(y), view.figureAt(x, y), sheets[slot], frame, int(Val(a[3].toString()))));
    }
}

void collectPlayer(std::vector<Figure>& figures, const GameRecord& game, const WorldState& world, const Viewport& view) {
    if (!world.PlayerVisible)
        return;
    const QPoint at(view.px, view.py);
    if (isTrue(game.PlayerUsesImage)) {
        const int frame = world.PlayerAnimated ? world.WalkFrame : world.PlayerFrame;
        figures.push_back(sheetFigure(view.ty, at, world.textures.picPNPC, frame, int(game.PlayerSprite.num())));
        return;
    }
    const int facing = int(game.PlayerFacing.num());
    if (facing < 0 || facing > 3)
        return;
    const int index = world.PlayerAnimated ? facing + 4 * world.WalkFrame : facing;
    figures.push_back({view.ty, at, &world.textures.picdirneg[index], QPoint(), &world.textures.picdirorig[index], QPoint()});
}

// A tile's "sx|sy" origin in the sheet.
QPoint tileOrigin(const QString& tile) {
    const qsizetype bar = tile.indexOf(u'|');
    bool okX = false, okY = false;
    const int sx = QStringView(tile).left(bar).toInt(&okX);
    const int sy = QStringView(tile).mid(bar + 1).toInt(&okY);
    if (bar >= 0 && okX && okY)
        return {sx, sy};
    return {int(Val(tile.left(bar))), bar < 0 ? 0 : int(Val(tile.mid(bar + 1)))};
}

} // namespace

bool Viewport::inRange(double x, double y) const {
    bool column = true, row = true;
    if (w > ViewColumns) {
        if (centredX(*this))
            column = x >= tx - 8 && x <= tx + 9;
        else if (tx - 8 <= 0)
            column = x <= w;
        else
            column = x >= w - 17;
    }
    if (h > ViewRows) {
        if (centredY(*this))
            row = y >= ty - 9 && y <= ty + 8;
        else if (ty - 9 <= 0)
            row = y <= h;
        else
            row = y >= h - 16;
    }
    return column && row;
}

QPoint Viewport::figureAt(double x, double y) const {
    const double c = centredX(*this) ? x - (tx - 8) : tx - 8 <= 0 ? x : x - (w - 17);
    const double r = centredY(*this) ? y - (ty - 9) : ty - 9 <= 0 ? y : y - (h - 16);
    return {int(24 * c), int(24 * r - 24)};
}

Viewport ComputeViewport(int tx, int ty, double w, double h) {
    Viewport v;
    v.tx = tx;
    v.ty = ty;
    v.w = w;
    v.h = h;
    v.fx = tx - 8;
    v.lx = v.fx + 17;
    v.fy = ty - 9;
    v.ly = v.fy + 16;
    if (tx - 8 < 0) {
        v.fx = 0;
        v.lx = 17;
    }
    if (tx + 8 >= w) {
        v.lx = int(w);
        v.fx = int(w - 17);
    }
    if (ty - 9 < 0) {
        v.fy = 0;
        v.ly = 16;
    }
    if (ty + 7 >= h) {
        v.ly = int(h);
        v.fy = int(h - 16);
    }
    v.fx = std::max(v.fx, 0);
    v.fy = std::max(v.fy, 0);
    // The player stands where an NPC on his tile would.
    const QPoint player = v.figureAt(tx, ty);
    v.px = player.x();
    v.py = player.y();
    return v;
}

bool ComposeLevel(Surface& scene, const GameRecord& game, WorldState& world, double dx, double dy) {
    if (!isTrue(game.GameRunning) || world.MapChanged)
        return false;
    world.PlayerTwipX += dx;
    world.PlayerTwipY += dy;
    const int tx = int(std::floor(world.PlayerTwipX / 360)), ty = int(std::floor(world.PlayerTwipY / 360));
    const Viewport view = ComputeViewport(tx, ty, world.LevelWidth, world.LevelHeight);

    scene.fill(qRgb(0, 0, 0));
    const Surface& sheet = world.tileset.sheet;
    for (int x = view.fx; x <= view.lx; ++x)
        for (int y = view.fy; y <= view.ly; ++y) {
            const QString& tile = world.MapTiles.at(x, y);
            if (tile.isEmpty())
                continue;
            const QPoint origin = tileOrigin(tile);
            blit(scene, (x - view.fx) * 24, (y - view.fy) * 24, 24, 24, sheet, origin.x(), origin.y(), RasterOp::SrcCopy);
        }

    // Lower rows cover higher ones; on his row the player stands in front.
    std::vector<Figure> figures;
    collectNpcs(figures, world, view);
    collectPlayer(figures, game, world, view);
    std::stable_sort(figures.begin(), figures.end(), [](const Figure& a, const Figure& b) { return a.row < b.row; });
    for (const Figure& figure : figures)
        if (figure.row >= view.fy && figure.row <= view.ly + 1)
            drawFigure(scene, figure);

    if (!isTrue(game.IsDay) && world.NightLevel.num() == 1) {
        const Surface& night = world.textures.nightoriginal;
        blit(scene, 0, 0, 433, 410, night, 434, 0, RasterOp::SrcAnd);
        blit(scene, 0, 0, 433, 410, night, 0, 0, RasterOp::SrcInvert);
    }
    RedrawGIs(scene, world, view);
    return true;
}

void RedrawGIs(Surface& scene, const WorldState& world, const Viewport& view) {
    const Surface& icon = world.textures.grounditems;
    if (icon.isNull() || world.GroundPileAt.isEmpty())
        return;
    for (int x = view.fx; x <= view.lx; ++x)
        for (int y = view.fy; y <= view.ly; ++y)
            if (!world.GroundPileAt.at(x, y).isEmpty()) {
                blit(scene, (x - view.fx) * 24, (y - view.fy) * 24, 24, 24, icon, 24, 0, RasterOp::SrcAnd);
                blit(scene, (x - view.fx) * 24, (y - view.fy) * 24, 24, 24, icon, 0, 0, RasterOp::SrcInvert);
            }
}

} // namespace umbrith
