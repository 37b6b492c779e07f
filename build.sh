#!/usr/bin/env bash
# Sets up what is missing, builds, and plays or tests Umbrith.
#   ./build.sh play     build and start the game
#   ./build.sh test     build and run the whole test suite, plain and sanitized
#   ./build.sh build    build only
set -euo pipefail
cd "$(dirname "$0")"

PACKAGES=(cmake ninja-build g++ pkg-config qt6-base-dev libsdl2-mixer-dev timgm6mb-soundfont libgtest-dev)

setup() {
    local missing=()
    for package in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
}

build() { # build DIR [cmake options...]
    local dir=$1
    shift
    cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir" -j "$(nproc)"
}

run_tests() { # run_tests DIR
    ctest --test-dir "$1" --output-on-failure -j "$(nproc)" --timeout 300
}

setup
case "${1:-play}" in
    play)
        build build
        exec build/umbrith/umbrith "${@:2}"
        ;;
    build)
        build build
        ;;
    test)
        build build
        run_tests build
        build build-asan -DUMBRITH_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
        ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 run_tests build-asan
        ;;
    *)
        echo "usage: ./build.sh [play|test|build]" >&2
        exit 2
        ;;
esac
