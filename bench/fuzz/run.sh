#!/usr/bin/env bash
# Builds the fuzz targets with clang and libFuzzer and runs each for a while.
#   bench/fuzz/run.sh [SECONDS] [TARGET...]
# SECONDS defaults to 600 per target; the targets default to all of them.
# Each target starts from the hand-made files of tests/data and keeps its
# corpus in build-fuzz/corpus/TARGET; a crash leaves its input in
# build-fuzz/crashes/TARGET and ends the script with a failure.
set -euo pipefail
cd "$(dirname "$0")/../.."

SECONDS_EACH=${1:-600}
shift || true
TARGETS=("$@")
[ ${#TARGETS[@]} -eq 0 ] && TARGETS=(fuzz_map fuzz_tileset fuzz_event fuzz_lists fuzz_realm)

if ! command -v clang++ >/dev/null; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get install -y -qq clang
fi

BUILD=build-fuzz
cmake -S . -B "$BUILD" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DUMBRITH_FUZZ=ON -DUMBRITH_WORLD_ASSETS=OFF >/dev/null
cmake --build "$BUILD" --target "${TARGETS[@]}"

seeds() { # seeds TARGET: the files of tests/data that target reads
    case "$1" in
        fuzz_map) find tests/data/world/maps -name '*.ubm' ;;
        fuzz_tileset) find tests/data/world/tilesets -name '*.ubt' ;;
        fuzz_event) find tests/data/events -name '*.ube'; find tests/data/world/maps/fenwick -name '*.ubm' ;;
        fuzz_lists) find tests/data/inventory -name '*.ubc' ;;
        fuzz_realm) find tests/data/core/realms -type f ;;
    esac
}

status=0
for target in "${TARGETS[@]}"; do
    corpus="$BUILD/corpus/$target"
    crashes="$BUILD/crashes/$target"
    mkdir -p "$corpus" "$crashes"
    seeds "$target" | while read -r file; do cp "$file" "$corpus/"; done
    echo "== $target for ${SECONDS_EACH}s"
    if ! ASAN_OPTIONS=detect_leaks=0 "$BUILD/bench/fuzz/$target" "$corpus" \
        -max_total_time="$SECONDS_EACH" -max_len=2000000 -timeout=30 -rss_limit_mb=4096 \
        -artifact_prefix="$crashes/" -print_final_stats=1 2>"$BUILD/$target.log"; then
        echo "!! $target found a problem; see $BUILD/$target.log and $crashes" >&2
        status=1
    fi
    grep -E "^(stat::number_of_executed_units|Done)" "$BUILD/$target.log" || tail -n 3 "$BUILD/$target.log"
done
exit $status
