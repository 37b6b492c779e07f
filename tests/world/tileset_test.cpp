#include "world/tileset.h"

#include "core/misc.h"
#include "core/record.h"
#include "platform/codepage.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/testdata.h"
#include "tests/support/errorof.h"

#include <QBuffer>
#include <QDir>

using namespace umbrith;

TEST(TilesetTest, tileIndexAndPixelOriginConvertBothWays) {
    for (int index = 0; index < TileCount; ++index)
        ASSERT_EQ(TileIndex(TilePosition(index)), index) << index;
    EXPECT_EQ(TilePosition(0), "0|0");
    EXPECT_EQ(TilePosition(51), "24|24");
    EXPECT_EQ(TilePosition(2499), "1176|1176");
    EXPECT_EQ(TileIndex("24|48"), 101);
}

TEST(TilesetTest, aTileIndexReadsItsHalvesByNumericPrefixAndRoundsHalvesToEven) {
    EXPECT_EQ(TileIndex("48px|0"), 2);
    EXPECT_EQ(TileIndex("12|0"), 0); // 0.5
    EXPECT_EQ(TileIndex("36|0"), 2); // 1.5
    EXPECT_EQ(TileIndex("|"), 0);
    EXPECT_EQ(errorOf([] { TileIndex("48"); }), err::SubscriptOutOfRange);
}

TEST(TilesetTest, theDefaultFormHolds2500PassableTilesAndNoTrailingElement) {
    const QString record = ReadTilesetFile(testdata::path("world/tilesets/default.ubt"));
    EXPECT_EQ(record.count(":1"), 2500);
    const TilesetRecordParts parts = SplitTilesetRecord(record);
    ASSERT_EQ(parts.pass.size(), TileCount);
    EXPECT_EQ(parts.pass.count("1"), TileCount);
    EXPECT_EQ(parts.picture, "default.bmp");
    // The split on ":" has element 0 empty and the last tile at element 2,500, the last one.
    EXPECT_EQ(record.section(u'/', 0, 0).split(u':').size(), 2501);
}

TEST(TilesetTest, eachTileStandsAtElementRowTimes50PlusColumnPlus1) {
    const QString record = ReadTilesetFile(testdata::path("world/tilesets/mixed.ubt"));
    const QStringList elements = record.section(u'/', 0, 0).split(u':');
    const TilesetRecordParts parts = SplitTilesetRecord(record);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_EQ(parts.pass[y * 50 + x], elements[y * 50 + x + 1]);
    EXPECT_EQ(parts.pass[7], "2");
    EXPECT_EQ(parts.pass[2499], "0"); // carried as it stands
    EXPECT_EQ(parts.picture, "mixed sheet.bmp");
}

TEST(TilesetTest, theRecordIsRebuiltByteForByte) {
    for (const char* name : {"world/tilesets/default.ubt", "world/tilesets/mixed.ubt"}) {
        const QString record = ReadTilesetFile(testdata::path(name));
        const TilesetRecordParts parts = SplitTilesetRecord(record);
        EXPECT_EQ(TilesetRecord(parts.pass, parts.picture), record);
        EXPECT_EQ(encodeWindows1252(writeRecord({Value(TilesetRecord(parts.pass, parts.picture))})),
                  testdata::bytes(name));
    }
}

TEST(TilesetTest, aRecordWithoutItsPictureIsASubscriptError) {
    EXPECT_EQ(errorOf([] { SplitTilesetRecord(":1:1:2"); }), err::SubscriptOutOfRange);
}

class TilesetFileTest : public ScriptedTest {
protected:
    void putTileset(const QString& ubt, const QString& picture) {
        writeFile("\\tilesets\\" + ubt, testdata::bytes("world/tilesets/mixed.ubt"));
        Surface sheet(48, 24);
        sheet.fill(qRgb(200, 10, 10));
        QDir().mkpath(nativeRoot() + "/tilesets");
        sheet.saveBitmap(AppPath() + "\\tilesets\\" + picture);
    }
};

TEST_F(TilesetFileTest, updateTilesetLoadsTheRecordThePictureAndThePassabilities) {
    putTileset("mixed.ubt", "mixed sheet.bmp");
    TilesetState state;
    UpdateTilesetCore(state, "mixed.ubt");
    EXPECT_EQ(state.loadedTileset, "mixed.ubt");
    EXPECT_EQ(state.sheet.width(), SheetPixels);
    EXPECT_EQ(state.sheet.height(), SheetPixels);
    EXPECT_EQ(GetPixel(state.sheet, 0, 0), toColorRef(qRgb(200, 10, 10)));
    EXPECT_EQ(state.pass.size(), TilesetPassStorage);
    EXPECT_EQ(state.pass[0], "2");
    EXPECT_EQ(state.pass[1], "1");
    EXPECT_EQ(state.pass[2499], "0");
    EXPECT_EQ(TilesetPassAt(state, "168|0"), "2"); // tile 7
    EXPECT_EQ(errorOf([&] { TilesetPassAt(state, "0|1248"); }), err::SubscriptOutOfRange);
}

TEST_F(TilesetFileTest, anyNameWithAFourCharacterExtensionLoadsTheSameTileset) {
    putTileset("mixed.ubt", "mixed sheet.bmp");
    TilesetState state;
    UpdateTilesetCore(state, "mixed.bmp");
    EXPECT_EQ(state.pass[7], "2");
    EXPECT_EQ(state.loadedTileset, "mixed.bmp");
    EXPECT_EQ(errorOf([&] { UpdateTilesetCore(state, "ubt"); }), err::InvalidProcedureCall);
}

TEST_F(TilesetFileTest, aFailedLoadLeavesThePreviousTilesetInPlace) {
    putTileset("mixed.ubt", "mixed sheet.bmp");
    TilesetState state;
    UpdateTilesetCore(state, "mixed.ubt");
    EXPECT_EQ(errorOf([&] { UpdateTilesetCore(state, "missing.ubt"); }), err::FileNotFound);
    writeFile("\\tilesets\\nopicture.ubt", "\":2:2/nowhere.bmp\"\r\n");
    EXPECT_EQ(errorOf([&] { UpdateTilesetCore(state, "nopicture.ubt"); }), err::FileNotFound);
    EXPECT_EQ(state.loadedTileset, "mixed.ubt");
    EXPECT_EQ(state.pass[0], "2");
    EXPECT_EQ(state.pass[1], "1");
}

TEST_F(TilesetFileTest, aShortTilesetFillsOnlyTheTilesItHas) {
    putTileset("mixed.ubt", "mixed sheet.bmp");
    TilesetState state;
    UpdateTilesetCore(state, "mixed.ubt");
    writeFile("\\tilesets\\short.ubt", "\":1:1:1/mixed sheet.bmp\"\r\n");
    UpdateTilesetCore(state, "short.ubt");
    EXPECT_EQ(state.pass[0], "1");
    EXPECT_EQ(state.pass[7], "2"); // left from before
}

TEST_F(TilesetFileTest, aWrittenTilesetReadsBackTheSame) {
    QDir().mkpath(nativeRoot() + "/tilesets");
    const QString record = TilesetRecord(QStringList(TileCount, "1"), "new.bmp");
    WriteTilesetFile(AppPath() + "\\tilesets\\new.ubt", record);
    EXPECT_EQ(readFile("\\tilesets\\new.ubt"), testdata::bytes("world/tilesets/default.ubt").replace("default", "new"));
    EXPECT_EQ(ReadTilesetFile(AppPath() + "\\tilesets\\new.ubt"), record);
}
