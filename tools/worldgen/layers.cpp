#include "layers.h"

#include "palette.h"

#include <cmath>

namespace worldgen {
namespace {

struct Legs {
    Mask left, right;
    std::array<double, 2> footL, footR; // bottom centre of each foot
};

// Down and up: two legs side by side, the stride lifts one foot. Side: one
// leg forward, one back.
Legs legsOf(const Strokes& s, const Pose& p)
{
    Legs l{s.blank(), s.blank(), {}, {}};
    const int top = static_cast<int>(p.hipY());
    if (!p.side()) {
        const int lowL = 45 + p.swing(), lowR = 45 - p.swing();
        l.left.rect(8, top, 3, lowL - top);
        l.right.rect(13, top, 3, lowR - top);
        l.footL = {9.5, double(lowL)};
        l.footR = {14.5, double(lowR)};
    } else {
        const double front = 11.5 - 2.5 * p.swing(), back = 11.5 + 2.5 * p.swing();
        l.left.line(11.5, top + 1, front, 44, 3);
        l.right.line(12.5, top + 1, back, 44, 3);
        l.footL = {front, 45};
        l.footR = {back, 45};
    }
    return l;
}

Mask torsoOf(const Strokes& s, const Pose& p, int extraBelow = 0)
{
    Mask m = s.blank();
    const double top = p.shoulderY(), bottom = p.hipY() + 1 + extraBelow;
    if (p.side()) m.rect(8, static_cast<int>(top), 8, static_cast<int>(bottom - top)).ellipse(12, top + 1, 4, 2);
    else m.rect(7, static_cast<int>(top), 10, static_cast<int>(bottom - top)).ellipse(12, top + 1, 5, 2);
    return m;
}

// Arms from the shoulders to the hands; the far arm in a side view is hidden.
std::vector<Mask> armsOf(const Strokes& s, const Pose& p)
{
    const double y = p.shoulderY() + 1;
    const auto w = p.weaponHand(), h = p.shieldHand();
    if (p.side()) return {s.blank().line(12, y, h[0], h[1] - 1, 2.6)};
    return {s.blank().line(w[0] + (w[0] < 12 ? 1 : -1), y, w[0], w[1] - 1, 2.6),
            s.blank().line(h[0] + (h[0] < 12 ? 1 : -1), y, h[0], h[1] - 1, 2.6)};
}

std::vector<std::array<double, 2>> handsOf(const Pose& p)
{
    if (p.side()) return {p.shieldHand()};
    return {p.weaponHand(), p.shieldHand()};
}

} // namespace

LayerFn bodyLayer(BodyStyle st)
{
    return [st](Strokes& s, const Pose& p) {
        using Cut = BodyStyle::Cut;
        const Legs legs = legsOf(s, p);
        // Bare feet and hands: boots and gloves cover them when worn.
        for (const auto& f : {legs.footL, legs.footR}) s.round(s.blank().rect(int(f[0]) - 1, int(f[1]) - 2, 3, 2), pal::kSkin);
        const bool robe = st.cut == Cut::Robe;
        if (!robe) {
            s.lit(legs.left, *st.legs);
            s.lit(legs.right, *st.legs, true);
        }
        Mask torso = torsoOf(s, p, robe ? 7 : 0);
        if (robe) { // the skirt widens towards the hem
            const double top = p.hipY() - 3;
            torso.polygon({{p.side() ? 8.0 : 7.0, top}, {p.side() ? 16.0 : 17.0, top}, {18, 44}, {6, 44}});
        }
        s.round(torso, *st.top);
        if (st.cut == Cut::Mail) // rings: a stitched pattern on the shirt
            for (int y = 0; y < kCellH; y += 2)
                for (int x = (y / 2) % 2; x < kCellW; x += 2)
                    if (torso.at(x, y) && torso.at(x + 1, y + 1) && torso.at(x - 1, y - 1)) s.dot(x, y, (*st.top)[1]);
        if (st.cut != Cut::Bare) s.flat(s.blank().rect(p.side() ? 8 : 7, int(p.hipY()) - 1, p.side() ? 8 : 10, 1), (*st.trim)[2]);
        if (st.cut == Cut::Tunic || st.cut == Cut::Robe) // a collar
            s.flat(s.blank().rect(p.side() ? 9 : 10, int(p.shoulderY()), p.side() ? 3 : 4, 1), (*st.trim)[3]);
        const auto arms = armsOf(s, p);
        for (const Mask& arm : arms) s.lit(arm, st.cut == Cut::Bare ? pal::kSkin : *st.top, true);
        if (st.cut == Cut::Plate) // shoulder plates
            for (const Mask& arm : arms) {
                Mask pad = s.blank();
                for (int x = 0; x < kCellW; ++x)
                    for (int y = int(p.shoulderY()) - 1; y < int(p.shoulderY()) + 3; ++y)
                        if (arm.at(x, y) || arm.at(x - 1, y) || arm.at(x + 1, y)) pad.set(x, y);
                s.round(pad, *st.trim, true);
            }
        for (const auto& h : handsOf(p)) s.round(s.blank().ellipse(h[0], h[1], 1.6, 1.6), pal::kSkin, true);
    };
}

LayerFn headLayer(HeadStyle st)
{
    return [st](Strokes& s, const Pose& p) {
        using Hat = HeadStyle::Hat;
        const double cy = p.headY();
        const bool down = p.dir == kDown, up = p.dir == kUp;
        if (st.longHair && st.hair && !(st.hat == Hat::Hood)) {
            Mask back = s.blank();
            if (p.side()) back.rect(12, int(cy), 5, 9);
            else back.rect(6, int(cy), 12, up ? 10 : 7);
            s.round(back, *st.hair);
        }
        s.lit(s.blank().rect(11, int(cy) + 5, 3, 2), pal::kSkin); // neck
        Mask head = s.blank().ellipse(12, cy, p.side() ? 5 : 5.6, 6);
        if (p.side()) head.rect(6, int(cy) + 1, 1, 2); // nose
        s.round(head, pal::kSkin);
        if (down) {
            s.flat(s.blank().rect(9, int(cy) + 1, 1, 2), pal::kInk);
            s.flat(s.blank().rect(14, int(cy) + 1, 1, 2), pal::kInk);
            s.dot(12, int(cy) + 4, pal::kSkin[1]);
        } else if (p.side()) {
            s.flat(s.blank().rect(8, int(cy) + 1, 1, 2), pal::kInk);
        }
        if (st.beard) {
            Mask beard = s.blank().ellipse(p.side() ? 10 : 12, cy + 5, p.side() ? 3.5 : 4.5, 3.5);
            if (!up) s.round(beard, pal::kBone, true);
        }
        if (st.hair && st.hat != Hat::Hood && st.hat != Hat::Helm && st.hat != Hat::Horned) {
            Mask hair = s.blank().ellipse(12, cy - 0.5, p.side() ? 5.5 : 6.1, 6.3);
            if (down) hair.cut(s.blank().rect(7, int(cy) - 1, 10, 9)).add(s.blank().rect(6, int(cy) - 2, 2, 5)).add(s.blank().rect(16, int(cy) - 2, 2, 5));
            else if (p.side()) hair.cut(s.blank().rect(0, int(cy) - 1, 12, 9));
            else hair.cut(s.blank().rect(0, int(cy) + 5, 24, 4));
            s.round(hair, *st.hair);
        }
        const Ramp& hr = st.hatRamp ? *st.hatRamp : pal::kLeather;
        switch (st.hat) {
        case Hat::None: break;
        case Hat::Cap: {
            Mask cap = s.blank().ellipse(12, cy - 1.5, 6.3, 5.5);
            cap.cut(s.blank().rect(0, int(cy) - 1, 24, 10));
            s.round(cap, hr, true);
            s.flat(s.blank().rect(p.side() ? 5 : 6, int(cy) - 2, p.side() ? 11 : 12, 1), hr[1]);
            break;
        }
        case Hat::Helm:
        case Hat::Horned: {
            Mask helm = s.blank().ellipse(12, cy - 0.5, 6.4, 6.6);
            if (down) helm.cut(s.blank().rect(8, int(cy), 8, 8)).add(s.blank().rect(11, int(cy), 2, 3));
            else if (p.side()) helm.cut(s.blank().rect(5, int(cy), 6, 8));
            else helm.cut(s.blank().rect(0, int(cy) + 6, 24, 3));
            s.round(helm, hr, true);
            s.flat(s.blank().rect(p.side() ? 6 : 6, int(cy) - 1, 12, 1), hr[1]);
            if (st.hat == Hat::Horned) {
                const double hx = p.side() ? 15 : 6;
                s.round(s.blank().polygon({{hx, cy - 3}, {hx - 3.5, cy - 9}, {hx + 2, cy - 5}}), pal::kBone, true);
                if (!p.side()) s.round(s.blank().polygon({{18, cy - 3}, {21.5, cy - 9}, {16, cy - 5}}), pal::kBone, true);
            }
            break;
        }
        case Hat::Wizard: {
            s.round(s.blank().ellipse(12, cy - 4, 8.5, 2.2), hr, true);
            s.lit(s.blank().polygon({{7, cy - 4.5}, {17, cy - 4.5}, {p.side() ? 16.5 : 14.0, cy - 17}}), hr, true);
            s.flat(s.blank().rect(8, int(cy) - 6, 8, 1), pal::kGold[3]);
            break;
        }
        case Hat::Hood: {
            Mask hood = s.blank().ellipse(12, cy, 6.8, 7).rect(6, int(cy), 12, int(p.shoulderY() - cy) + 2);
            if (down) hood.cut(s.blank().ellipse(12, cy + 1.5, 4.2, 4.8));
            else if (p.side()) hood.cut(s.blank().ellipse(8.5, cy + 1.5, 3, 4.5));
            s.round(hood, hr, true);
            break;
        }
        }
    };
}

LayerFn bootsLayer(const Ramp& leather, const Ramp& cuff, bool tall)
{
    return [&leather, &cuff, tall](Strokes& s, const Pose& p) {
        const Legs legs = legsOf(s, p);
        for (const auto& f : {legs.footR, legs.footL}) {
            const int h = tall ? 6 : 4;
            Mask boot = s.blank().rect(int(f[0]) - 2, int(f[1]) - h, 4, h);
            if (p.side()) boot.rect(int(f[0]) - 3, int(f[1]) - 2, 2, 2); // the toe points forward
            s.round(boot, leather, true);
            s.flat(s.blank().rect(int(f[0]) - 2, int(f[1]) - h, 4, 1), cuff[3]);
        }
    };
}

LayerFn glovesLayer(const Ramp& leather, const Ramp& cuff)
{
    return [&leather, &cuff](Strokes& s, const Pose& p) {
        for (const auto& h : handsOf(p)) {
            s.round(s.blank().ellipse(h[0], h[1], 2.1, 2.1), leather, true);
            s.flat(s.blank().rect(int(h[0]) - 1, int(h[1]) - 3, 3, 1), cuff[3]);
        }
    };
}

LayerFn weaponLayer(WeaponStyle st)
{
    return [st](Strokes& s, const Pose& p) {
        const auto h = p.weaponHand();
        // The blade points up and a little outwards; in a side view, up and forward.
        const double dx = p.side() ? -0.55 : (h[0] < 12 ? -0.15 : 0.15), dy = p.side() ? -0.85 : -1.0;
        if (!st.bow) {
            const double tipX = h[0] + dx * st.length, tipY = h[1] - 2 + dy * st.length;
            s.lit(s.blank().line(h[0], h[1] - 2, tipX, tipY, 2.2), *st.blade, true);
            s.dot(int(tipX), int(tipY), (*st.blade)[4]);
            s.lit(s.blank().line(h[0], h[1] - 1, h[0] - dx * 3, h[1] + 2, 1.6), *st.grip);
            s.round(s.blank().line(h[0] - 2.5, h[1] - 2 + dx * 3, h[0] + 2.5, h[1] - 2 - dx * 3, 1.6), pal::kGold, true);
            return;
        }
        const double cx = h[0] + (p.side() ? -2.5 : (h[0] < 12 ? -2.5 : 2.5));
        const double bend = p.side() ? -3 : (h[0] < 12 ? -3 : 3);
        const double half = st.length / 2.0;
        Mask limb = s.blank();
        for (int i = 0; i < 12; ++i) {
            const double t0 = -1 + i / 6.0, t1 = -1 + (i + 1) / 6.0;
            limb.line(cx + bend * (1 - t0 * t0), h[1] + t0 * half, cx + bend * (1 - t1 * t1), h[1] + t1 * half, 1.8);
        }
        s.flat(s.blank().line(cx, h[1] - half, cx, h[1] + half, 0.9), pal::kFlowerWhite[2]);
        s.lit(limb, *st.blade, true);
        s.round(s.blank().rect(int(cx + bend) - 1, int(h[1]) - 1, 2, 3), *st.grip);
    };
}

LayerFn shieldLayer(ShieldStyle st)
{
    return [st](Strokes& s, const Pose& p) {
        using Shape = ShieldStyle::Shape;
        const auto h = p.shieldHand();
        const bool back = p.dir == kUp; // seen from behind: the wooden back and the strap
        const double cx = p.side() ? h[0] - 1 : h[0] + (h[0] > 12 ? -1 : 1), cy = h[1] - 2;
        const double rx = p.side() ? 3.2 : 4.6;
        Mask face = s.blank();
        switch (st.shape) {
        case Shape::Buckler: face.ellipse(cx, cy, rx * 0.8, 3.8); break;
        case Shape::Round: face.ellipse(cx, cy, rx, 5.5); break;
        case Shape::Kite: face.polygon({{cx - rx, cy - 5}, {cx + rx, cy - 5}, {cx + rx, cy}, {cx, cy + 7}, {cx - rx, cy}}); break;
        case Shape::Tower: face.rect(int(cx - rx), int(cy - 7), int(2 * rx) + 1, 14); break;
        }
        if (back) {
            s.round(face, pal::kWood, true);
            s.flat(s.blank().rect(int(cx) - 2, int(cy) - 1, 4, 1), pal::kLeather[1]);
            return;
        }
        s.round(face, *st.face, true);
        Mask rim = face;
        for (int y = 0; y < kCellH; ++y)
            for (int x = 0; x < kCellW; ++x)
                if (face.at(x, y) && face.at(x - 1, y) && face.at(x + 1, y) && face.at(x, y - 1) && face.at(x, y + 1)) rim.set(x, y, false);
        s.lit(rim, *st.rim);
        if (st.emblem) {
            Mask mark = s.blank();
            if (st.shape == Shape::Buckler) mark.rect(int(cx), int(cy), 1, 1);
            else mark.rect(int(cx), int(cy) - 3, 1, 7).rect(int(cx) - 2, int(cy) - 1, 5, 1);
            mark = Mask(mark).cut(rim);
            s.flat(mark, (*st.emblem)[3]);
        }
    };
}

} // namespace worldgen
