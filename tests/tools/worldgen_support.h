#pragma once
// What the tests of the generator share: one generated set of files, and
// readers that go through the platform's own picture loader.
#include "generate.h"

#include <QImage>

#include <cstdint>
#include <string>

namespace worldgen::test {

// Generated once per test run; generation takes a few seconds.
inline const FileSet& generated()
{
    static const FileSet files = generateAll();
    return files;
}

inline const std::vector<std::uint8_t>& bytes(const std::string& path) { return generated().at(path); }

inline QImage picture(const std::string& path)
{
    const auto& b = bytes(path);
    return QImage::fromData(b.data(), static_cast<int>(b.size()), "BMP").convertToFormat(QImage::Format_RGB32);
}

inline unsigned le(const std::vector<std::uint8_t>& b, std::size_t at, int n)
{
    unsigned v = 0;
    for (int i = n - 1; i >= 0; --i) v = (v << 8) | b[at + i];
    return v;
}

inline unsigned be(const std::vector<std::uint8_t>& b, std::size_t at, int n)
{
    unsigned v = 0;
    for (int i = 0; i < n; ++i) v = (v << 8) | b[at + i];
    return v;
}

inline bool isBlack(QRgb c) { return (c & 0xFFFFFF) == 0; }
inline bool isWhite(QRgb c) { return (c & 0xFFFFFF) == 0xFFFFFF; }

} // namespace worldgen::test
