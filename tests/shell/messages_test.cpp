#include "core/resolvecode.h"
#include "shell/rules/journal.h"
#include "shell/rules/messages.h"
#include "tests/support/scriptedtest.h"

namespace umbrith {
namespace {

class MessagesTest : public ScriptedTest {
protected:
    // Types the whole page out, as the typing timer would.
    void typeOut() {
        for (int i = 0; i < 10000 && message.typing && !message.MessageDone && !message.MessagePageEnd; ++i)
            TypeMessageTick(game, message);
    }

    GameRecord game;
    MessageState message;
};

TEST_F(MessagesTest, aPageOf199CharactersWithNoBlankIsShownWholeAndSpaceThenCloses) {
    const QString text(199, u'a');
    StartMessageText(game, message, text, MessageMode::Type);
    typeOut();
    TypeMessageTick(game, message);
    EXPECT_EQ(message.shown, text);
    EXPECT_TRUE(message.MessageDone);
    EXPECT_FALSE(message.MessagePageEnd);
    EXPECT_TRUE(MessageKey(game, message, ' ', MessageMode::Type));
    EXPECT_FALSE(message.MessageActive);
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(MessagesTest, pastTwoHundredCharactersThePageEndsAtTheNextBlankSoNoWordIsCut) {
    const QString text = QString(198, u'a') + QStringLiteral(" bcd efg");
    StartMessageText(game, message, text, MessageMode::Type);
    typeOut();
    EXPECT_TRUE(message.MessagePageEnd);
    EXPECT_EQ(message.shown, QString(198, u'a') + QStringLiteral(" bcd  <Next>"));

    EXPECT_TRUE(MessageKey(game, message, ' ', MessageMode::Type));
    EXPECT_TRUE(message.typing);
    typeOut();
    TypeMessageTick(game, message);
    EXPECT_EQ(message.shown, QStringLiteral("efg"));
}

TEST_F(MessagesTest, aBlankAsTheTwoHundredthCharacterEndsThePageAtOnce) {
    const QString text = QString(199, u'a') + QStringLiteral(" rest");
    StartMessageText(game, message, text, MessageMode::Paste);
    EXPECT_TRUE(message.MessagePageEnd);
    EXPECT_EQ(message.shown, QString(199, u'a') + QStringLiteral("  <NEXT>"));
}

TEST_F(MessagesTest, anAmpersandBreaksThePageAndAFinalOneLeavesAnEmptyLastPage) {
    StartMessageText(game, message, QStringLiteral("One&Two&"), MessageMode::Paste);
    EXPECT_EQ(message.shown, QStringLiteral("One <Next>"));
    MessageKey(game, message, ' ', MessageMode::Paste);
    EXPECT_EQ(message.shown, QStringLiteral("Two <Next>"));
    MessageKey(game, message, ' ', MessageMode::Paste);
    EXPECT_EQ(message.shown, QString());
    EXPECT_TRUE(message.MessageActive);
    MessageKey(game, message, ' ', MessageMode::Paste);
    EXPECT_FALSE(message.MessageActive);
}

TEST_F(MessagesTest, typedModeIgnoresSpaceUntilTheTextIsOutWhileBothCompletesThePage) {
    StartMessageText(game, message, QStringLiteral("Hello there"), MessageMode::Type);
    TypeMessageTick(game, message);
    EXPECT_FALSE(MessageKey(game, message, ' ', MessageMode::Type));
    EXPECT_EQ(message.shown, QStringLiteral("H"));

    MessageState both;
    StartMessageText(game, both, QStringLiteral("Hello there"), MessageMode::Both);
    TypeMessageTick(game, both);
    EXPECT_TRUE(MessageKey(game, both, ' ', MessageMode::Both));
    EXPECT_EQ(both.shown, QStringLiteral("Hello there"));
    EXPECT_TRUE(MessageKey(game, both, ' ', MessageMode::Both));
    EXPECT_FALSE(both.MessageActive);
}

TEST_F(MessagesTest, mClosesAtAnyTimeAndEndsThePauseOfTheEvent) {
    StartMessageText(game, message, QStringLiteral("Halfway&more"), MessageMode::Type);
    message.EventPaused = true;
    TypeMessageTick(game, message);
    EXPECT_TRUE(MessageKey(game, message, 'M', MessageMode::Type));
    EXPECT_FALSE(message.MessageActive);
    EXPECT_FALSE(message.typing);
    EXPECT_FALSE(message.EventPaused);
    EXPECT_EQ(message.shown, QString());
    EXPECT_FALSE(isTrue(game.ScreenPanelOpen));
}

TEST_F(MessagesTest, eachCodeIsSubstitutedWhenTheReadingReachesIt) {
    game.PlayerName = "Aria";
    SetVariable(game, "Gold Found", "12");
    StartMessageText(game, message, QStringLiteral("#(Player Name) found #(Gold Found) coins"), MessageMode::Paste);
    EXPECT_EQ(message.shown, QStringLiteral("Aria found 12 coins"));
}

TEST_F(MessagesTest, aValueHoldingACodeIsExpandedByALaterStepAndAnOpenCodeTakesTheRest) {
    SetVariable(game, "Inner", "#(Player Name)");
    game.PlayerName = "Bo";
    QString text = QStringLiteral("<#(Inner)>");
    SubstituteCode(game, text);
    EXPECT_EQ(text, QStringLiteral("<#(Player Name)>"));
    SubstituteCode(game, text);
    EXPECT_EQ(text, QStringLiteral("<Bo>"));

    QString open = QStringLiteral("Hi #(Player Name");
    SubstituteCode(game, open);
    EXPECT_EQ(open, QStringLiteral("Hi Bo"));
}

TEST_F(MessagesTest, aJournalEntryIsCompleteWhenItsCodeResolvesToOne) {
    SetVariable(game, "Wolves", "1");
    SetVariable(game, "Bandits", "2");
    game.Journal = QStringLiteral("£Wolves;Hunt the wolves, #(Player Name).;Wolves£Bandits;Chase them off.;&Bandits");
    game.PlayerName = "Cal";
    EXPECT_EQ(JournalText(game), QStringLiteral("Wolves -  [COMPLETED]\nHunt the wolves, Cal.\n\n"
                                                "Bandits -  [NOT COMPLETED]\nChase them off.\n"));
}

TEST_F(MessagesTest, aJournalCodeNamingAnotherVariableIsFollowedOnce) {
    SetVariable(game, "Quest", "&Done");
    SetVariable(game, "Done", "1");
    game.Journal = QStringLiteral("Q;text;Quest");
    EXPECT_TRUE(JournalText(game).contains(QStringLiteral("[COMPLETED]")));
}

} // namespace
} // namespace umbrith
