// Main's new-game panel: the realms to choose from, and the road from a
// realm through character creation into the game.
#include "core/character.h"
#include "core/realm.h"
#include "editor/levelmaker.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/controls.h"
#include "shell/mainform.h"
#include "shell/regrealm.h"
#include "shell/welcomeform.h"
#include "world/textures.h"

#include <QAction>
#include <QFrame>
#include <QListWidget>
#include <QTextEdit>

namespace umbrith {

void Main::buildNewGame() {
    NewGameFrame_ = panel("NewGameFrame", QRect(46, 40, 372, 360), centralWidget());
    heading(QStringLiteral("Choose Your Realm"), NewGameFrame_)->setGeometry(16, 10, 300, 28);
    lstRealms_ = new QListWidget(NewGameFrame_);
    lstRealms_->setObjectName(QStringLiteral("lstRealms"));
    lstRealms_->setGeometry(16, 44, 340, 140);
    connect(lstRealms_, &QListWidget::currentRowChanged, this, &Main::lstRealms_Click);
    // Enter or a double click on a realm plays it, as "(P)lay Game" does.
    connect(lstRealms_, &QListWidget::itemActivated, this, [this] { lblNG_Click(0); });
    txtDescription_ = new QTextEdit(NewGameFrame_);
    txtDescription_->setObjectName(QStringLiteral("txtDescription"));
    txtDescription_->setGeometry(16, 194, 340, 112);
    txtDescription_->setReadOnly(true);
    txtDescription_->setFocusPolicy(Qt::NoFocus);
    const char* const captions[] = {"(P)lay Game", "(C)ancel"};
    for (int i = 0; i < 2; ++i) {
        auto* label = new ClickLabel(arrayName("lblNG", i), QString::fromLatin1(captions[i]), NewGameFrame_);
        label->setGeometry(16 + 190 * i, 318, 150, 28);
        label->setAlignment(i == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
        label->setStyleSheet(QStringLiteral("QLabel { color: %1; font-size: 16px; font-weight: bold; }"
                                            "QLabel:hover { color: #f5e7b8; }")
                                 .arg(QLatin1String(look::gold)));
        connect(label, &ClickLabel::clicked, this, [this, i] { lblNG_Click(i); });
    }

    Welcome_ = new Welcome(game_, state_, this);
    // A new character wears the default clothes: their pictures are loaded
    // here, once, and every map change after draws from them.
    connect(Welcome_, &Welcome::created, this, [this] {
        LoadPaperDoll(state_.world.textures, game_);
        PlayGame(2);
    });
    connect(Welcome_, &Welcome::cancelled, this, [this] {
        raise();
        activateWindow();
        giveBackgroundFocus();
    });
    connect(action("mnuMainNew"), &QAction::triggered, this, &Main::mnuMainNew_Click);
    connect(levelMaker_.get(), &LevelMaker::createRealm, this, &Main::ShowRegRealm);
}

void Main::mnuMainNew_Click() {
    if (isTrue(game_.ScreenPanelOpen) || state_.message.MessageActive || state_.message.EventPaused)
        return;
    UpdateRealms();
    game_.ScreenPanelOpen = true;
    NewGameFrame_->show();
    NewGameFrame_->raise();
    lstRealms_->setFocus();
}

void Main::UpdateRealms() {
    lstRealms_->clear();
    txtDescription_->clear();
    const RealmCatalogue catalogue = ReadRealmCatalogue();
    state_.realmCatalogue = catalogue.records;
    lstRealms_->addItems(catalogue.names);
    if (!catalogue.unreadable.isEmpty())
        platform().dialogs.message(QStringLiteral("These files in \\realms could not be read as realms:\n") +
                                       catalogue.unreadable.join(u'\n'),
                                   QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
}

void Main::lstRealms_Click() {
    if (lstRealms_->currentRow() < 0)
        return;
    state_.SelectedRealm = CatalogueRecord(state_.realmCatalogue, lstRealms_->currentRow());
    txtDescription_->setPlainText(RealmFields(state_.SelectedRealm).value(RealmDescription));
}

void Main::lblNG_Click(int index) {
    if (index == 1) {
        NewGameFrame_->hide();
        game_.ScreenPanelOpen = false;
        return;
    }
    if (lstRealms_->currentRow() < 0)
        return;
    // A realm file that doesn't hold what a realm needs is refused here, with
    // nothing of the game changed but the lists it named.
    try {
        const Realm realm = ParseRealm(state_.SelectedRealm);
        SetListFiles(realm.listFiles);
        const CharacterSetup setup = RealmCharacterSetup(realm);
        state_.PointsAtStart = setup.pointsAtStart;
        state_.PointsPerLevel = setup.pointsPerLevel;
        Welcome_->Load(setup);
    } catch (const RuntimeError& error) {
        platform().dialogs.message(QStringLiteral("This realm can't be started: its file is damaged or incomplete (%1).")
                                       .arg(error.text()),
                                   QStringLiteral("Realm Error"), Buttons::Ok, Icon::Exclamation);
        return;
    }
    Welcome_->show();
    Welcome_->activateWindow();
    // The player creates or cancels meanwhile.
    platform().clock.waitWhile([this] { return Welcome_->isVisible(); });
    if (!game_.PlayerName.text().isEmpty()) {
        NewGameFrame_->hide();
        game_.ScreenPanelOpen = false;
    }
}

void Main::ShowRegRealm() {
    auto* form = new RegRealm(levelMaker_.get());
    connect(form, &RegRealm::realmCreated, this, &Main::UpdateRealms);
    form->show();
}

// After death the realm last chosen is offered again. Without one, or when it
// can't be read, the plain character of a single "Human" is offered.
void Main::showWelcomeAgain() {
    CharacterSetup setup;
    try {
        if (!state_.SelectedRealm.isEmpty())
            setup = RealmCharacterSetup(ParseRealm(state_.SelectedRealm));
    } catch (const RuntimeError&) {
    }
    Welcome_->Load(setup);
    Welcome_->show();
    Welcome_->activateWindow();
}

} // namespace umbrith
