#include "core/realmdraft.h"

#include "core/realm.h"
#include "tests/support/qtprint.h"

#include <gtest/gtest.h>

using namespace umbrith;

namespace {

RealmDraft completeDraft() {
    RealmDraft d;
    d.name = "Fenwick";
    d.description = "Marsh and mist.";
    d.lists = {"\\config\\equip lists\\a.ubc", "\\config\\item lists\\b.ubc", "\\config\\skill lists\\c.ubc",
               "\\config\\enemy lists\\d.ubc", "\\maps\\fen.ubm"};
    d.races = {"Human", "Elf"};
    d.defaultName = "Wren";
    d.shown = {"1", "2", "3", "4", "5", "6", "7"};
    d.statsEditable = true;
    d.pointsAtStart = "10";
    d.pointsPerLevel = "3";
    return d;
}

} // namespace

TEST(RealmDraftTest, oneRowOfBoxesKeepsBothSetsAcrossTheOptions) {
    RealmDraft d = completeDraft();
    ShowStatSet(d, true); // the row held the editable set
    EXPECT_EQ(d.editable[6], 7);
    EXPECT_EQ(d.shown[0], "0");
    d.shown = {"10", "20", "30", "40", "50", "60", "70.5"};
    ShowStatSet(d, false);
    EXPECT_EQ(d.shown[6], "7");
    EXPECT_EQ(d.base[6], 70.5);
    ShowStatSet(d, false); // choosing the set on show changes nothing
    EXPECT_EQ(d.shown[6], "7");

    const RealmBuild build = BuildRealmRecord(d);
    ASSERT_EQ(build.problem, "");
    const Realm realm = ParseRealm(build.record);
    EXPECT_EQ(realm.statistics, QString::fromUtf8(":10:20:30:40:50:60:70.5£:1:2:3:4:5:6:7"));
    EXPECT_EQ(realm.listFiles, ":" + d.lists[0] + ":" + d.lists[1] + ":" + d.lists[2] + ":" + d.lists[3] + ":" + d.lists[4]);
    EXPECT_EQ(realm.races, ":Human:Elf");
    EXPECT_EQ(realm.statsEditable, "1");
    EXPECT_EQ(realm.nameEditable, "1");
    EXPECT_EQ(realm.pointsPerLevel, "3");
    EXPECT_EQ(realm.defaultName, "Wren");
}

TEST(RealmDraftTest, theChecksStandInTheirOrder) {
    RealmDraft d = completeDraft();
    d.raceFrameOpen = true;
    EXPECT_EQ(RealmDraftProblem(d), "Unable to create! You are forgetting very important parts!");
    d = completeDraft();
    d.description.clear();
    EXPECT_EQ(RealmDraftProblem(d), "Unable to create! You are forgetting very important parts!");
    EXPECT_EQ(RealmDraftProblem(completeDraft()), "");

    d = completeDraft();
    d.lists[4].clear();
    d.races.clear();
    EXPECT_TRUE(BuildRealmRecord(d).problem.startsWith("You MUST select which equipment/items/skills/enemies list"));
    d.lists[4] = "\\maps\\fen.ubm";
    EXPECT_EQ(BuildRealmRecord(d).problem, "You need at least one race the player can choose!");
    d.races = {"Orc"};
    d.shown[3].clear();
    d.statsEditable = false;
    EXPECT_EQ(BuildRealmRecord(d).problem, "You forget to enter all the player stats!");
    EXPECT_EQ(BuildRealmRecord(d).record, "");
}

TEST(RealmDraftTest, emptyBoxesPassWhenThePlayerSpendsPointsAndCountAsZero) {
    RealmDraft d = completeDraft();
    d.shown = {};
    const RealmBuild build = BuildRealmRecord(d);
    ASSERT_EQ(build.problem, "");
    EXPECT_EQ(ParseRealm(build.record).statistics, QString::fromUtf8(":0:0:0:0:0:0:0£:0:0:0:0:0:0:0"));
}
