#!/usr/bin/env bash
# Pictures of the main window under Xvfb at full screen and half height, for the README.
# The working folder is a throw-away one with a handful of list texts in demo wording, so that
# the rows carry words; the installation's text table replaces them in real use.
set -euo pipefail
build=${1:-build}
ziel=${2:-docs}
cli="$build/src/cli/lonvir97-cli"
gui="$build/src/gui/lonvir97"
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

"$cli" anlegen --ordner "$ordner" >/dev/null
python3 - "$ordner" <<'PY'
import os, sys
ordner = sys.argv[1]
name = next(n for n in os.listdir(ordner) if n.lower() == "texte.txt")
texte = {
    3301: "Bes.Ordn. A", 3302: "Bes.Ordn. B", 3303: "Bes.Ordn. C", 3304: "Bes.Ordn. R",
    3305: "Anwärter", 3306: "BAT Bund/Länder", 3321: "West", 3322: "Ost",
    3323: "Ehegatte nicht im öff. Dienst", 3058: "BAT X", 3059: "BAT IXb", 3060: "BAT IXa",
    3061: "BAT VIII", 3062: "BAT VII", 3063: "BAT VIb", 3064: "BAT Vc",
    1161: "Verwaltungsangestellte/r", 3328: "Stufe 1", 3329: "Stufe 2", 3330: "Stufe 3",
    3359: "verheiratet, Stufe 2", 3382: "Allgemeine Stellenzulage", 3390: "Zulage frei",
    3450: "keine VWL", 3460: "Urlaubsgeld berechnet", 3464: "Zuwendung berechnet",
    3472: "keine Einmalzahlung", 3500: "Januar", 3501: "Februar", 3502: "März",
    3512: "Jahresgehalt", 4111: "kein Sachbezug", 3552: "ZVK-Umlage", 4050: "ohne Auswahl",
    3538: "evangelisch", 3547: "allgemeine Tabelle", 3536: "unter 64 Jahre",
    4120: "Arbeitnehmer trägt alles", 3564: "Steuerklasse I / 0", 3614: "kein Kindergeld",
    3621: "Solidaritätszuschlag", 3623: "Kirchensteuer 8 %", 3628: "AOK",
    3696: "Pflegeversicherung", 3703: "Rentenversicherung", 3708: "Arbeitslosenvers.",
    3713: "Gewerkschaftsbeitrag", 3718: "Vermögensbildung", 3722: "Miete Dienstwohnung",
    3728: "Kantine", 5001: "Berger, Anna", 5002: "Claußen, Dirk",
}
with open(os.path.join(ordner, name), "r+b") as f:
    for nummer, text in texte.items():
        f.seek((nummer - 1) * 35)
        f.write(text.encode("cp1252").ljust(35, b" "))
PY
# Person 1, March: an employee in BAT Vc, part-time, with an allowance and two deductions.
setzen() { "$cli" setzen --ordner "$ordner" --person 1 --monat 3 "$@" >/dev/null 2>&1; }
setzen --zeile 4 --auswahl 5
setzen --zeile 5 --auswahl 6
setzen --zeile 12 --betrag 45000
setzen --zeile 1 --betrag 3000
setzen --zeile 41 --auswahl 0
setzen --zeile 41 --betrag -1850
setzen --zeile 42 --auswahl 9
setzen --zeile 42 --betrag -42500

mkdir -p "$ziel"
for groesse in voll:1600x1000 halb:1600x500; do
    name=${groesse%%:*}
    masse=${groesse#*:}
    xvfb-run -a -s "-screen 0 1600x1000x24" \
        "$gui" --ordner "$ordner" --bildschirmfoto "$ziel/bildschirm-$name.png" --groesse "$masse"
done
echo "Bilder: $ziel/bildschirm-voll.png $ziel/bildschirm-halb.png"
