#include "platform/real/sdlaudio.h"

#include "platform/error.h"
#include "platform/files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMetaObject>
#include <SDL.h>
#include <SDL_mixer.h>
#include <cstdio>

namespace umbrith {

namespace {

// SDL_mixer plays one piece at a time; the device that started it hears its end.
SdlAudio* liveAudio = nullptr;
void* playingDevice = nullptr;
int playGeneration = 0;

} // namespace

class SdlAudio::Device : public Sequencer {
public:
    explicit Device(bool ready) : ready_(ready) {}
    ~Device() override { release(); }

    void command(const QString& command) override {
        if (command == u"Open") {
            release();
            if (!fileExists(fileName))
                err::raise(err::FileNotFound);
            if (ready_) {
                music_ = Mix_LoadMUS(nativePath(fileName).toLocal8Bit().constData());
                if (!music_)
                    throw RuntimeError(263, QStringLiteral("The specified device is not open or is not recognized by MCI."));
            }
        } else if (command == u"Play") {
            if (music_ && Mix_PlayMusic(music_, 0) == 0) {
                playingDevice = this;
                generation_ = ++playGeneration;
            }
        } else if (command == u"Pause") {
            if (playingDevice == this)
                Mix_PauseMusic();
        } else if (command == u"Stop") {
            halt();
        } else if (command == u"Close") {
            release();
        }
    }

    // Called on the main thread when SDL says the piece ended.
    void ended(int generation) {
        if (playingDevice != this || generation != generation_)
            return;
        playingDevice = nullptr;
        if (onDone)
            onDone(1);
    }

private:
    void halt() {
        if (playingDevice == this) {
            playingDevice = nullptr; // a halted piece did not end by itself
            Mix_HaltMusic();
        }
    }
    void release() {
        halt();
        if (music_)
            Mix_FreeMusic(music_);
        music_ = nullptr;
    }

    bool ready_;
    Mix_Music* music_ = nullptr;
    int generation_ = 0;
};

SdlAudio::SdlAudio(const QString& soundFont) {
    if (SDL_Init(SDL_INIT_AUDIO) != 0)
        return;
    Mix_Init(MIX_INIT_MID);
    // Without its soundfont FluidSynth plays nothing: say so once and keep the
    // game running with silent music.
    const bool haveSoundFont = QFileInfo(soundFont).isFile();
    if (haveSoundFont)
        Mix_SetSoundFonts(soundFont.toLocal8Bit().constData());
    else
        std::fprintf(stderr, "umbrith: the soundfont \"%s\" is missing; music stays silent.\n",
                     soundFont.toLocal8Bit().constData());
    if (Mix_OpenAudio(44100, MIX_DEFAULT_FORMAT, 2, 1024) != 0)
        return;
    Mix_AllocateChannels(16);
    ready_ = true;
    musicReady_ = haveSoundFont;
    liveAudio = this;
    Mix_HookMusicFinished([] {
        // SDL's audio thread: hand the end over to the main thread.
        void* device = playingDevice;
        int generation = playGeneration;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [device, generation] {
                if (!liveAudio)
                    return;
                for (auto& [name, candidate] : liveAudio->devices_)
                    if (candidate.get() == device)
                        candidate->ended(generation);
            },
            Qt::QueuedConnection);
    });
}

SdlAudio::~SdlAudio() {
    liveAudio = nullptr;
    devices_.clear();
    for (auto& [path, chunk] : sounds_)
        Mix_FreeChunk(chunk);
    if (ready_) {
        Mix_HookMusicFinished(nullptr);
        Mix_CloseAudio();
        Mix_Quit();
    }
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SdlAudio::playSound(const QString& path) {
    if (!ready_ || !fileExists(path))
        return;
    Mix_Chunk*& chunk = sounds_[path];
    if (!chunk)
        chunk = Mix_LoadWAV(nativePath(path).toLocal8Bit().constData());
    if (chunk)
        Mix_PlayChannel(-1, chunk, 0);
}

Sequencer& SdlAudio::sequencer(const QString& name) {
    auto& device = devices_[name];
    if (!device)
        device = std::make_unique<Device>(musicReady_);
    return *device;
}

} // namespace umbrith
