// The music and the effects: well-formed files the sequencer and the sound
// player accept, pieces of sensible length that loop on a bar line, and
// effects that start and end in silence.
#include "midi.h"
#include "sound.h"
#include "worldgen_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace worldgen::test {
namespace {

struct ParsedTrack {
    long endTick = 0;
    std::set<int> channels;
    int unmatchedNotes = 0;
    int noteCount = 0;
};

struct ParsedMidi {
    int format = -1, division = 0;
    unsigned tempo = 500000;
    std::vector<ParsedTrack> tracks;
};

// A reader of its own, so the test doesn't trust the writer's view of the format.
ParsedMidi parseMidi(const std::vector<std::uint8_t>& b)
{
    ParsedMidi m;
    EXPECT_EQ(std::string(b.begin(), b.begin() + 4), "MThd");
    EXPECT_EQ(be(b, 4, 4), 6u);
    m.format = static_cast<int>(be(b, 8, 2));
    const unsigned count = be(b, 10, 2);
    m.division = static_cast<int>(be(b, 12, 2));
    std::size_t pos = 14;
    for (unsigned t = 0; t < count; ++t) {
        EXPECT_EQ(std::string(b.begin() + pos, b.begin() + pos + 4), "MTrk");
        const std::size_t end = pos + 8 + be(b, pos + 4, 4);
        pos += 8;
        ParsedTrack track;
        std::map<std::pair<int, int>, int> open;
        bool ended = false;
        std::uint8_t status = 0;
        while (pos < end) {
            unsigned delta = 0;
            std::uint8_t c;
            do {
                c = b[pos++];
                delta = (delta << 7) | (c & 0x7F);
            } while (c & 0x80);
            track.endTick += delta;
            EXPECT_FALSE(ended) << "events after end of track";
            if (b[pos] & 0x80) status = b[pos++];
            if (status == 0xFF) {
                const std::uint8_t type = b[pos++];
                const unsigned len = b[pos++];
                if (type == 0x51) m.tempo = be(b, pos, 3);
                if (type == 0x2F) ended = true;
                pos += len;
                continue;
            }
            const int kind = status & 0xF0, ch = status & 0x0F;
            track.channels.insert(ch);
            if (kind == 0xC0 || kind == 0xD0) {
                ++pos;
                continue;
            }
            const int key = b[pos], velocity = b[pos + 1];
            pos += 2;
            if (kind == 0x90 && velocity > 0) ++open[{ch, key}], ++track.noteCount;
            if (kind == 0x80 || (kind == 0x90 && velocity == 0)) --open[{ch, key}];
        }
        EXPECT_TRUE(ended) << "track " << t << " has no end-of-track";
        for (const auto& [note, n] : open) track.unmatchedNotes += std::abs(n);
        m.tracks.push_back(track);
        pos = end;
    }
    EXPECT_EQ(pos, b.size());
    return m;
}

TEST(WorldgenSound, MusicParsesAndLoopsOnABarLine)
{
    int pieces = 0;
    for (const auto& [path, b] : generated()) {
        if (path.substr(path.size() - 4) != ".mid") continue;
        ++pieces;
        SCOPED_TRACE(path);
        const ParsedMidi m = parseMidi(b);
        EXPECT_EQ(m.format, 1);
        EXPECT_EQ(m.division, kTicksPerQuarter);
        ASSERT_GE(m.tracks.size(), 5u); // tempo, melody, harmony, bass, drums
        const long end = m.tracks[0].endTick;
        EXPECT_EQ(end % (4 * m.division), 0) << "ends inside a bar";
        bool drums = false;
        for (const ParsedTrack& t : m.tracks) {
            EXPECT_EQ(t.endTick, end) << "tracks end at different ticks, so the loop would stutter";
            EXPECT_EQ(t.unmatchedNotes, 0);
            drums = drums || (t.channels.count(kDrumChannel) && t.noteCount > 0);
        }
        EXPECT_TRUE(drums);
        for (std::size_t i = 1; i < m.tracks.size(); ++i) EXPECT_GT(m.tracks[i].noteCount, 16);
        const double seconds = end / double(m.division) * m.tempo / 1e6;
        EXPECT_GE(seconds, 30);
        EXPECT_LE(seconds, 90);
    }
    EXPECT_GE(pieces, 10);
}

TEST(WorldgenSound, EffectsAreShortCleanPcm)
{
    int effects = 0;
    for (const auto& [path, b] : generated()) {
        if (path.substr(path.size() - 4) != ".wav") continue;
        ++effects;
        SCOPED_TRACE(path);
        ASSERT_GE(b.size(), 44u);
        EXPECT_EQ(std::string(b.begin(), b.begin() + 4), "RIFF");
        EXPECT_EQ(le(b, 4, 4), b.size() - 8);
        EXPECT_EQ(std::string(b.begin() + 8, b.begin() + 16), "WAVEfmt ");
        EXPECT_EQ(le(b, 20, 2), 1u);  // PCM
        EXPECT_EQ(le(b, 22, 2), 1u);  // mono
        EXPECT_EQ(le(b, 24, 4), 22050u);
        EXPECT_EQ(le(b, 28, 4), 44100u);
        EXPECT_EQ(le(b, 34, 2), 16u);
        EXPECT_EQ(std::string(b.begin() + 36, b.begin() + 40), "data");
        const unsigned dataBytes = le(b, 40, 4);
        ASSERT_EQ(dataBytes + 44, b.size());
        const std::size_t n = dataBytes / 2;
        auto sample = [&](std::size_t i) { return static_cast<std::int16_t>(le(b, 44 + 2 * i, 2)); };
        EXPECT_LT(n, 2u * 22050) << "an effect should be short";
        // No click: the first and last few milliseconds stay near silence.
        for (std::size_t i = 0; i < 20; ++i) {
            EXPECT_LT(std::abs(sample(i)), 2500) << "start " << i;
            EXPECT_LT(std::abs(sample(n - 1 - i)), 2500) << "end " << i;
        }
        EXPECT_LT(std::abs(sample(0)), 300);
        EXPECT_LT(std::abs(sample(n - 1)), 300);
        int peak = 0;
        for (std::size_t i = 0; i < n; ++i) peak = std::max(peak, std::abs(int(sample(i))));
        EXPECT_GT(peak, 8000) << "audible";
        EXPECT_LT(peak, 32767) << "not clipped";
    }
    EXPECT_GE(effects, 11);
}

} // namespace
} // namespace worldgen::test
