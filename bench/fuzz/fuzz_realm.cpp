// The realm record, its list field and the catalogue walk.
#include "bench/fuzz/fuzzinput.h"
#include "core/realm.h"
#include "core/record.h"

using namespace umbrith;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString input = fuzz::text(data, size);
    QString record = input;
    fuzz::trapped([&] { record = RecordReader(input).nextText(); });
    Realm realm;
    if (fuzz::trapped([&] { realm = ParseRealm(record); })) {
        if (RealmFields(record).size() == RealmFieldCount && RealmRecord(realm) != record)
            __builtin_trap();
        fuzz::trapped([&] { RealmListPaths(realm.listFiles); });
        fuzz::trapped([&] { SetListFiles(realm.listFiles); });
    }
    for (int i = 0; i < 4; ++i)
        CatalogueRecord(input, i);
    return 0;
}
