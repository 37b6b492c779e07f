#pragma once

#include "core/character.h"
#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"
#include "shell/statsheet.h"

#include <QDialog>

class QComboBox;

namespace umbrith {

// "New Character": the player names the character, picks a race and spends
// the realm's points on the seven statistics.
class Welcome : public QDialog {
    Q_OBJECT
public:
    Welcome(GameRecord& game, const MainState& state, QWidget* parent);

    // The load step with a realm's setup: the races, the base values beside
    // the boxes, the start values in them, and the name box.
    void Load(const CharacterSetup& setup);

signals:
    // The record holds the new character; the game is to start.
    void created();
    void cancelled();

protected:
    void reject() override { cmdCancel_Click(); }

private:
    void showPointsLeft();
    void cmdCreate_Click();
    void cmdCancel_Click();
    void Unload();

    GameRecord& game_;
    const MainState& state_;
    double PointsLeft_ = 0;
    QString defaultName_;

    QComboBox* race_;
    StatSheet sheet_; // lblBStats as its values
};

} // namespace umbrith
