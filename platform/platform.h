#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace umbrith {

// The outside world, behind one interface per concern. The program installs
// the real platform; tests and scripted play install the scripted one, whose
// clock is virtual and whose dialogs, draws and answers are fed in.

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Information, Exclamation, Critical, Question };
enum class Answer { Ok, Cancel, Yes, No };

struct FileDialogSettings {
    QString title;
    QString fileName;
    QString initialFolder;
    QString filter; // "Umbrith Maps (*.ubm)|*.ubm"
    bool overwritePrompt = true;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer message(const QString& text, const QString& title, Buttons buttons, Icon icon) = 0;
    // The text entered; "" when cancelled.
    virtual QString input(const QString& prompt, const QString& title, const QString& initial) = 0;
    // The chosen full path; "" when cancelled. A failing dialog raises a RuntimeError.
    virtual QString openFile(const FileDialogSettings& settings) = 0;
    virtual QString saveFile(const FileDialogSettings& settings) = 0;
};

// A repeating timer. Disabled timers keep their interval; enabling restarts the count.
class Timer {
public:
    virtual ~Timer() = default;
    virtual void setInterval(int ms) = 0;
    virtual int interval() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual bool enabled() const = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual std::unique_ptr<Timer> createTimer(const QString& name, int intervalMs, std::function<void()> onTick) = 0;
    // Blocks the whole program for a while; timers do not fire meanwhile.
    virtual void sleep(int ms) = 0;
    // Runs pending events, so timers can fire inside a long operation.
    virtual void yield() = 0;
    // Runs events until `waiting` turns false: the program waits for the
    // player (a form shown modelessly whose answer it needs).
    virtual void waitWhile(const std::function<bool()>& waiting) = 0;
};

class Random {
public:
    virtual ~Random() = default;
    // One uniform draw in [0, 1) at single precision.
    virtual float draw() = 0;
};

// A music device with the commands "Open", "Play", "Pause", "Stop", "Close".
// When a piece ends by itself, onDone gets status 1.
class Sequencer {
public:
    virtual ~Sequencer() = default;
    QString fileName;
    std::function<void(int status)> onDone;
    // Raises a RuntimeError when the command fails (no such file, not music).
    virtual void command(const QString& command) = 0;
};

class Audio {
public:
    virtual ~Audio() = default;
    // Plays a wave file asynchronously; a missing file is silent.
    virtual void playSound(const QString& path) = 0;
    // The named device: "ubmid", "ubmid1" or "ubmid2".
    virtual Sequencer& sequencer(const QString& name) = 0;
};

struct DisplayMode {
    int width = 0;
    int height = 0;
    int depth = 0;
};

class Display {
public:
    virtual ~Display() = default;
    virtual DisplayMode current() const = 0;
};

struct Platform {
    Dialogs& dialogs;
    Clock& clock;
    Random& random;
    Audio& audio;
    Display& display;
};

// The installed platform; installing replaces the former one.
Platform& platform();
void installPlatform(Platform* platform);
Platform* installedPlatform();

} // namespace umbrith
