// The starter items. An item does nothing by itself: each has an event file
// whose actions heal, restore, strengthen or carry the player home.
#include "starter_lists.h"
#include "starter_maps.h"

#include "events/eventrecord.h"
#include "inventory/listfiles.h"

namespace worldgen {
namespace {

using namespace umbrith;

struct Item {
    const char* name;
    int uses;
    bool droppable;
    bool combat;
    const char* eventFile; // under "\events"
    QString actions;
};

std::vector<Item> items()
{
    const QString hp = QStringLiteral("&Player HP"), mp = QStringLiteral("&Player MP");
    return {
        {"Healing Potion", 1, true, true, "healing potion.ube",
         changeVariable(hp, " += ", "30") + showMessage("", "You drink the potion. Warmth spreads through you.")},
        {"Greater Healing Potion", 1, true, true, "greater healing potion.ube",
         changeVariable(hp, " += ", "80") + showMessage("", "Your wounds close before your eyes.")},
        {"Mana Potion", 1, true, true, "mana potion.ube",
         changeVariable(mp, " += ", "20") + showMessage("", "The blue draught clears your mind.")},
        {"Ember Elixir", 1, true, true, "ember elixir.ube",
         changeVariable(hp, " += ", "150") + changeVariable(mp, " += ", "60")
             + showMessage("", "Fire and calm run through you together. You feel whole.")},
        {"Loaf of Bread", 3, true, false, "loaf of bread.ube",
         changeVariable(hp, " += ", "10") + showMessage("", "Fresh bread from the Emberton oven.")},
        {"Strength Tonic", 1, true, false, "strength tonic.ube",
         changeVariable("&Player Strength", " += ", "1") + showMessage("", "Your arms feel stronger for good.")},
        {"Swiftroot", 1, true, false, "swiftroot.ube",
         changeVariable("&Player Speed", " += ", "1") + changeVariable("&Player Agility", " += ", "1")
             + showMessage("", "The bitter root quickens your step.")},
        {"Purse of Coins", 1, false, false, "purse of coins.ube",
         changeVariable("&Player Gold", " += ", "75") + showMessage("", "You count 75 gold pieces into your pouch.")},
        {"Sun Charm", 2, true, false, "sun charm.ube",
         changeVariable("&Day", " = ", "True") + showMessage("", "The charm glows and the night gives way to day.")},
        {"Scroll of Return", 1, true, false, "scroll of return.ube",
         showMessage("", "The scroll burns away and the world folds...")
             + ActionEntry(kTownMap + QStringLiteral(":SL:SL"), QStringLiteral("3"))},
    };
}

QString eventPath(const Item& item) { return QStringLiteral("\\events\\") + item.eventFile; }

} // namespace

QString callEvent(const QString& name, const QString& actions)
{
    return JoinEvent({name, CallPlace.toString(), QString(), actions});
}

QString changeVariable(const QString& variable, const QString& op, const QString& value)
{
    const QChar sep = ActionFieldSeparator(QStringLiteral("1"));
    return ActionEntry(variable + sep + op + sep + value, QStringLiteral("1"));
}

QString showMessage(const QString& source, const QString& text)
{
    const QChar sep = ActionFieldSeparator(QStringLiteral("2"));
    return ActionEntry(source + sep + text, QStringLiteral("2"));
}

QString barRecord(const QString& first, int second, int third)
{
    static_assert(int(BonusName) == int(RewardKey) && int(BonusOperation) == int(RewardChance) &&
                  int(BonusAmount) == int(RewardArticle));
    QStringList fields(3);
    fields[BonusName] = first;
    fields[BonusOperation] = QString::number(second);
    fields[BonusAmount] = QString::number(third);
    return u'|' + fields.join(u':');
}

QString starterItems()
{
    QString list;
    for (const Item& item : items()) {
        QStringList fields(6);
        fields[ItemName] = item.name;
        fields[ItemUses] = QString::number(item.uses);
        fields[ItemEvents] = eventPath(item);
        fields[ItemDroppable] = item.droppable ? QStringLiteral("1") : QStringLiteral("0");
        fields[ItemCombat] = item.combat ? QStringLiteral("1") : QStringLiteral("0");
        list += ListRecordSeparator(ListKind::Items) + fields.join(ItemFieldSeparator);
    }
    return list;
}

std::vector<EventFile> itemEvents()
{
    std::vector<EventFile> files;
    for (const Item& item : items()) files.push_back({eventPath(item), callEvent(item.name, item.actions)});
    return files;
}

QString pileItem(const QString& items, const QString& name)
{
    return QChar(kGroundEntrySeparator) + FindItem(items, name) + QChar(kGroundTagSeparator) + u'2';
}

} // namespace worldgen
