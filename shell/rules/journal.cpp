#include "shell/rules/journal.h"

#include "core/resolvecode.h"
#include "shell/rules/messages.h"

namespace umbrith {

namespace {

// A value that names itself would expand for ever; no honest entry needs more.
constexpr int SubstitutionLimit = 1000;

bool entryComplete(GameRecord& game, QString code) {
    if (!code.startsWith(u'&'))
        code.prepend(u'&');
    const Value value = ResolveCode(game, ResolveCode(game, code));
    return value.num() == 1 || (value.isText() && value.text() == u"true");
}

} // namespace

QString JournalText(GameRecord& game) {
    QString result;
    const QStringList entries = game.Journal.text().split(QStringLiteral("£"));
    for (const QString& entry : entries) {
        if (entry.isEmpty())
            continue;
        const QStringList fields = entry.split(u';');
        auto field = [&](int i) { return i < fields.size() ? fields[i] : QString(); };
        QString text = field(0) + QStringLiteral(" - ") +
                       (entryComplete(game, field(2)) ? QStringLiteral(" [COMPLETED]") : QStringLiteral(" [NOT COMPLETED]")) +
                       u'\n' + field(1) + u'\n';
        for (int i = 0; i < SubstitutionLimit && text.contains(QStringLiteral("#(")); ++i)
            SubstituteCode(game, text);
        if (!result.isEmpty())
            result += u'\n';
        result += text;
    }
    return result;
}

} // namespace umbrith
