#include "core/misc.h"

#include "platform/error.h"
#include "platform/platform.h"

namespace umbrith {

namespace {

QString appPath;

QString fileDialog(bool save, const FileDialogSettings& settings, const QString& errorMessage) {
    try {
        Dialogs& dialogs = platform().dialogs;
        QString path = save ? dialogs.saveFile(settings) : dialogs.openFile(settings);
        if (path.isEmpty())
            return QString();
        return path + u'^' + path.mid(path.lastIndexOf(u'\\') + 1);
    } catch (const RuntimeError& error) {
        platform().dialogs.message(errorMessage, QStringLiteral("Umbrith"), Buttons::Ok, Icon::None);
        platform().dialogs.message(error.text(), QStringLiteral("This was the error"), Buttons::Ok, Icon::Critical);
        return QString();
    }
}

} // namespace

bool SoundsOn = true;

const QString& AppPath() { return appPath; }

void setAppPath(const QString& folder) {
    appPath = QString(folder).replace(u'/', u'\\');
    while (appPath.endsWith(u'\\'))
        appPath.chop(1);
}

bool IsInsideProgramFolder(const QString& path) { return path.size() >= AppPath().size(); }

QString DialogOpenFile(const QString& title, const QString& fileName, const QString& initialFolder,
                       const QString& filter, const QString& errorMessage) {
    return fileDialog(false, {title, fileName, initialFolder, filter, true}, errorMessage);
}

QString DialogSaveFile(const QString& title, const QString& fileName, const QString& initialFolder,
                       const QString& filter, const QString& errorMessage) {
    return fileDialog(true, {title, fileName, initialFolder, filter, true}, errorMessage);
}

bool HasNoReservedCharacters(const QString& text) {
    for (QChar c : text)
        if (QStringView(u":/\\*^|").contains(c))
            return false;
    return true;
}

void PlaySoundEffect(const QString& fileName) {
    if (SoundsOn)
        platform().audio.playSound(AppPath() + QStringLiteral("\\sfx\\") + fileName);
}

} // namespace umbrith
