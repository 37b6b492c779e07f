#pragma once
// The starter content: the four default lists, the event files of the items
// and of the people of the starter realm, and the ground piles made of them.
#include <QString>
#include <QStringList>

#include <vector>

namespace worldgen {

QString starterEquipment();
QString starterSkills();
QString starterEnemies(const QString& skills);
QString starterItems();

// An event file to write: its stored path and the one event it holds.
struct EventFile {
    QString path;
    QString event;
};
std::vector<EventFile> itemEvents();

// Events that fire only when called: by an item, by talking to someone.
QString callEvent(const QString& name, const QString& actions);
// Actions of such events.
QString changeVariable(const QString& variable, const QString& op, const QString& value);
QString showMessage(const QString& source, const QString& text);

// A "|"-led sub-record of three ":" fields, the form of a piece's bonus
// (name, operation, amount) and of an enemy's reward (key, chance, article).
QString barRecord(const QString& first, int second, int third);

// A tile's ground list: entries led by "ƒ", each entry "§" its tag.
inline constexpr char16_t kGroundEntrySeparator = u'\u0192';
inline constexpr char16_t kGroundTagSeparator = u'\u00A7';
// The contents of a ground pile: whole records from the lists, tagged as
// equipment or item.
QString pileEquipment(const QString& equipment, const QString& key);
QString pileItem(const QString& items, const QString& name);

} // namespace worldgen
