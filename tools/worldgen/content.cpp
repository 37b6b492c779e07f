#include "content.h"
#include "tilesheet.h"

#include "starter_maps.h"

#include "core/realm.h"
#include "events/eventfile.h"
#include "inventory/listfiles.h"
#include "world/tileset.h"

#include <QDir>

namespace worldgen {
namespace {

using namespace umbrith;

MapCanvas newLevelTemplate(const TilePass& pass)
{
    MapCanvas m(18, 17, pass);
    m.fill(0, 0, 19, 18, kGrass[0]);
    m.setStart(9, 8);
    return m;
}

QString starterRealm()
{
    Realm realm;
    realm.name = QStringLiteral("Vale of Ember");
    realm.description = QStringLiteral(
        "A quiet valley of farms and woods, until the wolves came down from the Ashwood and smoke began "
        "to rise from the old cave. Start in the village of Emberton and find out what wakes beneath the trees.");
    for (const QString& path : DefaultListFiles()) realm.listFiles += u':' + path;
    realm.listFiles += u':' + kTownMap;
    for (const char* race : {"Human", "Elf", "Dwarf", "Halfling"}) realm.races += u':' + QString(race);
    realm.statsEditable = QStringLiteral("1");
    realm.pointsAtStart = QStringLiteral("10");
    // Strength, defence, hit points, skill points, skill power, speed, agility.
    // The editable group is a suggested spending of the ten points, so a new
    // player can press Create at once or move points around.
    const int base[] = {5, 5, 30, 10, 1, 5, 5};
    const int editable[] = {2, 2, 2, 1, 1, 1, 1};
    QString baseGroup, editableGroup;
    for (int i = 0; i < 7; ++i) {
        baseGroup += u':' + QString::number(base[i]);
        editableGroup += u':' + QString::number(editable[i]);
    }
    realm.statistics = baseGroup + u'\u00A3' + editableGroup;
    realm.pointsPerLevel = QStringLiteral("3");
    realm.nameEditable = QStringLiteral("1");
    realm.defaultName = QStringLiteral("Aren");
    return RealmRecord(realm);
}

struct StarterMap {
    QString path;
    MapCanvas canvas;
};

std::vector<StarterMap> starterMaps(const TilePass& pass, const StarterLists& lists)
{
    std::vector<StarterMap> maps;
    maps.push_back({kNewLevelMap, newLevelTemplate(pass)});
    maps.push_back({kTownMap, townMap(pass, lists)});
    maps.push_back({kFieldsMap, fieldsMap(pass, lists)});
    maps.push_back({kForestMap, forestMap(pass, lists)});
    maps.push_back({kCaveMap, caveMap(pass, lists)});
    return maps;
}

} // namespace

std::vector<QString> contentMaps() { return {kNewLevelMap, kTownMap, kFieldsMap, kForestMap, kCaveMap}; }

void writeContent(const QString& programFolder)
{
    const QString root = QString(programFolder).replace(u'/', u'\\');
    for (const char* folder : {"tilesets", "maps", "events", "realms", "config/equip lists", "config/item lists",
                               "config/skill lists", "config/enemy lists"})
        QDir().mkpath(QString(programFolder) + u'/' + folder);

    const QString skills = starterSkills();
    const StarterLists lists{starterEquipment(), starterItems()};
    WriteListFile(root + DefaultListFiles()[EquipListFile], lists.equipment);
    WriteListFile(root + DefaultListFiles()[ItemListFile], lists.items);
    WriteListFile(root + DefaultListFiles()[SkillListFile], skills);
    WriteListFile(root + DefaultListFiles()[EnemyListFile], starterEnemies(skills));
    for (const EventFile& e : itemEvents()) SaveEventFile(root + e.path, e.event);

    // The tileset's passabilities go through the game's own writer, and the
    // maps are laid out from what its reader makes of them.
    QStringList tilePass;
    const TileSheet sheet = buildDefaultTileset();
    for (int value : sheet.passability())
        tilePass << QString::number(value);
    const QString tileset = root + QStringLiteral("\\tilesets\\default.ubt");
    WriteTilesetFile(tileset, TilesetRecord(tilePass, QStringLiteral("default.bmp")));
    const TilePass pass = SplitTilesetRecord(ReadTilesetFile(tileset)).pass;
    for (const StarterMap& map : starterMaps(pass, lists)) {
        WriteMapFile(root + map.path, map.canvas.file());
        for (const EventFile& e : map.canvas.talks()) SaveEventFile(root + e.path, e.event);
    }
    WriteRealmFile(root + kStarterRealm, starterRealm());
}

} // namespace worldgen
