#!/usr/bin/env bash
# Pictures of the main window under Xvfb as a clerk meets it: the first start on a 1600 by 1000
# and on a 1024 by 768 screen (maximised), the window sized by hand to 1200 by 800, the restart
# that opens it at that size, the same place on the small screen, and a pay table of "GTab".
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
gross=$(mktemp -d)
klein=$(mktemp -d)
trap 'rm -rf "$gross" "$klein"' EXIT
"$cli" anlegen --ordner "$gross" >/dev/null
"$cli" anlegen --ordner "$klein" >/dev/null
mkdir -p "$ziel"

foto() { # screen, folder, picture, further options
    local schirm=$1 ordner=$2 bild=$3
    shift 3
    xvfb-run -a -s "-screen 0 ${schirm}x24" "$gui" --ordner "$ordner" \
        --bildschirmfoto "$ziel/$bild" "$@"
}
foto 1600x1000 "$gross" fenster-erststart-1600.png
foto 1024x768 "$klein" fenster-erststart-1024.png
foto 1600x1000 "$gross" fenster-gezogen-1200.png --groesse 1200x800
foto 1600x1000 "$gross" fenster-neustart-1200.png
foto 1024x768 "$gross" fenster-neustart-1024.png
foto 1600x1000 "$gross" gtab-beamte-west.png --hilfe 33010
echo "Bilder in $ziel: fenster-*.png gtab-beamte-west.png"
