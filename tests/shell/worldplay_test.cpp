// The world played through the program itself: scripts walk the player and
// the dumps and screenshots show where he went and what the screen showed.
#include "core/misc.h"
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
        QString script = "random 0.1\nanswer-file " + map + "\nclick mnuMainPlayCustom\nwait 200\n";
        for (const QString& key : keys)
            script += "key " + key + "\n";
        script += "wait 200\ndump " + dir.filePath("dump.json") + "\nscreenshot background " + dir.filePath("shot.png") + "\n";
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
        process.waitForFinished(60000);
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        QFile out(dir.filePath("dump.json"));
        ASSERT_TRUE(out.open(QIODevice::ReadOnly));
        dump = QJsonDocument::fromJson(out.readAll()).object();
        shot = QImage(dir.filePath("shot.png")).convertToFormat(QImage::Format_RGB32);
    }

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

} // namespace
} // namespace umbrith
