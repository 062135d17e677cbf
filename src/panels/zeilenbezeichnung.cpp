// The text of a pay row's list z(row) as the pages quote it, read from the text table.
#include "panels/tablett.h"
#include "start/texte.h"

namespace lonvir {

namespace {

// The names of the pay rows where the list gives no text.
std::string zeilenname(int zeile) {
    switch (zeile) {
    case 7:
        return "Grundgehalt";
    case 8:
        return "Ortszuschlag";
    case 9:
        return "Allgemeine Stellenzulage";
    case 10:
        return "Überleitungszulage";
    case 11:
        return "Leistungsstufe";
    case 15:
        return "VWL";
    case 16:
        return "Überstunden";
    case 17:
        return "Urlaubsgeld";
    case 18:
        return "Zuwendung";
    case 19:
        return "Einmalzahlung";
    default:
        return "Zulage";
    }
}

// The first text record of the fixed list of a row, 0 for rows whose list is built otherwise.
int listenanfang(const Sitzung& s, int zeile) {
    switch (zeile) {
    case 9:
        return 3382;
    case 11:
        return s.personalart() == 0 ? 4155 : 3390;
    case 12:
    case 13:
    case 14:
        return 3390;
    case 15:
        return 3450;
    case 17:
        return 3460;
    case 18:
        return 3464;
    case 19:
        return 3472;
    default:
        return 0;
    }
}

} // namespace

std::string zeilenbezeichnung(Sitzung& s, int zeile) {
    if (zeile == 10)
        return s.merkmal[10] == 0 ? "Überleitungszulage" : "Überleitungszulage nach Angabe";
    if (zeile == 16)
        return s.merkmal[16] == 0 ? "Überstunden" : "Stunden";
    const int anfang = listenanfang(s, zeile);
    if (anfang > 0) {
        const std::string text = textgetrimmt(s, anfang + s.merkmal[zeile]);
        if (!text.empty())
            return text;
    }
    return zeilenname(zeile);
}

} // namespace lonvir
