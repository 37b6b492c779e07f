// Main's saved games: the menu items and the steps of a save and a load that
// touch the dialogs, the timers and the screen.
#include "core/misc.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/mainform.h"
#include "shell/welcomeform.h"
#include "world/savedgame.h"

#include <QAction>
#include <QFrame>
#include <QLabel>

namespace umbrith {

namespace {

// The file chosen in the save or open dialog; "" when cancelled, or when the
// path is refused with `refusal`.
QString chosenFile(Main& main, bool save, const QString& refusal) {
    Dialogs& dialogs = platform().dialogs;
    const QString path = save ? dialogs.saveFile(SaveFileDialog(QStringLiteral("Save Character File")))
                              : dialogs.openFile(SaveFileDialog(QStringLiteral("Open Character File")));
    if (path.isEmpty() || IsInsideProgramFolder(path))
        return path;
    main.ShowPopup(refusal, QStringLiteral("Umbrith"));
    return QString();
}

} // namespace

void Main::buildSaves() {
    connect(action("mnuMainSave"), &QAction::triggered, this, &Main::SaveGame);
    connect(action("mnuMainLoad"), &QAction::triggered, this, [this] {
        if (!isTrue(game_.ScreenPanelOpen))
            OpenGame();
    });
}

void Main::SaveGame() {
    try {
        const QString path = chosenFile(*this, true,
                                        QStringLiteral("Only Character Files in Umbrith 'saves' folder are allowed to be "
                                                       "played with this program, please save in that directory!"));
        if (!path.isEmpty())
            WriteSavedGame(path, game_, state_.world);
    } catch (const RuntimeError& error) {
        // Nothing was written: the file that was there stays as it was.
        platform().dialogs.message(QStringLiteral("The character could not be saved.\n(") + error.text() + u')',
                                   QStringLiteral("Umbrith"), Buttons::Ok, Icon::Critical);
    }
}

// A load replaces the running game without asking. A save file that breaks off
// halfway leaves what it had set so far: there is no going back.
void Main::OpenGame() {
    QString path;
    try {
        path = chosenFile(*this, false,
                          QStringLiteral("Only Character Files in Umbrith 'saves' folder are allowed to be played with "
                                         "this program!"));
        if (path.isEmpty())
            return;
        WorldState& world = state_.world;
        const SavedParts parts = ReadSavedGame(path, game_, world.textures);

        game_.GameRunning = false;
        setWorldTimers(false);
        ForgetMapForLoad(game_, world);
        state_.message = MessageState();
        showMessageState();
        MessageFrame_->hide();
        introframe_->hide();
        introtimer_->setEnabled(false);
        game_.GameRunning = true;

        const SaveExtras extras = ApplySavedGame(game_, world, parts);
        state_.GameLoaded = true;
        setEnabled(true);
        if (Welcome_->isVisible())
            Welcome_->close();
        UpdateStats();
        for (QLabel* stat : lblPStats_)
            stat->show();
        totallevel_->show();
        totallevel_->lower();
        Changemap(extras.mapPath, true, extras.position);
    } catch (const RuntimeError& error) {
        ShowPopup(OpenGameErrorText(FileTitle(path), error), QStringLiteral("Umbrith"));
    }
}

} // namespace umbrith
