#pragma once

#include "core/character.h"
#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"
#include "shell/statsheet.h"

#include <QDialog>
#include <cstdint>

class QLineEdit;

namespace umbrith {

// "Upgrade Character": the points of a level gained go onto the statistics.
// Its boxes run strength, defence, max HP, max SP, speed, agility, skill power.
class UpdateCharacter : public QDialog {
    Q_OBJECT
public:
    UpdateCharacter(GameRecord& game, const MainState& state, QWidget* parent);

    // The load step: the level's points, and the character as it stands.
    void Load();

signals:
    // The points are spent and the character healed; the screen is to repaint.
    void upgraded();

protected:
    // There is no way out but spending the points.
    void reject() override {}

private:
    bool showPointsLeft();
    void cmdcreate_Click();

    GameRecord& game_;
    const MainState& state_;
    int16_t PointsLeft_ = 0;

    QLineEdit* race_;
    StatSheet sheet_; // prevelements as its values
};

} // namespace umbrith
