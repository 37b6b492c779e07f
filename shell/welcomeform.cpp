#include "shell/welcomeform.h"

#include "platform/platform.h"
#include "shell/statsheet.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace umbrith {

Welcome::Welcome(GameRecord& game, const MainState& state, QWidget* parent)
    : QDialog(parent), game_(game), state_(state), race_(new QComboBox(this)),
      sheet_(buildStatSheet(this, QStringLiteral("A new life begins"), race_, StatCaptions, "lblBStats",
                            QStringLiteral("Base          Points"), QStringLiteral("Create!"))) {
    setObjectName(QStringLiteral("Welcome"));
    setWindowTitle(QStringLiteral("New Character"));
    setFixedSize(360, 424);
    sheet_.pointsCaption->setObjectName(QStringLiteral("lblpointscaption"));
    for (QLineEdit* box : sheet_.elements)
        connect(box, &QLineEdit::textChanged, this, &Welcome::showPointsLeft);
    connect(sheet_.cmdcreate, &QPushButton::clicked, this, &Welcome::cmdCreate_Click);
    auto* cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setGeometry(250, 384, 90, 28);
    connect(cmdCancel, &QPushButton::clicked, this, &Welcome::cmdCancel_Click);
}

void Welcome::Load(const CharacterSetup& setup) {
    game_.CharacterCreationActive = true;
    race_->clear();
    race_->addItems(setup.races);
    race_->setCurrentIndex(0);
    sheet_.pointsCaption->setVisible(setup.statsEditable);
    sheet_.lblpointsleft->setVisible(setup.statsEditable);
    for (int i = 0; i < StatCount; ++i) {
        sheet_.values[i]->setText(setup.base[i]);
        sheet_.elements[i]->setText(setup.editable[i]);
        sheet_.elements[i]->setReadOnly(!setup.statsEditable);
    }
    sheet_.txtName->setReadOnly(!setup.nameEditable);
    sheet_.txtName->setText(setup.defaultName);
    defaultName_ = setup.defaultName;
    showPointsLeft();
}

void Welcome::showPointsLeft() {
    PointsLeft_ = CreationPointsLeft(state_.PointsAtStart, boxTexts(sheet_.elements));
    sheet_.lblpointsleft->setText(numberText(PointsLeft_));
}

void Welcome::cmdCreate_Click() {
    showPointsLeft();
    const QString problem = CreationPointsProblem(sheet_.lblpointsleft->isVisible(), PointsLeft_);
    if (!problem.isEmpty()) {
        platform().dialogs.message(problem, QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
        return;
    }
    CharacterForm form{sheet_.txtName->text(), race_->currentText(), {}, defaultName_, {}, boxTexts(sheet_.elements)};
    for (int i = 0; i < race_->count(); ++i)
        form.races.append(race_->itemText(i));
    for (int i = 0; i < StatCount; ++i)
        form.base[i] = sheet_.values[i]->text();
    FillCreationDefaults(form);
    sheet_.txtName->setText(form.name);
    for (int i = 0; i < StatCount; ++i)
        sheet_.elements[i]->setText(form.boxes[i]);
    CreateCharacter(game_, form);
    emit created();
    Unload();
}

void Welcome::cmdCancel_Click() {
    game_.CharacterCreationActive = false;
    Unload();
    emit cancelled();
}

// Unloading drops what the form held; the next load fills it anew.
void Welcome::Unload() {
    hide();
    sheet_.txtName->clear();
    race_->clear();
    for (int i = 0; i < StatCount; ++i) {
        sheet_.elements[i]->clear();
        sheet_.values[i]->clear();
    }
}

} // namespace umbrith
