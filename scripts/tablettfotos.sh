#!/usr/bin/env bash
# Pictures of the panel beside the main screen under Xvfb: the wage tax, supplementary
# pension, social insurance and part-time pages of the sample BAT employee (person 2) in
# January 1997, on a throw-away folder seeded with the installation data; then the version
# take-over page 67, and page 47 after a year change of the sample staff (opened directly, the
# page runs the change without the menu's questions).
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

"$cli" anlegen --ordner "$ordner" >/dev/null
# A run of person 2's January stores the place the window restores.
"$cli" zeigen --ordner "$ordner" --person 2 --monat 1 >/dev/null
mkdir -p "$ziel"
for seite in 6 8 29 35 67 47; do
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/tablett-$seite.png" \
        --groesse 1600x1000 --seite "$seite"
done
echo "Bilder: $ziel/tablett-{6,8,29,35,67,47}.png"
