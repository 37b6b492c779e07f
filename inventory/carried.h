#pragma once

#include <QString>
#include <QStringList>

namespace umbrith {

// The rows that the lists of what the player carries show, and that a
// selection is matched against: items as "name(uses)", equipment carried as
// "name-kind (durability/max)", skills as "name-kind".
QStringList ItemRows(const QString& itemsCarried);
QStringList EquipmentRows(const QString& equipmentPack);
QStringList SkillRows(const QString& skillsKnown);

} // namespace umbrith
