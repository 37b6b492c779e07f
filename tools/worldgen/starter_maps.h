#pragma once
// The maps of the starter realm, the Vale of Ember, and the editor's
// new-map template. Each map is composed in its own file.
#include "mapcanvas.h"

namespace worldgen {

inline const QString kTownMap = QStringLiteral("\\maps\\Emberton.ubm");
inline const QString kFieldsMap = QStringLiteral("\\maps\\Emberton Fields.ubm");
inline const QString kForestMap = QStringLiteral("\\maps\\Ashwood.ubm");
inline const QString kCaveMap = QStringLiteral("\\maps\\Ember Cave.ubm");
inline const QString kNewLevelMap = QStringLiteral("\\maps\\newlevel.ubm");

// What the maps need of the lists: the records their ground piles copy.
struct StarterLists {
    QString equipment;
    QString items;
};

MapCanvas townMap(const TilePass& pass, const StarterLists& lists);
MapCanvas fieldsMap(const TilePass& pass, const StarterLists& lists);
MapCanvas forestMap(const TilePass& pass, const StarterLists& lists);
MapCanvas caveMap(const TilePass& pass, const StarterLists& lists);
MapCanvas newLevelTemplate(const TilePass& pass);

// Where the town's road leaves by the south edge and enters the fields by
// their north edge, and where the fields' road meets the Ashwood: the screen
// warps keep the coordinate along the edge, so both sides leave these open.
inline constexpr int kTownGateX = 19;     // columns kTownGateX .. +2
inline constexpr int kEastRoadY = 30;     // the road on rows kEastRoadY .. +2, grass on +3
// The cave's mouth in the Ashwood, and the ladder back up inside the cave.
inline constexpr int kCaveMouthX = 30, kCaveMouthY = 6;
inline constexpr int kCaveLadderX = 24, kCaveLadderY = 40;

} // namespace worldgen
