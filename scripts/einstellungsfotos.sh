#!/usr/bin/env bash
# Pictures of the settings under Xvfb: the pages 63, 64, 65, 44, 61 and 2 beside the sample
# BAT employee (person 2) in January 1997, the main screen in the preset mode for the records
# 1 to 5, the colours of Form14 and the start lock's form Password, on a throw-away folder
# seeded with the installation data. Into the folder given second (default /tmp/einstellungen);
# `docs` takes the three the README shows.
set -euo pipefail
build=${1:-build}
ziel=${2:-/tmp/einstellungen}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

"$cli" anlegen --ordner "$ordner" >/dev/null
# A run of person 2's January stores the place the window restores.
"$cli" zeigen --ordner "$ordner" --person 2 --monat 1 >/dev/null
mkdir -p "$ziel"
foto() {
    local name=$1
    shift
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/$name.png" --groesse 1600x1000 "$@"
}
if [ "$(basename "$ziel")" = docs ]; then
    foto einstellung-63 --seite 63
    foto voreinstellung --voreinstellung 1-5
    foto farben --form Form14
    echo "Bilder: $ziel/einstellung-63.png $ziel/voreinstellung.png $ziel/farben.png"
    exit 0
fi
for seite in 63 64 65 44 61 2; do
    foto "einstellung-$seite" --seite "$seite"
done
foto voreinstellung --voreinstellung 1-5
foto farben --form Form14
foto passwort --form Password
echo "Bilder in $ziel"
