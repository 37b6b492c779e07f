#include "events/eventrecord.h"

#include "platform/error.h"
#include "tests/support/qtprint.h"
#include "tests/support/errorof.h"

#include <gtest/gtest.h>

using namespace umbrith;

namespace {

const QString door = QString::fromUtf8("door£3;4£ô&Variables.doorkey:==:1ôgold:>=:10£*PlayerX:+=:1^1*Ned;The door creaks open.^2");

} // namespace

TEST(EventRecordTest, anEventListBeginsWithItsSeparatorAndSkipsEmptyPieces) {
    const QString list = AppendEvent(AppendEvent("", door), QString::fromUtf8("bell£-2;-2££"));
    EXPECT_TRUE(list.startsWith(QChar(EventSeparator)));
    const QStringList events = EventListEvents(list);
    ASSERT_EQ(events.size(), 2);
    EXPECT_EQ(events[0], door);
    EXPECT_TRUE(EventListEvents("").isEmpty());
}

TEST(EventRecordTest, anEventSplitsIntoItsFourFields) {
    const EventParts parts = SplitEvent(door);
    EXPECT_EQ(parts.name, "door");
    EXPECT_EQ(parts.place, "3;4");
    EXPECT_EQ(EventIfs(parts.ifs).size(), 2);
    EXPECT_EQ(EventActions(parts.actions).size(), 2);
    EXPECT_EQ(JoinEvent(parts), door);
}

TEST(EventRecordTest, aShortEventIsASubscriptError) {
    EXPECT_EQ(errorOf([] { SplitEvent(QString::fromUtf8("door£3;4£")); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { SplitEvent(""); }), err::SubscriptOutOfRange);
    EXPECT_EQ(EventName(QString::fromUtf8("door£3;4")), "door");
}

TEST(EventRecordTest, anEventWithNoIfsAndNoActionsIsLegal) {
    const EventParts parts = SplitEvent(QString::fromUtf8("quiet£-2;-2££"));
    EXPECT_TRUE(EventIfs(parts.ifs).isEmpty());
    EXPECT_TRUE(EventActions(parts.actions).isEmpty());
}

TEST(EventRecordTest, thePlaceCodesTheActivation) {
    EXPECT_EQ(ClassifyPlace("-1;-1"), PlaceKind::PlayerEnters);
    EXPECT_EQ(ClassifyPlace("-2;-2"), PlaceKind::CallActivation);
    EXPECT_EQ(ClassifyPlace(""), PlaceKind::None);
    EXPECT_EQ(ClassifyPlace("3;4"), PlaceKind::Tile);
    EXPECT_EQ(EventPlaceCell("-2;-2").x, -2);
    EXPECT_EQ(EventPlaceCell("12ab;7").x, 12);
    EXPECT_EQ(EventPlaceCell("12ab;7").y, 7);
    EXPECT_EQ(errorOf([] { EventPlaceCell(""); }), err::SubscriptOutOfRange);
}

TEST(EventRecordTest, anIfHasVariableOperatorAndValue) {
    const IfParts condition = SplitIf("&Variables.doorkey:==:1");
    EXPECT_EQ(condition.variable, "&Variables.doorkey");
    EXPECT_EQ(condition.op, "==");
    EXPECT_EQ(condition.value, "1");
    EXPECT_EQ(IfEntry(condition), QString::fromUtf8("ô&Variables.doorkey:==:1"));
    EXPECT_EQ(errorOf([] { SplitIf("a:=="); }), err::SubscriptOutOfRange);
}

TEST(EventRecordTest, anActionIsItsDataThenItsKind) {
    const ActionParts action = SplitAction("Ned;Hello there.^2");
    EXPECT_EQ(action.data, "Ned;Hello there.");
    EXPECT_EQ(action.kind, "2");
    EXPECT_EQ(ActionEntry("Ned;Hello there.", "2"), "*Ned;Hello there.^2");
}

TEST(EventRecordTest, anUnknownKindIsSkippedAndHasNoLabel) {
    EXPECT_FALSE(IsKnownActionKind("0"));
    EXPECT_FALSE(IsKnownActionKind("10"));
    EXPECT_FALSE(IsKnownActionKind(""));
    EXPECT_TRUE(IsKnownActionKind("9"));
    EXPECT_EQ(ActionLabel("something^x"), "");
    // No "^" at all: no kind.
    EXPECT_EQ(SplitAction("just text").kind, "");
    // A "^" inside the data cuts it, and what follows stands as the kind.
    EXPECT_EQ(SplitAction("Ned;2^3 is 8^2").kind, "3 is 8");
}

TEST(EventRecordTest, eachKindSplitsItsDataOnItsOwnSeparator) {
    EXPECT_EQ(ActionFields(SplitAction("gold: += :5^1")), QStringList({"gold", " += ", "5"}));
    EXPECT_EQ(ActionFields(SplitAction("\\maps\\cellar.ubm:3:4^3")), QStringList({"\\maps\\cellar.ubm", "3", "4"}));
    EXPECT_EQ(ActionFields(SplitAction("a%1%1%0%Smithy%Hi%^4")).size(), 7);
    EXPECT_EQ(ActionFields(SplitAction("Player;:Move Up:Wait(200);300^5")), QStringList({"Player", ":Move Up:Wait(200)", "300"}));
    EXPECT_EQ(ActionFields(SplitAction("True:\\sfx\\town.mid:False:^7")).size(), 4);
}

TEST(EventRecordTest, aMessageTextHoldingASemicolonKeepsOnlyThePartBeforeIt) {
    const QStringList fields = ActionFields(SplitAction("Ned;Wait; there is more^2"));
    EXPECT_EQ(fields[1], "Wait");
}

TEST(EventRecordTest, aChangeVariableValueHoldingAColonIsCutThere) {
    const QStringList fields = ActionFields(SplitAction("time: = :12:30^1"));
    EXPECT_EQ(fields[2], "12");
}

TEST(EventRecordTest, aPromptWhoseDataEndsAtItsSemicolonHasNoAnswers) {
    const QStringList fields = ActionFields(SplitAction("What is your name?;^8"));
    ASSERT_EQ(fields.size(), 2);
    EXPECT_TRUE(NonEmptyParts(fields[1], u':').isEmpty());
}

TEST(EventRecordTest, theLabelsFollowTheTable) {
    EXPECT_EQ(ActionLabel("gold: += :5^1"), "gold += 5");
    EXPECT_EQ(ActionLabel("Ned;Hello^2"), "Message(Hello)");
    EXPECT_EQ(ActionLabel("Ned;Welcome to the village of Fenwick^2"), "Message(Welcome to the villa...)");
    EXPECT_EQ(ActionLabel("Ned;12345678901234567890^2"), "Message(12345678901234567890)");
    EXPECT_EQ(ActionLabel("\\maps\\cellar.ubm:3:4^3"), "Warp(\\maps\\cellar.ubm (3, 4))");
    EXPECT_EQ(ActionLabel("stock%1%1%0%Smithy%Hi%^4"), "Shop (Smithy)");
    EXPECT_EQ(ActionLabel("Player;:Move Up;300^5"), "Move (Player)");
    EXPECT_EQ(ActionLabel("Rat-Warrior;;\\events\\won.ube^6"), "Combat (Rat-Warrior)");
    EXPECT_EQ(ActionLabel("True:\\sfx\\town.mid:False:^7"), "Change SFX (\\sfx\\town.mid)");
    EXPECT_EQ(ActionLabel("False::True:bell.wav^7"), "Change SFX (bell.wav)");
    EXPECT_EQ(ActionLabel("Which way do you want to go now?;:North (Index)^8"), "Prompt (Which way do you wan...)");
    EXPECT_EQ(ActionLabel("The Bog;Find the wraith.;wraithdone^9"), "Journal (The Bog)");
    // A short action shows the fields it has.
    EXPECT_EQ(ActionLabel("^3"), "Warp( (, ))");
}

TEST(EventRecordTest, referencesSplitOnTheirSeparatorAndEmptyOnesAreLeftOut) {
    EXPECT_EQ(SplitReferences("a, b, \\events\\c.ube", ", "), QStringList({"a", "b", "\\events\\c.ube"}));
    EXPECT_EQ(SplitReferences("a , b,", ","), QStringList({"a ", " b"}));
    EXPECT_TRUE(SplitReferences("", ", ").isEmpty());
}
