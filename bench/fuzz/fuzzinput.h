#pragma once

// What every fuzz target shares: the input bytes as the text a reader sees, and
// a guard that lets the game's trappable errors pass while anything else (a
// crash, a sanitizer report, an exception of another kind) ends the run.
#include "platform/codepage.h"
#include "platform/error.h"

#include <QString>
#include <cstddef>
#include <cstdint>

namespace umbrith::fuzz {

inline QString text(const uint8_t* data, size_t size) {
    return decodeWindows1252(QByteArrayView(reinterpret_cast<const char*>(data), qsizetype(size)));
}

// Runs one step; a RuntimeError is the reader's error for its caller to report.
template <typename F>
bool trapped(F&& step) {
    try {
        step();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace umbrith::fuzz
