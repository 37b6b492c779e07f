#include "midi.h"

#include <algorithm>
#include <tuple>

namespace worldgen {
namespace {

using Bytes = std::vector<std::uint8_t>;

void putVarLen(Bytes& out, unsigned value)
{
    std::uint8_t groups[5];
    int n = 0;
    do {
        groups[n++] = value & 0x7F;
        value >>= 7;
    } while (value);
    while (n--) out.push_back(groups[n] | (n ? 0x80 : 0));
}

void putBig(Bytes& out, unsigned value, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i) out.push_back((value >> (8 * i)) & 0xFF);
}

struct Event {
    int tick;
    int order; // at one tick: settings first, then note-offs, then note-ons
    Bytes data;
};

void putMeta(std::vector<Event>& events, int tick, std::uint8_t type, const Bytes& payload)
{
    Bytes data{0xFF, type};
    putVarLen(data, static_cast<unsigned>(payload.size()));
    data.insert(data.end(), payload.begin(), payload.end());
    events.push_back({tick, 0, data});
}

Bytes trackChunk(std::vector<Event> events, int endTick)
{
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return std::tie(a.tick, a.order) < std::tie(b.tick, b.order); });
    Bytes body;
    int last = 0;
    for (const Event& e : events) {
        putVarLen(body, e.tick - last);
        body.insert(body.end(), e.data.begin(), e.data.end());
        last = e.tick;
    }
    putVarLen(body, endTick - last);
    body.insert(body.end(), {0xFF, 0x2F, 0x00});
    Bytes chunk{'M', 'T', 'r', 'k'};
    putBig(chunk, static_cast<unsigned>(body.size()), 4);
    chunk.insert(chunk.end(), body.begin(), body.end());
    return chunk;
}

} // namespace

std::vector<std::uint8_t> encodeMidi(const Song& song)
{
    Bytes out{'M', 'T', 'h', 'd'};
    putBig(out, 6, 4);
    putBig(out, 1, 2);
    putBig(out, static_cast<unsigned>(song.parts.size() + 1), 2);
    putBig(out, kTicksPerQuarter, 2);

    std::vector<Event> tempo;
    Bytes micros;
    putBig(micros, 60000000u / song.bpm, 3);
    putMeta(tempo, 0, 0x03, {'T', 'e', 'm', 'p', 'o'});
    putMeta(tempo, 0, 0x51, micros);
    putMeta(tempo, 0, 0x58, {4, 2, 24, 8});
    Bytes chunk = trackChunk(tempo, song.lengthTicks);
    out.insert(out.end(), chunk.begin(), chunk.end());

    for (const Part& part : song.parts) {
        std::vector<Event> events;
        putMeta(events, 0, 0x03, Bytes(part.name.begin(), part.name.end()));
        const std::uint8_t ch = static_cast<std::uint8_t>(part.channel);
        if (part.channel != kDrumChannel) events.push_back({0, 0, {std::uint8_t(0xC0 | ch), std::uint8_t(part.program)}});
        events.push_back({0, 0, {std::uint8_t(0xB0 | ch), 7, std::uint8_t(part.volume)}});
        events.push_back({0, 0, {std::uint8_t(0xB0 | ch), 10, std::uint8_t(part.pan)}});
        for (const Note& n : part.notes) {
            const int end = std::min(n.tick + n.length, song.lengthTicks);
            if (n.tick >= end) continue;
            events.push_back({n.tick, 2, {std::uint8_t(0x90 | ch), std::uint8_t(n.key), std::uint8_t(n.velocity)}});
            events.push_back({end, 1, {std::uint8_t(0x80 | ch), std::uint8_t(n.key), 0}});
        }
        chunk = trackChunk(std::move(events), song.lengthTicks);
        out.insert(out.end(), chunk.begin(), chunk.end());
    }
    return out;
}

} // namespace worldgen
