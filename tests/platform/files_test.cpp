#include "platform/error.h"
#include "tests/support/errorof.h"
#include "tests/support/qtprint.h"
#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace umbrith;

namespace {

class FilesTest : public ::testing::Test {
protected:
    QString stored(const QString& relative) const { return QString(dir.path()).replace('/', '\\') + relative; }
    QTemporaryDir dir;
};

} // namespace

TEST_F(FilesTest, storedPathsKeepBackslashesUntilOpened) {
    QDir(dir.path()).mkpath("maps");
    writeTextFile(stored("\\maps\\town.ubm"), "\"Town\"\r\n");
    EXPECT_TRUE(QFile::exists(dir.path() + "/maps/town.ubm"));
    EXPECT_TRUE(fileExists(stored("\\maps\\town.ubm")));
    EXPECT_FALSE(fileExists(stored("\\maps")));
    EXPECT_TRUE(folderExists(stored("\\maps")));
    // Realms made where case does not matter still find their files.
    EXPECT_EQ(readTextFile(stored("\\Maps\\TOWN.ubm")), "\"Town\"\r\n");
    EXPECT_EQ(listFiles(stored("\\maps"), "*.ubm"), QStringList({"town.ubm"}));
}

TEST_F(FilesTest, textIsWindows1252OnDisk) {
    writeTextFile(stored("\\a.ubc"), QString::fromUtf8("ƒÜ£¥Ä§×Öô€"));
    QFile file(dir.path() + "/a.ubc");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\x83\xDC\xA3\xA5\xC4\xA7\xD7\xD6\xF4\x80"));
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all += char(b);
    file.close();
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(all);
    file.close();
    writeTextFile(stored("\\b.ubc"), readTextFile(stored("\\a.ubc")));
    QFile copy(dir.path() + "/b.ubc");
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), all);
}

TEST_F(FilesTest, failuresAreTrappableErrorsAndLeaveNoHalfFile) {
    EXPECT_EQ(errorOf([&] { readTextFile(stored("\\missing.ubm")); }), err::FileNotFound);
    EXPECT_EQ(errorOf([&] { readTextFile(stored("\\nofolder\\x.ubm")); }), err::PathNotFound);
    EXPECT_EQ(errorOf([&] { writeTextFile(stored("\\nofolder\\x.ubm"), "x"); }), err::PathNotFound);
    writeTextFile(stored("\\save.ubs"), "old");
    writeTextFile(stored("\\save.ubs"), "new");
    EXPECT_EQ(readTextFile(stored("\\save.ubs")), "new");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList({"save.ubs"}));
}
