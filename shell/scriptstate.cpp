#include "shell/scriptstate.h"

#include "core/gamerecord.h"
#include "core/misc.h"
#include "core/realm.h"
#include "platform/scripted/scriptedplatform.h"
#include "shell/mainform.h"
#include "shell/npccreator.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>

namespace umbrith {

namespace {

QList<QWidget*> formsVisibleFirst() {
    QList<QWidget*> visible, hidden;
    for (QWidget* form : QApplication::topLevelWidgets())
        if (!qobject_cast<QMenu*>(form))
            (form->isVisible() ? visible : hidden).append(form);
    return visible + hidden;
}

bool isFrame(const QWidget* widget) {
    return widget->metaObject() == &QFrame::staticMetaObject || qobject_cast<const QGroupBox*>(widget);
}

// A control's text, or its rows, or its caption and state.
QJsonValue controlValue(QWidget* widget) {
    if (auto* box = qobject_cast<QAbstractButton*>(widget); box && (qobject_cast<QCheckBox*>(box) || qobject_cast<QRadioButton*>(box)))
        return QJsonObject{{"text", box->text()}, {"checked", box->isChecked()}};
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->text();
    if (auto* line = qobject_cast<QLineEdit*>(widget))
        return line->text();
    if (auto* text = qobject_cast<QTextEdit*>(widget))
        return text->toPlainText();
    if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
        return text->toPlainText();
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        QJsonArray rows;
        for (int i = 0; i < list->count(); ++i)
            rows.append(list->item(i)->text());
        return rows;
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        QJsonArray rows;
        for (int i = 0; i < combo->count(); ++i)
            rows.append(combo->itemText(i));
        return rows;
    }
    return QJsonValue::Undefined;
}

// A table's filled cells by their "x;y".
QJsonObject tableJson(const MapTable& table) {
    QJsonObject cells;
    for (const MapTable::Cell& cell : table.cells())
        cells.insert(QString::number(cell.x) + u';' + QString::number(cell.y), cell.text);
    return cells;
}

void insertWorld(QJsonObject& json, const Main& main) {
    const WorldState& w = main.state().world;
    json.insert("CurrentMapPath", w.CurrentMapPath);
    json.insert("LevelWidth", w.LevelWidth);
    json.insert("LevelHeight", w.LevelHeight);
    json.insert("StartLocation", w.StartLocation);
    json.insert("ScreenWarpTop", w.ScreenWarpTop);
    json.insert("ScreenWarpBottom", w.ScreenWarpBottom);
    json.insert("ScreenWarpLeft", w.ScreenWarpLeft);
    json.insert("ScreenWarpRight", w.ScreenWarpRight);
    json.insert("LevelEnemies", w.LevelEnemies);
    json.insert("EncounterRate", w.EncounterRate);
    json.insert("TilesetName", w.TilesetName);
    json.insert("LoadedTileset", w.tileset.loadedTileset);
    json.insert("LevelMusicPath", w.LevelMusicPath);
    json.insert("NightLevel", w.NightLevel.text());
    json.insert("EnterMessagePending", w.EnterMessagePending);
    json.insert("MovableNPCs", w.MovableNPCs);
    json.insert("PastedNPCs", w.PastedNPCs);
    json.insert("FollowerNPCs", w.FollowerNPCs);
    json.insert("PendingFollowers", w.PendingFollowers);
    json.insert("HoldTileEntries", w.HoldTileEntries);
    json.insert("AnimationRunning", w.AnimationRunning);
    json.insert("NPCPictureCount", w.NPCPictureCount);
    json.insert("PlayerTwipX", w.PlayerTwipX);
    json.insert("PlayerTwipY", w.PlayerTwipY);
    json.insert("WalkFrame", w.WalkFrame);
    json.insert("WalkDirection", w.WalkDirection);
    json.insert("DayTicks", w.DayTicks);
    json.insert("NPCRebuild", w.NPCRebuild);
    json.insert("BlockedX", w.BlockedX);
    json.insert("BlockedY", w.BlockedY);
    json.insert("MapChanged", w.MapChanged);
    json.insert("SpecialWalk", w.SpecialWalk);
    json.insert("LastCheckEntering", w.LastCheckEntering.text());
    json.insert("LastCheckX", w.LastCheckX.text());
    json.insert("LastCheckY", w.LastCheckY.text());
    json.insert("NPCAt", tableJson(w.NPCAt));
    json.insert("GroundPileAt", tableJson(w.GroundPileAt));
    json.insert("SpecialKind", tableJson(w.SpecialKind));
    const Main::WorldTimers& timers = main.worldTimers();
    json.insert("AniTimer", timers.AniTimer->enabled());
    json.insert("NPCWander", timers.NPCWander->enabled());
    json.insert("daynight", timers.daynight->enabled());
}

// The NPC image creator's fields, whether or not it is on show.
QJsonObject npcCreatorJson(const CCMain& form) {
    const NPCImageState& s = form.state();
    QJsonArray paths;
    for (const QString& path : s.AreaPaths)
        paths.append(path);
    return {{"AreaPaths", paths},
            {"ChosenPicture", s.ChosenPicture},
            {"PreviewDirection", s.PreviewDirection},
            {"PreviewFrame", s.PreviewFrame},
            {"PreviewWay", s.PreviewWay},
            {"AniTimer", form.animating()}};
}

} // namespace

QObject* findNamed(const QString& name) {
    const QList<QWidget*> forms = formsVisibleFirst();
    // Forms share control names (every form has its txtName): a control on show wins.
    for (QWidget* form : forms)
        for (QWidget* widget : form->findChildren<QWidget*>(name))
            if (widget->isVisible())
                return widget;
    for (QWidget* form : forms) {
        if (form->objectName() == name)
            return form;
        if (auto* widget = form->findChild<QWidget*>(name))
            return widget;
        if (auto* action = form->findChild<QAction*>(name))
            return action;
    }
    return nullptr;
}

QJsonObject stateJson(const Main& main, const ScriptedPlatform& scripted) {
    QJsonObject json;
    GameRecord& game = main.game();
    for (const GameField& field : gameFields())
        json.insert(QLatin1String(field.name), (game.*field.member).text());

    const MainState& state = main.state();
    insertWorld(json, main);
    json.insert("CCMain", npcCreatorJson(main.npcCreator()));
    json.insert("AppPath", AppPath());
    json.insert("CurrentMusic", state.CurrentMusic);
    json.insert("GameLoaded", state.GameLoaded);
    json.insert("DisplayModeChanged", state.DisplayModeChanged);
    json.insert("SelectedRealm", state.SelectedRealm);
    json.insert("PointsAtStart", state.PointsAtStart);
    json.insert("PointsPerLevel", state.PointsPerLevel);
    json.insert("ShopLevelFactor", state.ShopLevelFactor);
    QJsonArray listFiles;
    for (const QString& path : ListFiles)
        listFiles.append(path);
    json.insert("ListFiles", listFiles);
    const MessageState& m = state.message;
    json.insert("MessagePos", m.MessagePos);
    json.insert("MessagePageChars", m.MessagePageChars);
    json.insert("MessageBuffer", m.MessageBuffer);
    json.insert("MessageLastChar", m.MessageLastChar);
    json.insert("MessagePageEnd", m.MessagePageEnd);
    json.insert("MessageDone", m.MessageDone);
    json.insert("MessageActive", m.MessageActive);
    json.insert("EventPaused", m.EventPaused);

    QJsonArray visible;
    QJsonObject controls;
    for (QWidget* form : formsVisibleFirst()) {
        if (!form->isVisible())
            break;
        if (!form->objectName().isEmpty())
            visible.append(form->objectName());
        for (QMenu* menu : form->findChildren<QMenu*>())
            if (!menu->objectName().isEmpty() && menu->menuAction()->isVisible())
                visible.append(menu->objectName());
        for (QWidget* widget : form->findChildren<QWidget*>()) {
            if (widget->objectName().isEmpty() || !widget->isVisible())
                continue;
            if (isFrame(widget))
                visible.append(widget->objectName());
            else if (QJsonValue value = controlValue(widget); !value.isUndefined())
                controls.insert(widget->objectName(), value);
        }
    }
    json.insert("visible", visible);
    json.insert("controls", controls);

    QJsonArray boxes;
    for (const ScriptedPlatform::Box& box : scripted.boxes)
        boxes.append(QJsonObject{{"kind", box.kind}, {"title", box.title}, {"text", box.text}});
    json.insert("boxes", boxes);
    json.insert("sounds", QJsonArray::fromStringList(scripted.sounds));
    return json;
}

} // namespace umbrith
