#include "shell/rules/npcimage.h"

#include "core/misc.h"
#include "platform/error.h"

namespace umbrith {

namespace {

constexpr int kCellWidth = 24;
constexpr int kCellHeight = 48;

struct PartSlot {
    Surface Textures::*sheet;
    Value GameRecord::*playerPath;
    const char* defaultPath;
    const char* standByPicture;
    const char* standByPath; // what is kept as the part's path
};

// In the order of NPCArea.
const PartSlot parts[NPCAreaCount] = {
    {&Textures::grosshead, &GameRecord::PlayerHelmetPicturePath, "\\images\\heads\\defaulthead.bmp",
     "\\images\\heads\\empty.bmp", "\\images\\heads\\empty.bmp"},
    {&Textures::grossbody, &GameRecord::PlayerArmourPicturePath, "\\images\\bodies\\defaultbody.bmp",
     "\\images\\bodies\\empty.bmp", "\\images\\bodies\\empty.bmp"},
    {&Textures::grossgloves, &GameRecord::PlayerGlovesPicturePath, "\\images\\gloves\\defaultgloves.bmp",
     "\\images\\gloves\\empty.bmp", "\\images\\gloves\\empty.bmp"},
    {&Textures::grossboots, &GameRecord::PlayerBootsPicturePath, "\\images\\boots\\defaultboots.bmp",
     "\\images\\boots\\empty.bmp", "\\images\\boots\\empty.bmp"},
    {&Textures::grossweapon, &GameRecord::PlayerWeaponPicturePath, "\\images\\weapons\\defaultweapon.bmp",
     "\\images\\weapons\\defaultweapon.bmp", "\\images\\weapons\\defaultweapon.bmp"},
    // The stand-by shield keeps a path in the heads folder, on purpose: the
    // next update loads whatever lies there under that name.
    {&Textures::grossshield, &GameRecord::PlayerShieldPicturePath, "\\images\\shields\\defaultshield.bmp",
     "\\images\\shields\\defaultshield.bmp", "\\images\\heads\\defaultshield.bmp"},
};

// A part sheet, or a RuntimeError whose text names the picture.
Surface loadPartSheet(const QString& relative) {
    Surface sheet;
    try {
        sheet = Surface::load(AppPath() + relative);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), error.text() + QStringLiteral(": ") + relative);
    }
    if (sheet.width() < PartSheetWidth || sheet.height() < PartSheetHeight)
        throw RuntimeError(err::InvalidPicture,
                           QStringLiteral("%1 is %2 x %3 pixels; a part picture is %4 x %5, three frames across and "
                                          "four directions down")
                               .arg(relative)
                               .arg(sheet.width())
                               .arg(sheet.height())
                               .arg(PartSheetWidth)
                               .arg(PartSheetHeight));
    return sheet;
}

} // namespace

NPCAreaPaths DefaultAreaPaths() {
    NPCAreaPaths paths;
    for (int i = 0; i < NPCAreaCount; ++i)
        paths[i] = QLatin1String(parts[i].defaultPath);
    return paths;
}

void CopyAreasToPlayer(const NPCAreaPaths& paths, GameRecord& game) {
    for (int i = 0; i < NPCAreaCount; ++i)
        game.*parts[i].playerPath = paths[i];
}

void LoadNPCParts(NPCAreaPaths& paths, Textures& textures) {
    for (int i = 0; i < NPCAreaCount; ++i) {
        const PartSlot& part = parts[i];
        if (!paths[i].isEmpty()) {
            textures.*part.sheet = loadPartSheet(paths[i]);
        } else {
            textures.*part.sheet = loadPartSheet(QLatin1String(part.standByPicture));
            paths[i] = QLatin1String(part.standByPath);
        }
    }
}

int PreviewSlot(const NPCImageState& state, bool animate) {
    return animate ? state.PreviewDirection + 4 * state.PreviewFrame : state.PreviewDirection;
}

void DrawPreview(Surface& preview, const Textures& textures, int slot) {
    blit(preview, 0, 0, kCellWidth, kCellHeight, textures.picdirneg[slot], 0, 0, RasterOp::SrcAnd);
    blit(preview, 0, 0, kCellWidth, kCellHeight, textures.picdirorig[slot], 0, 0, RasterOp::SrcInvert);
}

Surface NPCSheet(const Textures& textures) {
    Surface sheet(PartSheetWidth, PartSheetHeight);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column) {
            const int slot = row + 4 * column;
            blit(sheet, 48 * column + kCellWidth, 48 * row, kCellWidth, kCellHeight, textures.picdirneg[slot], 0, 0,
                 RasterOp::SrcCopy);
            blit(sheet, 48 * column, 48 * row, kCellWidth, kCellHeight, textures.picdirorig[slot], 0, 0,
                 RasterOp::SrcCopy);
        }
    return sheet;
}

} // namespace umbrith
