// Gross pay from the tariff: basic pay, Ortszuschlag, Allgemeine Stellenzulage, the
// performance step and the overtime rate of the person's group and step.
#include "core/pfennig.h"
#include "engine/schritte.h"
#include "engine/tarifdatei.h"

namespace lonvir {

namespace {

bool beamter(int art) {
    return art >= 0 && art <= 4;
}

bool ab1997Juli(const Sitzung& s) {
    return !s.ist1997() || s.merkmal[20] >= 6;
}

// An amount of the record, halved and rounded when the spouse is in the public service too
// (z(3) on anything but "nein").
std::int32_t ehegattenanteil(const Sitzung& s, int position) {
    if (s.merkmal[3] == 0)
        return s.tarifwert[position];
    return pf::gerundet(static_cast<double>(s.tarifwert[position]) / 2);
}

// "ld. in U.": single in accommodation, by staff class and, for Besoldungsordnung A, group.
std::int32_t ledigInUnterkunft(const Sitzung& s) {
    const int art = s.personalart();
    if (art == 0) {
        const int gruppe = s.merkmal[5];
        if (gruppe <= 8)
            return s.tarifwert[24];
        if (gruppe <= 14)
            return s.tarifwert[23];
        return 0;
    }
    // BAT Bund/Länder, VKA and KR: element 23 whatever the group; the test is made on the
    // staff class, not on the group, and stays so.
    if (art >= 5 && art <= 7)
        return s.tarifwert[23];
    return 0;
}

// Step 2: Ortszuschlag of the classes with the family-status list of the civil servants and
// employees.
void ortszuschlagnachstand(Sitzung& s) {
    const int stand = s.merkmal[8];
    const std::int32_t stufe1 = s.tarifwert[15];
    if (stand == 0) {
        s.wert[8] = stufe1;
    } else if (stand >= 1 && stand <= 7) {
        // Married: the married increase, halved when the spouse is in the public service; then
        // the increase for the children.
        std::int32_t betrag = s.merkmal[3] == 0
                                  ? pf::plus(stufe1, s.tarifwert[16])
                                  : pf::gerundet(static_cast<double>(stufe1) +
                                                 static_cast<double>(s.tarifwert[16]) / 2);
        if (stand >= 2)
            betrag = pf::plus(betrag, s.tarifwert[stand + 15]);
        s.wert[8] = betrag;
    } else if (stand == 8) {
        s.wert[8] = pf::plus(stufe1, s.tarifwert[17]);
    } else if (stand == 9) {
        s.wert[8] = pf::plus(stufe1, s.tarifwert[18]);
    } else if (stand == 10) {
        s.wert[8] = ledigInUnterkunft(s);
    }
    // 11 "manuell" and anything beyond keep the row.
}

// Steps 2 and 3: the Ortszuschlag by staff class.
void ortszuschlag(Sitzung& s) {
    const int art = s.personalart();
    if ((art >= 0 && art <= 3) || (art >= 5 && art <= 7) || (art >= 13 && art <= 18)) {
        ortszuschlagnachstand(s);
    } else if (art == 4) {
        const int stand = s.merkmal[8];
        if (stand == 0)
            s.wert[8] = 0;
        else if (stand >= 1 && stand <= 3)
            s.wert[8] = ehegattenanteil(s, stand + 15);
    } else if (art >= 8 && art <= 11) {
        s.wert[8] = s.tarifwert[s.merkmal[8] + 16];
    }
}

// Step 4: the kind of Allgemeine Stellenzulage.
void stellenzulage(Sitzung& s) {
    switch (s.merkmal[9]) {
    case 0:
        s.wert[9] = s.tarifwert[25];
        break;
    case 1:
        // The second kind lies in the element of step 15: from step 15 on the row is kept.
        if (s.merkmal[7] < 14)
            s.wert[9] = s.tarifwert[14];
        break;
    case 2:
        s.wert[9] = s.eingabe[9];
        break;
    default:
        break;
    }
}

// Step 5: the difference to a higher or lower step, from July 1997.
void leistungsstufe(Sitzung& s) {
    if (!ab1997Juli(s))
        return;
    const int stufe = s.merkmal[7];
    auto unterschied = [&s, stufe](int andere) {
        return pf::minus(s.tarifwert[andere], s.tarifwert[stufe]);
    };
    switch (s.merkmal[11]) {
    case 0:
        s.wert[11] = 0;
        break;
    case 1:
        s.wert[11] = stufe + 1 >= 13 ? 0 : unterschied(stufe + 1);
        break;
    case 2:
        s.wert[11] = stufe < 2 ? 0 : unterschied(stufe - 1);
        break;
    case 3:
        // Below step 3 it is row 9 that is cleared, and row 11 stays: so it is meant.
        if (stufe < 3)
            s.wert[9] = 0;
        else
            s.wert[11] = unterschied(stufe - 2);
        break;
    case 4:
        s.wert[11] = stufe < 4 ? 0 : unterschied(stufe - 3);
        break;
    default:
        break;
    }
}

// Step 7: the pay multiplier of the civil servants or of the others, from its month index on.
// It moves the overtime rate alone: rows 7 to 9 stay as the tariff has them, and that is meant.
void multiplikatoren(Sitzung& s) {
    const Einstellungswerte& e = s.einstellungen;
    const bool b = beamter(s.personalart());
    const Currency faktor = b ? e.multiplikatorBeamte : e.multiplikatorAngestellte;
    const std::int32_t ab = b ? e.abMonatBeamte : e.abMonatAngestellte;
    if (s.merkmal[20] < ab)
        return;
    s.eingabe[5] = (Currency::ganz(s.tarifwert[26]) * faktor).gerundetInt32();
}

} // namespace

void tarifwerte(Sitzung& s) {
    tarifsatzlesen(s, tarifsatznummer(s), tarifdatei(s));
    s.wert[7] = s.tarifwert[s.merkmal[7]];
    ortszuschlag(s);
    stellenzulage(s);
    leistungsstufe(s);
    s.eingabe[5] = s.tarifwert[26];
    multiplikatoren(s);
}

} // namespace lonvir
