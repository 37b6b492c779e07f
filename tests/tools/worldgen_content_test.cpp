// The starter content as the game will meet it: the realm in the catalogue,
// the lists through the list readers, the maps through the map reader, and
// every path, warp and key they name leading somewhere real.
#include "content.h"
#include "starter_lists.h"
#include "tile_names.h"
#include "worldgen_support.h"

#include "core/misc.h"
#include "core/realm.h"
#include "events/eventfile.h"
#include "events/eventrecord.h"
#include "inventory/listfiles.h"
#include "platform/files.h"
#include "world/mapfile.h"
#include "world/tileset.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace worldgen::test {
namespace {

using namespace umbrith;

// One program folder with the generated art and the content written into it.
class StarterContent : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder_ = new QTemporaryDir;
        writeAll(generated(), folder_->path().toStdString());
        writeContent(folder_->path());
    }
    static void TearDownTestSuite() { delete folder_; }

    static QString root() { return QString(folder_->path()).replace(u'/', u'\\'); }
    static QString list(ListKind kind) { return ReadListFile(root() + DefaultListFiles()[int(kind)]); }
    static bool exists(const QString& stored) { return fileExists(root() + stored); }

    struct Cells {
        MapFile map;
        MapGrid grid;
        // Playable size: the stored grid less its last column and row.
        int width() const { return grid.columns - 1; }
        int height() const { return grid.rows - 1; }
        bool passable(int x, int y) const { return grid.passability(x, y) == "1"; }
    };
    static Cells readMap(const QString& stored)
    {
        Cells c;
        c.map = ReadMapFile(root() + stored);
        c.grid = SplitMapGrid(c.map.tiles, c.map.passabilities, c.map.width, c.map.height);
        return c;
    }
    static std::vector<QString> realmMaps()
    {
        std::vector<QString> maps = contentMaps();
        maps.erase(maps.begin()); // the new-map template belongs to no realm
        return maps;
    }

    static QTemporaryDir* folder_;
};
QTemporaryDir* StarterContent::folder_ = nullptr;

TEST_F(StarterContent, TheRealmIsInTheCatalogueAndNamesTheDefaultListsAndAnExistingStartMap)
{
    setAppPath(folder_->path());
    const RealmCatalogue catalogue = ReadRealmCatalogue();
    ASSERT_TRUE(catalogue.names.contains("Vale of Ember"));
    const Realm realm = ParseRealm(CatalogueRecord(catalogue.records, int(catalogue.names.indexOf("Vale of Ember"))));
    const auto paths = RealmListPaths(realm.listFiles);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(paths[i], DefaultListFiles()[i]);
    EXPECT_TRUE(exists(paths[StartMapFile])) << paths[StartMapFile].toStdString();
    EXPECT_GE(NonEmptyParts(realm.races, u':').size(), 3);
    const QStringList groups = realm.statistics.split(u'\u00A3');
    ASSERT_EQ(groups.size(), 2);
    for (const QString& group : groups) EXPECT_EQ(group.split(u':').size(), 8) << group.toStdString();
    // A new character starts with every point placed: none missing, none too many.
    double spent = 0;
    for (const QString& value : groups[1].split(u':')) spent += Val(value);
    EXPECT_EQ(spent, Val(realm.pointsAtStart));
}

TEST_F(StarterContent, EachListHoldsAStarterSetOfEveryKind)
{
    std::set<QString> equipKinds, skillKinds, enemyClasses;
    const QStringList equipment = ListRecords(ListKind::Equipment, list(ListKind::Equipment));
    for (const QString& r : equipment) equipKinds.insert(r.split(u'/')[EquipStats].split(u':')[EquipKind]);
    const QStringList skills = ListRecords(ListKind::Skills, list(ListKind::Skills));
    for (const QString& r : skills) skillKinds.insert(r.split(u':')[SkillKind]);
    const QStringList enemies = ListRecords(ListKind::Enemies, list(ListKind::Enemies));
    for (const QString& r : enemies) {
        const QStringList stats = r.split(u',')[EnemyStats].split(u':');
        EXPECT_EQ(stats.size(), EnemyFieldCount) << r.toStdString();
        enemyClasses.insert(stats[EnemyClass]);
    }
    EXPECT_GE(equipment.size(), 15);
    EXPECT_EQ(equipKinds, (std::set<QString>{"Fists", "Sword", "Bow", "Armour", "Shield", "Helmet", "Boots", "Gloves"}));
    EXPECT_EQ(ListRecords(ListKind::Items, list(ListKind::Items)).size(), 10);
    EXPECT_EQ(skills.size(), 10);
    EXPECT_EQ(skillKinds, (std::set<QString>{"Dam", "HP", "MP"}));
    EXPECT_EQ(enemies.size(), 12);
    EXPECT_EQ(enemyClasses, (std::set<QString>{"Warrior", "Mage", "Both"}));
}

TEST_F(StarterContent, KeysAreUniqueSoEveryLookupFindsTheRecordMeant)
{
    for (ListKind kind : {ListKind::Equipment, ListKind::Items, ListKind::Skills, ListKind::Enemies}) {
        std::set<QString> keys;
        for (const QString& r : ListRecords(kind, list(kind))) EXPECT_TRUE(keys.insert(RecordKey(kind, r)).second) << r.toStdString();
    }
}

TEST_F(StarterContent, EveryPictureAListNamesExists)
{
    for (const QString& r : ListRecords(ListKind::Equipment, list(ListKind::Equipment))) {
        const QString picture = r.split(u'/')[EquipPicture];
        EXPECT_TRUE(!picture.isEmpty() && exists(picture)) << r.toStdString();
    }
    for (const QString& r : ListRecords(ListKind::Enemies, list(ListKind::Enemies))) {
        const QString picture = EnemyPicturePath(r.split(u',')[EnemyStats].split(u':')[EnemyPicture]);
        EXPECT_TRUE(exists(picture)) << picture.toStdString();
    }
}

TEST_F(StarterContent, EnemySkillsAreCopiesOfListedSkillsAndRewardsNameListedThings)
{
    const QString skills = list(ListKind::Skills), equipment = list(ListKind::Equipment), items = list(ListKind::Items);
    for (const QString& r : ListRecords(ListKind::Enemies, list(ListKind::Enemies))) {
        const QStringList parts = r.split(u',');
        for (const QString& skill : NonEmptyParts(parts[EnemySkills], u'/'))
            EXPECT_EQ(FindSkill(skills, SkillKey(skill)), skill);
        for (const QString& reward : NonEmptyParts(parts[EnemyRewards], u'|')) {
            const QStringList f = reward.split(u':');
            const QString& key = f[RewardKey];
            const QString found = f[RewardArticle] == "1" ? FindEquipment(equipment, key)
                                : f[RewardArticle] == "2" ? FindSkill(skills, key) : FindItem(items, key);
            EXPECT_FALSE(found.isEmpty()) << reward.toStdString();
        }
    }
}

TEST_F(StarterContent, EveryItemRunsAnEventFileWithActionsTheEngineKnows)
{
    for (const QString& r : ListRecords(ListKind::Items, list(ListKind::Items))) {
        const QString path = r.split(ItemFieldSeparator)[ItemEvents];
        const EventParts event = SplitEvent(LoadEventFile(root() + path));
        const QStringList actions = EventActions(event.actions);
        EXPECT_FALSE(actions.isEmpty()) << path.toStdString();
        for (const QString& a : actions) EXPECT_TRUE(IsKnownActionKind(SplitAction(a).kind)) << a.toStdString();
    }
}

TEST_F(StarterContent, EveryMapReadsBackAtItsSizeWithEveryCellFilled)
{
    for (const QString& path : contentMaps()) {
        const Cells c = readMap(path);
        // One tile and one passability per stored cell, each followed by ":".
        EXPECT_EQ(c.map.tiles.split(u':').size(), c.grid.columns * c.grid.rows + 1) << path.toStdString();
        EXPECT_EQ(c.map.passabilities.split(u':').size(), c.grid.columns * c.grid.rows + 1) << path.toStdString();
        EXPECT_FALSE(c.grid.tiles.contains(QString())) << path.toStdString();
        EXPECT_TRUE(exists(c.map.music)) << path.toStdString();
        EXPECT_TRUE(exists("\\tilesets\\" + c.map.tileset)) << path.toStdString();
    }
    const Cells blank = readMap(contentMaps().front());
    EXPECT_EQ(blank.width(), 18);
    EXPECT_EQ(blank.height(), 17);
    bool large = false;
    for (const QString& path : realmMaps()) large |= readMap(path).width() > 60 && readMap(path).height() > 60;
    EXPECT_TRUE(large);
}

TEST_F(StarterContent, TileWarpsLandOnPassableCellsOffTheWarpBack)
{
    int warps = 0;
    for (const QString& path : realmMaps())
        for (const MapSpecial& s : SplitSpecials(readMap(path).map.specials)) {
            if (s.kind != "2") continue;
            ++warps;
            const QString target = s.fields[WarpTargetMapField];
            ASSERT_TRUE(exists(target)) << target.toStdString();
            const Cells t = readMap(target);
            const TextPosition land = SplitPosition(s.fields[WarpTargetLocationField], u';');
            EXPECT_TRUE(t.passable(int(land.x), int(land.y))) << target.toStdString();
            for (const MapSpecial& back : SplitSpecials(t.map.specials))
                EXPECT_NE(back.fields[0], s.fields[WarpTargetLocationField]) << target.toStdString();
        }
    EXPECT_GE(warps, 2);
}

TEST_F(StarterContent, EveryPassableCellOnAScreenWarpsEdgeLandsOnAPassableCell)
{
    for (const QString& path : realmMaps()) {
        const Cells c = readMap(path);
        const auto edges = SplitScreenWarps(c.map.screenWarps);
        for (int edge = 0; edge < 4; ++edge) {
            if (edges[edge].isEmpty()) continue;
            ASSERT_TRUE(exists(edges[edge])) << edges[edge].toStdString();
            const Cells t = readMap(edges[edge]);
            const bool across = edge < 2; // top and bottom keep the column
            int open = 0;
            for (int i = 0; i < (across ? c.width() : c.height()); ++i) {
                const int x = across ? i : (edge == 2 ? 0 : c.width() - 1);
                const int y = across ? (edge == 0 ? 0 : c.height() - 1) : i;
                if (!c.passable(x, y)) continue;
                ++open;
                const int tx = across ? x : (edge == 2 ? t.width() - 1 : 0);
                const int ty = across ? (edge == 0 ? t.height() - 1 : 0) : y;
                EXPECT_TRUE(tx < t.width() && ty < t.height() && t.passable(tx, ty))
                    << path.toStdString() << " edge " << edge << " at " << i;
            }
            EXPECT_GT(open, 0) << path.toStdString() << " edge " << edge;
        }
    }
}

TEST_F(StarterContent, EnemiesComeFromTheListOutsideTownOnly)
{
    const QString enemies = list(ListKind::Enemies);
    for (const QString& path : realmMaps()) {
        const MapEnemies e = SplitMapEnemies(readMap(path).map.enemies);
        if (path.contains("Emberton.ubm")) {
            EXPECT_TRUE(e.list.isEmpty());
            continue;
        }
        EXPECT_GT(e.rate.toInt(), 0) << path.toStdString();
        for (const QString& entry : NonEmptyParts(e.list, u'/'))
            EXPECT_FALSE(FindEnemy(enemies, entry.split(u':')[MapEnemyName]).isEmpty()) << entry.toStdString();
    }
}

TEST_F(StarterContent, PeopleHaveTheirPicturesAndTalkEventsAndPilesAStoryVariable)
{
    int wanderers = 0, followers = 0;
    for (const QString& path : realmMaps()) {
        const Cells c = readMap(path);
        for (const QString& npc : NonEmptyParts(c.map.npcs, NpcSeparator)) {
            const QStringList f = npc.split(u':');
            ASSERT_EQ(f.size(), NpcFieldCount) << npc.toStdString();
            EXPECT_TRUE(exists(f[NpcImagePath])) << npc.toStdString();
            EXPECT_EQ(EventName(LoadEventFile(root() + f[NpcEventPath])), f[NpcName]);
            const TextPosition at = SplitPosition(f[NpcLocation], u';');
            EXPECT_TRUE(c.passable(int(at.x), int(at.y))) << npc.toStdString();
            wanderers += f[NpcWanders] == "1";
            followers += f[NpcFollowsPlayer] == "1";
        }
        for (const QString& pile : NonEmptyParts(c.map.groundItems, GroundPileSeparator)) {
            const QStringList f = pile.split(GroundPileFieldSeparator);
            EXPECT_TRUE(f[GroundPileVariable].startsWith(u'&')) << pile.toStdString();
            const TextPosition at = SplitPosition(f[GroundPileLocation], u';');
            EXPECT_TRUE(c.passable(int(at.x), int(at.y))) << pile.toStdString();
        }
    }
    EXPECT_GT(wanderers, 0);
    EXPECT_GT(followers, 0);
}

TEST_F(StarterContent, TheTilesetBlocksWallsWaterAndTreesAndLetsFloorsPass)
{
    const TilesetRecordParts parts = SplitTilesetRecord(ReadTilesetFile(root() + "\\tilesets\\default.ubt"));
    EXPECT_EQ(parts.picture, "default.bmp");
    ASSERT_EQ(parts.pass.size(), 2500);
    for (const QString& value : parts.pass) ASSERT_TRUE(value == "1" || value == "2") << value.toStdString();
    auto passAt = [&](Tile t) { return parts.pass[t.row * 50 + t.col]; };
    EXPECT_EQ(passAt(kGrass[0]), "1");
    EXPECT_EQ(passAt(kCobble[1]), "1");
    EXPECT_EQ(passAt(kWater[0]), "2");
    EXPECT_EQ(passAt(kOak.at(1, 1)), "2");
    EXPECT_EQ(passAt(kWallStone.middle()), "2");
    EXPECT_EQ(passAt(kWallStone.doorOpen()), "1");
    EXPECT_EQ(passAt(kGrassPond.c()), "2");
    EXPECT_EQ(passAt(kGrassPond.nw()), "1"); // mostly grass
    EXPECT_EQ(passAt(kBridgeH[1]), "1");
}

TEST_F(StarterContent, WritingTwiceGivesTheSameBytes)
{
    QTemporaryDir again;
    writeContent(again.path());
    int compared = 0;
    for (QDirIterator it(again.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString file = it.next();
        const QString relative = QDir(again.path()).relativeFilePath(file);
        QFile a(file), b(folder_->path() + u'/' + relative);
        ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly)) << relative.toStdString();
        EXPECT_EQ(a.readAll(), b.readAll()) << relative.toStdString();
        ++compared;
    }
    EXPECT_GT(compared, 30);
}

} // namespace
} // namespace worldgen::test
