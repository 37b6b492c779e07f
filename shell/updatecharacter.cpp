#include "shell/updatecharacter.h"

#include "platform/error.h"
#include "platform/platform.h"
#include "shell/controls.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace umbrith {

namespace {

const char* const captions[StatCount] = {"Strength:", "Defence:", "Max Hit Points:", "Max Skill Points:",
                                         "Speed:",    "Agility:", "Skill Power:"};

} // namespace

UpdateCharacter::UpdateCharacter(GameRecord& game, const MainState& state, QWidget* parent)
    : QDialog(parent), game_(game), state_(state) {
    setObjectName(QStringLiteral("UpdateCharacter"));
    setWindowTitle(QStringLiteral("Upgrade Character"));
    setStyleSheet(look::formStyle() + look::frameStyle());
    setFixedSize(360, 410);

    heading(QStringLiteral("You have grown stronger"), this)->setGeometry(20, 12, 320, 28);
    caption(QStringLiteral("Name:"), QRect(20, 52, 90, 24), this);
    txtName_ = new QLineEdit(this);
    txtName_->setObjectName(QStringLiteral("txtName"));
    txtName_->setGeometry(120, 52, 220, 24);
    txtName_->setReadOnly(true);
    caption(QStringLiteral("Race:"), QRect(20, 84, 90, 24), this);
    race_ = new QLineEdit(this);
    race_->setObjectName(QStringLiteral("race"));
    race_->setGeometry(120, 84, 220, 24);
    race_->setReadOnly(true);

    QLabel* header = caption(QStringLiteral("Now          Add"), QRect(170, 120, 170, 20), this);
    header->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(look::gold)));
    for (int i = 0; i < StatCount; ++i) {
        const int y = 144 + 30 * i;
        caption(QString::fromUtf8(captions[i]), QRect(20, y, 150, 24), this);
        auto* now = new QLabel(this);
        now->setObjectName(arrayName("prevelements", i));
        now->setGeometry(170, y, 60, 24);
        now->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        prevelements_.append(now);
        auto* box = new QLineEdit(this);
        box->setObjectName(arrayName("elements", i));
        box->setGeometry(250, y, 90, 24);
        acceptStatNumbers(box);
        connect(box, &QLineEdit::textEdited, this, &UpdateCharacter::showPointsLeft);
        elements_.append(box);
    }

    caption(QStringLiteral("Points Remaining:"), QRect(20, 358, 150, 24), this);
    lblpointsleft_ = new QLabel(this);
    lblpointsleft_->setObjectName(QStringLiteral("lblpointsleft"));
    lblpointsleft_->setGeometry(170, 358, 60, 24);
    lblpointsleft_->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));
    auto* cmdcreate = new QPushButton(QStringLiteral("Upgrade!"), this);
    cmdcreate->setObjectName(QStringLiteral("cmdcreate"));
    cmdcreate->setGeometry(250, 372, 90, 28);
    cmdcreate->setDefault(true);
    connect(cmdcreate, &QPushButton::clicked, this, &UpdateCharacter::cmdcreate_Click);
}

void UpdateCharacter::Load() {
    txtName_->setText(game_.PlayerName.text());
    race_->setText(game_.PlayerRace.text());
    for (int i = 0; i < StatCount; ++i) {
        prevelements_[i]->setText((game_.*UpgradeFields()[i]).text());
        elements_[i]->clear();
    }
    showPointsLeft();
}

StatTexts UpdateCharacter::boxes() const {
    StatTexts texts;
    for (int i = 0; i < StatCount; ++i)
        texts[i] = elements_[i]->text();
    return texts;
}

// The count is a 16-bit integer: points beyond it are refused as they are typed.
bool UpdateCharacter::showPointsLeft() {
    try {
        PointsLeft_ = UpgradePointsLeft(state_.PointsPerLevel, boxes());
    } catch (const RuntimeError& error) {
        platform().dialogs.message(QStringLiteral("Those are more points than a level can count (%1).").arg(error.text()),
                                   QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    lblpointsleft_->setText(QString::number(PointsLeft_));
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
    ApplyUpgrade(game_, boxes());
    hide();
    emit upgraded();
}

} // namespace umbrith
