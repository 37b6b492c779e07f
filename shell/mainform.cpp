#include "shell/mainform.h"

#include "core/misc.h"
#include "core/record.h"
#include "editor/levelmaker.h"
#include "platform/error.h"
#include "platform/platform.h"
#include "shell/aboutform.h"
#include "shell/controls.h"
#include "shell/npccreator.h"
#include "shell/popupbox.h"
#include "shell/rules/intro.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

namespace umbrith {

namespace {

const QRect mapArea(16, 16, 432, 408);

QAction* addItem(QMenu* menu, const char* name, const QString& caption) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    return action;
}

Sequencer& ubmid() { return platform().audio.sequencer(QStringLiteral("ubmid")); }

} // namespace

Main::Main(GameRecord& game, QWidget* parent) : QMainWindow(parent), game_(game) {
    setObjectName(QStringLiteral("Main"));
    setWindowTitle(QStringLiteral("Umbrith"));
    setFixedSize(800, 600);
    setStyleSheet(look::formStyle());

    levelMaker_ = std::make_unique<LevelMaker>();
    connect(levelMaker_.get(), &LevelMaker::returnToMain, this, [this] {
        show();
        giveBackgroundFocus();
    });
    npcCreator_ = std::make_unique<CCMain>(game_, state_.world.textures);
    PopupBox_ = new PopupBox(this);

    Clock& clock = platform().clock;
    introtimer_ = clock.createTimer(QStringLiteral("introtimer"), 4500, [this] { introTick(); });
    typemessage_ = clock.createTimer(QStringLiteral("typemessage"), 20, [this] { messageTick(); });
    popupdisplay_ = clock.createTimer(QStringLiteral("popupdisplay"), 1, [this] { popupDisplayTick(); });

    buildMenus();
    buildScreen();
    buildWorld();
    buildSaves();
    qApp->installEventFilter(this);
    FormLoad();
}

Main::~Main() { qApp->removeEventFilter(this); }

void Main::buildMenus() {
    mnuMain_ = menuBar()->addMenu(QStringLiteral("&Main"));
    mnuMain_->setObjectName(QStringLiteral("mnuMain"));
    addItem(mnuMain_, "mnuMainNew", QStringLiteral("(N)ew Character"));
    addItem(mnuMain_, "mnuMainSave", QStringLiteral("(S)ave Character"))->setEnabled(false);
    addItem(mnuMain_, "mnuMainLoad", QStringLiteral("(L)oad Character"));
    connect(addItem(mnuMain_, "mnuMainCreateCustom", QStringLiteral("(C)reate Custom Levels")), &QAction::triggered, this,
            &Main::mnuMainCreateCustom_Click);
    connect(addItem(mnuMain_, "mnuMainPlayCustom", QStringLiteral("(P)lay Custom Levels")), &QAction::triggered, this,
            &Main::mnuMainPlayCustom_Click);
    connect(addItem(mnuMain_, "mnuMainOptions", QStringLiteral("(O)ptions")), &QAction::triggered, this,
            &Main::mnuMainOptions_Click);
    connect(addItem(mnuMain_, "mnuMainBattle", QStringLiteral("(B)attle Arena!")), &QAction::triggered, this,
            [this] { ShowPopup(QStringLiteral("'Battle Arena' Coming Soon!"), QStringLiteral("Umbrith")); });
    connect(addItem(mnuMain_, "mnuMainExit", QStringLiteral("E(x)it Umbrith")), &QAction::triggered, this, [this] {
        if (askExit())
            endProgram();
    });

    mnuHelp_ = menuBar()->addMenu(QStringLiteral("&Help"));
    mnuHelp_->setObjectName(QStringLiteral("mnuHelp"));
    connect(addItem(mnuHelp_, "mnuHelpAbout", QStringLiteral("About 'Umbrith'")), &QAction::triggered, this,
            [this] { (new About(this))->show(); });
}

QAction* Main::action(const char* name) const { return findChild<QAction*>(QLatin1String(name)); }

void Main::buildScreen() {
    auto* screen = new QWidget(this);
    screen->setObjectName(QStringLiteral("screen"));
    screen->setStyleSheet(QStringLiteral("QWidget#screen { background: qlineargradient(x1:0, y1:0, x2:1, y2:1, "
                                         "stop:0 #1c1611, stop:1 #0b0908); }"));
    setCentralWidget(screen);

    auto* mapBorder = new QFrame(screen);
    mapBorder->setGeometry(mapArea.adjusted(-3, -3, 3, 3));
    mapBorder->setStyleSheet(QStringLiteral("border: 3px solid #5a4526; background: black;"));

    // The off-screen composition of the map lies under the picture shown.
    totallevel_ = new QLabel(screen);
    totallevel_->setObjectName(QStringLiteral("totallevel"));
    totallevel_->setGeometry(mapArea);
    totallevel_->hide();
    background_ = new QLabel(screen);
    background_->setObjectName(QStringLiteral("background"));
    background_->setGeometry(mapArea);
    background_->setStyleSheet(QStringLiteral("background: black; border: none;"));
    background_->setFocusPolicy(Qt::StrongFocus);

    auto* side = new QFrame(screen);
    side->setGeometry(472, 13, 312, 414);
    side->setStyleSheet(QStringLiteral("QFrame { border: 3px solid #5a4526; background: #120e0b; }"
                                       "QLabel { border: none; background: transparent; }"));
    QLabel* title = heading(QStringLiteral("U M B R I T H"), side);
    title->setAlignment(Qt::AlignCenter);
    title->setGeometry(0, 16, 312, 30);
    for (int i = 0; i < 3; ++i) {
        auto* stat = new QLabel(side);
        stat->setObjectName(arrayName("lblPStats", i));
        stat->setGeometry(20, 70 + 28 * i, 272, 24);
        stat->hide();
        lblPStats_.append(stat);
    }

    buildIntro();
    buildOptions();
    buildMessages();
    buildJournal();
    buildNewGame();
    buildPlayerInfo();
}

void Main::buildIntro() {
    introframe_ = panel("introframe", mapArea, centralWidget());
    introframe_->setStyleSheet(QStringLiteral("QFrame#introframe { border: none; background: qlineargradient(x1:0, y1:0, "
                                              "x2:0, y2:1, stop:0 #241a12, stop:0.6 #120d0a, stop:1 #050404); }"
                                              "QLabel { background: transparent; }"));
    QLabel* title = heading(QStringLiteral("Umbrith"), introframe_);
    title->setStyleSheet(title->styleSheet() + QStringLiteral("font-size: 44px; letter-spacing: 4px;"));
    title->setAlignment(Qt::AlignCenter);
    title->setGeometry(0, 28, 432, 60);

    lblintromsg_ = new QLabel(introframe_);
    lblintromsg_->setObjectName(QStringLiteral("lblintromsg"));
    lblintromsg_->setGeometry(24, 110, 384, 90);
    lblintromsg_->setAlignment(Qt::AlignCenter);
    lblintromsg_->setWordWrap(true);
    lblintromsg_->setStyleSheet(QStringLiteral("color: %1; font-size: 16px; font-style: italic;").arg(QLatin1String(look::parchment)));

    const char* const captions[] = {"(L)oad Game", "(N)ew Game", "(B)attle Arena", "E(x)it Umbrith"};
    const char* const actions[] = {"mnuMainLoad", "mnuMainNew", "mnuMainBattle", "mnuMainExit"};
    for (int i = 0; i < 4; ++i) {
        const QRect place(0, 224 + 36 * i, 432, 32);
        // The shadow twin first, so the caption stands in front of it.
        auto* shadow = new QLabel(QString::fromUtf8(captions[i]), introframe_);
        shadow->setObjectName(arrayName("lblshowatstart", i + 4));
        shadow->setGeometry(place.translated(2, 2));
        shadow->setAlignment(Qt::AlignCenter);
        shadow->setStyleSheet(QStringLiteral("color: black; font-size: 20px; font-weight: bold;"));
        auto* label = new ClickLabel(arrayName("lblshowatstart", i), QString::fromUtf8(captions[i]), introframe_);
        label->setGeometry(place);
        label->setAlignment(Qt::AlignCenter);
        label->setStyleSheet(QStringLiteral("QLabel { color: %1; font-size: 20px; font-weight: bold; }"
                                            "QLabel:hover { color: #f5e7b8; }")
                                 .arg(QLatin1String(look::gold)));
        QAction* target = action(actions[i]);
        connect(label, &ClickLabel::clicked, target, &QAction::trigger);
    }
}

void Main::buildOptions() {
    optionsframe_ = panel("optionsframe", QRect(86, 96, 300, 236), centralWidget());
    heading(QStringLiteral("Options"), optionsframe_)->setGeometry(16, 10, 200, 28);
    chkMusic_ = new QCheckBox(QStringLiteral("Play Music"), optionsframe_);
    chkMusic_->setObjectName(QStringLiteral("chkMusic"));
    chkMusic_->setChecked(true);
    chkMusic_->setGeometry(20, 44, 200, 24);
    chkSounds_ = new QCheckBox(QStringLiteral("Play Sounds"), optionsframe_);
    chkSounds_->setObjectName(QStringLiteral("chkSounds"));
    chkSounds_->setChecked(true);
    chkSounds_->setGeometry(20, 70, 200, 24);
    connect(chkSounds_, &QCheckBox::toggled, this, [](bool on) { SoundsOn = on; });
    SoundsOn = true;

    optmessage_ = new QButtonGroup(this);
    const char* const modes[] = {"Type Message", "Paste Message", "Both"};
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(modes[i]), optionsframe_);
        option->setObjectName(arrayName("optmessage", i));
        option->setGeometry(20, 104 + 26 * i, 200, 24);
        optmessage_->addButton(option, i);
    }
    optmessage_->button(2)->setChecked(true);

    auto* cmdDone = new QPushButton(QStringLiteral("Done"), optionsframe_);
    cmdDone->setObjectName(QStringLiteral("cmdDone"));
    cmdDone->setGeometry(196, 192, 88, 30);
    connect(cmdDone, &QPushButton::clicked, this, &Main::cmdDone_Click);
}

void Main::FormLoad() {
    ubmid().onDone = [this](int status) { musicDone(status); };
    LoadHelpTopics();
    EnterGameDisplay(state_);
    state_.introIndex = 1;
    StartIntro();
    giveBackgroundFocus();
    raise();
}

void Main::giveBackgroundFocus() { background_->setFocus(); }

void Main::ShowNPCCreator() {
    npcCreator_->show();
    npcCreator_->raise();
    npcCreator_->activateWindow();
}

void Main::StartIntro() {
    lblintromsg_->clear();
    introframe_->show();
    background_->clear();
    state_.GameLoaded = false;
    ResetMap(state_.world);
    // Music trouble never stops the intro; a piece that can't start is skipped.
    try {
        ubmid().fileName.clear();
        ubmid().command(QStringLiteral("Close"));
        if (chkMusic_->isChecked()) {
            ubmid().fileName = AppPath() + IntroPiece(platform().random.draw());
            ubmid().command(QStringLiteral("Open"));
            ubmid().command(QStringLiteral("Play"));
        }
    } catch (const RuntimeError&) {
    }
    state_.introIndex = 1;
    introtimer_->setEnabled(true);
}

void Main::introTick() {
    const IntroTick tick = NextIntroLine(state_.introIndex);
    lblintromsg_->setText(tick.caption);
    if (!tick.goesOn)
        introtimer_->setEnabled(false);
}

// A map's piece starts again each time it ends.
void Main::musicDone(int status) {
    if (status != 1 || state_.CurrentMusic.isEmpty())
        return;
    try {
        ubmid().command(QStringLiteral("Close"));
        ubmid().fileName = AppPath() + state_.CurrentMusic;
        if (chkMusic_->isChecked()) {
            ubmid().command(QStringLiteral("Open"));
            ubmid().command(QStringLiteral("Play"));
        }
    } catch (const RuntimeError&) {
    }
}

void Main::mnuMainOptions_Click() {
    if (isTrue(game_.ScreenPanelOpen))
        return;
    optionsframe_->show();
    optionsframe_->raise();
}

void Main::cmdDone_Click() {
    optionsframe_->hide();
    giveBackgroundFocus();
}

bool Main::askExit() {
    return platform().dialogs.message(QStringLiteral("Are you sure you wish to exit Umbrith?"), QStringLiteral("Are you sure?"),
                                      Buttons::YesNo, Icon::Question) == Answer::Yes;
}

// The notes are saved and the music closed; a failure of either still ends.
void Main::endProgram() {
    try {
        writeRecordFile(AppPath() + QStringLiteral("\\notes.ubc"), {levelMaker_->notes()});
    } catch (const RuntimeError&) {
    }
    try {
        ubmid().command(QStringLiteral("Close"));
    } catch (const RuntimeError&) {
    }
    RestoreDisplay(state_);
    emit programEnded();
}

// The close box asks too, but ends the program whatever the answer.
void Main::closeEvent(QCloseEvent* event) {
    askExit();
    endProgram();
    event->accept();
}

void Main::mnuMainCreateCustom_Click() {
    if (isTrue(game_.GameRunning)) {
        if (isTrue(game_.ScreenPanelOpen))
            return;
        if (platform().dialogs.message(QStringLiteral("Are you sure you wish to leave your game? You will lose any progress "
                                                      "since your last save!"),
                                       QStringLiteral("Are you sure?"), Buttons::YesNo, Icon::Question) == Answer::No)
            return;
        LeaveGame(game_, state_);
        setWorldTimers(false);
        UpdateStats();
        for (QLabel* stat : lblPStats_)
            stat->hide();
        txtJE_->clear();
        introtimer_->setEnabled(false);
        introframe_->hide();
        lblintromsg_->clear();
        totallevel_->hide();
        background_->clear();
        action("mnuMainSave")->setEnabled(false);
        try {
            ubmid().command(QStringLiteral("Close"));
            ubmid().fileName.clear();
        } catch (const RuntimeError&) {
        }
    }
    levelMaker_->show();
    hide();
    levelMaker_->activateWindow();
}

void Main::mnuMainPlayCustom_Click() {
    if (isTrue(game_.ScreenPanelOpen))
        return;
    SetTesterValues(game_);
    LoadPaperDoll(state_.world.textures, game_);
    PlayGame(1);
}

void Main::PlayGame(int mode) {
    const QString map = PlayGameStartMap(mode);
    if (map.isEmpty())
        return;
    introframe_->hide();
    introtimer_->setEnabled(false);
    game_.IsDay = true;
    game_.BattleActive = false;
    state_.GameLoaded = true;
    prepareWorldForGame();
    Changemap(map, false, QString());
    totallevel_->show();
    totallevel_->lower();
    game_.GameRunning = true;
}

} // namespace umbrith
