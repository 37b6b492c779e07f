// The generator's output as a whole: every name the game opens by itself is
// there and the output is the same on every run.
#include "tilesheet.h"
#include "worldgen_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace worldgen::test {
namespace {

TEST(WorldgenFiles, EveryFileTheGameOpensByNameIsGenerated)
{
    const char* fixedNames[] = {
        "tilesets/default.bmp",
        "images/specialpics.bmp", "images/grounditems.bmp", "images/night1.bmp",
        "images/bodies/defaultbody.bmp", "images/heads/defaulthead.bmp", "images/boots/defaultboots.bmp",
        "images/gloves/defaultgloves.bmp", "images/weapons/defaultweapon.bmp", "images/shields/defaultshield.bmp",
        "images/heads/empty.bmp", "images/bodies/empty.bmp", "images/gloves/empty.bmp", "images/boots/empty.bmp",
        "images/heads/defaultshield.bmp",
        "sfx/default.mid", "sfx/intro.mid", "sfx/intro1.mid", "sfx/intro2.mid",
        "sfx/battle1.mid", "sfx/battle2.mid", "sfx/battle3.mid",
        "sfx/message.wav", "sfx/shop.wav", "sfx/click.wav", "sfx/place.wav", "sfx/undo.wav", "sfx/sword.wav",
        "sfx/bow.wav", "sfx/punch.wav", "sfx/heal.wav", "sfx/damage.wav", "sfx/flee.wav",
    };
    for (const char* name : fixedNames) EXPECT_TRUE(generated().count(name)) << name;
    for (const char* theme : {"sfx/town.mid", "sfx/field.mid", "sfx/dungeon.mid"}) EXPECT_TRUE(generated().count(theme)) << theme;
}

TEST(WorldgenFiles, EnoughPiecesOfEachKind)
{
    auto countUnder = [](const std::string& folder) {
        int n = 0;
        for (const auto& [path, b] : generated()) n += path.rfind(folder, 0) == 0 && path.find('/', folder.size()) == std::string::npos;
        return n;
    };
    // The default, a stand-by where the game has one, and at least four pieces to wear.
    EXPECT_GE(countUnder("images/bodies/"), 6);
    EXPECT_GE(countUnder("images/heads/"), 6);
    EXPECT_GE(countUnder("images/boots/"), 6);
    EXPECT_GE(countUnder("images/gloves/"), 6);
    EXPECT_GE(countUnder("images/weapons/"), 5);
    EXPECT_GE(countUnder("images/shields/"), 5);
    EXPECT_GE(countUnder("images/npcs/"), 8);
    EXPECT_GE(countUnder("images/enemypics/"), 10);
}

TEST(WorldgenFiles, TwoRunsGiveTheSameBytes)
{
    const FileSet again = generateAll();
    ASSERT_EQ(again.size(), generated().size());
    for (const auto& [path, b] : generated()) EXPECT_TRUE(again.at(path) == b) << path;
}

TEST(WorldgenFiles, WritesTheTreeUnderTheProgramFolder)
{
    const auto dir = std::filesystem::temp_directory_path() / "umbrith_worldgen_test";
    std::filesystem::remove_all(dir);
    writeAll(generated(), dir);
    for (const auto& [path, b] : generated()) {
        std::ifstream in(dir / path, std::ios::binary);
        const std::vector<std::uint8_t> onDisk{std::istreambuf_iterator<char>(in), {}};
        EXPECT_TRUE(onDisk == b) << path;
    }
    std::filesystem::remove_all(dir);
}

} // namespace
} // namespace worldgen::test
