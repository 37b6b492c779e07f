#include "core/dumpfile.h"

#include "platform/error.h"
#include "tests/support/qtprint.h"
#include "tests/support/testdata.h"

#include <gtest/gtest.h>

using namespace umbrith;

TEST(DumpFileTest, aMapNeedsSeventeenItemsAndASaveSeventeenAndEveryOtherFileOne) {
    EXPECT_EQ(RequiredItems("\\maps\\a.ubm"), 17);
    EXPECT_EQ(RequiredItems("\\maps\\A.UBM"), 17);
    EXPECT_EQ(RequiredItems("\\saves\\a.ubs"), 17);
    EXPECT_EQ(RequiredItems("\\notes.ubc"), 1);
    EXPECT_EQ(RequiredItems("\\realms\\a.ubr"), 1);
}

TEST(DumpFileTest, theItemsAreWhatTheRecordReaderReads) {
    const QStringList items = ReadDataItems(testdata::path("world/maps/fenwick/map.ubm"));
    EXPECT_EQ(items, testdata::strings(testdata::json("world/maps/fenwick/expected.json")["items"]));
    const QStringList shifted = ReadDataItems(testdata::path("world/maps/quote-in-message/map.ubm"));
    // The quote shifts every item, and the last one is left over as an 18th.
    EXPECT_EQ(shifted.size(), 18);
    EXPECT_EQ(shifted.mid(0, 17), testdata::strings(testdata::json("world/maps/quote-in-message/expected.json")["items"]));
    EXPECT_EQ(ReadDataItems(testdata::path("core/realms/beta.ubr")).size(), 1);
}

TEST(DumpFileTest, aFileWithTooFewItemsIsTheReadersError) {
    try {
        ReadDataItems(testdata::path("world/maps/item-missing/map.ubm"));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), err::InputPastEnd);
    }
}
