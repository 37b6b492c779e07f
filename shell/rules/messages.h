#pragma once

#include "core/gamerecord.h"

#include <QString>

namespace umbrith {

// How a message reaches the screen: typed letter by letter, pasted a page at
// a time, or typed with Space completing the page at once.
enum class MessageMode { Type, Paste, Both };

// The message on Main's screen. `MessageSetup` is the source text, whose codes
// are replaced one per step as the reading reaches them; `shown` is what the
// message box displays and `typing` whether the typing timer runs.
struct MessageState {
    QString MessageSetup;
    int MessagePos = 0;
    int MessagePageChars = 0;
    QString MessageBuffer;
    QString MessageLastChar;
    bool MessagePageEnd = false;
    bool MessageDone = false;
    bool MessageActive = false;
    bool EventPaused = false;
    QString shown;
    bool typing = false;
};

// Characters gathered before a page looks for a blank to end on.
constexpr int MessagePageLimit = 200;

// Replaces the first "#(name)" of `text` by the value of "&name"; a "#(" with
// no ")" takes the rest of the text as the name.
void SubstituteCode(GameRecord& game, QString& text);

// Loads `text` as a new message with an empty first page; Paste mode pastes
// the page at once, the others start typing.
void StartMessageText(GameRecord& game, MessageState& message, const QString& text, MessageMode mode);

// One tick of the typing timer.
void TypeMessageTick(GameRecord& game, MessageState& message);

// Fills the rest of the page without delay.
void PasteText(GameRecord& game, MessageState& message);

// Space or M while a message is up. Returns false when the key does nothing
// here. A close clears `ScreenPanelOpen` and the message's flags.
bool MessageKey(GameRecord& game, MessageState& message, char key, MessageMode mode);

} // namespace umbrith
