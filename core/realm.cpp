#include "core/realm.h"

#include "core/misc.h"
#include "core/record.h"
#include "platform/error.h"
#include "platform/files.h"

namespace umbrith {

std::array<QString, 5> ListFiles;

const std::array<QString, 4>& DefaultListFiles() {
    static const std::array<QString, 4> defaults = {
        QStringLiteral("\\config\\equip lists\\equiplist.ubc"),
        QStringLiteral("\\config\\item lists\\itemlist.ubc"),
        QStringLiteral("\\config\\skill lists\\skilllist.ubc"),
        QStringLiteral("\\config\\enemy lists\\enemylist.ubc"),
    };
    return defaults;
}

void SetDefaultListFiles() {
    for (int i = 0; i < 4; ++i)
        ListFiles[i] = DefaultListFiles()[i];
}

QStringList RealmFields(const QString& record) { return record.split(RealmSeparator); }

Realm ParseRealm(const QString& record) {
    const QStringList f = RealmFields(record);
    if (f.size() < RealmFieldCount)
        err::raise(err::SubscriptOutOfRange);
    return {f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], f[9]};
}

QString RealmRecord(const Realm& r) {
    const QChar s(RealmSeparator);
    return r.name + s + r.description + s + r.listFiles + s + r.races + s + r.statsEditable + s + r.pointsAtStart +
           s + r.statistics + s + r.pointsPerLevel + s + r.nameEditable + s + r.defaultName;
}

QString ReadRealmFile(const QString& path) { return readRecordFile(path, 1)[0].text(); }

void WriteRealmFile(const QString& path, const QString& record) { writeRecordFile(path, {Value(record)}); }

std::array<QString, 5> RealmListPaths(const QString& listField) {
    const QStringList parts = listField.split(u':');
    if (parts.size() < 6)
        err::raise(err::SubscriptOutOfRange);
    return {parts[1], parts[2], parts[3], parts[4], parts[5]};
}

void SetListFiles(const QString& listField) {
    const QStringList parts = listField.split(u':');
    for (int i = 0; i < 5; ++i) {
        if (i + 1 >= parts.size())
            err::raise(err::SubscriptOutOfRange);
        ListFiles[i] = parts[i + 1];
    }
}

RealmCatalogue ReadRealmCatalogue() {
    RealmCatalogue catalogue;
    const QString folder = AppPath() + QStringLiteral("\\realms");
    for (const QString& file : listFiles(folder, QStringLiteral("*.ubr"))) {
        try {
            QString record = ReadRealmFile(folder + u'\\' + file);
            catalogue.names.append(RealmFields(record)[0]);
            catalogue.records += u'\u00DC' + record;
        } catch (const RuntimeError& error) {
            catalogue.unreadable.append(file + QStringLiteral(": ") + error.text());
        }
    }
    return catalogue;
}

QString CatalogueRecord(const QString& records, int index) {
    int count = 0;
    for (const QString& record : records.split(u'\u00DC')) {
        if (record.isEmpty())
            continue;
        if (count++ == index)
            return record;
    }
    return QString();
}

} // namespace umbrith
