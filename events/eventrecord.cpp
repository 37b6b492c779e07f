#include "events/eventrecord.h"

#include "platform/error.h"

namespace umbrith {

namespace {

// The 20-character cut of the editor's labels.
QString cut20(const QString& text) { return text.size() > 20 ? text.left(20) + QStringLiteral("...") : text; }

} // namespace

QStringList EventListEvents(const QString& list) { return NonEmptyParts(list, EventSeparator); }

QString AppendEvent(const QString& list, const QString& event) { return list + QChar(EventSeparator) + event; }

EventParts SplitEvent(const QString& event) {
    const QStringList f = event.split(EventFieldSeparator);
    if (f.size() < 4)
        err::raise(err::SubscriptOutOfRange);
    return {f[0], f[1], f[2], f[3]};
}

QString JoinEvent(const EventParts& parts) {
    const QChar s(EventFieldSeparator);
    return parts.name + s + parts.place + s + parts.ifs + s + parts.actions;
}

QString EventName(const QString& event) {
    const qsizetype at = event.indexOf(EventFieldSeparator);
    return at < 0 ? event : event.left(at);
}

PlaceKind ClassifyPlace(const QString& place) {
    if (place.isEmpty())
        return PlaceKind::None;
    if (place == EnterPlace)
        return PlaceKind::PlayerEnters;
    if (place == CallPlace)
        return PlaceKind::CallActivation;
    return PlaceKind::Tile;
}

TextPosition EventPlaceCell(const QString& place) { return SplitPosition(place, u';'); }

QStringList EventIfs(const QString& ifs) { return NonEmptyParts(ifs, IfSeparator); }

IfParts SplitIf(const QString& condition) {
    const QStringList f = condition.split(u':');
    if (f.size() < 3)
        err::raise(err::SubscriptOutOfRange);
    return {f[0], f[1], f[2]};
}

QString IfEntry(const IfParts& parts) {
    return QChar(IfSeparator) + parts.variable + u':' + parts.op + u':' + parts.value;
}

QStringList EventActions(const QString& actions) { return NonEmptyParts(actions, ActionSeparator); }

ActionParts SplitAction(const QString& action) {
    const QStringList parts = action.split(ActionKindSeparator);
    return {parts[0], parts.size() > 1 ? parts[1] : QString()};
}

QString ActionEntry(const QString& data, const QString& kind) {
    return QChar(ActionSeparator) + data + QChar(ActionKindSeparator) + kind;
}

bool IsKnownActionKind(const QString& kind) { return kind.size() == 1 && kind[0] >= u'1' && kind[0] <= u'9'; }

QChar ActionFieldSeparator(const QString& kind) {
    if (!IsKnownActionKind(kind))
        return QChar();
    switch (kind[0].unicode()) {
    case u'1':
    case u'3':
    case u'7': return u':';
    case u'4': return u'%';
    default: return u';';
    }
}

QStringList ActionFields(const ActionParts& action) {
    const QChar separator = ActionFieldSeparator(action.kind);
    if (separator.isNull())
        return {action.data};
    return action.data.split(separator);
}

QString ActionLabel(const QString& action) {
    const ActionParts parts = SplitAction(action);
    if (!IsKnownActionKind(parts.kind))
        return QString();
    const QStringList f = ActionFields(parts);
    auto field = [&](int i) { return i < f.size() ? f[i] : QString(); };
    switch (parts.kind[0].unicode()) {
    case u'1': return field(0) + field(1) + field(2);
    case u'2': return QStringLiteral("Message(") + cut20(field(1)) + u')';
    case u'3': return QStringLiteral("Warp(") + field(0) + QStringLiteral(" (") + field(1) + QStringLiteral(", ") + field(2) + QStringLiteral("))");
    case u'4': return QStringLiteral("Shop (") + field(4) + u')';
    case u'5': return QStringLiteral("Move (") + field(0) + u')';
    case u'6': return QStringLiteral("Combat (") + field(0) + u')';
    case u'7': return QStringLiteral("Change SFX (") + (field(0) == u"True" ? field(1) : field(3)) + u')';
    case u'8': return QStringLiteral("Prompt (") + cut20(field(0)) + u')';
    default: return QStringLiteral("Journal (") + cut20(field(0)) + u')';
    }
}

QStringList SplitReferences(const QString& list, const QString& separator) {
    return list.split(separator, Qt::SkipEmptyParts);
}

} // namespace umbrith
