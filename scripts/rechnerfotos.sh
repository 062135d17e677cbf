#!/bin/sh
# The pictures of the calculator and of pages 42 and 43 from the window test, and the first page
# of the printed service-age sheet of Frank Lehmann: scripts/rechnerfotos.sh BUILD [DIR]
set -eu
build=${1:-build}
ziel=${2:-/tmp/rechner}
mkdir -p "$ziel"
LONVIR_FOTOS="$ziel" QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=Europe/Berlin \
    "$build/src/gui/lonvir_gui_tests" --gtest_filter='RechnerFenster*'
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
"$build/src/cli/lonvir97-cli" drucken bda --ordner "$ordner/a" --person 1 --geburtstag 12.04.1963 \
    --monate1 30 --monate2 9 --format pdf --aus "$ordner/bda.pdf"
pdftoppm -png -r 60 -f 1 -l 1 -singlefile "$ordner/bda.pdf" "$ziel/bda-bogen"
