#include "shell/rules/intro.h"

#include <array>

namespace umbrith {

QString IntroLine(int index) {
    static const std::array<const char*, IntroLineCount> lines = {
        "Welcome to Umbrith",
        "This is a place where anything is possible...",
        "A place where new realms are discovered all the time...",
        "A place where your worst nightmares become realities...",
        "Or your most treasured dream is fulfilled.",
        "Do not be fooled, Umbrith is not for the weak.",
        "There are more dangers than rewards in these lands...",
        "But the rewards are still there, for those who dare seek them.",
        "Explore, Quest, Hunt, Build yourself up... The choice is yours.",
        "I wish you luck, and bid you safe journey in the Umbrith",
        "",
    };
    if (index < 1 || index > IntroLineCount)
        return QString();
    return QString::fromUtf8(lines[index - 1]);
}

QString IntroPiece(float r) {
    if (r <= 0.3f)
        return QStringLiteral("\\sfx\\intro.mid");
    if (r <= 0.6f)
        return QStringLiteral("\\sfx\\intro1.mid");
    return QStringLiteral("\\sfx\\intro2.mid");
}

IntroTick NextIntroLine(int& index) {
    IntroTick tick{IntroLine(index), index < IntroLineCount};
    if (tick.goesOn)
        ++index;
    return tick;
}

} // namespace umbrith
