#include "inventory/carried.h"

#include "core/record.h"
#include "inventory/listfiles.h"

namespace umbrith {

QStringList ItemRows(const QString& itemsCarried) {
    QStringList rows;
    for (const QString& item : NonEmptyParts(itemsCarried, u'/')) {
        const QStringList fields = item.split(QChar(ItemFieldSeparator));
        rows.append(fields[ItemName] + u'(' + fields.value(ItemUses) + u')');
    }
    return rows;
}

// An entry is "kind:name:power:durability/bonuses/picture#max^1"; entries of
// another mark, or too short to read, are not equipment to list.
QStringList EquipmentRows(const QString& equipmentPack) {
    QStringList rows;
    for (const QString& entry : NonEmptyParts(equipmentPack, u'*')) {
        const QStringList marked = entry.split(u'^');
        if (marked.value(1) != u"1")
            continue;
        const QStringList withMax = marked[0].split(u'#');
        const QStringList stats = withMax[0].section(u'/', 0, 0).split(u':');
        if (stats.size() <= EquipDurability)
            continue;
        rows.append(stats[EquipName] + u'-' + stats[EquipKind] + QStringLiteral(" (") + stats[EquipDurability] + u'/' +
                    withMax.value(1) + u')');
    }
    return rows;
}

QStringList SkillRows(const QString& skillsKnown) {
    QStringList rows;
    for (const QString& skill : NonEmptyParts(skillsKnown, u'/')) {
        const QStringList fields = skill.split(u':');
        rows.append(fields[SkillName] + u'-' + fields.value(SkillKind));
    }
    return rows;
}

} // namespace umbrith
