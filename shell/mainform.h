#pragma once

#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"
#include "shell/rules/startup.h"
#include "world/movement.h"

#include <QMainWindow>
#include <functional>
#include <memory>

class QButtonGroup;
class QCheckBox;
class QFrame;
class QLabel;
class QListWidget;
class QMenu;
class QTextEdit;

namespace umbrith {

class CCMain;
class ClickLabel;
class LevelMaker;
class PopupBox;
class Timer;
class UpdateCharacter;
class Welcome;

// The game's screen and the shell of the whole tool set: the intro with its
// start menu, the menus and options, messages, the popup and the journal.
// All keys of its controls come to one handler first.
class Main : public QMainWindow, public WorldScreen {
    Q_OBJECT
public:
    explicit Main(GameRecord& game, QWidget* parent = nullptr);
    ~Main() override;

    GameRecord& game() const { return game_; }
    const MainState& state() const { return state_; }

    void StartIntro();
    void PlayGame(int mode);
    void StartMessage(const QString& source, const QString& text);
    void ShowPopup(const QString& text, const QString& title);
    void ShowJournal();
    // The NPC image creator, which the level editor's tools open.
    void ShowNPCCreator();
    const CCMain& npcCreator() const { return *npcCreator_; }

    // Realms, the character and its figures (mainrealms.cpp, mainstats.cpp).
    void UpdateRealms();
    void UpdateStats();
    void ResetColors();
    void CheckForDeath();
    void CheckForLevelUp();
    // The battle's repaint of the player's side, after a level's points are
    // spent in a battle; the battle installs it.
    std::function<void()> UpdatePlayerStats = [] {};
    // The world runtime: map change, drawing and the player's steps
    // (mainchangemap.cpp, mainworld.cpp).
    void Changemap(QString mapPath, bool useLocation, QString location) override;
    void UpdateLevel(double dx, double dy) override;
    void CheckEvents(const Value& entering, const Value& x, const Value& y, const QString& events) override;
    void PauseEvents() override;
    struct WorldTimers {
        std::unique_ptr<Timer> AniTimer, NPCWander, daynight;
    };
    const WorldTimers& worldTimers() const { return worldTimers_; }

signals:
    void popupShown(const QString& title, const QString& text);
    // The player left through one of the exits: the program ends.
    void programEnded();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void buildScreen();
    void buildIntro();
    void buildOptions();
    void buildMessages();
    void buildJournal();
    void FormLoad();

    void introTick();
    void musicDone(int status);
    bool askExit();
    void endProgram();
    void mnuMainCreateCustom_Click();
    void mnuMainPlayCustom_Click();
    void mnuMainOptions_Click();
    void cmdDone_Click();
    void closeJournal();
    void popupDisplayTick();

    MessageMode messageMode() const;
    void showMessageState();
    void messageTick();
    bool KeyDown(int key);
    bool letterKey(char letter);
    void giveBackgroundFocus();
    QAction* action(const char* name) const;

    // New game over a realm (mainrealms.cpp).
    void buildNewGame();
    void mnuMainNew_Click();
    void lstRealms_Click();
    void lblNG_Click(int index);
    void ShowRegRealm();
    void showWelcomeAgain();
    // Stats panel, bars and items (mainstats.cpp).
    void buildPlayerInfo();
    void openPlayerInfo();
    void cmdpstatsclose_Click();
    void upgraded();
    // The world runtime.
    void buildWorld();
    void setWorldTimers(bool on);
    void prepareWorldForGame();
    bool arrowKey(int key);
    void groundKey();
    void loadMap(const QString& path, bool useLocation, const QString& location);
    void clearPendingMessage();
    void playLevelMusic();
    // Saved games (mainsaves.cpp).
    void buildSaves();
    void SaveGame();
    void OpenGame();

    GameRecord& game_;
    MainState state_;
    std::unique_ptr<LevelMaker> levelMaker_;
    std::unique_ptr<CCMain> npcCreator_;

    QMenu* mnuMain_;
    QMenu* mnuHelp_;
    QLabel* background_;
    QLabel* totallevel_;
    QFrame* introframe_;
    QLabel* lblintromsg_;
    QFrame* optionsframe_;
    QCheckBox* chkMusic_;
    QCheckBox* chkSounds_;
    QButtonGroup* optmessage_;
    QFrame* MessageFrame_;
    QLabel* lblmsgsource_;
    QTextEdit* txtmessage_;
    QFrame* journalframe_;
    QTextEdit* txtJE_;
    QList<QLabel*> lblPStats_;
    PopupBox* PopupBox_;

    QFrame* NewGameFrame_;
    QListWidget* lstRealms_;
    QTextEdit* txtDescription_;
    Welcome* Welcome_;
    UpdateCharacter* UpdateCharacter_;
    QFrame* PlayerInfoFrame_;
    QList<QLabel*> plabels_;
    QList<QFrame*> bars_; // HPInd, SPInd, ExpInd
    QListWidget* lstPItems_;
    QString itemsListed_; // ItemsCarried as lstPItems shows it

    std::unique_ptr<Timer> introtimer_;
    std::unique_ptr<Timer> typemessage_;
    std::unique_ptr<Timer> popupdisplay_;

    // The world runtime: the still picture over a map change, the scene
    // composed for totallevel, and the world's timers.
    QLabel* framecapture_;
    Surface scene_;
    WorldTimers worldTimers_;
};

} // namespace umbrith
