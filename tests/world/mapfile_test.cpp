#include "world/mapfile.h"

#include "core/misc.h"
#include "platform/codepage.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/testdata.h"
#include "tests/support/errorof.h"

using namespace umbrith;

namespace {

// The 17 items as read, in file order, as text.
QStringList itemTexts(const MapFile& m) {
    return {m.specials,     m.reserved2.text(), m.tiles,      m.passabilities, m.startLocation, m.music,
            m.screenWarps,  m.enemies,          m.events,     m.tileset,       m.width.text(),  m.height.text(),
            m.reserved13,   m.night.text(),     m.groundItems, m.npcs,         m.reserved17};
}

MapFile fenwick() { return ReadMapFile(testdata::path("world/maps/fenwick/map.ubm")); }

} // namespace

// Each folder of tests/data/world/maps holds a map.ubm and what reading it gives.
TEST(MapFileTest, everyHandMadeMapReadsAsItsExpectedItems) {
    const QStringList cases = testdata::cases("world/maps");
    ASSERT_GE(cases.size(), 5);
    for (const QString& name : cases) {
        SCOPED_TRACE(name.toStdString());
        const QString folder = "world/maps/" + name + "/";
        const QJsonObject expected = testdata::json(folder + "expected.json");
        const QString path = testdata::path(folder + "map.ubm");
        if (expected.contains("error")) {
            EXPECT_EQ(errorOf([&] { ReadMapFile(path); }), expected["error"].toInt());
            continue;
        }
        const MapFile map = ReadMapFile(path);
        const QStringList want = testdata::strings(expected["items"]);
        ASSERT_EQ(want.size(), MapItemCount);
        const QStringList got = itemTexts(map);
        for (int i = 0; i < MapItemCount; ++i)
            EXPECT_EQ(got[i], want[i]) << "item " << i + 1;
        if (expected["roundTrip"].toBool()) {
            EXPECT_EQ(encodeWindows1252(MapText(map)), testdata::bytes(folder + "map.ubm"));
        }
    }
}

TEST(MapFileTest, aFileWithOneItemPerLineReadsLikeTheOneLineFile) {
    const MapFile lines = ReadMapFile(testdata::path("world/maps/fenwick-one-item-per-line/map.ubm"));
    EXPECT_EQ(itemTexts(lines), itemTexts(fenwick()));
    // Quoted numbers stay text, and are written back quoted.
    EXPECT_TRUE(lines.width.isText());
    EXPECT_TRUE(lines.night.isText());
    EXPECT_TRUE(MapText(lines).contains(",\"18\",\"17\",\"||\",\"1\","));
}

TEST(MapFileTest, theDelimitersAreSingleWindows1252Bytes) {
    const QByteArray bytes = testdata::bytes("world/maps/fenwick/map.ubm");
    EXPECT_TRUE(bytes.contains("\x83Ned:"));          // ƒ leads an NPC record
    EXPECT_TRUE(bytes.contains("\xC4pile1\xA5"));     // Ä and ¥ of a ground pile
    EXPECT_TRUE(bytes.contains("\xDC" "door\xA3"));   // Ü and £ of an event
    const MapFile map = fenwick();
    EXPECT_TRUE(map.npcs.startsWith(QChar(NpcSeparator)));
    EXPECT_TRUE(map.groundItems.startsWith(QChar(GroundPileSeparator)));
}

TEST(MapFileTest, itemsTwoThirteenAndSeventeenAreWrittenAtTheirFixedValues) {
    MapFile map = fenwick();
    map.reserved2 = 5;
    map.reserved13 = "a|b";
    map.reserved17 = "left over";
    const MapFile back = ParseMapText(MapText(map));
    EXPECT_EQ(back.reserved2, Value(0));
    EXPECT_EQ(back.reserved13, "||");
    EXPECT_EQ(back.reserved17, "");
    EXPECT_EQ(itemTexts(back), itemTexts(fenwick()));
}

TEST(MapFileTest, aNewMapWritesTheDefaultsOfItems2To17) {
    MapFile map;
    const QString text = MapText(map);
    EXPECT_EQ(text, "\"\",0,\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",18,17,\"||\",0,\"\",\"\",\"\"\r\n");
}

TEST(MapFileTest, aFileEndingBeforeItem17IsAReadPastTheEnd) {
    const QString full = QString::fromLatin1(testdata::bytes("world/maps/empty-level/map.ubm"));
    QString twelve = full.section(u',', 0, 11) + "\r\n";
    EXPECT_EQ(errorOf([&] { ParseMapText(twelve); }), err::InputPastEnd);
    // The screen warp's reader needs only the first twelve.
    const MapFile head = ParseMapText(twelve, MapHeadItemCount);
    EXPECT_EQ(head.width, Value(18));
    EXPECT_EQ(head.height, Value(17));
    EXPECT_EQ(head.tileset, "default.ubt");
    EXPECT_EQ(errorOf([&] { ParseMapText(full.section(u',', 0, 10), MapHeadItemCount); }), err::InputPastEnd);
}

TEST(MapFileTest, theHeadReaderReadsAFileFromDisk) {
    const MapFile head = ReadMapHead(testdata::path("world/maps/fenwick/map.ubm"));
    EXPECT_EQ(head.width, Value(18));
    EXPECT_EQ(head.screenWarps, "\\maps\\north.ubm||\\maps\\west.ubm|");
    EXPECT_TRUE(head.npcs.isEmpty()); // items past 12 are not read
}

TEST(MapFileTest, aMapOf18By17Holds19By18CellsIn342Entries) {
    const MapFile map = fenwick();
    EXPECT_EQ(map.tiles.count(u':'), 342);
    // The ":"-split has one more, empty, element than there are cells.
    EXPECT_EQ(map.tiles.split(u':').size(), 343);
    const MapGrid grid = SplitMapGrid(map.tiles, map.passabilities, map.width, map.height);
    EXPECT_EQ(grid.columns, 19);
    EXPECT_EQ(grid.rows, 18);
    EXPECT_EQ(grid.tile(0, 0), "0|0");
    EXPECT_EQ(grid.tile(4, 2), "96|48");
    EXPECT_EQ(grid.tile(18, 17), "72|48");
    EXPECT_EQ(grid.passability(0, 5), "2");
    EXPECT_EQ(grid.passability(1, 1), "1");
}

TEST(MapFileTest, theGridReaderStopsByTheSizeNotByTheListsEnd) {
    const MapGrid grid = SplitMapGrid("a:b:c:d:e:f:", "1:2:1:2:1:2:", Value(1), Value(0));
    EXPECT_EQ(grid.columns, 2);
    EXPECT_EQ(grid.rows, 1);
    EXPECT_EQ(grid.tiles, QStringList({"a", "b"}));
    EXPECT_EQ(grid.pass, QStringList({"1", "2"}));
}

TEST(MapFileTest, anEmptyTileElementHoldsTheCounterSoEveryLaterCellStaysEmpty) {
    // Six cells; the third element is empty: the counter stands on it from then on.
    const MapGrid grid = SplitMapGrid("a:b::d:e:f:", "1:1:1:2:2:2:", Value(2), Value(1));
    EXPECT_EQ(grid.tiles, QStringList({"a", "b", "", "", "", ""}));
    EXPECT_EQ(grid.pass, QStringList({"1", "1", "", "", "", ""}));
}

TEST(MapFileTest, runningOutOfTileOrPassabilityElementsIsASubscriptError) {
    EXPECT_EQ(errorOf([] { SplitMapGrid("a:b", "1:1", Value(2), Value(0)); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { SplitMapGrid("a:b:c:", "1:1", Value(2), Value(0)); }), err::SubscriptOutOfRange);
}

TEST(MapFileTest, aSizeWithLettersReadsByItsNumericPrefix) {
    const MapGrid grid = SplitMapGrid("a:b:c:d:e:f:", "1:1:1:1:1:1:", Value("2ab"), Value("1 row"));
    EXPECT_EQ(grid.columns, 3);
    EXPECT_EQ(grid.rows, 2);
    EXPECT_EQ(grid.tile(2, 1), "f");
    // A size that is no number at all reads as 0: one column, one row.
    const MapGrid one = SplitMapGrid("a:", "1:", Value("wide"), Value(""));
    EXPECT_EQ(one.tiles, QStringList({"a"}));
}

TEST(MapFileTest, cellsPastTheGamesStorageAreASubscriptError) {
    QString tiles, pass;
    for (int i = 0; i < 502; ++i) {
        tiles += "0|0:";
        pass += "1:";
    }
    EXPECT_EQ(errorOf([&] { SplitMapGrid(tiles, pass, Value(501), Value(0)); }), err::SubscriptOutOfRange);
    EXPECT_EQ(SplitMapGrid(tiles, pass, Value(500), Value(0)).columns, 501);
}

TEST(MapFileTest, writingTheGridGivesEachCellItsColonAndAnEmptyPassabilityAsOne) {
    const MapFile map = fenwick();
    const MapGrid grid = SplitMapGrid(map.tiles, map.passabilities, map.width, map.height);
    QString tiles, pass;
    JoinMapGrid(grid, tiles, pass);
    EXPECT_EQ(tiles, map.tiles);
    EXPECT_EQ(pass, map.passabilities);

    MapGrid fresh;
    fresh.columns = 2;
    fresh.rows = 1;
    fresh.tiles = {"0|0", "24|0"};
    fresh.pass = {"", "2"};
    JoinMapGrid(fresh, tiles, pass);
    EXPECT_EQ(tiles, "0|0:24|0:");
    EXPECT_EQ(pass, "1:2:");
}

TEST(MapFileTest, specialsSplitIntoMessagesAndWarps) {
    const QList<MapSpecial> specials = SplitSpecials(fenwick().specials);
    ASSERT_EQ(specials.size(), 3);
    EXPECT_EQ(specials[0].kind, "1");
    EXPECT_EQ(specials[0].fields[MessageLocationField], EnterMessageLocation.toString());
    EXPECT_EQ(specials[0].fields[MessageSourceField], "Old Ned");
    EXPECT_EQ(specials[0].fields[MessageActivationField], "2");
    EXPECT_EQ(specials[0].fields[MessageTextField], "Welcome to Fenwick, traveller!&Mind the bog.");
    EXPECT_EQ(specials[1].kind, "2");
    EXPECT_EQ(specials[1].fields[WarpTargetMapField], "\\maps\\cellar.ubm");
    EXPECT_EQ(specials[1].fields[WarpTargetLocationField], "SL;SL");
    EXPECT_EQ(specials[2].fields[MessageSourceField], "");
    EXPECT_TRUE(SplitSpecials("").isEmpty());
}

TEST(MapFileTest, specialsAreBuiltAsTheEditorWritesThem) {
    const QString text = MessageSpecial("-1;-1", "Old Ned", "2", "Welcome to Fenwick, traveller!&Mind the bog.") +
                         WarpSpecial("3;2", "\\maps\\cellar.ubm", "SL;SL");
    EXPECT_TRUE(fenwick().specials.startsWith(text));
    EXPECT_TRUE(text.endsWith('/'));
}

TEST(MapFileTest, aSpecialWithoutItsKindIsASubscriptError) {
    EXPECT_EQ(errorOf([] { SplitSpecials("3;2|\\maps\\a.ubm|1;1/"); }), err::SubscriptOutOfRange);
}

TEST(MapFileTest, screenWarpsEnemiesAndTheStartLocationSplitAsTheGameSplitsThem) {
    const MapFile map = fenwick();
    const auto warps = SplitScreenWarps(map.screenWarps);
    EXPECT_EQ(warps[0], "\\maps\\north.ubm");
    EXPECT_EQ(warps[1], "");
    EXPECT_EQ(warps[2], "\\maps\\west.ubm");
    EXPECT_EQ(warps[3], "");
    EXPECT_EQ(JoinScreenWarps(warps), map.screenWarps);
    EXPECT_EQ(errorOf([] { SplitScreenWarps("a|b"); }), err::SubscriptOutOfRange);

    const MapEnemies enemies = SplitMapEnemies(map.enemies);
    EXPECT_EQ(enemies.rate, "15");
    const QStringList entries = NonEmptyParts(enemies.list, u'/');
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[1].split(u':')[MapEnemyMaxLevel], "All");
    EXPECT_EQ(JoinMapEnemies(enemies.list, ""), "/Rat-Warrior:1:5/Bog Wraith-Mage:3:All^0");
    EXPECT_EQ(errorOf([] { SplitMapEnemies("/Rat-Warrior:1:5"); }), err::SubscriptOutOfRange);

    const TextPosition start = SplitPosition(map.startLocation, u'|');
    EXPECT_EQ(start.x, 2);
    EXPECT_EQ(start.y, 3);
}

TEST(MapFileTest, groundPilesAndNpcsAreLedByTheirSeparators) {
    const MapFile map = fenwick();
    const QStringList piles = NonEmptyParts(map.groundItems, GroundPileSeparator);
    ASSERT_EQ(piles.size(), 2);
    const QStringList pile = piles[1].split(GroundPileFieldSeparator);
    EXPECT_EQ(pile[GroundPileVariable], ""); // may be empty
    EXPECT_EQ(pile[GroundPileLocation], "7;7");

    const QStringList npcs = NonEmptyParts(map.npcs, NpcSeparator);
    ASSERT_EQ(npcs.size(), 2);
    const QStringList ned = npcs[0].split(u':');
    ASSERT_EQ(ned.size(), NpcFieldCount);
    EXPECT_EQ(ned[NpcName], "Ned");
    EXPECT_EQ(ned[NpcManipPaste], "True");
    EXPECT_EQ(ned[NpcLocation], "6;5");
    EXPECT_EQ(npcs[1].split(u':')[NpcEventPath], "");
}

class MapFileOnDiskTest : public ScriptedTest {};

TEST_F(MapFileOnDiskTest, aWrittenMapReadsBackItemForItemAndByteForByte) {
    const MapFile map = fenwick();
    QDir().mkpath(nativeRoot() + "/maps");
    WriteMapFile(AppPath() + "\\maps\\fenwick.ubm", map);
    EXPECT_EQ(readFile("\\maps\\fenwick.ubm"), testdata::bytes("world/maps/fenwick/map.ubm"));
    EXPECT_EQ(itemTexts(ReadMapFile(AppPath() + "\\maps\\fenwick.ubm")), itemTexts(map));
}

TEST_F(MapFileOnDiskTest, aMissingMapIsFileNotFound) {
    QDir().mkpath(nativeRoot() + "/maps");
    EXPECT_EQ(errorOf([&] { ReadMapFile(AppPath() + "\\maps\\nowhere.ubm"); }), err::FileNotFound);
}
