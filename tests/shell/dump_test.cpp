#include "tests/support/testdata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

struct DumpRun {
    int exitCode;
    QByteArray output;
    QString errors;
};

DumpRun dump(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // No window system at all: the dump must not need one.
    env.remove("DISPLAY");
    env.remove("WAYLAND_DISPLAY");
    env.remove("QT_QPA_PLATFORM");
    process.setProcessEnvironment(env);
    process.start(UMBRITH_EXECUTABLE, arguments);
    process.waitForFinished(30000);
    return {process.exitCode(), process.readAllStandardOutput(), QString::fromLocal8Bit(process.readAllStandardError())};
}

} // namespace

TEST(DumpTest, aMapIsPrintedAsAJsonArrayOfItsSeventeenItems) {
    const DumpRun run = dump({"--dump", umbrith::testdata::path("world/maps/fenwick/map.ubm")});
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.isEmpty());
    const QJsonDocument json = QJsonDocument::fromJson(run.output);
    ASSERT_TRUE(json.isArray());
    EXPECT_EQ(umbrith::testdata::strings(json.array()),
              umbrith::testdata::strings(umbrith::testdata::json("world/maps/fenwick/expected.json")["items"]));
}

TEST(DumpTest, theDelimitersAreDecodedFromWindows1252) {
    const DumpRun run = dump({"--dump", umbrith::testdata::path("core/realms/beta.ubr")});
    EXPECT_EQ(run.exitCode, 0);
    const QJsonArray items = QJsonDocument::fromJson(run.output).array();
    ASSERT_EQ(items.size(), 1);
    EXPECT_TRUE(items[0].toString().startsWith(QString::fromUtf8("Beta IslesƒIslands")));
}

TEST(DumpTest, aDamagedFileGetsTheReadersErrorAndExitCodeOne) {
    const DumpRun run = dump({"--dump", umbrith::testdata::path("world/maps/item-missing/map.ubm")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.output.isEmpty());
    EXPECT_TRUE(run.errors.contains("Input past end of file")) << run.errors.toStdString();
    const DumpRun missing = dump({"--dump", "/nonexistent/file.ubm"});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_FALSE(missing.errors.isEmpty());
}
