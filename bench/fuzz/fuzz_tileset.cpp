// The tileset record and the tile position conversions.
#include "bench/fuzz/fuzzinput.h"
#include "core/record.h"
#include "world/tileset.h"

using namespace umbrith;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString input = fuzz::text(data, size);
    QString record = input;
    fuzz::trapped([&] { record = RecordReader(input).nextText(); });
    TilesetRecordParts parts;
    if (fuzz::trapped([&] { parts = SplitTilesetRecord(record); })) {
        const QString rebuilt = TilesetRecord(parts.pass, parts.picture);
        const TilesetRecordParts again = SplitTilesetRecord(rebuilt);
        if (again.pass != parts.pass || again.picture != parts.picture)
            __builtin_trap();
        for (qsizetype i = 0; i < parts.pass.size() && i < 64; ++i)
            fuzz::trapped([&] { TileIndex(parts.pass[i]); });
    }
    int index = -1;
    if (fuzz::trapped([&] { index = TileIndex(record); }) && index >= 0 && index < TileCount &&
        TileIndex(TilePosition(index)) != index)
        __builtin_trap();
    return 0;
}
