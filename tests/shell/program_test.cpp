#include <QDir>
#include <QImage>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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

} // namespace
