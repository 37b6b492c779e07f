#include "platform/platform.h"

#include <cstdio>
#include <cstdlib>

namespace umbrith {

namespace {
Platform* installed = nullptr;
}

Platform& platform() {
    if (!installed) {
        std::fputs("umbrith: no platform installed\n", stderr);
        std::abort();
    }
    return *installed;
}

void installPlatform(Platform* platform) { installed = platform; }

Platform* installedPlatform() { return installed; }

} // namespace umbrith
