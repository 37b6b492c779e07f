#include "tests/shell/newgametest.h"

#include <QAction>
#include <QPlainTextEdit>

namespace umbrith {
namespace {

TEST_F(NewGameTest, aPlayerPicksARealmSpendsThePointsAndStartsOnItsMap) {
    writeRealm("fenwick.ubr", fenwick());
    writeMap("\\maps\\fen.ubm");
    start();
    press(Qt::Key_N);
    EXPECT_TRUE(visible("NewGameFrame"));
    EXPECT_TRUE(isTrue(game.ScreenPanelOpen));
    auto* realms = control<QListWidget>("lstRealms");
    ASSERT_EQ(realms->count(), 1);
    EXPECT_EQ(realms->item(0)->text(), "Fenwick");
    realms->setCurrentRow(0);
    EXPECT_EQ(text("txtDescription"), "Marsh and mist.");

    whileWelcomeWaits({
        [&] {
            EXPECT_TRUE(isTrue(game.CharacterCreationActive));
            EXPECT_EQ(on<QComboBox>("Welcome", "race")->currentText(), "Elf");
            EXPECT_EQ(on<QLabel>("Welcome", "lblBStats(6)")->text(), "7");
            EXPECT_EQ(on<QLineEdit>("Welcome", "txtName")->text(), "Wren");
            setBox(0, "3");
            EXPECT_EQ(on<QLabel>("Welcome", "lblpointsleft")->text(), "2");
            create();
        },
        [&] {
            setBox(1, "3");
            create();
        },
        [&] {
            setBox(1, "2");
            on<QLineEdit>("Welcome", "txtName")->setText("Ash");
            create();
        },
    });
    emit control<ClickLabel>("lblNG(0)")->clicked();

    ASSERT_GE(scripted.boxes.size(), 2);
    EXPECT_EQ(scripted.boxes[0].text, "Please use all your available points!");
    EXPECT_EQ(scripted.boxes[0].title, "Umbrith");
    EXPECT_EQ(scripted.boxes[1].text, "You are using too many points!");
    EXPECT_EQ(game.PlayerName.text(), "Ash");
    EXPECT_EQ(game.PlayerRace.text(), "Elf");
    EXPECT_EQ(game.PlayerStrength.num(), 4);
    EXPECT_EQ(game.PlayerDefence.num(), 4);
    EXPECT_EQ(game.PlayerMaxHP.num(), 3);
    EXPECT_EQ(game.PlayerGold.num(), 200);
    EXPECT_FALSE(isTrue(game.CharacterCreationActive));
    EXPECT_TRUE(isTrue(game.GameRunning));
    EXPECT_EQ(game.CurrentLevel.text(), "fen.ubm");
    EXPECT_EQ(ListFiles[StartMapFile], "\\maps\\fen.ubm");
    EXPECT_EQ(ListFiles[ItemListFile], DefaultListFiles()[1]);
    EXPECT_FALSE(visible("NewGameFrame"));
    EXPECT_FALSE(visible("introframe"));
    EXPECT_FALSE(welcome()->isVisible());
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(NewGameTest, aRealmWithFixedStatisticsAndNoRacesOffersHumanAndNeedsNoPoints) {
    Realm realm = fenwick();
    realm.races = "";
    realm.statsEditable = "0";
    realm.nameEditable = "0";
    writeRealm("fixed.ubr", realm);
    writeMap("\\maps\\fen.ubm");
    start();
    whileWelcomeWaits({[&] {
        EXPECT_FALSE(on("Welcome", "lblpointsleft")->isVisible());
        EXPECT_TRUE(on<QLineEdit>("Welcome", "txtName")->isReadOnly());
        EXPECT_TRUE(on<QLineEdit>("Welcome", "elements(0)")->isReadOnly());
        auto* race = on<QComboBox>("Welcome", "race");
        EXPECT_EQ(race->count(), 1);
        EXPECT_EQ(race->currentText(), "Human");
        setBox(0, "40"); // the points aren't counted
        create();
    }});
    play();
    EXPECT_TRUE(scripted.boxes.isEmpty());
    EXPECT_EQ(game.PlayerRace.text(), "Human");
    EXPECT_EQ(game.PlayerStrength.num(), 41);
    EXPECT_TRUE(isTrue(game.GameRunning));
}

TEST_F(NewGameTest, cancellingTheCharacterLeavesThePanelUpAndCancelClosesIt) {
    writeRealm("fenwick.ubr", fenwick());
    start();
    whileWelcomeWaits({[&] { on<QAbstractButton>("Welcome", "cmdCancel")->click(); }});
    play();
    EXPECT_FALSE(isTrue(game.CharacterCreationActive));
    EXPECT_FALSE(welcome()->isVisible());
    EXPECT_TRUE(visible("NewGameFrame"));
    emit control<ClickLabel>("lblNG(1)")->clicked();
    EXPECT_FALSE(visible("NewGameFrame"));
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(NewGameTest, aMissingStartMapIsAMapErrorAndTheIntroStays) {
    writeRealm("fenwick.ubr", fenwick());
    start();
    whileWelcomeWaits({[&] {
        setBox(0, "5");
        create();
    }});
    play();
    ASSERT_EQ(scripted.boxes.size(), 1);
    EXPECT_EQ(scripted.boxes[0].title, "Map Error");
    EXPECT_TRUE(scripted.boxes[0].text.endsWith("misplaced: \\maps\\fen.ubm"));
    EXPECT_FALSE(isTrue(game.GameRunning));
    EXPECT_TRUE(visible("introframe"));
    EXPECT_FALSE(visible("NewGameFrame"));
}

TEST_F(NewGameTest, aBrokenRealmIsRefusedWithOneMessageAndTheGameGoesOn) {
    Realm forked = fenwick();
    forked.name = QString::fromUtf8("Fork ƒ Realm"); // shifts every field behind the name
    writeRealm("a-forked.ubr", forked);
    Realm listless = fenwick();
    listless.listFiles = ":\\config\\equip lists\\equiplist.ubc";
    writeRealm("b-listless.ubr", listless);
    writeFile("\\realms\\c-notarealm.ubr", "");
    writeFile("\\realms\\d-text.ubr", "\"just some words\"\r\n");
    start();
    press(Qt::Key_N);
    ASSERT_EQ(scripted.boxes.size(), 1);
    EXPECT_EQ(scripted.boxes[0].text, "These files in \\realms could not be read as realms:\nc-notarealm.ubr: Input past end of file");
    auto* realms = control<QListWidget>("lstRealms");
    ASSERT_EQ(realms->count(), 3);
    EXPECT_EQ(realms->item(0)->text(), "Fork ");
    for (int row = 0; row < 3; ++row) {
        realms->setCurrentRow(row);
        emit control<ClickLabel>("lblNG(0)")->clicked();
        EXPECT_EQ(scripted.boxes.last().title, "Realm Error") << row;
        EXPECT_FALSE(welcome()->isVisible());
    }
    EXPECT_EQ(scripted.boxes[1].text, "This realm can't be started: its file is damaged or incomplete (Subscript out of range).");
    EXPECT_TRUE(visible("NewGameFrame"));
    EXPECT_FALSE(isTrue(game.CharacterCreationActive));
}

TEST_F(NewGameTest, playDoesNothingWithoutARealmSelected) {
    writeRealm("fenwick.ubr", fenwick());
    start();
    press(Qt::Key_N);
    emit control<ClickLabel>("lblNG(0)")->clicked();
    EXPECT_FALSE(welcome()->isVisible());
    EXPECT_TRUE(scripted.boxes.isEmpty());
}

TEST_F(NewGameTest, aMakerCreatesARealmAndFindsItInTheList) {
    writeMap("\\maps\\fen.ubm");
    writeFile("\\realms\\notes.txt", "");
    start();
    press(Qt::Key_N);
    EXPECT_EQ(control<QListWidget>("lstRealms")->count(), 0);
    QWidget* editor = nullptr;
    for (QWidget* form : QApplication::topLevelWidgets())
        if (form->objectName() == "LevelMaker")
            editor = form;
    ASSERT_NE(editor, nullptr);
    editor->findChild<QAction*>("mnuFileCreateRealm")->trigger();
    QWidget* form = editor->findChild<QWidget*>("RegRealm");
    ASSERT_TRUE(form && form->isVisible());
    auto field = [&](const QString& name) { return form->findChild<QLineEdit*>(name); };
    auto click = [&](const QString& name) { form->findChild<QAbstractButton*>(name)->click(); };

    click("cmdDone");
    EXPECT_EQ(scripted.boxes.last().text, "Unable to create! You are forgetting very important parts!");
    field("txtName")->setText("Fenwick");
    form->findChild<QPlainTextEdit*>("txtDescription")->setPlainText("Marsh and mist.");
    // The file is asked for first; a list still missing writes nothing.
    scripted.queueFile(AppPath() + "\\realms\\fen.ubr");
    click("cmdDone");
    EXPECT_EQ(scripted.boxes.last().text,
              "You MUST select which equipment/items/skills/enemies list you will use! Ensure you have them all chosen!");
    EXPECT_EQ(readFile("\\realms\\fen.ubr"), "");

    scripted.queueFile("\\outside.ubc");
    click("cmdLists(0)");
    EXPECT_EQ(scripted.boxes.last().text, "Only use files located within the Umbrith parent directory!");
    EXPECT_EQ(field("txtLists(0)")->text(), "");
    for (int i = 0; i < 4; ++i) {
        scripted.queueFile(AppPath() + DefaultListFiles()[i]);
        click(arrayName("cmdLists", i));
        EXPECT_EQ(field(arrayName("txtLists", i))->text(), DefaultListFiles()[i]);
    }
    EXPECT_EQ(scripted.boxes.last().title, "Browse for Configuration File");
    scripted.queueFile(AppPath() + "\\maps\\fen.ubm");
    click("cmdLists(4)");
    EXPECT_EQ(scripted.boxes.last().title, "Browse for Map File");

    click("cmdRaces(0)");
    EXPECT_TRUE(form->findChild<QWidget*>("RaceFrame")->isVisible());
    field("txtRName")->setText("Elf");
    click("cmdRace(0)");
    EXPECT_FALSE(form->findChild<QWidget*>("RaceFrame")->isVisible());
    EXPECT_EQ(form->findChild<QListWidget*>("lstRaces")->item(0)->text(), "Elf");

    for (int i = 0; i < 7; ++i)
        field(arrayName("txtStats", i))->setText(QString::number(i));
    click("optBD(1)");
    for (int i = 0; i < 7; ++i)
        field(arrayName("txtStats", i))->setText(QString::number(10 + i));
    // Base statistics are doubles: a decimal point can be typed.
    field("txtStats(0)")->clear();
    for (const QChar c : QStringLiteral("10.5x")) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(field("txtStats(0)"), &key);
    }
    EXPECT_EQ(field("txtStats(0)")->text(), "10.5");
    click("optBD(0)");
    EXPECT_EQ(field("txtStats(6)")->text(), "6");
    field("txtStatStart")->setText("5");
    field("txtStatLev")->setText("2");
    form->findChild<QAbstractButton*>("chkPSS")->setChecked(true);
    field("txtDefName")->setText("Wren");

    scripted.queueFile(AppPath() + "\\realms\\fen.ubr");
    click("cmdDone");
    EXPECT_EQ(scripted.boxes.last().text, "Realm Created!");
    const Realm written = ParseRealm(ReadRealmFile(AppPath() + "\\realms\\fen.ubr"));
    EXPECT_EQ(written.statistics, QString::fromUtf8(":10.5:11:12:13:14:15:16£:0:1:2:3:4:5:6"));
    EXPECT_EQ(written.races, ":Elf");
    EXPECT_TRUE(written.listFiles.endsWith(":\\maps\\fen.ubm"));
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(editor->findChild<QWidget*>("RegRealm"), nullptr);
    ASSERT_EQ(control<QListWidget>("lstRealms")->count(), 1);
    EXPECT_EQ(control<QListWidget>("lstRealms")->item(0)->text(), "Fenwick");
}

} // namespace
} // namespace umbrith
