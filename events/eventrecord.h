#pragma once

#include "core/record.h"

#include <QString>
#include <QStringList>

namespace umbrith {

// The delimiters of event records, single bytes of Windows-1252 in the files.
inline constexpr char16_t EventSeparator = u'\u00DC';      // "Ü", ahead of each event of a list
inline constexpr char16_t EventFieldSeparator = u'\u00A3'; // "£", between the four fields
inline constexpr char16_t IfSeparator = u'\u00F4';         // "ô", ahead of each If
inline constexpr char16_t ActionSeparator = u'*';          // ahead of each action
inline constexpr char16_t ActionKindSeparator = u'^';      // between an action's data and its kind

// An event list: the non-empty events, in order.
QStringList EventListEvents(const QString& list);
// The list with one more event behind "Ü".
QString AppendEvent(const QString& list, const QString& event);

// The four fields of an event: Name "£" Place "£" If list "£" Action list.
struct EventParts {
    QString name;
    QString place;
    QString ifs;
    QString actions;
};
// SplitEvent: a string of fewer than four fields raises "Subscript out of
// range", as every reader of the engine does; pieces past the fourth (a field
// that held "£") are dropped.
EventParts SplitEvent(const QString& event);
QString JoinEvent(const EventParts& parts);
// The Name of an event: what stands before its first "£" (never fails).
QString EventName(const QString& event);

// The place of an event and the activation it codes.
enum class PlaceKind { Tile, PlayerEnters, CallActivation, None };
inline constexpr QStringView EnterPlace = u"-1;-1";
inline constexpr QStringView CallPlace = u"-2;-2";
// "-1;-1" Player Enters, "-2;-2" Call Activation, "" none (a .ube saved while
// Call Activation was selected), anything else a tile.
PlaceKind ClassifyPlace(const QString& place);
// The cell of TileEvents a place lands in: both halves of "x;y" by numeric-prefix
// parse. A place without ";" (an empty one too) raises "Subscript out of range".
TextPosition EventPlaceCell(const QString& place);

// The If list: the non-empty Ifs, each variable ":" operator ":" value.
QStringList EventIfs(const QString& ifs);
struct IfParts {
    QString variable;
    QString op; // ">=", "<=", "==", "<", ">" or "<>"
    QString value;
};
// Fewer than three fields raise "Subscript out of range"; a value holding ":"
// is cut there.
IfParts SplitIf(const QString& condition);
// The If as the Event Creator writes it, led by "ô".
QString IfEntry(const IfParts& parts);

// The action list: the non-empty actions, each data "^" kind.
QStringList EventActions(const QString& actions);
struct ActionParts {
    QString data;
    QString kind; // "1" to "9"; any other kind is skipped by the engine
};
// Splits an action on "^": element 0 is the data, element 1 the kind. An
// action without "^" has the empty kind, which no action has, so it is skipped
// like any unknown kind; a "^" inside the data cuts it the same way.
ActionParts SplitAction(const QString& action);
// The action led by "*", as it is appended to an action list.
QString ActionEntry(const QString& data, const QString& kind);
bool IsKnownActionKind(const QString& kind);
// The separator of a kind's data fields: ":" for 1, 3, 7; ";" for 2, 5, 6, 8,
// 9; "%" for 4; a null character for an unknown kind.
QChar ActionFieldSeparator(const QString& kind);
// The data fields of an action by its kind's separator; an unknown kind gives
// the data as its one field.
QStringList ActionFields(const ActionParts& action);
// The label of an action in the editor's list, such as
// "Message(Welcome to the v...)": texts cut at 20 characters get "...".
// Fields a short action lacks count as empty; an unknown kind has no label ("").
QString ActionLabel(const QString& action);

// An event reference list: the references split on the separator (", " or
// ","), empty ones left out.
QStringList SplitReferences(const QString& list, const QString& separator);

} // namespace umbrith
