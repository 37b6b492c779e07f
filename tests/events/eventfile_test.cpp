#include "events/eventfile.h"

#include "core/misc.h"
#include "events/eventrecord.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/testdata.h"
#include "tests/support/errorof.h"

using namespace umbrith;

class EventFileTest : public ScriptedTest {
protected:
    void SetUp() override {
        ScriptedTest::SetUp();
        for (const char* name : {"opendoor.ube", "shop.ube", "saved-call.ube"})
            writeFile(QString("\\events\\") + name, testdata::bytes(QString("events/") + name));
    }
    // The map's Call Activation cell: two events, one of them named like a file.
    const QString callEvents = QString::fromUtf8("Übell£-2;-2££*Ned;Ding.^2Ü open door £-2;-2££*Ned;Trimmed.^2"
                                                 "Übell£-2;-2££*Ned;Second bell.^2");
};

TEST_F(EventFileTest, aSavedEventIsOneRecordOfOneField) {
    const QString event = LoadEventFile(AppPath() + "\\events\\opendoor.ube");
    const EventParts parts = SplitEvent(event);
    EXPECT_EQ(parts.name, "open door");
    EXPECT_EQ(parts.place, "-2;-2");
    EXPECT_EQ(EventIfs(parts.ifs).size(), 2);
    EXPECT_EQ(EventActions(parts.actions).size(), 3);
    EXPECT_FALSE(event.startsWith(QChar(EventSeparator)));
}

TEST_F(EventFileTest, everySavedEventIsWrittenBackByteForByte) {
    for (const char* name : {"opendoor.ube", "shop.ube", "saved-call.ube"}) {
        const QString path = AppPath() + "\\events\\" + name;
        SaveEventFile(path, LoadEventFile(path));
        EXPECT_EQ(readFile(QString("\\events\\") + name), testdata::bytes(QString("events/") + name)) << name;
    }
}

TEST_F(EventFileTest, anEventSavedWhileCallActivationWasSelectedHasAnEmptyPlace) {
    const EventParts parts = SplitEvent(LoadEventFile(AppPath() + "\\events\\saved-call.ube"));
    EXPECT_EQ(ClassifyPlace(parts.place), PlaceKind::None);
}

TEST_F(EventFileTest, aDoubleQuoteEndsTheTextOnReadingBack) {
    SaveEventFile(AppPath() + "\\events\\quote.ube", QString::fromUtf8("q£1;1££*Ned;He said \"hi\"^2"));
    EXPECT_EQ(LoadEventFile(AppPath() + "\\events\\quote.ube"), QString::fromUtf8("q£1;1££*Ned;He said "));
}

TEST_F(EventFileTest, aReferenceIsFirstTheMapsCallEventThenAFile) {
    const QString list = ResolveEventReferences("bell, \\events\\opendoor.ube", ", ", callEvents);
    const QStringList events = EventListEvents(list);
    ASSERT_EQ(events.size(), 2);
    EXPECT_TRUE(list.startsWith(QChar(EventSeparator)));
    EXPECT_EQ(events[0], QString::fromUtf8("bell£-2;-2££*Ned;Ding.^2")); // the first of that name only
    EXPECT_EQ(EventName(events[1]), "open door");
}

TEST_F(EventFileTest, aFileReferenceIsTrimmedOfBlanks) {
    const QString list = ResolveEventReferences("bell,  \\events\\shop.ube ", ",", callEvents);
    EXPECT_EQ(EventListEvents(list).size(), 2);
    EXPECT_EQ(EventName(EventListEvents(list)[1]), "smithy");
}

TEST_F(EventFileTest, namesCompareExactlyOrTrimmedOnBothSides) {
    EXPECT_FALSE(FindCallEvent(callEvents, "open door", NameMatch::Exact));
    EXPECT_EQ(FindCallEvent(callEvents, " open door ", NameMatch::Exact).value_or(""),
              QString::fromUtf8(" open door £-2;-2££*Ned;Trimmed.^2"));
    EXPECT_TRUE(FindCallEvent(callEvents, "open door  ", NameMatch::Trimmed));
    const QString list = ResolveEventReferences("bell , open door", ",", callEvents, NameMatch::Trimmed);
    EXPECT_EQ(EventListEvents(list).size(), 2);
}

TEST_F(EventFileTest, aMissingFileIsTheReadersError) {
    EXPECT_EQ(errorOf([&] { ResolveEventReferences("nobody", ", ", callEvents); }), err::FileNotFound);
    EXPECT_EQ(ResolveEventReferences("", ", ", callEvents), "");
}
