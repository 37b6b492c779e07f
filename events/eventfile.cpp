#include "events/eventfile.h"

#include "core/misc.h"
#include "core/record.h"
#include "events/eventrecord.h"

namespace umbrith {

QString LoadEventFile(const QString& path) { return readRecordFile(path, 1)[0].text(); }

void SaveEventFile(const QString& path, const QString& event) { writeRecordFile(path, {Value(event)}); }

std::optional<QString> FindCallEvent(const QString& callEvents, const QString& reference, NameMatch match) {
    const QString wanted = match == NameMatch::Trimmed ? TrimBlanks(reference) : reference;
    for (const QString& event : EventListEvents(callEvents)) {
        const QString name = match == NameMatch::Trimmed ? TrimBlanks(EventName(event)) : EventName(event);
        if (name == wanted)
            return event;
    }
    return std::nullopt;
}

QString ResolveEventReferences(const QString& list, const QString& separator, const QString& callEvents,
                               NameMatch match) {
    QString events;
    for (const QString& reference : SplitReferences(list, separator)) {
        if (TrimBlanks(reference).isEmpty())
            continue;
        std::optional<QString> event = FindCallEvent(callEvents, reference, match);
        if (!event)
            event = LoadEventFile(AppPath() + TrimBlanks(reference));
        events = AppendEvent(events, *event);
    }
    return events;
}

} // namespace umbrith
