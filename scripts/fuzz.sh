#!/usr/bin/env bash
# Builds the fuzz targets with clang (libFuzzer, address and undefined-behaviour checks) and
# runs each for the given seconds on a copy of its seed corpus. Crash inputs land in
# BUILD/funde/; a target with a finding makes the script fail.
# Usage: scripts/fuzz.sh [BUILD] [SECONDS] [JOBS]
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD=${1:-build-fuzz}
ZEIT=${2:-60}
JOBS=${3:-2}
CLANG=$(command -v clang++-14 || command -v clang++)
LAUNCHER=()
if command -v ccache >/dev/null; then LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake -S . -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER="$CLANG" \
    "${LAUNCHER[@]}" -DLONVIR_FUZZ=ON -DLONVIR_GUI=OFF \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined" \
    >/dev/null
ziele=$(cd tests/fuzz && ls ./*_fuzz.cpp | sed 's|^\./||; s|\.cpp$||')
# shellcheck disable=SC2086
cmake --build "$BUILD" -j "$JOBS" --target installation $ziele
mkdir -p "$BUILD/funde"
status=0
printf '%-14s %12s %8s %s\n' Ziel Ausführungen Sekunden Befunde
for z in $ziele; do
    name=${z%_fuzz}
    arbeit="$BUILD/korpus/$name"
    mkdir -p "$arbeit"
    log="$BUILD/$name.log"
    befund=0
    # The whole-store target copies a store per input: in memory where there is room for it.
    TMPDIR=$([ -d /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}") \
        UBSAN_OPTIONS=print_stacktrace=1 "$BUILD/tests/fuzz/$z" -max_total_time="$ZEIT" \
        -artifact_prefix="$BUILD/funde/$name-" -print_final_stats=1 -rss_limit_mb=4096 \
        "$arbeit" "tests/fuzz/korpus/$name" >"$log" 2>&1 || befund=1
    laeufe=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo '?')
    sekunden=$(grep -o 'Done [0-9]* runs in [0-9]* second' "$log" | grep -o 'in [0-9]*' | grep -o '[0-9]*' || echo "$ZEIT")
    printf '%-14s %12s %8s %s\n' "$name" "$laeufe" "$sekunden" "$befund"
    if [ "$befund" -ne 0 ]; then
        status=1
        echo "  $name: Befund, siehe $log" >&2
    fi
done
exit $status
