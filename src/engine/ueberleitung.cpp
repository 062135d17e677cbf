// The transition allowance: the old and the new base, and row 10 from their difference less
// the reduction that begins in 1998.
#include "engine/ueberleitung.h"

#include "core/pfennig.h"
#include "engine/bdabeginn.h"
#include "engine/schritte.h"
#include "engine/tarifdatei.h"
#include "start/satzzugriff.h"

namespace lonvir {

namespace {

constexpr std::int32_t schwelle = 500; // an allowance of 5.00 DM or less is not paid

bool ab1997Juli(const Sitzung& s) {
    return !s.ist1997() || s.merkmal[20] >= 6;
}

// The Stellenzulage of the base: element 25 or 14 of the line read last, or the July 1997
// row 9 kept in nebenwert(24).
std::int32_t stellenzulage(const Sitzung& s) {
    switch (s.merkmal[9]) {
    case 0:
        return s.tarifwert[25];
    case 1:
        return s.tarifwert[14];
    case 2:
        return s.nebenwert[24];
    default:
        return 0;
    }
}

// Ost pay of 1998 measured against the 1997 tables: divided by 84, times 85, rounded.
std::int32_t ostumrechnung(const Sitzung& s, std::int32_t betrag) {
    if (s.merkmal[2] != 1 || s.ist1997())
        return betrag;
    return pf::gerundet(static_cast<double>(betrag) / 84 * 85);
}

} // namespace

// Step 1 and 2 of the base: the step before the reform, from the service age in June 1997,
// held below the old top step of the July group.
int altestufe(const Sitzung& s, const Personalsatz& juli) {
    const double mm = bdamonat(s.bdabeginn);
    const double jj = bdajahr(s.bdabeginn);
    const std::int32_t monate = pf::gerundet((97 - jj) * 12 - mm + 6);
    int stufe = monate / 24;
    if (juli.merkmal[4] == 0) {
        const int grenze = altestufengrenze(juli.merkmal[5]);
        if (stufe > grenze - 1)
            stufe = grenze - 1;
    }
    return stufe;
}

int altestufengrenze(int gruppe) {
    if (gruppe <= 3)
        return 8;
    if (gruppe <= 5)
        return 9;
    if (gruppe == 6)
        return 10;
    if (gruppe == 7)
        return 12;
    if (gruppe <= 12)
        return 13;
    if (gruppe <= 18)
        return 14;
    return 15;
}

void ueberleitung(Sitzung& s) {
    const Personalsatz juli = personalsatzlesen(s, datei::juli1997, s.aktuelleperson);
    const bool ost = s.merkmal[2] == 1;
    const int stufe = altestufe(s, juli);
    tarifsatzlesen(s, tarifsatznummer(0, juli.merkmal[5], ost), datei::tarif2von1997);
    std::int32_t alt = pf::plus(s.tarifwert[stufe], s.tarifwert[15]);
    s.basis_alt = ostumrechnung(s, pf::plus(alt, stellenzulage(s)));
    tarifsatzlesen(s, tarifsatznummer(0, s.merkmal[5], ost), datei::tarif3von1997);
    s.basis_neu = ostumrechnung(s, pf::plus(s.tarifwert[s.merkmal[7]], stellenzulage(s)));
}

void ueberleitungsbasis(Sitzung& s) {
    ueberleitung(s);
}

void ueberleitungszulage(Sitzung& s) {
    if (s.personalart() != 0) {
        // The row means something for Besoldungsordnung A only.
        s.wert[10] = 0;
        s.eingabe[10] = 0;
        return;
    }
    if (!ab1997Juli(s))
        return;
    const bool jahr1997 = s.ist1997();
    const int monat = s.merkmal[20];
    const std::int32_t differenz = pf::minus(s.basis_alt, s.basis_neu);
    std::int32_t abbau = 0;
    if (!jahr1997) {
        // From 1998 a third of every rise of basic pay and Stellenzulage is taken off.
        const std::int32_t anstieg = pf::minus(pf::plus(s.wert[9], s.wert[7]), s.basis_neu);
        abbau = pf::gerundet(static_cast<double>(anstieg) / 3);
        if (abbau < 0)
            abbau = 0;
    }
    std::int32_t zulage = differenz;
    if (jahr1997 && monat >= 8)
        zulage = pf::plus(pf::minus(differenz, abbau), s.nebenwert[25]);
    else if (!jahr1997)
        zulage = pf::minus(differenz, abbau);
    s.wert[10] = zulage > schwelle ? zulage : 0;
    if (s.merkmal[10] == 1)
        s.wert[10] = s.eingabe[10];
    if (jahr1997 && monat == 7) {
        // August 1997 keeps the Ost part that the later months add back.
        if (s.merkmal[2] == 1) {
            if (differenz > 0)
                s.nebenwert[25] = pf::gerundet(static_cast<double>(differenz) / 84);
        } else {
            s.nebenwert[25] = 0;
        }
    }
    if (jahr1997 && monat == 6)
        s.nebenwert[24] = s.wert[9];
}

} // namespace lonvir
