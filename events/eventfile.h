#pragma once

#include <QString>
#include <optional>

namespace umbrith {

// A .ube file: one record of one text field, the event itself (no list, no
// leading "Ü"). The path is the full stored path.
QString LoadEventFile(const QString& path);
void SaveEventFile(const QString& path, const QString& event);

// How a reference is compared with the names of the map's events.
enum class NameMatch {
    Exact,   // combat lists and prompt answers
    Trimmed, // NPC events: blanks trimmed on both sides
};

// The first event of an event list (the map's Call Activation cell) whose Name
// matches the reference; nothing when no event has that name.
std::optional<QString> FindCallEvent(const QString& callEvents, const QString& reference, NameMatch match);

// ResolveEventReferences: the references of `list`, split on
// `separator`, each resolved first against the events of `callEvents` (the
// map's Call Activation cell), then as the path of a .ube file relative to the
// program folder, trimmed of blanks. The events are joined, each behind "Ü",
// in reference order. References empty of all but blanks are left out. A file
// that cannot be read raises its read error (the combat and prompt uses have no
// file check; the NPC use checks for the file itself before calling).
QString ResolveEventReferences(const QString& list, const QString& separator, const QString& callEvents,
                               NameMatch match = NameMatch::Exact);

} // namespace umbrith
