// Main's one key handler: every key of its controls comes here first.
#include "shell/mainform.h"
#include "shell/welcomeform.h"

#include <QAction>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTextEdit>

namespace umbrith {

bool Main::eventFilter(QObject* watched, QEvent* event) {
    // While a character is being made, a click on the screen leads back to its form.
    if (event->type() == QEvent::MouseButtonPress && isTrue(game_.CharacterCreationActive) &&
        (watched == background_ || watched == introframe_ || watched == lblintromsg_)) {
        Welcome_->raise();
        Welcome_->activateWindow();
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != this)
        return QMainWindow::eventFilter(watched, event);
    return KeyDown(static_cast<QKeyEvent*>(event)->key());
}

// Message keys first, then the letters by the panel that is open. Returns
// whether the key was used, so an unused one still reaches its control.
bool Main::KeyDown(int key) {
    MessageState& message = state_.message;
    if (message.MessageActive && (key == Qt::Key_Space || key == Qt::Key_M)) {
        if (!MessageKey(game_, message, key == Qt::Key_M ? 'M' : ' ', messageMode()))
            return false;
        showMessageState();
        if (!message.MessageActive)
            MessageFrame_->hide();
        return true;
    }
    if (key == Qt::Key_Escape) {
        const bool shown = mnuMain_->menuAction()->isVisible();
        mnuMain_->menuAction()->setVisible(!shown);
        mnuHelp_->menuAction()->setVisible(!shown);
        return true;
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return letterKey(char('A' + (key - Qt::Key_A)));
    if (key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Down)
        return arrowKey(key);
    return false;
}

bool Main::letterKey(char letter) {
    const bool intro = introframe_->isVisible();
    const bool running = isTrue(game_.GameRunning);
    const bool panelOpen = isTrue(game_.ScreenPanelOpen);
    switch (letter) {
    case 'B':
        if (intro && !running)
            action("mnuMainBattle")->trigger();
        return true;
    case 'C':
        if (intro || !running)
            action("mnuMainCreateCustom")->trigger();
        else if (PlayerInfoFrame_->isVisible())
            cmdpstatsclose_Click();
        else if (NewGameFrame_->isVisible())
            lblNG_Click(1);
        else if (journalframe_->isVisible())
            closeJournal();
        return true;
    case 'G':
        groundKey();
        return true;
    case 'J':
        if (running && !panelOpen)
            ShowJournal();
        return true;
    case 'L':
        action("mnuMainLoad")->trigger();
        return true;
    case 'N':
        action("mnuMainNew")->trigger();
        return true;
    case 'O':
        action("mnuMainOptions")->trigger();
        return true;
    case 'P':
        if (running && !panelOpen)
            openPlayerInfo();
        else if (intro)
            action("mnuMainPlayCustom")->trigger();
        return true;
    case 'S':
        if (running && !panelOpen && action("mnuMainSave")->isEnabled())
            action("mnuMainSave")->trigger();
        return true;
    case 'X':
        action("mnuMainExit")->trigger();
        return true;
    default:
        return false;
    }
}

} // namespace umbrith
