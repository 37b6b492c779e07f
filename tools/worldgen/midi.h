#pragma once
// Standard MIDI Files, format 1: a tempo track, then one track per part.
#include <cstdint>
#include <string>
#include <vector>

namespace worldgen {

constexpr int kTicksPerQuarter = 480;
constexpr int kDrumChannel = 9; // channel 10 as musicians count

struct Note {
    int tick;
    int length;
    int key;
    int velocity;
};

struct Part {
    std::string name;
    int channel;
    int program; // General MIDI program; ignored on the drum channel
    int volume;
    int pan;
    std::vector<Note> notes;
};

struct Song {
    int bpm;
    int lengthTicks; // every track ends exactly here, so the piece loops on the bar
    std::vector<Part> parts;
};

std::vector<std::uint8_t> encodeMidi(const Song& song);

} // namespace worldgen
