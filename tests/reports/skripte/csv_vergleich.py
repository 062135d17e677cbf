#!/usr/bin/env python3
"""Reads an overview's CSV with Python's csv module and compares it with the grid the form
showed, given as a tab-separated dump (label, then the cells). Exit status 0 when every row,
label and amount agrees; the grid's "1.234,56" and the CSV's "1234,56" are the same amount."""
import csv
import sys


def betrag(text):
    return text.replace(".", "").strip()


def main(csvdatei, gitterdatei):
    with open(csvdatei, newline="", encoding="utf-8-sig") as f:
        zeilen = list(csv.reader(f, delimiter=";"))
    with open(gitterdatei, encoding="utf-8") as f:
        gitter = [z.rstrip("\n").split("\t") for z in f if z.strip()]
    kopf, daten = zeilen[0], zeilen[1:]
    if kopf != gitter[0]:
        print("Kopf:", kopf, "!=", gitter[0])
        return 1
    if len(daten) != len(gitter) - 1:
        print("Zeilen:", len(daten), "!=", len(gitter) - 1)
        return 1
    for csvzeile, gitterzeile in zip(daten, gitter[1:]):
        if csvzeile[0] != gitterzeile[0]:
            print("Bezeichnung:", csvzeile[0], "!=", gitterzeile[0])
            return 1
        erwartet = [betrag(z) for z in gitterzeile[1:]]
        if csvzeile[1:] != erwartet:
            print("Betraege von", csvzeile[0], ":", csvzeile[1:], "!=", erwartet)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
