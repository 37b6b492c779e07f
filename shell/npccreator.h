#pragma once

#include "core/gamerecord.h"
#include "platform/surface.h"
#include "shell/rules/npcimage.h"
#include "world/textures.h"

#include <QMainWindow>
#include <memory>

class QAction;
class QCheckBox;
class QFrame;
class QLabel;
class QListWidget;

namespace umbrith {

class Timer;

// "Umbrith NPC Creator": dresses a figure in the part pictures the player
// wears, shows it walking, and saves every direction and frame as one NPC
// sheet. It dresses the player's own doll: the sheets and the twelve
// composed cells are Main's, drawn by the game's paper-doll code.
class CCMain : public QMainWindow {
    Q_OBJECT
public:
    CCMain(GameRecord& game, Textures& textures, QWidget* parent = nullptr);
    ~CCMain() override;

    const NPCImageState& state() const { return state_; }
    bool animating() const;
    // The 24 x 48 figure that picPreview shows enlarged.
    const Surface& preview() const { return preview_; }

protected:
    // The form loads when it is first shown, and again after a close.
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void buildWorkArea();
    void FormLoad();
    void UpdateCharacter();
    void RedrawCharacter();
    void aniTimerTick();
    void lstAreas_Click();
    void cmdBrowseChange_Click();
    void cmdUpdate_Click();
    void chkAnimate_Click();
    void mnuFileNew_Click();
    void mnuFileSave_Click();
    void mnuFileClose_Click();

    GameRecord& game_;
    Textures& textures_;
    NPCImageState state_;
    bool loaded_ = false;
    Surface preview_;
    Surface picSetup_; // the sheet as last saved
    std::unique_ptr<Timer> AniTimer_;

    QAction* mnuFileSave_;
    QFrame* picBG_;
    QListWidget* lstAreas_;
    QLabel* lblInfo_[2];
    QCheckBox* chkAnimate_;
    QLabel* picPreview_;
};

} // namespace umbrith
