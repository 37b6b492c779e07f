#pragma once
// Little-endian integers, as the Windows bitmap and WAV headers store them.
#include <cstdint>
#include <vector>

namespace worldgen {

inline void put16le(std::vector<std::uint8_t>& out, unsigned v)
{
    out.push_back(v & 0xFF);
    out.push_back((v >> 8) & 0xFF);
}

inline void put32le(std::vector<std::uint8_t>& out, unsigned v)
{
    put16le(out, v & 0xFFFF);
    put16le(out, v >> 16);
}

} // namespace worldgen
