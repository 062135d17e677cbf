#!/usr/bin/env bash
# Pictures of the annual overview (Form3 with its chart) and of the totals over the staff
# (Form2) under Xvfb, for the README, on a throw-away working folder with the sample staff.
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

# Person 2 (Schneider, Petra, BAT Vc) becomes the program's place; Form3 opens with her.
"$cli" anlegen --ordner "$ordner" >/dev/null
"$cli" zeigen --ordner "$ordner" --person 2 --monat 1 >/dev/null

mkdir -p "$ziel"
for form in Form3:jahresuebersicht:1300x640 Form2:gesamtsummen:1500x560; do
    IFS=: read -r name datei masse <<<"$form"
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/$datei.png" --form "$name" \
        --groesse "$masse"
done
echo "Bilder: $ziel/jahresuebersicht.png $ziel/gesamtsummen.png"
