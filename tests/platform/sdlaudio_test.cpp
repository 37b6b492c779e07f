#include "platform/error.h"
#include "platform/real/sdlaudio.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace umbrith {
namespace {

TEST(SdlAudioTest, aMissingSoundFontLeavesTheMusicSilentWithOneLineAndNoFailure) {
    QTemporaryDir dir;
    const QString piece = dir.filePath("town.mid");
    QFile file(piece);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("MThd");
    file.close();

    testing::internal::CaptureStderr();
    {
        SdlAudio audio(dir.filePath("gone.sf2"));
        Sequencer& music = audio.sequencer("ubmid");
        int ended = 0;
        music.onDone = [&](int) { ++ended; };
        music.fileName = piece;
        EXPECT_NO_THROW(music.command("Open"));
        EXPECT_NO_THROW(music.command("Play"));
        EXPECT_NO_THROW(music.command("Stop"));
        EXPECT_EQ(ended, 0);
        // A piece that is not there is still an error of the device.
        music.fileName = dir.filePath("none.mid");
        EXPECT_THROW(music.command("Open"), RuntimeError);
    }
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("gone.sf2\" is missing; music stays silent."), std::string::npos) << said;
}

} // namespace
} // namespace umbrith
