#pragma once

#include "platform/platform.h"

namespace umbrith {

// Message, input and file boxes as Qt's own dialogs. Paths come back with
// backslashes, the form in which the game stores them.
class QtDialogs : public Dialogs {
public:
    Answer message(const QString& text, const QString& title, Buttons buttons, Icon icon) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
    QString openFile(const FileDialogSettings& settings) override;
    QString saveFile(const FileDialogSettings& settings) override;
};

} // namespace umbrith
