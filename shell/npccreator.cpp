#include "shell/npccreator.h"

#include "core/misc.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/controls.h"
#include "world/worldclock.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>

namespace umbrith {

namespace {

// The preview shows the 24 x 48 figure enlarged by whole pixels.
constexpr int kPreviewScale = 4;
const QRgb kPreviewBackground = qRgb(112, 112, 112);

const char* const areaRows[NPCAreaCount] = {"Head", "Body", "Hands", "Boots", "Weapon", "Shield"};
const char* const directionCaptions[4] = {"Down", "Up", "Left", "Right"};

void tell(const QString& text) {
    platform().dialogs.message(text, QStringLiteral("Umbrith"), Buttons::Ok, Icon::Exclamation);
}

// A failed operation: its own words, then the system's.
void tellFailure(const QString& text, const RuntimeError& error) {
    tell(text);
    platform().dialogs.message(error.text(), QStringLiteral("This was the error"), Buttons::Ok, Icon::Critical);
}

QPushButton* button(const QString& name, const QString& caption, const QRect& place, QWidget* parent) {
    auto* result = new QPushButton(caption, parent);
    result->setObjectName(name);
    result->setGeometry(place);
    return result;
}

} // namespace

CCMain::CCMain(GameRecord& game, Textures& textures, QWidget* parent)
    : QMainWindow(parent), game_(game), textures_(textures), preview_(24, 48) {
    setObjectName(QStringLiteral("CCMain"));
    setWindowTitle(QStringLiteral("Umbrith NPC Creator"));
    setStyleSheet(look::dialogStyle());
    AniTimer_ = platform().clock.createTimer(QStringLiteral("AniTimer"), 200, [this] { aniTimerTick(); });
    buildMenus();
    buildWorkArea();
    setFixedSize(470, 344);
}

CCMain::~CCMain() = default;

bool CCMain::animating() const { return AniTimer_->enabled(); }

void CCMain::buildMenus() {
    QMenu* mnuFile = menuBar()->addMenu(QStringLiteral("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    auto item = [mnuFile](const char* name, const QString& caption) {
        QAction* action = mnuFile->addAction(caption);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    connect(item("mnuFileNew", QStringLiteral("&New NPC")), &QAction::triggered, this, &CCMain::mnuFileNew_Click);
    mnuFileSave_ = item("mnuFileSave", QStringLiteral("&Save NPC"));
    connect(mnuFileSave_, &QAction::triggered, this, &CCMain::mnuFileSave_Click);
    connect(item("mnuFileClose", QStringLiteral("&Close")), &QAction::triggered, this, &CCMain::mnuFileClose_Click);
}

void CCMain::buildWorkArea() {
    auto* area = new QWidget(this);
    setCentralWidget(area);
    // Seen only while no NPC is open, when picBG no longer covers it.
    auto* hint = caption(QStringLiteral("No NPC is open. Choose \"New NPC\" in the File menu to dress one."),
                         QRect(20, 20, 430, 60), area);
    hint->setWordWrap(true);

    picBG_ = new QFrame(area);
    picBG_->setObjectName(QStringLiteral("picBG"));
    picBG_->setGeometry(0, 0, 470, 318);

    caption(QStringLiteral("Parts:"), QRect(16, 10, 140, 20), picBG_);
    lstAreas_ = new QListWidget(picBG_);
    lstAreas_->setObjectName(QStringLiteral("lstAreas"));
    lstAreas_->setGeometry(16, 32, 150, 128);
    for (const char* row : areaRows)
        lstAreas_->addItem(QLatin1String(row));
    connect(lstAreas_, &QListWidget::currentRowChanged, this, &CCMain::lstAreas_Click);
    connect(lstAreas_, &QListWidget::itemClicked, this, &CCMain::lstAreas_Click);

    caption(QStringLiteral("Currently:"), QRect(16, 224, 80, 20), picBG_);
    caption(QStringLiteral("Change to:"), QRect(16, 250, 80, 20), picBG_);
    for (int i = 0; i < 2; ++i) {
        lblInfo_[i] = new QLabel(picBG_);
        lblInfo_[i]->setObjectName(arrayName("lblInfo", i));
        lblInfo_[i]->setGeometry(100, 224 + 26 * i, 354, 20);
    }
    connect(button(QStringLiteral("cmdBrowseChange"), QStringLiteral("Browse"), QRect(16, 280, 100, 30), picBG_),
            &QPushButton::clicked, this, &CCMain::cmdBrowseChange_Click);
    connect(button(QStringLiteral("cmdUpdate"), QStringLiteral("Update"), QRect(126, 280, 100, 30), picBG_),
            &QPushButton::clicked, this, &CCMain::cmdUpdate_Click);

    picPreview_ = new QLabel(picBG_);
    picPreview_->setObjectName(QStringLiteral("picPreview"));
    picPreview_->setGeometry(200, 14, 24 * kPreviewScale + 4, 48 * kPreviewScale + 4);
    picPreview_->setAlignment(Qt::AlignCenter);
    picPreview_->setStyleSheet(QStringLiteral("border: 2px solid #8a6d33;"));
    for (int i = 0; i < 4; ++i)
        connect(button(arrayName("cmdDir", i), QLatin1String(directionCaptions[i]), QRect(340, 14 + 36 * i, 100, 30), picBG_),
                &QPushButton::clicked, this, [this, i] {
                    state_.PreviewDirection = i;
                    RedrawCharacter();
                });
    chkAnimate_ = new QCheckBox(QStringLiteral("Animate"), picBG_);
    chkAnimate_->setObjectName(QStringLiteral("chkAnimate"));
    chkAnimate_->setGeometry(340, 160, 100, 24);
    connect(chkAnimate_, &QCheckBox::clicked, this, &CCMain::chkAnimate_Click);
}

void CCMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!loaded_) {
        loaded_ = true;
        FormLoad();
    }
}

// A closed form is gone as far as the maker can tell: its animation stops,
// and the next showing loads it afresh.
void CCMain::closeEvent(QCloseEvent* event) {
    chkAnimate_->setChecked(false);
    chkAnimate_Click();
    loaded_ = false;
    event->accept();
}

// The creator starts on an NPC in default clothes, and the player's slots
// take the same pictures.
void CCMain::FormLoad() {
    mnuFileNew_Click();
    CopyAreasToPlayer(state_.AreaPaths, game_);
}

// Loads the six parts and composes the doll as the game composes the
// player's, masks made from the composite; any picture that fails stops it.
void CCMain::UpdateCharacter() {
    try {
        LoadNPCParts(state_.AreaPaths, textures_);
    } catch (const RuntimeError& error) {
        tellFailure(QStringLiteral("There was an error opening one of the picture files!"), error);
        return;
    }
    UpdateCharacterPic(textures_);
    RedrawCharacter();
}

void CCMain::RedrawCharacter() {
    preview_.fill(kPreviewBackground);
    DrawPreview(preview_, textures_, PreviewSlot(state_, chkAnimate_->isChecked()));
    const QImage enlarged = preview_.image().scaled(24 * kPreviewScale, 48 * kPreviewScale);
    picPreview_->setPixmap(QPixmap::fromImage(enlarged));
}

void CCMain::aniTimerTick() {
    StepAnimationFrame(state_.PreviewFrame, state_.PreviewWay);
    RedrawCharacter();
}

void CCMain::chkAnimate_Click() {
    const bool on = chkAnimate_->isChecked();
    AniTimer_->setEnabled(on);
    if (!on) {
        state_.PreviewFrame = 0;
        RedrawCharacter();
    }
}

void CCMain::lstAreas_Click() {
    const int row = lstAreas_->currentRow();
    if (row < 0)
        return;
    lblInfo_[0]->setText(state_.AreaPaths[row]);
    lblInfo_[1]->clear();
    state_.ChosenPicture.clear();
}

void CCMain::cmdBrowseChange_Click() {
    const QString answer = DialogOpenFile(QStringLiteral("Load Image File"), QString(), AppPath() + QStringLiteral("\\images"),
                                          QStringLiteral("All Files"), QStringLiteral("There was an error loading an image!"));
    if (answer.isEmpty())
        return;
    const QString path = answer.section(u'^', 0, 0);
    if (!IsInsideProgramFolder(path)) {
        tell(QStringLiteral("You can only use files from your 'Umbrith' folder!"));
        return;
    }
    state_.ChosenPicture = path.mid(AppPath().size());
    lblInfo_[1]->setText(state_.ChosenPicture);
}

// An update without a browse writes the empty path: the part goes back to
// its stand-by picture.
void CCMain::cmdUpdate_Click() {
    const int row = lstAreas_->currentRow();
    if (row < 0)
        return;
    state_.AreaPaths[row] = state_.ChosenPicture;
    game_.PlayerShieldPicturePath = state_.AreaPaths[AreaShield];
    game_.PlayerWeaponPicturePath = state_.AreaPaths[AreaWeapon];
    UpdateCharacter();
    RedrawCharacter();
}

void CCMain::mnuFileNew_Click() {
    state_.AreaPaths = DefaultAreaPaths();
    state_.PreviewDirection = 0;
    UpdateCharacter();
    {
        const QSignalBlocker quiet(lstAreas_);
        lstAreas_->setCurrentRow(0);
    }
    lstAreas_Click();
    picBG_->show();
    mnuFileSave_->setEnabled(true);
}

void CCMain::mnuFileSave_Click() {
    const QString answer = DialogSaveFile(QStringLiteral("Save NPC-Compatible Image"), QString(),
                                          AppPath() + QStringLiteral("\\images\\npcs"),
                                          QStringLiteral("Windows Bitmap (*.bmp)|*.bmp"),
                                          QStringLiteral("There was an error saving an NPC file!"));
    if (answer.isEmpty())
        return;
    const QString path = answer.section(u'^', 0, 0);
    if (!IsInsideProgramFolder(path)) {
        tell(QStringLiteral("You can only save files into your 'Umbrith' folder!"));
        return;
    }
    picSetup_ = NPCSheet(textures_);
    try {
        picSetup_.saveBitmap(path);
    } catch (const RuntimeError& error) {
        tellFailure(QStringLiteral("There was an error saving an NPC file!"), error);
    }
}

void CCMain::mnuFileClose_Click() {
    state_.AreaPaths = NPCAreaPaths();
    picBG_->hide();
    mnuFileSave_->setEnabled(false);
}

} // namespace umbrith
