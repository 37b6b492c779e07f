// The world played through the program itself: scripts walk the player and
// the dumps and screenshots show where he went and what the screen showed.
#include "core/misc.h"
#include "events/eventfile.h"
#include "tests/support/worldmaps.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace umbrith {
namespace {

using testmaps::TestMap;
using testmaps::tileColor;

class WorldPlayTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        QDir(dir.path()).mkpath("root/maps");
        setAppPath(dir.filePath("root"));
        testmaps::writeTestTileset();
        testmaps::writeNpcSheet("\\images\\npcs\\one.bmp", qRgb(255, 0, 0));
    }

    // Tiles by (x + y) % 10, so the screen's first cell tells where it starts.
    static TestMap patterned(int width, int height) {
        TestMap map(width, height);
        for (int y = 0; y <= height; ++y)
            for (int x = 0; x <= width; ++x)
                map.set(x, y, QString::number(24 * ((x + y) % 10)) + "|0", "1");
        return map;
    }

    // Plays a custom game of `map` with the keys, then dumps and screenshots.
    void play(const QString& map, const QStringList& keys) {
        QStringList lines;
        for (const QString& key : keys)
            lines << "key " + key;
        run(map, lines + QStringList{"wait 200", dumpTo("dump.json"), "screenshot background " + dir.filePath("shot.png")});
        dump = readDump("dump.json");
        shot = QImage(dir.filePath("shot.png")).convertToFormat(QImage::Format_RGB32);
    }

    // Plays a custom game of `map` with the script lines after the start,
    // which leaves the virtual clock at 200 ms past the map's timers.
    void run(const QString& map, const QStringList& lines) {
        const QString script = "random 0.1\nanswer-file " + map + "\nclick mnuMainPlayCustom\nwait 200\n" + lines.join('\n') + '\n';
        QFile file(dir.filePath("script.txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(script.toUtf8());
        file.close();
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("SDL_AUDIODRIVER", "dummy");
        process.setProcessEnvironment(env);
        process.start(UMBRITH_EXECUTABLE, {"--root", dir.filePath("root"), "--offscreen", "--script", dir.filePath("script.txt")});
        process.waitForFinished(120000);
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    }
    QJsonObject readDump(const QString& name) const {
        QFile out(dir.filePath(name));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly)) << name.toStdString();
        return QJsonDocument::fromJson(out.readAll()).object();
    }
    QString dumpTo(const QString& name) const { return "dump " + dir.filePath(name); }

    QStringList repeat(const QString& key, int times) { return QStringList(times, key); }
    QPoint player() const { return {dump["PlayerX"].toString().toInt(), dump["PlayerY"].toString().toInt()}; }

    QTemporaryDir dir;
    QJsonObject dump;
    QImage shot;
};

TEST_F(WorldPlayTest, thePlayerScrollsTheMapAtEveryEdgeAndBumpsItsBorders) {
    patterned(39, 29).write("\\maps\\big.ubm");
    play("\\maps\\big.ubm", repeat("Right", 30));
    EXPECT_EQ(player(), QPoint(31, 1));
    EXPECT_EQ(dump["LevelWidth"].toDouble(), 38);
    // The screen's first column is the last one minus 17.
    EXPECT_EQ(shot.pixel(5, 5), tileColor((21 + 0) % 10, 0));

    play("\\maps\\big.ubm", repeat("Right", 45) + repeat("Down", 40));
    EXPECT_EQ(player(), QPoint(38, 28));
    EXPECT_EQ(shot.pixel(5, 5), tileColor((21 + 12) % 10, 0));

    play("\\maps\\big.ubm", repeat("Down", 15) + repeat("Right", 15) + repeat("Left", 3) + repeat("Up", 2));
    EXPECT_EQ(player(), QPoint(13, 14));
    // Centred: the screen starts 8 columns left and 9 rows up of the player.
    EXPECT_EQ(shot.pixel(5, 5), tileColor((5 + 5) % 10, 0));
}

TEST_F(WorldPlayTest, wallsAndVisibleNpcsStopThePlayerAndHiddenNpcsDoNot) {
    TestMap map = patterned(20, 20);
    map.set(2, 1, "0|24", "2");
    map.file.npcs = QString(u'ƒ') + testmaps::npcRecord("Guard", "1;3") + u'ƒ' + testmaps::npcRecord("Ghost", "3;3", "\\images\\npcs\\one.bmp", "0");
    map.write("\\maps\\walls.ubm");
    play("\\maps\\walls.ubm", {"Right", "Down", "Down"});
    EXPECT_EQ(player(), QPoint(1, 2));
    EXPECT_EQ(dump["PlayerFacing"].toString(), "0");
    // The guard's figure stands on the screen at his cell, below the player.
    EXPECT_EQ(shot.pixel(24 + 5, 3 * 24 - 24 + 30), qRgb(255, 0, 0));

    play("\\maps\\walls.ubm", {"Down", "Right", "Right", "Down"});
    EXPECT_EQ(player(), QPoint(3, 3));
}

TEST_F(WorldPlayTest, tileWarpsAndScreenEdgesTakeThePlayerToTheirMaps) {
    TestMap home = patterned(18, 17);
    home.file.specials = WarpSpecial("3;1", "\\maps\\cave.ubm", "4;5");
    home.file.screenWarps = "\\maps\\cave.ubm|||";
    home.write("\\maps\\home.ubm");
    TestMap cave = patterned(30, 25);
    cave.file.startLocation = "6|6";
    cave.write("\\maps\\cave.ubm");

    play("\\maps\\home.ubm", {"Right", "Right", "Down"});
    EXPECT_EQ(dump["CurrentMapPath"].toString(), "\\maps\\cave.ubm");
    EXPECT_EQ(player(), QPoint(4, 6));
    EXPECT_EQ(dump["LevelWidth"].toDouble(), 29);

    play("\\maps\\home.ubm", {"Up", "Up"});
    EXPECT_EQ(dump["CurrentMapPath"].toString(), "\\maps\\cave.ubm");
    EXPECT_EQ(player(), QPoint(1, 24)); // the target's height less one
}

TEST_F(WorldPlayTest, aMissingOrDamagedMapIsReportedInItsOwnWords) {
    TestMap home = patterned(18, 17);
    home.file.screenWarps = "|\\maps\\gone.ubm||";
    home.write("\\maps\\home.ubm");
    play("\\maps\\home.ubm", repeat("Down", 17) + QStringList{"Space"});
    QJsonArray boxes = dump["boxes"].toArray();
    ASSERT_FALSE(boxes.isEmpty());
    EXPECT_EQ(boxes.last()["title"].toString(), "Map Missing");
    EXPECT_EQ(boxes.last()["text"].toString(), "The map file: \\maps\\gone.ubm is not in its proper folder or it is missing!");
}

// The NPC's place and sprite row as "x;y row" in MovableNPCs of a dump.
QString npcIn(const QJsonObject& dump, const QString& name) {
    for (const QString& record : dump["MovableNPCs"].toString().split(';', Qt::SkipEmptyParts)) {
        const QStringList a = record.split(':');
        if (a.value(7) == name)
            return a[1] + ';' + a[0] + ' ' + a[3];
    }
    return "gone";
}

TEST_F(WorldPlayTest, npcsFollowAndWanderOnTheirTimerStandUnderAPanelAndBumpThePlayer) {
    TestMap map = patterned(18, 17);
    QStringList pip = testmaps::npcRecord("Pip", "10;10").split(':');
    pip[NpcWanders] = "1";
    map.file.npcs = QString(u'ƒ') + testmaps::npcRecord("Dog", "6;1", "\\images\\npcs\\one.bmp", "1", "1", "0", "\\events\\dog.ube") +
                    u'ƒ' + pip.join(':');
    map.write("\\maps\\yard.ubm");
    testmaps::makeFolder("\\events\\dog.ube");
    SaveEventFile(AppPath() + "\\events\\dog.ube", "Woof£-2;-2££*Woof^2");

    run("\\maps\\yard.ubm", {
        "random 0.9", "wait 200", dumpTo("moved.json"),            // one tick: the dog closes in, Pip stands
        "key P", "wait 900", dumpTo("panel.json"),                 // three ticks under the stats panel
        "key C", "random 0.1 0.9", "wait 300", dumpTo("again.json"), // the dog again, Pip to the right
        "screenshot background " + dir.filePath("shot.png"),
        "random 0.9 0.9 0.9", "wait 900", dumpTo("bump.json"),     // two steps, then the bump
    });
    EXPECT_EQ(npcIn(readDump("moved.json"), "Dog"), "5;1 2");
    EXPECT_EQ(npcIn(readDump("moved.json"), "Pip"), "10;10 0");
    EXPECT_EQ(npcIn(readDump("panel.json"), "Dog"), "5;1 2");
    // The walk frames rise to 2 in two ticks, hold under the panel, then fall.
    EXPECT_EQ(readDump("moved.json")["WalkFrame"].toInt(), 2);
    EXPECT_EQ(readDump("panel.json")["WalkFrame"].toInt(), 2);
    const QJsonObject again = readDump("again.json");
    EXPECT_EQ(npcIn(again, "Dog"), "4;1 2");
    EXPECT_EQ(npcIn(again, "Pip"), "11;10 3");
    EXPECT_EQ(again["WalkFrame"].toInt(), 0);
    EXPECT_TRUE(again["NPCAt"].toObject()["4;1"].toString().startsWith("Dog:"));
    EXPECT_FALSE(again["NPCAt"].toObject().contains("5;1"));
    // The dog's figure stands on its new cell.
    shot = QImage(dir.filePath("shot.png")).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(shot.pixel(4 * 24 + 5, 24 + 10), qRgb(255, 0, 0));

    dump = readDump("bump.json");
    EXPECT_EQ(npcIn(dump, "Dog"), "2;1 2");
    EXPECT_EQ(dump["LastCheckX"].toString(), "Item");
    EXPECT_TRUE(dump["BlockedX"].toBool());
    EXPECT_EQ(player(), QPoint(1, 1));
}

TEST_F(WorldPlayTest, theWorldDarkensAfterElevenMinutesOfPlayAndLightensElevenLater) {
    TestMap map = patterned(18, 17);
    map.file.night = 1;
    map.write("\\maps\\night.ubm");
    // The stats panel stands through both phases: the clock runs on under it.
    run("\\maps\\night.ubm", {
        "key P", "wait 660000", "key C", "wait 200", dumpTo("night.json"), "screenshot background " + dir.filePath("night.png"),
        "key P", "wait 660000", "key C", "wait 200", dumpTo("day.json"), "screenshot background " + dir.filePath("day.png"),
    });
    const QJsonObject night = readDump("night.json");
    EXPECT_EQ(night["IsDay"].toString(), "False");
    EXPECT_EQ(night["DaysPassed"].toString(), "0");
    EXPECT_EQ(QImage(dir.filePath("night.png")).pixel(5, 5), tileColor(0, 0) & 0xFF7F7F7F);
    const QJsonObject day = readDump("day.json");
    EXPECT_EQ(day["IsDay"].toString(), "True");
    EXPECT_EQ(day["DaysPassed"].toString(), "1");
    EXPECT_EQ(QImage(dir.filePath("day.png")).pixel(5, 5), tileColor(0, 0));
}

} // namespace
} // namespace umbrith
