#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace umbrith {

// The separator of a realm record's ten fields: "ƒ", byte 0x83 in the file.
inline constexpr char16_t RealmSeparator = u'\u0192';

// The list paths in force, each relative to the program folder:
// 0 equipment, 1 items, 2 skills, 3 enemies, 4 start map.
enum ListFileIndex { EquipListFile = 0, ItemListFile = 1, SkillListFile = 2, EnemyListFile = 3, StartMapFile = 4 };
extern std::array<QString, 5> ListFiles;

// The default lists, "\config\equip lists\equiplist.ubc" and so on, in
// the order of ListFiles.
const std::array<QString, 4>& DefaultListFiles();
// Puts the four default lists into ListFiles 0 to 3 (Play Custom Level); the start
// map is left as it is.
void SetDefaultListFiles();

// The realm record: one text of ten "ƒ"-joined fields, in this order.
enum RealmField {
    RealmName = 0,
    RealmDescription = 1,
    RealmListFiles = 2,      // five paths, each led by ":"
    RealmRaces = 3,          // race names, each led by ":"
    RealmStatsEditable = 4,  // "1" or "0"
    RealmPointsAtStart = 5,
    RealmStatistics = 6,     // base group "£" editable group, every number led by ":"
    RealmPointsPerLevel = 7,
    RealmNameEditable = 8,   // "0" locks the name box
    RealmDefaultName = 9,
};
inline constexpr int RealmFieldCount = 10;

// The ten fields of a record by name. They stay text: the panel and the
// creation form split them further when they use them.
struct Realm {
    QString name, description, listFiles, races, statsEditable, pointsAtStart, statistics, pointsPerLevel,
        nameEditable, defaultName;
};

// The record split on "ƒ", as many pieces as it holds.
QStringList RealmFields(const QString& record);
// The ten fields; a record of fewer raises "Subscript out of range" as the panel's
// f(9) did. Pieces past the tenth (a name holding "ƒ") are ignored.
Realm ParseRealm(const QString& record);
// The ten fields joined with "ƒ".
QString RealmRecord(const Realm& realm);

// The one field of a realm file; a file with no field is "Input past end of file".
QString ReadRealmFile(const QString& path);
// Writes the record as the file's one field, replacing the file.
void WriteRealmFile(const QString& path, const QString& record);

// The five paths of a list field, elements 1 to 5 of its ":"-split; fewer
// raises "Subscript out of range".
std::array<QString, 5> RealmListPaths(const QString& listField);
// ListFiles[i] = element i + 1 of the list field, for i from 0 to 4. A field of
// fewer paths sets those it has and then raises "Subscript out of range".
void SetListFiles(const QString& listField);

// The catalogue of the realms in "\realms": the names for lstRealms, and the whole
// records joined with "Ü", each led by "Ü", in the same order. Files are taken
// by the ".ubr" pattern sorted by name, case-insensitive. A file that can't be
// read as a record is left out, and named in `unreadable` with its error, so
// that one bad file doesn't hide the other realms.
struct RealmCatalogue {
    QStringList names;
    QString records;
    QStringList unreadable; // "file: error"
};
RealmCatalogue ReadRealmCatalogue();
// The record at a list index, counting the non-empty elements of the catalogue
// from 0; "" past the end.
QString CatalogueRecord(const QString& records, int index);

} // namespace umbrith
