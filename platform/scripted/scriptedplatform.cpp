#include "platform/scripted/scriptedplatform.h"

#include "platform/error.h"
#include "platform/files.h"

#include <QCoreApplication>

namespace umbrith {

class ScriptedPlatform::VirtualTimer : public Timer {
public:
    VirtualTimer(ScriptedPlatform& owner, QString name, int interval, std::function<void()> onTick)
        : owner_(owner), name_(std::move(name)), interval_(interval), onTick_(std::move(onTick)) {
        owner_.timers_.append(this);
    }
    ~VirtualTimer() override { owner_.timers_.removeOne(this); }

    void setInterval(int ms) override {
        interval_ = ms;
        due_ = owner_.now_ + ms;
    }
    int interval() const override { return interval_; }
    void setEnabled(bool enabled) override {
        if (enabled && !enabled_)
            due_ = owner_.now_ + interval_;
        enabled_ = enabled;
    }
    bool enabled() const override { return enabled_; }

    bool dueBy(qint64 time) const { return enabled_ && interval_ > 0 && due_ <= time; }
    qint64 due() const { return due_; }
    // Runs one tick; a tick whose handler is still running is passed over.
    void tick() {
        owner_.now_ = std::max(owner_.now_, due_);
        due_ += interval_;
        if (ticking_)
            return;
        ticking_ = true;
        onTick_();
        ticking_ = false;
    }

private:
    ScriptedPlatform& owner_;
    QString name_;
    int interval_;
    std::function<void()> onTick_;
    bool enabled_ = false;
    bool ticking_ = false;
    qint64 due_ = 0;
};

class ScriptedPlatform::LoggingSequencer : public Sequencer {
public:
    LoggingSequencer(ScriptedPlatform& owner, QString name) : owner_(owner), name_(std::move(name)) {}

    void command(const QString& command) override {
        owner_.sounds.append(name_ + u' ' + command + u' ' + fileName);
        if (command == u"Open") {
            if (!fileExists(fileName))
                err::raise(err::FileNotFound);
            open_ = true;
        } else if (command == u"Play" && open_) {
            playing_ = true;
        } else if (command == u"Pause" || command == u"Stop") {
            playing_ = false;
        } else if (command == u"Close") {
            open_ = playing_ = false;
        }
    }

    void finish() {
        if (!playing_)
            return;
        playing_ = false;
        if (onDone)
            onDone(1);
    }

private:
    ScriptedPlatform& owner_;
    QString name_;
    bool open_ = false;
    bool playing_ = false;
};

ScriptedPlatform::ScriptedPlatform() : platform_{*this, *this, *this, *this, *this} {}

ScriptedPlatform::~ScriptedPlatform() {
    if (installedPlatform() == &platform_)
        installPlatform(nullptr);
}

void ScriptedPlatform::install() { installPlatform(&platform_); }

void ScriptedPlatform::advance(int ms) {
    const qint64 target = now_ + ms;
    for (;;) {
        VirtualTimer* next = nullptr;
        for (VirtualTimer* timer : timers_)
            if (timer->dueBy(target) && (!next || timer->due() < next->due()))
                next = timer;
        if (!next)
            break;
        next->tick();
    }
    now_ = std::max(now_, target);
}

void ScriptedPlatform::finishPiece(const QString& device) {
    auto found = sequencers_.find(device);
    if (found != sequencers_.end())
        found->second->finish();
}

QStringList ScriptedPlatform::problems() const {
    QStringList result = missing_;
    if (!answers_.isEmpty())
        result << QStringLiteral("%1 answer(s) to boxes left unused").arg(answers_.size());
    if (!inputs_.isEmpty())
        result << QStringLiteral("%1 input answer(s) left unused").arg(inputs_.size());
    if (!files_.isEmpty())
        result << QStringLiteral("%1 file answer(s) left unused").arg(files_.size());
    if (!draws_.isEmpty())
        result << QStringLiteral("%1 random draw(s) left unused").arg(draws_.size());
    return result;
}

Answer ScriptedPlatform::message(const QString& text, const QString& title, Buttons buttons, Icon) {
    logBox(QStringLiteral("message"), title, text);
    if (buttons == Buttons::Ok) {
        // A box with one button needs no answer, but takes a queued "ok".
        if (!answers_.isEmpty() && answers_.head() == Answer::Ok)
            answers_.dequeue();
        return Answer::Ok;
    }
    if (answers_.isEmpty()) {
        missing_ << QStringLiteral("no answer for the box \"%1\": %2").arg(title, text);
        return buttons == Buttons::OkCancel ? Answer::Cancel : Answer::No;
    }
    Answer answer = answers_.dequeue();
    bool fits = buttons == Buttons::OkCancel ? (answer == Answer::Ok || answer == Answer::Cancel)
                                             : (answer == Answer::Yes || answer == Answer::No ||
                                                (answer == Answer::Cancel && buttons == Buttons::YesNoCancel));
    if (!fits)
        missing_ << QStringLiteral("the answer does not fit the box \"%1\": %2").arg(title, text);
    return answer;
}

QString ScriptedPlatform::input(const QString& prompt, const QString& title, const QString&) {
    logBox(QStringLiteral("input"), title, prompt);
    if (inputs_.isEmpty()) {
        missing_ << QStringLiteral("no answer for the input box \"%1\": %2").arg(title, prompt);
        return QString();
    }
    return inputs_.dequeue();
}

QString ScriptedPlatform::nextFile(const QString& kind, const FileDialogSettings& settings) {
    logBox(kind, settings.title, settings.filter);
    lastFileDialog = settings;
    if (files_.isEmpty()) {
        missing_ << QStringLiteral("no answer for the file dialog \"%1\"").arg(settings.title);
        return QString();
    }
    std::optional<QString> answer = files_.dequeue();
    if (!answer)
        throw RuntimeError(32755, QStringLiteral("The common dialog function failed"));
    return *answer;
}

QString ScriptedPlatform::openFile(const FileDialogSettings& settings) { return nextFile(QStringLiteral("open"), settings); }

QString ScriptedPlatform::saveFile(const FileDialogSettings& settings) { return nextFile(QStringLiteral("save"), settings); }

std::unique_ptr<Timer> ScriptedPlatform::createTimer(const QString& name, int intervalMs, std::function<void()> onTick) {
    return std::make_unique<VirtualTimer>(*this, name, intervalMs, std::move(onTick));
}

void ScriptedPlatform::yield() {
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
}

void ScriptedPlatform::waitWhile(const std::function<bool()>& waiting) {
    while (waiting()) {
        yield();
        if (!onWait) {
            missing_ << QStringLiteral("the program waits for the player and nothing answers");
            return;
        }
        onWait();
    }
}

float ScriptedPlatform::draw() {
    if (draws_.isEmpty()) {
        missing_ << QStringLiteral("no random draw fed");
        return 0.0f;
    }
    return draws_.dequeue();
}

void ScriptedPlatform::playSound(const QString& path) { sounds.append(QStringLiteral("sound ") + path); }

Sequencer& ScriptedPlatform::sequencer(const QString& name) {
    auto& slot = sequencers_[name];
    if (!slot)
        slot = std::make_unique<LoggingSequencer>(*this, name);
    return *slot;
}

} // namespace umbrith
