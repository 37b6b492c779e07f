#pragma once

#include "world/movement.h"

#include <QStringList>

namespace umbrith {

// The screen's side of a step, written down as it is asked for.
class RecordingScreen : public WorldScreen {
public:
    explicit RecordingScreen(WorldState& world) : world_(world) {}
    QStringList calls;

    void UpdateLevel(double dx, double dy) override {
        world_.PlayerTwipX += dx;
        world_.PlayerTwipY += dy;
        calls << QStringLiteral("UpdateLevel %1 %2").arg(dx).arg(dy);
    }
    void Changemap(QString mapPath, bool, QString location) override {
        calls << "Changemap " + mapPath + " " + location;
    }
    void CheckEvents(const Value& entering, const Value& x, const Value& y, const QString& events) override {
        calls << "CheckEvents " + entering.text() + " " + x.text() + " " + y.text() + " " + events;
    }
    void StartMessage(const QString& source, const QString& text) override { calls << "StartMessage " + source + " " + text; }
    void PauseEvents() override { calls << "PauseEvents"; }
    void ShowPopup(const QString& text, const QString& title) override { calls << "Popup " + title + ": " + text; }

private:
    WorldState& world_;
};

} // namespace umbrith
