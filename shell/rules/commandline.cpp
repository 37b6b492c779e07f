#include "shell/rules/commandline.h"

namespace umbrith {

namespace {

struct Option {
    const char* name;
    const char* argument; // nullptr: a flag
    const char* help;
    QString CommandLine::*value;
    bool CommandLine::*flag;
};

const Option options[] = {
    {"--root", "DIR", "use DIR as the program folder instead of the program's own", &CommandLine::root, nullptr},
    {"--script", "FILE", "play FILE on the real program with a virtual clock, then exit", &CommandLine::script, nullptr},
    {"--dump", "FILE", "print the items of a data file as a JSON array of strings, then exit", &CommandLine::dump, nullptr},
    {"--soundfont", "FILE", "play music through the General MIDI soundfont FILE", &CommandLine::soundFont, nullptr},
    {"--offscreen", nullptr, "run without a window system", nullptr, &CommandLine::offscreen},
    {"--help", nullptr, "print this help and exit", nullptr, &CommandLine::help},
    {"--version", nullptr, "print the version and exit", nullptr, &CommandLine::version},
};

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
    CommandLine line;
    for (qsizetype i = 0; i < arguments.size() && line.refusal.isEmpty(); ++i) {
        const QString& word = arguments[i];
        const Option* found = nullptr;
        for (const Option& option : options)
            if (word == QLatin1String(option.name))
                found = &option;
        if (!found)
            line.refusal = QStringLiteral("unknown option \"%1\"").arg(word);
        else if (found->flag)
            line.*found->flag = true;
        else if (i + 1 >= arguments.size())
            line.refusal = QStringLiteral("%1 needs %2").arg(word, QLatin1String(found->argument));
        else
            line.*found->value = arguments[++i];
    }
    return line;
}

QString UsageText() {
    QString text = QStringLiteral("usage: umbrith [OPTION]...\n"
                                  "Plays Umbrith, and holds the tools its realms are made with.\n\n");
    for (const Option& option : options) {
        const QString head = QLatin1String(option.name) +
                             (option.argument ? u' ' + QLatin1String(option.argument) : QString());
        text += QStringLiteral("  %1%2\n").arg(head, -18).arg(QLatin1String(option.help));
    }
    text += QStringLiteral("\nWithout --soundfont, music plays through %1.\n").arg(DefaultSoundFont());
    return text;
}

QString DefaultSoundFont() { return QStringLiteral("/usr/share/sounds/sf2/TimGM6mb.sf2"); }

} // namespace umbrith
