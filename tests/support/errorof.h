#pragma once

#include "platform/error.h"

namespace umbrith {

// The number of the RuntimeError a call raises, or 0 when it raises none.
template <typename Call>
int errorOf(Call&& call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace umbrith
