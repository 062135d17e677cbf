#!/usr/bin/env bash
# Pictures of the main window under Xvfb at full screen and half height, for the README, on a
# throw-away working folder as the first start creates it.
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

# A new folder is seeded with the installation data and its sample staff; showing person 6
# (BAT VIb, part-time) in March leaves the program's place there.
"$cli" anlegen --ordner "$ordner" >/dev/null
"$cli" zeigen --ordner "$ordner" --person 6 --monat 3 >/dev/null

mkdir -p "$ziel"
for groesse in voll:1600x1000 halb:1600x500; do
    name=${groesse%%:*}
    masse=${groesse#*:}
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/bildschirm-$name.png" --groesse "$masse"
done
echo "Bilder: $ziel/bildschirm-voll.png $ziel/bildschirm-halb.png"
