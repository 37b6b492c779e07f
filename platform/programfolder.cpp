#include "platform/programfolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace umbrith {

namespace {

// The program folder must exist and take files, or nothing the game writes
// (saves, notes, maps) could be kept.
QString unusable(const QString& root) {
    if (!QFileInfo(root).isDir())
        return QStringLiteral("The program folder \"%1\" does not exist.").arg(root);
    QTemporaryFile probe(QDir(root).filePath(QStringLiteral(".umbrith-XXXXXX")));
    if (!probe.open())
        return QStringLiteral("The program folder \"%1\" cannot be written to.").arg(root);
    return QString();
}

QString userDataFolder() {
    QString base = qEnvironmentVariable("XDG_DATA_HOME");
    if (base.isEmpty())
        base = QDir::home().filePath(QStringLiteral(".local/share"));
    return QDir(base).filePath(QStringLiteral("umbrith"));
}

// Copies every file of the shipped tree that the user's copy lacks.
QString seed(const QString& shipped, const QString& own) {
    if (!QDir().mkpath(own))
        return QStringLiteral("The folder \"%1\" could not be made.").arg(own);
    QDirIterator files(shipped, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = QDir(own).filePath(QDir(shipped).relativeFilePath(from));
        if (QFileInfo::exists(to))
            continue;
        if (!QDir().mkpath(QFileInfo(to).path()) || !QFile::copy(from, to))
            return QStringLiteral("\"%1\" could not be copied into \"%2\".").arg(from, own);
        // The shipped files are read-only; the user's copies are the user's.
        QFile::setPermissions(to, QFile::permissions(to) | QFileDevice::WriteOwner);
    }
    QDirIterator folders(shipped, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (folders.hasNext())
        QDir().mkpath(QDir(own).filePath(QDir(shipped).relativeFilePath(folders.next())));
    return QString();
}

} // namespace

ProgramFolder FindProgramFolder(const QString& chosen, const QString& executableFolder) {
    QString root = chosen;
    if (root.isEmpty()) {
        const QString shipped = QDir(executableFolder).filePath(QStringLiteral("../share/umbrith"));
        if (!QFileInfo(QDir(executableFolder).filePath(QStringLiteral("maps"))).isDir() && QFileInfo(shipped).isDir()) {
            const QString own = userDataFolder();
            if (const QString problem = seed(QDir::cleanPath(shipped), own); !problem.isEmpty())
                return {QString(), problem};
            root = own;
        } else {
            root = executableFolder;
        }
    }
    root = QFileInfo(root).absoluteFilePath();
    if (const QString problem = unusable(root); !problem.isEmpty())
        return {QString(), problem};
    return {root, QString()};
}

} // namespace umbrith
