#pragma once

#include <QString>
#include <QStringList>

namespace umbrith {

// What the program was asked to do on its command line.
struct CommandLine {
    QString root;      // --root DIR: the program folder instead of the program's own
    QString script;    // --script FILE: scripted play
    QString dump;      // --dump FILE: print a data file's items
    QString soundFont; // --soundfont FILE: the General MIDI soundfont
    bool offscreen = false;
    bool help = false;
    bool version = false;
    // Why the line was refused; empty when it was understood.
    QString refusal;
};

// The arguments after the program's name.
CommandLine ParseCommandLine(const QStringList& arguments);

// Every option, a line each, as --help prints it and a refusal shows it.
QString UsageText();

// The soundfont used when none is chosen.
QString DefaultSoundFont();

} // namespace umbrith
