#pragma once

#include "core/gamerecord.h"

#include <QString>

namespace umbrith {

// The journal panel's text: each entry's title with its state, then its
// text, codes substituted. An entry is complete when its code resolves (twice,
// so a variable may name another) to 1 or to "true".
QString JournalText(GameRecord& game);

} // namespace umbrith
