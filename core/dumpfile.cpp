#include "core/dumpfile.h"

#include "core/record.h"
#include "platform/error.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cstdio>

namespace umbrith {

int RequiredItems(const QString& path) {
    const QString extension = path.right(3).toLower();
    if (extension == u"ubm" || extension == u"ubs")
        return 17;
    return 1;
}

QStringList ReadDataItems(const QString& path) {
    RecordReader reader = RecordReader::fromFile(path);
    QStringList items;
    const int required = RequiredItems(path);
    while (items.size() < required || !reader.atEnd())
        items.append(reader.next().text());
    return items;
}

int DumpDataFile(const QString& path) {
    QStringList items;
    try {
        items = ReadDataItems(path);
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "umbrith: %s: %s\n", path.toLocal8Bit().constData(), error.text().toLocal8Bit().constData());
        return 1;
    }
    const QByteArray json = QJsonDocument(QJsonArray::fromStringList(items)).toJson(QJsonDocument::Indented);
    std::fwrite(json.constData(), 1, size_t(json.size()), stdout);
    std::fflush(stdout);
    return 0;
}

} // namespace umbrith
