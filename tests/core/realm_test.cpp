#include "core/realm.h"

#include "core/misc.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"
#include "tests/support/testdata.h"
#include "tests/support/errorof.h"

using namespace umbrith;

TEST(RealmTest, aRealmFileIsOneFieldOfTenFieldsJoinedWithF) {
    const QByteArray bytes = testdata::bytes("core/realms/beta.ubr");
    EXPECT_EQ(bytes.count('\x83'), 9); // "ƒ" as byte 0x83
    const QString record = ReadRealmFile(testdata::path("core/realms/beta.ubr"));
    ASSERT_EQ(RealmFields(record).size(), RealmFieldCount);
    const Realm realm = ParseRealm(record);
    EXPECT_EQ(realm.name, "Beta Isles");
    EXPECT_EQ(realm.description, "Islands, boats and a lot of rain.");
    EXPECT_EQ(realm.races, ":Human:Elf");
    EXPECT_EQ(realm.statsEditable, "1");
    EXPECT_EQ(realm.pointsAtStart, "10");
    EXPECT_EQ(realm.statistics, QString::fromUtf8(":1:2:3:4:5:6:7£:10:20:30:40:50:60:70"));
    EXPECT_EQ(realm.pointsPerLevel, "2.5");
    EXPECT_EQ(realm.nameEditable, "1");
    EXPECT_EQ(realm.defaultName, "Wanderer");
    EXPECT_EQ(RealmRecord(realm), record);
}

TEST(RealmTest, theListFieldHoldsFivePathsEachLedByAColon) {
    const Realm realm = ParseRealm(ReadRealmFile(testdata::path("core/realms/beta.ubr")));
    const auto paths = RealmListPaths(realm.listFiles);
    EXPECT_EQ(paths[EquipListFile], DefaultListFiles()[0]);
    EXPECT_EQ(paths[EnemyListFile], DefaultListFiles()[3]);
    EXPECT_EQ(paths[StartMapFile], "\\maps\\fenwick.ubm");
    SetListFiles(realm.listFiles);
    EXPECT_EQ(ListFiles[StartMapFile], "\\maps\\fenwick.ubm");
    EXPECT_EQ(ListFiles[ItemListFile], "\\config\\item lists\\itemlist.ubc");
}

TEST(RealmTest, aShortListFieldSetsThePathsItHasThenFails) {
    ListFiles = {"a", "b", "c", "d", "e"};
    EXPECT_EQ(errorOf([] { SetListFiles(":\\x.ubc:\\y.ubc"); }), err::SubscriptOutOfRange);
    EXPECT_EQ(ListFiles[0], "\\x.ubc");
    EXPECT_EQ(ListFiles[1], "\\y.ubc");
    EXPECT_EQ(ListFiles[2], "c");
    SetDefaultListFiles();
    EXPECT_EQ(ListFiles[2], "\\config\\skill lists\\skilllist.ubc");
    EXPECT_EQ(ListFiles[4], "e"); // the start map is the caller's
}

TEST(RealmTest, aRecordOfFewerThanTenFieldsIsASubscriptError) {
    EXPECT_EQ(errorOf([] { ParseRealm(QString::fromUtf8("onlyƒtwo")); }), err::SubscriptOutOfRange);
    // A name holding "ƒ" shifts every field: the record is broken, not refused.
    Realm realm;
    realm.name = QString::fromUtf8("Aƒb");
    EXPECT_EQ(ParseRealm(RealmRecord(realm)).name, "A");
}

class RealmCatalogueTest : public ScriptedTest {
protected:
    void putRealms(QStringList names) {
        for (const QString& name : names)
            writeFile("\\realms\\" + name, testdata::bytes("core/realms/" + name));
    }
};

TEST_F(RealmCatalogueTest, theCatalogueListsTheRealmFilesByNameIgnoringCase) {
    putRealms({"beta.ubr", "Alpha.ubr", "gamma.UBR", "notes.txt"});
    const RealmCatalogue catalogue = ReadRealmCatalogue();
    // Two realms of the same name both appear; the index decides.
    EXPECT_EQ(catalogue.names, QStringList({"Alpha Vale", "Beta Isles", "Beta Isles"}));
    EXPECT_TRUE(catalogue.records.startsWith(QChar(0xDC)));
    EXPECT_EQ(ParseRealm(CatalogueRecord(catalogue.records, 2)).description, "Same name, other file.");
    EXPECT_EQ(ParseRealm(CatalogueRecord(catalogue.records, 0)).races, "");
    EXPECT_EQ(CatalogueRecord(catalogue.records, 3), "");
}

TEST_F(RealmCatalogueTest, aRealmIsWrittenAsOneQuotedFieldByteForByte) {
    putRealms({"beta.ubr"});
    const QString record = ReadRealmFile(AppPath() + "\\realms\\beta.ubr");
    WriteRealmFile(AppPath() + "\\realms\\copy.ubr", record);
    EXPECT_EQ(readFile("\\realms\\copy.ubr"), testdata::bytes("core/realms/beta.ubr"));
}

TEST_F(RealmCatalogueTest, anUnreadableFileIsNamedWithItsErrorAndTheOthersAreStillListed) {
    writeFile("\\realms\\readme.txt", "x");
    EXPECT_TRUE(ReadRealmCatalogue().names.isEmpty());
    writeFile("\\realms\\empty.ubr", "");
    putRealms({"beta.ubr"});
    const RealmCatalogue catalogue = ReadRealmCatalogue();
    EXPECT_EQ(catalogue.names, QStringList({"Beta Isles"}));
    EXPECT_EQ(catalogue.unreadable, QStringList({"empty.ubr: Input past end of file"}));
}
