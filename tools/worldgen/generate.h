#pragma once
// Writes every default picture, piece of music and sound effect into a program folder.
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace worldgen {

// Relative path with "/" separators, such as "images/night1.bmp", to the file's bytes.
using FileSet = std::map<std::string, std::vector<std::uint8_t>>;

FileSet generateAll();
void writeAll(const FileSet& files, const std::filesystem::path& programFolder);

} // namespace worldgen
