#include "shell/rules/messages.h"

#include "core/resolvecode.h"

namespace umbrith {

namespace {

const QString nextMark = QStringLiteral(" <Next>");

bool charsRemain(const MessageState& m) { return m.MessagePos < m.MessageSetup.size(); }

// Substitutes one code, then takes the character at the reading position.
// Returns true when that character was the page break "&", which shows the
// page with its marker at once.
bool messageStep(GameRecord& game, MessageState& m) {
    SubstituteCode(game, m.MessageSetup);
    if (!charsRemain(m)) // a code at the end may have resolved to nothing
        return false;
    const QChar c = m.MessageSetup.at(m.MessagePos);
    ++m.MessagePos;
    ++m.MessagePageChars;
    if (c == u'&') {
        m.MessagePageEnd = true;
        m.shown = m.MessageBuffer + nextMark;
        return true;
    }
    m.MessageBuffer += c;
    m.MessageLastChar = c;
    return false;
}

// Past the page limit the page ends on the next blank, so no word is cut.
// Returns true when the page ended here.
bool endPageOnBlank(MessageState& m) {
    if (m.MessageLastChar != u" ")
        return false;
    m.MessageDone = true;
    m.MessagePageEnd = true;
    return true;
}

void clearPage(MessageState& m) {
    m.MessagePageChars = 0;
    m.MessageBuffer.clear();
    m.shown.clear();
    m.MessagePageEnd = false;
}

void closeMessage(GameRecord& game, MessageState& m) {
    m.MessageDone = m.MessageActive = m.MessagePageEnd = false;
    m.typing = false;
    m.shown.clear();
    game.ScreenPanelOpen = false;
    // The paused event's remaining actions are picked up by the event engine.
    m.EventPaused = false;
}

} // namespace

void SubstituteCode(GameRecord& game, QString& text) {
    const qsizetype open = text.indexOf(QStringLiteral("#("));
    if (open < 0)
        return;
    const qsizetype start = open + 2;
    qsizetype end = text.indexOf(u')', start);
    const QString name = end < 0 ? text.mid(start) : text.mid(start, end - start);
    if (end < 0)
        end = text.size() - 1;
    text.replace(open, end - open + 1, ResolveCode(game, QStringLiteral("&") + name).text());
}

void StartMessageText(GameRecord& game, MessageState& m, const QString& text, MessageMode mode) {
    m.MessageDone = false;
    m.MessageBuffer.clear();
    m.MessagePageChars = 0;
    m.shown.clear();
    m.MessageSetup = text;
    m.MessagePos = 0;
    game.ScreenPanelOpen = true;
    if (mode == MessageMode::Paste)
        PasteText(game, m);
    else
        m.typing = true;
}

void TypeMessageTick(GameRecord& game, MessageState& m) {
    if (m.MessageDone)
        return;
    m.MessageActive = true;
    if (!charsRemain(m)) {
        m.MessageDone = true;
        m.typing = false;
        return;
    }
    if (m.MessagePageEnd)
        return;
    if (m.MessagePageChars >= MessagePageLimit && endPageOnBlank(m)) {
        m.shown = m.MessageBuffer + nextMark;
        return;
    }
    if (messageStep(game, m)) {
        if (m.MessagePageChars > MessagePageLimit)
            m.MessageDone = true;
        return;
    }
    m.shown = m.MessageBuffer;
}

void PasteText(GameRecord& game, MessageState& m) {
    m.MessageActive = true;
    bool onLimit = false;
    while (!m.MessagePageEnd && charsRemain(m)) {
        if (m.MessagePageChars >= MessagePageLimit && endPageOnBlank(m)) {
            onLimit = true;
            break;
        }
        if (messageStep(game, m)) {
            if (m.MessagePageChars > MessagePageLimit)
                m.MessageDone = true;
            return; // the step's " <Next>" stands
        }
    }
    m.shown = onLimit ? m.MessageBuffer + QStringLiteral(" <NEXT>") : m.MessageBuffer;
}

bool MessageKey(GameRecord& game, MessageState& m, char key, MessageMode mode) {
    const bool paste = mode == MessageMode::Paste;
    if (key == 'M') {
        closeMessage(game, m);
        return true;
    }
    if (key != ' ')
        return false;
    if (m.MessagePageEnd) {
        clearPage(m);
        if (paste) {
            PasteText(game, m);
        } else {
            m.MessageDone = false;
            m.typing = true;
        }
        return true;
    }
    if (paste || m.MessageDone) {
        closeMessage(game, m);
        return true;
    }
    if (mode == MessageMode::Both) {
        m.MessageDone = true;
        PasteText(game, m);
        return true;
    }
    return false;
}

} // namespace umbrith
