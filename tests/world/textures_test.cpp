#include "world/textures.h"

#include <gtest/gtest.h>

using namespace umbrith;

namespace {

// A part sheet whose every cell holds one solid 4 x 4 square of `color` at
// (x, y) of the cell, with its mask.
Surface solidPart(int32_t color, int x, int y) {
    Surface sheet(144, 192);
    for (int d = 0; d < 4; ++d)
        for (int f = 0; f < 3; ++f)
            for (int py = 0; py < 48; ++py)
                for (int px = 0; px < 24; ++px) {
                    bool inside = px >= x && px < x + 4 && py >= y && py < y + 4;
                    SetPixel(sheet, 48 * f + px, 48 * d + py, inside ? color : 0);
                    SetPixel(sheet, 48 * f + 24 + px, 48 * d + py, inside ? 0 : 0xFFFFFF);
                }
    return sheet;
}

} // namespace

TEST(PaperDollTest, shieldAndWeaponChangeSidesAroundTheBodyByDirection) {
    Textures t;
    t.grossbody = solidPart(0x0000FF, 10, 20);    // red body
    t.grossshield = solidPart(0xFF0000, 12, 22);  // blue shield overlapping it
    t.grossweapon = solidPart(0x00FF00, 8, 18);   // green weapon overlapping it
    UpdateCharacterPic(t);
    for (int frame = 0; frame < 3; ++frame) {
        // Down and left: the shield lies over the body, the body over the weapon.
        for (int d : {0, 2}) {
            EXPECT_EQ(GetPixel(t.picdirorig[d + 4 * frame], 12, 22), 0xFF0000) << d;
            EXPECT_EQ(GetPixel(t.picdirorig[d + 4 * frame], 10, 20), 0x0000FF) << d;
        }
        // Up and right: the body covers the shield, the weapon covers the body.
        for (int d : {1, 3}) {
            EXPECT_EQ(GetPixel(t.picdirorig[d + 4 * frame], 13, 22), 0x0000FF) << d;
            EXPECT_EQ(GetPixel(t.picdirorig[d + 4 * frame], 10, 20), 0x00FF00) << d;
        }
    }
}

TEST(PaperDollTest, theMaskIsMadeFromTheCompositeAndBlackIsTransparent) {
    Textures t;
    t.grossbody = solidPart(0x0000FF, 0, 0);
    t.grosshead = solidPart(0x000000, 10, 10);  // a black part draws nothing
    UpdateCharacterPic(t);
    for (size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(GetPixel(t.picdirneg[i], 0, 0), 0x000000);
        EXPECT_EQ(GetPixel(t.picdirneg[i], 11, 11), 0xFFFFFF);
        EXPECT_EQ(GetPixel(t.picdirneg[i], 23, 47), 0xFFFFFF);
    }
    // Drawn over grass by mask then picture, the figure shows and the rest is grass.
    Surface screen(24, 48);
    screen.fill(qRgb(0, 160, 0));
    blit(screen, 0, 0, 24, 48, t.picdirneg[0], 0, 0, RasterOp::SrcAnd);
    blit(screen, 0, 0, 24, 48, t.picdirorig[0], 0, 0, RasterOp::SrcInvert);
    EXPECT_EQ(GetPixel(screen, 1, 1), 0x0000FF);
    EXPECT_EQ(GetPixel(screen, 11, 11), toColorRef(qRgb(0, 160, 0)));
}

TEST(PaperDollTest, aMissingSheetLeavesItsPartOut) {
    Textures t;
    t.grossbody = solidPart(0x0000FF, 0, 0);
    UpdateCharacterPic(t);  // five sheets never loaded
    EXPECT_EQ(GetPixel(t.picdirorig[5], 1, 1), 0x0000FF);
    EXPECT_EQ(GetPixel(t.picdirorig[5], 10, 10), 0);
}
