#pragma once

#include "core/misc.h"
#include "platform/files.h"
#include "platform/surface.h"

#include <QDir>
#include <QFileInfo>
#include <QRect>
#include <functional>

namespace umbrith::dollparts {

// The colour a part shows in the cell of a direction and frame.
using CellColor = std::function<QRgb(int direction, int frame)>;

// A part sheet of 144 x 192: in every cell a block of the cell's colour,
// black around it, and the mask beside it (black on the block, white around).
inline Surface partSheet(const CellColor& color, const QRect& block) {
    Surface sheet(144, 192);
    for (int d = 0; d < 4; ++d)
        for (int f = 0; f < 3; ++f)
            for (int y = 0; y < 48; ++y)
                for (int x = 0; x < 24; ++x) {
                    const bool inside = block.contains(x, y);
                    SetPixel(sheet, 48 * f + x, 48 * d + y, inside ? toColorRef(color(d, f)) : 0);
                    SetPixel(sheet, 48 * f + 24 + x, 48 * d + y, inside ? 0 : 0xFFFFFF);
                }
    return sheet;
}

// A part that draws nothing: a black picture under a white mask.
inline Surface emptyPartSheet() { return partSheet([](int, int) { return qRgb(0, 0, 0); }, QRect()); }

inline void savePicture(const Surface& picture, const QString& stored) {
    QDir().mkpath(QFileInfo(nativePath(AppPath() + stored)).path());
    picture.saveBitmap(AppPath() + stored);
}

// The six default parts, the stand-by pictures and the stand-by shield's
// stored path, all drawing nothing.
inline void writeEmptyParts() {
    for (const char* stored :
         {"\\images\\heads\\defaulthead.bmp", "\\images\\heads\\empty.bmp", "\\images\\heads\\defaultshield.bmp",
          "\\images\\bodies\\defaultbody.bmp", "\\images\\bodies\\empty.bmp", "\\images\\gloves\\defaultgloves.bmp",
          "\\images\\gloves\\empty.bmp", "\\images\\boots\\defaultboots.bmp", "\\images\\boots\\empty.bmp",
          "\\images\\weapons\\defaultweapon.bmp", "\\images\\shields\\defaultshield.bmp"})
        savePicture(emptyPartSheet(), QLatin1String(stored));
}

} // namespace umbrith::dollparts
