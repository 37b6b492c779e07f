#pragma once
// Writes the starter content into a program folder through the game's own
// writers: the four default lists, the item and talk events, the editor's
// new-map template, and the maps and realm of the Vale of Ember. The tileset
// must already be there: the maps take their passabilities from it.
#include <QString>

#include <vector>

namespace worldgen {

inline const QString kStarterRealm = QStringLiteral("\\realms\\Vale of Ember.ubr");

// Every map written, as stored paths, the new-map template first.
std::vector<QString> contentMaps();

// `programFolder` is a native or stored path without a trailing separator.
void writeContent(const QString& programFolder);

} // namespace worldgen
