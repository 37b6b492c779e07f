#include "sound.h"

#include "bytes.h"

#include "art.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace worldgen {
namespace {

constexpr double kPi = 3.14159265358979;
using Samples = std::vector<double>;


Samples silence(double seconds) { return Samples(static_cast<std::size_t>(seconds * kSampleRate), 0.0); }

double noiseAt(std::size_t i, int seed) { return noise01(static_cast<int>(i), 0, seed) * 2 - 1; }

// A tone whose frequency glides from f0 to f1, with an exponential decay.
void addTone(Samples& s, double start, double length, double f0, double f1, double gain, double decay,
             const std::function<double(double)>& wave = [](double ph) { return std::sin(ph); })
{
    const std::size_t a = static_cast<std::size_t>(start * kSampleRate);
    const std::size_t n = static_cast<std::size_t>(length * kSampleRate);
    double phase = 0;
    for (std::size_t i = 0; i < n && a + i < s.size(); ++i) {
        const double t = double(i) / kSampleRate;
        const double f = f0 + (f1 - f0) * (t / length);
        phase += 2 * kPi * f / kSampleRate;
        const double attack = std::min(1.0, t / 0.004);
        s[a + i] += gain * attack * std::exp(-t * decay) * wave(phase);
    }
}

double square(double ph) { return std::sin(ph) > 0 ? 0.6 : -0.6; }

// Noise through a low-pass whose cut-off glides, for swishes, thumps and steps.
void addNoise(Samples& s, double start, double length, double cut0, double cut1, double gain, double decay, int seed)
{
    const std::size_t a = static_cast<std::size_t>(start * kSampleRate);
    const std::size_t n = static_cast<std::size_t>(length * kSampleRate);
    double low = 0, lower = 0;
    for (std::size_t i = 0; i < n && a + i < s.size(); ++i) {
        const double t = double(i) / kSampleRate;
        const double cut = cut0 + (cut1 - cut0) * (t / length);
        const double k = 1 - std::exp(-2 * kPi * cut / kSampleRate);
        low += k * (noiseAt(i, seed) - low);
        lower += k * (low - lower);
        const double swell = std::min(1.0, t / 0.01);
        s[a + i] += gain * swell * std::exp(-t * decay) * (low - 0.5 * lower) * 2.5;
    }
}

// A plucked string by the Karplus-Strong method.
void addPluck(Samples& s, double start, double freq, double length, double gain, int seed)
{
    const std::size_t period = static_cast<std::size_t>(kSampleRate / freq);
    Samples ring(period);
    for (std::size_t i = 0; i < period; ++i) ring[i] = noiseAt(i, seed);
    const std::size_t a = static_cast<std::size_t>(start * kSampleRate);
    const std::size_t n = static_cast<std::size_t>(length * kSampleRate);
    for (std::size_t i = 0; i < n && a + i < s.size(); ++i) {
        const std::size_t j = i % period;
        const double v = ring[j];
        ring[j] = 0.996 * 0.5 * (v + ring[(j + 1) % period]);
        s[a + i] += gain * v;
    }
}

// Short fades at both ends, so no effect starts or stops with a click, then a common level.
Samples finish(Samples s, double peak = 0.7)
{
    const std::size_t fade = kSampleRate / 200; // 5 ms
    for (std::size_t i = 0; i < fade && i < s.size(); ++i) {
        const double g = 0.5 - 0.5 * std::cos(kPi * i / fade); // raised cosine: no kink at either end
        s[i] *= g;
        s[s.size() - 1 - i] *= g;
    }
    double top = 1e-9;
    for (double v : s) top = std::max(top, std::abs(v));
    for (double& v : s) v *= peak / top;
    return s;
}

Samples chime(const std::vector<double>& notes, double step, double length, double decay)
{
    Samples s = silence(length);
    for (std::size_t i = 0; i < notes.size(); ++i) {
        addTone(s, i * step, length - i * step, notes[i], notes[i], 0.6, decay);
        addTone(s, i * step, length - i * step, notes[i] * 2.01, notes[i] * 2.01, 0.15, decay * 1.6); // a bell's overtone
    }
    return s;
}

} // namespace

std::vector<std::uint8_t> encodeWav(const std::vector<double>& samples)
{
    std::vector<std::uint8_t> out{'R', 'I', 'F', 'F'};
    const unsigned dataBytes = static_cast<unsigned>(samples.size() * 2);
    put32le(out, 36 + dataBytes);
    out.insert(out.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
    put32le(out, 16);
    put16le(out, 1); // PCM
    put16le(out, 1); // mono
    put32le(out, kSampleRate);
    put32le(out, kSampleRate * 2);
    put16le(out, 2);
    put16le(out, 16);
    out.insert(out.end(), {'d', 'a', 't', 'a'});
    put32le(out, dataBytes);
    for (double v : samples) {
        const int q = static_cast<int>(std::lround(std::clamp(v, -1.0, 1.0) * 32767));
        put16le(out, static_cast<unsigned>(q) & 0xFFFF);
    }
    return out;
}

std::vector<SoundFile> synthesiseAll()
{
    std::vector<SoundFile> files;
    files.push_back({"sfx/message.wav", finish(chime({1318.5, 1760.0}, 0.09, 0.45, 7), 0.5)});
    files.push_back({"sfx/shop.wav", finish(chime({1975.5, 2637.0, 1975.5, 3136.0}, 0.06, 0.5, 9), 0.55)});

    Samples click = silence(0.04);
    addTone(click, 0, 0.04, 2200, 1800, 0.8, 120);
    files.push_back({"sfx/click.wav", finish(click, 0.45)});

    Samples place = silence(0.12);
    addTone(place, 0, 0.12, 320, 140, 0.9, 35);
    addNoise(place, 0, 0.05, 3000, 800, 0.3, 60, 1);
    files.push_back({"sfx/place.wav", finish(place, 0.55)});

    Samples undo = silence(0.18);
    addTone(undo, 0, 0.18, 900, 300, 0.5, 12, square);
    files.push_back({"sfx/undo.wav", finish(undo, 0.4)});

    Samples sword = silence(0.4);
    addNoise(sword, 0, 0.22, 600, 5000, 0.9, 10, 2);
    addTone(sword, 0.14, 0.26, 3150, 3100, 0.25, 14);
    addTone(sword, 0.14, 0.26, 4720, 4700, 0.12, 18);
    files.push_back({"sfx/sword.wav", finish(sword)});

    Samples bow = silence(0.45);
    addPluck(bow, 0, 196, 0.45, 0.8, 3);
    addNoise(bow, 0.05, 0.35, 4000, 1200, 0.35, 8, 4);
    files.push_back({"sfx/bow.wav", finish(bow)});

    Samples punch = silence(0.22);
    addTone(punch, 0, 0.22, 140, 50, 1.0, 18);
    addNoise(punch, 0, 0.06, 2500, 400, 0.6, 40, 5);
    files.push_back({"sfx/punch.wav", finish(punch, 0.8)});

    Samples heal = silence(0.9);
    const double arpeggio[] = {1046.5, 1318.5, 1568.0, 2093.0};
    for (int i = 0; i < 4; ++i) addTone(heal, i * 0.09, 0.9 - i * 0.09, arpeggio[i], arpeggio[i] * 1.003, 0.4, 4.5);
    for (int i = 0; i < 6; ++i) addTone(heal, 0.3 + i * 0.07, 0.25, 3000 + 400 * (i % 3), 3200 + 400 * (i % 3), 0.08, 14);
    files.push_back({"sfx/heal.wav", finish(heal, 0.55)});

    Samples damage = silence(0.4);
    addTone(damage, 0, 0.4, 420, 90, 0.6, 6, square);
    addNoise(damage, 0, 0.3, 5000, 600, 0.6, 9, 6);
    files.push_back({"sfx/damage.wav", finish(damage, 0.7)});

    Samples flee = silence(0.6);
    for (int i = 0; i < 4; ++i) addNoise(flee, i * 0.1, 0.08, 1800, 700, 0.6 - i * 0.1, 30, 7 + i); // hurried steps
    addNoise(flee, 0.05, 0.55, 800, 6000, 0.4, 5, 11);
    files.push_back({"sfx/flee.wav", finish(flee, 0.6)});
    return files;
}

} // namespace worldgen
