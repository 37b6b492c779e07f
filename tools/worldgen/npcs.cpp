// The NPC sheets: people dressed from the paper-doll layers, and a dog.
#include "gear.h"

#include "layers.h"
#include "palette.h"

namespace worldgen {
namespace {

using Cut = BodyStyle::Cut;
using Hat = HeadStyle::Hat;

// A dog trotting: four legs stepping in pairs, the tail up.
void dog(Strokes& s, const Pose& p)
{
    const Ramp& fur = pal::kDirt;
    const int step = p.swing();
    if (p.side()) { // facing left
        s.lit(s.blank().line(18, 34, 21, 29, 2), fur, true); // tail
        for (int i = 0; i < 4; ++i) {
            const double x = (i < 2 ? 8 : 16) + (i % 2 ? 1 : -1) * step;
            s.lit(s.blank().rect(int(x), 38, 2, 8), fur, i % 2 == 0);
        }
        s.round(s.blank().ellipse(13, 36, 7.5, 4), fur);
        s.round(s.blank().ellipse(6, 32 + (p.frame == 0 ? 0 : 0.5), 4, 3.5).rect(2, 32, 3, 3), fur, true);
        s.round(s.blank().polygon({{7, 27}, {10, 28}, {9, 32}}), pal::kLeather, true); // ear
        s.dot(4, 31, pal::kInk);
        s.dot(2, 33, pal::kInk);
        s.flat(s.blank().rect(7, 35, 4, 1), pal::kRed[2]); // collar
        return;
    }
    const bool front = p.dir == kDown;
    for (int i = 0; i < 2; ++i) {
        const int lift = (i ? 1 : -1) * step;
        s.lit(s.blank().rect(i ? 14 : 8, 38 - std::max(0, lift), 2, 8), fur, true);
    }
    if (!front) s.lit(s.blank().line(12, 33, 12 + step, 26, 2), fur, true);
    s.round(s.blank().ellipse(12, 36, 5.5, 6), fur);
    if (front) {
        s.round(s.blank().ellipse(12, 30, 5, 4.5), fur, true);
        s.round(s.blank().ellipse(12, 33, 2.5, 1.8), pal::kSand, true);
        s.dot(12, 32, pal::kInk);
        s.dot(10, 29, pal::kInk);
        s.dot(14, 29, pal::kInk);
        s.flat(s.blank().rect(9, 35, 7, 1), pal::kRed[2]);
    }
    s.round(s.blank().polygon({{7, 26}, {9, 28}, {7, 31}}), pal::kLeather, true);
    s.round(s.blank().polygon({{17, 26}, {15, 28}, {17, 31}}), pal::kLeather, true);
}

struct Npc {
    const char* path;
    const char* shows;
    Outfit outfit;
};

} // namespace

std::vector<PictureFile> npcFiles()
{
    const LayerFn shoes = bootsLayer(pal::kLeather, pal::kLeather, false);
    const LayerFn sandals = bootsLayer(pal::kPlank, pal::kPlank, false);
    const Npc npcs[] = {
        {"images/npcs/villager_man.bmp", "villager man in a blue tunic",
         {bodyLayer({Cut::Tunic, &pal::kCloth, &pal::kLeather, &pal::kLeather}), headLayer({&pal::kHairBrown}), shoes, {}, {}, {}}},
        {"images/npcs/villager_woman.bmp", "villager woman, long fair hair, red dress",
         {bodyLayer({Cut::Robe, &pal::kRed, &pal::kRed, &pal::kFlowerWhite}), headLayer({&pal::kGold, Hat::None, nullptr, true}), sandals, {}, {}, {}}},
        {"images/npcs/merchant.bmp", "merchant in a gold-trimmed purple coat and cap",
         {bodyLayer({Cut::Robe, &pal::kPurple, &pal::kPurple, &pal::kGold}), headLayer({&pal::kHairBrown, Hat::Cap, &pal::kRed}), shoes, {}, {}, {}}},
        {"images/npcs/guard.bmp", "town guard: mail, iron helmet, sword and kite shield",
         {bodyLayer({Cut::Mail, &pal::kIron, &pal::kCloth, &pal::kLeather}), headLayer({&pal::kHairBrown, Hat::Helm, &pal::kIron}),
          bootsLayer(pal::kIron, pal::kIron, true), glovesLayer(pal::kLeather, pal::kLeather),
          weaponLayer({false, &pal::kIron, &pal::kWood, 11}),
          shieldLayer({ShieldStyle::Shape::Kite, &pal::kRed, &pal::kIron, &pal::kGold})}},
        {"images/npcs/elder.bmp", "village elder, bald with a white beard, grey robe",
         {bodyLayer({Cut::Robe, &pal::kStone, &pal::kStone, &pal::kCloth}), headLayer({nullptr, Hat::None, nullptr, false, true}), sandals, {}, {}, {}}},
        {"images/npcs/child.bmp", "child in a yellow shirt",
         {bodyLayer({Cut::Tunic, &pal::kFlowerYellow, &pal::kCloth, &pal::kLeather}), headLayer({&pal::kHairBrown}), shoes, {}, {}, {}, 6}},
        {"images/npcs/monk.bmp", "monk in a brown habit and hood",
         {bodyLayer({Cut::Robe, &pal::kWood, &pal::kWood, &pal::kThatch}), headLayer({&pal::kHairBrown, Hat::Hood, &pal::kWood}), sandals, {}, {}, {}}},
        {"images/npcs/mage.bmp", "mage in a blue robe and wizard's hat",
         {bodyLayer({Cut::Robe, &pal::kCloth, &pal::kCloth, &pal::kGold}), headLayer({&pal::kBone, Hat::Wizard, &pal::kCloth, false, true}),
          sandals, glovesLayer(pal::kPurple, pal::kGold), {}, {}}},
        {"images/npcs/blacksmith.bmp", "blacksmith: bare arms, leather apron, gloves",
         {bodyLayer({Cut::Bare, &pal::kLeather, &pal::kWood, &pal::kLeather}), headLayer({&pal::kHairBrown, Hat::None, nullptr, false, true}),
          bootsLayer(pal::kWood, pal::kWood, true), glovesLayer(pal::kLeather, pal::kLeather), {}, {}}},
        {"images/npcs/dog.bmp", "brown dog with a red collar", {dog, {}, {}, {}, {}, {}}},
    };
    std::vector<PictureFile> files;
    for (const Npc& n : npcs) files.push_back({n.path, n.shows, outfitSheet(n.outfit)});
    return files;
}

} // namespace worldgen
