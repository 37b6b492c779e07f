#pragma once
// The paper-doll layers in their styles: every piece of clothing or gear is
// one of these drawings with its own colours and cut.
#include "doll.h"

namespace worldgen {

struct BodyStyle {
    enum class Cut { Bare, Tunic, Robe, Mail, Plate };
    Cut cut;
    const Ramp* top;
    const Ramp* legs;
    const Ramp* trim;
};
LayerFn bodyLayer(BodyStyle style);

struct HeadStyle {
    enum class Hat { None, Cap, Helm, Horned, Wizard, Hood };
    const Ramp* hair; // nullptr: bald
    Hat hat = Hat::None;
    const Ramp* hatRamp = nullptr;
    bool longHair = false;
    bool beard = false;
};
LayerFn headLayer(HeadStyle style);

LayerFn bootsLayer(const Ramp& leather, const Ramp& cuff, bool tall);
LayerFn glovesLayer(const Ramp& leather, const Ramp& cuff);

struct WeaponStyle {
    bool bow;
    const Ramp* blade; // the bow's wood for a bow
    const Ramp* grip;
    int length;
};
LayerFn weaponLayer(WeaponStyle style);

struct ShieldStyle {
    enum class Shape { Buckler, Round, Kite, Tower };
    Shape shape;
    const Ramp* face;
    const Ramp* rim;
    const Ramp* emblem;
};
LayerFn shieldLayer(ShieldStyle style);

} // namespace worldgen
