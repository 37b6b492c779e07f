#pragma once

#include "core/character.h"
#include "core/gamerecord.h"
#include "shell/rules/mainstate.h"

#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QLineEdit;

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
    StatTexts boxes() const;
    void showPointsLeft();
    void cmdCreate_Click();
    void cmdCancel_Click();
    void Unload();

    GameRecord& game_;
    const MainState& state_;
    double PointsLeft_ = 0;
    QString defaultName_;

    QLineEdit* txtName_;
    QComboBox* race_;
    QList<QLineEdit*> elements_;
    QList<QLabel*> lblBStats_;
    QLabel* lblpointscaption_;
    QLabel* lblpointsleft_;
};

} // namespace umbrith
