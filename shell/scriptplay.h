#pragma once

#include <QString>

namespace umbrith {

// Plays the script at `path` on the real program over the scripted platform:
// the leading "random" and "answer" lines are queued before Main loads, then
// each line runs in order. Returns the exit code: 0 when every line was
// carried out, 1 after printing "line N: why" for the first that was not.
int runScript(const QString& path);

} // namespace umbrith
