#include <QProcess>
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
