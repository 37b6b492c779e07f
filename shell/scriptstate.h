#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace umbrith {

class Main;
class ScriptedPlatform;

// A control, form or menu item by its objectName; a control on show comes
// first, then those in visible forms, since several forms may carry one name.
// nullptr when none.
QObject* findNamed(const QString& name);

// The program's state as scripted play dumps it: the game record, Main's
// fields, what is visible and what it shows, and the boxes and sounds so far.
QJsonObject stateJson(const Main& main, const ScriptedPlatform& scripted);

} // namespace umbrith
