#pragma once

#include "shell/mainform.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTextEdit>
#include <memory>

namespace umbrith {

// Main loaded offscreen over the scripted platform, with the shortcuts the
// form tests share.
class MainFormTest : public ScriptedTest {
protected:
    void TearDown() override {
        main.reset();
        ScriptedTest::TearDown();
    }

    // Loads Main the way the program does; its intro draws once.
    void start(float introDraw = 0.5f) {
        scripted.queueDraw(introDraw);
        main = std::make_unique<Main>(game);
        QObject::connect(main.get(), &Main::programEnded, [this] { ended = true; });
        // Popups are logged with the boxes, as scripted play logs them.
        QObject::connect(main.get(), &Main::popupShown, [this](const QString& title, const QString& text) {
            scripted.logBox(QStringLiteral("popup"), title, text);
        });
        main->show();
    }

    // Starts the game on a one-map custom level, as "Play Custom Levels" does.
    void startCustomGame() {
        testmaps::writeTestTileset();
        testmaps::TestMap(18, 17).write("\\maps\\field.ubm");
        start();
        scripted.queueFile(AppPath() + "\\maps\\field.ubm");
        press(Qt::Key_P);
    }

    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(main->findChild<QWidget*>("background"), &event);
    }

    template <typename T = QWidget> T* control(const char* name) {
        T* found = main->findChild<T*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QString text(const char* name) {
        if (auto* label = main->findChild<QLabel*>(QLatin1String(name)))
            return label->text();
        return control<QTextEdit>(name)->toPlainText();
    }

    bool visible(const char* name) { return control(name)->isVisible(); }

    GameRecord game;
    std::unique_ptr<Main> main;
    bool ended = false;
};

} // namespace umbrith
