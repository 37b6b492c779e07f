#include "platform/error.h"
#include "tests/support/qtprint.h"
#include "platform/scripted/scriptedplatform.h"

#include <gtest/gtest.h>

using namespace umbrith;

TEST(VirtualClockTest, advancingFiresEveryDueTickInTimeOrder) {
    ScriptedPlatform scripted;
    QStringList ticks;
    auto fast = scripted.platform().clock.createTimer("fast", 200, [&] { ticks << QString("fast@%1").arg(scripted.now()); });
    auto slow = scripted.platform().clock.createTimer("slow", 300, [&] { ticks << QString("slow@%1").arg(scripted.now()); });
    fast->setEnabled(true);
    slow->setEnabled(true);
    scripted.advance(650);
    // At a tie the older timer goes first.
    EXPECT_EQ(ticks, QStringList({"fast@200", "slow@300", "fast@400", "fast@600", "slow@600"}));
    EXPECT_EQ(scripted.now(), 650);
    scripted.advance(250);
    EXPECT_EQ(ticks.mid(5), QStringList({"fast@800", "slow@900"}));
}

TEST(VirtualClockTest, disabledTimersWaitAndEnablingRestartsTheCount) {
    ScriptedPlatform scripted;
    int ticks = 0;
    auto timer = scripted.platform().clock.createTimer("intro", 4500, [&] { ++ticks; });
    scripted.advance(10000);
    EXPECT_EQ(ticks, 0);
    timer->setEnabled(true);
    scripted.advance(4499);
    EXPECT_EQ(ticks, 0);
    scripted.advance(1);
    EXPECT_EQ(ticks, 1);
    timer->setEnabled(false);
    timer->setEnabled(true);
    scripted.advance(4499);
    EXPECT_EQ(ticks, 1);
}

TEST(VirtualClockTest, aTickMayStopItsOwnTimerAndStartAnother) {
    ScriptedPlatform scripted;
    QStringList ticks;
    std::unique_ptr<Timer> second;
    auto first = scripted.platform().clock.createTimer("first", 100, [&] {
        ticks << "first";
        second->setEnabled(true);
    });
    second = scripted.platform().clock.createTimer("second", 20, [&] {
        ticks << "second";
        first->setEnabled(false);
        second->setEnabled(false);
    });
    first->setEnabled(true);
    scripted.advance(1000);
    EXPECT_EQ(ticks, QStringList({"first", "second"}));
}

TEST(ScriptedDialogsTest, questionsTakeQueuedAnswersAndMissingOnesAreProblems) {
    ScriptedPlatform scripted;
    Dialogs& dialogs = scripted.platform().dialogs;
    scripted.queueAnswer(Answer::Yes);
    EXPECT_EQ(dialogs.message("Sure?", "Are you sure?", Buttons::YesNo, Icon::Question), Answer::Yes);
    EXPECT_EQ(dialogs.message("Saved", "Umbrith", Buttons::Ok, Icon::None), Answer::Ok);
    EXPECT_TRUE(scripted.problems().isEmpty());
    dialogs.message("Again?", "Are you sure?", Buttons::YesNo, Icon::Question);
    ASSERT_EQ(scripted.problems().size(), 1);
    EXPECT_TRUE(scripted.problems()[0].contains("Again?"));
    ASSERT_EQ(scripted.boxes.size(), 3);
    EXPECT_EQ(scripted.boxes[1].title, "Umbrith");
}

TEST(ScriptedDialogsTest, leftoverAnswersAndDrawsAreProblems) {
    ScriptedPlatform scripted;
    scripted.queueAnswer(Answer::No);
    scripted.queueInput("Hero");
    scripted.queueFile("");
    scripted.queueDraw(0.5f);
    EXPECT_EQ(scripted.problems().size(), 4);
    EXPECT_EQ(scripted.platform().random.draw(), 0.5f);
    EXPECT_EQ(scripted.platform().dialogs.input("Name?", "Umbrith", ""), "Hero");
    EXPECT_EQ(scripted.platform().dialogs.openFile({}), "");
    EXPECT_EQ(scripted.problems().size(), 1);
}

TEST(ScriptedAudioTest, devicesLogCommandsAndReportTheEndOfAPiece) {
    ScriptedPlatform scripted;
    Sequencer& music = scripted.platform().audio.sequencer("ubmid");
    QList<int> done;
    music.onDone = [&](int status) { done << status; };
    music.fileName = "/nonexistent/intro.mid";
    EXPECT_THROW(music.command("Open"), RuntimeError);
    music.fileName = QStringLiteral(UMBRITH_TEST_DATA "/core/realms/Alpha.ubr");
    music.command("Open");
    music.command("Play");
    scripted.finishPiece("ubmid");
    scripted.finishPiece("ubmid");  // nothing plays any more
    EXPECT_EQ(done, QList<int>({1}));
    music.command("Play");
    music.command("Stop");
    scripted.finishPiece("ubmid");
    EXPECT_EQ(done.size(), 1);
    EXPECT_EQ(scripted.sounds.first(), "ubmid Open /nonexistent/intro.mid");
}
