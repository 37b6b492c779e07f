#include "core/resolvecode.h"

#include "platform/platform.h"

namespace umbrith {

namespace {

// A stored text as the resolver hands it out: a number when it is "0" or
// parses to a non-zero number, the text itself otherwise.
Value numberOrText(const QString& text) {
    double number = Val(text);
    if (text == u"0" || number != 0)
        return Value(number);
    return Value(text);
}

} // namespace

Value ResolveCode(GameRecord& game, const Value& codeValue) {
    const QString code = codeValue.text();
    for (const GameField& field : gameFields())
        if (field.code && code == QLatin1String(field.code))
            return game.*field.member;
    if (code == u"&Night")
        return Not(game.IsDay);
    if (code == u"&Day")
        return game.IsDay;
    if (code == u"&Days Passed")
        return game.DaysPassed;
    if (code == u"&Random")
        return Value(double(platform().random.draw()));
    if (!code.startsWith(u'&'))
        return numberOrText(code);

    const QString name = code.mid(1);
    const QStringList entries = game.Variables.text().split(u'|');
    for (qsizetype i = 1; i < entries.size(); ++i) {
        const QStringList parts = entries[i].split(u'=');
        if (parts[0] == name)
            return numberOrText(parts.size() > 1 ? parts[1] : QString());
    }
    game.Variables = game.Variables.text() + u'|' + name + QStringLiteral("=0");
    return Value(0);
}

void SetVariable(GameRecord& game, const QString& name, const QString& value) {
    const QStringList entries = game.Variables.text().split(u'|');
    QString rebuilt;
    bool found = false;
    for (qsizetype i = 1; i < entries.size(); ++i) {
        if (entries[i].split(u'=')[0] == name) {
            rebuilt += u'|' + name + u'=' + value;
            found = true;
        } else {
            rebuilt += u'|' + entries[i];
        }
    }
    if (!found)
        rebuilt += u'|' + name + u'=' + value;
    game.Variables = rebuilt;
}

} // namespace umbrith
