// Event records: lists, the four fields, Ifs, actions and their labels, places,
// and reference lists resolved against a map's Call Activation events.
#include "bench/fuzz/fuzzinput.h"
#include "core/record.h"
#include "events/eventfile.h"
#include "events/eventrecord.h"

using namespace umbrith;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString input = fuzz::text(data, size);
    QString event = input;
    fuzz::trapped([&] { event = RecordReader(input).nextText(); });
    const QStringList events = EventListEvents(event) + QStringList{event};
    for (const QString& one : events) {
        EventParts parts;
        if (!fuzz::trapped([&] { parts = SplitEvent(one); }))
            parts = {EventName(one), one, one, one};
        ClassifyPlace(parts.place);
        fuzz::trapped([&] { EventPlaceCell(parts.place); });
        for (const QString& condition : EventIfs(parts.ifs))
            fuzz::trapped([&] { SplitIf(condition); });
        for (const QString& action : EventActions(parts.actions)) {
            ActionLabel(action);
            ActionFields(SplitAction(action));
        }
    }
    // Names only: a reference that names no event would be read as a file.
    for (const QString& reference : SplitReferences(input, QStringLiteral(", ")))
        FindCallEvent(event, reference, NameMatch::Exact);
    for (const QString& reference : SplitReferences(input, QStringLiteral(",")))
        FindCallEvent(event, reference, NameMatch::Trimmed);
    return 0;
}
