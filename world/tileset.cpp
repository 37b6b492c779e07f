#include "world/tileset.h"

#include "core/misc.h"
#include "core/record.h"
#include "core/value.h"
#include "platform/error.h"

namespace umbrith {

int TileIndex(const QString& position) {
    const qsizetype bar = position.indexOf(u'|');
    if (bar < 0)
        err::raise(err::SubscriptOutOfRange);
    const qsizetype next = position.indexOf(u'|', bar + 1);
    const double sx = Val(position.left(bar));
    const double sy = Val(position.mid(bar + 1, next < 0 ? -1 : next - bar - 1));
    return toInt32(Value(sx / TileSize + (sy / TileSize) * SheetTiles));
}

QString TilePosition(int index) {
    return QString::number(index % SheetTiles * TileSize) + u'|' + QString::number(index / SheetTiles * TileSize);
}

TilesetRecordParts SplitTilesetRecord(const QString& record) {
    const QStringList parts = record.split(u'/');
    if (parts.size() < 2)
        err::raise(err::SubscriptOutOfRange);
    QStringList pass = parts[0].split(u':');
    pass.removeFirst();
    return {pass, parts[1]};
}

QString TilesetRecord(const QStringList& pass, const QString& picture) {
    QString record;
    record.reserve(pass.size() * 2 + picture.size() + 1);
    for (const QString& value : pass)
        record += u':' + value;
    return record + u'/' + picture;
}

QString ReadTilesetFile(const QString& path) { return readRecordFile(path, 1)[0].text(); }

void WriteTilesetFile(const QString& path, const QString& record) { writeRecordFile(path, {Value(record)}); }

void UpdateTilesetCore(TilesetState& state, const QString& name) {
    if (name.size() < 4)
        err::raise(err::InvalidProcedureCall);
    const QString folder = AppPath() + QStringLiteral("\\tilesets\\");
    const QString base = name.left(name.size() - 4);
    const TilesetRecordParts parts = SplitTilesetRecord(ReadTilesetFile(folder + base + QStringLiteral(".ubt")));
    if (parts.pass.size() > TilesetPassStorage)
        err::raise(err::SubscriptOutOfRange);

    // The picture box keeps the sheet's size whatever the picture's own is.
    const Surface picture = Surface::load(folder + parts.picture);
    Surface sheet(SheetPixels, SheetPixels);
    blit(sheet, 0, 0, SheetPixels, SheetPixels, picture, 0, 0, RasterOp::SrcCopy);

    QStringList pass = state.pass;
    if (pass.size() < TilesetPassStorage)
        pass.resize(TilesetPassStorage);
    for (qsizetype i = 0; i < parts.pass.size(); ++i)
        pass[i] = parts.pass[i];

    state.sheet = std::move(sheet);
    state.pass = std::move(pass);
    state.loadedTileset = name;
}

QString TilesetPassAt(const TilesetState& state, const QString& position) {
    const int index = TileIndex(position);
    if (index < 0 || index >= state.pass.size())
        err::raise(err::SubscriptOutOfRange);
    return state.pass[index];
}

} // namespace umbrith
