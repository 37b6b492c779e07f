#include "core/misc.h"
#include "shell/mainform.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/worldmaps.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTextEdit>

namespace umbrith {
namespace {

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

TEST_F(MainFormTest, theIntroPlaysItsPieceAndShowsTenLinesThenClearsForGood) {
    writeFile("\\sfx\\intro1.mid", "MThd");
    start(0.5f);
    EXPECT_TRUE(scripted.sounds.contains("ubmid Play " + AppPath() + "\\sfx\\intro1.mid"));
    EXPECT_TRUE(visible("introframe"));
    scripted.advance(4500);
    EXPECT_EQ(text("lblintromsg"), "Welcome to Umbrith");
    scripted.advance(4500 * 9);
    EXPECT_EQ(text("lblintromsg"), "I wish you luck, and bid you safe journey in the Umbrith");
    scripted.advance(4500);
    EXPECT_EQ(text("lblintromsg"), "");
    main->findChild<QLabel*>("lblintromsg")->setText("still");
    scripted.advance(45000);
    EXPECT_EQ(text("lblintromsg"), "still");
}

TEST_F(MainFormTest, withMusicOffTheIntroDrawsNothingAndAnEndedPieceStartsNothing) {
    start();
    control<QCheckBox>("chkMusic")->setChecked(false);
    scripted.sounds.clear();
    main->StartIntro();
    scripted.finishPiece("ubmid");
    EXPECT_EQ(scripted.sounds, QStringList{"ubmid Close "});
}

TEST_F(MainFormTest, theCloseBoxEndsTheProgramOnNoToo_KeepingTheNotes) {
    writeFile("\\notes.ubc", "\"Remember the cave\"\r\n");
    start();
    scripted.queueAnswer(Answer::No);
    main->close();
    EXPECT_TRUE(ended);
    EXPECT_EQ(scripted.boxes.last().text, "Are you sure you wish to exit Umbrith?");
    EXPECT_EQ(readFile("\\notes.ubc"), "\"Remember the cave\"\r\n");
}

TEST_F(MainFormTest, theExitKeyEndsOnlyOnYes) {
    start();
    scripted.queueAnswer(Answer::No);
    press(Qt::Key_X);
    EXPECT_FALSE(ended);
    scripted.queueAnswer(Answer::Yes);
    press(Qt::Key_X);
    EXPECT_TRUE(ended);
}

TEST_F(MainFormTest, aTypedMessageFillsOnTheTimerAndSpaceClosesItWhenOut) {
    start();
    control<QAbstractButton>("optmessage(0)")->click();
    main->StartMessage("Guard", "Halt, #(Player Name)!");
    game.PlayerName = "Wren";
    EXPECT_TRUE(visible("MessageFrame"));
    EXPECT_EQ(text("lblmsgsource"), "(Guard)");
    EXPECT_TRUE(scripted.sounds.last().endsWith("\\sfx\\message.wav"));
    scripted.advance(20 * 3);
    EXPECT_EQ(text("txtmessage"), "Hal");
    press(Qt::Key_Space);
    EXPECT_TRUE(visible("MessageFrame"));
    scripted.advance(20 * 20);
    EXPECT_EQ(text("txtmessage"), "Halt, Wren!");
    press(Qt::Key_S); // a letter waits while the message stands
    EXPECT_TRUE(isTrue(game.ScreenPanelOpen));
    press(Qt::Key_Space);
    EXPECT_FALSE(visible("MessageFrame"));
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(MainFormTest, escapeHidesBothMenusAndBringsThemBack) {
    start();
    QMenu* mnuMain = control<QMenu>("mnuMain");
    QMenu* mnuHelp = control<QMenu>("mnuHelp");
    press(Qt::Key_Escape);
    EXPECT_FALSE(mnuMain->menuAction()->isVisible());
    EXPECT_FALSE(mnuHelp->menuAction()->isVisible());
    press(Qt::Key_Escape);
    EXPECT_TRUE(mnuMain->menuAction()->isVisible());
}

TEST_F(MainFormTest, theArenaPopupHoldsThePanelUntilClosedAndTheTimerNotices) {
    start();
    press(Qt::Key_B);
    QWidget* popup = main->findChild<QWidget*>("PopupBox");
    ASSERT_TRUE(popup && popup->isVisible());
    EXPECT_EQ(popup->findChild<QTextEdit*>("txtmessagepopup")->toPlainText(), "'Battle Arena' Coming Soon!");
    EXPECT_TRUE(isTrue(game.PopupOpen));
    press(Qt::Key_O); // options wait behind the popup
    EXPECT_FALSE(visible("optionsframe"));
    popup->findChild<QAbstractButton*>("cmdclosepopup")->click();
    scripted.advance(1);
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
    EXPECT_FALSE(isTrue(game.PopupOpen));
}

TEST_F(MainFormTest, playingACustomMapRunsTheGameAndTheJournalOpensAndClosesByKey) {
    startCustomGame();
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_EQ(game.PlayerName.text(), "Tester");
    EXPECT_EQ(game.CurrentLevel.text(), "field.ubm");
    EXPECT_FALSE(visible("introframe"));

    game.Journal = "Rats;Clear the cellar.;&Rats Dead";
    press(Qt::Key_J);
    EXPECT_TRUE(visible("journalframe"));
    EXPECT_EQ(text("txtJE"), "Rats -  [NOT COMPLETED]\nClear the cellar.\n");
    press(Qt::Key_C);
    EXPECT_FALSE(visible("journalframe"));
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(MainFormTest, creatingLevelsFromARunningGameAsksThenLeavesItForTheEditorAndBack) {
    startCustomGame();
    game.ItemsCarried = "/Potion";
    scripted.queueAnswer(Answer::Yes);
    control<QAction>("mnuMainCreateCustom")->trigger();
    EXPECT_EQ(scripted.boxes.last().title, "Are you sure?");
    EXPECT_FALSE(isTrue(game.GameRunning));
    EXPECT_EQ(game.ItemsCarried.text(), "");
    EXPECT_FALSE(main->isVisible());
    EXPECT_FALSE(control<QAction>("mnuMainSave")->isEnabled());

    QWidget* editor = nullptr;
    for (QWidget* form : QApplication::topLevelWidgets())
        if (form->objectName() == "LevelMaker")
            editor = form;
    ASSERT_TRUE(editor && editor->isVisible());
    editor->findChild<QAction*>("mnuMapReturn")->trigger();
    EXPECT_TRUE(main->isVisible());
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(MainFormTest, turningSoundsOffSilencesEffects) {
    start();
    press(Qt::Key_O);
    EXPECT_TRUE(visible("optionsframe"));
    control<QAbstractButton>("chkSounds")->click();
    EXPECT_FALSE(SoundsOn);
    control<QAbstractButton>("cmdDone")->click();
    EXPECT_FALSE(visible("optionsframe"));
}

} // namespace
} // namespace umbrith
