#include "music.h"

#include "art.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace worldgen {
namespace {

constexpr int kEighth = kTicksPerQuarter / 2;
constexpr int kBar = kTicksPerQuarter * 4;

enum class Feel { Calm, March, Battle, Dark };

struct Piece {
    const char* path;
    int bpm;
    int root;   // MIDI key of the tonic, an octave below the melody
    bool minor;
    Feel feel;
    std::vector<std::vector<int>> sections; // chord degree (0 = I) of each bar
    const char* form;                       // section letters in playing order
    int lead, harmony, bass;                // General MIDI programs
    int seed;
};

constexpr std::array<int, 7> kMajor{0, 2, 4, 5, 7, 9, 11};
constexpr std::array<int, 7> kMinor{0, 2, 3, 5, 7, 8, 10};

// Key of scale step `step` (may be negative or above 6) from the root.
int scaleKey(const Piece& p, int step)
{
    const auto& scale = p.minor ? kMinor : kMajor;
    const int octave = (step >= 0 ? step / 7 : (step - 6) / 7);
    return p.root + octave * 12 + scale[step - octave * 7];
}

// The triad on a degree; in minor the dominant gets its leading tone.
std::array<int, 3> chord(const Piece& p, int degree)
{
    std::array<int, 3> keys{scaleKey(p, degree), scaleKey(p, degree + 2), scaleKey(p, degree + 4)};
    if (p.minor && degree == 4) keys[1] += 1;
    return keys;
}

bool inChord(const Piece& p, int degree, int key)
{
    for (int k : chord(p, degree))
        if ((key - k) % 12 == 0) return true;
    return false;
}

// Rhythms of two bars in eighths, per feel.
const std::vector<std::vector<int>>& rhythms(Feel feel)
{
    static const std::vector<std::vector<int>> calm{{4, 2, 2, 4, 4}, {3, 1, 2, 2, 8}, {2, 2, 2, 2, 4, 4}, {6, 2, 4, 4}};
    static const std::vector<std::vector<int>> march{{3, 1, 2, 2, 3, 1, 4}, {2, 2, 3, 1, 4, 4}, {4, 3, 1, 4, 4}};
    static const std::vector<std::vector<int>> battle{{1, 1, 2, 1, 1, 2, 2, 2, 4}, {2, 1, 1, 2, 2, 4, 2, 2}, {3, 3, 2, 3, 3, 2}};
    static const std::vector<std::vector<int>> dark{{8, 4, 4}, {6, 2, 8}, {4, 4, 8}};
    switch (feel) {
    case Feel::Calm: return calm;
    case Feel::March: return march;
    case Feel::Battle: return battle;
    case Feel::Dark: return dark;
    }
    return calm;
}

// The melody of one section: a two-bar motif stated, answered a step
// higher, stated again, and closed on the tonic.
std::vector<Note> sectionMelody(const Piece& p, const std::vector<int>& degrees, int start, int seed)
{
    const auto& pool = rhythms(p.feel);
    const auto& rhythm = pool[hash(seed, 1, p.seed) % pool.size()];
    std::vector<int> contour; // step moves of the motif
    for (std::size_t i = 0; i < rhythm.size(); ++i) contour.push_back(static_cast<int>(hash(seed, int(i), p.seed + 7) % 5) - 2);
    std::vector<Note> notes;
    int step = 7 + 2; // start on the third above the upper tonic
    for (std::size_t phrase = 0; phrase * 2 < degrees.size(); ++phrase) {
        int tick = start + static_cast<int>(phrase) * 2 * kBar;
        const bool last = (phrase + 1) * 2 >= degrees.size();
        const int shift = phrase == 1 ? 1 : phrase == 3 ? -1 : 0;
        for (std::size_t i = 0; i < rhythm.size(); ++i) {
            const int bar = std::min<int>(static_cast<int>(degrees.size()) - 1, (tick - start) / kBar);
            const int degree = degrees[bar];
            step += contour[i] + (i == 0 ? shift : 0);
            if (step > 12) step -= 4; // turn back into the singing range
            if (step < 5) step += 4;
            // On the beat the melody leans onto the nearest chord tone.
            if ((tick - start) % kTicksPerQuarter == 0)
                for (int d : {0, -1, 1, -2, 2})
                    if (inChord(p, degree, scaleKey(p, step + d))) {
                        step += d;
                        break;
                    }
            int key = scaleKey(p, step);
            int length = rhythm[i] * kEighth;
            if (last && i + 1 == rhythm.size()) key = scaleKey(p, 7); // the phrase comes home
            notes.push_back({tick, length - kEighth / 4, key, 92 + int(hash(tick, 3, p.seed) % 12)});
            tick += length;
        }
    }
    return notes;
}

void addHarmony(const Piece& p, int degree, int tick, Part& part)
{
    const auto keys = chord(p, degree);
    switch (p.feel) {
    case Feel::Calm: { // a broken chord in eighths
        const int pattern[8] = {0, 1, 2, 1, 0, 1, 2, 1};
        for (int i = 0; i < 8; ++i) part.notes.push_back({tick + i * kEighth, kEighth, keys[pattern[i]] - 12 + (i == 2 ? 12 : 0), 62});
        break;
    }
    case Feel::Dark:
        for (int k : keys) part.notes.push_back({tick, kBar - 20, k - 12, 56});
        break;
    default: // stabs on the beats, accenting one and three
        for (int beat = 0; beat < 4; ++beat)
            for (int k : keys) part.notes.push_back({tick + beat * kTicksPerQuarter, kEighth, k - 12, beat % 2 ? 58 : 72});
    }
}

void addBass(const Piece& p, int degree, int tick, Part& part)
{
    const int root = chord(p, degree)[0] - 24, fifth = chord(p, degree)[2] - 24;
    switch (p.feel) {
    case Feel::Calm:
        part.notes.push_back({tick, 2 * kTicksPerQuarter - 30, root, 88});
        part.notes.push_back({tick + 2 * kTicksPerQuarter, 2 * kTicksPerQuarter - 30, fifth, 80});
        break;
    case Feel::Dark:
        part.notes.push_back({tick, kBar - 20, root, 90});
        break;
    case Feel::March:
        for (int beat = 0; beat < 4; ++beat) part.notes.push_back({tick + beat * kTicksPerQuarter, kEighth, beat % 2 ? fifth : root, 88});
        break;
    case Feel::Battle:
        for (int i = 0; i < 8; ++i) part.notes.push_back({tick + i * kEighth, kEighth - 20, root + (i % 4 == 3 ? 12 : 0), i % 2 ? 78 : 96});
        break;
    }
}

void addDrums(const Piece& p, int bar, int tick, bool sectionStart, Part& part)
{
    enum { Kick = 36, Stick = 37, Snare = 38, HatClosed = 42, TomLow = 45, Crash = 49, Ride = 51 };
    auto hit = [&](int at, int key, int velocity) { part.notes.push_back({tick + at, kEighth / 2, key, velocity}); };
    if (sectionStart && p.feel != Feel::Dark) hit(0, Crash, 84);
    switch (p.feel) {
    case Feel::Calm:
        for (int i = 0; i < 8; ++i) hit(i * kEighth, HatClosed, i % 2 ? 40 : 56);
        hit(0, Kick, 72);
        hit(2 * kTicksPerQuarter, Stick, 58);
        break;
    case Feel::March:
        hit(0, Kick, 90);
        hit(2 * kTicksPerQuarter, Kick, 80);
        for (int i = 0; i < 8; ++i) hit(i * kEighth, Snare, i % 2 ? 46 : 70);
        if (bar % 2) hit(7 * kEighth + kEighth / 2, Snare, 60);
        break;
    case Feel::Battle:
        for (int i = 0; i < 8; ++i) hit(i * kEighth, HatClosed, i % 2 ? 60 : 80);
        hit(0, Kick, 110);
        hit(3 * kEighth, Kick, 90);
        hit(4 * kEighth, Kick, 100);
        hit(2 * kEighth, Snare, 104);
        hit(6 * kEighth, Snare, 104);
        if (bar % 4 == 3) hit(7 * kEighth, Snare, 90);
        break;
    case Feel::Dark:
        hit(0, TomLow, 70);
        hit(5 * kEighth, TomLow, 50);
        hit(2 * kTicksPerQuarter, Ride, 36);
        break;
    }
}

Song compose(const Piece& p)
{
    Part lead{"Melody", 0, p.lead, 100, 64, {}};
    Part harmony{"Harmony", 1, p.harmony, 78, 40, {}};
    Part bass{"Bass", 2, p.bass, 96, 72, {}};
    Part drums{"Drums", kDrumChannel, 0, 80, 64, {}};
    int tick = 0, bar = 0;
    for (const char* s = p.form; *s; ++s) {
        const int index = *s - 'A';
        const auto& degrees = p.sections[index];
        // A repeated section keeps its melody, so the piece has a shape to remember.
        const auto melody = sectionMelody(p, degrees, tick, index);
        lead.notes.insert(lead.notes.end(), melody.begin(), melody.end());
        for (std::size_t b = 0; b < degrees.size(); ++b, ++bar, tick += kBar) {
            addHarmony(p, degrees[b], tick, harmony);
            addBass(p, degrees[b], tick, bass);
            addDrums(p, bar, tick, b == 0, drums);
        }
    }
    return {p.bpm, tick, {lead, harmony, bass, drums}};
}

} // namespace

std::vector<MusicFile> composeAll()
{
    // Programs: 0 piano, 24 nylon guitar, 32 acoustic bass, 33 finger bass, 34 picked bass, 38 synth bass,
    // 40 violin, 42 cello, 45 pizzicato, 46 harp, 48 strings, 52 choir, 56 trumpet, 60 horn, 61 brass,
    // 68 oboe, 71 clarinet, 73 flute, 75 pan flute, 80 square lead, 89 warm pad.
    const std::vector<Piece> pieces = {
        {"sfx/default.mid", 96, 60, false, Feel::Calm, {{0, 4, 5, 3, 0, 4, 3, 4}, {3, 4, 2, 5, 1, 4, 0, 0}}, "AABA", 73, 46, 32, 11},
        {"sfx/intro.mid", 84, 62, false, Feel::March, {{0, 3, 4, 0, 5, 3, 4, 4}, {3, 0, 1, 4, 3, 4, 0, 0}}, "AB", 60, 48, 42, 12},
        {"sfx/intro1.mid", 76, 57, true, Feel::Calm, {{0, 5, 2, 6, 0, 3, 4, 4}, {5, 6, 0, 0, 3, 4, 0, 0}}, "AB", 68, 46, 42, 13},
        {"sfx/intro2.mid", 100, 58, false, Feel::March, {{0, 4, 0, 3, 5, 3, 4, 4}, {3, 4, 5, 5, 3, 4, 0, 0}}, "AAB", 56, 48, 32, 14},
        {"sfx/battle1.mid", 150, 64, true, Feel::Battle, {{0, 0, 5, 6, 0, 0, 3, 4}, {5, 6, 0, 0, 5, 3, 4, 4}}, "AABA", 80, 48, 34, 15},
        {"sfx/battle2.mid", 140, 62, true, Feel::Battle, {{0, 6, 5, 4, 0, 6, 5, 4}, {3, 4, 0, 5, 3, 1, 4, 4}}, "AABA", 40, 48, 38, 16},
        {"sfx/battle3.mid", 160, 60, true, Feel::Battle, {{0, 5, 3, 4, 0, 5, 6, 4}, {5, 3, 0, 4, 5, 6, 4, 4}}, "ABAB", 61, 48, 33, 17},
        {"sfx/town.mid", 108, 65, false, Feel::Calm, {{0, 3, 4, 0, 0, 3, 4, 0}, {5, 1, 4, 0, 5, 1, 4, 4}}, "AABA", 71, 24, 45, 18},
        {"sfx/field.mid", 112, 67, false, Feel::March, {{0, 4, 5, 2, 3, 0, 1, 4}, {3, 4, 0, 5, 3, 4, 0, 0}}, "AABB", 75, 48, 33, 19},
        {"sfx/dungeon.mid", 72, 62, true, Feel::Dark, {{0, 0, 5, 5, 3, 3, 4, 4}, {5, 3, 0, 6, 5, 3, 4, 4}}, "ABA", 52, 89, 42, 20},
    };
    std::vector<MusicFile> files;
    for (const Piece& p : pieces) files.push_back({p.path, compose(p)});
    return files;
}

} // namespace worldgen
