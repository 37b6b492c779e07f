#include "world/savedgame.h"

#include "core/misc.h"
#include "core/record.h"
#include "platform/files.h"
#include "world/changemap.h"
#include "world/mapfile.h"
#include "world/textures.h"

namespace umbrith {

namespace {

constexpr double kTileUnits = 360; // drawing units to a tile

} // namespace

FileDialogSettings SaveFileDialog(const QString& title) {
    return {title, QString(), AppPath() + QStringLiteral("\\saves"), QStringLiteral("Umbrith Save (*.ubs)|*.ubs"), true};
}

QString FileTitle(const QString& path) { return path.mid(path.lastIndexOf(u'\\') + 1); }

SaveExtras SaveExtrasOf(const WorldState& world) {
    const QString position =
        Value(world.PlayerTwipX / kTileUnits).text() + u';' + Value(world.PlayerTwipY / kTileUnits).text();
    return {HeldEntries(world), position, world.CurrentMapPath, world.AnimationRunning};
}

void WriteSavedGame(const QString& path, const GameRecord& game, const WorldState& world) {
    // Only to fail early when the map's file has gone; the header isn't used.
    readRecordFile(AppPath() + world.CurrentMapPath, MapItemCount);
    writeRecordFile(path, SaveGameFields(game, SaveExtrasOf(world)));
}

SavedParts ReadSavedGame(const QString& path, GameRecord& game, Textures& textures) {
    RecordReader reader = RecordReader::fromFile(path);
    SavedParts parts = ReadSaveGame(reader, game);
    if (isTrue(game.PlayerUsesImage))
        textures.picPNPC = Surface::load(AppPath() + game.PlayerImage.text());
    return parts;
}

void ForgetMapForLoad(GameRecord& game, WorldState& world) {
    world.CurrentMapPath.clear();
    game.CurrentLevel = QString();
    // Followers promised by the former game's events don't come along.
    world.PendingFollowers.clear();
    ResetMap(world);
}

SaveExtras ApplySavedGame(GameRecord& game, WorldState& world, const SavedParts& parts) {
    const SaveExtras extras = ApplyPlayerBlock(game, parts);
    world.HoldTileEntries = extras.heldEntries;
    world.AnimationRunning = isTrue(extras.animationRunning);

    const QStringList place = extras.position.split(u';');
    if (place.size() < 2)
        err::raise(err::SubscriptOutOfRange);
    game.PlayerX = place[0];
    game.PlayerY = place[1];
    world.PlayerTwipX = kTileUnits * toDouble(Value(place[0]));
    world.PlayerTwipY = kTileUnits * toDouble(Value(place[1]));

    // The four worn pieces always load, and one whose picture is gone fails
    // the load; shield and weapon load only when named, else the former
    // game's pictures stay.
    Textures& t = world.textures;
    const auto load = [](const Value& path) { return Surface::load(AppPath() + path.text()); };
    t.grossbody = load(game.PlayerArmourPicturePath);
    t.grossboots = load(game.PlayerBootsPicturePath);
    t.grosshead = load(game.PlayerHelmetPicturePath);
    t.grossgloves = load(game.PlayerGlovesPicturePath);
    if (!game.PlayerShieldPicturePath.text().isEmpty())
        t.grossshield = load(game.PlayerShieldPicturePath);
    if (!game.PlayerWeaponPicturePath.text().isEmpty())
        t.grossweapon = load(game.PlayerWeaponPicturePath);
    UpdateCharacterPic(t);

    game.Variables = parts.variables;
    return extras;
}

QString OpenGameErrorText(const QString& fileTitle, const RuntimeError& error) {
    return QStringLiteral("There was an error loading the Character File:\n") + fileTitle +
           QStringLiteral("\nThis is the Error:\n(") + error.text() + u')';
}

} // namespace umbrith
