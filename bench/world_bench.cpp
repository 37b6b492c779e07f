// The world on a 200 x 200 map with 100 NPCs on the screen and the night on:
// UpdateLevel's drawing against a bare loop of the same blits, the world's
// half of Changemap into the map, and the peak memory of the program playing
// it. Prints the medians, the peak, and, last, the drawing's ratio.
#include "bench/benchsupport.h"
#include "core/misc.h"
#include "core/record.h"
#include "platform/files.h"
#include "world/changemap.h"
#include "world/leveldraw.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>

using namespace umbrith;

namespace {

const QString BenchMap = QStringLiteral("\\maps\\bench-200.ubm");

// 200 x 200 of grass and walls, the player in the middle, 100 NPCs around him.
void writeBenchMap() {
    MapFile map;
    map.width = 200;
    map.height = 200;
    map.tileset = "default.ubt";
    map.startLocation = "100|100";
    map.screenWarps = "|||";
    map.enemies = "^0";
    map.night = 1;
    MapGrid grid;
    grid.columns = grid.rows = 201;
    for (int y = 0; y <= 200; ++y)
        for (int x = 0; x <= 200; ++x) {
            grid.tiles << QString::number(24 * ((x * 7 + y) % 4)) + "|0";
            grid.pass << "1";
        }
    JoinMapGrid(grid, map.tiles, map.passabilities);
    const char* sheets[] = {"guard", "merchant", "elder", "child", "dog"};
    for (int i = 0; i < 100; ++i) {
        const int x = 92 + i % 17, y = 92 + i / 17 * 3 + (i % 2);
        map.npcs += QChar(NpcSeparator) + QStringList{QStringLiteral("N%1").arg(i),
                                                      QStringLiteral("\\images\\npcs\\%1.bmp").arg(sheets[i % 5]),
                                                      "", "False", "True", QStringLiteral("%1;%2").arg(x).arg(y),
                                                      QString::number(i % 4), "1", "0", "0", "0", "0", "1", "0"}
                                              .join(':');
    }
    WriteMapFile(AppPath() + BenchMap, map);
}

// The world's steps of Changemap, file to tileset.
void loadBenchMap(GameRecord& game, WorldState& world) {
    ResetMap(world);
    const MapFile map = ReadMapFile(AppPath() + BenchMap);
    TakeMapScalars(world, map);
    LoadMapGrid(world, map);
    LoadMapNPCs(world, map.npcs);
    LoadTileEvents(world, map.events);
    LoadMapEnemies(world, map.enemies);
    UpdateTilesetCore(world.tileset, world.TilesetName.trimmed());
    LoadNightPicture(world.textures);
    LoadGroundPiles(game, world, map.groundItems);
    world.StartLocation = map.startLocation;
    PlacePlayer(game, world, false, QString());
    LoadSpecials(world, map.specials);
    world.LevelWidth -= 1;
    world.LevelHeight -= 1;
}

long peakResidentKb(const QString& program) {
    QTemporaryDir dir;
    const QString script = dir.filePath("play.txt");
    QFile file(script);
    file.open(QIODevice::WriteOnly);
    QString text = "random 0.1\nanswer-file " + BenchMap + "\nclick mnuMainPlayCustom\nwait 400\n";
    for (int i = 0; i < 20; ++i)
        text += QStringLiteral("key %1\nwait 200\n").arg(i % 2 ? "Right" : "Down");
    file.write(text.toUtf8());
    file.close();
    // The program inherits the offscreen platform and silent audio.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    QProcess process;
    process.start("/usr/bin/time", {"-v", program, "--root", QString(UMBRITH_PROGRAM_DIR), "--offscreen", "--script", script});
    process.waitForFinished(120000);
    const QString report = QString::fromLocal8Bit(process.readAllStandardError());
    const QRegularExpressionMatch match = QRegularExpression("Maximum resident set size \\(kbytes\\): (\\d+)").match(report);
    return match.hasMatch() ? match.captured(1).toLong() : -1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    setAppPath(QStringLiteral(UMBRITH_PROGRAM_DIR));
    writeBenchMap();

    GameRecord game;
    WorldState world;
    const double changemap = medianMs([&] { loadBenchMap(game, world); }, 11);
    game.GameRunning = true;
    game.IsDay = false;

    Surface scene(ViewWidth, ViewHeight), background(ViewWidth, ViewHeight);
    const double draw = medianMs([&] {
        ComposeLevel(scene, game, world, 0, 0);
        blit(background, 0, 0, ViewWidth, ViewHeight, scene, 0, 0, RasterOp::SrcCopy);
    }, 41);
    const Surface& sheet = world.tileset.sheet;
    const Surface& figure = world.textures.picNPCs[0];
    const double bare = medianMs([&] {
        for (int i = 0; i < 306; ++i)
            blit(scene, i % 18 * 24, i / 18 * 24, 24, 24, sheet, i % 4 * 24, 0, RasterOp::SrcCopy);
        for (int i = 0; i < 101; ++i) {
            blit(scene, i % 17 * 24, i / 17 * 60, 24, 48, figure, 24, 0, RasterOp::SrcAnd);
            blit(scene, i % 17 * 24, i / 17 * 60, 24, 48, figure, 0, 0, RasterOp::SrcInvert);
        }
    }, 41);
    const long peak = peakResidentKb(QStringLiteral(UMBRITH_PROGRAM_DIR "/umbrith"));
    QFile::remove(nativePath(AppPath() + BenchMap));

    std::printf("NPCs on the map: %d\n", world.NPCPictureCount);
    std::printf("Changemap into the map (world steps): %.3f ms\n", changemap);
    std::printf("UpdateLevel(0, 0): %.3f ms\n", draw);
    std::printf("bare loop of 306 tile and 101 figure blits: %.3f ms\n", bare);
    std::printf("peak resident memory playing the map: %.1f MB\n", peak / 1024.0);
    std::printf("ratio: %.2f\n", draw / bare);
    return 0;
}
