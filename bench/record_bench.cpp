// Reading a one-line record of 1 MB: mostly numbers, with some texts and
// true/false fields, as the game's lists and maps hold them. The record reader
// against two baselines of the same run: the bytes decoded from Windows-1252
// and the numbers parsed with std::from_chars (the floor of any reader), and
// the bytes decoded and split into strings as a QString split does.
#include "bench/benchsupport.h"
#include "core/record.h"
#include "platform/codepage.h"
#include "platform/files.h"

#include <QFile>
#include <QTemporaryDir>
#include <charconv>
#include <cstring>
#include <cstdio>

using namespace umbrith;

namespace {

QByteArray readBytes(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

} // namespace

int main() {
    QTemporaryDir dir;
    const QString path = dir.path() + "/big.ubc";
    QList<Value> fields;
    qsizetype size = 0;
    for (int i = 0; size < 1'000'000; ++i) {
        Value field = i % 10 == 9 ? Value(QStringLiteral("Sword%1").arg(i)) : i % 10 == 8 ? Value(i % 3 == 0)
                                                                             : Value(i * 0.25 + 3);
        size += field.text().size() + 1;
        fields.append(field);
    }
    writeRecordFile(path, fields);
    const qsizetype bytes = readBytes(path).size();

    double sink = 0;
    const double floor = medianMs([&] {
        const QByteArray data = readBytes(path);
        const QString text = decodeWindows1252(data);
        sink += text.size();
        const char* p = data.constData();
        const char* end = p + data.size();
        while (p < end) {
            const char* comma = static_cast<const char*>(std::memchr(p, ',', end - p));
            if (!comma)
                comma = end;
            double number = 0;
            if (*p != '"' && *p != '#' && std::from_chars(p, comma, number).ec == std::errc())
                sink += number;
            p = comma + 1;
        }
    });
    const double split = medianMs([&] {
        const QString text = decodeWindows1252(readBytes(path));
        sink += text.split(u',').size();
    });
    const double reader = medianMs([&] {
        RecordReader record = RecordReader::fromFile(path);
        while (!record.atEnd())
            sink += record.next().num();
    });
    const double fileOnly = medianMs([&] { sink += readTextFile(path).size(); });
    std::printf("record: %lld bytes, %lld fields\n", (long long)bytes, (long long)fields.size());
    std::printf("decode + from_chars: %.3f ms\n", floor);
    std::printf("decode + QString split: %.3f ms\n", split);
    std::printf("record reader: %.3f ms (of which the file read and decoded: %.3f ms)\n", reader, fileOnly);
    std::printf("(%g)\n", sink);
    std::printf("ratio to decode + from_chars: %.2f (at most 3)\n", reader / floor);
    std::printf("ratio to decode + QString split: %.2f\n", reader / split);
    return 0;
}
