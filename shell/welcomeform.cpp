#include "shell/welcomeform.h"

#include "platform/platform.h"
#include "shell/controls.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace umbrith {

Welcome::Welcome(GameRecord& game, const MainState& state, QWidget* parent)
    : QDialog(parent), game_(game), state_(state) {
    setObjectName(QStringLiteral("Welcome"));
    setWindowTitle(QStringLiteral("New Character"));
    setStyleSheet(look::formStyle() + look::frameStyle());
    setFixedSize(360, 420);

    heading(QStringLiteral("A new life begins"), this)->setGeometry(20, 12, 320, 28);
    caption(QStringLiteral("Name:"), QRect(20, 52, 90, 24), this);
    txtName_ = new QLineEdit(this);
    txtName_->setObjectName(QStringLiteral("txtName"));
    txtName_->setGeometry(120, 52, 220, 24);
    caption(QStringLiteral("Race:"), QRect(20, 84, 90, 24), this);
    race_ = new QComboBox(this);
    race_->setObjectName(QStringLiteral("race"));
    race_->setGeometry(120, 84, 220, 24);

    auto* header = caption(QStringLiteral("Base          Points"), QRect(160, 120, 180, 20), this);
    header->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(look::gold)));
    for (int i = 0; i < StatCount; ++i) {
        const int y = 144 + 30 * i;
        caption(QString::fromUtf8(StatCaptions[i]), QRect(20, y, 130, 24), this);
        auto* base = new QLabel(this);
        base->setObjectName(arrayName("lblBStats", i));
        base->setGeometry(160, y, 60, 24);
        base->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        lblBStats_.append(base);
        auto* box = new QLineEdit(this);
        box->setObjectName(arrayName("elements", i));
        box->setGeometry(250, y, 90, 24);
        acceptStatNumbers(box);
        connect(box, &QLineEdit::textChanged, this, &Welcome::showPointsLeft);
        elements_.append(box);
    }

    lblpointscaption_ = caption(QStringLiteral("Points Remaining:"), QRect(20, 358, 150, 24), this);
    lblpointscaption_->setObjectName(QStringLiteral("lblpointscaption"));
    lblpointsleft_ = new QLabel(this);
    lblpointsleft_->setObjectName(QStringLiteral("lblpointsleft"));
    lblpointsleft_->setGeometry(170, 358, 60, 24);
    lblpointsleft_->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));

    auto* cmdcreate = new QPushButton(QStringLiteral("Create!"), this);
    cmdcreate->setObjectName(QStringLiteral("cmdcreate"));
    cmdcreate->setGeometry(150, 384, 90, 28);
    cmdcreate->setDefault(true);
    connect(cmdcreate, &QPushButton::clicked, this, &Welcome::cmdCreate_Click);
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
    lblpointscaption_->setVisible(setup.statsEditable);
    lblpointsleft_->setVisible(setup.statsEditable);
    for (int i = 0; i < StatCount; ++i) {
        lblBStats_[i]->setText(setup.base[i]);
        elements_[i]->setText(setup.editable[i]);
        elements_[i]->setReadOnly(!setup.statsEditable);
    }
    txtName_->setReadOnly(!setup.nameEditable);
    txtName_->setText(setup.defaultName);
    defaultName_ = setup.defaultName;
    showPointsLeft();
}

StatTexts Welcome::boxes() const {
    StatTexts texts;
    for (int i = 0; i < StatCount; ++i)
        texts[i] = elements_[i]->text();
    return texts;
}

void Welcome::showPointsLeft() {
    PointsLeft_ = CreationPointsLeft(state_.PointsAtStart, boxes());
    lblpointsleft_->setText(numberText(PointsLeft_));
}

void Welcome::cmdCreate_Click() {
    showPointsLeft();
    const QString problem = CreationPointsProblem(lblpointsleft_->isVisible(), PointsLeft_);
    if (!problem.isEmpty()) {
        platform().dialogs.message(problem, QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
        return;
    }
    CharacterForm form{txtName_->text(), race_->currentText(), {}, defaultName_, {}, boxes()};
    for (int i = 0; i < race_->count(); ++i)
        form.races.append(race_->itemText(i));
    for (int i = 0; i < StatCount; ++i)
        form.base[i] = lblBStats_[i]->text();
    FillCreationDefaults(form);
    txtName_->setText(form.name);
    for (int i = 0; i < StatCount; ++i)
        elements_[i]->setText(form.boxes[i]);
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
    txtName_->clear();
    race_->clear();
    for (int i = 0; i < StatCount; ++i) {
        elements_[i]->clear();
        lblBStats_[i]->clear();
    }
}

} // namespace umbrith
