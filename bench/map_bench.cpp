// Reading and writing a 200 x 200 map with 2,000 events, 100 NPCs and 500
// specials, against a bare read of the same file plus one split on ":".
// Prints the medians, the read and write ratios, and last the larger ratio.
#include "bench/benchsupport.h"
#include "world/mapfile.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

using namespace umbrith;

namespace {

MapFile bigMap() {
    MapFile map;
    map.width = 200;
    map.height = 200;
    map.tileset = "default.ubt";
    map.startLocation = "10|10";
    map.music = DefaultMapMusic.toString();
    map.screenWarps = "\\maps\\north.ubm|\\maps\\south.ubm||";
    map.enemies = "/Rat-Warrior:1:5/Bog Wraith-Mage:3:All^15";
    map.night = 1;
    for (int y = 0; y <= 200; ++y)
        for (int x = 0; x <= 200; ++x) {
            map.tiles += QStringLiteral("%1|%2:").arg(x % 50 * 24).arg(y % 50 * 24);
            map.passabilities += (x + y) % 9 ? QStringLiteral("1:") : QStringLiteral("2:");
        }
    for (int i = 0; i < 500; ++i) {
        const QString at = QStringLiteral("%1;%2").arg(i % 200).arg(i / 200 * 7);
        map.specials += i % 2 ? MessageSpecial(at, "Sign", "1", QStringLiteral("Sign number %1 says hello.").arg(i))
                              : WarpSpecial(at, "\\maps\\other.ubm", "SL;SL");
    }
    for (int i = 0; i < 2000; ++i)
        map.events += QString::fromUtf8("Üevent%1£%2;%3£ô&Variables.v%1:>=:1£*v%1: += :1^1*Ned;Event %1 ran.^2")
                          .arg(i).arg(i % 200).arg(i / 200);
    for (int i = 0; i < 100; ++i)
        map.npcs += QString::fromUtf8("ƒNPC%1:\\images\\npcs\\n.bmp:\\events\\n%1.ube:False:True:%2;%3:0:1:1:0:0:0:1:0")
                        .arg(i).arg(i).arg(i + 3);
    map.groundItems = QString::fromUtf8("Äpile¥*Rusty Sword-Sword¥4;6");
    return map;
}

} // namespace

int main() {
    QTemporaryDir dir;
    const QString path = dir.path() + "/big.ubm";
    const MapFile map = bigMap();
    WriteMapFile(path, map);

    qsizetype sink = 0;
    qsizetype fileSize = 0;
    const double bare = medianMs([&] {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        const QByteArray bytes = file.readAll();
        fileSize = bytes.size();
        sink += QString::fromLatin1(bytes).split(u':').size();
    });
    // What Changemap and the editor's load take from the file: the 17 items and the grid.
    const double read = medianMs([&] {
        const MapFile loaded = ReadMapFile(path);
        const MapGrid grid = SplitMapGrid(loaded.tiles, loaded.passabilities, loaded.width, loaded.height);
        sink += grid.tiles.size() + loaded.events.size();
    });
    const QString outPath = dir.path() + "/out.ubm";
    const double write = medianMs([&] { WriteMapFile(outPath, map); });

    QFile a(path), b(outPath);
    a.open(QIODevice::ReadOnly);
    b.open(QIODevice::ReadOnly);
    const bool same = a.readAll() == b.readAll();

    std::printf("map file: %lld bytes, 201 x 201 cells, 2000 events, 100 NPCs, 500 specials\n", (long long)fileSize);
    std::printf("bare read + split: %.3f ms\n", bare);
    std::printf("map read + grid split: %.3f ms (ratio %.2f)\n", read, read / bare);
    std::printf("map write: %.3f ms (ratio %.2f)%s\n", write, write / bare, same ? "" : " DIFFERS");
    std::printf("(%lld)\nratio: %.2f\n", (long long)sink, std::max(read, write) / bare);
    return same ? 0 : 1;
}
