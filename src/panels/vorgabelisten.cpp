// The lists of the settings pages: each entry is worded from its position, so that what is
// stored (the position) and what is shown follow one rule.
#include "panels/vorgabeseiten.h"
#include "start/texte.h"

namespace lonvir {

namespace {

// Tenths as the lists show them: 134 gives "13,4".
std::string zehnteltext(int zehntel) {
    return std::to_string(zehntel / 10) + "," + std::to_string(zehntel % 10);
}

std::vector<std::string> saetze(int erstezehntel, int anzahl) {
    std::vector<std::string> liste;
    for (int i = 0; i < anzahl; ++i)
        liste.push_back(zehnteltext(erstezehntel + i) + " % / 2");
    return liste;
}

std::vector<std::string> betraege(int von, int bis, int schritt) {
    std::vector<std::string> liste;
    for (int dm = von; dm <= bis; dm += schritt)
        liste.push_back(std::to_string(dm) + " DM");
    return liste;
}

std::string monatjahr(const Sitzung& s, int monat) {
    return std::to_string(monat) + "/" + vorgabejahr(s);
}

std::vector<std::string> monate(const Sitzung& s, const std::string& vor) {
    std::vector<std::string> liste;
    for (int monat = 1; monat <= 12; ++monat)
        liste.push_back(vor + monatjahr(s, monat));
    return liste;
}

// Thousandths above 1: position 25 gives "1,025".
std::vector<std::string> multiplikatoren(const std::string& vor) {
    std::vector<std::string> liste;
    for (int i = 0; i <= 51; ++i) {
        const std::string tausendstel = std::to_string(1000 + i);
        liste.push_back(vor + tausendstel.substr(0, 1) + "," + tausendstel.substr(1));
    }
    return liste;
}

std::vector<std::string> tarifmonate(const Sitzung& s, const std::string& datei) {
    std::vector<std::string> liste{datei + " Tarife inaktiv " + vorgabejahr(s)};
    for (const std::string& eintrag : monate(s, datei + " Tarife ab "))
        liste.push_back(eintrag);
    return liste;
}

} // namespace

std::string vorgabejahr(const Sitzung& s) {
    return s.ist1997() ? "1997" : std::to_string(s.jahr);
}

std::vector<std::string> sozvorgabenliste(int combo) {
    switch (combo) {
    case 0: {
        // "aus" first: position 0 is no health-insurance rate; then 12,0 to 16,0.
        std::vector<std::string> liste{"aus"};
        for (const std::string& satz : saetze(120, 41))
            liste.push_back(satz);
        return liste;
    }
    case 1:
        return saetze(15, 6);
    case 2:
        return saetze(195, 11);
    case 3:
        return saetze(60, 11);
    case 4:
    case 5:
        return betraege(6000, 6500, 50);
    case 6:
    case 7:
        return betraege(8000, 8500, 50);
    case 8:
        return betraege(600, 700, 10);
    case 9:
    case 10:
        return betraege(5300, 5600, 25);
    case 11:
    case 12:
        return betraege(7000, 7500, 50);
    case 13:
        return betraege(500, 600, 10);
    }
    return {};
}

std::vector<std::string> zvkvorgabenliste(Sitzung& s, int combo) {
    switch (combo) {
    case 0:
        return {textgetrimmt(s, 3555), textgetrimmt(s, 3556)};
    case 1:
        return {"ZVK-Versteuerung zu 1/12 des Limits", "ZVK-Verst.anfangs voll bis Limit erreicht"};
    case 2: {
        std::vector<std::string> liste;
        for (int i = 0; i <= 10; ++i)
            liste.push_back("Ki.Steuer f.ZVK-Pauschbest. " + std::to_string(i) + " %");
        return liste;
    }
    }
    return {};
}

std::vector<std::string> tarifstrukturliste(const Sitzung& s, int combo) {
    switch (combo) {
    case 1:
        return multiplikatoren("Beamtengehälter x ");
    case 3:
        return multiplikatoren("Angestelltengehälter x ");
    case 2:
    case 4:
        return monate(s, "Multiplikator anwenden ab ");
    case 5:
        return monate(s, ".1er Tarife ab ");
    case 6:
        return tarifmonate(s, ".2er");
    case 7:
        return tarifmonate(s, ".3er");
    case 8:
        return tarifmonate(s, ".4er");
    case steuerrechtcombo:
        // The law the wage tax of 1998 is computed with; the year 1997 has no choice.
        if (s.ist1997())
            return {};
        return {"Lohnsteuer nach dem Steuerrecht 1997", "Steuerrecht 1998 anwenden"};
    }
    return {};
}

std::vector<std::string> passwortliste() {
    return {"Passwortprüfung aus", "Passwortprüfung ein"};
}

void listenfuellen(Tablett& t) {
    switch (t.s.Tablettseite) {
    case 63:
        for (int i = 0; i <= 13; ++i)
            t.Combo[i].liste = sozvorgabenliste(i);
        break;
    case 65:
        for (int i = 0; i <= 2; ++i)
            t.Combo[i].liste = zvkvorgabenliste(t.s, i);
        break;
    case 44:
        for (int i = 1; i <= steuerrechtcombo; ++i)
            t.Combo[i].liste = tarifstrukturliste(t.s, i);
        break;
    case 2:
        t.Combo[0].liste = passwortliste();
        break;
    default:
        break;
    }
}

} // namespace lonvir
