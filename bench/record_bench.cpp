// Reading and splitting a one-line record of 1 MB, against a bare read of the
// same file plus one split on ":". Prints the medians and, last, their ratio.
#include "bench/benchsupport.h"
#include "core/record.h"
#include "platform/files.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

using namespace umbrith;

int main() {
    QTemporaryDir dir;
    QString path = dir.path() + "/big.ubc";
    QString line;
    for (int i = 0; line.size() < 1'000'000; ++i)
        line += QStringLiteral(":%1|%2").arg(i % 50 * 24).arg(i % 7);
    writeRecordFile(path, {Value(line)});

    qsizetype sink = 0;
    double bare = medianMs([&] {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QByteArray bytes = file.readAll();
        sink += QString::fromLatin1(bytes).split(u':').size();
    });
    double ours = medianMs([&] {
        RecordReader reader = RecordReader::fromFile(path);
        sink += reader.next().text().split(u':').size();
    });
    std::printf("record size: %lld characters\n", (long long)line.size());
    std::printf("bare read + split: %.3f ms\n", bare);
    std::printf("record read + split: %.3f ms\n", ours);
    std::printf("(%lld)\nratio: %.2f\n", (long long)sink, ours / bare);
    return 0;
}
