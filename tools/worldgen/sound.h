#pragma once
// The game's sound effects, synthesised, and their WAV encoding.
#include <cstdint>
#include <string>
#include <vector>

namespace worldgen {

constexpr int kSampleRate = 22050;

// 16-bit PCM mono at kSampleRate; samples are clipped to [-1, 1].
std::vector<std::uint8_t> encodeWav(const std::vector<double>& samples);

struct SoundFile {
    std::string path; // relative to the program folder
    std::vector<double> samples;
};

std::vector<SoundFile> synthesiseAll();

} // namespace worldgen
