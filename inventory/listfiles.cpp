#include "inventory/listfiles.h"

#include "core/record.h"
#include "platform/error.h"

namespace umbrith {

QString EquipList, ItemList, SkillList, EnemyList;

namespace {

QStringList fieldsAtLeast(const QString& text, QChar separator, qsizetype count) {
    QStringList fields = text.split(separator);
    if (fields.size() < count)
        err::raise(err::SubscriptOutOfRange);
    return fields;
}

} // namespace

QString& SharedList(ListKind kind) {
    switch (kind) {
    case ListKind::Equipment: return EquipList;
    case ListKind::Items: return ItemList;
    case ListKind::Skills: return SkillList;
    case ListKind::Enemies: break;
    }
    return EnemyList;
}

QChar ListRecordSeparator(ListKind kind) {
    switch (kind) {
    case ListKind::Equipment: return u',';
    case ListKind::Items: return ItemSeparator;
    case ListKind::Skills: return u'/';
    case ListKind::Enemies: break;
    }
    return u'\\';
}

QString ReadListFile(const QString& path) { return readRecordFile(path, 1)[0].text(); }

void WriteListFile(const QString& path, const QString& list) { writeRecordFile(path, {Value(list)}); }

void LoadList(ListKind kind, const QString& path) { SharedList(kind) = ReadListFile(path); }

void SaveList(ListKind kind, const QString& path) { WriteListFile(path, SharedList(kind)); }

QStringList ListRecords(ListKind kind, const QString& list) { return NonEmptyParts(list, ListRecordSeparator(kind)); }

QString EquipmentKey(const QString& record) {
    const QStringList stats = fieldsAtLeast(record.section(u'/', 0, 0), u':', 2);
    return stats[EquipName] + u'-' + stats[EquipKind];
}

QString ItemKey(const QString& record) { return record.section(ItemFieldSeparator, 0, 0); }

QString SkillKey(const QString& record) {
    const QStringList fields = fieldsAtLeast(record, u':', 4);
    return fields[SkillName] + u'-' + fields[SkillKind];
}

QString EnemyKey(const QString& record) {
    const QStringList stats = fieldsAtLeast(record.section(u',', 0, 0), u':', 2);
    return stats[EnemyName] + u'-' + stats[EnemyClass];
}

QString RecordKey(ListKind kind, const QString& record) {
    switch (kind) {
    case ListKind::Equipment: return EquipmentKey(record);
    case ListKind::Items: return ItemKey(record);
    case ListKind::Skills: return SkillKey(record);
    case ListKind::Enemies: break;
    }
    return EnemyKey(record);
}

QString FindListRecord(ListKind kind, const QString& list, const QString& key) {
    for (const QString& record : ListRecords(kind, list))
        if (RecordKey(kind, record) == key)
            return record;
    return QString();
}

QString FindEquipment(const QString& list, const QString& key) { return FindListRecord(ListKind::Equipment, list, key); }
QString FindItem(const QString& list, const QString& name) { return FindListRecord(ListKind::Items, list, name); }
QString FindSkill(const QString& list, const QString& key) { return FindListRecord(ListKind::Skills, list, key); }
QString FindEnemy(const QString& list, const QString& key) { return FindListRecord(ListKind::Enemies, list, key); }

QString EnemyPicturePath(const QString& stored) { return QString(stored).replace(u'`', u'\\'); }

QString StoredEnemyPicturePath(const QString& path) { return QString(path).replace(u'\\', u'`'); }

QString EnemyShownName(const QString& name) { return TrimBlanks(name.section(u'&', 0, 0)); }

} // namespace umbrith
