// Main's figures of the character: the stats panel, the bars and the items
// beside the map, death and the gain of a level.
#include "core/stats.h"
#include "inventory/carried.h"
#include "platform/error.h"
#include "shell/controls.h"
#include "shell/mainform.h"
#include "shell/updatecharacter.h"
#include "world/textures.h"

#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QListWidget>

namespace umbrith {

namespace {

// 2880 units make a full bar, at 15 units to the pixel.
constexpr int UnitsPerPixel = 15;
constexpr int BarPixels = FullBar / UnitsPerPixel;

struct Row {
    const char* caption;
    PlayerLabel label;
};

// The sheet's two columns: the character, and what it wears and can do.
const Row leftColumn[] = {
    {"Name:", LabelName},         {"Race:", LabelRace},           {"Level:", LabelLevel},
    {"Experience:", LabelExperience}, {"Next Level:", LabelNextLevel}, {"Hit Points:", LabelHP},
    {"Skill Points:", LabelSP},   {"Strength:", LabelStrength},   {"Defence:", LabelDefence},
    {"Skill Power:", LabelSkillPower}, {"Speed:", LabelSpeed},    {"Agility:", LabelAgility},
    {"Gold:", LabelGold},         {"Days Passed:", LabelDaysPassed},
};
const Row gearRows[] = {
    {"Weapon:", LabelWeapon}, {"Armour:", LabelArmour}, {"Shield:", LabelShield},
    {"Helmet:", LabelHelmet}, {"Boots:", LabelBoots},   {"Gloves:", LabelGloves},
};
const Row rightFigures[] = {
    {"Attack:", LabelAttackRange}, {"Total Defence:", LabelTotalDefence}, {"Combat Mastery:", LabelCombatMastery},
};

const char* const ink = "#2a1d12";

QLabel* sheetCaption(const char* text, int x, int y, int width, QWidget* parent) {
    QLabel* label = caption(QString::fromUtf8(text), QRect(x, y, width, 20), parent);
    label->setStyleSheet(QStringLiteral("color: #6b4a1f; font-weight: bold;"));
    return label;
}

} // namespace

void Main::buildPlayerInfo() {
    QWidget* side = lblPStats_[0]->parentWidget();
    const char* const barNames[] = {"HPInd", "SPInd", "ExpInd"};
    const char* const barCaptions[] = {"Health", "Skill", "Next Level"};
    const char* const barColours[] = {"#a32020", "#2848b0", "#c9a227"};
    for (int i = 0; i < 3; ++i) {
        const int y = 162 + 24 * i;
        caption(QString::fromLatin1(barCaptions[i]), QRect(20, y - 4, 80, 20), side);
        auto* trough = new QFrame(side);
        trough->setGeometry(96, y, BarPixels + 4, 14);
        trough->setStyleSheet(QStringLiteral("QFrame { background: #0b0908; border: 1px solid #5a4526; }"));
        auto* bar = new QFrame(trough);
        bar->setObjectName(QLatin1String(barNames[i]));
        bar->setGeometry(2, 2, 0, 10);
        bar->setStyleSheet(QStringLiteral("QFrame { background: %1; border: none; }").arg(QLatin1String(barColours[i])));
        bars_.append(bar);
    }
    QLabel* items = caption(QStringLiteral("Items"), QRect(20, 238, 200, 22), side);
    items->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));
    lstPItems_ = new QListWidget(side);
    lstPItems_->setObjectName(QStringLiteral("lstPItems"));
    lstPItems_->setGeometry(20, 262, 272, 136);
    lstPItems_->setFocusPolicy(Qt::NoFocus);

    PlayerInfoFrame_ = panel("PlayerInfoFrame", QRect(16, 16, 432, 408), centralWidget());
    PlayerInfoFrame_->setStyleSheet(QStringLiteral("QFrame#PlayerInfoFrame { background: #e8dcc0; border: 3px solid #8a6d33; }"
                                                   "QLabel { background: transparent; border: none; color: %1; font-size: 12px; }")
                                        .arg(QLatin1String(ink)));
    QLabel* title = heading(QStringLiteral("Character"), PlayerInfoFrame_);
    title->setStyleSheet(QStringLiteral("color: #6b4a1f; font-size: 18px; font-weight: bold;"));
    title->setGeometry(14, 8, 300, 28);
    for (int i = 0; i < PlayerLabelCount; ++i) {
        auto* label = new QLabel(PlayerInfoFrame_);
        label->setObjectName(arrayName("plabels", i));
        plabels_.append(label);
    }
    int y = 44;
    for (const Row& row : leftColumn) {
        sheetCaption(row.caption, 14, y, 90, PlayerInfoFrame_);
        plabels_[row.label]->setGeometry(104, y, 96, 20);
        y += 24;
    }
    y = 44;
    sheetCaption("Worn", 206, y, 170, PlayerInfoFrame_);
    sheetCaption("Wear", 378, y, 46, PlayerInfoFrame_);
    for (int i = 0; i < 6; ++i) {
        y += 24;
        plabels_[gearRows[i].label]->setGeometry(206, y, 170, 20);
        plabels_[gearRows[i].label]->setToolTip(QString::fromUtf8(gearRows[i].caption));
        plabels_[LabelWeaponDurability + i]->setGeometry(378, y, 46, 20);
    }
    y += 36;
    for (const Row& row : rightFigures) {
        sheetCaption(row.caption, 206, y, 116, PlayerInfoFrame_);
        plabels_[row.label]->setGeometry(324, y, 100, 20);
        y += 24;
    }
    auto* close = new ClickLabel(QStringLiteral("cmdpstatsclose"), QStringLiteral("(C)lose"), PlayerInfoFrame_);
    close->setGeometry(340, 374, 80, 26);
    close->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    close->setStyleSheet(QStringLiteral("color: #6b4a1f; font-weight: bold;"));
    connect(close, &ClickLabel::clicked, this, &Main::cmdpstatsclose_Click);

    UpdateCharacter_ = new UpdateCharacter(game_, state_, this);
    connect(UpdateCharacter_, &UpdateCharacter::upgraded, this, &Main::upgraded);
}

void Main::openPlayerInfo() {
    ResetColors();
    PlayerInfoFrame_->show();
    PlayerInfoFrame_->raise();
    game_.ScreenPanelOpen = true;
    UpdateStats();
}

void Main::cmdpstatsclose_Click() {
    ResetColors();
    PlayerInfoFrame_->hide();
    game_.ScreenPanelOpen = false;
    giveBackgroundFocus();
}

void Main::ResetColors() {
    for (int i : {int(LabelStrength), int(LabelAttackRange)})
        plabels_[i]->setStyleSheet(QStringLiteral("color: rgb(192, 0, 0);"));
    for (int i : {int(LabelDefence), int(LabelTotalDefence)})
        plabels_[i]->setStyleSheet(QStringLiteral("color: rgb(0, 0, 192);"));
}

// The equipment and skill lists stand on the inventory panel, and the gold
// of the shop on its trading panel; each is filled where it stands.
void Main::UpdateStats() {
    // The stats' mode and the walk frames' direction are one variable: every
    // update starts the frames rising again.
    state_.world.WalkDirection = QStringLiteral("U");
    if (PlayerInfoFrame_->isVisible()) {
        const QStringList texts = PlayerLabelTexts(game_);
        for (int i = 0; i < PlayerLabelCount; ++i)
            plabels_[i]->setText(texts[i]);
    }
    state_.ShopLevelFactor = ShopLevelFactor(game_.PlayerLevel);
    if (auto* gold = findChild<QLabel*>(QStringLiteral("lblyourgold")))
        gold->setText(u'$' + game_.PlayerGold.text());
    // Every change of equipment ends here, so the paper doll follows it.
    UpdateCharacterPic(state_.world.textures);

    if (!introframe_->isVisible()) {
        const Value* shown[] = {&game_.PlayerName, &game_.PlayerRace, &game_.PlayerGold};
        for (int i = 0; i < 3; ++i) {
            lblPStats_[i]->setText(shown[i]->text());
            lblPStats_[i]->show();
        }
        // A bar out of range stops the update, and the screen keeps what it
        // showed; the next update paints again.
        BarWidths widths;
        try {
            widths = StatBarWidths(game_);
        } catch (const RuntimeError&) {
            return;
        }
        const int units[] = {widths.hp, widths.sp, widths.exp};
        for (int i = 0; i < 3; ++i)
            bars_[i]->setFixedWidth(std::min(units[i] / UnitsPerPixel, BarPixels));
    }

    if (game_.ItemsCarried.text() != itemsListed_) {
        itemsListed_ = game_.ItemsCarried.text();
        lstPItems_->clear();
        lstPItems_->addItems(ItemRows(itemsListed_));
    }
    if (auto* equipment = findChild<QListWidget*>(QStringLiteral("inventorylistbox"))) {
        equipment->clear();
        equipment->addItems(EquipmentRows(game_.EquipmentPack.text()));
    }
    if (auto* skills = findChild<QListWidget*>(QStringLiteral("lstpspells"))) {
        skills->clear();
        skills->addItems(SkillRows(game_.SkillsKnown.text()));
    }
}

void Main::CheckForDeath() {
    if (!IsDead(game_))
        return;
    ShowPopup(QStringLiteral("You have died!"), QStringLiteral("Grim Reaper"));
    background_->clear();
    action("mnuMainSave")->setEnabled(false);
    state_.GameLoaded = false;
    game_.GameRunning = false;
    game_.ScreenPanelOpen = true;
    PlayerInfoFrame_->hide();
    StartIntro();
    ReviveAfterDeath(game_);
    for (QLabel* stat : lblPStats_)
        stat->hide();
    lstPItems_->clear();
    UpdateStats();
    showWelcomeAgain();
}

void Main::CheckForLevelUp() {
    const int level = GainLevel(game_);
    if (level == 0) {
        UpdateStats();
        return;
    }
    ShowPopup(LevelGainedText(level), QStringLiteral("Level Gained"));
    UpdateCharacter_->Load();
    UpdateCharacter_->show();
    UpdateStats();
    UpdateCharacter_->activateWindow();
}

void Main::upgraded() {
    if (isTrue(game_.BattleActive))
        UpdatePlayerStats();
    else
        UpdateStats();
}

} // namespace umbrith
