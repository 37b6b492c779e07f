#include "doll.h"

#include "palette.h"

namespace worldgen {

std::array<double, 2> Pose::weaponHand() const
{
    const double y = shoulderY() + 8.5;
    switch (dir) {
    case kDown: return {5.5, y + swing()};
    case kUp: return {18.5, y - swing()};
    default: return {12.5 + 2 * swing(), y};
    }
}

std::array<double, 2> Pose::shieldHand() const
{
    const double y = shoulderY() + 8.5;
    switch (dir) {
    case kDown: return {18.5, y - swing()};
    case kUp: return {5.5, y + swing()};
    default: return {11.5 - 2 * swing(), y};
    }
}

Image renderLayer(const LayerFn& layer, const Pose& pose)
{
    Image img(kCellW, kCellH);
    if (!layer) return img;
    Strokes strokes;
    Pose drawn = pose;
    if (pose.dir == kRight) drawn.dir = kLeft;
    layer(strokes, drawn);
    const bool flip = pose.dir == kRight;
    Mask all(kCellW, kCellH);
    for (const Stroke& s : strokes.list()) all.add(flip ? s.shape.mirrored() : s.shape);
    outline(img, all, pal::kInk);
    for (const Stroke& s : strokes.list()) {
        const Mask m = flip ? s.shape.mirrored() : s.shape;
        if (s.lined) outline(img, m, pal::kInk);
        switch (s.paint) {
        case Stroke::Paint::Round: paintRound(img, m, *s.ramp); break;
        case Stroke::Paint::Lit: paintLit(img, m, *s.ramp); break;
        case Stroke::Paint::Flat: paintFlat(img, m, s.colour); break;
        }
    }
    return img;
}

void putFrame(Image& sheet, const Image& figure, int dir, int frame)
{
    for (int y = 0; y < kCellH; ++y)
        for (int x = 0; x < kCellW; ++x) {
            const Rgb c = figure.at(x, y);
            sheet.set(48 * frame + x, 48 * dir + y, c);
            sheet.set(48 * frame + 24 + x, 48 * dir + y, c == kBlack ? kWhite : kBlack);
        }
}

Image partSheet(const LayerFn& layer, int lift)
{
    Image sheet(144, 192);
    for (int dir = 0; dir < 4; ++dir)
        for (int frame = 0; frame < 3; ++frame) putFrame(sheet, renderLayer(layer, {dir, frame, lift}), dir, frame);
    return sheet;
}

Image outfitSheet(const Outfit& o)
{
    Image sheet(144, 192);
    for (int dir = 0; dir < 4; ++dir) {
        const bool backView = dir == kUp || dir == kRight;
        const std::vector<const LayerFn*> order =
            backView ? std::vector{&o.shield, &o.body, &o.head, &o.boots, &o.weapon, &o.gloves}
                     : std::vector{&o.weapon, &o.body, &o.head, &o.boots, &o.gloves, &o.shield};
        for (int frame = 0; frame < 3; ++frame) {
            Image figure(kCellW, kCellH);
            for (const LayerFn* layer : order) {
                const Image part = renderLayer(*layer, {dir, frame, o.lift});
                for (int y = 0; y < kCellH; ++y)
                    for (int x = 0; x < kCellW; ++x)
                        if (part.at(x, y) != kBlack) figure.set(x, y, part.at(x, y));
            }
            putFrame(sheet, figure, dir, frame);
        }
    }
    return sheet;
}

} // namespace worldgen
