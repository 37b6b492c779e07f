#pragma once

#include "core/gamerecord.h"

namespace umbrith {

// Turns an "&" name or a literal, as an author wrote it, into a value. Reading
// an unknown variable creates it with the value 0; "&Random" draws.
Value ResolveCode(GameRecord& game, const Value& code);

// Rewrites `Variables` entry by entry so that `name` holds `value`, appending
// the variable at the end when it is new; other entries keep their order and
// their raw text.
void SetVariable(GameRecord& game, const QString& name, const QString& value);

} // namespace umbrith
