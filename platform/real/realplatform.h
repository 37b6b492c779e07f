#pragma once

#include "platform/platform.h"

#include <memory>

namespace umbrith {

// The platform of the running program: Qt dialogs and timers, SDL_mixer for
// sound effects and music (MIDI through FluidSynth), a clock-seeded generator.
class RealPlatform {
public:
    // Music plays through the General MIDI soundfont at `soundFont`.
    explicit RealPlatform(const QString& soundFont);
    ~RealPlatform();
    RealPlatform(const RealPlatform&) = delete;
    RealPlatform& operator=(const RealPlatform&) = delete;
    Platform& platform();
    void install();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace umbrith
