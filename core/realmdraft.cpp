#include "core/realmdraft.h"

#include "core/realm.h"

namespace umbrith {

namespace {

void keepShownRow(RealmDraft& d) {
    for (int i = 0; i < StatCount; ++i) {
        if (d.showingBase)
            d.base[i] = Val(d.shown[i]);
        else
            d.editable[i] = toInt16(Value(Val(d.shown[i])));
    }
}

} // namespace

void ShowStatSet(RealmDraft& d, bool base) {
    if (d.showingBase == base)
        return;
    keepShownRow(d);
    d.showingBase = base;
    for (int i = 0; i < StatCount; ++i)
        d.shown[i] = numberText(base ? d.base[i] : d.editable[i]);
}

QString RealmDraftProblem(const RealmDraft& d) {
    if (d.name.isEmpty() || d.description.isEmpty() || d.raceFrameOpen)
        return QStringLiteral("Unable to create! You are forgetting very important parts!");
    return QString();
}

RealmBuild BuildRealmRecord(RealmDraft& d) {
    Realm realm;
    for (const QString& list : d.lists) {
        if (list.isEmpty())
            return {QStringLiteral("You MUST select which equipment/items/skills/enemies list you will use! Ensure you "
                                   "have them all chosen!"),
                    QString()};
        realm.listFiles += u':' + list;
    }
    if (d.races.isEmpty())
        return {QStringLiteral("You need at least one race the player can choose!"), QString()};
    for (const QString& race : d.races)
        realm.races += u':' + race;
    keepShownRow(d);
    QString baseGroup, editableGroup;
    for (int i = 0; i < StatCount; ++i) {
        // Only the boxes on show are looked at; the other set passes as it is.
        if (d.shown[i].isEmpty() && !d.statsEditable)
            return {QStringLiteral("You forget to enter all the player stats!"), QString()};
        baseGroup += u':' + numberText(d.base[i]);
        editableGroup += u':' + numberText(d.editable[i]);
    }
    realm.name = d.name;
    realm.description = d.description;
    realm.statsEditable = d.statsEditable ? QStringLiteral("1") : QStringLiteral("0");
    realm.pointsAtStart = d.pointsAtStart;
    realm.statistics = baseGroup + u'\u00A3' + editableGroup;
    realm.pointsPerLevel = d.pointsPerLevel;
    realm.nameEditable = d.nameEditable ? QStringLiteral("1") : QStringLiteral("0");
    realm.defaultName = d.defaultName;
    return {QString(), RealmRecord(realm)};
}

} // namespace umbrith
