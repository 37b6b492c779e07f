#pragma once
// The paper-doll figure: a pose for each direction and walk frame, and the
// six layers that the game stacks into one figure (body, head, boots,
// gloves, weapon, shield), each drawn the same way so the layers fit.
#include "art.h"

#include <functional>
#include <vector>

namespace worldgen {

constexpr int kCellW = 24, kCellH = 48;
enum Direction { kDown = 0, kUp = 1, kLeft = 2, kRight = 3 };

struct Pose {
    int dir = kDown;
    int frame = 0; // 0 standing, 1 and 2 the two strides
    int lift = 0;  // pixels a smaller figure's head sits lower
    bool side() const { return dir == kLeft || dir == kRight; }
    int bob() const { return frame == 0 ? 0 : 1; }
    int swing() const { return frame == 1 ? 1 : frame == 2 ? -1 : 0; }
    double headY() const { return 19 + lift + bob(); }
    double shoulderY() const { return 26 + lift + bob(); }
    double hipY() const { return 36 + lift / 2; }
    // The hand that holds the weapon and the one that holds the shield.
    std::array<double, 2> weaponHand() const;
    std::array<double, 2> shieldHand() const;
};

// One part of a layer's picture; a layer is drawn as a list of these so it
// can be mirrored before painting and still be lit from the top left.
struct Stroke {
    enum class Paint { Round, Lit, Flat };
    Mask shape;
    Paint paint;
    const Ramp* ramp = nullptr;
    Rgb colour{};
    bool lined = false; // its own outline, to part it from what lies under it
};

class Strokes {
public:
    Mask blank() const { return Mask(kCellW, kCellH); }
    void round(const Mask& m, const Ramp& r, bool lined = false) { list_.push_back({m, Stroke::Paint::Round, &r, {}, lined}); }
    void lit(const Mask& m, const Ramp& r, bool lined = false) { list_.push_back({m, Stroke::Paint::Lit, &r, {}, lined}); }
    void flat(const Mask& m, Rgb c) { list_.push_back({m, Stroke::Paint::Flat, nullptr, c, false}); }
    void dot(int x, int y, Rgb c) { flat(blank().rect(x, y, 1, 1), c); }
    const std::vector<Stroke>& list() const { return list_; }

private:
    std::vector<Stroke> list_;
};

// Draws one layer of a pose; side views are drawn facing left and mirrored for right.
using LayerFn = std::function<void(Strokes&, const Pose&)>;

// A layer's figure picture on black for one pose (empty function: nothing).
Image renderLayer(const LayerFn& layer, const Pose& pose);

// The sheet of one part: four direction rows of 48 pixels, three frames,
// the picture at x = 48 * frame and its mask 24 pixels to the right.
Image partSheet(const LayerFn& layer, int lift = 0);

struct Outfit {
    LayerFn body, head, boots, gloves, weapon, shield;
    int lift = 0;
};

// The game's stacking: the parts in its order per direction, masked drawing,
// and the mask made from the composite, in the same sheet layout.
Image outfitSheet(const Outfit& outfit);
// Writes a picture and its mask as one frame of a sheet.
void putFrame(Image& sheet, const Image& figure, int dir, int frame);

} // namespace worldgen
