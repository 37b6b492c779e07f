// Every paper-doll part the game ships: the defaults, the stand-by pictures
// and the pieces the starter equipment list can name.
#include "gear.h"

#include "layers.h"
#include "palette.h"

namespace worldgen {
namespace {

using Cut = BodyStyle::Cut;
using Hat = HeadStyle::Hat;
using Shape = ShieldStyle::Shape;

const LayerFn kNothing{}; // fists, no shield, no gloves: an all-transparent sheet

LayerFn lightClothes() { return bodyLayer({Cut::Tunic, &pal::kGreenCloth, &pal::kLeather, &pal::kLeather}); }
LayerFn brownHair() { return headLayer({&pal::kHairBrown}); }
LayerFn plainBoots() { return bootsLayer(pal::kLeather, pal::kLeather, false); }

struct Part {
    const char* path;
    const char* shows;
    LayerFn layer;
};

} // namespace

Outfit defaultOutfit() { return {lightClothes(), brownHair(), plainBoots(), kNothing, kNothing, kNothing}; }

std::vector<PictureFile> dollPartFiles()
{
    const Part parts[] = {
        {"images/bodies/defaultbody.bmp", "Light Clothes: green tunic, brown trousers, bare hands and feet", lightClothes()},
        {"images/bodies/empty.bmp", "stand-by body: white undershirt, bare arms, linen trousers",
         bodyLayer({Cut::Bare, &pal::kFlowerWhite, &pal::kSand, &pal::kSand})},
        {"images/bodies/leatherarmour.bmp", "leather armour: brown jerkin over dark trousers",
         bodyLayer({Cut::Tunic, &pal::kLeather, &pal::kWood, &pal::kGold})},
        {"images/bodies/chainmail.bmp", "chain mail shirt over leather trousers",
         bodyLayer({Cut::Mail, &pal::kIron, &pal::kLeather, &pal::kLeather})},
        {"images/bodies/platearmour.bmp", "steel plate armour with gold shoulder plates",
         bodyLayer({Cut::Plate, &pal::kIron, &pal::kIron, &pal::kGold})},
        {"images/bodies/magerobe.bmp", "purple mage robe with a gold belt",
         bodyLayer({Cut::Robe, &pal::kPurple, &pal::kPurple, &pal::kGold})},
        {"images/bodies/rangercloak.bmp", "long green ranger's coat with a leather belt",
         bodyLayer({Cut::Robe, &pal::kGreenCloth, &pal::kLeather, &pal::kLeather})},

        {"images/heads/defaulthead.bmp", "bare head with short brown hair", brownHair()},
        {"images/heads/empty.bmp", "stand-by head: bald", headLayer({nullptr})},
        {"images/heads/leathercap.bmp", "leather cap over brown hair", headLayer({&pal::kHairBrown, Hat::Cap, &pal::kLeather})},
        {"images/heads/ironhelm.bmp", "iron helmet with a nose guard", headLayer({&pal::kHairBrown, Hat::Helm, &pal::kIron})},
        {"images/heads/hornedhelm.bmp", "iron helmet with two horns", headLayer({&pal::kHairBrown, Hat::Horned, &pal::kIron})},
        {"images/heads/wizardhat.bmp", "tall purple wizard's hat", headLayer({&pal::kHairBrown, Hat::Wizard, &pal::kPurple})},
        {"images/heads/greenhood.bmp", "green hood", headLayer({&pal::kHairBrown, Hat::Hood, &pal::kGreenCloth})},
        {"images/heads/defaultshield.bmp", "no shield (transparent); the name the NPC creator stores for the stand-by shield",
         kNothing},

        {"images/boots/defaultboots.bmp", "plain brown shoes", plainBoots()},
        {"images/boots/empty.bmp", "stand-by boots: none (transparent), bare feet show", kNothing},
        {"images/boots/leatherboots.bmp", "tall leather boots", bootsLayer(pal::kLeather, pal::kSand, true)},
        {"images/boots/ironboots.bmp", "iron greaves", bootsLayer(pal::kIron, pal::kIron, true)},
        {"images/boots/furboots.bmp", "fur-lined boots", bootsLayer(pal::kWood, pal::kBone, true)},
        {"images/boots/sandals.bmp", "light sandals", bootsLayer(pal::kPlank, pal::kPlank, false)},

        {"images/gloves/defaultgloves.bmp", "no gloves (transparent), bare hands show", kNothing},
        {"images/gloves/empty.bmp", "stand-by gloves: none (transparent)", kNothing},
        {"images/gloves/leathergloves.bmp", "brown leather gloves", glovesLayer(pal::kLeather, pal::kLeather)},
        {"images/gloves/irongauntlets.bmp", "iron gauntlets", glovesLayer(pal::kIron, pal::kIron)},
        {"images/gloves/clothwraps.bmp", "linen hand wraps", glovesLayer(pal::kSand, pal::kSand)},
        {"images/gloves/magegloves.bmp", "purple gloves with gold cuffs", glovesLayer(pal::kPurple, pal::kGold)},

        {"images/weapons/defaultweapon.bmp", "fists: nothing in hand (transparent)", kNothing},
        {"images/weapons/shortsword.bmp", "short iron sword", weaponLayer({false, &pal::kIron, &pal::kWood, 9})},
        {"images/weapons/longsword.bmp", "long steel sword", weaponLayer({false, &pal::kIron, &pal::kLeather, 13})},
        {"images/weapons/embersword.bmp", "glowing red-gold sword", weaponLayer({false, &pal::kLava, &pal::kPurple, 12})},
        {"images/weapons/shortbow.bmp", "short wooden bow", weaponLayer({true, &pal::kWood, &pal::kLeather, 14})},
        {"images/weapons/longbow.bmp", "tall pale longbow", weaponLayer({true, &pal::kPlank, &pal::kGreenCloth, 20})},

        {"images/shields/defaultshield.bmp", "no shield (transparent)", kNothing},
        {"images/shields/woodenbuckler.bmp", "small wooden buckler with an iron boss",
         shieldLayer({Shape::Buckler, &pal::kPlank, &pal::kIron, &pal::kIron})},
        {"images/shields/roundshield.bmp", "round wooden shield with a gold cross",
         shieldLayer({Shape::Round, &pal::kWood, &pal::kIron, &pal::kGold})},
        {"images/shields/kiteshield.bmp", "blue kite shield with a white cross",
         shieldLayer({Shape::Kite, &pal::kCloth, &pal::kIron, &pal::kFlowerWhite})},
        {"images/shields/towershield.bmp", "tall steel tower shield with a red cross",
         shieldLayer({Shape::Tower, &pal::kIron, &pal::kGold, &pal::kRed})},
    };
    std::vector<PictureFile> files;
    for (const Part& p : parts) files.push_back({p.path, p.shows, partSheet(p.layer)});
    return files;
}

} // namespace worldgen
