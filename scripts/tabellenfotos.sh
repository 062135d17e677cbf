#!/usr/bin/env bash
# Pictures of the forms that keep the tables, under Xvfb: the tariff editor on the 1997 table
# of January, the health-insurance rates, the text editor on the names, and the name search
# of page 22 with three hits, on a throw-away folder seeded with the installation data.
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

"$cli" anlegen --ordner "$ordner" >/dev/null
"$cli" text --ordner "$ordner" --nummer 5007 --setzen "Schuster, Karl" >/dev/null
"$cli" text --ordner "$ordner" --nummer 5008 --setzen "Schulz, Erna" >/dev/null
"$cli" zeigen --ordner "$ordner" --person 2 --monat 1 >/dev/null
mkdir -p "$ziel"
foto() {
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/$1.png" --groesse 1600x1000 "${@:2}"
}
foto tarife --seite 54
foto kv --menue M_KV
foto textedit --menue MNamen
foto namenssuche --seite 22 --suche sch
echo "Bilder: $ziel/tarife.png $ziel/kv.png $ziel/textedit.png $ziel/namenssuche.png"
