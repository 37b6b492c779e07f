#pragma once

#include "core/misc.h"
#include "core/realm.h"
#include "shell/controls.h"
#include "tests/shell/mainformtest.h"
#include "tests/support/worldmaps.h"
#include "world/mapfile.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <functional>

namespace umbrith {

// Main with realms to play: a realm file and its map in the program folder,
// and the steps the player takes while the New Character form waits.
class NewGameTest : public MainFormTest {
protected:
    void TearDown() override {
        scripted.onWait = nullptr;
        MainFormTest::TearDown();
    }

    static Realm fenwick() {
        Realm realm;
        realm.name = "Fenwick";
        realm.description = "Marsh and mist.";
        realm.listFiles = ":" + DefaultListFiles()[0] + ":" + DefaultListFiles()[1] + ":" + DefaultListFiles()[2] + ":" +
                          DefaultListFiles()[3] + ":\\maps\\fen.ubm";
        realm.races = ":Elf:Human";
        realm.statsEditable = "1";
        realm.pointsAtStart = "5";
        realm.statistics = QString::fromUtf8(":1:2:3:4:5:6:7£:0:0:0:0:0:0:0");
        realm.pointsPerLevel = "2";
        realm.nameEditable = "1";
        realm.defaultName = "Wren";
        return realm;
    }

    void writeRealm(const QString& file, const Realm& realm) {
        writeFile("\\realms\\" + file, "");
        WriteRealmFile(AppPath() + "\\realms\\" + file, RealmRecord(realm));
    }

    // A map of one passable tile.
    // A small real map on the test tileset, so the game enters it for real.
    void writeMap(const QString& relative) {
        testmaps::writeTestTileset();
        testmaps::TestMap(18, 17).write(relative);
    }

    // Each look of the wait for the New Character form runs the next step.
    void whileWelcomeWaits(QList<std::function<void()>> steps) {
        steps_ = std::move(steps);
        scripted.onWait = [this] {
            if (steps_.isEmpty()) {
                ADD_FAILURE() << "the form waits with no step left";
                welcome()->hide();
                return;
            }
            steps_.takeFirst()();
        };
    }

    // Picks the realm at `row` and plays it.
    void play(int row = 0) {
        press(Qt::Key_N);
        control<QListWidget>("lstRealms")->setCurrentRow(row);
        emit control<ClickLabel>("lblNG(0)")->clicked();
    }

    QWidget* welcome() { return control("Welcome"); }
    template <typename T = QWidget> T* on(const char* form, const QString& name) {
        T* found = control(form)->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    void setBox(int i, const QString& text) { on<QLineEdit>("Welcome", arrayName("elements", i))->setText(text); }
    void create() { on<QAbstractButton>("Welcome", "cmdcreate")->click(); }

    // A game started on the Fenwick realm with all points on strength.
    void startRealmGame() {
        writeRealm("fenwick.ubr", fenwick());
        writeMap("\\maps\\fen.ubm");
        start();
        whileWelcomeWaits({[&] {
            setBox(0, "5");
            create();
        }});
        play();
        scripted.onWait = nullptr;
        ASSERT_TRUE(isTrue(game.GameRunning));
    }

    QList<std::function<void()>> steps_;
};

} // namespace umbrith
