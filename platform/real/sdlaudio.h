#pragma once

#include "platform/platform.h"

#include <map>
#include <memory>

struct Mix_Chunk;

namespace umbrith {

// Sound effects and the three music devices on SDL_mixer. MIDI plays through
// FluidSynth with the TimGM6mb soundfont. With no sound card everything is
// silent, but the devices still check their files and report their errors.
class SdlAudio : public Audio {
public:
    SdlAudio();
    ~SdlAudio() override;
    void playSound(const QString& path) override;
    Sequencer& sequencer(const QString& name) override;

private:
    class Device;
    bool ready_ = false;
    std::map<QString, std::unique_ptr<Device>> devices_;
    std::map<QString, Mix_Chunk*> sounds_;
};

} // namespace umbrith
