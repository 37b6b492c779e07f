#include "shell/updatecharacter.h"

#include "platform/error.h"
#include "platform/platform.h"
#include "shell/statsheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace umbrith {

namespace {

const char* const captions[StatCount] = {"Strength:", "Defence:", "Max Hit Points:", "Max Skill Points:",
                                         "Speed:",    "Agility:", "Skill Power:"};

} // namespace

UpdateCharacter::UpdateCharacter(GameRecord& game, const MainState& state, QWidget* parent)
    : QDialog(parent), game_(game), state_(state), race_(new QLineEdit(this)),
      sheet_(buildStatSheet(this, QStringLiteral("You have grown stronger"), race_, captions, "prevelements",
                            QStringLiteral("Now           Add"), QStringLiteral("Upgrade!"))) {
    setObjectName(QStringLiteral("UpdateCharacter"));
    setWindowTitle(QStringLiteral("Upgrade Character"));
    setFixedSize(360, 424);
    sheet_.txtName->setReadOnly(true);
    race_->setReadOnly(true);
    for (QLineEdit* box : sheet_.elements)
        connect(box, &QLineEdit::textEdited, this, &UpdateCharacter::showPointsLeft);
    sheet_.cmdcreate->move(250, 384);
    connect(sheet_.cmdcreate, &QPushButton::clicked, this, &UpdateCharacter::cmdcreate_Click);
}

void UpdateCharacter::Load() {
    sheet_.txtName->setText(game_.PlayerName.text());
    race_->setText(game_.PlayerRace.text());
    for (int i = 0; i < StatCount; ++i) {
        sheet_.values[i]->setText((game_.*UpgradeFields()[i]).text());
        sheet_.elements[i]->clear();
    }
    showPointsLeft();
}

// The count is a 16-bit integer: points beyond it are refused as they are typed.
bool UpdateCharacter::showPointsLeft() {
    try {
        PointsLeft_ = UpgradePointsLeft(state_.PointsPerLevel, boxTexts(sheet_.elements));
    } catch (const RuntimeError& error) {
        platform().dialogs.message(QStringLiteral("Those are more points than a level can count (%1).").arg(error.text()),
                                   QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    sheet_.lblpointsleft->setText(QString::number(PointsLeft_));
    return true;
}

// Overspent points pass, as they always have; only points still unspent hold the form.
void UpdateCharacter::cmdcreate_Click() {
    if (!showPointsLeft())
        return;
    if (PointsLeft_ >= 1) {
        platform().dialogs.message(QStringLiteral("Please use all available points!"), QStringLiteral("Umbrith"),
                                   Buttons::Ok, Icon::Exclamation);
        return;
    }
    ApplyUpgrade(game_, boxTexts(sheet_.elements));
    hide();
    emit upgraded();
}

} // namespace umbrith
