// The program installed into a prefix of its own, started as its menu entry
// starts it: it plays from a per-user copy of its read-only program folder.
#include "tests/support/qtprint.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class InstallTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        QProcess install;
        install.start(UMBRITH_CMAKE, {"--install", UMBRITH_BUILD_DIR, "--prefix", prefix()});
        ASSERT_TRUE(install.waitForFinished(120000));
        ASSERT_EQ(install.exitCode(), 0) << install.readAllStandardError().toStdString();
    }

    QString prefix() const { return dir.filePath("prefix"); }
    QString home() const { return dir.filePath("home"); }

    // Runs the menu entry's command with a script that dumps the state.
    int startFromMenu() {
        QSettings entry(prefix() + "/share/applications/umbrith.desktop", QSettings::IniFormat);
        const QString command = entry.value("Desktop Entry/Exec").toString();
        EXPECT_EQ(command, "umbrith");
        QFile script(dir.filePath("script.txt"));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        // The intro draws once at start.
        script.write("random 0.5\ndump " + dir.filePath("dump.json").toUtf8() + "\n");
        script.close();

        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", home());
        env.remove("XDG_DATA_HOME");
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("SDL_AUDIODRIVER", "dummy");
        program.setProcessEnvironment(env);
        program.start(prefix() + "/bin/" + command, {"--script", dir.filePath("script.txt")});
        EXPECT_TRUE(program.waitForFinished(60000));
        return program.exitCode();
    }

    QTemporaryDir dir;
};

TEST_F(InstallTest, theMenuEntryStartsTheProgramOnAPerUserCopyThatKeepsTheUsersChanges) {
    for (const char* installed : {"bin/umbrith", "share/applications/umbrith.desktop", "share/metainfo/umbrith.metainfo.xml",
                                  "share/icons/hicolor/scalable/apps/umbrith.svg", "share/man/man6/umbrith.6",
                                  "share/umbrith/realms", "share/umbrith/tilesets/default.ubt"})
        EXPECT_TRUE(QFileInfo::exists(prefix() + "/" + installed)) << installed;
    EXPECT_FALSE(QFileInfo::exists(prefix() + "/share/umbrith/umbrith"));

    ASSERT_EQ(startFromMenu(), 0);
    const QString own = home() + "/.local/share/umbrith";
    QFile dump(dir.filePath("dump.json"));
    ASSERT_TRUE(dump.open(QIODevice::ReadOnly));
    // The program holds its folder in the stored form, with backslashes.
    EXPECT_EQ(QJsonDocument::fromJson(dump.readAll()).object().value("AppPath").toString(), QString(own).replace('/', '\\'));
    EXPECT_FALSE(QDir(own + "/realms").entryList({"*.ubr"}).isEmpty());
    EXPECT_TRUE(QFileInfo(own + "/tilesets/default.ubt").isWritable());

    // The user's own changes survive the next start; what is missing comes back.
    QFile notes(own + "/notes.ubc");
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    notes.write("\"mine\"\r\n");
    notes.close();
    QFile::remove(own + "/tilesets/default.ubt");
    ASSERT_EQ(startFromMenu(), 0);
    ASSERT_TRUE(notes.open(QIODevice::ReadOnly));
    EXPECT_EQ(notes.readAll(), "\"mine\"\r\n");
    EXPECT_TRUE(QFileInfo::exists(own + "/tilesets/default.ubt"));
}

} // namespace
