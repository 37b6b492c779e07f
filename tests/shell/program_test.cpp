#include "tests/support/dollparts.h"
#include "tests/support/worldmaps.h"

#include <QDir>
#include <QImage>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct ProgramRun {
    int exitCode;
    QString errors;
};

ProgramRun runProgram(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("SDL_AUDIODRIVER", "dummy");
    process.setProcessEnvironment(env);
    process.start(UMBRITH_EXECUTABLE, arguments);
    process.waitForFinished(30000);
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError())};
}


} // namespace

TEST(ProgramTest, helpAndVersionAnswerWithoutAWindowAndAnUnknownOptionIsRefusedWithTheUsage) {
    QProcess process;
    process.start(UMBRITH_EXECUTABLE, {"--help"});
    process.waitForFinished(30000);
    EXPECT_EQ(process.exitCode(), 0);
    const QString help = QString::fromLocal8Bit(process.readAllStandardOutput());
    for (const char* option : {"--root DIR", "--script FILE", "--dump FILE", "--soundfont FILE", "--offscreen", "--help",
                               "--version"})
        EXPECT_TRUE(help.contains(option)) << option;

    process.start(UMBRITH_EXECUTABLE, {"--version"});
    process.waitForFinished(30000);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(process.readAllStandardOutput().startsWith("Umbrith "));

    for (const QStringList& wrong : {QStringList{"--fly"}, QStringList{"--root"}}) {
        ProgramRun run = runProgram(wrong);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.errors.startsWith("umbrith: ")) << run.errors.toStdString();
        EXPECT_TRUE(run.errors.contains("usage: umbrith")) << run.errors.toStdString();
    }
}

TEST(ProgramTest, aMissingProgramFolderIsRefusedWithOneMessage) {
    ProgramRun run = runProgram({"--root", "/nonexistent/umbrith"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.contains("does not exist")) << run.errors.toStdString();
    EXPECT_EQ(run.errors.count('\n'), 1);
}

TEST(ProgramTest, anUnwritableProgramFolderIsRefused) {
    // Not even root can create files in /proc.
    ProgramRun run = runProgram({"--root", "/proc"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.contains("cannot be written")) << run.errors.toStdString();
}

namespace {

// A program folder of its own, a script run against it, and the dump it wrote.
class ScriptRunTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        QDir(dir.path()).mkpath("root/maps");
        QDir(dir.path()).mkpath("root/sfx");
    }

    void writeFile(const QString& relative, const QByteArray& bytes) {
        QFile file(dir.filePath(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    ProgramRun play(const QString& script) {
        writeFile("script.txt", script.toUtf8());
        return runProgram({"--root", dir.filePath("root"), "--offscreen", "--script", dir.filePath("script.txt")});
    }

    QJsonObject dump(const QString& name = "dump.json") {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return QJsonDocument::fromJson(file.readAll()).object();
    }

    QString dumpPath(const QString& name = "dump.json") { return dir.filePath(name); }

    // The tileset and night picture every map of the tree needs.
    void writeTestTileset() {
        umbrith::setAppPath(dir.filePath("root"));
        umbrith::testmaps::writeTestTileset();
    }

    QTemporaryDir dir;
};

TEST_F(ScriptRunTest, theIntroRunsOnTheVirtualClockWithItsDrawnPiece) {
    writeFile("root/sfx/intro2.mid", "MThd");
    ProgramRun run = play("random 0.9\nwait 9000\ndump " + dumpPath() + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QJsonObject state = dump();
    EXPECT_EQ(state["controls"].toObject()["lblintromsg"].toString(), "This is a place where anything is possible...");
    EXPECT_TRUE(state["visible"].toArray().contains("introframe"));
    EXPECT_TRUE(state["sounds"].toArray().contains("ubmid Play " + QString(dir.filePath("root/sfx/intro2.mid")).replace('/', '\\')));
    EXPECT_EQ(state["controls"].toObject()["lblshowatstart(7)"].toString(), "E(x)it Umbrith");
    EXPECT_EQ(state["PlayerName"].toString(), "");
}

TEST_F(ScriptRunTest, leavingByTheExitItemWritesTheNotesAndEndsTheScript) {
    ProgramRun run = play("random 0.1\nanswer yes\nclick mnuMainExit\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_TRUE(QFile::exists(dir.filePath("root/notes.ubc")));

    ProgramRun after = play("random 0.1\nanswer yes\nclick lblshowatstart(3)\nkey O\n");
    EXPECT_EQ(after.exitCode, 1);
    EXPECT_TRUE(after.errors.contains("line 4: the program has ended")) << after.errors.toStdString();
}

TEST_F(ScriptRunTest, aMissingCustomMapIsAMapErrorAndTheIntroStays) {
    ProgramRun run = play("random 0.1\nanswer-file \\maps\\nowhere.ubm\nkey P\ndump " + dumpPath() + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QJsonObject state = dump();
    QJsonObject box = state["boxes"].toArray().last().toObject();
    EXPECT_EQ(box["title"].toString(), "Map Error");
    EXPECT_TRUE(box["text"].toString().endsWith("misplaced: \\maps\\nowhere.ubm"));
    EXPECT_EQ(state["GameRunning"].toString(), "False");
    EXPECT_TRUE(state["visible"].toArray().contains("introframe"));
}

TEST_F(ScriptRunTest, aPopupIsLoggedAndItsCloseFreesTheScreen) {
    ProgramRun run = play("random 0.1\nclick mnuMainBattle\ndump " + dumpPath("open.json") +
                   "\nkey Return\nwait 1\ndump " + dumpPath() + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QJsonObject open = dump("open.json");
    EXPECT_TRUE(open["visible"].toArray().contains("PopupBox"));
    EXPECT_EQ(open["boxes"].toArray()[0].toObject()["kind"].toString(), "popup");
    EXPECT_EQ(dump()["ScreenPanelOpen"].toString(), "False");
}

TEST_F(ScriptRunTest, aLineThatCannotBeCarriedOutNamesItsNumberAndFails) {
    const struct {
        const char* script;
        const char* error;
    } cases[] = {
        {"random 0.1\n# a comment\njump high\n", "line 3: unknown command \"jump\""},
        {"random 0.1\nclick cmdNowhere\n", "line 2: no control named \"cmdNowhere\""},
        {"random 0.1\nkey X\n", "line 2: no answer for the box \"Are you sure?\""},
        {"random 0.1 0.2\n", "end of script: 1 random draw(s) left unused"},
        {"random 1.5\n", "line 1: \"1.5\" is not a draw in [0, 1)"},
    };
    for (const auto& c : cases) {
        ProgramRun run = play(c.script);
        EXPECT_EQ(run.exitCode, 1) << c.script;
        EXPECT_TRUE(run.errors.contains(c.error)) << run.errors.toStdString();
    }
}

TEST_F(ScriptRunTest, aScreenshotIsAPictureOfTheNamedControl) {
    ProgramRun run = play("random 0.1\nscreenshot background " + dumpPath("map.png") + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QImage picture(dumpPath("map.png"));
    EXPECT_EQ(picture.size(), QSize(432, 408));
}

// The Fenwick realm as a maker's file: the default lists, one start map, two
// races, five points to spend.
const QByteArray fenwickRealm = QByteArray("\"Fenwick|Marsh and mist.|:\\config\\equip lists\\equiplist.ubc"
                                           ":\\config\\item lists\\itemlist.ubc:\\config\\skill lists\\skilllist.ubc"
                                           ":\\config\\enemy lists\\enemylist.ubc:\\maps\\fen.ubm|:Elf:Human|1|5|"
                                           ":1:2:3:4:5:6:7#:0:0:0:0:0:0:0|2|1|Wren\"\r\n")
                                    .replace('|', '\x83')  // the field separator in the file's code page
                                    .replace('#', '\xA3'); // the group separator
const QByteArray oneTileMap = "\"\",0,\"0|0:\",\"1:\",\"0|0\",\"\",\"\",\"^0\",\"\",\"test.ubt\",0,0,\"||\",0,\"\",\"\",\"\"\r\n";

TEST_F(ScriptRunTest, aPlayerPicksARealmSpendsThePointsAndOpensTheStatsPanel) {
    QDir(dir.path()).mkpath("root/realms");
    writeFile("root/realms/fenwick.ubr", fenwickRealm);
    writeFile("root/maps/fen.ubm", oneTileMap);
    writeTestTileset();
    ProgramRun run = play("random 0.1\n"
                          "key N\n"
                          "select lstRealms Fenwick\n"
                          "click lblNG(0)\n"
                          // The New Character form waits for these.
                          "type elements(0) 3\n"
                          "click cmdcreate\n"
                          "type elements(1) 2\n"
                          "type txtName Ash\n"
                          "click cmdcreate\n"
                          "key P\n"
                          "dump " + dumpPath() + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QJsonObject state = dump();
    QJsonArray boxes = state["boxes"].toArray();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].toObject()["text"].toString(), "Please use all your available points!");
    EXPECT_EQ(state["PlayerName"].toString(), "Ash");
    EXPECT_EQ(state["PlayerStrength"].toString(), "4");
    EXPECT_EQ(state["GameRunning"].toString(), "True");
    EXPECT_EQ(state["CurrentLevel"].toString(), "fen.ubm");
    EXPECT_EQ(state["ListFiles"].toArray()[4].toString(), "\\maps\\fen.ubm");
    EXPECT_EQ(state["PointsPerLevel"].toDouble(), 2);
    EXPECT_TRUE(state["visible"].toArray().contains("PlayerInfoFrame"));
    QJsonObject controls = state["controls"].toObject();
    EXPECT_EQ(controls["plabels(0)"].toString(), "Ash");
    EXPECT_EQ(controls["plabels(10)"].toString(), "3 / 3");
    EXPECT_EQ(controls["lblPStats(2)"].toString(), "200");
}

TEST_F(ScriptRunTest, aMakerCreatesARealmInTheEditorAndFindsItInTheList) {
    QDir(dir.path()).mkpath("root/realms");
    writeFile("root/maps/fen.ubm", oneTileMap);
    writeTestTileset();
    ProgramRun run = play("random 0.1\n"
                          "key C\n"
                          "click mnuFileCreateRealm\n"
                          "type txtName Fenwick\n"
                          "type txtDescription Marsh and mist.\n"
                          "answer-file \\config\\equip lists\\equiplist.ubc\n"
                          "click cmdLists(0)\n"
                          "answer-file \\config\\item lists\\itemlist.ubc\n"
                          "click cmdLists(1)\n"
                          "answer-file \\config\\skill lists\\skilllist.ubc\n"
                          "click cmdLists(2)\n"
                          "answer-file \\config\\enemy lists\\enemylist.ubc\n"
                          "click cmdLists(3)\n"
                          "answer-file \\maps\\fen.ubm\n"
                          "click cmdLists(4)\n"
                          "click cmdRaces(0)\n"
                          "type txtRName Elf\n"
                          "click cmdRace(0)\n"
                          "click chkPSS\n"
                          "type txtStatStart 5\n"
                          "answer-file \\realms\\fen.ubr\n"
                          "click cmdDone\n"
                          "click mnuMapReturn\n"
                          "key N\n"
                          "select lstRealms Fenwick\n"
                          "dump " + dumpPath() + "\n");
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    QJsonObject state = dump();
    EXPECT_EQ(state["boxes"].toArray().last().toObject()["text"].toString(), "Realm Created!");
    QJsonObject controls = state["controls"].toObject();
    EXPECT_EQ(controls["lstRealms"].toArray(), QJsonArray({"Fenwick"}));
    EXPECT_EQ(controls["txtDescription"].toString(), "Marsh and mist.");
    EXPECT_TRUE(QFile::exists(dir.filePath("root/realms/fen.ubr")));
}

// A maker dresses an NPC in a helmet, mail and a sword, watches it walk
// left, saves it, gives it to an NPC of a map, and sees it walk in play.
TEST_F(ScriptRunTest, anNPCDressedInTheCreatorWalksOnTheMapWithTheSameFrames) {
    writeTestTileset();
    using umbrith::dollparts::partSheet;
    using umbrith::dollparts::savePicture;
    umbrith::dollparts::writeEmptyParts();
    QDir(dir.path()).mkpath("root/images/npcs");
    auto helm = [](int d, int f) { return qRgb(200, 60 + 40 * f, 10 * d); };
    auto mail = [](int d, int f) { return qRgb(90 + 40 * f, 90, 100 + 30 * d); };
    auto sword = [](int d, int f) { return qRgb(230, 230 - 30 * f, 120 + 20 * d); };
    savePicture(partSheet(helm, QRect(6, 0, 12, 10)), "\\images\\heads\\helm.bmp");
    savePicture(partSheet(mail, QRect(4, 10, 16, 24)), "\\images\\bodies\\mail.bmp");
    savePicture(partSheet(sword, QRect(20, 12, 4, 28)), "\\images\\weapons\\sword.bmp");
    umbrith::testmaps::TestMap yard(18, 17);
    QStringList knight = umbrith::testmaps::npcRecord("Knight", "5;5", "\\images\\npcs\\knight.bmp").split(':');
    knight[6] = "2";  // facing left
    knight[12] = "1"; // animated
    yard.file.npcs = QString(u'ƒ') + knight.join(':');
    yard.write("\\maps\\yard.ubm");

    QString script = "random 0.1\nshow CCMain\n";
    for (const auto& [row, picture] : {std::pair{"Head", "\\images\\heads\\helm.bmp"},
                                       std::pair{"Body", "\\images\\bodies\\mail.bmp"},
                                       std::pair{"Weapon", "\\images\\weapons\\sword.bmp"}})
        script += QString("select lstAreas %1\nanswer-file %2\nclick cmdBrowseChange\nclick cmdUpdate\n").arg(row, picture);
    script += "click cmdDir(2)\nclick chkAnimate\nwait 400\ndump " + dumpPath("creator.json") + "\n";
    script += "answer-file \\images\\npcs\\knight.bmp\nclick mnuFileSave\n";
    script += "answer-file \\maps\\yard.ubm\nclick mnuMainPlayCustom\nwait 200\n";
    for (int i = 0; i < 4; ++i)
        script += QString("screenshot background %1\ndump %2\nwait 200\n").arg(dumpPath(QString("map%1.png").arg(i)), dumpPath(QString("map%1.json").arg(i)));
    ProgramRun run = play(script);
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();

    const QJsonObject creator = dump("creator.json")["CCMain"].toObject();
    EXPECT_EQ(creator["AreaPaths"].toArray()[0].toString(), "\\images\\heads\\helm.bmp");
    EXPECT_EQ(creator["AreaPaths"].toArray()[4].toString(), "\\images\\weapons\\sword.bmp");
    EXPECT_EQ(creator["PreviewDirection"].toInt(), 2);
    EXPECT_EQ(creator["PreviewFrame"].toInt(), 2);
    EXPECT_TRUE(creator["AniTimer"].toBool());
    EXPECT_TRUE(QFile::exists(dir.filePath("root/images/npcs/knight.bmp")));

    QSet<int> framesSeen;
    const QPoint at(5 * 24, 5 * 24 - 24); // the figure's top left, the map not scrolled
    for (int i = 0; i < 4; ++i) {
        const int frame = dump(QString("map%1.json").arg(i))["WalkFrame"].toInt();
        framesSeen.insert(frame);
        const QImage shot = QImage(dumpPath(QString("map%1.png").arg(i))).convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(shot.pixel(at + QPoint(8, 4)), helm(2, frame)) << frame;
        EXPECT_EQ(shot.pixel(at + QPoint(8, 20)), mail(2, frame)) << frame;
        EXPECT_EQ(shot.pixel(at + QPoint(21, 30)), sword(2, frame)) << frame;
        EXPECT_EQ(shot.pixel(at + QPoint(1, 44)), umbrith::testmaps::tileColor(0, 0)) << frame;
    }
    EXPECT_EQ(framesSeen, QSet<int>({0, 1, 2}));
}

} // namespace
