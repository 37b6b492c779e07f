#pragma once

#include "platform/platform.h"

#include <QList>
#include <QQueue>
#include <QStringList>
#include <map>
#include <memory>
#include <optional>

namespace umbrith {

// The platform for tests and scripted play: a virtual clock, fed random
// draws, queued answers to every box and dialog, and logs of what was shown
// and played. A box with no queued answer, a draw with none fed, and answers
// left unused at the end are all problems that a test or script fails on.
class ScriptedPlatform : private Dialogs, private Clock, private Random, private Audio, private Display {
public:
    struct Box {
        QString kind; // "message", "input", "open", "save", "popup"
        QString title;
        QString text;
    };

    ScriptedPlatform();
    ~ScriptedPlatform() override;
    Platform& platform() { return platform_; }
    // Installs this platform as the one in force.
    void install();

    // Feeding.
    void queueAnswer(Answer answer) { answers_.enqueue(answer); }
    void queueInput(const QString& text) { inputs_.enqueue(text); }
    // "" answers as a cancel; a failure makes the dialog itself raise an error.
    void queueFile(const QString& path) { files_.enqueue(path); }
    void queueFileFailure() { files_.enqueue(std::nullopt); }
    void queueDraw(float draw) { draws_.enqueue(draw); }
    void setDisplayMode(DisplayMode mode) { mode_ = mode; }

    // The virtual clock: advancing fires every due tick in time order.
    void advance(int ms);
    qint64 now() const { return now_; }
    qint64 slept() const { return slept_; }
    // Called while the program waits for the player: scripted play runs its
    // next line there, and must make the wait end sooner or later.
    std::function<void()> onWait;

    // A piece on the named device ends by itself: its Done arrives with status 1.
    void finishPiece(const QString& device);

    // Logs.
    QList<Box> boxes;
    QStringList sounds; // "sound <path>", "<device> <command> <file>"
    // The settings of the latest file dialog.
    FileDialogSettings lastFileDialog;
    // Problems so far, and the answers and draws never used.
    QStringList problems() const;
    // The boxes, dialogs and draws that found no answer, in order.
    const QStringList& unanswered() const { return missing_; }
    void logBox(const QString& kind, const QString& title, const QString& text) { boxes.append({kind, title, text}); }

private:
    class VirtualTimer;
    class LoggingSequencer;

    Answer message(const QString& text, const QString& title, Buttons buttons, Icon icon) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
    QString openFile(const FileDialogSettings& settings) override;
    QString saveFile(const FileDialogSettings& settings) override;
    std::unique_ptr<Timer> createTimer(const QString& name, int intervalMs, std::function<void()> onTick) override;
    void sleep(int ms) override { slept_ += ms; }
    void yield() override;
    void waitWhile(const std::function<bool()>& waiting) override;
    float draw() override;
    void playSound(const QString& path) override;
    Sequencer& sequencer(const QString& name) override;
    DisplayMode current() const override { return mode_; }

    QString nextFile(const QString& kind, const FileDialogSettings& settings);

    Platform platform_;
    QQueue<Answer> answers_;
    QQueue<QString> inputs_;
    QQueue<std::optional<QString>> files_;
    QQueue<float> draws_;
    QStringList missing_;
    QList<VirtualTimer*> timers_;
    std::map<QString, std::unique_ptr<LoggingSequencer>> sequencers_;
    DisplayMode mode_{1024, 768, 32};
    qint64 now_ = 0;
    qint64 slept_ = 0;
};

} // namespace umbrith
