#pragma once

#include "platform/platform.h"

#include <map>
#include <memory>

struct Mix_Chunk;

namespace umbrith {

// Sound effects and the three music devices on SDL_mixer. MIDI plays through
// FluidSynth with a General MIDI soundfont. With no sound card, or with no
// soundfont, the music is silent, but the devices still check their files and
// report their errors.
class SdlAudio : public Audio {
public:
    explicit SdlAudio(const QString& soundFont);
    ~SdlAudio() override;
    void playSound(const QString& path) override;
    Sequencer& sequencer(const QString& name) override;

private:
    class Device;
    bool ready_ = false;
    bool musicReady_ = false;
    std::map<QString, std::unique_ptr<Device>> devices_;
    std::map<QString, Mix_Chunk*> sounds_;
};

} // namespace umbrith
