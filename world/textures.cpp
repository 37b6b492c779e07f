#include "world/textures.h"

#include "core/misc.h"
#include "platform/error.h"
#include "platform/files.h"

namespace umbrith {

namespace {

constexpr int kCellWidth = 24;
constexpr int kCellHeight = 48;

Surface partSheet(const Value& path) {
    const QString relative = path.text().trimmed();
    if (relative.isEmpty() || !fileExists(AppPath() + relative))
        return Surface();
    try {
        return Surface::load(AppPath() + relative);
    } catch (const RuntimeError&) {
        return Surface();
    }
}

} // namespace

void LoadPaperDoll(Textures& t, const GameRecord& game) {
    t.grossbody = partSheet(game.PlayerArmourPicturePath);
    t.grosshead = partSheet(game.PlayerHelmetPicturePath);
    t.grossshield = partSheet(game.PlayerShieldPicturePath);
    t.grossboots = partSheet(game.PlayerBootsPicturePath);
    t.grossgloves = partSheet(game.PlayerGlovesPicturePath);
    t.grossweapon = partSheet(game.PlayerWeaponPicturePath);
}

void DrawPart(Textures& textures, const Surface& sheet, int direction) {
    for (int frame = 0; frame < 3; ++frame) {
        Surface& cell = textures.picdirorig[direction + 4 * frame];
        const int x = 48 * frame, y = 48 * direction;
        blit(cell, 0, 0, kCellWidth, kCellHeight, sheet, x + kCellWidth, y, RasterOp::SrcAnd);
        blit(cell, 0, 0, kCellWidth, kCellHeight, sheet, x, y, RasterOp::SrcInvert);
    }
}

void UpdateCharacterPic(Textures& t) {
    for (Surface& cell : t.picdirorig)
        cell = Surface(kCellWidth, kCellHeight);
    for (int d = 0; d < 4; ++d) {
        // Facing up or right the shield is behind the body and the weapon in
        // front; facing down or left they change sides.
        if (d == 1 || d == 3) {
            for (const Surface* part : {&t.grossshield, &t.grossbody, &t.grosshead, &t.grossboots, &t.grossweapon, &t.grossgloves})
                DrawPart(t, *part, d);
        } else {
            for (const Surface* part : {&t.grossweapon, &t.grossbody, &t.grosshead, &t.grossboots, &t.grossgloves, &t.grossshield})
                DrawPart(t, *part, d);
        }
    }
    for (size_t i = 0; i < t.picdirorig.size(); ++i) {
        Surface mask(kCellWidth, kCellHeight);
        for (int y = 0; y < kCellHeight; ++y)
            for (int x = 0; x < kCellWidth; ++x)
                SetPixel(mask, x, y, GetPixel(t.picdirorig[i], x, y) == 0 ? 0xFFFFFF : 0x000000);
        t.picdirneg[i] = std::move(mask);
    }
}

} // namespace umbrith
