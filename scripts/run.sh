#!/usr/bin/env bash
# Starts the program on a ready working folder (created and seeded on first use).
set -euo pipefail
build=${1:-build}
ordner=${2:-arbeitsordner}
cli="$build/src/cli/lonvir97-cli"
"$cli" anlegen --ordner "$ordner"
if [ -x "$build/src/gui/lonvir97" ]; then
    exec "$build/src/gui/lonvir97" --ordner "$ordner"
fi
"$cli" zeigen --ordner "$ordner" --person 1 --monat 1
