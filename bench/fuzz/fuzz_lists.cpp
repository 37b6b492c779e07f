// The four content lists: records, keys, look-ups and picture paths.
#include "bench/fuzz/fuzzinput.h"
#include "core/record.h"
#include "inventory/listfiles.h"

using namespace umbrith;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString input = fuzz::text(data, size);
    QString list = input;
    fuzz::trapped([&] { list = RecordReader(input).nextText(); });
    for (ListKind kind : {ListKind::Equipment, ListKind::Items, ListKind::Skills, ListKind::Enemies}) {
        const QStringList records = ListRecords(kind, list);
        for (const QString& record : records) {
            QString key;
            if (fuzz::trapped([&] { key = RecordKey(kind, record); })) {
                QString found;
                // The look-up may meet a broken record before this one: that is its error.
                if (fuzz::trapped([&] { found = FindListRecord(kind, list, key); }) && found.isEmpty())
                    __builtin_trap();
            }
        }
    }
    const QString path = EnemyPicturePath(list);
    if (path.contains(u'`') || EnemyPicturePath(StoredEnemyPicturePath(path)) != path)
        __builtin_trap();
    EnemyShownName(list);
    return 0;
}
