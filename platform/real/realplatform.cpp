#include "platform/real/realplatform.h"

#include "platform/real/qtdialogs.h"
#include "platform/real/sdlaudio.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <random>

namespace umbrith {

namespace {

class QtTimer : public Timer {
public:
    QtTimer(int interval, std::function<void()> onTick) {
        timer_.setInterval(interval);
        QObject::connect(&timer_, &QTimer::timeout, std::move(onTick));
    }
    void setInterval(int ms) override { timer_.setInterval(ms); }
    int interval() const override { return timer_.interval(); }
    void setEnabled(bool enabled) override {
        if (enabled && !timer_.isActive() && timer_.interval() > 0)
            timer_.start();
        else if (!enabled)
            timer_.stop();
    }
    bool enabled() const override { return timer_.isActive(); }

private:
    QTimer timer_;
};

class RealClock : public Clock {
public:
    std::unique_ptr<Timer> createTimer(const QString&, int intervalMs, std::function<void()> onTick) override {
        return std::make_unique<QtTimer>(intervalMs, std::move(onTick));
    }
    void sleep(int ms) override { QThread::msleep(ms); }
    void yield() override { QCoreApplication::processEvents(); }
    // A moment's rest between looks keeps the wait from spinning the processor.
    void waitWhile(const std::function<bool()>& waiting) override {
        while (waiting()) {
            QCoreApplication::processEvents();
            QThread::msleep(10);
        }
    }
};

class RealRandom : public Random {
public:
    // 24 random bits: every draw is a single-precision value below 1.
    float draw() override { return float(engine_() >> 8) * (1.0f / 16777216.0f); }

private:
    std::mt19937 engine_{uint32_t(QDateTime::currentMSecsSinceEpoch())};
};

class RealDisplay : public Display {
public:
    DisplayMode current() const override {
        QScreen* screen = QGuiApplication::primaryScreen();
        if (!screen)
            return {};
        return {screen->size().width(), screen->size().height(), screen->depth()};
    }
};

} // namespace

struct RealPlatform::Parts {
    explicit Parts(const QString& soundFont) : audio(soundFont) {}
    QtDialogs dialogs;
    RealClock clock;
    RealRandom random;
    SdlAudio audio;
    RealDisplay display;
    Platform platform{dialogs, clock, random, audio, display};
};

RealPlatform::RealPlatform(const QString& soundFont) : parts_(std::make_unique<Parts>(soundFont)) {}

RealPlatform::~RealPlatform() {
    if (installedPlatform() == &parts_->platform)
        installPlatform(nullptr);
}

Platform& RealPlatform::platform() { return parts_->platform; }

void RealPlatform::install() { installPlatform(&parts_->platform); }

} // namespace umbrith
