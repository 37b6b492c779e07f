#include "platform/files.h"

#include "platform/error.h"
#include "platform/codepage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace umbrith {

namespace {

// Finds each missing component of the path under another case, if one exists.
QString resolveCase(const QString& path) {
    QStringList parts = path.split(u'/');
    QString resolved = parts.front();
    for (qsizetype i = 1; i < parts.size(); ++i) {
        QString next = resolved + u'/' + parts[i];
        if (!parts[i].isEmpty() && !QFileInfo::exists(next)) {
            const QStringList entries = QDir(resolved.isEmpty() ? QStringLiteral("/") : resolved)
                                            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
            for (const QString& entry : entries)
                if (entry.compare(parts[i], Qt::CaseInsensitive) == 0) {
                    next = resolved + u'/' + entry;
                    break;
                }
        }
        resolved = next;
    }
    return resolved;
}

[[noreturn]] void raiseOpenFailure(const QString& native) {
    if (!QFileInfo(native).dir().exists())
        err::raise(err::PathNotFound);
    if (!QFileInfo::exists(native))
        err::raise(err::FileNotFound);
    err::raise(err::PathFileAccess);
}

} // namespace

QString nativePath(const QString& path) {
    QString native = QString(path).replace(u'\\', u'/');
    if (native.isEmpty() || QFileInfo::exists(native))
        return native;
    return resolveCase(native);
}

bool fileExists(const QString& path) {
    QFileInfo info(nativePath(path));
    return info.exists() && info.isFile();
}

bool folderExists(const QString& path) { return QFileInfo(nativePath(path)).isDir(); }

QString readTextFile(const QString& path) {
    QString native = nativePath(path);
    QFile file(native);
    if (QFileInfo(native).isDir() || !file.open(QIODevice::ReadOnly))
        raiseOpenFailure(native);
    return decodeWindows1252(file.readAll());
}

void writeTextFile(const QString& path, const QString& text) { writeWholeFile(path, encodeWindows1252(text)); }

void writeWholeFile(const QString& path, const QByteArray& bytes) {
    QString native = nativePath(path);
    QSaveFile file(native);
    if (!file.open(QIODevice::WriteOnly))
        raiseOpenFailure(native);
    if (file.write(bytes) != bytes.size() || !file.commit())
        err::raise(err::PathFileAccess);
}

QStringList listFiles(const QString& folder, const QString& pattern) {
    return QDir(nativePath(folder)).entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

} // namespace umbrith
