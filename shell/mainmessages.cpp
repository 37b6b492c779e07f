// Main's messages, popup and journal: the controls around the message rules.
#include "core/misc.h"
#include "platform/platform.h"
#include "shell/controls.h"
#include "shell/mainform.h"
#include "shell/popupbox.h"
#include "shell/rules/journal.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFrame>
#include <QLabel>
#include <QTextEdit>

namespace umbrith {

void Main::buildMessages() {
    MessageFrame_ = panel("MessageFrame", QRect(16, 300, 432, 124), centralWidget());
    lblmsgsource_ = new QLabel(MessageFrame_);
    lblmsgsource_->setObjectName(QStringLiteral("lblmsgsource"));
    lblmsgsource_->setGeometry(10, 4, 412, 20);
    lblmsgsource_->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));
    txtmessage_ = new QTextEdit(MessageFrame_);
    txtmessage_->setObjectName(QStringLiteral("txtmessage"));
    txtmessage_->setGeometry(8, 26, 416, 90);
    txtmessage_->setReadOnly(true);
    txtmessage_->setFocusPolicy(Qt::NoFocus);
    txtmessage_->setStyleSheet(QStringLiteral("QTextEdit { border: none; background: transparent; color: rgb(220, 220, 220); "
                                              "font-size: 14px; }"));
}

void Main::buildJournal() {
    journalframe_ = panel("journalframe", QRect(16, 16, 432, 408), centralWidget());
    heading(QStringLiteral("Journal"), journalframe_)->setGeometry(14, 8, 300, 28);
    txtJE_ = new QTextEdit(journalframe_);
    txtJE_->setObjectName(QStringLiteral("txtJE"));
    txtJE_->setGeometry(12, 40, 408, 326);
    txtJE_->setReadOnly(true);
    txtJE_->setFocusPolicy(Qt::NoFocus);
    auto* lblj = new ClickLabel(QStringLiteral("lblj"), QStringLiteral("(C)lose"), journalframe_);
    lblj->setGeometry(340, 372, 80, 26);
    lblj->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblj->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));
    connect(lblj, &ClickLabel::clicked, this, &Main::closeJournal);
}

MessageMode Main::messageMode() const {
    switch (optmessage_->checkedId()) {
    case 0:
        return MessageMode::Type;
    case 1:
        return MessageMode::Paste;
    default:
        return MessageMode::Both;
    }
}

void Main::StartMessage(const QString& source, const QString& text) {
    PlaySoundEffect(QStringLiteral("message.wav"));
    MessageFrame_->show();
    MessageFrame_->raise();
    lblmsgsource_->setText(source.isEmpty() ? QString() : QStringLiteral("(") + source + u')');
    StartMessageText(game_, state_.message, text, messageMode());
    showMessageState();
}

// Writes the message rules' outcome back to the box and the typing timer.
void Main::showMessageState() {
    const MessageState& m = state_.message;
    if (txtmessage_->toPlainText() != m.shown)
        txtmessage_->setPlainText(m.shown);
    typemessage_->setEnabled(m.typing);
}

void Main::messageTick() {
    TypeMessageTick(game_, state_.message);
    showMessageState();
}

void Main::ShowPopup(const QString& text, const QString& title) {
    game_.ScreenPanelOpen = true;
    game_.PopupOpen = true;
    PopupBox_->present(text, title);
    emit popupShown(title, text);
    popupdisplay_->setEnabled(true);
}

// Keeps the popup in front while it stands; once closed, the panel flags go
// unless a panel stands under it.
void Main::popupDisplayTick() {
    if (PopupBox_->isVisible()) {
        if (!PopupBox_->isActiveWindow())
            PopupBox_->raise();
        return;
    }
    // A panel under the popup keeps the screen covered.
    if (!PlayerInfoFrame_->isVisible()) {
        game_.ScreenPanelOpen = false;
        game_.PopupOpen = false;
    }
    popupdisplay_->setEnabled(false);
}

void Main::ShowJournal() {
    game_.ScreenPanelOpen = true;
    txtJE_->setPlainText(JournalText(game_));
    journalframe_->show();
    journalframe_->raise();
}

void Main::closeJournal() {
    if (isTrue(game_.PopupOpen))
        return;
    journalframe_->hide();
    game_.ScreenPanelOpen = false;
    giveBackgroundFocus();
}

} // namespace umbrith
