#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace umbrith::testdata {

// A file of tests/data, found through UMBRITH_TEST_DATA.
inline QString path(const QString& relative) { return QStringLiteral(UMBRITH_TEST_DATA "/") + relative; }

inline QByteArray bytes(const QString& relative) {
    QFile file(path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QJsonObject json(const QString& relative) { return QJsonDocument::fromJson(bytes(relative)).object(); }

inline QStringList strings(const QJsonValue& value) {
    QStringList list;
    for (const QJsonValue& item : value.toArray())
        list.append(item.toString());
    return list;
}

// The case folders under a folder of tests/data, sorted.
inline QStringList cases(const QString& relative) {
    return QDir(path(relative)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace umbrith::testdata
