// Opening the file set: months, year record, tariffs, settings, texts, July 1997.
#include "start/dateisatz.h"

#include "core/laufzeitfehler.h"
#include "start/einstellungen.h"

namespace lonvir {

char schichtbuchstabe(int schicht) {
    switch (schicht) {
    case INFO:
        return 'I';
    case PLAN:
        return 'P';
    case REAL:
        return 'R';
    }
    return '?';
}

int satzlaengeVon(int nummer) {
    if (nummer >= 1 && nummer <= 12)
        return 541;
    switch (nummer) {
    case datei::jahressaetze:
        return 1280;
    case datei::dim:
        return 232;
    case datei::voe:
        return 648;
    case datei::texte:
        return 35;
    case datei::juli1997:
        return 541;
    default:
        return 108; // the tariff files 14 to 17, 22 and 23
    }
}

std::string dateiname(int nummer, int jahr, int schicht) {
    const std::string jj = jahr == 1998 ? "98" : "97";
    const std::string personen =
        std::string("L") + (jahr == 1998 ? "1998" : "1997") + schichtbuchstabe(schicht) + ".";
    if (nummer >= 1 && nummer <= 13)
        return personen + std::to_string(nummer);
    if (nummer >= datei::tarif1 && nummer <= datei::tarif4)
        return "Lonvir" + jj + "." + std::to_string(nummer - 13) + "tr";
    switch (nummer) {
    case datei::dim:
        return "Lonvir97.dim";
    case datei::voe:
        return "Lonvir97.voe"; // the same file whether spelled .Voe or .voe
    case datei::texte:
        return "Texte.txt";
    case datei::juli1997:
        return std::string("L1997") + schichtbuchstabe(schicht) + ".7";
    case datei::tarif2von1997:
        return "Lonvir97.2tr";
    case datei::tarif3von1997:
        return "Lonvir97.3tr";
    }
    return {};
}

namespace {
void nebenschichtenschliessen(Sitzung& s) {
    for (Nebenschicht& n : s.nebenschichten) {
        for (Satzdatei& d : n.dateien)
            d.schliessen();
        n.jahr = 0;
    }
}
} // namespace

void dateiloeschen(Sitzung& s, const std::string& name) {
    nebenschichtenschliessen(s);
    s.lesepuffer.vergessen(s.ordner.pfad(name).native());
    if (s.vorgang.aktiv()) {
        s.vorgang.loeschen(s.ordner.pfad(name));
        return;
    }
    s.ordner.loeschen(name);
}

void dateienschliessen(Sitzung& s) {
    for (Satzdatei& d : s.dateien)
        d.schliessen();
    nebenschichtenschliessen(s);
}

namespace {
void oeffnen(Sitzung& s, Satzdatei& d, int nummer, int jahr, std::int16_t schicht) {
    const std::string name = dateiname(nummer, jahr, schicht);
    // Under its own name a file opens at once; only an absent one is looked for without regard
    // to case, and created where it is not found.
    if (d.oeffnenFallsVorhanden(s.ordner.ordner() / name, satzlaengeVon(nummer), s.nurLesen))
        return;
    const auto pfad = s.ordner.pfad(name);
    if (s.nurLesen)
        d.lesendoeffnen(pfad, satzlaengeVon(nummer));
    else
        d.oeffnen(pfad, satzlaengeVon(nummer));
}

void oeffnen(Sitzung& s, int nummer, int jahr) {
    oeffnen(s, s.datei(nummer), nummer, jahr, s.schicht);
}

bool gueltig(const Sitzung& s, std::int16_t schicht) {
    return schicht >= INFO && schicht <= REAL && (s.jahr == 0 || s.jahr == 1997 || s.jahr == 1998);
}
} // namespace

namespace {
// The person files of `schicht` opened for the current year beside the set.
void nebenschichtoeffnen(Sitzung& s, Nebenschicht& n, std::int16_t schicht, std::int16_t jahr) {
    for (Satzdatei& d : n.dateien)
        d.schliessen();
    n.jahr = 0;
    // In a year the set does not know the files stay closed, and reading them fails.
    if (!gueltig(s, schicht))
        return;
    // The file the set creates beside the months: L1998x.1 in 1997, the July of 1997 in 1998.
    if (jahr == 1997)
        oeffnen(s, n.dateien[1], 1, 1998, schicht);
    else
        oeffnen(s, n.dateien[7], 7, 1997, schicht);
    for (int nummer = 1; nummer <= datei::jahressaetze; ++nummer)
        oeffnen(s, n.dateien[static_cast<std::size_t>(nummer)], nummer, jahr, schicht);
    n.jahr = jahr;
    n.nurLesen = s.nurLesen;
    n.ordner = s.ordner.ordner();
}
} // namespace

Satzdatei& personendatei(Sitzung& s, std::int16_t schicht, int nummer) {
    if (nummer < 1 || nummer > datei::jahressaetze || schicht < INFO || schicht > REAL)
        throw Laufzeitfehler::indexfehler();
    if (schicht == s.schicht)
        return s.datei(nummer);
    Nebenschicht& n = s.nebenschichten[static_cast<std::size_t>(schicht)];
    const std::int16_t jahr = s.jahr == 1998 ? 1998 : 1997;
    if (n.jahr != jahr || n.nurLesen != s.nurLesen || n.ordner != s.ordner.ordner())
        nebenschichtoeffnen(s, n, schicht, jahr);
    return n.dateien[static_cast<std::size_t>(nummer)];
}

void dateienoeffnen(Sitzung& s) {
    s.lesepuffer.allesvergessen();
    dateienschliessen(s);
    if (!s.nurLesen)
        s.ordner.anlegen();
    const bool schichtGueltig = s.schicht >= INFO && s.schicht <= REAL;
    const bool jahrGueltig = s.jahr == 0 || s.jahr == 1997 || s.jahr == 1998;
    if (schichtGueltig && jahrGueltig) {
        const int jahr = s.jahr == 1998 ? 1998 : 1997;
        if (jahr == 1997) {
            // Creates L1998x.1, whose length later tells whether 1998 is in use.
            oeffnen(s, 1, 1998);
            s.datei(1).schliessen();
        }
        for (int nummer = 1; nummer <= datei::voe; ++nummer)
            oeffnen(s, nummer, jahr);
        oeffnen(s, datei::juli1997, 1997);
    }
    oeffnen(s, datei::texte, 1997);
    oeffnen(s, datei::tarif2von1997, 1997);
    oeffnen(s, datei::tarif3von1997, 1997);
}

void schichtwechsel(Sitzung& s, std::int16_t neueschicht) {
    s.schicht = neueschicht;
    dateienoeffnen(s);
    voelesen(s);
}

} // namespace lonvir
