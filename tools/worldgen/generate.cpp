#include "generate.h"

#include "enemies.h"
#include "gear.h"
#include "marks.h"
#include "music.h"
#include "sound.h"
#include "tilesheet.h"

#include <fstream>
#include <stdexcept>

namespace worldgen {
namespace {

} // namespace

FileSet generateAll()
{
    FileSet files;
    const TileSheet tiles = buildDefaultTileset();
    files["tilesets/default.bmp"] = encodeBmp(tiles.picture());
    files["images/specialpics.bmp"] = encodeBmp(specialMarks());
    files["images/grounditems.bmp"] = encodeBmp(groundItemIcon());
    files["images/night1.bmp"] = encodeBmp(nightOverlay());
    for (const PictureFile& f : dollPartFiles()) files[f.path] = encodeBmp(f.picture);
    for (const PictureFile& f : npcFiles()) files[f.path] = encodeBmp(f.picture);
    for (const PictureFile& f : enemyFiles()) files[f.path] = encodeBmp(f.picture);
    for (const MusicFile& m : composeAll()) files[m.path] = encodeMidi(m.song);
    for (const SoundFile& s : synthesiseAll()) files[s.path] = encodeWav(s.samples);
    return files;
}

void writeAll(const FileSet& files, const std::filesystem::path& programFolder)
{
    for (const auto& [relative, bytes] : files) {
        const auto path = programFolder / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!out) throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace worldgen
